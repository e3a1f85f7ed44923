// Four in a row against the computer, played through the screen as a pupil would.
#include "games/fourinarow.h"
#include "FourRowTestSupport.h"

#include <gtest/gtest.h>

namespace nb::test {
namespace {

using namespace fourrow;

const std::string kChoose = "Choose a number from the left, followed by a number from the right.";
const std::string kThinking = "Wait a moment, I am thinking!!!";

// The board open to the test, and what the screen showed when it closed.
class RiggedFourInARow : public FourInARow
{
public:
    using FourInARow::FourInARow;
    FourRowBoard &rig() { return board_; }
    void onClosing() override
    {
        marksAtClose = 0;
        for (int k = 0; k < kSide; ++k)
            marksAtClose += ctl("winmark", k).visible;
        textAtClose = ctl("text1").caption;
    }
    static inline int marksAtClose = 0;
    static inline std::string textAtClose;
};

struct Game
{
    Game() { d.registry.add<RiggedFourInARow>("fourinarow", "Four in a row"); }
    RiggedFourInARow &screen() { return dynamic_cast<RiggedFourInARow &>(d.front()); }
    int claimed() { return screen().board().claimed(); }
    void start()
    {
        d.open("fourinarow");
        d.click("Command1");
    }
    Driver d;
};

TEST(FourInARow, TheAdditionMenuOpensItAndExitGoesBack)
{
    Driver d;
    d.toMainMenu();
    d.newPupil();
    d.click("Command5");
    d.click("fourinrow");
    ASSERT_EQ(d.frontName(), "fourinarow");
    EXPECT_FALSE(d.isOpen("addmenu"));
    EXPECT_EQ(d.front().focusName(), "Command1") << "Enter starts the game, never leaves it";
    d.click("Command1");
    d.click("exit");
    EXPECT_EQ(d.frontName(), "addmenu");
    EXPECT_FALSE(d.isOpen("fourinarow"));
}

TEST(FourInARow, StoredLevelIsOfferedAndAWinMovesUpKeepingTheHighestUpToNine)
{
    const struct Case
    {
        int stored, reply; // reply 0: no question expected
        int level, next, kept;
    } cases[] = {{0, 0, 1, 2, 2},    {1, 0, 1, 2, 2},     {5, kNo, 1, 2, 5},
                 {8, kYes, 8, 9, 9}, {9, kYes, 9, 10, 9}, {12, kYes, 12, 13, 12}};
    for (const Case &c : cases) {
        SCOPED_TRACE(c.stored);
        Game g;
        Driver &d = g.d;
        d.progress().ExtraBestB = Value::int16(std::int16_t(c.stored));
        if (c.reply)
            d.platform.queueYesNo(c.reply);
        g.start();
        EXPECT_EQ(d.platform.shown.front().text,
                  c.reply ? "You have reached level " + std::to_string(c.stored) +
                                " before, would you like to go straight to this level now?"
                          : "You are allowed 60 seconds for each turn.");
        for (int level : {c.level, c.next}) {
            EXPECT_EQ(d.caption("level"), std::to_string(level));
            const int low = level < 10 ? 50 * level + 1 : 450;
            for (int k = kFirst; k <= kLast; ++k)
                for (const char *side : {"xvalue", "expression"})
                    EXPECT_TRUE(number(d, side, k) >= low && number(d, side, k) <= low + 48);
            if (level == c.next)
                break;
            lay(g.screen().rig(), "RRR.../....../....../GG..../....../G.....");
            d.platform.queueYes();
            claim(d, 4, 7);
        }
        EXPECT_EQ(d.progress().ExtraBestB.whole(), c.kept);
    }
}

TEST(FourInARow, ATurnRunsOnTheClockAndTheComputerAnswersAfterThinking)
{
    Game g;
    Driver &d = g.d;
    g.start();
    EXPECT_EQ(d.caption("text1"), kChoose);
    EXPECT_EQ(d.caption("time"), "60");
    d.click("xvalue", 5);
    d.click("expression", 8);
    EXPECT_EQ(d.caption("text1"), "Add your two numbers together.");
    EXPECT_EQ(d.backColor("xvalue", 5), d.backColor("expression", 8)); // both marked chosen
    EXPECT_NE(d.backColor("xvalue", 5), d.backColor("xvalue", 4));
    d.tick("Timer2", 5);
    EXPECT_EQ(d.caption("time"), "55");

    claim(d, 6, 6);
    EXPECT_EQ(d.backColor("Label1", 606), 255u);
    EXPECT_EQ(d.caption("playerstatus", 606) + d.caption("compstatus", 606), "45");
    EXPECT_FALSE(d.timerOn("Timer2"));
    EXPECT_TRUE(d.timerOn("Timer1"));
    EXPECT_EQ(d.caption("text1"), kThinking);

    d.tick("Timer1");
    EXPECT_EQ(g.claimed(), 2);
    EXPECT_EQ(d.platform.beeps, 1);
    int green = 0;
    for (int r = kFirst; r <= kLast; ++r)
        for (int c = kFirst; c <= kLast; ++c)
            if (d.backColor("Label1", cellId(r, c)) == 65280u) {
                ++green;
                EXPECT_EQ(d.caption("compstatus", cellId(r, c)) +
                              d.caption("playerstatus", cellId(r, c)),
                          "45");
            }
    EXPECT_EQ(green, 1);
    EXPECT_TRUE(d.timerOn("Timer2"));
    EXPECT_EQ(d.caption("time"), "60");
    EXPECT_EQ(d.caption("text1"), kChoose);

    // Sixty seconds without a claim give the turn away; late ticks change nothing.
    d.tick("Timer2", 60);
    EXPECT_EQ(d.caption("time"), "0");
    EXPECT_EQ(d.platform.lastMessage(), "You ran out of time. Your turn passes to the computer.");
    EXPECT_EQ(d.caption("text1"), kThinking);
    d.tick("Timer2", 3);
    EXPECT_EQ(d.platform.shown.size(), 2u);
    d.tick("Timer1");
    EXPECT_EQ(g.claimed(), 3);
}

TEST(FourInARow, BadClicksNeverClaimOrMoveTwice)
{
    Game g;
    Driver &d = g.d;
    d.open("fourinarow");
    // Before Start nothing answers; PASS is greyed, and a click that reaches it does nothing.
    d.click("Label1", 404);
    EXPECT_FALSE(d.reachable("pass"));
    d.app.click(d.front(), "pass");
    d.tick("Timer1");
    d.tick("Timer2");
    EXPECT_TRUE(d.platform.shown.empty());

    d.click("Command1");
    d.click("Label1", 404); // no numbers chosen
    d.click("xvalue", 4);
    d.click("Label1", 404); // one number only
    EXPECT_EQ(g.claimed(), 0);
    EXPECT_EQ(d.caption("text1"), kChoose);

    // The same side twice: the later choice counts. A double-click on a wrong cell counts once.
    d.click("xvalue", 9);
    d.click("expression", 4);
    EXPECT_EQ(d.backColor("xvalue", 4), d.backColor("xvalue", 5));
    const int wrong = wrongCell(g.screen().board(), 9, 4);
    d.click("Label1", wrong);
    d.doubleClick("Label1", wrong);
    EXPECT_EQ(
        d.platform.messages(),
        (std::vector<std::string>{"You are allowed 60 seconds for each turn.",
                                  "That is not correct! Your turn is passed to the computer."}));
    EXPECT_EQ(d.caption("text1"), kThinking);

    // While the computer thinks, numbers, cells, PASS and the pupil's clock do nothing.
    d.click("xvalue", 6);
    d.click("expression", 6);
    d.click("Label1", wrong);
    d.app.click(d.front(), "pass");
    d.tick("Timer2", 70);
    EXPECT_EQ(g.claimed(), 0);
    EXPECT_EQ(d.platform.shown.size(), 2u);
    d.tick("Timer1", 2); // a stray second tick makes no second move
    EXPECT_EQ(g.claimed(), 1);

    // A claimed cell does not answer, right sum or not; PASS gives the turn away once.
    int held = 0;
    for (int id = 404; !held; ++id)
        held =
            onBoard(id / 100, id % 100) && !g.screen().board().isFree(id / 100, id % 100) ? id : 0;
    d.click("xvalue", 4);
    d.click("expression", 4);
    d.click("Label1", held);
    EXPECT_EQ(g.claimed(), 1);
    d.click("pass");
    d.app.click(d.front(), "pass");
    d.tick("Timer1");
    EXPECT_EQ(g.claimed(), 2);
    EXPECT_EQ(d.caption("text1"), kChoose);
}

TEST(FourInARow, EveryEndOfGameAsksAndNoGoesBackToTheMenu)
{
    const struct Case
    {
        std::string_view rows;
        bool pupilMoves; // else the pupil passes and the computer moves
        Cell cell;
        std::string result;
    } cases[] = {
        {"RRR.../....../....../GG..../....../G.....", true, {4, 7}, "Well done, you have won!"},
        // The computer completes its own three rather than block the pupil's.
        {"RRR.../....../GGG.../....../R.....", false, {6, 7}, "The computer has won."},
        {"RRGGRR/RRGGRR/GGRRGG/RRGGRR/GGRRGG/GG.RGG", true, {9, 6}, "The game is drawn."},
        {"RRGGRR/RRGGRR/GGRRGG/RRGGRR/GGRRGG/GGRRG.", false, {9, 9}, "The game is drawn."},
    };
    for (const Case &c : cases) {
        for (const int reply : {kYes, kNo}) {
            SCOPED_TRACE(testing::Message() << c.result << reply);
            Game g;
            Driver &d = g.d;
            g.start();
            lay(g.screen().rig(), c.rows);
            d.platform.queueYesNo(reply);
            if (c.pupilMoves) {
                claim(d, c.cell.row, c.cell.col);
            } else {
                d.click("pass");
                d.tick("Timer1");
            }
            const bool won = c.result == "Well done, you have won!",
                       drawn = c.result == "The game is drawn.";
            EXPECT_EQ(d.platform.lastMessage(),
                      c.result + (won ? " Do you want to try the next level?"
                                      : " Do you want another go?"));
            if (reply == kNo) {
                EXPECT_EQ(d.frontName(), "addmenu");
                EXPECT_FALSE(d.isOpen("fourinarow"));
                // The result and the framed four were on show behind the question.
                EXPECT_EQ(RiggedFourInARow::marksAtClose, drawn ? 0 : 4);
                EXPECT_EQ(RiggedFourInARow::textAtClose, c.result);
            } else {
                EXPECT_EQ(g.claimed(), 0);
                EXPECT_EQ(d.caption("text1"), kChoose);
                EXPECT_FALSE(d.visible("winmark", 0));
            }
        }
    }
}

} // namespace
} // namespace nb::test
