// Four in a row for two players through the screen: names, number modes, turns, wrong cells that
// name the other player, PASS, and the ends of a game.
#include "games/twoplayerfourinarow.h"
#include "FourRowTestSupport.h"
#include "core/NumberText.h"
#include "support/Driver.h"

#include <gtest/gtest.h>

namespace nb::test {
namespace {

using namespace fourrow;

class RiggedTwoPlayer : public TwoPlayerFourInARow
{
public:
    using TwoPlayerFourInARow::TwoPlayerFourInARow;
    FourRowBoard &rig() { return board_; }
};

class TwoPlayerGame : public ::testing::Test
{
protected:
    TwoPlayerGame() { d.registry.add<RiggedTwoPlayer>("twoplayerfourinarow", "Four in a row"); }
    void start(int mode = 0, int level = 1, const std::string &one = "Ann",
               const std::string &two = "Ben")
    {
        d.progress().FourRowOptionA = Value::int16(std::int16_t(mode));
        d.progress().FourRowOptionB = Value::int16(std::int16_t(level));
        d.open("twoplayerfourinarow");
        d.click("Command1");
        d.typeEnter("player1", one);
        d.typeEnter("player2", two);
    }
    RiggedTwoPlayer &screen() { return dynamic_cast<RiggedTwoPlayer &>(d.front()); }
    int number(const char *side, int k) { return test::number(d, side, k); }
    // Chooses two numbers and clicks a free cell that holds their sum (or, when `right` is false,
    // one that does not). Returns the cell clicked.
    int play(bool right, int l = kFirst, int r = kFirst)
    {
        const int sum = number("xvalue", l) + number("expression", r);
        for (int row = kFirst; row <= kLast; ++row)
            for (int col = kFirst; col <= kLast; ++col)
                if (screen().board().isFree(row, col) &&
                    (screen().board().sum(row, col) == sum) == right) {
                    d.click("xvalue", l);
                    d.click("expression", r);
                    d.click("Label1", cellId(row, col));
                    return cellId(row, col);
                }
        return 0;
    }
    Driver d;
};

TEST_F(TwoPlayerGame, NamesMustBeShorterThanFifteenLetters)
{
    d.open("twoplayerfourinarow");
    EXPECT_FALSE(d.reachable("player1"));
    d.click("Command1");
    EXPECT_EQ(d.caption("text1"), "Player 1, please enter your name.");
    d.enter("player1"); // nothing typed: still asking
    EXPECT_EQ(d.caption("text1"), "Player 1, please enter your name.");
    d.typeEnter("player1", "Maximilianusxxx"); // 15 letters
    EXPECT_EQ(d.platform.lastMessage(), "You must use less than 15 letters.");
    EXPECT_EQ(d.text("player1"), "");
    d.typeEnter("player1", utf8(0xC9) + "lodie Martin"); // 13 letters, 14 bytes
    EXPECT_EQ(d.caption("p1"), utf8(0xC9) + "lodie Martin");
    EXPECT_FALSE(d.visible("player1"));
    EXPECT_EQ(d.caption("text1"), "Player 2, please enter your name.");
    d.typeEnter("player2", "Benjamin Smith"); // 14 letters
    EXPECT_EQ(d.caption("p2"), "Benjamin Smith");
    EXPECT_EQ(d.caption("text1"), utf8(0xC9) + "lodie Martin choose your two numbers.");
    // Player 1 (red) starts; the waiting player's name is faded.
    EXPECT_EQ(d.backColor("p1"), 255u);
    EXPECT_NE(d.backColor("p2"), 65280u);
    EXPECT_EQ(d.platform.messages().size(), 1u);
    // Clicks before or during naming claim nothing.
    EXPECT_EQ(screen().board().claimed(), 0);
}

TEST_F(TwoPlayerGame, NumberModesDrawTheirBands)
{
    struct Case
    {
        int mode, level;
        int leftLo, leftHi, rightLo, rightHi;
    } cases[] = {{0, 1, 101, 199, 101, 199},
                 {1, 1, 150, 198, 51, 99},
                 {2, 2, 211, 244, 211, 244},
                 {3, 1, 0, 0, 0, 0}};
    for (const Case &c : cases) {
        SCOPED_TRACE(c.mode);
        Driver drv;
        drv.progress().FourRowOptionA = Value::int16(std::int16_t(c.mode));
        drv.progress().FourRowOptionB = Value::int16(std::int16_t(c.level));
        drv.open("twoplayerfourinarow");
        drv.click("Command1");
        drv.typeEnter("player1", "Ann");
        drv.typeEnter("player2", "Ben");
        for (int k = kFirst; k <= kLast; ++k) {
            const double l = readNumber(drv.caption("xvalue", k));
            const double r = readNumber(drv.caption("expression", k));
            EXPECT_TRUE(l >= c.leftLo && l <= c.leftHi) << l;
            EXPECT_TRUE(r >= c.rightLo && r <= c.rightHi) << r;
        }
        // Every cell holds a sum of the two bands (mode 1 at level 1: 201 to 297).
        for (int row = kFirst; row <= kLast; ++row)
            for (int col = kFirst; col <= kLast; ++col) {
                const double v = readNumber(drv.caption("Label1", cellId(row, col)));
                EXPECT_TRUE(v >= c.leftLo + c.rightLo && v <= c.leftHi + c.rightHi) << v;
            }
    }
}

TEST(TwoPlayerMenu, TheBoardPicturesOpenModesZeroToTwoAtTheChosenLevel)
{
    const int lows[] = {201, 250, 211}; // level 2: modes 0, 1 and 2
    for (int i = 0; i < 3; ++i) {
        Driver d;
        d.toMainMenu();
        d.newPupil();
        d.click("Command9");
        d.click("fourlev", 1);
        d.click("fourinrow", i);
        EXPECT_EQ(d.frontName(), "twoplayerfourinarow");
        EXPECT_EQ(d.progress().FourRowOptionA.whole(), i);
        d.click("Command1");
        d.typeEnter("player1", "Ann");
        d.typeEnter("player2", "Ben");
        int lowest = 1000;
        for (int k = kFirst; k <= kLast; ++k)
            lowest = std::min(lowest, number(d, "xvalue", k));
        EXPECT_GE(lowest, lows[i]);
        EXPECT_LT(lowest, lows[i] + 50);
        d.click("exit");
        EXPECT_EQ(d.frontName(), "pairmenu");
    }
}

TEST_F(TwoPlayerGame, TurnsPassOnRightCellsWrongCellsAndPass)
{
    start();
    const int first = play(true);
    EXPECT_EQ(d.backColor("Label1", first), 255u);
    EXPECT_EQ(d.caption("playerstatus", first), "4");
    EXPECT_EQ(d.caption("compstatus", first), "5");
    EXPECT_EQ(d.caption("text1"), "Ben choose your two numbers.");
    EXPECT_NE(d.backColor("p1"), 255u);
    EXPECT_EQ(d.backColor("p2"), 65280u);

    const int second = play(true, 9, 9);
    EXPECT_EQ(d.backColor("Label1", second), 65280u);
    EXPECT_EQ(d.caption("compstatus", second), "4");
    EXPECT_EQ(d.caption("text1"), "Ann choose your two numbers.");

    // A wrong cell by player 1 names player 2, who then has the turn; double-clicked, it counts
    // once.
    const int sum = number("xvalue", 5) + number("expression", 6);
    int wrong = 0;
    for (int id = 404; id <= 909 && !wrong; ++id)
        if (onBoard(id / 100, id % 100) && screen().board().isFree(id / 100, id % 100) &&
            screen().board().sum(id / 100, id % 100) != sum)
            wrong = id;
    d.click("xvalue", 5);
    d.click("expression", 6);
    d.click("Label1", wrong);
    d.doubleClick("Label1", wrong);
    EXPECT_EQ(d.platform.messages(),
              std::vector<std::string>{"That is not correct! Your turn is passed to Ben."});
    EXPECT_EQ(d.caption("text1"), "Ben choose your two numbers.");
    EXPECT_EQ(screen().board().claimed(), 2);

    d.click("pass");
    EXPECT_EQ(d.caption("text1"), "Ann choose your two numbers.");
    d.click("Label1", wrong); // before choosing numbers: a reminder, nothing claimed
    EXPECT_EQ(d.caption("text1"), "Ann choose your two numbers.");
    EXPECT_EQ(screen().board().claimed(), 2);
}

TEST_F(TwoPlayerGame, WinsAndDrawsAskAndTheOtherPlayerStartsTheNextGame)
{
    start();
    lay(screen().rig(), {"RRR...", "......", "GGG...", "......", "......", "......"});
    d.platform.queueYes();
    claim(d, 4, 7);
    EXPECT_EQ(d.platform.lastMessage(), "Ann has won! Do you want another game?");
    EXPECT_EQ(screen().board().claimed(), 0);
    EXPECT_EQ(d.caption("text1"), "Ben choose your two numbers.");

    // Ben (green) fills the last cell of a board with no four.
    Rows almost = kNoFour;
    almost[5][5] = '.';
    lay(screen().rig(), almost);
    d.platform.queueNo();
    claim(d, 9, 9);
    EXPECT_EQ(d.platform.lastMessage(), "The game is drawn. Do you want another go?");
    EXPECT_EQ(d.frontName(), "pairmenu");
    EXPECT_FALSE(d.isOpen("twoplayerfourinarow"));
}

} // namespace
} // namespace nb::test
