// How long the drill screens take for the two things a pupil waits on: a new question (drawn and
// shown) and the check of a typed answer. Both are model-only work.
#include "BenchPlatform.h"
#include "core/App.h"
#include "core/Screen.h"
#include "shell/AllScreens.h"

#include <benchmark/benchmark.h>

#include <iterator>

namespace {

struct Drill
{
    const char *screen;
    const char *box;
};
const Drill kDrills[] = {
    {"add11", "Text5"},        {"sub11", "Text5"},      {"mul11", "Text5"},
    {"mentmul", "Text5"},      {"div11", "Text5"},      {"maketen", "text3"},
    {"makeany", "text3"},      {"maketensub", "text3"}, {"makeanysub", "text3"},
    {"maketentimes", "text3"}, {"maketendiv", "text3"},
};

// Opens a drill at its hardest level with every option on.
struct Harness
{
    nb::bench::BenchPlatform platform;
    nb::ScreenRegistry registry;
    nb::App app{platform, (nb::registerAllScreens(registry), registry)};
    nb::Screen *screen = nullptr;

    explicit Harness(const Drill &d)
    {
        nb::PupilProgress &p = app.progress();
        p.AddLevel = p.SubLevel = nb::Value::int16(4);
        p.DivLevel = nb::Value::int16(2);
        p.AddNegatives = p.AddDecimals = p.SubNegatives = p.SubDecimals = p.MulNegatives =
            p.DivNegatives = nb::Value::int16(1);
        screen = app.show(d.screen);
    }
};

// Start draws and shows a question (and zeroes the stopwatch and score).
void NewQuestion(benchmark::State &state)
{
    const Drill &d = kDrills[state.range(0)];
    Harness h(d);
    for (auto _ : state)
        h.app.click(*h.screen, "Command11");
    state.SetLabel(d.screen);
}

// Enter on an answer: the entry rules, reading the question from the labels and the check. The
// answer is wrong, so the question stays and the time gets its penalty.
void AnswerCheck(benchmark::State &state)
{
    const Drill &d = kDrills[state.range(0)];
    Harness h(d);
    h.app.click(*h.screen, "Command11");
    nb::Control &box = h.screen->ctl(d.box);
    for (auto _ : state) {
        box.caption = "-12345.6";
        benchmark::DoNotOptimize(h.app.keyPress(*h.screen, d.box, -1, 13));
    }
    state.SetLabel(d.screen);
}

BENCHMARK(NewQuestion)->DenseRange(0, std::size(kDrills) - 1);
BENCHMARK(AnswerCheck)->DenseRange(0, std::size(kDrills) - 1);

} // namespace

BENCHMARK_MAIN();
