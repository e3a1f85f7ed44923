// Four in a row against the computer, played through the screen as a pupil would: the level
// question, the turn clock, the computer's thinking, claims, bad clicks, wins, losses and draws.
#include "games/fourinarow.h"
#include "FourRowTestSupport.h"
#include "core/NumberText.h"
#include "support/Driver.h"

#include <gtest/gtest.h>

namespace nb::test {
namespace {

using namespace fourrow;

const std::string kChoose = "Choose a number from the left, followed by a number from the right.";
const std::string kThinking = "Wait a moment, I am thinking!!!";

// The screen with its board open to the test, so a game can start from a laid-out position, and
// a note of what the board showed when the screen closed after its last question.
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
        colorAtClose = ctl("Label1", watched).backColor;
    }
    int watched = 404;
    static inline int marksAtClose = 0;
    static inline std::string textAtClose;
    static inline std::uint32_t colorAtClose = 0;
};

class FourInARowGame : public ::testing::Test
{
protected:
    FourInARowGame() { d.registry.add<RiggedFourInARow>("fourinarow", "Four in a row"); }
    RiggedFourInARow &screen() { return dynamic_cast<RiggedFourInARow &>(d.front()); }
    void start()
    {
        d.open("fourinarow");
        d.click("Command1");
    }
    // Lays claims on the board (the cells' colours are not the point here).
    void lay(const Rows &rows) { nb::test::lay(screen().rig(), rows); }
    int number(const char *side, int k) { return test::number(d, side, k); }
    void claim(int row, int col) { test::claim(d, row, col); }
    // A free cell that does not hold the sum of the first left and right numbers.
    int wrongCellFor(int l, int r)
    {
        const int sum = number("xvalue", l) + number("expression", r);
        for (int row = kFirst; row <= kLast; ++row)
            for (int col = kFirst; col <= kLast; ++col)
                if (screen().board().isFree(row, col) && screen().board().sum(row, col) != sum)
                    return cellId(row, col);
        return 0;
    }
    int claimed() { return screen().board().claimed(); }
    Driver d;
};

TEST_F(FourInARowGame, StoredLevelIsOfferedOnOpeningAndSetsTheNumbers)
{
    struct Case
    {
        int stored, reply; // reply 0: no question expected
        int level, lo, hi;
    } cases[] = {{0, 0, 1, 51, 99},   {1, 0, 1, 51, 99},      {4, kYes, 4, 201, 249},
                 {4, kNo, 1, 51, 99}, {9, kYes, 9, 451, 499}, {12, kYes, 12, 450, 498}};
    for (const Case &c : cases) {
        SCOPED_TRACE(c.stored);
        Driver drv;
        drv.progress().ExtraBestB = Value::int16(std::int16_t(c.stored));
        if (c.reply)
            drv.platform.queueYesNo(c.reply);
        drv.open("fourinarow");
        EXPECT_EQ(drv.platform.lastMessage(),
                  c.reply ? "You have reached level " + std::to_string(c.stored) +
                                " before, would you like to go straight to this level now?"
                          : "");
        EXPECT_EQ(drv.caption("level"), std::to_string(c.level));
        drv.click("Command1");
        for (int k = kFirst; k <= kLast; ++k)
            for (const char *side : {"xvalue", "expression"}) {
                const double v = readNumber(drv.caption(side, k));
                EXPECT_TRUE(v >= c.lo && v <= c.hi) << side << k << " " << v;
            }
    }
}

TEST_F(FourInARowGame, AClaimTurnsTheCellRedAndTheComputerAnswersAfterThinking)
{
    start();
    EXPECT_EQ(d.platform.messages(),
              std::vector<std::string>{"You are allowed 60 seconds for each turn."});
    EXPECT_EQ(d.caption("text1"), kChoose);
    EXPECT_EQ(d.caption("time"), "60");
    EXPECT_TRUE(d.timerOn("Timer2"));
    EXPECT_FALSE(d.enabled("Command1"));

    d.click("xvalue", 5);
    EXPECT_EQ(d.caption("text1"), kChoose);
    d.click("expression", 8);
    EXPECT_EQ(d.caption("text1"), "Add your two numbers together.");
    EXPECT_EQ(d.backColor("xvalue", 5), d.backColor("expression", 8));
    EXPECT_NE(d.backColor("xvalue", 5), d.backColor("xvalue", 4));
    d.tick("Timer2", 5);
    EXPECT_EQ(d.caption("time"), "55");

    claim(6, 6);
    EXPECT_EQ(d.backColor("Label1", 606), 255u);
    EXPECT_EQ(d.caption("playerstatus", 606), "4");
    EXPECT_EQ(d.caption("compstatus", 606), "5");
    EXPECT_FALSE(d.timerOn("Timer2"));
    EXPECT_TRUE(d.timerOn("Timer1"));
    EXPECT_EQ(d.caption("text1"), kThinking);
    EXPECT_NE(d.backColor("xvalue", 5), d.backColor("expression", 8)); // choices cleared

    const int beeps = d.platform.beeps;
    d.tick("Timer1");
    EXPECT_EQ(claimed(), 2);
    EXPECT_EQ(d.platform.beeps, beeps + 1);
    int green = 0;
    for (int r = kFirst; r <= kLast; ++r)
        for (int c = kFirst; c <= kLast; ++c)
            if (d.backColor("Label1", cellId(r, c)) == 65280u) {
                ++green;
                EXPECT_EQ(d.caption("compstatus", cellId(r, c)), "4");
                EXPECT_EQ(d.caption("playerstatus", cellId(r, c)), "5");
            }
    EXPECT_EQ(green, 1);
    // Free cells carry their scores: the pupil's one piece makes its neighbours 1 for the pupil.
    EXPECT_EQ(d.caption("playerstatus", 505) == "1" || d.backColor("Label1", 505) == 65280u, true);
    EXPECT_FALSE(d.timerOn("Timer1"));
    EXPECT_TRUE(d.timerOn("Timer2"));
    EXPECT_EQ(d.caption("time"), "60");
    EXPECT_EQ(d.caption("text1"), kChoose);
}

TEST_F(FourInARowGame, BadClicksNeverClaimOrMoveTwice)
{
    d.open("fourinarow");
    // Before Start nothing on the board answers. PASS is greyed whenever the pupil may not move,
    // and a click that reaches it all the same (queued before it greyed) does nothing.
    d.click("Label1", 404);
    EXPECT_FALSE(d.reachable("pass"));
    d.app.click(d.front(), "pass");
    d.tick("Timer1");
    d.tick("Timer2");
    EXPECT_EQ(claimed(), 0);
    EXPECT_TRUE(d.platform.shown.empty());

    d.click("Command1");
    d.click("Label1", 404); // before choosing numbers
    d.click("xvalue", 4);
    d.click("Label1", 404); // one number only
    EXPECT_EQ(claimed(), 0);
    EXPECT_EQ(d.caption("text1"), kChoose);
    EXPECT_EQ(d.platform.shown.size(), 1u);

    // The same side twice: the later choice counts.
    d.click("xvalue", 9);
    d.click("expression", 4);
    EXPECT_EQ(d.backColor("xvalue", 4), d.backColor("xvalue", 5));
    const int wrong = wrongCellFor(9, 4);
    d.click("Label1", wrong);
    d.doubleClick("Label1", wrong); // a double-click is one wrong claim, not two
    EXPECT_EQ(d.platform.messages().back(),
              "That is not correct! Your turn is passed to the computer.");
    EXPECT_EQ(d.platform.messages().size(), 2u);
    EXPECT_EQ(claimed(), 0);
    EXPECT_EQ(d.caption("text1"), kThinking);

    // While the computer thinks, numbers, cells, PASS and the pupil's clock do nothing.
    d.click("xvalue", 6);
    d.click("expression", 6);
    d.click("Label1", wrong);
    EXPECT_FALSE(d.reachable("pass"));
    d.app.click(d.front(), "pass");
    d.tick("Timer2", 70);
    EXPECT_EQ(claimed(), 0);
    EXPECT_EQ(d.platform.messages().size(), 2u);
    d.tick("Timer1");
    EXPECT_EQ(claimed(), 1);
    // A stray second tick of the thinking timer makes no second move.
    d.tick("Timer1");
    EXPECT_EQ(claimed(), 1);

    // A click on a claimed cell is not a claim, right sum or not.
    int held = 0;
    for (int id = 404; id <= 909 && !held; ++id)
        if (onBoard(id / 100, id % 100) && !screen().board().isFree(id / 100, id % 100))
            held = id;
    d.click("xvalue", 4);
    d.click("expression", 4);
    d.click("Label1", held);
    EXPECT_EQ(claimed(), 1);
    EXPECT_EQ(d.caption("text1"), "Add your two numbers together.");

    // PASS gives the turn away at once; a second PASS while thinking is ignored.
    d.click("pass");
    d.app.click(d.front(), "pass");
    EXPECT_EQ(d.caption("text1"), kThinking);
    d.tick("Timer1");
    EXPECT_EQ(claimed(), 2);
    EXPECT_EQ(d.caption("text1"), kChoose);
}

TEST_F(FourInARowGame, TheClockRunsOutAfterSixtySeconds)
{
    start();
    d.tick("Timer2", 59);
    EXPECT_EQ(d.caption("time"), "1");
    EXPECT_EQ(d.platform.messages().size(), 1u);
    d.tick("Timer2");
    EXPECT_EQ(d.caption("time"), "0");
    EXPECT_EQ(d.platform.messages().back(),
              "You ran out of time. Your turn passes to the computer.");
    EXPECT_FALSE(d.timerOn("Timer2"));
    EXPECT_EQ(d.caption("text1"), kThinking);
    d.tick("Timer2", 3); // late ticks change nothing
    EXPECT_EQ(d.platform.messages().size(), 2u);
    d.tick("Timer1");
    EXPECT_EQ(d.caption("time"), "60");
}

TEST_F(FourInARowGame, WinningMovesUpALevelAndKeepsTheHighestUpToNine)
{
    struct Case
    {
        int stored, reply; // the answer to going straight to the stored level
        int nextLevel, kept;
    } cases[] = {
        {0, 0, 2, 2}, {5, kNo, 2, 5}, {8, kYes, 9, 9}, {9, kYes, 10, 9}, {12, kYes, 13, 12}};
    for (const Case &c : cases) {
        SCOPED_TRACE(c.stored);
        d.progress().ExtraBestB = Value::int16(std::int16_t(c.stored));
        if (c.reply)
            d.platform.queueYesNo(c.reply);
        start();
        lay({"RRR...", "......", "......", "GG....", "......", "G....."});
        d.platform.queueYes();
        claim(4, 7);
        EXPECT_EQ(d.platform.lastMessage(),
                  "Well done, you have won! Do you want to try the next level?");
        EXPECT_EQ(d.caption("level"), std::to_string(c.nextLevel));
        EXPECT_EQ(d.progress().ExtraBestB.whole(), c.kept);
        // A new board at the next level, the pupil to move.
        EXPECT_EQ(claimed(), 0);
        EXPECT_EQ(d.caption("text1"), kChoose);
        EXPECT_TRUE(d.timerOn("Timer2"));
        EXPECT_FALSE(d.visible("winmark", 0));
        const double low = c.nextLevel < 10 ? 50 * c.nextLevel + 1 : 450;
        EXPECT_GE(readNumber(d.caption("xvalue", 4)), low);
        EXPECT_LE(readNumber(d.caption("xvalue", 4)), low + 48);
        d.app.close(d.front());
    }
}

TEST_F(FourInARowGame, EveryEndOfGameAsksAndNoGoesBackToTheMenu)
{
    struct Case
    {
        const char *what;
        Rows rows;
        bool pupilMoves; // else the pupil passes and the computer moves
        Cell cell;
        std::string question;
        int marks;
        std::string result;
    } cases[] = {
        {"pupil wins",
         {"RRR...", "......", "......", "GG....", "......", "G....."},
         true,
         {4, 7},
         "Well done, you have won! Do you want to try the next level?",
         4,
         "Well done, you have won!"},
        // The computer completes its own three before blocking the pupil's.
        {"computer wins",
         {"RRR...", "......", "GGG...", "......", "R.....", "......"},
         false,
         {6, 7},
         "The computer has won. Do you want another go?",
         4,
         "The computer has won."},
        {"pupil fills the board",
         {"RRGGRR", "RRGGRR", "GGRRGG", "RRGGRR", "GGRRGG", "GG.RGG"},
         true,
         {9, 6},
         "The game is drawn. Do you want another go?",
         0,
         "The game is drawn."},
        {"computer fills the board",
         {"RRGGRR", "RRGGRR", "GGRRGG", "RRGGRR", "GGRRGG", "GGRRG."},
         false,
         {9, 9},
         "The game is drawn. Do you want another go?",
         0,
         "The game is drawn."},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.what);
        for (const int reply : {kYes, kNo}) {
            Driver drv;
            drv.registry.add<RiggedFourInARow>("fourinarow", "Four in a row");
            drv.open("fourinarow");
            drv.click("Command1");
            auto &s = dynamic_cast<RiggedFourInARow &>(drv.front());
            nb::test::lay(s.rig(), c.rows);
            s.watched = cellId(c.cell.row, c.cell.col);
            drv.platform.queueYesNo(reply);
            if (c.pupilMoves) {
                test::claim(drv, c.cell.row, c.cell.col);
            } else {
                drv.click("pass");
                drv.tick("Timer1");
            }
            EXPECT_EQ(drv.platform.lastMessage(), c.question);
            if (reply == kNo) {
                EXPECT_EQ(drv.frontName(), "addmenu");
                EXPECT_FALSE(drv.isOpen("fourinarow"));
                // The four was marked and the result shown before the question; the last cell has
                // its colour.
                EXPECT_EQ(RiggedFourInARow::marksAtClose, c.marks);
                EXPECT_EQ(RiggedFourInARow::textAtClose, c.result);
                EXPECT_EQ(RiggedFourInARow::colorAtClose, c.pupilMoves ? 255u : 65280u);
            } else {
                EXPECT_EQ(drv.frontName(), "fourinarow");
                EXPECT_EQ(dynamic_cast<RiggedFourInARow &>(drv.front()).board().claimed(), 0);
                EXPECT_EQ(drv.caption("text1"), kChoose);
            }
        }
    }
}

} // namespace
} // namespace nb::test
