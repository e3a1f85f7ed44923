// Classifying where a dart landed (ring, then sector) on each board, and the computer choosing its
// aim: both run once per dart and should cost well under a microsecond.
#include "games/DartBoard.h"
#include "games/DartsCheckout.h"

#include <benchmark/benchmark.h>

#include <cmath>

#include <vector>

namespace {

using namespace nb::darts;

// Landing points spread over the board and a little beyond, in every ring and sector.
std::vector<nb::PointTw> landingPoints()
{
    std::vector<nb::PointTw> pts;
    for (int i = 0; i < 4096; ++i) {
        const double a = i * 2.399963, r = 2700.0 * (i % 97) / 96;
        pts.push_back({kCentreX + r * std::cos(a), kCentreY + r * std::sin(a)});
    }
    return pts;
}

void BM_Classify(benchmark::State &state)
{
    const auto kind = BoardKind(state.range(0));
    const std::vector<nb::PointTw> pts = landingPoints();
    std::size_t i = 0;
    int previous = 0;
    for (auto _ : state) {
        const nb::PointTw &p = pts[i++ & 4095];
        const Hit h = classify(kind, p.x, p.y, previous);
        previous = h.number;
        benchmark::DoNotOptimize(h);
    }
}
BENCHMARK(BM_Classify)
    ->Arg(int(BoardKind::Standard))
    ->Arg(int(BoardKind::Doubles))
    ->Arg(int(BoardKind::Quads));

void BM_ComputerAim(benchmark::State &state)
{
    int r = 2;
    for (auto _ : state) {
        benchmark::DoNotOptimize(computerAim(r));
        r = r == 301 ? 2 : r + 1;
    }
}
BENCHMARK(BM_ComputerAim);

} // namespace

BENCHMARK_MAIN();
