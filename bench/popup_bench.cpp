#include "bench/hover_repaint.h"
#include "controls/input/popups/frm_calculator.h"
#include "controls/input/popups/frm_calendar.h"
#include "controls/input/popups/frm_combo.h"
#include "controls/input/popups/popup_forms.h"
#include "core/input_popups.h"
#include "platform/headless/headless_popup_windows.h"

namespace {

using namespace tolva;

// The thread's pop-up forms on headless pop-up windows, without an owner.
struct Popups {
    Popups() { site.popups = &popups; }
    headless::WindowTree tree;
    headless::TestSite site;
    headless::HeadlessPopupWindows windows { tree };
    PopupForms forms { windows, site };
    InputPopups popups { forms };
};

// One repaint of the list pop-up, 200 x 134 pixels with 25 items and its scroll bar: the bar's
// range set, every visible row drawn, the frame, one copy to the window.
void ListPopupRepaint(benchmark::State& state)
{
    Popups thread;
    ListBox items;
    for (int32_t i = 0; i < 25; ++i)
        items.AddItem(u"Item number " + Variant(i).ToString());
    auto& list = static_cast<frmCombo&>(*thread.popups.Load(PopupKind::List));
    list.Resize(3000, 2010);
    list.SetList(&items);
    list.SetTopIndex(5);
    list.SetScrollBarVisible(true);
    list.SetSelectedItem(7);
    list.Setup();
    list.Show();
    auto& window = static_cast<headless::HeadlessSurface&>(list.Window());
    for (auto _ : state)
        window.Paint();
    state.SetItemsProcessed(state.iterations());
}

// One month step of the calendar, 174 x 144 pixels: the caption and the 42 day labels set and
// repainted, each label on its own window.
void CalendarMonthStep(benchmark::State& state)
{
    Popups thread;
    auto& calendar = static_cast<frmCalendar&>(*thread.popups.Load(PopupKind::Calendar));
    calendar.SetDate(OleDate::FromYmd(2001, 3, 15));
    calendar.SetCurrentDate(calendar.Date());
    calendar.Setup();
    calendar.Show();
    auto& next = static_cast<headless::HeadlessSurface&>(calendar.NextWindow());
    for (auto _ : state)
        next.MouseDown(1, 0, 15, 15);
    state.SetItemsProcessed(state.iterations());
}

// One key of the calculator, 137 x 130 pixels, typed and played: its image drawn pressed at
// once and released at the next tick of the animation.
void CalculatorKeyPress(benchmark::State& state)
{
    Popups thread;
    auto& calculator = static_cast<frmCalculator&>(*thread.popups.Load(PopupKind::Calculator));
    calculator.Setup();
    calculator.Show();
    auto& window = static_cast<headless::HeadlessSurface&>(calculator.Window());
    for (auto _ : state) {
        window.KeyPress(u'5'); // pressed look at once, released look at the next tick
        thread.tree.Clock().Advance(frmCalculator::AnimationInterval);
    }
    state.SetItemsProcessed(state.iterations());
}

BENCHMARK(ListPopupRepaint)->Unit(benchmark::kMicrosecond);
BENCHMARK(bench::OneBlit)->Name("OneBlit")->Args({ 200, 134 })->Args({ 174, 144 })->Unit(benchmark::kMicrosecond);
BENCHMARK(CalendarMonthStep)->Unit(benchmark::kMicrosecond);
BENCHMARK(CalculatorKeyPress)->Unit(benchmark::kMicrosecond);

} // namespace
