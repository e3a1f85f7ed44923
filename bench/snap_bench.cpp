// Model-only cost of snap: one tick of the dealing clock (the next card and both faces drawn
// afresh, with a reshuffle every 48 ticks), and a new deck for a game (four values drawn, 48
// captions written, a shuffle).
#include "BenchPlatform.h"
#include "core/App.h"
#include "core/Screen.h"
#include "games/SnapDeck.h"
#include "shell/AllScreens.h"

#include <benchmark/benchmark.h>

namespace {

void BM_SnapDealTick(benchmark::State &state)
{
    nb::bench::BenchPlatform platform;
    nb::ScreenRegistry registry;
    nb::registerAllScreens(registry);
    nb::App app(platform, registry);
    app.progress().SnapOption = nb::Value::int16(std::int16_t(state.range(0)));
    nb::Screen &s = *app.show("twoplayersnap");
    app.click(s, "start");
    for (const char *box : {"player1", "player2"}) {
        s.ctl(box).caption = "Pupil";
        app.keyPress(s, box, -1, 13);
    }
    for (auto _ : state) {
        app.timerTick(s, "Timer1");
        benchmark::DoNotOptimize(s.ctl("cardface", 1).drawing.revision);
    }
}
BENCHMARK(BM_SnapDealTick)->Arg(1)->Arg(3);

void BM_SnapNewDeck(benchmark::State &state)
{
    nb::UniformRandom r(1);
    const nb::snap::Draw draw = [&r] { return r.next(); };
    nb::snap::Deck deck;
    for (auto _ : state) {
        deck.make(int(state.range(0)), draw);
        deck.shuffle(draw);
        benchmark::DoNotOptimize(deck.cardAt(0));
    }
}
BENCHMARK(BM_SnapNewDeck)->Arg(1)->Arg(3);

} // namespace

BENCHMARK_MAIN();
