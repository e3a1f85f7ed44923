#include "games/FourRowComputer.h"

#include <algorithm>
#include <cmath>

namespace nb::fourrow {

namespace {

constexpr int kRandomRounds = 36;

// Cells running away from (row, col) by `s`, up to three, that `against` does not hold. The count
// stops at the first cell of the opponent's colour.
int room(const FourRowBoard &b, int row, int col, Step s, Owner against)
{
    int n = 0;
    while (n < 3 && b.owner(row + (n + 1) * s.dr, col + (n + 1) * s.dc) != against)
        ++n;
    return n;
}

// `side`'s pieces standing next to (row, col) in one direction, without a gap.
int own(const FourRowBoard &b, int row, int col, Step s, Owner side)
{
    int n = 0;
    while (n < 3 && b.owner(row + (n + 1) * s.dr, col + (n + 1) * s.dc) == side)
        ++n;
    return n;
}

bool lineOpen(const FourRowBoard &b, int row, int col, Step s, Owner side)
{
    const Owner opp = opponentOf(side);
    return room(b, row, col, s, opp) + room(b, row, col, {-s.dr, -s.dc}, opp) > 2;
}

int score(const FourRowBoard &b, int row, int col, Owner side)
{
    int best = 0;
    for (const Step s : kDirections) {
        // The pieces are counted first: a direction that cannot raise the score needs no room
        // count, and most directions of most cells have no piece beside them.
        const int n =
            std::min(own(b, row, col, s, side) + own(b, row, col, {-s.dr, -s.dc}, side), kComplete);
        if (n > best && lineOpen(b, row, col, s, side))
            best = n;
    }
    return best;
}

// The first free cell in scan order whose score for `side` is `wanted`; with `tieBreak`, the
// first of those with the most open directions for the computer (written to its free score).
Cell pick(FourRowBoard &b, Owner side, int wanted, bool tieBreak)
{
    Cell chosen;
    int bestOpen = -1;
    for (int r = kFirst; r <= kLast; ++r)
        for (int c = kFirst; c <= kLast; ++c) {
            if (!b.isFree(r, c) || b.status(side, r, c) != wanted)
                continue;
            if (!tieBreak)
                return {r, c};
            const int open = openDirections(b, r, c, Owner::Green);
            b.setFreeScore(r, c, open);
            if (open > bestOpen) {
                bestOpen = open;
                chosen = {r, c};
            }
        }
    return chosen;
}

} // namespace

int openDirections(const FourRowBoard &board, int row, int col, Owner side)
{
    int n = 0;
    for (const Step s : kDirections)
        n += lineOpen(board, row, col, s, side) ? 1 : 0;
    return n;
}

Evaluation evaluate(FourRowBoard &board)
{
    Evaluation e;
    for (int r = kFirst; r <= kLast; ++r)
        for (int c = kFirst; c <= kLast; ++c) {
            if (!board.isFree(r, c))
                continue;
            const int red = score(board, r, c, Owner::Red);
            const int green = score(board, r, c, Owner::Green);
            board.setStatus(Owner::Red, r, c, red);
            board.setStatus(Owner::Green, r, c, green);
            board.setFreeScore(r, c, 0);
            e.redBest = std::max(e.redBest, red);
            e.greenBest = std::max(e.greenBest, green);
        }
    return e;
}

Move chooseMove(FourRowBoard &board, const Draw &draw)
{
    const Evaluation e = evaluate(board);
    if (e.greenBest == kComplete)
        return {pick(board, Owner::Green, kComplete, false), 1};
    // Rules 2 to 6: block a win, then build on twos and ones, the computer's before the pupil's.
    struct Rule
    {
        Owner side;
        int wanted;
        int best;
    };
    const Rule rules[] = {{Owner::Red, 3, e.redBest},
                          {Owner::Green, 2, e.greenBest},
                          {Owner::Red, 2, e.redBest},
                          {Owner::Green, 1, e.greenBest},
                          {Owner::Red, 1, e.redBest}};
    for (std::size_t k = 0; k < std::size(rules); ++k)
        if (rules[k].best == rules[k].wanted)
            return {pick(board, rules[k].side, rules[k].wanted, true), int(k) + 2};

    for (int round = 0; round < kRandomRounds; ++round) {
        const int r = int(std::floor(draw() * kSide + kFirst));
        const int c = int(std::floor(draw() * kSide + kFirst));
        if (onBoard(r, c) && board.isFree(r, c))
            return {{r, c}, 7};
    }
    for (int r = kFirst; r <= kLast; ++r)
        for (int c = kFirst; c <= kLast; ++c)
            if (board.isFree(r, c))
                return {{r, c}, 8};
    return {};
}

} // namespace nb::fourrow
