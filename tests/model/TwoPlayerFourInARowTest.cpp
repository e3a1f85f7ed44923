// Four in a row for two players through the screen.
#include "games/twoplayerfourinarow.h"
#include "FourRowTestSupport.h"

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

struct Game
{
    Game() { d.registry.add<RiggedTwoPlayer>("twoplayerfourinarow", "Two-player four in a row"); }
    RiggedTwoPlayer &screen() { return dynamic_cast<RiggedTwoPlayer &>(d.front()); }
    void start()
    {
        d.open("twoplayerfourinarow");
        d.click("Command1");
        d.typeEnter("player1", "Ann");
        d.typeEnter("player2", "Ben");
    }
    Driver d;
};

TEST(TwoPlayerFourInARow, NamesMustBeShorterThanFifteenLetters)
{
    Driver d;
    d.open("twoplayerfourinarow");
    EXPECT_FALSE(d.reachable("player1"));
    d.click("Command1");
    EXPECT_EQ(d.caption("text1"), "Player 1, please enter your name.");
    d.enter("player1");                        // nothing typed: still asking
    d.typeEnter("player1", "Maximilianusxxx"); // 15 letters
    EXPECT_EQ(d.platform.messages(),
              std::vector<std::string>{"You must use less than 15 letters."});
    EXPECT_EQ(d.text("player1"), "");
    const std::string elodie = utf8(0xC9) + "lodie Martin"; // 13 letters in 14 bytes
    d.typeEnter("player1", elodie);
    EXPECT_EQ(d.caption("p1"), elodie);
    EXPECT_FALSE(d.visible("player1"));
    EXPECT_EQ(d.caption("text1"), "Player 2, please enter your name.");
    // 14 letters: blanks typed around a name are not part of it.
    d.typeEnter("player2", "  Benjamin Smith ");
    EXPECT_EQ(d.caption("p2"), "Benjamin Smith");
    EXPECT_EQ(d.caption("text1"), elodie + " choose your two numbers.");
    // Player 1 (red) starts; the waiting player's name is faded.
    EXPECT_EQ(d.backColor("p1"), 255u);
    EXPECT_NE(d.backColor("p2"), 65280u);
}

TEST(TwoPlayerFourInARow, TheMenusBoardPicturesOpenModesZeroToTwoAtTheChosenLevel)
{
    const int lows[] = {201, 250, 211}; // level 2: modes 0, 1 and 2
    for (int i = 0; i < 3; ++i) {
        Driver d;
        d.toMainMenu();
        d.newPupil();
        d.click("Command9");
        d.click("fourlev", 1);
        d.click("fourinrow", i);
        EXPECT_EQ(d.progress().FourRowOptionA.whole(), i);
        d.click("Command1");
        d.typeEnter("player1", "Ann");
        d.typeEnter("player2", "Ben");
        int lowest = 1000;
        for (int k = kFirst; k <= kLast; ++k)
            lowest = std::min(lowest, number(d, "xvalue", k));
        EXPECT_TRUE(lowest >= lows[i] && lowest < lows[i] + 50) << lowest;
        d.click("exit");
        EXPECT_EQ(d.frontName(), "pairmenu");
    }
}

TEST(TwoPlayerFourInARow, TurnsPassOnEveryClaimWrongCellAndPass)
{
    Game g;
    Driver &d = g.d;
    g.start();
    claim(d, 4, 4);
    EXPECT_EQ(d.backColor("Label1", 404), 255u);
    EXPECT_EQ(d.caption("playerstatus", 404) + d.caption("compstatus", 404), "45");
    EXPECT_EQ(d.caption("text1"), "Ben choose your two numbers.");
    EXPECT_EQ(d.backColor("p2"), 65280u);

    claim(d, 9, 9);
    EXPECT_EQ(d.backColor("Label1", 909), 65280u);
    EXPECT_EQ(d.caption("compstatus", 909) + d.caption("playerstatus", 909), "45");

    // A wrong cell by player 1 names player 2, who then has the turn; a double-click counts once.
    const int wrong = wrongCell(g.screen().board(), 5, 6);
    d.click("xvalue", 5);
    d.click("expression", 6);
    d.click("Label1", wrong);
    d.doubleClick("Label1", wrong);
    EXPECT_EQ(d.platform.messages(),
              std::vector<std::string>{"That is not correct! Your turn is passed to Ben."});
    EXPECT_EQ(d.caption("text1"), "Ben choose your two numbers.");
    // A double-click on PASS hands the turn over once, not there and back.
    d.click("pass");
    d.doubleClick("pass");
    EXPECT_EQ(d.caption("text1"), "Ann choose your two numbers.");
    d.click("Label1", wrong); // no numbers chosen: a reminder, nothing claimed
    EXPECT_EQ(g.screen().board().claimed(), 2);
}

TEST(TwoPlayerFourInARow, WinsAndDrawsAskAndTheOtherPlayerStartsTheNextGame)
{
    Game g;
    Driver &d = g.d;
    g.start();
    lay(g.screen().rig(), "RRR.../....../GGG...");
    d.platform.queueYes();
    claim(d, 4, 7);
    EXPECT_EQ(d.platform.lastMessage(), "Ann has won! Do you want another game?");
    EXPECT_EQ(g.screen().board().claimed(), 0);
    EXPECT_EQ(d.caption("text1"), "Ben choose your two numbers.");

    // Ben (green) fills the last cell of a board with no four.
    lay(g.screen().rig(), "RRGGRR/RRGGRR/GGRRGG/RRGGRR/GGRRGG/GGRRG.");
    d.platform.queueNo();
    claim(d, 9, 9);
    EXPECT_EQ(d.platform.lastMessage(), "The game is drawn. Do you want another go?");
    EXPECT_EQ(d.frontName(), "pairmenu");
    EXPECT_FALSE(d.isOpen("twoplayerfourinarow"));
}

} // namespace
} // namespace nb::test
