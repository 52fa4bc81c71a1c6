#pragma once
#include "controls/input/popups/popup_form.h"
#include "controls/scroll/tolva_scroll.h"
#include "core/embedded_control.h"
#include <memory>

namespace tolva {

// The list pop-up: the owner's items from item 1 on, one highlighted, with the scroll bar tsc
// over the right-hand part of the rows when there are many. Every change of the highlight is
// sent to the owner at once ("SELECT" with its one-based number); a release or Enter closes the
// list, Esc cancels. It never changes the owner's text itself.
class frmCombo final : public PopupForm<ListPopup> {
public:
    frmCombo(std::unique_ptr<Surface> window, ControlSite& site);
    ~frmCombo() override;

    void SetList(const ListBox* items) override { m_items = items; }
    // Read after a repaint of the list; set without one.
    int32_t TopIndex() override;
    void SetTopIndex(int32_t index) override { m_topIndex = index; }
    void SetScrollBarVisible(bool visible) override;
    void SetSelectedItem(int32_t item) override;
    void Setup() override;

    // ListIndex: selects an item, clamped to 1 .. ListCount - 1, and reports it.
    int32_t ListIndex() const { return m_listIndex; }
    void SetListIndex(int32_t index);

    // The parts, for the platform and tests.
    TolvaScroll& ScrollBar() { return *m_tsc; }
    Surface& ScrollBarWindow() { return m_tsc.Window(); }
    float ItemHeight();

    // A list of the items, named after the owner; the highlighted item is selected and the value.
    AccessibleDescription Describe() const override;
    int32_t ChildCount() const override;
    std::unique_ptr<AccessibleElement> Child(int32_t index) override;
    int32_t FocusedChild() const override;
    int32_t SelectedChild() const override;

private:
    class Item;

    class ScrollEvents final : public TolvaScrollEvents {
    public:
        explicit ScrollEvents(frmCombo& form)
            : m_form(form)
        { }
        void Change() override { m_form.FollowScrollBar(); }
        void Scroll() override { m_form.FollowScrollBar(); }

    private:
        frmCombo& m_form;
    };

    void Forget() override;
    void OnPaint() override;
    void OnResize() override;
    void OnMouseDown(int16_t button, int16_t shift, float x, float y) override;
    void OnMouseMove(int16_t button, int16_t shift, float x, float y) override;
    void OnMouseUp(int16_t button, int16_t shift, float x, float y) override;
    void OnKeyDown(int16_t& keyCode, int16_t& shift) override;

    int32_t ListCount() const;
    int32_t VisibleItems();
    void Repaint();
    void DrawItem(int32_t index);
    void DrawItemOn(Canvas& canvas, int32_t index, float itemHeight);
    // Item index's row on the window, pixels, and whether the list shows it.
    Rect ItemRect(int32_t index, float itemHeight);
    bool ItemShown(int32_t index);
    void FollowScrollBar();

    const ListBox* m_items = nullptr;
    int32_t m_listIndex = 0;
    int32_t m_topIndex = 1;
    bool m_updating = false;
    ScrollEvents m_scrollEvents { *this };
    EmbeddedControl<TolvaScroll> m_tsc;
};

} // namespace tolva
