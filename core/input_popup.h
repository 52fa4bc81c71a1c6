#pragma once
#include "core/currency.h"
#include "core/list_box.h"
#include "core/ole_date.h"
#include "core/rect.h"
#include "core/string.h"
#include <cstdint>
#include <memory>

namespace tolva {

// The drop-down protocol between a text entry control and the pop-up windows it opens: a month
// calendar, a calculator keypad and an item list. There is one pop-up of each kind per
// user-interface thread, shared by every entry control of the thread (InputPopups); a pop-up
// belongs to whichever control opened it last, its Parent.
//
// Opening, as the owner does it (nothing else is asked of a pop-up before it shows):
//   1. a visible pop-up is hidden instead and the owner calls itself back with "" (accept);
//   2. the list only: Resize(width, height), twips;
//   3. Move(left, top): the top-left corner on the screen, twips, worked out from Width() and
//      Height() and the screen's size;
//   4. SetParent(owner);
//   5. the data members: the calendar's SetDate and SetCurrentDate; the list's SetList,
//      SetTopIndex, SetScrollBarVisible and SetSelectedItem;
//   6. Setup(), then Show().
//
// A pop-up answers only through Parent()->PopupWindowCallback(param, value):
//   calendar   ""        a day was chosen (read back with Date()), or it lost activation
//              "CANCEL"  its cancel key
//   calculator "#"       a digit key, the digit in value
//              "." "B" "S" "C" "+" "-" "*" "/" "="   the other keys (value 0)
//              ""        it was closed without "=" (lost activation)
//              "CANCEL"  its cancel key
//   list       "SELECT"  the highlighted item changed, its one-based number in value
//              "CANCEL"  its cancel key
//              ""        it lost activation
// Losing activation means: hide itself, then call back with "" (after PopupClosedByPress when a
// mouse press took the activation). The owner unloads the
// calendar after any callback, the calculator after "=", the list after "CANCEL"; hiding the
// owner unloads all three.
//
// Re-entrancy: the owner calls Hide, Unload and the data members from inside the pop-up's own
// call of PopupWindowCallback, and events raised there may reach any code, which may let go of
// the owner. A pop-up therefore holds its owner (Hold) around each callback, and never destroys
// itself: Unload hides it and forgets its state, and the object stays for the next Load. An
// owner that goes unloads the pop-ups it owns, so none calls it afterwards. The owner tolerates
// a callback at any time, also after the pop-up was hidden.
class PopupOwner {
public:
    // param and value are in/out, as a late-bound caller passes them.
    virtual void PopupWindowCallback(String& param, Currency& value) = 0;
    // Whether the list's highlight follows the mouse without a button held.
    virtual bool SelectionTracking() const = 0;
    // Keeps the owner alive while the hold lives: a pop-up takes one around each callback.
    virtual std::shared_ptr<void> Hold() = 0;
    // The pop-up lost the activation to a mouse press at screen (pixels), told before the ""
    // callback that follows: a press on the owner's own button has closed the pop-up already,
    // as a second press would, and must not open it again when it arrives.
    virtual void PopupClosedByPress(PixelPoint screen) = 0;
    // What screen readers call the owner; its pop-ups go by the same name.
    virtual String OwnerName() const = 0;

protected:
    ~PopupOwner() = default;
};

enum class PopupKind { Calendar, Calculator, List };

// What every pop-up window does for the protocol. Geometry is twips on the screen.
class InputPopup {
public:
    virtual ~InputPopup() = default;

    virtual PopupKind Kind() const = 0;

    // Loading gives a fresh, hidden pop-up; unloading hides it and forgets its state (Parent
    // included). InputPopups calls both; see there.
    virtual void Load() = 0;
    virtual void Unload() = 0;

    virtual PopupOwner* Parent() const = 0;
    virtual void SetParent(PopupOwner* owner) = 0;

    virtual float Width() const = 0;
    virtual float Height() const = 0;
    virtual void Resize(float width, float height) = 0;
    virtual void Move(float left, float top) = 0;

    // Fills the window from the data members; called last before Show.
    virtual void Setup() = 0;
    virtual void Show() = 0;
    virtual void Hide() = 0;
    virtual bool Visible() const = 0;
};

class CalendarPopup : public InputPopup {
public:
    static constexpr PopupKind KindOf = PopupKind::Calendar;
    PopupKind Kind() const final { return KindOf; }

    // The chosen date (dtDate): set before showing, changed by a press on a day.
    virtual OleDate Date() const = 0;
    virtual void SetDate(OleDate date) = 0;
    // The date whose month is shown (currentDate).
    virtual OleDate CurrentDate() const = 0;
    virtual void SetCurrentDate(OleDate date) = 0;
};

class CalculatorPopup : public InputPopup {
public:
    static constexpr PopupKind KindOf = PopupKind::Calculator;
    PopupKind Kind() const final { return KindOf; }
};

class ListPopup : public InputPopup {
public:
    static constexpr PopupKind KindOf = PopupKind::List;
    PopupKind Kind() const final { return KindOf; }

    // The owner's items (its hidden list box); item 0 is never offered. The list box lives as
    // long as its owner, which unloads the pop-up before it goes.
    virtual void SetList(const ListBox* items) = 0;
    virtual int32_t TopIndex() = 0; // may repaint the list first
    virtual void SetTopIndex(int32_t index) = 0;
    virtual void SetScrollBarVisible(bool visible) = 0;
    // The highlighted item, one-based as "SELECT" reports it; set by the owner without a
    // callback in return, also while the pop-up shows (the owner's ListIndex changed).
    virtual void SetSelectedItem(int32_t item) = 0;
};

// Makes the pop-up windows of a platform; nullptr where the platform has none of that kind.
class PopupFactory {
public:
    virtual std::unique_ptr<InputPopup> Create(PopupKind kind) = 0;

protected:
    ~PopupFactory() = default;
};

} // namespace tolva
