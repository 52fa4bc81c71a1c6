#include "controls/label/tolva_label.h"
#include "platform/headless/headless_surface.h"
#include "platform/headless/test_site.h"
#include <benchmark/benchmark.h>

namespace {

using namespace tolva;

// One hover repaint of a link-style label: a mouse move runs the hover test and paints the
// whole label off screen (fill, spaced caption, pointer glyph), then copies it to the window.
// Arguments: the label's size in pixels, and 1 for letter spacing.
void LabelHoverRepaint(benchmark::State& state)
{
    const auto width = float(state.range(0) * 15), height = float(state.range(1) * 15);
    headless::WindowTree tree;
    headless::HeadlessSurface surface { tree };
    headless::TestSite site;
    site.extenderName = u"lblNext";
    surface.Resize(width, height);
    TolvaLabel label { surface, site };
    label.InitProperties();
    label.SetCaption(u"&Next page");
    label.SetArrowIcon(tkArrowIcon::tkPointerRight);
    label.SetArrowPosition(tkArrowPosition::tkRight);
    label.SetKerning(state.range(2) != 0);
    surface.Paint();

    float x = 0;
    for (auto _ : state) {
        surface.MouseMove(0, 0, x, height / 2);
        x = x + 15 < width ? x + 15 : 0;
    }
    state.SetItemsProcessed(state.iterations());
    state.counters["pixels"] = double(state.range(0) * state.range(1));
}

BENCHMARK(LabelHoverRepaint)->Args({ 120, 20, 0 })->Args({ 120, 20, 1 })->Args({ 400, 30, 1 })->Unit(benchmark::kMicrosecond);

} // namespace
