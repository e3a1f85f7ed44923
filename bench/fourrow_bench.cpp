// The computer's turn in four in a row: a full evaluation of the board for both sides and the
// choice of a move, on positions from an empty board to a nearly full one.
#include "core/Random.h"
#include "games/FourRowComputer.h"

#include <benchmark/benchmark.h>

#include <vector>

namespace {

using namespace nb::fourrow;

// Positions from real games: a pupil claiming at random against the computer's choice, taken
// after `claims` cells while the game is still on.
std::vector<FourRowBoard> positions(int claims)
{
    nb::UniformRandom rnd(17);
    const Draw draw = [&rnd] { return rnd.next(); };
    std::vector<FourRowBoard> out;
    while (out.size() < 256) {
        FourRowBoard b;
        bool over = false;
        while (!over && b.claimed() < claims) {
            const bool pupil = b.claimed() % 2 == 0;
            Cell c;
            if (pupil)
                do
                    c = {kFirst + int(rnd.next() * kSide), kFirst + int(rnd.next() * kSide)};
                while (!b.isFree(c.row, c.col));
            else
                c = chooseMove(b, draw).cell;
            over = b.claim(c.row, c.col, pupil ? Owner::Red : Owner::Green);
        }
        if (!over)
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
