#include "controls/input/popups/frm_calendar.h"
#include "core/format/formatter.h"
#include "core/twips_canvas.h"
#include <algorithm>

namespace tolva {

namespace {

constexpr int16_t LeftButton = 1;
constexpr int16_t KeyEscape = 27;
constexpr OleColor White = 0xFFFFFF;
constexpr OleColor Black = 0x000000;
constexpr OleColor FrameColor = 0x808080;
constexpr OleColor HeaderColor = 0x9CDFF7; // the labels' pale amber

// The layout in pixels at 96 dpi: a title row of arrows and caption, the weekday header, then
// the six weeks; the month view covers the weeks with four columns of three months.
constexpr int32_t Margin = 3;
constexpr int32_t CellWidth = 24;
constexpr int32_t CellHeight = 17;
constexpr int32_t TitleTop = 3;
constexpr int32_t TitleHeight = 18;
constexpr int32_t ArrowWidth = 20;
constexpr int32_t HeaderTop = 22;
constexpr int32_t HeaderHeight = 16;
constexpr int32_t GridTop = 39;
constexpr int32_t GridWidth = 7 * CellWidth;
constexpr int32_t GridHeight = 6 * CellHeight;
constexpr int32_t FormWidth = Margin + GridWidth + Margin;
constexpr int32_t FormHeight = GridTop + GridHeight + Margin;
constexpr int32_t MonthColumns = 4;
constexpr int32_t MonthWidth = GridWidth / MonthColumns;
constexpr int32_t MonthHeight = GridHeight / 3;

float Twips(int32_t pixels)
{
    return float(pixels * 15);
}

void Place(Surface& window, int32_t left, int32_t top, int32_t width, int32_t height)
{
    window.Move(Twips(left), Twips(top), Twips(width), Twips(height));
}

// A cell keeps its colour under the pointer and while pressed: only the text turns amber.
void SetCellBack(TolvaLabel& label, OleColor color)
{
    label.SetBackColor(color);
    label.SetBackColorActive(color);
    label.SetBackColorPushed(color);
}

// A light-on-black label of the form, as the library's labels look by default.
void InitLabel(TolvaLabel& label, StringView caption, int32_t alignment)
{
    label.InitProperties();
    label.SetCaption(caption);
    label.SetAlignment(alignment);
}

// Month names in the locale come in lower case for some languages; the caption shows capitals.
String UpperCaseCaption(String text)
{
    for (char16_t& c : text)
        if ((c >= u'a' && c <= u'z') || (c >= 0xE0 && c <= 0xFE && c != 0xF7))
            c = char16_t(c - 32);
    return text;
}

double DayNumber(OleDate date)
{
    return double(int64_t(date.Serial()));
}

} // namespace

frmCalendar::Cell::Cell(frmCalendar& form, Surface& container, bool day, int index)
    : events(form, day, index)
    , label(container, form.Site(), day ? u"lblDay" : u"lblMonth")
{
    InitLabel(*label, u"", tkLabelAlignment::tkAlignCenter);
    label->SetEventListener(&events);
}

void frmCalendar::CellEvents::MouseDown(int16_t& button, int16_t&, float&, float&)
{
    if (m_day)
        m_form.PressDay(m_index);
    else if (button == LeftButton)
        m_form.PressMonth(m_index);
}

// Releasing a day hands it to the owner; releasing a month shows its days.
void frmCalendar::CellEvents::MouseUp(int16_t&, int16_t&, float&, float&)
{
    if (m_day)
        m_form.Callback(u"");
    else
        m_form.SwitchView();
}

void frmCalendar::ArrowEvents::MouseDown(int16_t& button, int16_t&, float&, float&)
{
    if (button == LeftButton)
        m_form.Step(m_next);
}

frmCalendar::frmCalendar(std::unique_ptr<Surface> window, ControlSite& site)
    : PopupForm(std::move(window), site)
    , m_tlPrev(Window(), site, u"tlPrev")
    , m_tlMonth(Window(), site, u"tlMonth")
    , m_tlNext(Window(), site, u"tlNext")
{
    Window().SetBackColor(Black);
    InitLabel(*m_tlPrev, u"", tkLabelAlignment::tkAlignLeft);
    m_tlPrev->SetArrowIcon(tkArrowIcon::tkArrowLeft);
    m_tlPrev->SetArrowPosition(tkArrowPosition::tkLeft);
    m_tlPrev->SetEventListener(&m_prevEvents);
    InitLabel(*m_tlNext, u"", tkLabelAlignment::tkAlignLeft);
    m_tlNext->SetArrowIcon(tkArrowIcon::tkArrowRight);
    m_tlNext->SetArrowPosition(tkArrowPosition::tkEnd);
    m_tlNext->SetEventListener(&m_nextEvents);
    InitLabel(*m_tlMonth, u"", tkLabelAlignment::tkAlignCenter);
    Font bold = m_tlMonth->GetFont();
    bold.SetBold(true);
    m_tlMonth->SetFont(bold);
    m_tlMonth->SetEventListener(&m_captionEvents);
    for (int i = 0; i < Cells; ++i)
        m_lblDay.push_back(std::make_unique<Cell>(*this, Window(), true, i));
    m_picMonth = Window().CreateChild(); // over the grid
    m_picMonth->SetBackColor(Black);
    for (int i = 0; i < 12; ++i)
        m_lblMonth.push_back(std::make_unique<Cell>(*this, *m_picMonth, false, i));
    Layout();
    Forget();
}

frmCalendar::~frmCalendar() = default;

void frmCalendar::Layout()
{
    Place(Window(), 0, 0, FormWidth, FormHeight);
    Place(m_tlPrev.Window(), Margin, TitleTop, ArrowWidth, TitleHeight);
    Place(m_tlMonth.Window(), Margin + ArrowWidth, TitleTop, GridWidth - 2 * ArrowWidth, TitleHeight);
    Place(m_tlNext.Window(), Margin + GridWidth - ArrowWidth, TitleTop, ArrowWidth, TitleHeight);
    for (int i = 0; i < Cells; ++i)
        Place(m_lblDay[size_t(i)]->label.Window(), Margin + i % 7 * CellWidth, GridTop + i / 7 * CellHeight, CellWidth, CellHeight);
    Place(*m_picMonth, Margin, GridTop, GridWidth, GridHeight);
    for (int i = 0; i < 12; ++i)
        Place(m_lblMonth[size_t(i)]->label.Window(), i % MonthColumns * MonthWidth, i / MonthColumns * MonthHeight, MonthWidth, MonthHeight);
}

// A fresh calendar shows the day view; the month labels wait unchosen.
void frmCalendar::Forget()
{
    m_dtDate = OleDate();
    m_currentDate = OleDate();
    m_selectedCell = -1;
    m_lblWeek = WeekHeader;
    ShowGrid(true);
    for (const auto& month : m_lblMonth)
        SetCellBack(*month->label, Black);
}

void frmCalendar::Setup()
{
    for (int i = 0; i < 12; ++i)
        m_lblMonth[size_t(i)]->label->SetCaption(Formatted(OleDate::FromYmd(2000, i + 1, 1), u"mmm"));
    ShowDayView();
}

String frmCalendar::Formatted(OleDate date, StringView format) const
{
    return Site().Formatting().Format(Variant(date), format);
}

// The 42 days from the Sunday on or before the 1st: grey outside d's month, today's colour
// over the colour of d itself.
void frmCalendar::FillMonth(OleDate d)
{
    m_tlMonth->SetCaption(UpperCaseCaption(Formatted(d, u"MMM YYYY")));
    const OleDate first = OleDate::FromYmd(d.Year(), d.Month(), 1);
    const double start = first.Serial() - (first.Weekday() - 1);
    m_today = Site().Formatting().Today();
    m_selectedCell = -1;
    for (int i = 0; i < Cells; ++i) {
        Cell& cell = *m_lblDay[size_t(i)];
        cell.date = OleDate(start + i);
        TolvaLabel& label = *cell.label;
        label.SetForeColor(cell.date.Month() == d.Month() ? White : OtherMonthText);
        label.SetCaption(Variant(int32_t(cell.date.Day())).ToString());
        if (DayNumber(cell.date) == DayNumber(m_today)) {
            SetCellBack(label, TodayBack);
        } else if (DayNumber(cell.date) == DayNumber(d)) {
            SetCellBack(label, SelectedBack);
        } else {
            SetCellBack(label, Black);
        }
        if (DayNumber(cell.date) == DayNumber(d))
            m_selectedCell = i;
    }
}

// The grid and the month view take turns in the same place.
void frmCalendar::ShowGrid(bool visible)
{
    m_picMonth->SetVisible(!visible);
    for (const auto& day : m_lblDay)
        day->label.Window().SetVisible(visible);
}

void frmCalendar::ShowDayView()
{
    ShowGrid(true);
    m_lblWeek = WeekHeader;
    FillMonth(m_currentDate);
    Window().Refresh();
}

void frmCalendar::ShowMonthView()
{
    ShowGrid(false);
    m_lblWeek = MonthPrompt;
    m_tlMonth->SetCaption(Formatted(m_currentDate, u"YYYY"));
    Window().Refresh();
    PressMonth(m_currentDate.Month() - 1);
}

void frmCalendar::SwitchView()
{
    if (DayViewShown())
        ShowMonthView();
    else
        ShowDayView();
}

// The day view goes to the 1st of the next month or the last day of the previous one; the
// month view steps the year and keeps month and day (29 February becomes the 28th).
void frmCalendar::Step(bool next)
{
    if (DayViewShown()) {
        const int month = m_currentDate.Month();
        const int year = m_currentDate.Year();
        m_currentDate = next ? OleDate::FromYmd(year, month + 1, 1) : OleDate::FromYmd(year, month, 0);
        FillMonth(m_currentDate);
        return;
    }
    const int32_t year = Variant(m_tlMonth->Caption()).ToInt32() + (next ? 1 : -1);
    m_tlMonth->SetCaption(Variant(year).ToString());
    const int month = m_currentDate.Month();
    const int lastDay = OleDate::FromYmd(year, month + 1, 0).Day();
    m_currentDate = OleDate::FromYmd(year, month, std::min(m_currentDate.Day(), lastDay));
}

// The pressed day becomes dtDate and takes the selection colour from the previous one; today's
// cell keeps its own colour either way.
void frmCalendar::PressDay(int index)
{
    const auto isToday = [&](int cell) { return DayNumber(m_lblDay[size_t(cell)]->date) == DayNumber(m_today); };
    if (m_selectedCell >= 0 && !isToday(m_selectedCell))
        SetCellBack(*m_lblDay[size_t(m_selectedCell)]->label, Black);
    if (!isToday(index))
        SetCellBack(*m_lblDay[size_t(index)]->label, SelectedBack);
    m_selectedCell = index;
    m_dtDate = m_lblDay[size_t(index)]->date;
    AnnounceSelection(Window(), *this);
}

// The chosen month is marked and becomes the 1st of that month in the year shown.
void frmCalendar::PressMonth(int index)
{
    for (int i = 0; i < 12; ++i) {
        TolvaLabel& label = *m_lblMonth[size_t(i)]->label;
        if (i == index) {
            SetCellBack(label, ChosenMonthBack);
            m_currentDate = OleDate::FromYmd(m_currentDate.Year(), index + 1, 1);
        } else if (label.BackColor() != Black) {
            SetCellBack(label, Black);
        }
    }
}

void frmCalendar::OnKeyPress(int16_t& keyAscii)
{
    if (keyAscii != KeyEscape)
        return;
    Callback(u"CANCEL");
    UnloadSelf();
}

// The form's own look: black, a grey frame, and the header over the grid, one weekday a column.
void frmCalendar::OnPaint()
{
    Surface& window = Window();
    const std::unique_ptr<Canvas> canvas = window.CreateCanvas(FormWidth, FormHeight);
    canvas->FillRect(0, 0, FormWidth, FormHeight, ColorRef(Black));
    canvas->Frame({ 0, 0, FormWidth, FormHeight }, ColorRef(FrameColor));
    const CanvasFont font = ToCanvasFont(window.GetFont());
    const auto centred = [&](StringView text, int32_t left, int32_t width) {
        const TextExtent extent = canvas->MeasureText(text, font);
        canvas->DrawText(left + (width - extent.width) / 2, HeaderTop + (HeaderHeight - extent.height) / 2, text, font,
            ColorRef(HeaderColor));
    };
    if (DayViewShown()) {
        for (int day = 0; day < 7; ++day)
            centred(m_lblWeek.substr(size_t(day) * 3, 2), Margin + day * CellWidth, CellWidth);
    } else {
        centred(m_lblWeek, Margin, GridWidth);
    }
    window.Present(*canvas, 0, 0, FormWidth, FormHeight);
}

} // namespace tolva
