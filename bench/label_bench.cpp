#include "bench/hover_repaint.h"
#include "controls/label/tolva_label.h"

namespace {

using namespace tolva;

// A link-style label: fill, spaced caption and pointer glyph on every repaint. Arguments: the
// label's size in pixels, and 1 for letter spacing.
void LabelHoverRepaint(benchmark::State& state)
{
    bench::HoverRepaint<TolvaLabel>(state, u"lblNext", [&state](TolvaLabel& label) {
        label.SetCaption(u"&Next page");
        label.SetArrowIcon(tkArrowIcon::tkPointerRight);
        label.SetArrowPosition(tkArrowPosition::tkRight);
        label.SetKerning(state.range(2) != 0);
    });
}

BENCHMARK(LabelHoverRepaint)
    ->Args({ 120, 20, 0 })
    ->Args({ 120, 20, 1 })
    ->Args({ 400, 30, 1 })
    ->Unit(benchmark::kMicrosecond);

} // namespace
