#include "core/memory_property_bag.h"
#include "platform/headless/window_picture.h"
#include "scroll_test_fixture.h"
#include "tests/unit/core/run_time_error_of.h"
#include "tests/unit/support/picture.h"
#include <limits>

namespace tolva {
namespace {

constexpr int32_t LongMax = std::numeric_limits<int32_t>::max();

using Box = headless::TestSite::MessageBoxCall;

// Slider geometry.

TEST_F(ScrollTest, TheSliderIsHalfAProportionalThumbAndNeverBelow90Twips)
{
    scroll.SetMax(2); // range 1, page 1
    EXPECT_FLOAT_EQ(Slider().Height(), 1245);
    scroll.SetMax(100);
    EXPECT_FLOAT_EQ(Slider().Height(), 90);
    scroll.SetLargeChange(50);
    EXPECT_FLOAT_EQ(Slider().Height(), 2490.0f * 50 / 99 / 2);
}

TEST_F(ScrollTest, TheSliderSitsAtTheValuesShareOfTheFreeTrack)
{
    EXPECT_FLOAT_EQ(Slider().Top(), 255);
    scroll.SetValue(100);
    EXPECT_FLOAT_EQ(Slider().Top(), 2655);
    EXPECT_FLOAT_EQ(Slider().Top() + Slider().Height(), Down().Top());
    scroll.SetValue(50);
    EXPECT_FLOAT_EQ(Slider().Top(), 255 + 49 * 2400.0f / 99);
}

TEST_F(ScrollTest, TheTopIsWorkedOutWithTheSlidersPreviousHeight)
{
    scroll.SetValue(50);
    scroll.SetLargeChange(99); // the slider grows to 1245
    EXPECT_FLOAT_EQ(Slider().Height(), 1245);
    EXPECT_FLOAT_EQ(Slider().Top(), 255 + 49 * 2400.0f / 99);
    scroll.SetValue(50);
    EXPECT_FLOAT_EQ(Slider().Top(), 255 + 49 * 1245.0f / 99);
}

TEST_F(ScrollTest, ArrowsAndSliderSpanTheWidthAndTheArrowsKeepTheirHeight)
{
    surface.Resize(400, 2000);
    EXPECT_FLOAT_EQ(Up().Width(), 400);
    EXPECT_FLOAT_EQ(Up().Height(), 255);
    EXPECT_FLOAT_EQ(Down().Width(), 400);
    EXPECT_FLOAT_EQ(Down().Top(), 2000 - 255);
    EXPECT_FLOAT_EQ(Slider().Width(), 400);
    EXPECT_FLOAT_EQ(Slider().Left(), 0);
}

// The arrows are inset labels in the face colour with black up and down glyphs and the sunken
// edge of a 3D border; the slider is a box framed by one black pixel and filled with the face
// colour, on the track in the bar's back colour.
TEST_F(ScrollTest, TheArrowsAreInsetLabelsWithGlyphsAndTheSliderAFramedBox)
{
    const headless::RasterCanvas picture = headless::WindowPicture(surface);
    const auto system = [&picture](OleColor colour) { return picture.SystemColor(SystemColorIndex(colour)); };
    EXPECT_EQ(Runs(picture,
                  { { 0x000000, 'k' }, { 0xCEDBDE, 'c' }, { system(surface.BackColor()), 't' },
                      { system(SystemColor::ButtonShadow), 's' }, { system(SystemColor::DarkShadow3D), 'd' },
                      { system(SystemColor::ButtonHighlight), 'h' }, { system(SystemColor::Light3D), 'l' } }),
        (std::vector<std::string> { "0: s16 h1", "1: s1 d14 l1 h1", "2-7: s1 d1 c13 l1 h1", "8: s1 d1 c3 k1 c9 l1 h1",
            "9: s1 d1 c2 k3 c8 l1 h1", "10: s1 d1 c1 k5 c7 l1 h1", "11: s1 d1 k7 c6 l1 h1", "12-14: s1 d1 c13 l1 h1",
            "15: s1 l15 h1", "16: h17", "17: k17", "18-21: k1 c15 k1", "22: k17", "23-182: t17", "183: s16 h1",
            "184: s1 d14 l1 h1", "185-190: s1 d1 c13 l1 h1", "191: s1 d1 k7 c6 l1 h1", "192: s1 d1 c1 k5 c7 l1 h1",
            "193: s1 d1 c2 k3 c8 l1 h1", "194: s1 d1 c3 k1 c9 l1 h1", "195-197: s1 d1 c13 l1 h1", "198: s1 l15 h1",
            "199: h17" }));
    EXPECT_EQ(Slider().ScaleWidth(), Slider().Width() - 30);
    EXPECT_EQ(Slider().ScaleHeight(), Slider().Height() - 30);
}

// Value and Change.

TEST_F(ScrollTest, EveryAcceptedAssignmentRaisesChangeEvenWithTheSameValue)
{
    scroll.SetValue(5);
    scroll.SetValue(5);
    EXPECT_EQ(events.changes, (std::vector<int32_t> { 5, 5 }));
    EXPECT_EQ(site.propertyChanges, (std::vector<String> { u"Value", u"Value" }));
}

TEST_F(ScrollTest, AMaxBelowValueClampsItWithoutChange)
{
    scroll.SetValue(50);
    Clear();
    scroll.SetMax(40);
    EXPECT_EQ(scroll.Value(), 40);
    EXPECT_TRUE(events.changes.empty());
    EXPECT_EQ(site.propertyChanges, std::vector<String> { u"Max" });
}

TEST_F(ScrollTest, ANewBoundCapsBothStepsAtTheRange)
{
    scroll.SetLargeChange(60);
    scroll.SetSmallChange(70);
    scroll.SetMin(81);
    EXPECT_EQ(scroll.Value(), 81);
    EXPECT_EQ(scroll.LargeChange(), 19);
    EXPECT_EQ(scroll.SmallChange(), 19);
}

// Refusals: message boxes at design or at run time.

TEST_F(ScrollTest, ValueMaxAndTheStepsComplainOnlyAtDesignTime)
{
    scroll.SetValue(101);
    scroll.SetMax(1);
    scroll.SetLargeChange(101);
    EXPECT_TRUE(site.messageBoxes.empty());

    site.userMode = false;
    scroll.SetValue(0);
    scroll.SetMax(1);
    scroll.SetLargeChange(101);
    EXPECT_EQ(site.messageBoxes,
        (std::vector<Box> { { u"Invalid property value", MessageBoxStyle::Critical },
            { u"Invalid property value", MessageBoxStyle::Critical },
            { u"Invalid propery value", MessageBoxStyle::Critical } }));
    EXPECT_EQ(scroll.Value(), 1);
    EXPECT_EQ(scroll.Max(), 100);
    EXPECT_EQ(scroll.LargeChange(), 1);
    EXPECT_TRUE(events.changes.empty());
}

TEST_F(ScrollTest, MinComplainsOnlyAtRunTime)
{
    site.userMode = false;
    scroll.SetMin(100);
    EXPECT_TRUE(site.messageBoxes.empty());
    site.userMode = true;
    scroll.SetMin(100);
    EXPECT_EQ(site.messageBoxes, (std::vector<Box> { { u"Invalid property value", MessageBoxStyle::Critical } }));
    EXPECT_EQ(scroll.Min(), 1);
}

TEST_F(ScrollTest, TheWholeRangeIsAValidPage)
{
    scroll.SetLargeChange(100); // Max - Min + 1
    EXPECT_EQ(scroll.LargeChange(), 100);
    scroll.SetLargeChange(-5); // no lower bound
    EXPECT_EQ(scroll.LargeChange(), -5);
}

TEST_F(ScrollTest, SmallChangeChecksTheStepAlreadyStored)
{
    site.userMode = false;
    scroll.SetSmallChange(500); // the stored 1 is within the range
    EXPECT_EQ(scroll.SmallChange(), 500);
    scroll.SetSmallChange(2); // the stored 500 is not
    EXPECT_EQ(scroll.SmallChange(), 500);
    EXPECT_EQ(site.messageBoxes, (std::vector<Box> { { u"Invalid property value", MessageBoxStyle::Critical } }));
}

// The new bound is stored and reported first; the range that overflows is worked out after it.
TEST_F(ScrollTest, ARangeBeyond32BitsIsAnOverflowErrorAfterTheBoundIsStored)
{
    constexpr int32_t LongMin = std::numeric_limits<int32_t>::min();
    EXPECT_EQ(RunTimeErrorOf([&] { scroll.SetMin(LongMin); }), RunTimeError::Overflow);
    EXPECT_EQ(scroll.Min(), LongMin);
    EXPECT_EQ(RunTimeErrorOf([&] { scroll.SetMax(LongMax); }), RunTimeError::Overflow);
    EXPECT_EQ(scroll.Max(), LongMax);
    EXPECT_EQ(site.propertyChanges, (std::vector<String> { u"Min", u"Max" }));
}

// Arrows.

TEST_F(ScrollTest, AnArrowStepsAtOnceThenAfter500MsThenEvery30Ms)
{
    scroll.SetValue(50);
    scroll.SetSmallChange(5);
    Clear();
    Down().MouseDown(1, 0, 30, 30);
    EXPECT_EQ(scroll.Value(), 55);
    Advance(499);
    EXPECT_EQ(scroll.Value(), 55);
    Advance(1);
    EXPECT_EQ(scroll.Value(), 60);
    Advance(30);
    EXPECT_EQ(scroll.Value(), 65);
    Down().MouseUp(1, 0, 30, 30);
    Advance(1000);
    EXPECT_EQ(events.changes, (std::vector<int32_t> { 55, 60, 65 }));

    Up().MouseDown(1, 0, 30, 30);
    Advance(530);
    Up().MouseUp(1, 0, 30, 30);
    EXPECT_EQ(scroll.Value(), 50);
}

// Held down, an arrow whose step would pass Max never moves, even one below Max with a step of 2,
// and it complains to no one.
TEST_F(ScrollTest, AnArrowStepPastMaxIsRefused)
{
    for (const auto& [step, value] : { std::pair { 10, 95 }, std::pair { 2, 99 } }) {
        scroll.SetSmallChange(step);
        scroll.SetValue(value);
        Clear();
        Down().MouseDown(1, 0, 30, 30);
        Advance(2000);
        Down().MouseUp(1, 0, 30, 30);
        EXPECT_EQ(scroll.Value(), value);
        EXPECT_TRUE(events.changes.empty());
    }
    EXPECT_TRUE(site.messageBoxes.empty());
}

TEST_F(ScrollTest, ADoubleClickOnAnArrowIsOneMoreStep)
{
    Down().MouseDown(1, 0, 30, 30);
    Down().MouseUp(1, 0, 30, 30);
    Down().DblClick();
    Down().MouseUp(1, 0, 30, 30);
    EXPECT_EQ(scroll.Value(), 3);
}

TEST_F(ScrollTest, AStepBeyond32BitsIsAnOverflowError)
{
    Load({ { u"Max", LongMax }, { u"Value", LongMax - 1 }, { u"SmallChange", int32_t(10) } });
    EXPECT_EQ(RunTimeErrorOf([&] { Down().MouseDown(1, 0, 30, 30); }), RunTimeError::Overflow);
    EXPECT_EQ(scroll.Value(), LongMax - 1);
}

// Paging.

// Held, the track pages until it stops exactly at Max, or at Min the other way.
TEST_F(ScrollTest, HoldingTheTrackPagesUntilItStopsExactlyAtMax)
{
    scroll.SetLargeChange(30);
    Clear();
    surface.MouseDown(1, 0, 100, 2700);
    EXPECT_EQ(scroll.Value(), 31);
    Advance(500);
    EXPECT_EQ(scroll.Value(), 61);
    Advance(30);
    Advance(30);
    EXPECT_EQ(scroll.Value(), 100);
    Advance(30);
    surface.MouseUp(1, 0, 100, 2700);
    Advance(1000);
    EXPECT_EQ(events.changes, (std::vector<int32_t> { 31, 61, 91, 100, 100 }));

    scroll.SetValue(50);
    Clear();
    surface.MouseDown(1, 0, 100, 300);
    Advance(500);
    surface.MouseUp(1, 0, 100, 300);
    EXPECT_EQ(events.changes, (std::vector<int32_t> { 20, 1 }));
}

TEST_F(ScrollTest, APressWithinAPageOfABoundPagesOntoIt)
{
    scroll.SetLargeChange(30);
    scroll.SetValue(80);
    surface.MouseDown(1, 0, 100, 2900);
    surface.MouseUp(1, 0, 100, 2900);
    EXPECT_EQ(scroll.Value(), 100);
    scroll.SetValue(10);
    surface.MouseDown(1, 0, 100, 270);
    surface.MouseUp(1, 0, 100, 270);
    EXPECT_EQ(scroll.Value(), 1);
}

TEST_F(ScrollTest, ThePagedSideOfTheTrackTurnsBlackUntilRelease)
{
    const ColorRef back = surface.WindowImage().SystemColor(SystemColorIndex(surface.BackColor()));
    scroll.SetLargeChange(30);
    surface.MouseDown(1, 0, 100, 2700); // the slider moves to 982 - 1072
    EXPECT_EQ(surface.WindowPixel(8, 30), back);
    EXPECT_EQ(surface.WindowPixel(8, 150), 0x000000u);
    surface.MouseUp(1, 0, 100, 2700);
    EXPECT_EQ(surface.WindowPixel(8, 150), back);

    scroll.SetValue(100);
    surface.MouseDown(1, 0, 100, 300); // the slider moves to 1927 - 2017
    EXPECT_EQ(surface.WindowPixel(8, 60), 0x000000u);
    EXPECT_EQ(surface.WindowPixel(8, 170), back);
}

// A change that leaves the slider where it is draws nothing: the screen already shows it. Any
// change of the picture draws, also after the page feedback painted over the track.
TEST_F(ScrollTest, ARepaintThatWouldShowTheSamePictureIsSkipped)
{
    scroll.SetMax(100000); // the slider is at its shortest
    const int presents = surface.PresentCount();
    const int sliderPresents = Slider().PresentCount();
    for (int32_t max = 100001; max < 100100; ++max)
        scroll.SetMax(max);
    scroll.SetValue(1);
    scroll.SetLargeChange(5);
    EXPECT_EQ(surface.PresentCount(), presents);
    EXPECT_EQ(Slider().PresentCount(), sliderPresents);

    scroll.SetValue(50000);
    EXPECT_EQ(surface.PresentCount(), presents + 1);
    surface.MouseDown(1, 0, 100, 300); // pages up: black above the slider
    ASSERT_EQ(surface.WindowPixel(8, 60), 0x000000u);
    scroll.SetLargeChange(5);
    const ColorRef back = surface.WindowImage().SystemColor(SystemColorIndex(surface.BackColor()));
    EXPECT_EQ(surface.WindowPixel(8, 60), back);
    surface.MouseUp(1, 0, 100, 300);
}

TEST_F(ScrollTest, ADoubleClickOnTheTrackRepeatsTheLastPress)
{
    scroll.SetLargeChange(10);
    surface.MouseDown(1, 0, 100, 2700);
    surface.MouseUp(1, 0, 100, 2700);
    surface.DblClick();
    surface.MouseUp(1, 0, 100, 2700);
    EXPECT_EQ(scroll.Value(), 21);
}

TEST_F(ScrollTest, AnOverflowingRepeatStopsTheTimer)
{
    Load({ { u"Max", LongMax }, { u"Value", LongMax - 40 }, { u"LargeChange", int32_t(30) } });
    surface.MouseDown(1, 0, 100, 2900);
    EXPECT_EQ(scroll.Value(), LongMax - 10);
    EXPECT_THROW(Advance(500), AutomationError);
    EXPECT_NO_THROW(Advance(1000));
    EXPECT_EQ(scroll.Value(), LongMax - 10);
}

// Dragging.

TEST_F(ScrollTest, DraggingToTheBottomLandsFlushOnTheDownArrow)
{
    Slider().MouseDown(1, 0, 100, 20);
    Slider().MouseMove(1, 0, 100, 20 + 5000);
    EXPECT_FLOAT_EQ(Slider().Top(), Down().Top() - Slider().Height());
    EXPECT_EQ(scroll.Value(), 100);
    EXPECT_EQ(events.scrolls, std::vector<int32_t> { 100 });
    Slider().MouseUp(1, 0, 100, 20);
    EXPECT_FLOAT_EQ(Slider().Top(), 2655);
    EXPECT_TRUE(events.changes.empty());

    // Within a pixel of the bottom the slider snaps flush.
    scroll.SetValue(1);
    Slider().MouseDown(1, 0, 100, 20);
    Slider().MouseMove(1, 0, 100, 20 + 2390); // 10 twips short of the bottom
    EXPECT_FLOAT_EQ(Slider().Top(), 2655);
}

TEST_F(ScrollTest, DraggingReadsTheValueHalvesToEvenAndReleaseSnaps)
{
    scroll.SetMax(97); // 25 twips per step
    Slider().MouseDown(1, 0, 100, 20);
    Slider().MouseMove(1, 0, 100, 20 + 37.5f); // 1.5 steps down
    EXPECT_EQ(scroll.Value(), 2);
    Slider().MouseMove(1, 0, 100, 20 + 25); // 2.5 steps down
    EXPECT_EQ(scroll.Value(), 4);
    EXPECT_FLOAT_EQ(Slider().Top(), 255 + 62.5f);
    Slider().MouseUp(1, 0, 100, 20);
    EXPECT_FLOAT_EQ(Slider().Top(), 255 + 75);
    EXPECT_EQ(events.scrolls, (std::vector<int32_t> { 2, 4 }));
    EXPECT_TRUE(events.changes.empty());
}

TEST_F(ScrollTest, ScrollOnlyWhileDraggingAndOnlyWhenTheValueMoves)
{
    Slider().MouseMove(0, 0, 100, 900); // no press: no drag
    Slider().MouseDown(1, 0, 100, 20);
    Slider().MouseMove(1, 0, 100, 21); // less than a step
    Slider().MouseUp(1, 0, 100, 21);
    Slider().MouseMove(1, 0, 100, 900);
    EXPECT_EQ(scroll.Value(), 1);
    EXPECT_TRUE(events.scrolls.empty());
    EXPECT_FLOAT_EQ(Slider().Top(), 255);
}

TEST_F(ScrollTest, AnEmptyLoadedRangeLeavesTheValueWhileDragging)
{
    Load({ { u"Min", int32_t(5) }, { u"Max", int32_t(5) }, { u"Value", int32_t(5) } });
    Slider().MouseDown(1, 0, 100, 20);
    Slider().MouseMove(1, 0, 100, 500);
    EXPECT_EQ(scroll.Value(), 5);
    EXPECT_TRUE(events.scrolls.empty());
}

// Colours and persistence.

TEST_F(ScrollTest, ColoursGoToBothArrowsAndTheBackColourAlsoToTheSlider)
{
    scroll.SetBackColor(0x0000FF);
    scroll.SetForeColorActive(0x00FF00);
    EXPECT_EQ(Up().BackColor(), 0x0000FFu);
    EXPECT_EQ(Down().BackColor(), 0x0000FFu);
    EXPECT_EQ(Slider().BackColor(), 0x0000FFu);
    EXPECT_EQ(scroll.ForeColorActive(), 0x00FF00u);
    EXPECT_EQ(site.propertyChanges, (std::vector<String> { u"BackColor", u"ForeColorActive" }));
}

TEST_F(ScrollTest, LoadingGivesTheSavedColoursToTheDownArrowOnly)
{
    Load({ { u"BackColor", OleColor(0x0000FF) }, { u"ForeColor", OleColor(0x00FF00) } });
    EXPECT_EQ(scroll.BackColor(), 0x0000FFu);
    EXPECT_EQ(Down().BackColor(), 0x0000FFu);
    EXPECT_EQ(Down().ForeColor(), 0x00FF00u);
    EXPECT_EQ(Up().BackColor(), 0xCEDBDEu);
    EXPECT_EQ(Up().ForeColor(), 0x000000u);
    EXPECT_EQ(Slider().BackColor(), 0xCEDBDEu);
}

TEST_F(ScrollTest, PersistsInItsOrderAndLoadsNumbersUnchecked)
{
    MemoryPropertyBag bag;
    bag.Set(u"Value", int32_t(500));
    bag.Set(u"LargeChange", int32_t(0));
    scroll.ReadProperties(bag);
    EXPECT_EQ(scroll.Value(), 500);
    EXPECT_EQ(scroll.LargeChange(), 0);
    const std::vector<String> keys { u"Enabled", u"BackColor", u"BackColorActive", u"BackColorPushed", u"ForeColor",
        u"ForeColorActive", u"ForeColorPushed", u"Value", u"Min", u"Max", u"LargeChange", u"SmallChange" };
    EXPECT_EQ(bag.KeysOf(MemoryPropertyBag::OperationKind::Read), keys);
    MemoryPropertyBag written;
    scroll.WriteProperties(written);
    EXPECT_EQ(written.KeysOf(MemoryPropertyBag::OperationKind::Write), keys);
    EXPECT_EQ(*written.Find(u"Value"), Variant(int32_t(500)));
}

} // namespace
} // namespace tolva
