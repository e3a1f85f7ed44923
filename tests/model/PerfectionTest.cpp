// The perfection puzzle: the square and its marking, then the screen driven as a pupil would.
#include "puzzles/perfection.h"
#include "core/Random.h"
#include "support/Driver.h"

#include <gtest/gtest.h>

#include <set>

namespace nb::test {
namespace {

TEST(PerfectionSquare, EachLevelBlanksDistinctSquaresInsideTheSquare)
{
    UniformRandom rnd(3);
    const std::function<double()> draw = [&rnd] { return rnd.next(); };
    struct Case
    {
        int level, side, blanks;
    } cases[] = {{1, 5, 8}, {2, 6, 12}, {3, 8, 20}, {4, 10, 32}, {5, 12, 48}, {9, 12, 48}};
    for (const Case &c : cases) {
        PerfectionSquare sq;
        for (int round = 0; round < 50; ++round) {
            sq.fill(c.level, draw);
            ASSERT_EQ(sq.side(), c.side);
            ASSERT_EQ(sq.blankCount(), c.blanks);
            const std::set<int> distinct(sq.blanks().begin(), sq.blanks().end());
            ASSERT_EQ(int(distinct.size()), c.blanks);
            int counted = 0;
            for (int row = 0; row < PerfectionSquare::kMaxSide; ++row)
                for (int column = 0; column < PerfectionSquare::kMaxSide; ++column)
                    if (sq.blank(row, column)) {
                        ASSERT_TRUE(row < c.side && column < c.side) << row << ", " << column;
                        ++counted;
                    }
            ASSERT_EQ(counted, c.blanks);
        }
    }
}

TEST(PerfectionSquare, PercentIsRoundedDownSoOnlyEveryBlankRightMakesAHundred)
{
    struct Case
    {
        int right, blanks, percent;
    } cases[] = {{0, 8, 0},  {1, 8, 12}, {7, 8, 87}, {8, 8, 100}, {47, 48, 97},
                 {1, 3, 33}, {2, 3, 66}, {0, 0, 0},  {9, 8, 100}, {-1, 8, 0}};
    for (const Case &c : cases)
        EXPECT_EQ(PerfectionSquare::percent(c.right, c.blanks), c.percent)
            << c.right << " of " << c.blanks;

    EXPECT_TRUE(PerfectionSquare::right("12", 2, 3));
    EXPECT_TRUE(PerfectionSquare::right("144", 11, 11));
    for (const char *entry : {"", "012", "12 ", "12.0", "11", "-12"})
        EXPECT_FALSE(PerfectionSquare::right(entry, 2, 3)) << entry;
}

const Perfection &screen(Driver &d)
{
    return dynamic_cast<const Perfection &>(d.front());
}

std::string product(int blank)
{
    const int row = blank / PerfectionSquare::kMaxSide, column = blank % PerfectionSquare::kMaxSide;
    return std::to_string(PerfectionSquare::product(row, column));
}

TEST(PerfectionScreen, EveryBlankRightPassesTheLevelAndTheNextSquareIsBigger)
{
    Driver d;
    d.open("perfection");
    EXPECT_EQ(d.caption("level"), "1");
    EXPECT_FALSE(d.enabled("mark"));
    d.click("start");
    const auto blanks = screen(d).square().blanks();
    for (int i = 1; i <= 144; ++i) {
        const bool blank = std::find(blanks.begin(), blanks.end(), i - 1) != blanks.end();
        ASSERT_EQ(d.visible("answer", i), blank) << i;
    }
    // Enter moves on to the next blank, from the last back to the first.
    for (std::size_t k = 0; k < blanks.size(); ++k) {
        EXPECT_EQ(d.front().focusIndex(), blanks[k] + 1);
        d.typeEnter("answer", product(blanks[k]), blanks[k] + 1);
    }
    EXPECT_EQ(d.front().focusIndex(), blanks[0] + 1);

    d.platform.queueYes();
    d.click("mark");
    EXPECT_EQ(d.platform.lastMessage(),
              "Perfect! You have passed level 1. Do you want to try the next level ?");
    EXPECT_EQ(d.progress().PerfectionBest.number(), 1);
    EXPECT_EQ(d.caption("level"), "2");
    EXPECT_EQ(screen(d).square().side(), 6);
    EXPECT_EQ(d.caption("percent"), "");
    d.click("exit");
    EXPECT_EQ(d.frontName(), "mulmenu");
    EXPECT_FALSE(d.isOpen("perfection"));
}

TEST(PerfectionScreen, APartlyFilledSquareIsMarkedWithBlanksCountedWrong)
{
    Driver d;
    d.progress().PerfectionBest = Value::int16(3);
    d.platform.queueNo(); // stay on level 1
    d.open("perfection");
    EXPECT_EQ(d.platform.lastMessage(),
              "You have reached level 4 before, would you like to go straight to this level now?");
    d.click("start");
    const auto blanks = screen(d).square().blanks();
    // Three right, two wrong, three left empty.
    for (int k = 0; k < 3; ++k)
        d.type("answer", product(blanks[std::size_t(k)]), blanks[std::size_t(k)] + 1);
    d.type("answer", "0", blanks[3] + 1);
    d.type("answer", product(blanks[4]) + "1", blanks[4] + 1);

    d.platform.queueNo(); // not yet: back to the first empty square
    d.click("mark");
    EXPECT_EQ(d.platform.lastMessage(),
              "Some squares are still blank. Do you want to mark the square now?");
    EXPECT_TRUE(screen(d).filling());
    EXPECT_EQ(d.front().focusIndex(), blanks[5] + 1);

    d.platform.queueYes();
    d.click("mark");
    EXPECT_EQ(d.caption("percent"), "37%");
    EXPECT_EQ(d.caption("status"),
              "You got 3 out of 8 right. The red squares are wrong. Press START to try again.");
    EXPECT_EQ(d.progress().PerfectionBest.number(), 3);
    d.click("exit");
    EXPECT_EQ(d.frontName(), "mulmenu");
}

// No box over a marked square; START (also the focus) begins a fresh one on the same level.
TEST(PerfectionScreen, AMarkedSquareStaysInViewUntilStart)
{
    Driver d;
    d.open("perfection");
    d.click("start");
    const auto blanks = screen(d).square().blanks();
    for (std::size_t k = 0; k < blanks.size(); ++k)
        d.type("answer", k == 2 ? "1" : product(blanks[k]), blanks[k] + 1);
    d.click("mark");
    EXPECT_TRUE(d.platform.shown.empty());
    EXPECT_EQ(d.caption("percent"), "87%");
    EXPECT_FALSE(screen(d).filling());
    // The wrong square keeps a colour of its own; every square keeps its entry.
    const std::uint32_t wrong = d.backColor("answer", blanks[2] + 1);
    for (std::size_t k = 0; k < blanks.size(); ++k) {
        const std::uint32_t back = d.backColor("answer", blanks[k] + 1);
        EXPECT_TRUE(back != colors::white && (k == 2 || back != wrong)) << k;
        EXPECT_EQ(d.text("answer", blanks[k] + 1), k == 2 ? "1" : product(blanks[k]));
        EXPECT_FALSE(d.enabled("answer", blanks[k] + 1));
    }
    EXPECT_TRUE(d.enabled("start"));
    EXPECT_EQ(d.front().focusName(), "start");
    EXPECT_FALSE(d.enabled("mark"));

    d.click("start");
    EXPECT_EQ(d.caption("level"), "1");
    EXPECT_TRUE(screen(d).filling());
    for (int b : screen(d).square().blanks()) {
        EXPECT_EQ(d.text("answer", b + 1), "");
        EXPECT_EQ(d.backColor("answer", b + 1), colors::white);
        EXPECT_TRUE(d.enabled("answer", b + 1));
    }
}

TEST(PerfectionScreen, OnlyDigitsAndBackspaceGoIntoTheBoxes)
{
    Driver d;
    d.open("perfection");
    d.screenKeys("12\r"); // nothing to type into before START
    d.click("start");
    const int box = screen(d).square().blanks()[0] + 1;
    d.type("answer", "a-1. 2x", box);
    EXPECT_EQ(d.text("answer", box), "12");
    d.key("answer", 27, box);
    d.key("answer", 8, box);
    d.type("answer", "34", box); // three digits at most
    EXPECT_EQ(d.text("answer", box), "134");
    d.setText("answer", "pasted", box); // a paste is simply marked wrong
    d.platform.queueYes();
    d.click("mark");
    EXPECT_EQ(d.caption("percent"), "0%");
}

} // namespace
} // namespace nb::test
