// Snap for two pupils, driven as they would play it: names typed into their boxes, cards dealt by
// the clock, calls by key. Whether a pair snaps is worked out from the calculations on show, not
// from the card numbers, so a deck that paired the wrong cards would be caught here.
#include "SnapCaption.h"
#include "games/twoplayersnap.h"
#include "shell/AllScreens.h"
#include "support/Driver.h"

#include <gtest/gtest.h>

#include <array>
#include <set>

namespace nb::test {
namespace {

using namespace std::chrono_literals;

class Snap : public ::testing::Test
{
protected:
    void play(int level = 1)
    {
        d.progress().SnapOption = Value::int16(std::int16_t(level));
        d.open("twoplayersnap");
        d.click("start");
        d.typeEnter("player1", "Ann");
        d.typeEnter("player2", "Bob");
    }
    TwoPlayerSnap &game() { return dynamic_cast<TwoPlayerSnap &>(d.front()); }
    int total() { return game().points(0) + game().points(1); }
    // Deals until two cards are on show whose calculations do (or do not) have the same value.
    bool dealUntil(bool snapping)
    {
        for (int n = 0; n < 500; ++n, d.tick("Timer1")) {
            const auto beneath = captionValue(d.caption("cardface", 0));
            if (beneath && (beneath == captionValue(d.caption("cardface", 1))) == snapping)
                return true;
        }
        return false;
    }
    void press(int key) // a fresh press, well after any earlier one
    {
        d.platform.clock_ += 1s;
        d.screenKey(key);
    }
    Driver d;
};

TEST_F(Snap, LevelSetsTheDealingClockAndNamesMustBeShorterThanFifteenLetters)
{
    const int intervals[][2] = {{1, 2500}, {2, 3000}, {3, 3500}, {0, 2500}, {9, 2500}};
    for (const auto &[option, interval] : intervals) {
        Driver drv;
        drv.progress().SnapOption = Value::int16(std::int16_t(option));
        drv.open("twoplayersnap");
        EXPECT_EQ(drv.interval("Timer1"), interval) << option;
        EXPECT_EQ(drv.caption("p1score"), " : 0");
    }
    d.open("twoplayersnap");
    EXPECT_EQ(d.registry.find("twoplayersnap")->title, "snap");
    d.click("start");
    EXPECT_EQ(d.caption("instruct"), "Player 1, enter your name.");
    // Blank names wait quietly; 15 letters or more (counted as letters, not bytes) are refused.
    const std::pair<std::string, bool> refused[] = {{"", false},
                                                    {"    ", false},
                                                    {"Abcdefghijklmno", true},
                                                    {"Zo\u00EB Zo\u00EB Zo\u00EB Zo\u00EB", true},
                                                    {std::string(5000, 'x'), true}};
    for (const auto &[typed, message] : refused) {
        d.platform.clearShown();
        d.setText("player1", typed);
        d.enter("player1");
        EXPECT_EQ(d.platform.lastMessage(), message ? "You must use less than 15 letters." : "");
        EXPECT_TRUE(d.reachable("player1"));
        EXPECT_EQ(d.caption("player1"), message ? "" : typed);
    }
    d.setText("player1", "  Zo\u00EB Abcdefghij "); // 14 letters once the blanks are gone
    d.enter("player1");
    EXPECT_EQ(d.caption("p1score"), "Zo\u00EB Abcdefghij : 0");
    EXPECT_EQ(d.caption("instruct"), "Player 2, enter your name.");
    d.typeEnter("player2", "Lalala"); // the A and L of a name call nothing
    EXPECT_EQ(d.caption("p2score"), "Lalala : 0");
    EXPECT_EQ(d.caption("instruct"), "Press your key to call SNAP!");
    EXPECT_EQ(d.caption("rule"), "First to get 5 points wins.");
    EXPECT_TRUE(d.timerOn("Timer1"));
    EXPECT_EQ(game().cardsDealt(), 1);
    EXPECT_EQ(d.front().focusName(), "start");
    d.click("start"); // starts only once
    EXPECT_EQ(game().cardsDealt(), 1);
}

TEST_F(Snap, ARightCallBeepsAndScoresForTheCallerAndAWrongOneForTheOther)
{
    struct Case
    {
        int key;
        bool snapping;
        int scorer;
    } cases[] = {{'a', true, 0},  {'A', true, 0},  {'l', true, 1},  {'L', true, 1},
                 {'a', false, 1}, {'A', false, 1}, {'l', false, 0}, {'L', false, 0}};
    play(); // one game: each player ends on four points, one short of winning
    for (const Case &c : cases) {
        SCOPED_TRACE(std::string(1, char(c.key)) + (c.snapping ? " right" : " wrong"));
        ASSERT_TRUE(dealUntil(c.snapping));
        const int dealt = game().cardsDealt(), justDealt = game().cardOnShow(1);
        const unsigned restarts = d.control("Timer1").timerRestarts;
        const int beeps = d.platform.beeps;
        const std::array<int, 2> before = {game().points(0), game().points(1)};
        press(c.key);
        EXPECT_EQ(d.platform.beeps, beeps + (c.snapping ? 1 : 0));
        EXPECT_EQ(game().points(c.scorer), before[std::size_t(c.scorer)] + 1);
        EXPECT_EQ(game().points(1 - c.scorer), before[std::size_t(1 - c.scorer)]);
        EXPECT_EQ(d.caption(c.scorer ? "p2score" : "p1score"),
                  (c.scorer ? "Bob : " : "Ann : ") + std::to_string(game().points(c.scorer)));
        const bool one = c.key == 'a' || c.key == 'A';
        EXPECT_EQ(d.caption(one ? "p1said" : "p2said"), c.snapping ? "SNAP!  +1" : "Not a snap!");
        EXPECT_EQ(d.caption(one ? "p2said" : "p1said"), c.snapping ? "" : "+1");
        // The next card comes at once and stays for a whole interval.
        EXPECT_EQ(game().cardsDealt(), dealt + 1);
        EXPECT_EQ(game().cardOnShow(0), justDealt);
        EXPECT_EQ(d.control("Timer1").timerRestarts, restarts + 1);
    }
}

TEST_F(Snap, KeysThatAreNotCallsScoreNothing)
{
    d.open("twoplayersnap");
    press('a'); // before START
    d.click("start");
    press('L'); // while names are typed
    d.typeEnter("player1", "Ann");
    d.typeEnter("player2", "Bob");
    press('a'); // one card on show
    ASSERT_TRUE(dealUntil(true));
    for (int key : {98, 107, 32, 13, 27, 8, 48, 0xE1, 0x4E2D, 0, -1, 'a' + 256})
        press(key);
    EXPECT_EQ(total(), 0);
    EXPECT_EQ(d.platform.beeps, 0);
}

TEST_F(Snap, EveryPressIsACallOnTheCardsOnShowHoweverFastTheyCome)
{
    play();
    ASSERT_TRUE(dealUntil(true));
    // Both players see the snap and press at the same instant, then both press again a tenth of a
    // second later: each press is judged on the pair on show when it comes, A's first.
    struct Press
    {
        char key;
        std::chrono::milliseconds after;
    } presses[] = {{'a', 0ms}, {'L', 0ms}, {'l', 100ms}, {'A', 0ms}};
    std::array<int, 2> expected{};
    int rights = 0;
    for (const Press &p : presses) { // four calls: nobody can reach five
        SCOPED_TRACE(std::string(1, p.key));
        const auto beneath = captionValue(d.caption("cardface", 0));
        const bool right = beneath && beneath == captionValue(d.caption("cardface", 1));
        const int caller = p.key == 'a' || p.key == 'A' ? 0 : 1;
        ++expected[std::size_t(right ? caller : 1 - caller)];
        rights += right ? 1 : 0;
        d.platform.clock_ += p.after;
        d.screenKey(p.key);
        EXPECT_EQ(game().points(0), expected[0]);
        EXPECT_EQ(game().points(1), expected[1]);
    }
    EXPECT_EQ(total(), 4);
    EXPECT_EQ(d.platform.beeps, rights);
    EXPECT_GE(game().points(0), 1) << "A was first on the snap";
}

TEST_F(Snap, AKeyHeldDownCallsOnceWhileItRepeatsQuickly)
{
    play();
    ASSERT_TRUE(dealUntil(true));
    // A repeating every 40 ms for two seconds, over several deals; the other player's key at the
    // same time is a press of its own.
    for (int n = 0; n < 50; ++n, d.platform.clock_ += 40ms) {
        d.screenKey('a');
        if (n == 10)
            d.screenKey('l');
        if (n % 20 == 19)
            d.tick("Timer1");
    }
    EXPECT_EQ(total(), 2);
    EXPECT_GE(game().points(0), 1) << "the first press of A was on the snap";
    d.platform.clock_ += 100ms; // let go and pressed again
    d.screenKey('a');
    EXPECT_EQ(total(), 3);
    d.platform.clock_ -= 1h; // the clock set back: still a press
    d.screenKey('a');
    EXPECT_EQ(total(), 4);
}

TEST_F(Snap, AWrongCallThatBringsTheOtherPlayerToFiveEndsTheGame)
{
    play(2);
    for (int n = 0; n < TwoPlayerSnap::kWinningPoints; ++n) {
        ASSERT_TRUE(dealUntil(false));
        if (n == TwoPlayerSnap::kWinningPoints - 1)
            d.platform.queueYes();
        press('a');
    }
    EXPECT_EQ(d.platform.lastMessage(), "Bob has won! Do you want another game?");
    EXPECT_EQ(d.caption("p2score"), "Bob : 0") << "another game starts from nothing";
    EXPECT_EQ(game().cardsDealt(), 1);
    for (int n = 0; n < TwoPlayerSnap::kWinningPoints; ++n) {
        ASSERT_TRUE(dealUntil(true));
        if (n == TwoPlayerSnap::kWinningPoints - 1)
            d.platform.queueNo();
        press('a');
    }
    EXPECT_EQ(d.platform.lastMessage(), "Ann has won! Do you want another game?");
    EXPECT_EQ(d.frontName(), "pairmenu");
    EXPECT_FALSE(d.isOpen("twoplayersnap"));
}

TEST_F(Snap, ADealtOutDeckIsReshuffledAndDealingGoesOn)
{
    play(3);
    for (int round = 0; round < 3; ++round) {
        std::set<int> dealt;
        for (int n = 0; n < 48; ++n, d.tick("Timer1")) {
            dealt.insert(game().cardOnShow(1));
            ASSERT_EQ(captionValue(d.caption("cardface", 1)),
                      game().deck().value(game().cardOnShow(1)));
        }
        EXPECT_EQ(dealt.size(), 48u);
        EXPECT_EQ(d.platform.lastMessage(),
                  "All the cards have been dealt. Shuffle and deal again.");
        // The pile went back into the deck: one card on show, nothing to call on yet.
        EXPECT_EQ(game().cardsDealt(), 1);
        EXPECT_EQ(game().cardOnShow(0), -1);
        d.platform.clearShown();
    }
    // A call on the last card of a deal shuffles before the next card.
    while (game().cardsDealt() < 48)
        d.tick("Timer1");
    press('a');
    EXPECT_EQ(total(), 1);
    EXPECT_EQ(game().cardsDealt(), 1);
}

// Boxes that let both players hammer their keys while they are open.
class KeysDuringBoxes : public FakePlatform
{
public:
    App *app = nullptr;
    void message(const std::string &text, const std::string &title, MsgIcon icon,
                 const std::string &details) override
    {
        hammer();
        FakePlatform::message(text, title, icon, details);
    }
    int askYesNo(const std::string &text, const std::string &title) override
    {
        hammer();
        return FakePlatform::askYesNo(text, title);
    }
    void hammer()
    {
        for (int key : {'a', 'L', 'A', 'l'}) {
            clock_ += 1s; // fresh presses, not a key held down
            app->screenKey(*app->front(), key);
        }
    }
};

TEST(SnapBoxes, KeysPressedWhileABoxIsOpenDoNothing)
{
    KeysDuringBoxes platform;
    ScreenRegistry registry;
    registerAllScreens(registry);
    App app(platform, registry);
    platform.app = &app;
    Screen &s = *app.show("twoplayersnap");
    auto &game = dynamic_cast<TwoPlayerSnap &>(s);
    app.click(s, "start");
    for (const char *name : {"Ann Abcdefghijklmn", "Ann"}) { // too long first: a message
        s.ctl("player1").caption = name;
        app.keyPress(s, "player1", -1, 13);
    }
    s.ctl("player2").caption = "Bob";
    app.keyPress(s, "player2", -1, 13);
    for (int n = 0; n < 48; ++n) // the last tick brings the reshuffle message
        app.timerTick(s, "Timer1");
    EXPECT_EQ(game.points(0) + game.points(1), 0);
    // Four wrong calls by Ann, then a fifth that ends the game: the keys hammered during the
    // question would end it again (an unexpected second question) if they counted.
    const std::string won = "Bob has won! Do you want another game?";
    while (platform.lastMessage() != won) {
        app.timerTick(s, "Timer1");
        if (game.cardOnShow(0) < 0 || snap::snaps(game.cardOnShow(0), game.cardOnShow(1)))
            continue;
        if (game.points(1) == TwoPlayerSnap::kWinningPoints - 1)
            platform.queueYes();
        platform.clock_ += 1s;
        app.screenKey(s, 'a');
    }
    EXPECT_EQ(game.points(0) + game.points(1), 0);
}

TEST_F(Snap, ExitDuringAGameLeavesForTheGamesMenu)
{
    play();
    d.click("exit");
    EXPECT_EQ(d.frontName(), "pairmenu");
    EXPECT_FALSE(d.isOpen("twoplayersnap"));
}

} // namespace
} // namespace nb::test
