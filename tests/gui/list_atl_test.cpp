// TolvaList in Wine's ATL container, created from its ProgID: a click selects the row under the
// pointer and takes the focus, the keys move the highlight, the scroll bar is a child window at
// the right edge that scrolls the list.
#include "tests/gui/atl_hosted.h"
#include "tests/win32/support/dispatch_helpers.h"
#include <gtest/gtest.h>
#include <string>

namespace tolva::win32::test {
namespace {

const IID ListEvents = { 0x613E54B6, 0xDAC3, 0x4672, { 0xAD, 0x78, 0x8F, 0x1D, 0xC6, 0x89, 0x19, 0xD9 } };
constexpr DISPID ClickId = 1, MouseDownId = 6, MouseMoveId = 7, MouseUpId = 8, SelectionChangedId = 9;
constexpr DISPID RowTextId = 0x68030018, AddColumnId = 0x60030022, AddRowId = 0x60030023;
constexpr uint32_t Border = 0xB5BEC6, RowB = 0xEFF7F7, Highlight = 0xC6F3FF;
constexpr int RowPixels = 16;

class AtlList : public AtlHosted {
protected:
    void SetUp() override
    {
        Host(L"TolvaKit.TolvaList", ListEvents, 10, 10, 300, 200);
        OleVariant ignored;
        Call(dispatch.Get(), AddColumnId, DISPATCH_METHOD, { Text(L"Date") }, ignored);
        Call(dispatch.Get(), AddColumnId, DISPATCH_METHOD, { Text(L"Amount"), Long(1) }, ignored);
        for (int r = 1; r <= 50; ++r) {
            Call(dispatch.Get(), AddRowId, DISPATCH_METHOD, {}, ignored);
            const std::wstring text = std::to_wstring(r) + L".00";
            Call(dispatch.Get(), RowTextId, DISPATCH_PROPERTYPUT, { Long(r), Long(2), Text(text.c_str()) }, ignored);
        }
        UpdateWindow(window);
        // The header ends with a rule in BorderColor; the rows start below it.
        const Pixels picture = Pixels::OfWindow(window);
        for (int y = 0; y < picture.Height() && header == 0; ++y)
            if (picture.At(5, y) == Border)
                header = y + 1;
        ASSERT_GT(header, 0);
    }
    // The middle of the n-th row on screen, from 0.
    int RowY(int n) const { return header + RowPixels * n + RowPixels / 2; }

    int header = 0;
};

TEST_F(AtlList, AClickSelectsTheRowUnderThePointerAndTakesTheFocus)
{
    SetFocus(form.Get());
    SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(100, RowY(3)));
    SendMessageW(window, WM_LBUTTONUP, 0, MAKELPARAM(100, RowY(3)));
    EXPECT_EQ(Read(L"ListIndex"), 4);
    EXPECT_EQ(GetFocus(), window);
    EXPECT_EQ(IdsWithout(MouseMoveId), (std::vector<DISPID> { SelectionChangedId, MouseDownId, MouseUpId, ClickId }));
}

TEST_F(AtlList, TheKeysMoveTheHighlight)
{
    ASSERT_EQ(Put(dispatch.Get(), L"ListIndex", Long(1)), S_OK);
    SendMessageW(window, WM_KEYDOWN, VK_DOWN, 0);
    EXPECT_EQ(Read(L"ListIndex"), 2);
    const Pixels picture = Pixels::OfWindow(window);
    EXPECT_EQ(picture.At(3, RowY(0)), RowB);
    EXPECT_EQ(picture.At(3, RowY(1) - 4), Highlight);
    EXPECT_EQ(Count(SelectionChangedId), 2u);
}

// The bar's down arrow scrolls the list by a row without moving the selection.
TEST_F(AtlList, TheScrollBarIsAChildAtTheRightEdgeThatScrollsTheList)
{
    HWND bar = GetWindow(window, GW_CHILD);
    ASSERT_TRUE(bar);
    ASSERT_TRUE(IsWindowVisible(bar));
    const RECT place = PlaceIn(bar, window);
    EXPECT_EQ(place.right, 300);
    EXPECT_EQ(place.left, 300 - 17);
    EXPECT_EQ(place.top, header);
    EXPECT_EQ(place.bottom, 200);
    HWND down = nullptr;
    for (HWND part : Children(bar))
        if (PlaceIn(part, bar).bottom == place.bottom - place.top)
            down = part;
    ASSERT_TRUE(down);
    SendMessageW(down, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(8, 8));
    SendMessageW(down, WM_LBUTTONUP, 0, MAKELPARAM(8, 8));
    EXPECT_EQ(Read(L"TopIndex"), 2);
    EXPECT_EQ(Read(L"ListIndex"), 0);
}

} // namespace
} // namespace tolva::win32::test
