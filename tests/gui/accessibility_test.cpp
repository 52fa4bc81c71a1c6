// Every control's window answers screen readers with an accessible object of its own, read here
// as a screen reader reads it: through AccessibleObjectFromWindow and the event hooks.
#include "platform/win32/com/bstr.h"
#include "tests/gui/gui_support.h"
#include "tests/gui/hosted_form.h"
#include "tests/gui/sample_forms.h"
#include "tests/win32/support/dispatch_helpers.h"
#include <array>
#include <gtest/gtest.h>
#include <oleacc.h>

namespace tolva::win32 {
namespace {

using test::HostedForm;
using Lines = std::vector<std::string>;

struct Reading {
    std::wstring name;
    LONG role = 0;
    LONG state = 0; // without the focus, which the container places
    std::wstring value;
    std::wstring shortcut;
    std::wstring action;
    std::array<long, 4> location {}; // left, top, right, bottom in screen pixels
    long children = 0;
    bool operator==(const Reading&) const = default;
};

void PrintTo(const Reading& r, std::ostream* out)
{
    *out << ToUtf8(FromWide(r.name)) << " role " << r.role << " state " << std::hex << r.state << std::dec << " value "
         << ToUtf8(FromWide(r.value)) << " " << ToUtf8(FromWide(r.shortcut)) << " " << ToUtf8(FromWide(r.action)) << " at "
         << r.location[0] << "," << r.location[1] << "-" << r.location[2] << "," << r.location[3] << " children "
         << r.children;
}

VARIANT ChildId(LONG id)
{
    VARIANT child;
    child.vt = VT_I4;
    child.lVal = id;
    return child;
}

template <class Getter> std::wstring TextOf(Getter get)
{
    Bstr text;
    return SUCCEEDED(get(text.Put())) && text.Get() ? std::wstring(text.Get()) : std::wstring();
}

// Everything a screen reader reads of an object, or of its child id.
Reading Read(IAccessible& object, LONG id = CHILDID_SELF)
{
    const VARIANT child = ChildId(id);
    Reading reading;
    reading.name = TextOf([&](BSTR* out) { return object.get_accName(child, out); });
    reading.value = TextOf([&](BSTR* out) { return object.get_accValue(child, out); });
    reading.shortcut = TextOf([&](BSTR* out) { return object.get_accKeyboardShortcut(child, out); });
    reading.action = TextOf([&](BSTR* out) { return object.get_accDefaultAction(child, out); });
    VARIANT value;
    if (SUCCEEDED(object.get_accRole(child, &value)))
        reading.role = value.lVal;
    if (SUCCEEDED(object.get_accState(child, &value)))
        reading.state = value.lVal & ~STATE_SYSTEM_FOCUSED;
    long left = 0, top = 0, width = 0, height = 0;
    object.accLocation(&left, &top, &width, &height, child);
    reading.location = { left, top, left + width, top + height };
    if (id == CHILDID_SELF)
        object.get_accChildCount(&reading.children);
    return reading;
}

std::array<long, 4> ScreenRect(HWND window)
{
    RECT rect {};
    GetWindowRect(window, &rect);
    return { rect.left, rect.top, rect.right, rect.bottom };
}

// A rectangle of the window's client area, in screen pixels.
std::array<long, 4> OnScreen(HWND window, RECT rect)
{
    MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&rect), 2);
    return { rect.left, rect.top, rect.right, rect.bottom };
}

class Accessibility : public testing::Test {
protected:
    Accessibility()
    {
        IDispatch* list = Extender(u"lstPeople");
        OleVariant ignored;
        for (const wchar_t* column : { L"Name", L"City" })
            test::Call(list, test::IdOf(list, L"AddColumn"), DISPATCH_METHOD, { test::Text(column) }, ignored);
        const wchar_t* cells[3][2] = { { L"Ann", L"Oslo" }, { L"Bo", L"Rome" }, { L"Cy", L"Lima" } };
        for (LONG row = 1; row <= 3; ++row) {
            test::Call(list, test::IdOf(list, L"AddRow"), DISPATCH_METHOD, {}, ignored);
            for (LONG column = 1; column <= 2; ++column)
                test::PutAt(list, L"RowText", { test::Long(row), test::Long(column) }, test::Text(cells[row - 1][column - 1]));
        }
    }

    IDispatch* Extender(StringView control) { return hosted.Control(control).Extender(); }

    ComPtr<IAccessible> ClientObject(StringView control)
    {
        ComPtr<IAccessible> object;
        EXPECT_EQ(AccessibleObjectFromWindow(hosted.Window(control), OBJID_CLIENT, __uuidof(IAccessible), object.PutVoid()),
            S_OK);
        return object;
    }

    HostedForm hosted { test::EveryControlForm };
};

TEST_F(Accessibility, EachControlReadsAsItLooks)
{
    struct Case {
        const char16_t* control;
        Reading expected; // at the control's window
    };
    const Case cases[] = {
        { u"cmdSave", { L"Save", ROLE_SYSTEM_PUSHBUTTON, STATE_SYSTEM_FOCUSABLE, L"", L"Alt+S", L"Press" } },
        { u"lblMore", { L"More", ROLE_SYSTEM_LINK, 0, L"", L"", L"Jump" } },
        { u"txtDate",
            { L"txtDate", ROLE_SYSTEM_TEXT, STATE_SYSTEM_FOCUSABLE | STATE_SYSTEM_COLLAPSED, L"03/15/2026", L"", L"Open" } },
        { u"vsbPage", { L"vsbPage", ROLE_SYSTEM_SCROLLBAR, 0, L"7", L"", L"" } },
        { u"tabMain", { L"tabMain", ROLE_SYSTEM_PAGETABLIST, STATE_SYSTEM_FOCUSABLE, L"", L"", L"", {}, 2 } },
        { u"lstPeople", { L"lstPeople", ROLE_SYSTEM_TABLE, STATE_SYSTEM_FOCUSABLE, L"", L"", L"", {}, 3 } },
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(ToUtf8(c.control));
        const auto object = ClientObject(c.control);
        ASSERT_TRUE(object);
        Reading expected = c.expected;
        expected.location = ScreenRect(hosted.Window(c.control));
        EXPECT_EQ(Read(*object.Get()), expected);
    }

    test::Put(Extender(u"cmdSave"), L"Enabled", test::Bool(false));
    EXPECT_TRUE(Read(*ClientObject(u"cmdSave").Get()).state & STATE_SYSTEM_UNAVAILABLE);
}

// Tabs are child ids of the strip; rows are objects of their own whose cells are their child ids.
TEST_F(Accessibility, TabsRowsAndCellsAreChildren)
{
    const auto tabs = ClientObject(u"tabMain");
    const auto list = ClientObject(u"lstPeople");
    ASSERT_TRUE(tabs && list);
    // The second tab is 1775 twips in and 1700 wide; its height is the row's, which the font sets.
    Reading tab = Read(*tabs.Get(), 2);
    const std::array<long, 4> expected = OnScreen(hosted.Window(u"tabMain"), { 118, 0, 232, 0 });
    EXPECT_GT(tab.location[3], tab.location[1] + 8);
    tab.location[3] = expected[3];
    EXPECT_EQ(tab, (Reading { L"Limits", ROLE_SYSTEM_PAGETAB, STATE_SYSTEM_SELECTABLE, L"", L"Alt+L", L"Switch", expected }));
    EXPECT_EQ(Read(*tabs.Get(), 1).state, STATE_SYSTEM_SELECTABLE | STATE_SYSTEM_SELECTED);

    ComPtr<IDispatch> second;
    ASSERT_EQ(list->get_accChild(ChildId(2), second.Put()), S_OK);
    const auto row = second.As<IAccessible>(__uuidof(IAccessible));
    ASSERT_TRUE(row);
    EXPECT_EQ(Read(*row.Get()).name, L"Bo, Rome");
    EXPECT_EQ(Read(*row.Get()).role, ROLE_SYSTEM_ROW);
    EXPECT_EQ(Read(*row.Get()).children, 2);
    EXPECT_EQ(Read(*row.Get(), 2).name, L"Rome");
    EXPECT_EQ(Read(*row.Get(), 2).role, ROLE_SYSTEM_CELL);
    EXPECT_EQ(Read(*row.Get(), 3).name, L"");
    ComPtr<IDispatch> parent;
    ASSERT_EQ(row->get_accParent(parent.Put()), S_OK);
    EXPECT_EQ(parent.Get(), list.As<IDispatch>(IID_IDispatch).Get());

    // Wine's standard window object answers few questions (not even its role); that it is an
    // accessible object of its own is what can be checked there.
    ComPtr<IDispatch> window;
    ASSERT_EQ(list->get_accParent(window.Put()), S_OK);
    EXPECT_TRUE(window.As<IAccessible>(__uuidof(IAccessible)));
    EXPECT_NE(window.Get(), list.As<IDispatch>(IID_IDispatch).Get());
}

TEST_F(Accessibility, TheDefaultActionClicksSwitchesAndOpens)
{
    const auto button = ClientObject(u"cmdSave");
    const auto link = ClientObject(u"lblMore");
    const auto tabs = ClientObject(u"tabMain");
    const auto input = ClientObject(u"txtDate");
    ASSERT_TRUE(button && link && tabs && input);
    hosted.Take();
    ASSERT_EQ(button->accDoDefaultAction(ChildId(CHILDID_SELF)), S_OK);
    ASSERT_EQ(link->accDoDefaultAction(ChildId(CHILDID_SELF)), S_OK);
    ASSERT_EQ(tabs->accDoDefaultAction(ChildId(2)), S_OK);
    EXPECT_EQ(hosted.Take(),
        (Lines { "cmdSave_Click", "cmdSave_MouseUp 1, 0, 0, 0", "lblMore_Click", "lblMore_MouseUp 1, 0, 0, 0",
            "tabMain_Change False" }));
    OleVariant selected;
    test::Get(Extender(u"tabMain"), L"SelectedItem", selected);
    EXPECT_EQ(test::AsLong(selected), 2);

    ASSERT_EQ(input->accDoDefaultAction(ChildId(CHILDID_SELF)), S_OK);
    EXPECT_TRUE(Read(*input.Get()).state & STATE_SYSTEM_EXPANDED);
    ASSERT_EQ(input->accDoDefaultAction(ChildId(CHILDID_SELF)), S_OK);
    EXPECT_TRUE(Read(*input.Get()).state & STATE_SYSTEM_COLLAPSED);

    test::Put(Extender(u"cmdSave"), L"Enabled", test::Bool(false));
    EXPECT_EQ(button->accDoDefaultAction(ChildId(CHILDID_SELF)), DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(tabs->accDoDefaultAction(ChildId(3)), E_INVALIDARG);
}

// The drop-down the input opens is a window of its own that reads as its owner's calendar.
TEST_F(Accessibility, TheOpenPopupReadsAsATableOfDaysNamedAfterItsOwner)
{
    const auto input = ClientObject(u"txtDate");
    ASSERT_TRUE(input);
    ASSERT_EQ(input->accDoDefaultAction(ChildId(CHILDID_SELF)), S_OK);
    const std::vector<HWND> popups = test::ThreadWindowsOf(L"TolvaKitSurface", true);
    ASSERT_EQ(popups.size(), 1u);
    ComPtr<IAccessible> calendar;
    ASSERT_EQ(AccessibleObjectFromWindow(popups[0], OBJID_CLIENT, __uuidof(IAccessible), calendar.PutVoid()), S_OK);
    const Reading table = Read(*calendar.Get());
    EXPECT_EQ(table.name, L"txtDate");
    EXPECT_EQ(table.role, ROLE_SYSTEM_TABLE);
    EXPECT_EQ(table.children, 42);
    EXPECT_EQ(Read(*calendar.Get(), 1).role, ROLE_SYSTEM_CELL);
    EXPECT_EQ(Read(*calendar.Get(), 1).action, L"Choose");
}

// What the hook hears of the items: set up with window events out of context, delivered while
// the thread pumps its messages.
struct Heard {
    DWORD event;
    HWND window;
    LONG child;
    bool operator==(const Heard&) const = default;
};
std::vector<Heard>* g_heard = nullptr;

void CALLBACK Hear(HWINEVENTHOOK, DWORD event, HWND window, LONG object, LONG child, DWORD, DWORD)
{
    if (g_heard && object == OBJID_CLIENT && child != CHILDID_SELF)
        g_heard->push_back({ event, window, child });
}

void PrintTo(const Heard& h, std::ostream* out)
{
    *out << std::hex << h.event << std::dec << " child " << h.child;
}

TEST_F(Accessibility, AHookHearsTheFocusAndTheSelectionOfItemsInOrder)
{
    std::vector<Heard> heard;
    g_heard = &heard;
    HWINEVENTHOOK hook = SetWinEventHook(
        EVENT_OBJECT_FOCUS, EVENT_OBJECT_SELECTION, nullptr, &Hear, GetCurrentProcessId(), 0, WINEVENT_OUTOFCONTEXT);
    ASSERT_TRUE(hook);
    HWND list = hosted.Window(u"lstPeople");
    HWND tabs = hosted.Window(u"tabMain");
    test::Put(Extender(u"lstPeople"), L"ListIndex", test::Long(1));
    SetFocus(list);
    test::Put(Extender(u"lstPeople"), L"ListIndex", test::Long(3));
    test::Put(Extender(u"tabMain"), L"SelectedItem", test::Long(2));
    test::PumpFor(20);
    UnhookWinEvent(hook);
    g_heard = nullptr;
    EXPECT_EQ(heard,
        (std::vector<Heard> { { EVENT_OBJECT_SELECTION, list, 1 }, { EVENT_OBJECT_FOCUS, list, 1 },
            { EVENT_OBJECT_FOCUS, list, 3 }, { EVENT_OBJECT_SELECTION, list, 3 }, { EVENT_OBJECT_SELECTION, tabs, 2 } }));
}

} // namespace
} // namespace tolva::win32
