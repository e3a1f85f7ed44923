// How long the grid and lattice screens take for the two things a pupil waits on: a new question
// (drawn, its boxes planned, the first box opened and, on a lattice, the shading redrawn) and the
// check of a typed entry. Both are model-only work.
#include "BenchPlatform.h"
#include "core/App.h"
#include "core/NumberText.h"
#include "layouts/LayoutFrame.h"
#include "shell/AllScreens.h"

#include <benchmark/benchmark.h>

#include <iterator>

namespace {

const char *const kScreens[] = {"grid21",    "grid22",    "grid31",    "grid32",
                                "italian21", "italian22", "italian31", "italian32"};

struct Harness
{
    nb::bench::BenchPlatform platform;
    nb::ScreenRegistry registry;
    nb::App app{platform, (nb::registerAllScreens(registry), registry)};
    nb::LayoutFrame *screen = nullptr;

    explicit Harness(const char *name)
    {
        platform.yesNoReply = nb::kYes;
        screen = dynamic_cast<nb::LayoutFrame *>(app.show(name));
        start();
    }
    // START again (its button is disabled while a run is on): a new run and a new question.
    void start()
    {
        screen->ctl("Command1").enabled = true;
        app.click(*screen, "Command1");
    }
    // The waiting box with `value` typed in, then Enter.
    void enter(int value)
    {
        const nb::LayoutStep *step = screen->waiting();
        screen->ctl(step->box, step->index).caption = nb::numberText(value);
        app.keyPress(*screen, step->box, step->index, 13);
    }
};

void NewQuestion(benchmark::State &state)
{
    Harness h(kScreens[state.range(0)]);
    for (auto _ : state)
        h.start();
    state.SetLabel(kScreens[state.range(0)]);
}

// A right entry, walking through whole questions (a new question is started untimed).
void RightEntry(benchmark::State &state)
{
    Harness h(kScreens[state.range(0)]);
    for (auto _ : state) {
        if (!h.screen->waiting()) {
            state.PauseTiming();
            h.start();
            state.ResumeTiming();
        }
        h.enter(h.screen->waiting()->expected);
    }
    state.SetLabel(kScreens[state.range(0)]);
}

// A wrong entry: the box is emptied and two seconds are added.
void WrongEntry(benchmark::State &state)
{
    Harness h(kScreens[state.range(0)]);
    for (auto _ : state)
        h.enter(h.screen->waiting()->expected + 1);
    state.SetLabel(kScreens[state.range(0)]);
}

BENCHMARK(NewQuestion)->DenseRange(0, std::size(kScreens) - 1);
BENCHMARK(RightEntry)->DenseRange(0, std::size(kScreens) - 1);
BENCHMARK(WrongEntry)->DenseRange(0, std::size(kScreens) - 1);

} // namespace

BENCHMARK_MAIN();
