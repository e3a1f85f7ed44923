// Model-only cost of menu events: a check box click, and a full hand-over from a topic menu to the
// main menu and back (create, open, close, destroy).
#include "BenchPlatform.h"
#include "core/App.h"
#include "core/Screen.h"
#include "shell/AllScreens.h"

#include <benchmark/benchmark.h>

namespace {

struct Program
{
    nb::bench::BenchPlatform platform;
    nb::ScreenRegistry registry;
    nb::App app{platform, (nb::registerAllScreens(registry), registry)};
};

void BM_CheckBoxClick(benchmark::State &state)
{
    Program p;
    nb::Screen *menu = p.app.show("addmenu");
    for (auto _ : state) {
        p.app.click(*menu, "equationneg");
        benchmark::ClobberMemory();
    }
}
BENCHMARK(BM_CheckBoxClick);

void BM_HandOverMenuAndBack(benchmark::State &state)
{
    Program p;
    p.app.show("mainmenu");
    for (auto _ : state) {
        p.app.click(*p.app.front(), "Command5"); // main menu -> addition menu
        p.app.click(*p.app.front(), "Command7"); // EXIT -> main menu
    }
    state.SetItemsProcessed(state.iterations() * 2);
}
BENCHMARK(BM_HandOverMenuAndBack);

} // namespace

BENCHMARK_MAIN();
