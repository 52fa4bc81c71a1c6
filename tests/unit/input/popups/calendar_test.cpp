#include "tests/unit/support/accessible_printing.h"
#include "popup_test_fixture.h"
#include "platform/headless/window_picture.h"

namespace tolva::testing {
namespace {

// The test site's today is Saturday 3 February 2001.
class CalendarTest : public PopupTest {
protected:
    frmCalendar& Open(OleDate date)
    {
        frmCalendar& calendar = Load<frmCalendar>();
        calendar.SetParent(&owner);
        calendar.SetDate(date);
        calendar.SetCurrentDate(date);
        calendar.Setup();
        calendar.Show();
        return calendar;
    }

    // The grid's backgrounds as the form shows them, a row of seven per week: 'T' today's
    // colour, 'S' the selection's, '.' black, '?' anything else.
    static std::vector<std::string> Backgrounds(frmCalendar& calendar)
    {
        const headless::RasterCanvas picture = headless::WindowPicture(static_cast<headless::HeadlessSurface&>(calendar.Window()));
        std::vector<std::string> rows;
        for (int row = 0; row < 6; ++row) {
            std::string line;
            for (int column = 0; column < 7; ++column) {
                const PixelPoint corner = calendar.DayWindow(row * 7 + column).ScreenOrigin();
                const PixelPoint form = calendar.Window().ScreenOrigin();
                const ColorRef pixel = picture.Pixel(corner.x - form.x + 1, corner.y - form.y + 1);
                line += pixel == frmCalendar::TodayBack ? 'T' : pixel == frmCalendar::SelectedBack ? 'S' : pixel == 0 ? '.' : '?';
            }
            rows.push_back(line);
        }
        return rows;
    }
};

TEST_F(CalendarTest, TheGridStartsOnTheSundayOnOrBeforeTheFirstAndShowsFortyTwoDays)
{
    struct Case {
        OleDate date;
        const char* caption;
        OleDate cell0;
        OleDate cell6;
        OleDate cell41;
    };
    const Case cases[] = {
        // 1 January 2000 is a Saturday.
        { OleDate::FromYmd(2000, 1, 20), "JAN 2000", OleDate::FromYmd(1999, 12, 26), OleDate::FromYmd(2000, 1, 1),
            OleDate::FromYmd(2000, 2, 5) },
        // 1 October 2000 is a Sunday: no day of September shows.
        { OleDate::FromYmd(2000, 10, 31), "OCT 2000", OleDate::FromYmd(2000, 10, 1), OleDate::FromYmd(2000, 10, 7),
            OleDate::FromYmd(2000, 11, 11) },
    };
    for (const Case& c : cases) {
        frmCalendar& calendar = Open(c.date);
        SCOPED_TRACE(c.caption);
        EXPECT_EQ(ToUtf8(calendar.MonthCaption().Caption()), c.caption);
        EXPECT_EQ(calendar.DayDate(0), c.cell0);
        EXPECT_EQ(calendar.DayDate(6), c.cell6);
        EXPECT_EQ(calendar.DayDate(41), c.cell41);
        EXPECT_EQ(ToUtf8(calendar.Day(41).Caption()), std::to_string(c.cell41.Day()));
        for (int cell : { 0, 6, 41 })
            EXPECT_EQ(calendar.Day(cell).ForeColor(), calendar.DayDate(cell).Month() == c.date.Month() ? 0xFFFFFFu : frmCalendar::OtherMonthText);
    }
}

TEST_F(CalendarTest, TodaysColourWinsOverTheGivenDateAndAPressMovesTheSelection)
{
    frmCalendar& calendar = Open(OleDate::FromYmd(2001, 2, 14));
    EXPECT_EQ(Backgrounds(calendar), (std::vector<std::string> { "......T", ".......", "...S...", ".......", ".......", "......." }));

    Click(calendar.DayWindow(18)); // Thursday 15 February
    EXPECT_EQ(calendar.Date(), OleDate::FromYmd(2001, 2, 15));
    EXPECT_EQ(Backgrounds(calendar)[2], "....S..");
    EXPECT_EQ(owner.log, std::vector<std::string> { "" });
    Click(calendar.DayWindow(6)); // today keeps its colour when chosen
    EXPECT_EQ(Backgrounds(calendar), (std::vector<std::string> { "......T", ".......", ".......", ".......", ".......", "......." }));

    frmCalendar& onToday = Open(site.Today());
    EXPECT_EQ(Backgrounds(onToday)[0], "......T");
}

// The arrows land on the 1st of the next month or the last day of the previous one, whatever
// the day shown, and leave the chosen date alone; only a left press steps, and each click of a
// double click steps once.
TEST_F(CalendarTest, TheArrowsStepToTheNeighbouringMonths)
{
    struct Case {
        bool next;
        int16_t button;
        bool doubleClick;
        OleDate current;
        const char* caption;
    };
    const Case cases[] = {
        { true, 1, false, OleDate::FromYmd(2001, 4, 1), "APR 2001" },
        { false, 1, false, OleDate::FromYmd(2001, 2, 28), "FEB 2001" },
        { false, 2, false, OleDate::FromYmd(2001, 3, 15), "MAR 2001" },
        { true, 1, true, OleDate::FromYmd(2001, 5, 1), "MAY 2001" },
    };
    for (const Case& c : cases) {
        frmCalendar& calendar = Open(OleDate::FromYmd(2001, 3, 15));
        SCOPED_TRACE(c.caption);
        headless::HeadlessSurface& arrow = Headless(c.next ? calendar.NextWindow() : calendar.PrevWindow());
        arrow.MouseDown(c.button, 0, 15, 15);
        arrow.MouseUp(c.button, 0, 15, 15);
        if (c.doubleClick)
            arrow.DblClick();
        EXPECT_EQ(calendar.CurrentDate(), c.current);
        EXPECT_EQ(ToUtf8(calendar.MonthCaption().Caption()), c.caption);
        EXPECT_EQ(calendar.Date(), OleDate::FromYmd(2001, 3, 15));
    }
}

// The caption switches to the months of the year; the arrows step the year there, a month is
// chosen by a press and its release shows its days.
TEST_F(CalendarTest, TheMonthViewChoosesAMonthOfAnotherYear)
{
    frmCalendar& calendar = Open(OleDate::FromYmd(2001, 3, 15));
    Headless(calendar.MonthCaptionWindow()).MouseDown(2, 0, 15, 15);
    EXPECT_TRUE(calendar.MonthViewShown());
    EXPECT_EQ(calendar.WeekCaption(), frmCalendar::MonthPrompt);
    EXPECT_EQ(ToUtf8(calendar.MonthCaption().Caption()), "2001");
    EXPECT_EQ(ToUtf8(calendar.Month(2).Caption()), "Mar");
    EXPECT_EQ(calendar.Month(2).BackColor(), frmCalendar::ChosenMonthBack);
    EXPECT_EQ(calendar.CurrentDate(), OleDate::FromYmd(2001, 3, 1));

    Click(calendar.NextWindow());
    Click(calendar.NextWindow());
    EXPECT_EQ(ToUtf8(calendar.MonthCaption().Caption()), "2003");
    EXPECT_EQ(calendar.CurrentDate(), OleDate::FromYmd(2003, 3, 1));

    Headless(calendar.MonthWindow(5)).MouseDown(1, 0, 15, 15);
    EXPECT_EQ(calendar.Month(2).BackColor(), 0u);
    EXPECT_EQ(calendar.Month(5).BackColor(), frmCalendar::ChosenMonthBack);
    Headless(calendar.MonthWindow(5)).MouseUp(1, 0, 15, 15);
    EXPECT_FALSE(calendar.MonthViewShown());
    EXPECT_EQ(calendar.WeekCaption(), frmCalendar::WeekHeader);
    EXPECT_EQ(ToUtf8(calendar.MonthCaption().Caption()), "JUN 2003");
    EXPECT_EQ(calendar.DayDate(0), OleDate::FromYmd(2003, 6, 1));
    EXPECT_EQ(owner.log, std::vector<std::string> {});
}

// Opened from the control: a chosen day becomes its text, Esc brings the old text back, and a
// click elsewhere accepts what the calendar shows.
TEST_F(CalendarTest, TheControlTakesTheChosenDayOrItsOldTextBack)
{
    input.SetStyle(tkInputStyles::tkCalendar);
    struct Case {
        const char* name;
        std::function<void(frmCalendar&)> act;
        const char* text;
    };
    const Case cases[] = {
        { "day chosen", [&](frmCalendar& c) { Click(c.DayWindow(20)); }, "02/17/2001" },
        { "Esc", [&](frmCalendar& c) {
             Headless(c.DayWindow(20)).MouseDown(1, 0, 15, 15);
             Headless(c.Window()).KeyPress(27);
         },
            "not a date" },
        { "click elsewhere", [&](frmCalendar& c) { tree.Activate(nullptr); }, "02/03/2001" },
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        input.SetText(u"not a date");
        PressDropDown();
        frmCalendar* calendar = popups.Loaded<frmCalendar>();
        ASSERT_TRUE(calendar && calendar->Visible());
        EXPECT_EQ(tree.Active(), &calendar->Window());
        EXPECT_EQ(calendar->Date(), site.Today());
        c.act(*calendar);
        EXPECT_EQ(ToUtf8(input.Text()), c.text);
        EXPECT_EQ(popups.Loaded<CalendarPopup>(), nullptr);
        EXPECT_EQ(tree.Active(), nullptr);
    }
}

// To screen readers the calendar is a table of its 42 days named by their long dates; the chosen
// day is selected, and choosing one hands it to the owner as a press and release do.
TEST_F(CalendarTest, ReadsAsATableOfDaysAndChoosesOne)
{
    using namespace AccessibleState;
    frmCalendar& calendar = Open(OleDate::FromYmd(2000, 1, 1));
    const AccessibleDescription table = calendar.Describe();
    EXPECT_EQ(table.name, u"txtOwner");
    EXPECT_EQ(table.role, AccessibleRole::Table);
    EXPECT_EQ(table.value, u"Saturday, January 1, 2000");
    ASSERT_EQ(calendar.ChildCount(), 42);
    const Surface& day = calendar.DayWindow(7);
    const int32_t left = int32_t(day.Left() / 15), top = int32_t(day.Top() / 15);
    EXPECT_EQ(calendar.Child(7)->Describe(),
        (AccessibleDescription { u"Sunday, January 2, 2000", AccessibleRole::Cell, Selectable, u"", u"", u"Choose",
            { left, top, left + int32_t(day.Width() / 15), top + int32_t(day.Height() / 15) } }));
    EXPECT_EQ(calendar.SelectedChild(), 6);

    WindowOf(calendar).TakeAnnouncements();
    owner.log.clear();
    EXPECT_TRUE(calendar.Child(7)->DoDefaultAction());
    EXPECT_EQ(calendar.Date().Serial(), OleDate::FromYmd(2000, 1, 2).Serial());
    EXPECT_EQ(owner.log, (std::vector<std::string> { "" }));
    EXPECT_EQ(WindowOf(calendar).TakeAnnouncements(), (Heard { { AccessibleEvent::Selection, 7 } }));
}

} // namespace
} // namespace tolva::testing
