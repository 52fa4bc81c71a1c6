#include "core/twips_canvas.h"
#include "tests/unit/support/picture.h"
#include "list_test_fixture.h"
#include <cmath>

namespace tolva {
namespace {

// The default colours by name: L the border rule, H the header, A and B the row bands, h the
// highlight band, g the grid.
const std::map<ColorRef, char> Legend { { 0xB5BEC6, 'L' }, { 0xDEE7EF, 'H' }, { 0xFFFFFF, 'A' }, { 0xEFF7F7, 'B' },
    { 0xC6F3FF, 'h' }, { 0xCECFCE, 'g' } };

constexpr ColorRef Red = 0x0000FF;
constexpr ColorRef Green = 0x00FF00;
constexpr ColorRef Blue = 0xFF0000;

// 300 x 160 pixels, rows of 16 pixels, without headers unless a test shows them.
class ListDrawTest : public ListTest {
protected:
    ListDrawTest() { list.SetShowColumnHeaders(false); }

    std::vector<std::string> Picture() const { return Runs(surface.WindowImage(), Legend); }
    void AddEmptyRows(int32_t count)
    {
        for (int32_t i = 0; i < count; ++i)
            list.AddRow();
    }
    // The width in pixels of a text in the list's font.
    int32_t PixelWidth(StringView text)
    {
        return headless::RasterCanvas(1, 1).MeasureText(text, ToCanvasFont(list.GetFont())).width;
    }
    Ink InkIn(ColorRef color, int32_t left, int32_t right, int32_t top = 0, int32_t bottom = 160) const
    {
        return InkOf(surface.WindowImage(), color, left, right, top, bottom);
    }
};

// Row 1 is odd and gets BackColorRowB; the bands are one pixel taller than a row, the grid's row
// rules lie over their last line; column rules stop one pixel short of the bottom; the left
// rule runs down the whole body; the selected row's band is the highlight.
TEST_F(ListDrawTest, AGridWithASelectedRow)
{
    list.AddColumn(u"", tkColumnAlignment::tkColumnLeft, 600);
    list.AddColumn(u"", tkColumnAlignment::tkColumnLeft, 900);
    AddEmptyRows(3);
    list.SetListIndex(2);
    const std::string odd = "L1 B39 g1 B59 g1 B199";
    const std::string even = "L1 A39 g1 A59 g1 A199";
    const std::vector<std::string> expected { "0-15: " + odd, "16: g299 h1", "17-31: L1 h39 g1 h59 g1 h199", "32: g299 h1",
        "33-47: " + odd, "48: g299 A1", "49-63: " + even, "64: g299 A1", "65-79: " + odd, "80: g299 A1", "81-95: " + even,
        "96: g299 A1", "97-111: " + odd, "112: g299 A1", "113-127: " + even, "128: g299 A1", "129-143: " + odd,
        "144: g299 A1", "145-158: " + even, "159: L1 A299" };
    EXPECT_EQ(Picture(), expected);
}

// Without a grid the bands show their overlap. Each row keeps its colour when the list scrolls:
// with TopIndex 2 the first row on screen is even.
TEST_F(ListDrawTest, BandsFollowTheAbsoluteRowWithoutAGrid)
{
    list.SetGridStyle(tkGridStyles::tkNone);
    AddEmptyRows(30);
    list.SetTopIndex(2);
    const std::vector<std::string> expected { "0-15: L1 A299", "16-32: L1 B299", "33-47: L1 A299", "48-64: L1 B299",
        "65-79: L1 A299", "80-96: L1 B299", "97-111: L1 A299", "112-128: L1 B299", "129-143: L1 A299",
        "144-159: L1 B299" };
    EXPECT_EQ(Picture(), expected);
}

// The ledger style doubles the rule in front of the last column: rules at 1200, 2400 and 3600
// twips and one more at 2430.
TEST_F(ListDrawTest, TheBalanceStyleDoublesTheRuleBeforeTheLastColumn)
{
    list.SetGridStyle(tkGridStyles::tkBalance);
    for (int i = 0; i < 3; ++i)
        list.AddColumn(u"");
    EXPECT_EQ(Picture().front(), "0-15: L1 B79 g1 B79 g1 B1 g1 B77 g1 B59");
}

// The header strip: its colour, a rule in BorderColor on its last line, the left rule over it,
// and the body below it.
TEST_F(ListDrawTest, TheHeaderStripSitsAboveTheBody)
{
    list.SetForeColorHeader(list.BackColorHeader()); // captions out of sight
    list.AddColumn(u"Date", tkColumnAlignment::tkColumnLeft, 600);
    list.SetShowColumnHeaders(true);
    const int32_t header = list.HeaderHeight() / 15;
    const std::vector<std::string> picture = Picture();
    ASSERT_GE(picture.size(), 3u);
    EXPECT_EQ(picture[0], "0-" + std::to_string(header - 2) + ": L1 H299");
    EXPECT_EQ(picture[1], std::to_string(header - 1) + ": L300");
    EXPECT_EQ(picture[2], std::to_string(header) + "-" + std::to_string(header + 15) + ": L1 B39 g1 B259");
}

// Left text starts 45 twips into its column, right text ends 45 twips before its column's end,
// centred text is centred by whole twips; a column of no known alignment continues where the
// previous text ended. Texts are measured and drawn in the list's font.
TEST_F(ListDrawTest, CellTextIsPlacedByItsColumnsAlignment)
{
    list.SetGridStyle(tkGridStyles::tkNone);
    list.SetForeColorRowA(Red);
    list.AddColumn(u"", tkColumnAlignment::tkColumnLeft);
    list.AddColumn(u"", tkColumnAlignment::tkColumnRight);
    list.AddColumn(u"", tkColumnAlignment::tkColumnCenter);
    list.AddRow();
    for (int32_t c = 1; c <= 3; ++c)
        list.SetRowText(1, c, u"Wg");
    const int32_t width = PixelWidth(u"Wg");
    const Ink left = InkIn(Red, 0, 80);
    const Ink right = InkIn(Red, 80, 160);
    const Ink centre = InkIn(Red, 160, 240);
    ASSERT_GE(left.left, 3);
    const int32_t bearing = left.left - 3;
    EXPECT_EQ(right.left - bearing, 80 + 80 - width - 3);
    EXPECT_EQ(centre.left - bearing, int32_t(std::nearbyint((2400 + 600 - width * 15 / 2) / 15.0)));
    EXPECT_EQ(right.top, left.top);

    list.SetColumnAlignment(2, 7);
    EXPECT_EQ(InkIn(Red, 3 + width, 160).left - bearing, 3 + width);
}

// Texts start 15 twips below their row's top, so the header pushes them down by its height.
TEST_F(ListDrawTest, RowTextStartsBelowTheHeader)
{
    list.SetForeColorRowA(Red);
    list.AddColumn(u"");
    list.AddRow();
    list.SetRowText(1, 1, u"Wg");
    const int32_t top = InkIn(Red, 0, 80).top;
    list.SetShowColumnHeaders(true);
    EXPECT_EQ(InkIn(Red, 0, 80).top - top, list.HeaderHeight() / 15);
}

// Captions are centred on their columns whatever the alignment: in columns of 1200 and 2400
// twips the same caption sits 1800 twips further right in the second.
TEST_F(ListDrawTest, CaptionsAreCentredOnTheirColumns)
{
    list.SetShowColumnHeaders(true);
    list.SetForeColorHeader(Blue);
    list.AddColumn(u"Wg", tkColumnAlignment::tkColumnRight, 1200);
    list.AddColumn(u"Wg", tkColumnAlignment::tkColumnLeft, 2400);
    const Ink first = InkIn(Blue, 0, 80);
    const Ink second = InkIn(Blue, 80, 300);
    ASSERT_GE(first.left, 0);
    EXPECT_EQ(second.left - first.left, 120);
    EXPECT_EQ(first.top, second.top);
}

// The selected row's text is ForeColorHighlight; every other row is ForeColorRowA, never
// ForeColorRowB.
TEST_F(ListDrawTest, RowTextColours)
{
    list.SetForeColorRowA(Red);
    list.SetForeColorRowB(Blue);
    list.SetForeColorHighlight(Green);
    Fill(1, 3);
    list.SetListIndex(2);
    EXPECT_GE(InkIn(Red, 0, 80, 0, 16).left, 0);
    EXPECT_GE(InkIn(Green, 0, 80, 16, 32).left, 0);
    EXPECT_LT(InkIn(Red, 0, 80, 16, 32).left, 0);
    EXPECT_GE(InkIn(Red, 0, 80, 32, 48).left, 0);
    EXPECT_LT(InkIn(Blue, 0, 300).left, 0);
}

// While AutoRefresh is off nothing reaches the window, however much changes, Refresh included;
// turning it on draws at once.
TEST_F(ListDrawTest, NothingIsDrawnWhileAutoRefreshIsOff)
{
    list.AddColumn(u"Amount");
    list.SetAutoRefresh(false);
    const int presents = surface.PresentCount();
    for (int32_t r = 1; r <= 1000; ++r) {
        list.AddRow();
        list.SetRowText(r, 1, u"12.50");
    }
    list.SetListIndex(500);
    list.Refresh();
    EXPECT_EQ(surface.PresentCount(), presents);
    list.SetAutoRefresh(true);
    EXPECT_EQ(surface.PresentCount(), presents + 1);
}

// The scroll bar lies over the right edge of the body, from the header down.
TEST_F(ListDrawTest, TheScrollBarSitsAtTheRightEdgeBelowTheHeader)
{
    list.SetShowColumnHeaders(true);
    surface.Resize(4500, 2400);
    EXPECT_EQ(BarWindow().Left(), 4500 - 255);
    EXPECT_EQ(BarWindow().Top(), float(list.HeaderHeight()));
    EXPECT_EQ(BarWindow().Height(), 2400 - float(list.HeaderHeight()));
    EXPECT_EQ(BarWindow().Width(), 255);
}

} // namespace
} // namespace tolva
