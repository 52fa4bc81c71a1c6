#include "platform/win32/com/control_class.h"
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

// The sizes of the bitmaps the dialog's picture controls show.
std::vector<SIZE> ImageSizes(HWND dialog)
{
    std::vector<SIZE> sizes;
    for (HWND child = GetWindow(dialog, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        BITMAP bitmap {};
        const auto shown = reinterpret_cast<HBITMAP>(SendMessageW(child, STM_GETIMAGE, IMAGE_BITMAP, 0));
        if (shown && GetObjectW(shown, sizeof bitmap, &bitmap))
            sizes.push_back({ bitmap.bmWidth, bitmap.bmHeight });
    }
    return sizes;
}

bool Contains(const std::vector<std::wstring>& texts, const std::wstring& wanted)
{
    for (const std::wstring& text : texts)
        if (text.find(wanted) != std::wstring::npos)
            return true;
    return false;
}

TEST(AboutBox, ShowsTheLibraryVersionAndToolboxImagesModallyUntilClosed)
{
    test::TestWindow owner(200, 100);
    std::vector<std::wstring> texts;
    std::vector<SIZE> images;
    HWND shownOwner = nullptr;
    bool ownerDisabled = false;
    test::ModalDriver driver([&] {
        HWND dialog = FindWindowW(L"#32770", L"About TolvaKit");
        if (!dialog)
            return false;
        texts = ChildTexts(dialog);
        images = ImageSizes(dialog);
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
    ASSERT_EQ(images.size(), ControlClasses().size());
    for (const SIZE& image : images)
        EXPECT_TRUE(image.cx == 16 && image.cy == 15) << image.cx << " x " << image.cy;
    EXPECT_EQ(shownOwner, owner.Get());
    EXPECT_TRUE(ownerDisabled);
    EXPECT_TRUE(IsWindowEnabled(owner.Get()));
}

TEST(AboutBox, ClosesWithEscapeLeavingNoGdiObjectsBehind)
{
    const auto showAndEscape = [] {
        test::ModalDriver driver([&] {
            HWND dialog = FindWindowW(L"#32770", L"About TolvaKit");
            if (dialog)
                PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
            return dialog != nullptr;
        });
        ShowAboutBox(nullptr);
        EXPECT_TRUE(driver.Done());
    };
    showAndEscape();
    const int before = test::GdiObjectCount();
    for (int i = 0; i < 5; ++i)
        showAndEscape();
    EXPECT_EQ(test::GdiObjectCount(), before);
}

} // namespace
} // namespace tolva::win32
