// The four-in-a-row board and the computer's play, without a screen: number bands, the scramble,
// fours in every direction up to the edges, the scores, the order of the computer's rules, and
// long random runs that check the computer never misses a win or a block and every game ends.
#include "FourRowTestSupport.h"
#include "core/Random.h"
#include "games/FourRowComputer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <deque>
#include <functional>
#include <vector>

namespace nb::test {
namespace {

using namespace fourrow;

Draw scripted(std::deque<double> &draws, UniformRandom &after)
{
    return [&draws, &after] {
        if (draws.empty())
            return after.next();
        const double d = draws.front();
        draws.pop_front();
        return d;
    };
}

TEST(FourRowNumbers, EachSideIsSixDifferentNumbersInItsBand)
{
    struct Case
    {
        const char *what;
        std::function<std::optional<std::array<Numbers, 2>>(const Draw &)> make;
        int leftLo, leftHi, rightLo, rightHi;
    } cases[] = {
        {"level 1", [](const Draw &d) { return computerGameNumbers(d, 1); }, 51, 99, 51, 99},
        {"level 9", [](const Draw &d) { return computerGameNumbers(d, 9); }, 451, 499, 451, 499},
        {"level 10", [](const Draw &d) { return computerGameNumbers(d, 10); }, 450, 498, 450, 498},
        {"level 14", [](const Draw &d) { return computerGameNumbers(d, 14); }, 450, 498, 450, 498},
        {"mode 0", [](const Draw &d) { return twoPlayerNumbers(d, 0, 1); }, 101, 199, 101, 199},
        {"mode 0 L3", [](const Draw &d) { return twoPlayerNumbers(d, 0, 3); }, 301, 399, 301, 399},
        {"mode 1", [](const Draw &d) { return twoPlayerNumbers(d, 1, 1); }, 150, 198, 51, 99},
        {"mode 1 L2", [](const Draw &d) { return twoPlayerNumbers(d, 1, 2); }, 250, 298, 101, 149},
        {"mode 2", [](const Draw &d) { return twoPlayerNumbers(d, 2, 1); }, 111, 144, 111, 144},
        {"mode 2 L0", [](const Draw &d) { return twoPlayerNumbers(d, 2, 0); }, 11, 44, 11, 44},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.what);
        UniformRandom rnd(7);
        const Draw draw = [&rnd] { return rnd.next(); };
        int lo[2] = {1000, 1000}, hi[2] = {0, 0};
        for (int run = 0; run < 1500; ++run) {
            const auto numbers = c.make(draw);
            ASSERT_TRUE(numbers);
            for (int side = 0; side < 2; ++side) {
                Numbers n = (*numbers)[std::size_t(side)];
                for (const int v : n) {
                    lo[side] = std::min(lo[side], v);
                    hi[side] = std::max(hi[side], v);
                    if (std::string(c.what).starts_with("mode 2")) { // digits 1 to 4: no carrying
                        ASSERT_TRUE(v / 10 % 10 >= 1 && v / 10 % 10 <= 4 && v % 10 >= 1 &&
                                    v % 10 <= 4)
                            << v;
                    }
                }
                std::sort(n.begin(), n.end());
                ASSERT_EQ(std::adjacent_find(n.begin(), n.end()), n.end());
            }
        }
        EXPECT_EQ(lo[0], c.leftLo);
        EXPECT_EQ(hi[0], c.leftHi);
        EXPECT_EQ(lo[1], c.rightLo);
        EXPECT_EQ(hi[1], c.rightHi);
    }
    UniformRandom rnd(1);
    for (const int mode : {-1, 3, 9})
        EXPECT_FALSE(twoPlayerNumbers([&rnd] { return rnd.next(); }, mode, 1)) << mode;
}

TEST(FourRowNumbers, ARepeatedNumberIsDrawnAgain)
{
    // Level 1: draw 0 makes 51, 0.5 makes 75. The second and third 51 are drawn again.
    std::deque<double> draws{0, 0, 0, 0.5, 0.1, 0.2, 0.3, 0.4};
    UniformRandom after(3);
    const auto n = computerGameNumbers(scripted(draws, after), 1);
    EXPECT_EQ(n[0][0], 51);
    EXPECT_EQ(n[0][1], 75);
    EXPECT_EQ(n[0][2], 55); // Int(0.1 x 49 + 51)
}

TEST(FourRowBoard, SixtySwapsExchangeCellsAndKeepEverySum)
{
    const Numbers left{1, 2, 3, 4, 5, 6}, right{10, 20, 30, 40, 50, 60};
    // First exchange: (4,4) with (9,8); the other 59 exchange (5,5) with itself.
    std::deque<double> draws{0.0, 0.0, 0.99, 0.8};
    for (int k = 1; k < kSwaps; ++k)
        draws.insert(draws.end(), {0.2, 0.2, 0.2, 0.2});
    UniformRandom after(5);
    FourRowBoard b;
    b.setUp(left, right, scripted(draws, after));
    EXPECT_TRUE(draws.empty()); // four draws per exchange, 240 in all
    for (int r = kFirst; r <= kLast; ++r)
        for (int c = kFirst; c <= kLast; ++c) {
            const int expected = r == 4 && c == 4 ? 6 + 50 : r == 9 && c == 8 ? 1 + 10 : 0;
            EXPECT_EQ(b.sum(r, c), expected ? expected : b.left(r) + b.right(c)) << r << c;
        }

    // A real scramble moves cells around but keeps the addition table's sums.
    UniformRandom rnd(11);
    b.setUp(left, right, [&rnd] { return rnd.next(); });
    std::vector<int> sums, table;
    int moved = 0;
    for (int r = kFirst; r <= kLast; ++r)
        for (int c = kFirst; c <= kLast; ++c) {
            sums.push_back(b.sum(r, c));
            table.push_back(b.left(r) + b.right(c));
            moved += b.sum(r, c) != b.left(r) + b.right(c);
        }
    std::sort(sums.begin(), sums.end());
    std::sort(table.begin(), table.end());
    EXPECT_EQ(sums, table);
    EXPECT_GT(moved, 20);
    EXPECT_EQ(b.claimed(), 0);
}

TEST(FourRowBoard, FourInARowInEveryDirectionUpToTheEdges)
{
    struct Case
    {
        Rows rows;
        Cell last; // claimed by red after the rows are laid
        bool four;
        Cell from, to;
    } cases[] = {
        {{"..RRR.", "......", "......", "......", "......", "......"},
         {4, 9},
         true,
         {4, 6},
         {4, 9}},
        {{"R.....", "R.....", "R.....", "......", "......", "......"},
         {7, 4},
         true,
         {4, 4},
         {7, 4}},
        {{"......", "......", "......", ".....R", ".....R", "......"}, {9, 9}, false, {}, {}},
        {{"......", "......", ".....R", ".....R", ".....R", "......"},
         {9, 9},
         true,
         {6, 9},
         {9, 9}},
        {{"......", "......", "R.....", ".R....", "..R...", "......"},
         {9, 7},
         true,
         {6, 4},
         {9, 7}},
        {{".....R", "....R.", "...R..", "......", "......", "......"},
         {7, 6},
         true,
         {4, 9},
         {7, 6}},
        {{"......", "......", "...R..", "..R...", ".R....", "......"},
         {9, 4},
         true,
         {6, 7},
         {9, 4}},
        // A gap filled in the middle, and a gap that joins five.
        {{"RR.R..", "......", "......", "......", "......", "......"},
         {4, 6},
         true,
         {4, 4},
         {4, 7}},
        {{"RR.RR.", "......", "......", "......", "......", "......"},
         {4, 6},
         true,
         {4, 4},
         {4, 8}},
        // The other colour breaks the line; three is not four.
        {{"RRG...", "......", "......", "......", "......", "......"}, {4, 7}, false, {}, {}},
        {{"......", "......", "......", "......", "......", "GRR..."}, {9, 7}, false, {}, {}},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(testing::Message() << c.last.row << "," << c.last.col);
        FourRowBoard b = boardOf(c.rows);
        EXPECT_EQ(b.claim(c.last.row, c.last.col, Owner::Red), c.four);
        const auto ends = b.fourThrough(c.last.row, c.last.col);
        ASSERT_EQ(ends.has_value(), c.four);
        if (c.four) {
            EXPECT_EQ((*ends)[0], c.from);
            EXPECT_EQ((*ends)[1], c.to);
        }
    }
    // A held cell is not claimed again; nothing is claimed off the board.
    FourRowBoard b;
    b.claim(4, 4, Owner::Green);
    EXPECT_FALSE(b.claim(4, 4, Owner::Red));
    EXPECT_FALSE(b.claim(3, 4, Owner::Red));
    EXPECT_FALSE(b.claim(4, 10, Owner::Red));
    EXPECT_EQ(b.owner(4, 4), Owner::Green);
    EXPECT_EQ(b.claimed(), 1);
    EXPECT_EQ(b.status(Owner::Green, 4, 4), kClaimed);
    EXPECT_EQ(b.status(Owner::Red, 4, 4), kOpponents);
}

TEST(FourRowComputer, ScoresCountRoomAndOwnPiecesOnBothSides)
{
    struct Case
    {
        Rows rows;
        Cell cell;
        int red, green;
    } cases[] = {
        {{"RRR...", "......", "......", "......", "......", "......"}, {4, 7}, 3, 0},
        {{"RR.R..", "......", "......", "......", "......", "......"}, {4, 6}, 3, 0},
        // Two red beside the cell, but green closes the line on both sides: no room for four.
        {{"GRR.G.", "......", "......", "......", "......", "......"}, {4, 7}, 0, 1},
        // The margin counts as room: the corner cell still scores in its row.
        {{".RR...", "......", "......", "......", "......", "......"}, {4, 4}, 2, 0},
        // Pieces count only when they touch the cell in the line: a diagonal pair beside (8,8)
        // scores 2 there and nothing at (9,9); single neighbours across and down score 1.
        {{"......", "......", "...G..", "....G.", ".....G", "......"}, {8, 8}, 0, 1},
        {{"......", "......", "..G...", "...G..", "......", "......"}, {9, 9}, 0, 0},
        {{"......", "......", "..G...", "...G..", "......", "......"}, {8, 8}, 0, 2},
        {{"GGG...", "RRR...", "......", "......", "......", "......"}, {4, 7}, 1, 3},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(testing::Message() << c.cell.row << "," << c.cell.col);
        FourRowBoard b = boardOf(c.rows);
        evaluate(b);
        EXPECT_EQ(b.status(Owner::Red, c.cell.row, c.cell.col), c.red);
        EXPECT_EQ(b.status(Owner::Green, c.cell.row, c.cell.col), c.green);
    }
}

TEST(FourRowComputer, RulesApplyInStrictOrder)
{
    struct Case
    {
        const char *what;
        Rows rows;
        int rule;
        Cell cell;
    } cases[] = {
        {"own four before a block",
         {"GGG...", "......", "RRR...", "......", "......", "......"},
         1,
         {4, 7}},
        {"block the pupil's four",
         {"G.....", "......", "RRR...", "......", "......", "...G.."},
         2,
         {6, 7}},
        {"build on its own two before the pupil's",
         {"GG....", "......", "......", "RR....", "......", "......"},
         3,
         {4, 6}},
        {"build on the pupil's two",
         {".....G", "......", "......", "RR....", "......", "......"},
         4,
         {7, 6}},
        {"the last free cell",
         {"RRGGRR", "RRGGRR", "GGRRGG", "RRGGRR", "GGRRGG", "GGRRG."},
         3,
         {9, 9}},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.what);
        FourRowBoard b = boardOf(c.rows);
        UniformRandom rnd(1);
        const Move m = chooseMove(b, [&rnd] { return rnd.next(); });
        EXPECT_EQ(m.rule, c.rule);
        EXPECT_EQ(m.cell, c.cell);
    }
    // On an empty board the first move is random: Int(Rnd x 6 + 4) for the row, then the column.
    for (const auto &[rowDraw, colDraw, cell] :
         {std::tuple{0.0, 0.999999, Cell{4, 9}}, std::tuple{0.999999, 0.0, Cell{9, 4}},
          std::tuple{0.5, 0.34, Cell{7, 6}}}) {
        FourRowBoard b;
        std::deque<double> draws{rowDraw, colDraw};
        UniformRandom after(2);
        const Move m = chooseMove(b, scripted(draws, after));
        EXPECT_EQ(m.rule, 7);
        EXPECT_EQ(m.cell, cell);
    }
}

// Random positions reached by alternate claims, none holding four yet.
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
        for (int c = kFirst; c <= kLast; ++c) {
            FourRowBoard trial = b;
            if (trial.isFree(r, c) && trial.claim(r, c, who))
                cells.push_back({r, c});
        }
    return cells;
}

TEST(FourRowComputer, NeverMissesAWinAndAlwaysBlocksAWinInOne)
{
    UniformRandom rnd(20261122);
    const Draw draw = [&rnd] { return rnd.next(); };
    int wins = 0, blocks = 0;
    for (int k = 0; k < 4000; ++k) {
        FourRowBoard b = randomPosition(rnd);
        const std::vector<Cell> mine = winsInOne(b, Owner::Green);
        const std::vector<Cell> theirs = winsInOne(b, Owner::Red);
        const Move m = chooseMove(b, draw);
        ASSERT_TRUE(onBoard(m.cell.row, m.cell.col) && b.isFree(m.cell.row, m.cell.col));
        const auto in = [&m](const std::vector<Cell> &v) {
            return std::find(v.begin(), v.end(), m.cell) != v.end();
        };
        if (!mine.empty()) {
            ASSERT_TRUE(in(mine)) << "missed a win, position " << k;
            ++wins;
        } else if (!theirs.empty()) {
            ASSERT_TRUE(in(theirs)) << "missed a block, position " << k;
            ++blocks;
        }
        // Ties go to the first cell with the most open directions among those with the score.
        if (m.rule >= 2 && m.rule <= 6) {
            const Owner side = m.rule % 2 ? Owner::Green : Owner::Red;
            const int wanted = m.rule == 2 ? 3 : m.rule <= 4 ? 2 : 1;
            const int best = b.freeScore(m.cell.row, m.cell.col);
            EXPECT_EQ(best, openDirections(b, m.cell.row, m.cell.col, Owner::Green));
            for (int r = kFirst; r <= kLast; ++r)
                for (int c = kFirst; c <= kLast; ++c)
                    if (b.isFree(r, c) && b.status(side, r, c) == wanted) {
                        const bool before = cellId(r, c) < cellId(m.cell.row, m.cell.col);
                        EXPECT_LE(openDirections(b, r, c, Owner::Green), best - (before ? 1 : 0));
                    }
        }
    }
    EXPECT_GT(wins, 200);
    EXPECT_GT(blocks, 200);
}

TEST(FourRowComputer, TenThousandGamesAgainstARandomPupilAllEnd)
{
    UniformRandom rnd(99);
    const Draw draw = [&rnd] { return rnd.next(); };
    int computerWins = 0, pupilWins = 0, draws = 0;
    for (int game = 0; game < 10000; ++game) {
        FourRowBoard b;
        bool over = false;
        for (int turn = 0; !over; ++turn) {
            ASSERT_LT(turn, 2 * kCells + 2) << "game " << game << " does not end";
            const int before = b.claimed();
            if (turn % 2 == 0) {
                if (rnd.next() < 0.2)
                    continue; // the pupil passes, is wrong or runs out of time
                int r, c;
                do {
                    r = kFirst + int(rnd.next() * kSide);
                    c = kFirst + int(rnd.next() * kSide);
                } while (!b.isFree(r, c));
                over = b.claim(r, c, Owner::Red);
                pupilWins += over;
            } else {
                const Move m = chooseMove(b, draw);
                ASSERT_TRUE(b.isFree(m.cell.row, m.cell.col));
                over = b.claim(m.cell.row, m.cell.col, Owner::Green);
                computerWins += over;
            }
            ASSERT_EQ(b.claimed(), before + 1);
            if (!over && b.full()) {
                over = true;
                ++draws;
            }
        }
    }
    EXPECT_EQ(computerWins + pupilWins + draws, 10000);
    EXPECT_GT(computerWins, 8000); // a random pupil seldom beats it
}

} // namespace
} // namespace nb::test
