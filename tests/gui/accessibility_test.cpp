#include "platform/win32/com/bstr.h"
#include "tests/gui/hosted_form.h"
#include "tests/win32/support/dispatch_helpers.h"
#include <array>
#include <gtest/gtest.h>
#include <oleacc.h>

namespace tolva::win32 {
namespace {

using test::HostedForm;
using Lines = std::vector<std::string>;

constexpr std::string_view ButtonAndLink = R"(Begin VB.Form frmAccess
   ClientWidth     =   4500
   ClientHeight    =   1500
   Begin TolvaKit.TolvaCommand cmdSave
      Left            =   150
      Top             =   300
      Width           =   1500
      Height          =   450
      TabIndex        =   0
      Caption         =   "&Save"
   End
   Begin TolvaKit.TolvaLabel lblMore
      Left            =   1800
      Top             =   300
      Width           =   1500
      Height          =   300
      Caption         =   "More"
      ArrowPosition   =   2
   End
End
)";

struct Reading {
    std::wstring name;
    LONG role = 0;
    LONG state = 0;
    std::wstring shortcut;
    std::wstring action;
    std::array<long, 4> location {}; // left, top, right, bottom in screen pixels
    bool operator==(const Reading&) const = default;
};

void PrintTo(const Reading& r, std::ostream* out)
{
    *out << ToUtf8(FromWide(r.name)) << " role " << r.role << " state " << r.state << " " << ToUtf8(FromWide(r.shortcut))
         << " " << ToUtf8(FromWide(r.action)) << " at " << r.location[0] << "," << r.location[1] << "-" << r.location[2]
         << "," << r.location[3];
}

template <class Getter> std::wstring TextOf(Getter get)
{
    Bstr text;
    return SUCCEEDED(get(text.Put())) && text.Get() ? std::wstring(text.Get()) : std::wstring();
}

// Everything a screen reader reads of the control's client object.
Reading Read(IAccessible& object)
{
    VARIANT self;
    self.vt = VT_I4;
    self.lVal = CHILDID_SELF;
    Reading reading;
    reading.name = TextOf([&](BSTR* out) { return object.get_accName(self, out); });
    reading.shortcut = TextOf([&](BSTR* out) { return object.get_accKeyboardShortcut(self, out); });
    reading.action = TextOf([&](BSTR* out) { return object.get_accDefaultAction(self, out); });
    VARIANT value;
    if (SUCCEEDED(object.get_accRole(self, &value)))
        reading.role = value.lVal;
    if (SUCCEEDED(object.get_accState(self, &value)))
        reading.state = value.lVal;
    long left = 0, top = 0, width = 0, height = 0;
    object.accLocation(&left, &top, &width, &height, self);
    reading.location = { left, top, left + width, top + height };
    return reading;
}

std::array<long, 4> ScreenRect(HWND window)
{
    RECT rect {};
    GetWindowRect(window, &rect);
    return { rect.left, rect.top, rect.right, rect.bottom };
}

class Accessibility : public testing::Test {
protected:
    ComPtr<IAccessible> ClientObject(StringView control)
    {
        ComPtr<IAccessible> object;
        EXPECT_EQ(AccessibleObjectFromWindow(hosted.Window(control), OBJID_CLIENT, __uuidof(IAccessible), object.PutVoid()),
            S_OK);
        return object;
    }

    HostedForm hosted { ButtonAndLink };
};

TEST_F(Accessibility, EachControlReadsAsItLooks)
{
    const auto button = ClientObject(u"cmdSave");
    const auto link = ClientObject(u"lblMore");
    ASSERT_TRUE(button && link);
    const LONG buttonState = STATE_SYSTEM_FOCUSABLE | (GetFocus() == hosted.Window(u"cmdSave") ? STATE_SYSTEM_FOCUSED : 0);
    EXPECT_EQ(Read(*button.Get()),
        (Reading { L"Save", ROLE_SYSTEM_PUSHBUTTON, buttonState, L"Alt+S", L"Press", ScreenRect(hosted.Window(u"cmdSave")) }));
    EXPECT_EQ(Read(*link.Get()), (Reading { L"More", ROLE_SYSTEM_LINK, 0, L"", L"Jump", ScreenRect(hosted.Window(u"lblMore")) }));

    test::Put(hosted.Control(u"cmdSave").Extender(), L"Enabled", test::Bool(false));
    EXPECT_TRUE(Read(*button.Get()).state & STATE_SYSTEM_UNAVAILABLE);
}

TEST_F(Accessibility, TheParentIsTheStandardWindowObject)
{
    const auto button = ClientObject(u"cmdSave");
    ASSERT_TRUE(button);
    ComPtr<IDispatch> parent;
    ASSERT_EQ(button->get_accParent(parent.Put()), S_OK);
    // Wine's standard window object answers few questions (not even its role); that it is an
    // accessible object of its own is what can be checked there.
    auto window = parent.As<IAccessible>(__uuidof(IAccessible));
    ASSERT_TRUE(window);
    EXPECT_NE(window.As<IUnknown>(IID_IUnknown).Get(), button.As<IUnknown>(IID_IUnknown).Get());
}

TEST_F(Accessibility, TheDefaultActionClicks)
{
    VARIANT self;
    self.vt = VT_I4;
    self.lVal = CHILDID_SELF;
    const auto button = ClientObject(u"cmdSave");
    const auto link = ClientObject(u"lblMore");
    ASSERT_TRUE(button && link);
    hosted.Take();
    ASSERT_EQ(button->accDoDefaultAction(self), S_OK);
    ASSERT_EQ(link->accDoDefaultAction(self), S_OK);
    EXPECT_EQ(hosted.Take(),
        (Lines { "cmdSave_Click", "cmdSave_MouseUp 1, 0, 0, 0", "lblMore_Click", "lblMore_MouseUp 1, 0, 0, 0" }));

    test::Put(hosted.Control(u"cmdSave").Extender(), L"Enabled", test::Bool(false));
    EXPECT_EQ(button->accDoDefaultAction(self), DISP_E_MEMBERNOTFOUND);
    EXPECT_TRUE(hosted.Take().empty());
}

} // namespace
} // namespace tolva::win32
