#include "bench/hover_repaint.h"
#include "controls/command/tolva_command.h"

namespace {

using namespace tolva;

// A button with an access key in its caption. Arguments: its size in pixels.
void CommandHoverRepaint(benchmark::State& state)
{
    bench::HoverRepaint<TolvaCommand>(
        state, u"TolvaCommand1", [](TolvaCommand& button) { button.SetCaption(u"&Open file"); });
}

BENCHMARK(CommandHoverRepaint)->Args({ 120, 30 })->Args({ 600, 200 })->Unit(benchmark::kMicrosecond);

} // namespace
