// The computer's turn in four in a row: a full evaluation of the board for both sides and the
// choice of a move, on positions from an empty board to a nearly full one.
#include "core/Random.h"
#include "games/FourRowComputer.h"

#include <benchmark/benchmark.h>

#include <vector>

namespace {

using namespace nb::fourrow;

// Positions with `claims` cells taken in turn at random, none holding four.
std::vector<FourRowBoard> positions(int claims)
{
    nb::UniformRandom rnd(17);
    std::vector<FourRowBoard> out;
    while (out.size() < 256) {
        FourRowBoard b;
        bool four = false;
        for (int k = 0; k < claims && !four; ++k) {
            int r, c;
            do {
                r = kFirst + int(rnd.next() * kSide);
                c = kFirst + int(rnd.next() * kSide);
            } while (!b.isFree(r, c));
            four = b.claim(r, c, k % 2 ? Owner::Green : Owner::Red);
        }
        if (!four)
            out.push_back(b);
    }
    return out;
}

void EvaluateAndChoose(benchmark::State &state)
{
    std::vector<FourRowBoard> boards = positions(int(state.range(0)));
    nb::UniformRandom rnd(5);
    const Draw draw = [&rnd] { return rnd.next(); };
    std::size_t i = 0;
    for (auto _ : state) {
        const Move m = chooseMove(boards[i++ % boards.size()], draw);
        benchmark::DoNotOptimize(m);
    }
}
BENCHMARK(EvaluateAndChoose)->Arg(0)->Arg(8)->Arg(16)->Arg(24)->Arg(32);

} // namespace

BENCHMARK_MAIN();
