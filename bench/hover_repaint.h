#pragma once
#include "core/string.h"
#include "platform/headless/headless_surface.h"
#include "platform/headless/test_site.h"
#include <benchmark/benchmark.h>

namespace tolva::bench {

// One hover repaint per iteration: a mouse move over the control runs its hover test and paints
// the whole control off screen, then copies it to the window. The control is a new instance of
// state.range(0) x state.range(1) pixels named extenderName by its container; pose sets it up
// after InitProperties.
template <class Control, class Pose>
void HoverRepaint(benchmark::State& state, StringView extenderName, const Pose& pose)
{
    const auto width = float(state.range(0) * 15), height = float(state.range(1) * 15);
    headless::WindowTree tree;
    headless::HeadlessSurface surface { tree };
    headless::TestSite site;
    site.extenderName = extenderName;
    surface.Resize(width, height);
    Control control { surface, site };
    control.InitProperties();
    pose(control);
    surface.Paint();

    float x = 0;
    for (auto _ : state) {
        surface.MouseMove(0, 0, x, height / 2);
        x = x + 15 < width ? x + 15 : 0;
    }
    state.SetItemsProcessed(state.iterations());
    state.counters["pixels"] = double(state.range(0) * state.range(1));
}

// The floor of any repaint: one copy of a finished image of state.range(0) x state.range(1)
// pixels to the window, as a control's paint ends.
inline void OneBlit(benchmark::State& state)
{
    const auto width = int32_t(state.range(0)), height = int32_t(state.range(1));
    headless::WindowTree tree;
    headless::HeadlessSurface surface { tree };
    surface.Resize(float(width * 15), float(height * 15));
    const std::unique_ptr<Canvas> image = surface.CreateCanvas(width, height);
    image->FillRect(0, 0, width, height, 0xCEDBDE);
    for (auto _ : state)
        surface.Present(*image, 0, 0, width, height);
    state.SetItemsProcessed(state.iterations());
    state.counters["pixels"] = double(width) * height;
}

} // namespace tolva::bench
