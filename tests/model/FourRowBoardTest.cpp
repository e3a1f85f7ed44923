// The four-in-a-row board and the computer's play without a screen.
#include "FourRowTestSupport.h"
#include "core/Random.h"
#include "games/FourRowComputer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <deque>
#include <set>
#include <vector>

namespace nb::test {
namespace {

using namespace fourrow;

// The draws given, then a fixed-seed generator.
struct Draws
{
    std::deque<double> queued;
    UniformRandom after{3};
    Draw draw()
    {
        return [this] {
            if (queued.empty())
                return after.next();
            const double d = queued.front();
            queued.pop_front();
            return d;
        };
    }
};

FourRowBoard boardOf(std::string_view rows)
{
    FourRowBoard b;
    lay(b, rows);
    return b;
}

TEST(FourRowNumbers, EachSideIsSixDifferentNumbersInItsBand)
{
    // Mode -1 is the game against the computer; then the level, and the lowest and highest
    // numbers on the left and on the right.
    const int cases[][6] = {{-1, 1, 51, 99, 51, 99},      {-1, 9, 451, 499, 451, 499},
                            {-1, 10, 450, 498, 450, 498}, {0, 3, 301, 399, 301, 399},
                            {1, 1, 150, 198, 51, 99},     {2, 1, 111, 144, 111, 144}};
    UniformRandom rnd(7);
    const Draw draw = [&rnd] { return rnd.next(); };
    for (const auto &c : cases) {
        std::array<int, 4> range{1000, 0, 1000, 0};
        for (int run = 0; run < 1500; ++run) {
            const auto n =
                c[0] < 0 ? computerGameNumbers(draw, c[1]) : *twoPlayerNumbers(draw, c[0], c[1]);
            for (std::size_t side = 0; side < 2; ++side) {
                const std::set<int> seen(n[side].begin(), n[side].end());
                ASSERT_EQ(seen.size(), 6u);
                range[2 * side] = std::min(range[2 * side], *seen.begin());
                range[2 * side + 1] = std::max(range[2 * side + 1], *seen.rbegin());
                for (const int v : seen) // mode 2 adds without carrying: digits 1 to 4
                    ASSERT_TRUE(c[0] != 2 || (v % 10 >= 1 && v % 10 <= 4 && v / 10 % 10 <= 4)) << v;
            }
        }
        EXPECT_EQ(range, (std::array<int, 4>{c[2], c[3], c[4], c[5]})) << c[0] << " " << c[1];
    }
    EXPECT_FALSE(twoPlayerNumbers(draw, 3, 1));
}

TEST(FourRowBoard, SixtySwapsExchangeCellsThroughTheTable)
{
    // First exchange: (4,4) with (9,8); the other 59 exchange (5,5) with itself.
    Draws draws{{0.0, 0.0, 0.99, 0.8}};
    for (int k = 1; k < kSwaps; ++k)
        draws.queued.insert(draws.queued.end(), {0.2, 0.2, 0.2, 0.2});
    FourRowBoard b;
    b.setUp({1, 2, 3, 4, 5, 6}, {10, 20, 30, 40, 50, 60}, draws.draw());
    EXPECT_TRUE(draws.queued.empty());
    for (int r = kFirst; r <= kLast; ++r)
        for (int c = kFirst; c <= kLast; ++c)
            EXPECT_EQ(b.sum(r, c), r == 4 && c == 4   ? 56
                                   : r == 9 && c == 8 ? 11
                                                      : b.left(r) + b.right(c));
}

TEST(FourRowBoard, FourInARowInEveryDirectionUpToTheEdges)
{
    const struct Case
    {
        std::string_view rows;
        Cell last; // claimed by red after the rows; no ends expected when it makes no four
        std::optional<std::array<Cell, 2>> ends;
    } cases[] = {
        {"..RRR.", {4, 9}, {{{{4, 6}, {4, 9}}}}},
        {"R...../R...../R.....", {7, 4}, {{{{4, 4}, {7, 4}}}}},
        {"....../....../.....R/.....R/.....R", {9, 9}, {{{{6, 9}, {9, 9}}}}},
        {"....../....../R...../.R..../..R...", {9, 7}, {{{{6, 4}, {9, 7}}}}},
        {".....R/....R./...R..", {7, 6}, {{{{4, 9}, {7, 6}}}}},
        {"RR.R..", {4, 6}, {{{{4, 4}, {4, 7}}}}}, // a gap filled
        {"RR.RR.", {4, 6}, {{{{4, 4}, {4, 8}}}}}, // five in a row
        {"....../....../....../.....R/.....R", {9, 9}, std::nullopt},
        {"RRG...", {4, 7}, std::nullopt},
        {"....../....../....../....../....../GRR...", {9, 7}, std::nullopt},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.rows);
        FourRowBoard b = boardOf(c.rows);
        EXPECT_EQ(b.claim(c.last.row, c.last.col, Owner::Red), c.ends.has_value());
        EXPECT_EQ(b.fourThrough(c.last.row, c.last.col), c.ends);
    }
    // A held cell is not claimed again; nothing is claimed off the board.
    FourRowBoard b = boardOf("G");
    EXPECT_FALSE(b.claim(4, 4, Owner::Red) || b.claim(3, 4, Owner::Red) ||
                 b.claim(4, 10, Owner::Red));
    EXPECT_EQ(b.claimed(), 1);
    EXPECT_EQ(b.status(Owner::Green, 4, 4), kClaimed);
    EXPECT_EQ(b.status(Owner::Red, 4, 4), kOpponents);
}

TEST(FourRowComputer, ScoresCountRoomAndOwnPiecesOnBothSides)
{
    const struct Case
    {
        std::string_view rows;
        Cell cell;
        int red, green;
    } cases[] = {
        {"RR.R..", {4, 6}, 3, 0},                      // both sides of the cell count
        {"GRR.G.", {4, 7}, 0, 1},                      // closed both sides: no room for four
        {".RR...", {4, 4}, 2, 0},                      // the margin counts as room
        {"....../....../..G.../...G..", {8, 8}, 0, 2}, // diagonal
        {"....../....../..G.../...G..", {9, 9}, 0, 0}, // not touching
    };
    for (const Case &c : cases) {
        FourRowBoard b = boardOf(c.rows);
        evaluate(b);
        EXPECT_EQ(b.status(Owner::Red, c.cell.row, c.cell.col), c.red) << c.rows;
        EXPECT_EQ(b.status(Owner::Green, c.cell.row, c.cell.col), c.green) << c.rows;
    }
}

TEST(FourRowComputer, RulesApplyInStrictOrder)
{
    const struct Case
    {
        std::string_view rows;
        int rule;
        Cell cell;
    } cases[] = {
        {"GGG.../....../RRR...", 1, {4, 7}},                      // its own four before a block
        {"G...../....../RRR.../....../....../...G..", 2, {6, 7}}, // block the pupil's four
        {"GG..../....../....../RR....", 3, {4, 6}},               // its own two before the pupil's
        {".....G/....../....../RR....", 4, {7, 6}},               // the pupil's two
        {"RRGGRR/RRGGRR/GGRRGG/RRGGRR/GGRRGG/GGRRG.", 3, {9, 9}}, // the last free cell
        // Ties go to the first cell with the most open directions: (5,5) and (5,6) are closed
        // across by red, (6,5) is open every way.
        {"....../R..R../..G...", 5, {6, 5}},
        {"", 7, {4, 9}}, // random: row draw 0, column 0.99
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.rows);
        FourRowBoard b = boardOf(c.rows);
        Draws draws{{0.0, 0.99}};
        const Move m = chooseMove(b, draws.draw());
        EXPECT_EQ(m.rule, c.rule);
        EXPECT_EQ(m.cell, c.cell);
    }
}

// A position reached by alternate random claims, none holding four yet.
FourRowBoard randomPosition(UniformRandom &rnd)
{
    for (;;) {
        FourRowBoard b;
        const int claims = int(rnd.next() * 34);
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
            return b;
    }
}

std::vector<Cell> winsInOne(const FourRowBoard &b, Owner who)
{
    std::vector<Cell> cells;
    for (int r = kFirst; r <= kLast; ++r)
        for (int c = kFirst; c <= kLast; ++c)
            if (FourRowBoard trial = b; trial.isFree(r, c) && trial.claim(r, c, who))
                cells.push_back({r, c});
    return cells;
}

TEST(FourRowComputer, NeverMissesAWinAndAlwaysBlocksAWinInOne)
{
    UniformRandom rnd(20261122);
    int wins = 0, blocks = 0;
    for (int k = 0; k < 4000; ++k) {
        FourRowBoard b = randomPosition(rnd);
        const std::vector<Cell> mine = winsInOne(b, Owner::Green);
        const std::vector<Cell> theirs = winsInOne(b, Owner::Red);
        const Move m = chooseMove(b, [&rnd] { return rnd.next(); });
        ASSERT_TRUE(onBoard(m.cell.row, m.cell.col) && b.isFree(m.cell.row, m.cell.col));
        const auto among = [&m](const std::vector<Cell> &v) {
            return std::find(v.begin(), v.end(), m.cell) != v.end();
        };
        if (!mine.empty()) {
            ASSERT_TRUE(among(mine)) << "missed a win, position " << k;
            ++wins;
        } else if (!theirs.empty()) {
            ASSERT_TRUE(among(theirs)) << "missed a block, position " << k;
            ++blocks;
        }
    }
    EXPECT_GT(wins, 200);
    EXPECT_GT(blocks, 200);
}

TEST(FourRowComputer, TenThousandGamesAgainstARandomPupilAllEnd)
{
    UniformRandom rnd(99);
    int computerWins = 0, ended = 0;
    for (int game = 0; game < 10000; ++game) {
        FourRowBoard b;
        for (int turn = 0;; ++turn) {
            ASSERT_LT(turn, 2 * kCells + 2) << "game " << game << " does not end";
            const bool pupil = turn % 2 == 0;
            if (pupil && rnd.next() < 0.2)
                continue; // the pupil passes, is wrong or runs out of time
            Cell c{kFirst + int(rnd.next() * kSide), kFirst + int(rnd.next() * kSide)};
            while (pupil && !b.isFree(c.row, c.col))
                c = {kFirst + int(rnd.next() * kSide), kFirst + int(rnd.next() * kSide)};
            if (!pupil)
                c = chooseMove(b, [&rnd] { return rnd.next(); }).cell;
            const int before = b.claimed();
            const bool four = b.claim(c.row, c.col, pupil ? Owner::Red : Owner::Green);
            ASSERT_EQ(b.claimed(), before + 1); // the computer never picks a held cell
            computerWins += four && !pupil;
            if (four || b.full()) {
                ++ended;
                break;
            }
        }
    }
    EXPECT_EQ(ended, 10000);
    EXPECT_GT(computerWins, 8000); // a random pupil seldom beats it
}

} // namespace
} // namespace nb::test
