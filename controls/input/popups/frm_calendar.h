#pragma once
#include "controls/input/popups/popup_form.h"
#include "controls/label/tolva_label.h"
#include "core/embedded_control.h"
#include <array>
#include <memory>
#include <vector>

namespace tolva {

// The calendar pop-up: a month as six weeks of seven day labels (lblDay, Sunday first) under a
// caption tlMonth between the arrows tlPrev and tlNext, and a month view picMonth of twelve
// month labels (lblMonth) that replaces the grid. A press on a day chooses it (dtDate), its
// release hands it to the owner; Esc cancels. The weekday header lblWeek is drawn by the form;
// its caption tells which view shows.
class frmCalendar final : public PopupForm<CalendarPopup> {
public:
    frmCalendar(std::unique_ptr<Surface> window, ControlSite& site);
    ~frmCalendar() override;

    OleDate Date() const override { return m_dtDate; }
    void SetDate(OleDate date) override { m_dtDate = date; }
    OleDate CurrentDate() const override { return m_currentDate; }
    void SetCurrentDate(OleDate date) override { m_currentDate = date; }
    void Setup() override;

    // What the form shows, for the platform and tests.
    const String& WeekCaption() const { return m_lblWeek; }
    bool MonthViewShown() const { return m_picMonth->Visible(); }
    TolvaLabel& Day(int index) { return *m_lblDay.at(size_t(index))->label; }
    OleDate DayDate(int index) const { return m_lblDay.at(size_t(index))->date; }
    TolvaLabel& Month(int index) { return *m_lblMonth.at(size_t(index))->label; }
    TolvaLabel& MonthCaption() { return *m_tlMonth; }
    Surface& DayWindow(int index) { return m_lblDay.at(size_t(index))->label.Window(); }
    Surface& MonthWindow(int index) { return m_lblMonth.at(size_t(index))->label.Window(); }
    Surface& PrevWindow() { return m_tlPrev.Window(); }
    Surface& NextWindow() { return m_tlNext.Window(); }
    Surface& MonthCaptionWindow() { return m_tlMonth.Window(); }

    // A table of the grid's days, named after the owner, whose value is the chosen date.
    AccessibleDescription Describe() const override;
    int32_t ChildCount() const override { return Cells; }
    std::unique_ptr<AccessibleElement> Child(int32_t index) override;
    int32_t SelectedChild() const override;

    static constexpr int Cells = 42;
    static constexpr StringView WeekHeader = u"Su Mo Tu We Th Fr Sa";
    static constexpr StringView MonthPrompt = u"Select a month";
    static constexpr OleColor OtherMonthText = 0x808080;
    static constexpr OleColor TodayBack = 0x637D6B;
    static constexpr OleColor SelectedBack = 0x4A5051;
    static constexpr OleColor ChosenMonthBack = 0x4A5152;

private:
    class DayItem;
    // One label of the grid or of the month view, with the listener that tells the form which
    // one it is; the listener outlives the label.
    class CellEvents final : public TolvaLabelEvents {
    public:
        CellEvents(frmCalendar& form, bool day, int index)
            : m_form(form)
            , m_day(day)
            , m_index(index)
        { }
        void MouseDown(int16_t& button, int16_t& shift, float& x, float& y) override;
        void MouseUp(int16_t& button, int16_t& shift, float& x, float& y) override;

    private:
        frmCalendar& m_form;
        bool m_day;
        int m_index;
    };
    struct Cell {
        Cell(frmCalendar& form, Surface& container, bool day, int index);
        CellEvents events;
        EmbeddedControl<TolvaLabel> label;
        OleDate date; // lblDay's Tag
    };
    class ArrowEvents final : public TolvaLabelEvents {
    public:
        ArrowEvents(frmCalendar& form, bool next)
            : m_form(form)
            , m_next(next)
        { }
        void DblClick() override { m_form.Step(m_next); }
        void MouseDown(int16_t& button, int16_t& shift, float& x, float& y) override;

    private:
        frmCalendar& m_form;
        bool m_next;
    };
    class CaptionEvents final : public TolvaLabelEvents {
    public:
        explicit CaptionEvents(frmCalendar& form)
            : m_form(form)
        { }
        void MouseDown(int16_t&, int16_t&, float&, float&) override { m_form.SwitchView(); }

    private:
        frmCalendar& m_form;
    };

    void Forget() override;
    void OnPaint() override;
    void OnKeyPress(int16_t& keyAscii) override;

    void Layout();
    void FillMonth(OleDate d);
    void ShowGrid(bool visible);
    void ShowDayView();
    void ShowMonthView();
    void SwitchView();
    void Step(bool next);
    void PressDay(int index);
    void PressMonth(int index);
    bool DayViewShown() const { return m_lblWeek == WeekHeader; }
    String Formatted(OleDate date, StringView format) const;

    OleDate m_dtDate;
    OleDate m_currentDate;
    OleDate m_today; // as the last fill saw it
    int m_selectedCell = -1; // the cell in the selection colour, or -1
    String m_lblWeek { WeekHeader };

    ArrowEvents m_prevEvents { *this, false };
    ArrowEvents m_nextEvents { *this, true };
    CaptionEvents m_captionEvents { *this };
    EmbeddedControl<TolvaLabel> m_tlPrev;
    EmbeddedControl<TolvaLabel> m_tlMonth;
    EmbeddedControl<TolvaLabel> m_tlNext;
    std::vector<std::unique_ptr<Cell>> m_lblDay;
    std::unique_ptr<Surface> m_picMonth;
    std::vector<std::unique_ptr<Cell>> m_lblMonth;
};

} // namespace tolva
