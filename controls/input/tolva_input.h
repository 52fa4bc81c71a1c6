#pragma once
#include "controls/input/calculator_state.h"
#include "controls/input/tolva_input_enums.h"
#include "controls/input/tolva_input_events.h"
#include "core/accessibility.h"
#include "core/click_forwarding.h"
#include "core/control_site.h"
#include "core/input_popup.h"
#include "core/list_box.h"
#include "core/mouse_state.h"
#include "core/property_bag.h"
#include "core/surface.h"
#include "core/text_box.h"
#include "core/twips_canvas.h"
#include "core/variant.h"
#include <memory>
#include <optional>

namespace tolva {

class Formatter;

// A one-line text entry that can drop down a month calendar, a calculator or an item list
// beside its text (Style). The text lives in the platform's text box txtInput; the items in the
// hidden list box lstDummy, in every style; the drop-down button is the 180-twip strip at the
// right edge, drawn through the off-screen picture picBuffer. Values chosen in a pop-up are
// formatted into the text; typing is never reformatted.
//
// The control has the sunken border of a text box; its inner size is the surface's scale.
class TolvaInput final : public AccessibleElement, private SurfaceListener, private ClickTarget, public PopupOwner {
public:
    TolvaInput(Surface& surface, ControlSite& site);
    ~TolvaInput() override;
    TolvaInput(const TolvaInput&) = delete;
    TolvaInput& operator=(const TolvaInput&) = delete;

    void SetEventListener(TolvaInputEvents* events) { m_events = events ? events : &s_noEvents; }

    // Lifecycle. Loading restores the selection before the text, so the text replaces what
    // SelText put into the empty box.
    void InitProperties();
    void ReadProperties(PropertyBag& bag);
    void WriteProperties(PropertyBag& bag) const;

    // Members, in the order of the dispatch interface.
    void AboutBox();
    OleColor BackColor() const;
    void SetBackColor(OleColor color);
    OleColor ForeColor() const;
    void SetForeColor(OleColor color);
    bool Enabled() const;
    void SetEnabled(bool enabled);
    Font GetFont() const;
    void SetFont(const Font& font);
    // How a pop-up hands back a key or a result; see input_popup.h for the messages.
    void PopupWindowCallback(String& param, Currency& value) override;
    void Refresh();
    // index: empty for none, else converted as an Integer.
    void AddItem(StringView item, const Variant& index = {});
    String List(int16_t index) const;
    void SetList(int16_t index, StringView item);
    int16_t ListCount() const;
    int16_t ListIndex() const;
    void SetListIndex(int16_t index);
    bool Locked() const;
    void SetLocked(bool locked);
    int32_t MaxLength() const;
    void SetMaxLength(int32_t length);
    int16_t NewIndex() const;
    void RemoveItem(int16_t index);
    int32_t SelLength() const;
    void SetSelLength(int32_t length);
    int32_t SelStart() const;
    void SetSelStart(int32_t start);
    String SelText() const;
    void SetSelText(StringView text);
    bool Sorted() const { return m_lstDummy.Sorted(); }
    String Text() const;
    void SetText(StringView text);
    int32_t Style() const { return m_style; }
    void SetStyle(int32_t style);
    OleColor ddBackColor() const { return m_ddBackColor; }
    void SetddBackColor(OleColor color);
    OleColor ddBackColorActive() const { return m_ddBackColorActive; }
    void SetddBackColorActive(OleColor color);
    OleColor ddBackColorPushed() const { return m_ddBackColorPushed; }
    void SetddBackColorPushed(OleColor color);
    bool SelectionTracking() const override { return m_selectionTracking; }
    String OwnerName() const override { return m_site.ExtenderName(); }
    void SetSelectionTracking(bool tracking);
    const String& FormatString() const { return m_formatString; }
    void SetFormatString(StringView format);

    // Editable text named after its extender, whose value is the text; read-only while Locked.
    // With a drop-down it is collapsed or expanded, and its default action "Open" (or "Close")
    // clicks the drop-down button.
    AccessibleDescription Describe() const override;
    bool DoDefaultAction() override;

    // Transient state, for the platform and tests.
    const MouseState& Mouse() const { return m_mouse; }
    const CalculatorState& Calculator() const { return m_calc; }
    TextBox& TextInput() { return *m_txtInput; }
    const ListBox& Items() const { return m_lstDummy; }

    static constexpr float MinimumHeight = 285;
    static constexpr float ButtonWidth = 180;
    static constexpr OleColor DefaultddBackColor = 0xCEDBDE;
    static constexpr OleColor DefaultddBackColorActive = 0xDEE7EF;
    static constexpr OleColor DefaultddBackColorPushed = 0xBDCBCE;

private:
    // txtInput's notifications, raised again as the control's events with the same arguments.
    class TextEvents final : public TextBoxListener {
    public:
        explicit TextEvents(TolvaInput& owner)
            : m_owner(owner)
        { }
        void OnChange() override;
        void OnClick() override;
        void OnDblClick() override;
        void OnKeyDown(int16_t& keyCode, int16_t& shift) override;
        void OnKeyPress(int16_t& keyAscii) override;
        void OnKeyUp(int16_t& keyCode, int16_t& shift) override;
        void OnMouseDown(int16_t button, int16_t shift, float x, float y) override;
        void OnMouseMove(int16_t button, int16_t shift, float x, float y) override;
        void OnMouseUp(int16_t button, int16_t shift, float x, float y) override;

    private:
        TolvaInput& m_owner;
    };

    // Surface notifications: the drop-down strip.
    void OnPaint() override;
    void OnResize() override;
    void OnHide() override;
    void OnAmbientChanged(StringView name) override;
    void OnMouseDown(int16_t button, int16_t shift, float x, float y) override;
    void OnMouseMove(int16_t button, int16_t shift, float x, float y) override;
    void OnMouseUp(int16_t button, int16_t shift, float x, float y) override;
    void OnGotFocus() override;

    // The pop-up protocol's other calls; see input_popup.h.
    std::shared_ptr<void> Hold() override { return m_site.Hold(); }
    void PopupClosedByPress(PixelPoint screen) override { m_closingPress = screen; }
    bool ClosedPopup(float x, float y) const;

    // The control's own keys, before KeyDown is raised: the arrows of the list style, F4.
    void HandleKey(int16_t& keyCode);

    // The shared mouse steps call back here.
    void Repaint() override;
    void Clicked() override;
    MouseEvents& Events() override { return *m_events; }

    void PropertyChanged(StringView key);
    void Layout();
    void DrawDropDownButton();
    void PressButton(int16_t shift, float x, float y, bool closedPopup = false);
    void ShowDropDown(InputPopup& popup);
    void PlacePopup(InputPopup& popup);
    void PreparePopup(InputPopup& popup);
    void UnloadPopups();
    bool HasDropDown() const;
    // The pop-up of the style shows, opened by this control.
    bool DropDownOpen() const;
    // Tells screen readers when the drop-down opened or closed since they last heard.
    void AnnounceDropDown();
    float BlankHeight();

    void CalendarCallback();
    void CalculatorCallback(StringView param, Currency value);
    void CalculatorOperator(StringView op);
    void ListCallback(StringView param, Currency value);
    void CaretToEnd();
    Formatter& Formatting();

    static inline TolvaInputEvents s_noEvents;

    Surface& m_surface;
    ControlSite& m_site;
    TolvaInputEvents* m_events = &s_noEvents;
    TextEvents m_textEvents { *this }; // outlives the text box that calls it
    std::unique_ptr<TextBox> m_txtInput;
    ListBox m_lstDummy;
    TwipsCanvas m_picBuffer;

    int32_t m_style = tkInputStyles::tkTextBox;
    String m_formatString;
    OleColor m_ddBackColor = DefaultddBackColor;
    OleColor m_ddBackColorActive = DefaultddBackColorActive;
    OleColor m_ddBackColorPushed = DefaultddBackColorPushed;
    bool m_selectionTracking = false;
    bool m_initialised = false;
    MouseState m_mouse;
    // Where the press went that took the activation from this control's pop-up (screen
    // pixels), until the next press on the button arrives.
    std::optional<PixelPoint> m_closingPress;
    CalculatorState m_calc;
    bool m_announcedOpen = false;
    AccessibleRegistration m_accessible { m_surface, *this };
};

} // namespace tolva
