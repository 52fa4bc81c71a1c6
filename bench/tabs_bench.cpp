#include "bench/hover_repaint.h"
#include "controls/tabs/tolva_tabs.h"

namespace {

using namespace tolva;

// A new strip of state.range(0) x state.range(1) pixels with three tabs with access keys.
struct TabStrip {
    explicit TabStrip(const benchmark::State& state)
        : width(float(state.range(0) * 15))
    {
        surface.Resize(width, float(state.range(1) * 15));
        tabs.InitProperties();
        for (const char16_t* caption : { u"&General", u"&Accounts", u"&Reports" })
            tabs.AddItem(caption);
        tabs.SetSelectedItem(1);
    }

    float width;
    headless::WindowTree tree;
    headless::HeadlessSurface surface { tree };
    headless::TestSite site;
    TolvaTabs tabs { surface, site };
};

// A press on the row of tabs, alternately on tab 2 and tab 1: the hit test selects the tab, the
// whole strip is redrawn and copied to the window, and Change is raised.
void TabsPressRepaint(benchmark::State& state)
{
    TabStrip strip(state);
    bool second = true;
    for (auto _ : state) {
        strip.surface.MouseDown(1, 0, second ? 1800 : 100, 100);
        second = !second;
    }
    state.SetItemsProcessed(state.iterations());
    state.counters["pixels"] = double(state.range(0) * state.range(1));
}

// A move over the tabs: the strip has no hover look, so the move is only passed on.
void TabsHover(benchmark::State& state)
{
    TabStrip strip(state);
    float x = 0;
    for (auto _ : state) {
        strip.surface.MouseMove(0, 0, x, 100);
        x = x + 15 < strip.width ? x + 15 : 0;
    }
    state.SetItemsProcessed(state.iterations());
}

BENCHMARK(TabsPressRepaint)->Args({ 400, 100 })->Args({ 800, 400 })->Unit(benchmark::kMicrosecond);
BENCHMARK(TabsHover)->Args({ 400, 100 })->Unit(benchmark::kMicrosecond);
BENCHMARK(bench::OneBlit)->Name("OneBlit")->Args({ 400, 100 })->Args({ 800, 400 })->Unit(benchmark::kMicrosecond);

} // namespace
