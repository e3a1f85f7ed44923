// The search board on its own: neighbours, what a pair makes, and a pair for every target.
#include "puzzles/SearchBoard.h"
#include "core/Random.h"

#include <gtest/gtest.h>

#include <optional>

namespace nb {
namespace {

TEST(SearchBoard, NeighboursTouchAcrossDownOrDiagonallyAndNeverWrapAroundAnEdge)
{
    struct Case
    {
        int a, b;
        bool touch;
    } cases[] = {
        {0, 1, true},    {0, 8, true},    {0, 9, true},    {9, 0, true},    {27, 18, true},
        {27, 20, true},  {27, 36, true},  {27, 34, true},  {63, 54, true},  {63, 62, true},
        {7, 15, true},   {7, 14, true},   {56, 49, true},  {0, 0, false},   {0, 2, false},
        {0, 16, false},  {7, 8, false},   {8, 7, false},   {15, 16, false}, {55, 56, false},
        {8, 15, false},  {0, 63, false},  {63, 64, false}, {-1, 0, false},  {64, 56, false},
        {24, 39, false}, {31, 32, false},
    };
    for (const Case &c : cases)
        EXPECT_EQ(SearchBoard::neighbours(c.a, c.b), c.touch) << c.a << " and " << c.b;
}

TEST(SearchBoard, APairMakesItsSumDifferenceProductOrWholeQuotientInEitherOrder)
{
    struct Case
    {
        SearchOp op;
        int x, y;
        std::optional<int> made;
    } cases[] = {
        {SearchOp::Add, 3, 4, 7},       {SearchOp::Add, 9, 9, 18},
        {SearchOp::Subtract, 9, 4, 5},  {SearchOp::Subtract, 4, 9, 5},
        {SearchOp::Subtract, 6, 6, {}}, {SearchOp::Times, 7, 8, 56},
        {SearchOp::Divide, 12, 4, 3},   {SearchOp::Divide, 4, 12, 3},
        {SearchOp::Divide, 12, 5, {}},  {SearchOp::Divide, 6, 6, {}},
        {SearchOp::Divide, 7, 1, 7},
    };
    for (const Case &c : cases) {
        SearchBoard board(c.op);
        board.setValue(0, c.x);
        board.setValue(1, c.y);
        EXPECT_EQ(board.makes(0, 1), c.made) << int(c.op) << ": " << c.x << ", " << c.y;
        if (c.made) {
            EXPECT_TRUE(board.isAnswer(1, 0, *c.made));
            board.markFound(0, 1);
            EXPECT_FALSE(board.isAnswer(0, 1, *c.made)) << "a found pair counts once";
        }
    }
}

TEST(SearchBoard, EveryTargetHasAPairOnTheBoardUntilTheBoardIsUsedUp)
{
    UniformRandom rnd(7);
    const SearchBoard::Draw draw = [&rnd] { return rnd.next(); };
    for (int op = 1; op <= 4; ++op) {
        for (int level = 1; level <= SearchBoard::kLevels; ++level) {
            SearchBoard board(searchOpFor(op));
            int targets = 0;
            for (int round = 0; round < 40; ++round) {
                board.fill(level, draw);
                const SearchRange r = searchRange(board.op(), level);
                for (int cell = 0; cell < SearchBoard::kCells; ++cell) {
                    const int v = board.value(cell);
                    const bool inRange =
                        op == 4 ? v >= r.lo * r.lo && v <= r.hi * r.hi : v >= r.lo && v <= r.hi;
                    ASSERT_TRUE(inRange) << v;
                }
                // Find pairs for the targets until none is left, as a pupil would.
                while (const std::optional<int> target = board.pickTarget(draw)) {
                    ++targets;
                    std::vector<std::pair<int, int>> answers;
                    for (int a = 0; a < SearchBoard::kCells; ++a)
                        for (int b = a - 9; b <= a + 9; ++b)
                            if (board.isAnswer(a, b, *target))
                                answers.emplace_back(a, b);
                    ASSERT_FALSE(answers.empty()) << "op " << op << " level " << level;
                    ASSERT_GT(*target, 0);
                    const auto &[a, b] = answers[std::size_t(rnd.next() * double(answers.size()))];
                    board.markFound(a, b);
                }
                ASSERT_TRUE(board.openPairs().empty());
            }
            // A board gives a round's worth of targets and more before it is used up.
            EXPECT_GT(targets, 40 * 12) << "op " << op << " level " << level;
        }
    }
}

} // namespace
} // namespace nb
