// The search puzzles for one pupil and for two, driven by clicks and the clock.
#include "puzzles/SearchFrame.h"
#include "support/Driver.h"

#include <gtest/gtest.h>

#include <utility>

namespace nb::test {
namespace {

const SearchFrame &frame(Driver &d)
{
    return dynamic_cast<const SearchFrame &>(d.front());
}
void open(Driver &d, int caller, const std::string &screen = "search")
{
    d.progress().SearchCaller = Value::int16(std::int16_t(caller));
    d.open(screen);
}
// A pair that makes the target, or two open neighbours that do not (cells counted from 0).
std::pair<int, int> pair(Driver &d, bool right = true)
{
    const SearchFrame &s = frame(d);
    const SearchBoard &board = s.board();
    for (int a = 0; a < SearchBoard::kCells; ++a)
        for (int b = a + 1; b < SearchBoard::kCells; ++b)
            if (right ? board.isAnswer(a, b, s.target())
                      : SearchBoard::neighbours(a, b) && !board.found(a) && !board.found(b) &&
                            board.makes(a, b) != s.target())
                return {a, b};
    ADD_FAILURE() << "no such pair for " << s.target();
    return {0, 1};
}
// A press in the middle of a cell of the board (cells counted from 0).
void press(Driver &d, int cell)
{
    double x = 0, y = 0;
    SearchFrame::cellCentre(cell, x, y);
    d.mouseDown("board", x, y);
}
// The colour a cell is painted on the board.
std::uint32_t cellBack(Driver &d, int cell)
{
    double x = 0, y = 0;
    SearchFrame::cellCentre(cell, x, y);
    for (const DrawOp &op : d.control("board").drawing.ops)
        if (op.kind == DrawOp::Kind::Rect && op.points[0].x < x && x < op.points[1].x &&
            op.points[0].y < y && y < op.points[1].y)
            return op.fillColor;
    ADD_FAILURE() << "cell " << cell << " is not drawn";
    return 0;
}
void clickPair(Driver &d, std::pair<int, int> p)
{
    press(d, p.first);
    press(d, p.second);
}
void findPairs(Driver &d, int n)
{
    for (int i = 0; i < n; ++i)
        clickPair(d, pair(d));
}

TEST(SearchScreen, ClicksPairCellsAndOnlyARightPairOfNeighboursScores)
{
    Driver d;
    open(d, 1);
    press(d, 0); // before START: nothing to choose
    EXPECT_EQ(frame(d).selected(), -1);
    d.click("start");
    EXPECT_FALSE(d.enabled("start"));
    EXPECT_EQ(d.caption("target"), SearchFrame::targetText(frame(d).target()));
    EXPECT_EQ(d.caption("rule"), "Add the two numbers together.");

    const auto [a, b] = pair(d);
    press(d, a); // the same cell twice takes the choice back
    press(d, a);
    EXPECT_EQ(frame(d).selected(), -1);
    press(d, a); // a double press is one choice
    d.doubleClick("board");
    EXPECT_EQ(frame(d).selected(), a);
    EXPECT_EQ(cellBack(d, a), colors::yellow);
    const int far = a < 32 ? 63 : 0; // a cell that does not touch: it becomes the choice
    press(d, far);
    EXPECT_EQ(frame(d).selected(), far);
    press(d, far);

    const auto wrong = pair(d, false);
    clickPair(d, wrong);
    EXPECT_EQ(frame(d).selected(), -1);
    EXPECT_EQ(d.caption("score"), "0");
    EXPECT_EQ(cellBack(d, wrong.first), colors::white);
    EXPECT_EQ(d.platform.beeps, 0);

    clickPair(d, {b, a}); // either order
    EXPECT_EQ(d.caption("score"), "1");
    EXPECT_EQ(d.platform.beeps, 1);
    EXPECT_TRUE(frame(d).board().found(a) && frame(d).board().found(b));
    EXPECT_NE(cellBack(d, a), colors::white);
    press(d, a); // a found cell cannot be chosen again
    EXPECT_EQ(frame(d).selected(), -1);

    d.screenKeys("a5 \r\x1b");        // keys have nothing to do on the board
    d.mouseDown("board", -50, 99999); // off the cells
    d.mouseDown("board", 5, 5);
    d.pressAt(100, 100); // off the board
    EXPECT_EQ(frame(d).selected(), -1);
    EXPECT_EQ(d.caption("score"), "1");
    EXPECT_EQ(d.frontName(), "search");
}

TEST(SearchScreen, APressAnywhereOnACellOrTheGapBesideItChoosesThatCell)
{
    for (int cell = 0; cell < SearchBoard::kCells; ++cell) {
        double x = 0, y = 0;
        SearchFrame::cellCentre(cell, x, y);
        for (double dx : {-460.0, 0.0, 460.0})
            for (double dy : {-460.0, 0.0, 460.0})
                ASSERT_EQ(SearchFrame::cellAt(x + dx, y + dy), cell) << dx << ", " << dy;
    }
    for (auto [x, y] : {std::pair{0.0, 0.0},
                        {10.0, 500.0},
                        {500.0, 10.0},
                        {7465.0, 500.0},
                        {500.0, 7465.0},
                        {-1.0, -1.0},
                        {1e9, 1e9}})
        EXPECT_EQ(SearchFrame::cellAt(x, y), -1) << x << ", " << y;
}

TEST(SearchScreen, TenFindsPassTheLevelAndTheHighestLevelIsKept)
{
    struct Case
    {
        int caller;
        const char *menu;
        Value PupilProgress::*slot;
    } cases[] = {{1, "addmenu", &PupilProgress::SearchBest1},
                 {2, "submenu", &PupilProgress::SearchBest2},
                 {3, "mulmenu", &PupilProgress::SearchBest3},
                 {4, "divmenu", &PupilProgress::SearchBest4}};
    for (const Case &c : cases) {
        SCOPED_TRACE(c.caller);
        Driver d;
        open(d, c.caller);
        d.click("start");
        d.tick("Timer1", 30);
        findPairs(d, 9);
        EXPECT_EQ(d.caption("score"), "9");
        EXPECT_TRUE(d.timerOn("Timer1"));
        d.platform.queueYes();
        findPairs(d, 1);
        EXPECT_EQ(d.platform.lastMessage(),
                  "Well done, you found 10 pairs in 30 seconds and passed "
                  "level 1. Do you want to try the next level ?");
        EXPECT_EQ((d.progress().*c.slot).number(), 1);
        EXPECT_EQ(d.caption("level"), "2");
        EXPECT_EQ(d.caption("score"), "0");
        EXPECT_EQ(d.caption("time"), "120");
        findPairs(d, 3);
        d.platform.queueNo();
        d.tick("Timer1", 120);
        EXPECT_EQ(d.platform.lastMessage(), "Time is up. You found 3 pairs; you need 10 to pass "
                                            "level 2. Do you want another go ?");
        EXPECT_EQ((d.progress().*c.slot).number(), 1);
        EXPECT_EQ(d.frontName(), c.menu);
        EXPECT_FALSE(d.isOpen("search"));
    }
}

TEST(SearchScreen, StoredLevelIsOfferedAndALowerPassDoesNotLowerIt)
{
    Driver d;
    d.progress().SearchBest3 = Value::int16(3);
    d.platform.queueNo();
    open(d, 3);
    EXPECT_EQ(d.platform.lastMessage(),
              "You have reached level 4 before, would you like to go straight to this level now?");
    EXPECT_EQ(d.caption("level"), "1");
    EXPECT_EQ(d.caption("rule"), "Multiply the two numbers together.");
    d.click("start");
    d.platform.queueNo();
    findPairs(d, 10);
    EXPECT_EQ(d.progress().SearchBest3.number(), 3);
    EXPECT_EQ(d.frontName(), "mulmenu");

    // At the top level the offer stays there.
    Driver top;
    top.progress().SearchCaller = Value::int16(2);
    top.progress().SearchBest2 = Value::int16(5);
    top.platform.queueYes();
    top.open("search");
    EXPECT_EQ(top.caption("level"), "5");
}

TEST(SearchScreen, WhenTheClockStopsTheChoiceIsDroppedAndAnotherGoStartsAfresh)
{
    Driver d;
    open(d, 4);
    d.click("start");
    const auto [a, b] = pair(d);
    press(d, a);
    d.tick("Timer1", 119);
    EXPECT_EQ(d.caption("time"), "1");
    d.platform.queueYes(); // another go: a fresh board, the full time again
    d.tick("Timer1");
    EXPECT_EQ(d.caption("time"), "120");
    EXPECT_EQ(frame(d).selected(), -1);
    d.click("exit");
    EXPECT_EQ(d.frontName(), "divmenu");

    // The clock stopped by a No: the screen has gone, so nothing is left to click.
    Driver other;
    other.progress().SearchCaller = Value::int16(9); // not a caller: adds, returns to addmenu
    other.open("search");
    other.click("start");
    other.platform.queueNo();
    other.tick("Timer1", 120);
    EXPECT_EQ(other.frontName(), "addmenu");
}

void names(Driver &d, const std::string &one, const std::string &two)
{
    d.click("start");
    d.typeEnter("player1", one);
    d.typeEnter("player2", two);
}

TEST(SearchForTwo, NamesMustBeShorterThanFifteenLetters)
{
    Driver d;
    open(d, 2, "search2");
    d.click("start");
    EXPECT_EQ(d.caption("text1"), "Player 1, please enter your name.");
    d.enter("player1"); // an empty name is not taken
    EXPECT_TRUE(d.visible("player1"));
    d.typeEnter("player1", "Maximilianaaaaa"); // 15 letters
    EXPECT_EQ(d.platform.messages().back(), "You must use less than 15 letters.");
    EXPECT_EQ(d.text("player1"), "");
    d.typeEnter("player1", "Zoë Ångström"); // 12 letters in more bytes than that
    EXPECT_EQ(d.caption("p1"), "Zoë Ångström");
    EXPECT_EQ(d.caption("text1"), "Player 2, please enter your name.");
    d.typeEnter("player2", "Maximilianaaaa"); // 14 letters
    EXPECT_EQ(d.caption("p2"), "Maximilianaaaa");
    EXPECT_TRUE(dynamic_cast<const SearchFrame &>(d.front()).running());
    EXPECT_EQ(d.caption("text1"), "Zoë Ångström, it is your turn.");

    Driver e; // Exit while names are asked for
    open(e, 3, "search2");
    e.click("start");
    e.type("player1", "Ann");
    e.click("exit");
    EXPECT_EQ(e.frontName(), "pairmenu");
}

TEST(SearchForTwo, TurnsPassAndEachFindScoresForTheFinder)
{
    Driver d;
    open(d, 1, "search2");
    names(d, "Ann", "Bob");
    EXPECT_EQ(d.caption("text1"), "Ann, it is your turn.");
    findPairs(d, 1); // Ann finds
    EXPECT_EQ(d.caption("p1score"), "1");
    EXPECT_EQ(d.caption("text1"), "Bob, it is your turn.");
    clickPair(d, pair(d, false)); // Bob misses: Ann's turn
    EXPECT_EQ(d.caption("p2score"), "0");
    EXPECT_EQ(d.caption("text1"), "Ann, it is your turn.");
    d.tick("Timer1", 19);
    EXPECT_EQ(d.caption("turntime"), "1");
    press(d, pair(d).first);
    d.tick("Timer1"); // Ann's turn ran out, and her choice goes with it
    EXPECT_EQ(d.caption("text1"), "Bob, it is your turn.");
    EXPECT_EQ(frame(d).selected(), -1);
    findPairs(d, 2); // Bob, then Ann
    EXPECT_EQ(d.caption("p1score"), "2");
    EXPECT_EQ(d.caption("p2score"), "1");

    d.platform.queueYes();
    d.tick("Timer1", 100);
    EXPECT_EQ(d.platform.lastMessage(), "Time is up. Ann found 2 and Bob found 1. Ann has won! "
                                        "Do you want another game?");
    EXPECT_EQ(d.caption("p1score"), "0"); // a new game with the same names
    EXPECT_EQ(d.caption("text1"), "Ann, it is your turn.");
    d.platform.queueNo();
    d.tick("Timer1", 120);
    EXPECT_EQ(d.platform.lastMessage(), "Time is up. Ann found 0 and Bob found 0. It is a draw. "
                                        "Do you want another game?");
    EXPECT_EQ(d.frontName(), "pairmenu");
    EXPECT_TRUE(d.progress().SearchBest1.isEmpty());
}

TEST(SearchForTwo, AUsedUpBoardIsFollowedByFreshNumbersAndTargetsKeepComing)
{
    for (int caller = 1; caller <= 4; ++caller) {
        Driver d;
        open(d, caller, "search2");
        names(d, "Ann", "Bob");
        for (int i = 0; i < 40; ++i) {
            ASSERT_FALSE(frame(d).board().openPairs().empty()) << caller << ": find " << i;
            findPairs(d, 1);
        }
        EXPECT_EQ(std::stoi(d.caption("p1score")) + std::stoi(d.caption("p2score")), 40);
        EXPECT_LT(frame(d).board().foundPairs().size(), 32u);
    }
}

} // namespace
} // namespace nb::test
