#include "host/win32/property_frame.h"
#include "tests/gui/gui_support.h"
#include "tests/gui/hosted_form.h"
#include "tests/gui/sample_forms.h"
#include "tests/win32/support/dispatch_helpers.h"
#include <gtest/gtest.h>
#include <olectl.h>
#include <string>

namespace tolva::win32 {
namespace {

using test::HostedForm;

using test::ClassOf;
using test::TextOf;
using test::TypeInto;

// The descendants of a window of one class, in creation order.
std::vector<HWND> Descendants(HWND parent, const wchar_t* windowClass)
{
    std::vector<HWND> found;
    for (HWND child : test::ChildWindows(parent))
        if (ClassOf(child) == windowClass)
            found.push_back(child);
    return found;
}

HWND ButtonCalled(HWND parent, const wchar_t* caption)
{
    for (HWND button : Descendants(parent, L"Button"))
        if (TextOf(button) == caption)
            return button;
    return nullptr;
}

// The page's own first edit box (not one inside a control on the page): a sibling of its check
// box.
HWND FirstEditBeside(HWND checkBox)
{
    HWND page = GetParent(checkBox);
    for (HWND edit : Descendants(page, L"Edit"))
        if (GetParent(edit) == page)
            return edit;
    return nullptr;
}

class PropertyPages : public testing::Test {
protected:
    ComPtr<IUnknown> Object(StringView name) { return ComPtr<IUnknown>(hosted.Control(name).Object()); }
    ComPtr<IDispatch> Dispatch(StringView name) { return Object(name).As<IDispatch>(IID_IDispatch); }
    std::wstring Property(StringView name, const wchar_t* property)
    {
        OleVariant value;
        EXPECT_EQ(test::Get(Dispatch(name).Get(), property, value), S_OK);
        return test::AsText(value);
    }

    HostedForm hosted { test::ButtonsForm };
};

// The designer's frame over two buttons: the page shows the first one's values, typing into its
// caption field and clicking its check box enable Apply, and Apply writes the first button only.
TEST_F(PropertyPages, TheFramesApplyWritesTheFirstSelectedControl)
{
    std::wstring shownCaption;
    bool applyEnabledBefore = true, applyEnabledAfterTyping = false, applyEnabledAfterApply = true;
    test::ModalDriver driver([&] {
        HWND frame = FindWindowW(host::PropertyFrame::WindowClass, nullptr);
        if (!frame)
            return false;
        HWND apply = GetDlgItem(frame, host::PropertyFrame::ApplyButton);
        HWND enabled = ButtonCalled(frame, L"Enabled");
        HWND caption = enabled ? FirstEditBeside(enabled) : nullptr;
        if (!caption)
            return false;
        shownCaption = TextOf(caption);
        applyEnabledBefore = IsWindowEnabled(apply);
        TypeInto(caption, L"Neu");
        SendMessageW(enabled, BM_CLICK, 0, 0);
        applyEnabledAfterTyping = IsWindowEnabled(apply);
        SendMessageW(apply, BM_CLICK, 0, 0);
        applyEnabledAfterApply = IsWindowEnabled(apply);
        PostMessageW(frame, WM_COMMAND, host::PropertyFrame::CancelButton, 0);
        return true;
    });
    host::PropertyFrame frame(hosted.Form().Window(), L"Properties", { Object(u"cmdOK"), Object(u"cmdFirst") });
    ASSERT_TRUE(frame.Run());
    ASSERT_TRUE(driver.Done());
    EXPECT_EQ(shownCaption, L"&OK");
    EXPECT_FALSE(applyEnabledBefore);
    EXPECT_TRUE(applyEnabledAfterTyping);
    EXPECT_FALSE(applyEnabledAfterApply);
    EXPECT_EQ(Property(u"cmdOK", L"Caption"), L"Neu");
    EXPECT_EQ(Property(u"cmdOK", L"Enabled"), L"False");
    EXPECT_EQ(Property(u"cmdFirst", L"Caption"), L"First");
    EXPECT_EQ(Property(u"cmdFirst", L"Enabled"), L"True");
}

// The system's frame shows the pages with the selection's first control in their fields; closed
// with Cancel, it changes nothing.
TEST_F(PropertyPages, TheSystemFrameShowsThePagesOfTheFirstControl)
{
    std::wstring shownCaption;
    LRESULT enabledCheck = BST_UNCHECKED;
    test::ModalDriver driver([&] {
        const std::vector<HWND> dialogs = test::ThreadWindowsOf(L"#32770", true);
        if (dialogs.empty())
            return false;
        HWND sheet = dialogs.back();
        HWND enabled = ButtonCalled(sheet, L"Enabled");
        HWND caption = enabled ? FirstEditBeside(enabled) : nullptr;
        if (!caption)
            return false;
        shownCaption = TextOf(caption);
        enabledCheck = SendMessageW(enabled, BM_GETCHECK, 0, 0);
        TypeInto(caption, L"Not applied");
        PostMessageW(sheet, WM_COMMAND, IDCANCEL, 0);
        return true;
    });
    auto specify = Object(u"cmdOK").As<ISpecifyPropertyPages>(IID_ISpecifyPropertyPages);
    CAUUID pages {};
    ASSERT_EQ(specify->GetPages(&pages), S_OK);
    IUnknown* objects[] = { Object(u"cmdOK").Get(), Object(u"cmdFirst").Get() };
    EXPECT_EQ(OleCreatePropertyFrame(hosted.Form().Window(), 0, 0, L"cmdOK", 2, objects, pages.cElems, pages.pElems,
                                     LOCALE_USER_DEFAULT, 0, nullptr),
              S_OK);
    CoTaskMemFree(pages.pElems);
    EXPECT_TRUE(driver.Done());
    EXPECT_EQ(shownCaption, L"&OK");
    EXPECT_EQ(enabledCheck, BST_CHECKED);
    EXPECT_EQ(Property(u"cmdOK", L"Caption"), L"&OK");
}

// Every control lists its pages in order; each page is registered under its class id with its
// server and no ProgID, so nothing creates it by name.
TEST_F(PropertyPages, EachControlListsItsRegisteredPagesInOrder)
{
    const struct {
        const wchar_t* progId;
        std::vector<std::wstring> titles;
    } cases[] = {
        { L"TolvaKit.TolvaCommand", { L"General" } }, { L"TolvaKit.TolvaLabel", { L"General" } },
        { L"TolvaKit.TolvaInput", { L"General" } },   { L"TolvaKit.TolvaScroll", { L"General" } },
        { L"TolvaKit.TolvaTabs", { L"General" } },    { L"TolvaKit.TolvaList", { L"General", L"Columns" } },
    };
    for (const auto& c : cases) {
        CLSID clsid {};
        ASSERT_EQ(CLSIDFromProgID(c.progId, &clsid), S_OK);
        ComPtr<ISpecifyPropertyPages> specify;
        ASSERT_EQ(CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, IID_ISpecifyPropertyPages, specify.PutVoid()), S_OK);
        CAUUID pages {};
        ASSERT_EQ(specify->GetPages(&pages), S_OK);
        std::vector<std::wstring> titles;
        for (ULONG i = 0; i < pages.cElems; ++i) {
            ComPtr<IPropertyPage2> page;
            ASSERT_EQ(CoCreateInstance(pages.pElems[i], nullptr, CLSCTX_INPROC_SERVER, IID_IPropertyPage2, page.PutVoid()), S_OK);
            PROPPAGEINFO info {};
            info.cb = sizeof info;
            ASSERT_EQ(page->GetPageInfo(&info), S_OK);
            titles.emplace_back(info.pszTitle);
            CoTaskMemFree(info.pszTitle);
            wchar_t id[40] = {};
            StringFromGUID2(pages.pElems[i], id, 40);
            HKEY key = nullptr;
            EXPECT_EQ(RegOpenKeyExW(HKEY_CLASSES_ROOT, (std::wstring(L"CLSID\\") + id + L"\\ProgID").c_str(), 0, KEY_READ, &key),
                      ERROR_FILE_NOT_FOUND);
        }
        CoTaskMemFree(pages.pElems);
        EXPECT_EQ(titles, c.titles) << c.progId;
    }
}

} // namespace
} // namespace tolva::win32
