#pragma once
#include "controls/tabs/tab_store.h"
#include "controls/tabs/tolva_tabs_events.h"
#include "core/accessibility.h"
#include "core/caption.h"
#include "core/control_site.h"
#include "core/ole_color.h"
#include "core/property_bag.h"
#include "core/surface.h"
#include "core/twips_canvas.h"
#include <algorithm>

namespace tolva {

// A single row of tabs of one width above a folder body. It keeps the tab captions with one user
// integer each and a selected tab; a press on a tab or its access key selects it, and the
// container hears of it through Change, which may refuse it. The folder holds no pages: the
// container shows its own controls for each tab.
class TolvaTabs final : public AccessibleElement, private SurfaceListener {
public:
    TolvaTabs(Surface& surface, ControlSite& site);
    ~TolvaTabs() override;
    TolvaTabs(const TolvaTabs&) = delete;
    TolvaTabs& operator=(const TolvaTabs&) = delete;

    void SetEventListener(TolvaTabsEvents* events) { m_events = events ? events : &s_noEvents; }

    // Lifecycle.
    void InitProperties();
    void ReadProperties(PropertyBag& bag);
    void WriteProperties(PropertyBag& bag) const;

    // Properties delegated to the surface.
    OleColor BackColor() const;
    void SetBackColor(OleColor color);
    OleColor ForeColor() const;
    void SetForeColor(OleColor color); // kept and saved; the captions do not use it
    bool Enabled() const;
    void SetEnabled(bool enabled);
    Font GetFont() const;
    void SetFont(const Font& font);

    // The tabs. Indexes are not checked against TabCount, only against the arrays: one outside
    // them is the run time's subscript error.
    int32_t TabCount() const { return m_tabCount; }
    const String& Tabs(int32_t index) const { return m_store.Caption(index); }
    void SetTabs(int32_t index, StringView caption);
    int32_t TabData(int32_t index) const { return m_store.Data(index); }
    void SetTabData(int32_t index, int32_t value);
    int32_t SelectedItem() const { return m_selectedItem; }
    void SetSelectedItem(int32_t item);

    // Looks.
    OleColor BorderColor() const { return m_borderColor; }
    void SetBorderColor(OleColor color);
    OleColor BackColorInactive() const { return m_backColorInactive; }
    void SetBackColorInactive(OleColor color);
    OleColor BackColorBehind() const { return m_backColorBehind; }
    void SetBackColorBehind(OleColor color);
    int32_t TabWidth() const { return m_tabWidth; }
    void SetTabWidth(int32_t width);

    // Methods.
    void AboutBox();
    void Clear();
    void Refresh();
    void AddItem(StringView caption);
    void RemoveItem(int32_t index);

    // A page tab list named after its extender, whose tabs are its items: page tabs named by
    // their captions, selectable, with "Switch" as the default action that selects them.
    AccessibleDescription Describe() const override;
    bool DoDefaultAction() override { return false; }
    int32_t ChildCount() const override { return std::max(m_tabCount, 0); }
    std::unique_ptr<AccessibleElement> Child(int32_t index) override;
    int32_t FocusedChild() const override;
    int32_t SelectedChild() const override;

    // The height of the row of tabs, twips.
    float RowHeight();

    static constexpr int32_t DefaultTabWidth = 1700;
    static constexpr OleColor DefaultBackColorInactive = 0xCEDBDE;
    static constexpr OleColor DefaultBackColorBehind = 0xFFFFFF;
    static constexpr OleColor DefaultBorderColor = 0x8C969C;
    static constexpr int32_t NoSelection = -1;

private:
    // Surface notifications, passed on as the events of the same names; a press runs the hit
    // test first.
    void OnPaint() override;
    void OnResize() override;
    void OnAmbientChanged(StringView name) override;
    void OnClick() override;
    void OnDblClick() override;
    void OnMouseDown(int16_t button, int16_t shift, float x, float y) override;
    void OnMouseMove(int16_t button, int16_t shift, float x, float y) override;
    void OnMouseUp(int16_t button, int16_t shift, float x, float y) override;
    void OnKeyDown(int16_t& keyCode, int16_t& shift) override;
    void OnKeyPress(int16_t& keyAscii) override;
    void OnKeyUp(int16_t& keyCode, int16_t& shift) override;
    void OnAccessKeyPress(char16_t key) override;

    void PropertyChanged(StringView key);
    void SetTabCount(int32_t count);
    void SelectTabAt(float x, float y);
    void OnGotFocus() override;

    void Redraw();
    void DrawTab(int32_t index, float x, float textHeight, const ScannedCaption& caption);
    void PrintCaption(const ScannedCaption& caption);

    static inline TolvaTabsEvents s_noEvents;

    Surface& m_surface;
    ControlSite& m_site;
    TwipsCanvas m_picBuffer;
    TolvaTabsEvents* m_events = &s_noEvents;

    TabStore m_store;
    int32_t m_tabCount = 0;
    int32_t m_selectedItem = NoSelection;
    int32_t m_tabWidth = DefaultTabWidth;
    OleColor m_backColorInactive = DefaultBackColorInactive;
    OleColor m_backColorBehind = DefaultBackColorBehind;
    OleColor m_borderColor = DefaultBorderColor;
    AccessibleRegistration m_accessible { m_surface, *this };
};

} // namespace tolva
