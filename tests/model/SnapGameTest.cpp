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
    void openAt(int level)
    {
        d.progress().SnapOption = Value::int16(std::int16_t(level));
        d.open("twoplayersnap");
    }
    void play(int level = 1, const std::string &one = "Ann", const std::string &two = "Bob")
    {
        openAt(level);
        d.click("start");
        d.typeEnter("player1", one);
        d.typeEnter("player2", two);
    }
    TwoPlayerSnap &game() { return dynamic_cast<TwoPlayerSnap &>(d.front()); }
    // The calculations on show have the same value (and there are two cards).
    bool pairSnaps()
    {
        const auto beneath = captionValue(d.caption("cardface", 0));
        const auto dealt = captionValue(d.caption("cardface", 1));
        EXPECT_TRUE(dealt.has_value()) << d.caption("cardface", 1);
        return beneath && dealt && *beneath == *dealt;
    }
    // Deals until the pair on show snaps (or does not); false if no such pair came.
    bool dealUntil(bool snapping)
    {
        for (int n = 0; n < 500; ++n) {
            if (game().cardOnShow(0) >= 0 && pairSnaps() == snapping)
                return true;
            d.tick("Timer1");
        }
        return false;
    }
    // A fresh key press, well after any earlier one.
    void press(int key)
    {
        d.platform.clock_ += 2s;
        d.screenKey(key);
    }
    std::pair<std::string, std::string> scores()
    {
        return {d.caption("p1score"), d.caption("p2score")};
    }

    Driver d;
};

TEST_F(Snap, OpensWaitingForStartWithTheLevelItWasGiven)
{
    struct Case
    {
        int option, level, interval;
    } cases[] = {{1, 1, 2500}, {2, 2, 3000}, {3, 3, 3500}, {0, 1, 2500}, {9, 1, 2500}};
    for (const Case &c : cases) {
        SCOPED_TRACE(c.option);
        Driver drv;
        drv.progress().SnapOption = Value::int16(std::int16_t(c.option));
        Screen &s = drv.open("twoplayersnap");
        EXPECT_EQ(drv.registry.find("twoplayersnap")->title, "snap");
        EXPECT_EQ(drv.caption("level"), std::to_string(c.level));
        EXPECT_EQ(drv.interval("Timer1"), c.interval);
        EXPECT_FALSE(drv.timerOn("Timer1"));
        EXPECT_EQ(drv.caption("p1score"), " : 0");
        EXPECT_EQ(drv.caption("p2score"), " : 0");
        EXPECT_EQ(drv.caption("key1"), "Key : A");
        EXPECT_EQ(drv.caption("Label2"), "Key : L");
        EXPECT_EQ(drv.caption("start"), "START");
        EXPECT_EQ(drv.caption("exit"), "EXIT");
        EXPECT_FALSE(drv.visible("controller"));
        EXPECT_EQ(s.focusName(), "start");
    }
}

TEST_F(Snap, NamesMustBeShorterThanFifteenLettersAndNotBlank)
{
    openAt(1);
    d.click("start");
    EXPECT_EQ(d.caption("instruct"), "Player 1, enter your name.");
    EXPECT_EQ(d.front().focusName(), "player1");

    struct Case
    {
        std::string typed;
        bool refused; // with the message
    } waits[] = {{"", false},
                 {"    ", false},
                 {"Abcdefghijklmno", true},                     // 15 letters
                 {"Zo\u00EB Zo\u00EB Zo\u00EB Zo\u00EB", true}, // 15 letters, more bytes
                 {std::string(5000, 'x'), true}};
    for (const Case &c : waits) {
        SCOPED_TRACE(c.typed.size());
        d.platform.clearShown();
        d.setText("player1", c.typed);
        d.enter("player1");
        EXPECT_EQ(d.platform.messages(),
                  c.refused ? std::vector<std::string>{"You must use less than 15 letters."}
                            : std::vector<std::string>{});
        EXPECT_EQ(d.caption("instruct"), "Player 1, enter your name.");
        EXPECT_TRUE(d.reachable("player1"));
        EXPECT_EQ(d.caption("p1score"), " : 0");
    }
    // Fourteen letters (blanks round them do not count) and letters beyond ASCII are fine; the
    // A and L typed into a name call nothing.
    d.setText("player1", "  Zo\u00EB Abcdefghij ");
    d.enter("player1");
    EXPECT_EQ(d.caption("player1label"), "Zo\u00EB Abcdefghij");
    EXPECT_EQ(d.caption("p1score"), "Zo\u00EB Abcdefghij : 0");
    EXPECT_FALSE(d.reachable("player1"));
    EXPECT_EQ(d.caption("instruct"), "Player 2, enter your name.");
    d.typeEnter("player2", "Lalalalala");
    EXPECT_EQ(d.caption("p2score"), "Lalalalala : 0");
    EXPECT_EQ(d.caption("instruct"), "Press your key to call SNAP!");
    EXPECT_EQ(d.caption("rule"), "First to get 5 points wins.");
    EXPECT_EQ(game().points(0) + game().points(1), 0);
    EXPECT_EQ(d.platform.beeps, 0);
    // Dealing has begun with the first card; START cannot begin it again.
    EXPECT_TRUE(d.timerOn("Timer1"));
    EXPECT_EQ(game().cardsDealt(), 1);
    d.click("start");
    EXPECT_EQ(game().cardsDealt(), 1);
    EXPECT_EQ(d.front().focusName(), "start");
}

TEST_F(Snap, KeysDoNothingBeforeTwoCardsAreOnShow)
{
    openAt(1);
    d.screenKeys("aAlL");
    d.click("start");
    press('a');
    d.typeEnter("player1", "Ann");
    press('L');
    d.typeEnter("player2", "Bob");
    ASSERT_EQ(game().cardOnShow(0), -1);
    press('a');
    press('l');
    EXPECT_EQ(scores(), std::make_pair(std::string("Ann : 0"), std::string("Bob : 0")));
    EXPECT_EQ(d.platform.beeps, 0);
    EXPECT_EQ(game().cardsDealt(), 1);
}

TEST_F(Snap, ARightCallBeepsAndScoresForTheCallerAndAWrongOneForTheOther)
{
    struct Case
    {
        int key;
        bool snapping;
        int scorer; // 0 player 1, 1 player 2
    } cases[] = {{'a', true, 0},  {'A', true, 0},  {'l', true, 1},  {'L', true, 1},
                 {'a', false, 1}, {'A', false, 1}, {'l', false, 0}, {'L', false, 0}};
    // One game: each player ends with four points, one short of winning.
    play();
    for (const Case &c : cases) {
        SCOPED_TRACE(std::string(1, char(c.key)) + (c.snapping ? " right" : " wrong"));
        ASSERT_TRUE(dealUntil(c.snapping));
        const int dealt = game().cardsDealt();
        const int justDealt = game().cardOnShow(1);
        const unsigned restarts = d.control("Timer1").timerRestarts;
        const int beeps = d.platform.beeps;
        const std::array<int, 2> before = {game().points(0), game().points(1)};
        press(c.key);
        EXPECT_EQ(d.platform.beeps, beeps + (c.snapping ? 1 : 0));
        EXPECT_EQ(game().points(c.scorer), before[std::size_t(c.scorer)] + 1);
        EXPECT_EQ(game().points(1 - c.scorer), before[std::size_t(1 - c.scorer)]);
        EXPECT_EQ(d.caption(c.scorer ? "p2score" : "p1score"),
                  (c.scorer ? "Bob : " : "Ann : ") + std::to_string(game().points(c.scorer)));
        // Each panel says what the call earned until the next card comes.
        const std::string caller = c.key == 'a' || c.key == 'A' ? "p1said" : "p2said";
        const std::string other = caller == "p1said" ? "p2said" : "p1said";
        EXPECT_EQ(d.caption(caller), c.snapping ? "SNAP!  +1" : "Not a snap!");
        EXPECT_EQ(d.caption(other), c.snapping ? "" : "+1");
        // The next card comes at once and stays for a whole interval.
        EXPECT_EQ(game().cardsDealt(), dealt + 1);
        EXPECT_EQ(game().cardOnShow(0), justDealt);
        EXPECT_EQ(d.control("Timer1").timerRestarts, restarts + 1);
        d.tick("Timer1");
        EXPECT_EQ(d.caption(caller) + d.caption(other), "");
    }
    EXPECT_EQ(scores(), std::make_pair(std::string("Ann : 4"), std::string("Bob : 4")));
}

TEST_F(Snap, OnlyTheFirstOfTwoNearlyTogetherKeysCountsAndAHeldKeyCountsOnce)
{
    play();
    ASSERT_TRUE(dealUntil(true));
    d.platform.clock_ += 2s;
    d.screenKeys("aL"); // both at once: Ann was first
    d.platform.clock_ += 200ms;
    d.screenKey('l');
    EXPECT_EQ(game().points(0), 1);
    EXPECT_EQ(game().points(1), 0);
    EXPECT_EQ(d.platform.beeps, 1);

    // Bob's key held down, repeating every 30 ms for three seconds, over several deals.
    ASSERT_TRUE(dealUntil(false));
    const int before = game().points(0) + game().points(1);
    d.platform.clock_ += 2s;
    for (int n = 0; n < 100; ++n) {
        d.screenKey('l');
        d.platform.clock_ += 30ms;
        if (n % 40 == 39)
            d.tick("Timer1");
    }
    EXPECT_EQ(game().points(0) + game().points(1), before + 1);
    // Once let go, the same key calls again.
    press('l');
    EXPECT_EQ(game().points(0) + game().points(1), before + 2);
}

TEST_F(Snap, OtherKeysDoNothing)
{
    play();
    ASSERT_TRUE(dealUntil(true));
    const int dealt = game().cardsDealt();
    for (int key : std::initializer_list<int>{'b', 'k', 'S', ' ', 13, 27, 8, '0', '5', 0xE1, 0x4E2D,
                                              0, -1, 'a' + 256})
        press(key);
    EXPECT_EQ(game().points(0) + game().points(1), 0);
    EXPECT_EQ(d.platform.beeps, 0);
    EXPECT_EQ(game().cardsDealt(), dealt);
}

TEST_F(Snap, FivePointsWinAndTheWinnerIsAskedAboutAnotherGame)
{
    // Player 1 calls wrongly five times: the fifth gives player 2 the game.
    play(2);
    for (int n = 0; n < TwoPlayerSnap::kWinningPoints - 1; ++n) {
        ASSERT_TRUE(dealUntil(false));
        press('a');
    }
    EXPECT_EQ(scores(), std::make_pair(std::string("Ann : 0"), std::string("Bob : 4")));
    ASSERT_TRUE(dealUntil(false));
    d.platform.queueYes();
    press('A');
    EXPECT_EQ(d.platform.lastMessage(), "Bob has won! Do you want another game?");
    EXPECT_EQ(d.progress().MessageReply.whole(), kYes);
    // Another game: the same players from nothing, a new deal going on.
    EXPECT_EQ(scores(), std::make_pair(std::string("Ann : 0"), std::string("Bob : 0")));
    EXPECT_TRUE(d.timerOn("Timer1"));
    EXPECT_EQ(game().cardsDealt(), 1);
    for (int n = 0; n < TwoPlayerSnap::kWinningPoints; ++n) {
        ASSERT_TRUE(dealUntil(true));
        if (n == TwoPlayerSnap::kWinningPoints - 1)
            d.platform.queueNo();
        press('a');
    }
    EXPECT_EQ(d.platform.lastMessage(), "Ann has won! Do you want another game?");
    EXPECT_EQ(d.platform.beeps, 5);
    EXPECT_EQ(d.frontName(), "pairmenu");
    EXPECT_FALSE(d.isOpen("twoplayersnap"));
}

TEST_F(Snap, ADealtOutDeckIsReshuffledAndDealingGoesOn)
{
    play(3);
    std::vector<int> firstDeal{game().cardOnShow(1)};
    for (int n = 1; n < 48; ++n) {
        d.tick("Timer1");
        firstDeal.push_back(game().cardOnShow(1));
    }
    EXPECT_EQ(std::set<int>(firstDeal.begin(), firstDeal.end()).size(), 48u);
    EXPECT_EQ(d.caption("cardsleft"), "0 cards to deal");
    EXPECT_TRUE(d.platform.messages().empty());

    d.tick("Timer1");
    EXPECT_EQ(d.platform.messages(),
              std::vector<std::string>{"All the cards have been dealt. Shuffle and deal again."});
    // The pile went back into the deck: one card on show, nothing to call on yet.
    EXPECT_EQ(game().cardsDealt(), 1);
    EXPECT_EQ(game().cardOnShow(0), -1);
    press('a');
    EXPECT_EQ(game().points(0) + game().points(1), 0);
    // The same four values go round again, each card once more.
    std::set<int> secondDeal{game().cardOnShow(1)};
    for (int n = 1; n < 48; ++n) {
        d.tick("Timer1");
        secondDeal.insert(game().cardOnShow(1));
        EXPECT_EQ(captionValue(d.caption("cardface", 1)),
                  game().deck().value(game().cardOnShow(1)));
    }
    EXPECT_EQ(secondDeal.size(), 48u);
    EXPECT_TRUE(d.timerOn("Timer1"));
}

TEST_F(Snap, ACallOnTheLastCardOfTheDeckShufflesBeforeTheNextCard)
{
    play();
    while (game().cardsDealt() < 48)
        d.tick("Timer1");
    press(pairSnaps() ? 'a' : 'l'); // a right call by one of them, either way
    EXPECT_EQ(game().points(0) + game().points(1), 1);
    EXPECT_EQ(d.platform.lastMessage(), "All the cards have been dealt. Shuffle and deal again.");
    EXPECT_EQ(game().cardsDealt(), 1);
}

// A platform whose boxes let both players hammer their keys while they are open.
class KeysDuringBoxes : public FakePlatform
{
public:
    App *app = nullptr;
    int pressed = 0;
    void message(const std::string &text, const std::string &title, MsgIcon icon) override
    {
        hammer();
        FakePlatform::message(text, title, icon);
    }
    int askYesNo(const std::string &text, const std::string &title) override
    {
        hammer();
        return FakePlatform::askYesNo(text, title);
    }

private:
    void hammer()
    {
        for (int key : {'a', 'L', 'A', 'l'}) {
            clock_ += 2s;
            app->screenKey(*app->front(), key);
            ++pressed;
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
    s.ctl("player1").caption = "Ann Abcdefghijklmn"; // too long: a message box
    app.keyPress(s, "player1", -1, 13);
    s.ctl("player1").caption = "Ann";
    app.keyPress(s, "player1", -1, 13);
    s.ctl("player2").caption = "Bob";
    app.keyPress(s, "player2", -1, 13);
    while (game.cardsDealt() < 48)
        app.timerTick(s, "Timer1");
    app.timerTick(s, "Timer1"); // the reshuffle message
    EXPECT_EQ(platform.pressed, 8);
    EXPECT_EQ(game.points(0) + game.points(1), 0);

    // Bob wins by Ann's wrong calls; keys during the question change nothing.
    while (game.points(1) < TwoPlayerSnap::kWinningPoints - 1) {
        app.timerTick(s, "Timer1");
        if (game.cardOnShow(0) >= 0 && !snap::snaps(game.cardOnShow(0), game.cardOnShow(1))) {
            platform.clock_ += 2s;
            app.screenKey(s, 'a');
        }
    }
    ASSERT_EQ(game.points(0), 0);
    do
        app.timerTick(s, "Timer1");
    while (game.cardOnShow(0) < 0 || snap::snaps(game.cardOnShow(0), game.cardOnShow(1)));
    platform.queueYes();
    platform.clock_ += 2s;
    app.screenKey(s, 'a');
    EXPECT_EQ(platform.lastMessage(), "Bob has won! Do you want another game?");
    EXPECT_EQ(game.points(0) + game.points(1), 0) << "a new game with no points from the box";
    EXPECT_EQ(game.cardsDealt(), 1);
}

TEST_F(Snap, ExitLeavesForTheGamesMenuAtAnyStage)
{
    for (int stage = 0; stage < 3; ++stage) {
        SCOPED_TRACE(stage);
        Driver drv;
        drv.open("twoplayersnap");
        if (stage >= 1)
            drv.click("start");
        if (stage >= 2) {
            drv.typeEnter("player1", "Ann");
            drv.typeEnter("player2", "Bob");
        }
        drv.click("exit");
        EXPECT_EQ(drv.frontName(), "pairmenu");
        EXPECT_FALSE(drv.isOpen("twoplayersnap"));
    }
}

} // namespace
} // namespace nb::test
