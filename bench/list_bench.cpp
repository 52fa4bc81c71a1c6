#include "controls/list/tolva_list.h"
#include "platform/headless/headless_surface.h"
#include "platform/headless/test_site.h"
#include <benchmark/benchmark.h>
#include <memory>
#include <string>
#include <vector>

namespace {

using namespace tolva;

// The container of a running form that keeps no record of changes: a fill notifies millions.
class QuietSite final : public headless::TestSite {
public:
    void PropertyChanged(StringView) override { }
};

constexpr int32_t Columns = 4;

// Ten-character texts, made before the clock runs: a date, a payee, an amount, a balance.
const std::vector<String>& Texts()
{
    static const std::vector<String> texts = [] {
        std::vector<String> made;
        for (int i = 0; i < 1024; ++i) {
            const std::string n = std::to_string(1000 + i);
            for (const std::string& text : { "2024-01-" + n.substr(2), "Payee " + n, "  -" + n + ".50", " " + n + "00.25" })
                made.push_back(FromUtf8(text.substr(0, 10)));
        }
        return made;
    }();
    return texts;
}

// A list of width x height pixels with four columns, as a ledger is set up.
struct Ledger {
    Ledger(int32_t width, int32_t height)
    {
        list.InitProperties();
        surface.Resize(float(width * 15), float(height * 15));
        surface.Show();
        for (int32_t c = 1; c <= Columns; ++c)
            list.AddColumn(u"Column", c > 2 ? tkColumnAlignment::tkColumnRight : tkColumnAlignment::tkColumnLeft, 2400);
        list.SetGridStyle(tkGridStyles::tkBalance);
    }

    // Adds rows with AutoRefresh off, through the members a client calls.
    void Fill(int32_t rows)
    {
        const std::vector<String>& texts = Texts();
        list.SetAutoRefresh(false);
        for (int32_t r = 1; r <= rows; ++r) {
            list.AddRow();
            const size_t base = size_t(r % 1024) * Columns;
            for (int32_t c = 1; c <= Columns; ++c)
                list.SetRowText(r, c, texts[base + size_t(c - 1)]);
        }
    }

    headless::WindowTree tree;
    headless::HeadlessSurface surface { tree };
    QuietSite site;
    TolvaList list { surface, site };
};

// Fills a new list of state.range(0) rows x 4 columns. Reports the cells per second and the
// bytes each cell costs beyond its characters (the hidden column of RowData included).
void ListFill(benchmark::State& state)
{
    const auto rows = int32_t(state.range(0));
    double bytesPerCell = 0;
    for (auto _ : state) {
        state.PauseTiming();
        auto ledger = std::make_unique<Ledger>(600, 400);
        state.ResumeTiming();
        ledger->Fill(rows);
        state.PauseTiming();
        const double characters = double(rows) * Columns * 10 * sizeof(char16_t);
        bytesPerCell = (double(ledger->list.CellMemoryBytes()) - characters) / (double(rows) * Columns);
        ledger.reset();
        state.ResumeTiming();
    }
    state.counters["cells/s"]
        = benchmark::Counter(double(rows) * Columns * double(state.iterations()), benchmark::Counter::kIsRate);
    state.counters["bytes/cell"] = bytesPerCell;
}
BENCHMARK(ListFill)->Arg(1'000'000)->Iterations(3)->Unit(benchmark::kMillisecond);

// AddRow before row 1 of a list of a million rows: every column takes a new first cell.
void ListInsertAtTop(benchmark::State& state)
{
    Ledger ledger(600, 400);
    ledger.Fill(1'000'000);
    for (auto _ : state)
        ledger.list.AddRow(1);
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(ListInsertAtTop)->Unit(benchmark::kMicrosecond);

// One full repaint of a 1200 x 800 pixel list showing rows from the middle of state.range(0).
void ListRepaint(benchmark::State& state)
{
    Ledger ledger(1200, 800);
    const auto rows = int32_t(state.range(0));
    ledger.Fill(rows);
    ledger.list.SetAutoRefresh(true);
    ledger.list.SetListIndex(rows / 2);
    for (auto _ : state)
        ledger.surface.Paint();
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(ListRepaint)->Arg(100)->Arg(1'000'000)->Unit(benchmark::kMicrosecond);

// The floor of a repaint: one copy of a finished 1200 x 800 image to the window.
void ListRepaintFloor(benchmark::State& state)
{
    headless::WindowTree tree;
    headless::HeadlessSurface surface { tree };
    surface.Resize(1200 * 15, 800 * 15);
    const std::unique_ptr<Canvas> image = surface.CreateCanvas(1200, 800);
    for (auto _ : state)
        surface.Present(*image, 0, 0, 1200, 800);
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(ListRepaintFloor)->Unit(benchmark::kMicrosecond);

} // namespace
