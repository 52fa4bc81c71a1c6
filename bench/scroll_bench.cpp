#include "controls/scroll/tolva_scroll.h"
#include "platform/headless/headless_surface.h"
#include "platform/headless/test_site.h"
#include <benchmark/benchmark.h>

namespace {

using namespace tolva;

class ChangeCounter final : public TolvaScrollEvents {
public:
    void Change() override { ++changes; }
    int64_t changes = 0;
};

// One auto-repeat step while the down arrow is held: the clock moves 30 ms, the repeat timer
// ticks, Value steps by SmallChange through its checks, Change is raised, the slider is placed
// again and the bar repaints. Arguments: the bar's height in pixels (17 pixels wide).
void ScrollRepeatStep(benchmark::State& state)
{
    headless::WindowTree tree;
    headless::HeadlessSurface surface { tree };
    headless::TestSite site;
    TolvaScroll scroll { surface, site };
    ChangeCounter counter;
    scroll.SetEventListener(&counter);
    scroll.InitProperties();
    scroll.SetMax(2'000'000'000); // room for every iteration: the arrow never reaches the bound
    surface.Resize(255, float(state.range(0) * 15));
    surface.Show();
    headless::HeadlessSurface& down = *surface.Children().at(1);
    down.MouseDown(1, 0, 120, 120);
    tree.Clock().Advance(500); // the first repeat; every later one comes 30 ms after the last
    counter.changes = 0;

    for (auto _ : state)
        tree.Clock().Advance(30);
    down.MouseUp(1, 0, 120, 120);
    if (counter.changes != int64_t(state.iterations()))
        state.SkipWithError("not one Change per step");
    state.SetItemsProcessed(state.iterations());
}

BENCHMARK(ScrollRepeatStep)->Arg(200)->Arg(800)->Unit(benchmark::kMicrosecond);

} // namespace
