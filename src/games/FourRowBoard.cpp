#include "games/FourRowBoard.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace nb::fourrow {

namespace {

// Int(Rnd x span + base): a whole number from base to base + span - 1.
int whole(double r, int span, int base)
{
    return int(std::floor(r * span + base));
}

// A board row or column drawn as Int(Rnd x 6 + 4).
int drawLine(const Draw &draw)
{
    return whole(draw(), kSide, kFirst);
}

// Six different numbers, each made by `make` from the draws it takes; a number equal to one
// already on the side is made again.
Numbers drawDistinct(const Draw &draw, const std::function<int(const Draw &)> &make)
{
    Numbers out{};
    for (std::size_t i = 0; i < out.size(); ++i) {
        int v = make(draw);
        while (std::find(out.begin(), out.begin() + std::ptrdiff_t(i), v) !=
               out.begin() + std::ptrdiff_t(i))
            v = make(draw);
        out[i] = v;
    }
    return out;
}

} // namespace

void FourRowBoard::setUp(const Numbers &left, const Numbers &right, const Draw &draw)
{
    left_ = left;
    right_ = right;
    for (int r = kFirst; r <= kLast; ++r)
        for (int c = kFirst; c <= kLast; ++c)
            setSum(r, c, this->left(r) + this->right(c));
    for (int k = 0; k < kSwaps; ++k) {
        const int r1 = drawLine(draw), c1 = drawLine(draw);
        const int r2 = drawLine(draw), c2 = drawLine(draw);
        const int held = sum(r1, c1);
        setSum(r1, c1, sum(r2, c2));
        setSum(r2, c2, held);
    }
    owner_ = {};
    redStatus_ = {};
    greenStatus_ = {};
    freeScore_ = {};
    claimed_ = 0;
}

bool FourRowBoard::claim(int row, int col, Owner who)
{
    if (!onBoard(row, col) || !isFree(row, col) || who == Owner::None)
        return false;
    owner_.cells[row][col] = who;
    setStatus(who, row, col, kClaimed);
    setStatus(opponentOf(who), row, col, kOpponents);
    ++claimed_;
    return fourThrough(row, col).has_value();
}

std::optional<std::array<Cell, 2>> FourRowBoard::fourThrough(int row, int col) const
{
    const Owner who = owner(row, col);
    if (who == Owner::None)
        return std::nullopt;
    std::optional<std::array<Cell, 2>> best;
    int bestLength = 3;
    for (const Step s : kDirections) {
        // At most three cells each way: four in a row needs no more, and the walk stays inside
        // the margin.
        int back = 0, ahead = 0;
        while (back < 3 && owner(row - (back + 1) * s.dr, col - (back + 1) * s.dc) == who)
            ++back;
        while (ahead < 3 && owner(row + (ahead + 1) * s.dr, col + (ahead + 1) * s.dc) == who)
            ++ahead;
        if (back + ahead + 1 > bestLength) {
            bestLength = back + ahead + 1;
            best = std::array<Cell, 2>{Cell{row - back * s.dr, col - back * s.dc},
                                       Cell{row + ahead * s.dr, col + ahead * s.dc}};
        }
    }
    return best;
}

std::array<Numbers, 2> computerGameNumbers(const Draw &draw, int level)
{
    // From level 10 on the band stays at 450 to 498, just below the band of level 9.
    const int base = level < 10 ? 50 * level + 1 : 450;
    const auto make = [base](const Draw &d) { return whole(d(), 49, base); };
    Numbers left = drawDistinct(draw, make);
    return {left, drawDistinct(draw, make)};
}

std::optional<std::array<Numbers, 2>> twoPlayerNumbers(const Draw &draw, int mode, int level)
{
    switch (mode) {
    case 0: {
        const auto make = [level](const Draw &d) { return whole(d(), 99, 100 * level + 1); };
        Numbers left = drawDistinct(draw, make);
        return std::array<Numbers, 2>{left, drawDistinct(draw, make)};
    }
    case 1: {
        Numbers left =
            drawDistinct(draw, [level](const Draw &d) { return whole(d(), 49, 100 * level + 50); });
        Numbers right =
            drawDistinct(draw, [level](const Draw &d) { return whole(d(), 49, 50 * level + 1); });
        return std::array<Numbers, 2>{left, right};
    }
    case 2: {
        // Adding without carrying: the level gives the hundreds, two draws of Int(Rnd x 4) give
        // tens and units of 1 to 4, so the digits of two such numbers never add past 8.
        const auto make = [level](const Draw &d) {
            const int tens = whole(d(), 4, 0) + 1;
            const int units = whole(d(), 4, 0) + 1;
            return 100 * level + 10 * tens + units;
        };
        Numbers left = drawDistinct(draw, make);
        return std::array<Numbers, 2>{left, drawDistinct(draw, make)};
    }
    default:
        return std::nullopt;
    }
}

} // namespace nb::fourrow
