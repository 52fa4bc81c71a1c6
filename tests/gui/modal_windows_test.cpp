#include "platform/win32/window/about_box.h"
#include "tests/gui/gui_support.h"
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace tolva::win32 {
namespace {

std::wstring TextOf(HWND window)
{
    wchar_t text[256] = {};
    GetWindowTextW(window, text, 256);
    return text;
}

std::vector<std::wstring> ChildTexts(HWND dialog)
{
    std::vector<std::wstring> texts;
    for (HWND child = GetWindow(dialog, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
        texts.push_back(TextOf(child));
    return texts;
}

bool Contains(const std::vector<std::wstring>& texts, const std::wstring& wanted)
{
    for (const std::wstring& text : texts)
        if (text.find(wanted) != std::wstring::npos)
            return true;
    return false;
}

TEST(AboutBox, ShowsTheLibraryAndVersionModallyUntilClosed)
{
    test::TestWindow owner(200, 100);
    std::vector<std::wstring> texts;
    HWND shownOwner = nullptr;
    bool ownerDisabled = false;
    test::ModalDriver driver([&] {
        HWND dialog = FindWindowW(L"#32770", L"About TolvaKit");
        if (!dialog)
            return false;
        texts = ChildTexts(dialog);
        shownOwner = GetWindow(dialog, GW_OWNER);
        ownerDisabled = !IsWindowEnabled(owner.Get());
        SendMessageW(GetDlgItem(dialog, IDOK), BM_CLICK, 0, 0);
        return true;
    });
    ShowAboutBox(owner.Get());
    EXPECT_TRUE(driver.Done());
    EXPECT_TRUE(Contains(texts, L"TolvaKit"));
    EXPECT_TRUE(Contains(texts, L"Version 1."));
    EXPECT_TRUE(Contains(texts, L"Close"));
    EXPECT_EQ(shownOwner, owner.Get());
    EXPECT_TRUE(ownerDisabled);
    EXPECT_TRUE(IsWindowEnabled(owner.Get()));
}

TEST(AboutBox, ClosesWithEscape)
{
    test::ModalDriver driver([&] {
        HWND dialog = FindWindowW(L"#32770", L"About TolvaKit");
        if (dialog)
            PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
        return dialog != nullptr;
    });
    ShowAboutBox(nullptr);
    EXPECT_TRUE(driver.Done());
}

TEST(AboutBox, LeavesNoGdiObjectsBehind)
{
    const auto showAndClose = [] {
        test::ModalDriver driver([&] {
            HWND dialog = FindWindowW(L"#32770", L"About TolvaKit");
            if (dialog)
                PostMessageW(dialog, WM_COMMAND, IDOK, 0);
            return dialog != nullptr;
        });
        ShowAboutBox(nullptr);
    };
    showAndClose();
    const int before = test::GdiObjectCount();
    for (int i = 0; i < 5; ++i)
        showAndClose();
    EXPECT_EQ(test::GdiObjectCount(), before);
}

} // namespace
} // namespace tolva::win32
