#include "host/form/form_writer.h"
#include "host/win32/form_designer.h"
#include "host/win32/property_frame.h"
#include "tests/gui/gui_support.h"
#include "tests/gui/hosted_form.h"
#include "tests/gui/sample_forms.h"
#include "tests/win32/support/dispatch_helpers.h"
#include <gtest/gtest.h>

namespace tolva::win32 {
namespace {

using test::HostedForm;

MSG Message(HWND window, UINT message, WPARAM wParam = 0)
{
    return MSG { window, message, wParam, MAKELPARAM(5, 5), GetTickCount(), {} };
}

// Design mode: a press selects a control without reaching it, F4 opens the pages of the
// selection, an applied edit makes the title dirty until the form is saved, and the saved form
// opens in run mode with the edit.
TEST(FormDesigner, EditsThroughThePagesSavesAndReloads)
{
    std::string saved;
    HostedForm designed(test::ButtonsForm, false);
    host::FormDesigner designer(designed.Form(), [&] {
        saved = FormWriter::Write(designed.Form().Save());
        return true;
    });
    HWND form = designed.Form().Window();
    EXPECT_EQ(test::TextOf(form), L"Test form [design]");

    EXPECT_TRUE(designer.PreTranslateMessage(Message(designed.Window(u"cmdFirst"), WM_LBUTTONDOWN)));
    EXPECT_TRUE(designer.PreTranslateMessage(Message(designed.Window(u"cmdFirst"), WM_LBUTTONUP)));
    ASSERT_EQ(designer.Selection().size(), 1u);
    EXPECT_EQ(designer.Selection().front()->Name(), u"cmdFirst");
    EXPECT_TRUE(designed.Take().empty()); // no Click reached the button
    designer.Select(&designed.Control(u"cmdOK"), false);

    test::ModalDriver driver([&] {
        HWND frame = FindWindowW(host::PropertyFrame::WindowClass, nullptr);
        if (!frame)
            return false;
        for (HWND child : test::ChildWindows(frame))
            if (test::ClassOf(child) == L"Edit" && test::TextOf(child) == L"&OK")
                test::TypeInto(child, L"&Pay");
        PostMessageW(frame, WM_COMMAND, host::PropertyFrame::OkButton, 0);
        return true;
    });
    EXPECT_TRUE(designer.PreTranslateMessage(Message(form, WM_KEYDOWN, VK_F4)));
    ASSERT_TRUE(driver.Done());
    EXPECT_TRUE(designer.Dirty());
    EXPECT_EQ(test::TextOf(form), L"Test form [design] *");

    ASSERT_TRUE(designer.Save());
    EXPECT_EQ(test::TextOf(form), L"Test form [design]");
    HostedForm reopened(saved);
    OleVariant caption;
    ASSERT_EQ(test::Get(reopened.Control(u"cmdOK").Extender(), L"Caption", caption), S_OK);
    EXPECT_EQ(test::AsText(caption), L"&Pay");
    ASSERT_EQ(test::Get(reopened.Control(u"cmdFirst").Extender(), L"Caption", caption), S_OK);
    EXPECT_EQ(test::AsText(caption), L"First");
}

} // namespace
} // namespace tolva::win32
