#include "controls/command/tolva_command.h"
#include "platform/headless/headless_surface.h"
#include "platform/headless/test_site.h"
#include <benchmark/benchmark.h>

namespace {

using namespace tolva;

// One hover repaint: a mouse move over the button runs the hover test and paints the whole
// button off screen, then copies it to the window. Arguments: the button's size in pixels.
void CommandHoverRepaint(benchmark::State& state)
{
    const auto width = float(state.range(0) * 15), height = float(state.range(1) * 15);
    headless::WindowTree tree;
    headless::HeadlessSurface surface { tree };
    headless::TestSite site;
    site.extenderName = u"TolvaCommand1";
    surface.Resize(width, height);
    TolvaCommand button { surface, site };
    button.InitProperties();
    button.SetCaption(u"&Open file");
    surface.Paint();

    float x = 0;
    for (auto _ : state) {
        surface.MouseMove(0, 0, x, height / 2);
        x = x + 15 < width ? x + 15 : 0;
    }
    state.SetItemsProcessed(state.iterations());
    state.counters["pixels"] = double(state.range(0) * state.range(1));
}

BENCHMARK(CommandHoverRepaint)->Args({ 120, 30 })->Args({ 600, 200 })->Unit(benchmark::kMicrosecond);

} // namespace
