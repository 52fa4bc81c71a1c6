// TolvaLabel and TolvaScroll on a form of the form host, loaded from form-file text: their
// events as the host logs them, and the form saved and loaded again, where the label's
// deliberate asymmetry shows (a button-face background is not saved and comes back black).
#include "host/form/form_reader.h"
#include "host/form/form_writer.h"
#include "platform/win32/com/com_ptr.h"
#include "tests/gui/gui_support.h"
#include "tests/gui/hosted_form.h"
#include "tests/win32/support/dispatch_helpers.h"
#include <gtest/gtest.h>

namespace tolva::win32 {
namespace {

using test::HostedForm;
using Lines = std::vector<std::string>;

// A link-style label at (10, 10) pixels, 120 x 20, and a scroll bar at (200, 10), 17 x 150.
constexpr std::string_view TestForm = R"(VERSION 5.00
Begin VB.Form frmScroll
   Caption         =   "Scroll form"
   ClientWidth     =   4500
   ClientHeight    =   3000
   Begin TolvaKit.TolvaLabel lblLink
      Left            =   150
      Top             =   150
      Width           =   1800
      Height          =   300
      Caption         =   "&Next page"
      BackColor       =   &H8000000F&
      ForeColor       =   &H00800000&
      ArrowIcon       =   5
      ArrowPosition   =   2
   End
   Begin TolvaKit.TolvaScroll sbRows
      Left            =   3000
      Top             =   150
      Width           =   255
      Height          =   2250
      BackColor       =   &H00C0C0C0&
      Max             =   50
      LargeChange     =   10
      SmallChange     =   5
   End
End
)";

LONG ReadProperty(HostedForm& hosted, StringView control, const wchar_t* name)
{
    auto dispatch = ComPtr<IUnknown>(hosted.Control(control).Object()).As<IDispatch>(IID_IDispatch);
    OleVariant value;
    test::Get(dispatch.Get(), name, value);
    return test::AsLong(value);
}

class LabelScrollHostForm : public testing::Test {
protected:
    void SetUp() override
    {
        // The scroll bar's parts are child windows: its arrows sit at the top and the bottom.
        for (HWND part : test::Children(hosted.Window(u"sbRows")))
            if (test::PlaceIn(part, hosted.Window(u"sbRows")).bottom == 150)
                downArrow = part;
        ASSERT_TRUE(downArrow);
        hosted.Take();
    }

    HostedForm hosted { TestForm };
    HWND downArrow = nullptr;
};

TEST_F(LabelScrollHostForm, TheArrowAndTheTrackRaiseChangeThroughTheHost)
{
    SendMessageW(downArrow, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(8, 8));
    SendMessageW(downArrow, WM_LBUTTONUP, 0, MAKELPARAM(8, 8));
    EXPECT_EQ(ReadProperty(hosted, u"sbRows", L"Value"), 6);
    // A press on the track below the slider pages down.
    SendMessageW(hosted.Window(u"sbRows"), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(8, 120));
    SendMessageW(hosted.Window(u"sbRows"), WM_LBUTTONUP, 0, MAKELPARAM(8, 120));
    EXPECT_EQ(ReadProperty(hosted, u"sbRows", L"Value"), 16);
    EXPECT_EQ(hosted.Take(), (Lines { "sbRows_Change", "sbRows_Change" }));
}

TEST_F(LabelScrollHostForm, SavingLosesTheLabelsButtonFaceAndKeepsTheRest)
{
    const std::string saved = FormWriter::Write(hosted.Form().Save());
    const FormObject form = FormReader::Read(saved);
    const FormObject* label = form.FindDescendant(u"lblLink");
    const FormObject* scroll = form.FindDescendant(u"sbRows");
    ASSERT_TRUE(label && scroll);
    EXPECT_EQ(label->Find(u"BackColor"), nullptr) << saved;
    ASSERT_TRUE(label->Find(u"ForeColor"));
    ASSERT_TRUE(scroll->Find(u"Max"));
    EXPECT_EQ(scroll->Find(u"Max")->value.ToInt32(), 50);

    HostedForm again(saved);
    const auto read = [&again](StringView control, const wchar_t* name) { return ReadProperty(again, control, name); };
    EXPECT_EQ(read(u"lblLink", L"BackColor"), 0x000000);
    EXPECT_EQ(read(u"lblLink", L"ForeColor"), 0x800000);
    EXPECT_EQ(read(u"lblLink", L"ArrowIcon"), 5);
    EXPECT_EQ(read(u"sbRows", L"BackColor"), 0xC0C0C0);
    EXPECT_EQ(read(u"sbRows", L"LargeChange"), 10);
}

} // namespace
} // namespace tolva::win32
