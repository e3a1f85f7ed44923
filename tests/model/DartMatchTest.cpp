// The two-player darts matches on the three boards.
#include "DartsTestSupport.h"
#include "games/DartBoard.h"
#include "games/DartsCheckout.h"
#include "games/DartsFrame.h"
#include "games/dart.h"
#include "support/Driver.h"

#include <gtest/gtest.h>

namespace nb::test {
namespace {

using namespace darts;

const char *const kName1 = "Player 1 please enter your name (maximum 8 letters).";
const char *const kName2 = "Player 2 please enter your name (maximum 8 letters).";
const char *const kLegs = "What number of games will be needed to win ?.";

const PointTw kT20{5940, 2480}, kT7 = bedAimPoint(false, 7, Bed::Treble), kD20{5940, 1380},
                                kMiss{DartsFrame::kBoardLeft + 30, DartsFrame::kBoardTop + 30};

// Ann and Bob play for a number of games, with no wobble.
void startMatch(Driver &d, const std::string &screen, int legs)
{
    d.open(screen);
    for (const std::string &reply : {std::string("Ann"), std::string("Bob"), std::to_string(legs)})
        d.platform.queueInput(reply);
    d.click("Command1");
    setWobble(d, 0);
}

class DartMatch : public ::testing::Test
{
protected:
    void start(const std::string &screen, int legs) { startMatch(d, screen, legs); }
    // One dart at a point, answered right in the thrower's own box.
    void dart(PointTw p)
    {
        ASSERT_TRUE(d.pressAt(p.x, p.y));
        for (auto [box, label] : {std::pair{"newtarget", "target"}, {"newtargetcom", "targetcom"}})
            if (d.reachable(box))
                d.typeEnter(box, std::to_string(std::stoi(d.caption(label)) - shownScore(d)));
    }
    void turn(PointTw a, PointTw b, PointTw c)
    {
        dart(a);
        dart(b);
        dart(c);
        ASSERT_TRUE(d.timerOn("Timer1")); // a short pause before the other player
        d.tick("Timer1");
    }
    Driver d;
};

TEST_F(DartMatch, LongNamesAndBadNumbersOfGamesAreAskedAgain)
{
    d.open("dart");
    for (const char *reply : {"Alexandrina", "  Zoë  ", "Christopher", "Nikolaus", "0", "-2",
                              "three", "1000", "2.5", "10", " 3 "})
        d.platform.queueInput(reply);
    d.click("Command1");
    std::vector<std::string> asked;
    for (const Shown &s : d.platform.shown)
        asked.push_back(s.text);
    const std::string rule = Dart::kLegsRule;
    EXPECT_EQ(asked, std::vector<std::string>({kName1, kName1, kName2, kName2, kLegs, rule, kLegs,
                                               rule, kLegs, rule, kLegs, rule, kLegs, rule, kLegs,
                                               rule, kLegs}));
    EXPECT_EQ(d.caption("player1"), "Zoë");
    EXPECT_EQ(d.caption("player2"), "Nikolaus");
    EXPECT_EQ(d.caption("legsinfo"), "First to 3 games wins the match.");
    EXPECT_EQ(d.caption("text3"), "Zoë, throw dart 1: click on the board.");
    EXPECT_EQ(d.caption("player1score") + d.caption("player2score"), "00");
}

TEST_F(DartMatch, CancellingAQuestionStartsNoGameAndStopsNone)
{
    // Cancel at the last question: no game, and the board says how to start one.
    Driver fresh;
    fresh.open("quaddarts");
    for (const char *reply : {"Ann", "Bob", ""})
        fresh.platform.queueInput(reply);
    fresh.click("Command1");
    EXPECT_EQ(fresh.caption("player1"), "Player 1");
    ASSERT_TRUE(fresh.pressAt(kT20.x, kT20.y));
    EXPECT_FALSE(fresh.visible("arrow", 0));
    EXPECT_EQ(fresh.caption("text3"), "Press START to begin.");
    // START in the middle of a game, then Cancel: the game goes on as it was.
    start("quaddarts", 2);
    dart(kT20);
    d.platform.queueInput("Cat");
    d.platform.queueInput("");
    d.click("Command1");
    EXPECT_EQ(d.caption("player1"), "Ann");
    EXPECT_EQ(d.caption("text3"), "Ann, throw dart 2: click on the board.");
    dart(kT20);
    EXPECT_TRUE(d.visible("arrow", 1));
}

TEST_F(DartMatch, PlayersTakeTurnsInTheirOwnBoxesAndWinLegsTheMatchAndAnother)
{
    start("dart", 2);
    turn(kT20, kT20, kT20); // Ann: 121
    EXPECT_EQ(d.caption("target"), "121");
    EXPECT_EQ(d.caption("text3"), "Bob, throw dart 1: click on the board.");
    ASSERT_TRUE(d.pressAt(kMiss.x, kMiss.y));
    EXPECT_FALSE(d.reachable("newtarget"));
    EXPECT_EQ(d.front().focusName(), "newtargetcom");
    d.typeEnter("newtargetcom", "301");
    dart(kMiss);
    dart(kMiss);
    // Between turns the board takes no darts.
    ASSERT_TRUE(d.pressAt(kT20.x, kT20.y));
    EXPECT_EQ(d.caption("text3"), "Wait a moment: Ann throws next.");
    d.tick("Timer1");
    dart(kT20);
    dart(kT7);
    dart(kD20); // out: the first leg is Ann's
    EXPECT_EQ(d.platform.lastMessage(), "Ann is the winner of that leg!!");
    EXPECT_EQ(d.caption("player1score"), "1");
    EXPECT_EQ(d.caption("target") + d.caption("targetcom"), "301301");
    // Bob throws first in the second leg.
    EXPECT_EQ(d.caption("text3"), "Bob, throw dart 1: click on the board.");
    turn(kMiss, kMiss, kMiss);
    turn(kT20, kT20, kT20);
    turn(kMiss, kMiss, kMiss);
    // Yes to another game: the questions again, and a new match.
    d.platform.queueYes();
    for (const char *reply : {"Cat", "Dan", "1"})
        d.platform.queueInput(reply);
    dart(kT20);
    dart(kT7);
    dart(kD20);
    std::vector<std::string> last;
    for (auto it = d.platform.shown.end() - 6; it != d.platform.shown.end() - 3; ++it)
        last.push_back(it->text);
    EXPECT_EQ(last, std::vector<std::string>({"Ann is the winner of that leg!!",
                                              "Ann has won by 2 games to 0",
                                              "Do you want another game ?"}));
    EXPECT_EQ(d.caption("player1") + d.caption("player2"), "CatDan");
    EXPECT_EQ(d.caption("player1score") + d.caption("player2score"), "00");
    EXPECT_EQ(d.caption("target") + d.caption("targetcom"), "301301");
    d.click("Command14");
    EXPECT_EQ(d.frontName(), "pairmenu");
    EXPECT_FALSE(d.isOpen("dart"));
}

TEST_F(DartMatch, EachBoardScoresItsOwnRings)
{
    struct Case
    {
        const char *screen;
        double r;
        const char *bed, *number;
    } cases[] = {
        // One point per board where the other boards score differently.
        {"doubledarts", 150, "Single", "6"},
        {"quaddarts", 900, "Quad", "6"},
        {"dart", 1300, "Treble", "6"},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(std::string(c.screen) + " " + std::to_string(c.r));
        Driver drv;
        startMatch(drv, c.screen, 1);
        ASSERT_TRUE(drv.pressAt(kCentreX + c.r, kCentreY));
        EXPECT_EQ(drv.caption("text1"), c.bed);
        EXPECT_EQ(drv.caption("text2"), c.number);
    }
}

} // namespace
} // namespace nb::test
