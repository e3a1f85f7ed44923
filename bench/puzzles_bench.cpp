// What a pupil waits on in the number puzzles: a right pair pressed on the search board (the
// check, the mark, a new target and the board drawn again), a clock tick, a fresh board, and a
// new perfection square laid out at the top level. All model-only work.
#include "BenchPlatform.h"
#include "core/App.h"
#include "puzzles/SearchFrame.h"
#include "shell/AllScreens.h"

#include <benchmark/benchmark.h>

namespace {

struct Harness
{
    nb::bench::BenchPlatform platform;
    nb::ScreenRegistry registry;
    nb::App app{platform, (nb::registerAllScreens(registry), registry)};
    nb::Screen *screen = nullptr;

    Harness(const char *name, int caller)
    {
        nb::PupilProgress &p = app.progress();
        p.SearchCaller = nb::Value::int16(std::int16_t(caller));
        p.SearchBest1 = p.SearchBest2 = p.SearchBest3 = p.SearchBest4 = p.PerfectionBest =
            nb::Value::int16(4);
        platform.yesNoReply = nb::kYes; // straight to the top level, and always another go
        screen = app.show(name);
    }
};

void press(nb::App &app, nb::Screen &s, int cell)
{
    double x = 0, y = 0;
    nb::SearchFrame::cellCentre(cell, x, y);
    app.mouseDown(s, "board", -1, x, y);
}

// Finding the answer is the benchmark's own work; the two presses are the screen's.
void RightPair(benchmark::State &state)
{
    Harness h("search", int(state.range(0)));
    h.app.click(*h.screen, "start");
    auto &f = dynamic_cast<nb::SearchFrame &>(*h.screen);
    for (auto _ : state) {
        const auto pairs = f.board().openPairs();
        for (const auto &[a, b] : pairs)
            if (f.board().makes(a, b) == f.target()) {
                press(h.app, *h.screen, a);
                press(h.app, *h.screen, b);
                break;
            }
        // At the tenth find the level is passed and a new round begins on a fresh board.
    }
}

void ClockTick(benchmark::State &state)
{
    Harness h("search", 1);
    h.app.click(*h.screen, "start");
    int ticks = 0;
    for (auto _ : state) {
        h.app.timerTick(*h.screen, "Timer1");
        if (++ticks == 100) { // never let the clock run out
            state.PauseTiming();
            h.app.click(*h.screen, "exit");
            h.screen = h.app.show("search");
            h.app.click(*h.screen, "start");
            ticks = 0;
            state.ResumeTiming();
        }
    }
}

void FreshBoard(benchmark::State &state)
{
    nb::SearchBoard board(nb::searchOpFor(int(state.range(0))));
    nb::UniformRandom rnd(1);
    const nb::SearchBoard::Draw draw = [&rnd] { return rnd.next(); };
    for (auto _ : state) {
        board.fill(nb::SearchBoard::kLevels, draw);
        benchmark::DoNotOptimize(board.pickTarget(draw));
    }
}

// START on perfection at the top level: 48 blanks drawn, 144 boxes placed, the square drawn.
void PerfectionStart(benchmark::State &state)
{
    Harness h("perfection", 1);
    for (auto _ : state) {
        h.app.click(*h.screen, "start");
        state.PauseTiming();
        h.app.click(*h.screen, "exit");
        h.screen = h.app.show("perfection");
        state.ResumeTiming();
    }
}

} // namespace

BENCHMARK(RightPair)->DenseRange(1, 4);
BENCHMARK(ClockTick);
BENCHMARK(FreshBoard)->DenseRange(1, 4);
BENCHMARK(PerfectionStart);
BENCHMARK_MAIN();
