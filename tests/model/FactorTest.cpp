// The factor race, driven as a pupil would with scripted numbers and timer ticks.
#include "core/NumberText.h"
#include "support/Driver.h"

#include <gtest/gtest.h>

#include <vector>

namespace nb::test {
namespace {

double drawFor(int n) // the draw that makes the number n (2 to 31)
{
    return (n - 2 + 0.5) / 30;
}

class FactorRace : public ::testing::Test
{
protected:
    void startOn(int n)
    {
        d.open("factor");
        d.platform.queueDraw(drawFor(n));
        d.click("start");
    }
    void answerAll() // every factor of the number on show, in order
    {
        const int n = std::stoi(d.caption("Questionno"));
        for (int f = 1, box = 1; f <= n; ++f)
            if (n % f == 0)
                d.typeEnter("factorbox", std::to_string(f), box++);
    }
    int top(const char *car) { return d.control(car).top; }
    Driver d;
};

TEST_F(FactorRace, RoadIsFourHundredSixtyNineNarrowingSilverLinesDrawnOnce)
{
    startOn(7);
    const Drawing &road = d.control("road").drawing;
    std::vector<const DrawOp *> lines;
    for (const DrawOp &op : road.ops)
        if (op.kind == DrawOp::Kind::Line && op.penColor == rgb(192, 192, 192))
            lines.push_back(&op);
    ASSERT_EQ(lines.size(), 469u);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const auto &p = lines[i]->points;
        ASSERT_TRUE(p[0].y == 7845.0 - 15 * i && p[1].y == p[0].y && p[0].x == 600.0 + 5 * i &&
                    p[1].x == 6650.0 - 5 * i)
            << "line " << i;
    }
    // Moving the cars leaves the drawing (and the window's cached picture of it) alone.
    const auto revision = road.revision;
    d.tick("compmover", 10);
    d.typeEnter("factorbox", "1", 1);
    EXPECT_EQ(d.control("road").drawing.revision, revision);
    d.click("exit");
    EXPECT_EQ(d.frontName(), "divmenu");
    EXPECT_FALSE(d.isOpen("factor"));
}

TEST_F(FactorRace, StoredLevelIsOfferedAndSetsTheComputersPace)
{
    struct Case
    {
        int stored, reply; // reply 0: no question expected
        std::string level;
        int interval;
    } cases[] = {{0, 0, "1", 1500},       {1, kYes, "2", 1440}, {4, kNo, "1", 1500},
                 {4, kCancel, "1", 1500}, {24, kYes, "25", 60}, {25, kYes, "26", 60},
                 {39, kYes, "40", 60}};
    for (const Case &c : cases) {
        SCOPED_TRACE(c.stored);
        Driver drv;
        drv.progress().FactorBest = Value::int16(std::int16_t(c.stored));
        if (c.reply)
            drv.platform.queueYesNo(c.reply);
        drv.open("factor");
        const std::string asked = "You have reached level " + std::to_string(c.stored + 1) +
                                  " before, would you like to go straight to this level now?";
        EXPECT_EQ(drv.platform.lastMessage(), c.reply ? asked : "");
        EXPECT_EQ(drv.caption("level"), c.level);
        drv.click("start");
        EXPECT_EQ(drv.interval("compmover"), c.interval);
        EXPECT_TRUE(drv.timerOn("compmover"));
    }
}

TEST_F(FactorRace, OneBoxPerFactorWithOnlyTheFirstOpen)
{
    const std::pair<int, int> cases[] = {{24, 8}, {30, 8}, {2, 2}, {31, 2}, {16, 5}};
    for (auto [n, boxes] : cases) {
        SCOPED_TRACE(n);
        Driver drv;
        drv.open("factor");
        drv.platform.queueDraw(drawFor(n));
        drv.click("start");
        EXPECT_EQ(drv.caption("Questionno"), std::to_string(n));
        for (int k = 1; k <= 8; ++k)
            EXPECT_TRUE(drv.visible("factorbox", k) == (k <= boxes) &&
                        drv.reachable("factorbox", k) == (k == 1))
                << k;
    }
}

TEST_F(FactorRace, RightFactorsMoveThePupilWithGrowingStepsThenANewNumber)
{
    startOn(6);
    d.typeEnter("factorbox", "1", 1);
    d.typeEnter("factorbox", "2", 2);
    EXPECT_EQ(d.platform.beeps, 2) << "each right factor beeps";
    EXPECT_EQ(std::vector<std::uint32_t>({d.backColor("factorbox", 2), d.backColor("factorbox", 3),
                                          d.backColor("factorbox", 4)}),
              std::vector<std::uint32_t>({colors::red, colors::yellow, colors::red}));
    EXPECT_FALSE(d.enabled("factorbox", 2));
    EXPECT_EQ(d.front().focusIndex(), 3);
    // Steps 1 and 2: top +30 +60, left +2.13 +4.26, width +7.2 +14.4; the height follows.
    const Control &car = d.control("youcar");
    EXPECT_EQ(std::vector<int>({car.left, car.top, car.width, car.height}),
              std::vector<int>({3771, 1035, 517, 517}));
    EXPECT_EQ(top("compcar"), 945);

    d.platform.queueDraw(drawFor(5));
    d.typeEnter("factorbox", "3", 3);
    d.typeEnter("factorbox", "6", 4);
    EXPECT_EQ(d.caption("Questionno"), "5");
    EXPECT_FALSE(d.visible("factorbox", 3));
    EXPECT_EQ(d.text("factorbox", 1), "");
    EXPECT_EQ(top("youcar"), 945 + 30 * 10);
}

// Malformed text is emptied and never checked; wrong factors move the computer on, and three of
// them send only the pupil back.
TEST_F(FactorRace, WrongEntriesMoveTheComputerAndThreeSendOnlyThePupilBack)
{
    const std::pair<std::string, std::string> malformed[] = {
        {"", ""}, {"12a", "12a"}, {"-", "-"}, {"1a2", "2"}, {"007", "7"}, {"4.0", "0"}};
    startOn(24);
    for (const auto &[typed, shown] : malformed) {
        SCOPED_TRACE(typed);
        d.setText("factorbox", "", 1);
        d.type("factorbox", typed, 1);
        EXPECT_EQ(d.text("factorbox", 1), shown);
        if (isCleanNumberText(shown))
            continue; // Enter would check it
        d.enter("factorbox", 1);
        EXPECT_EQ(d.text("factorbox", 1), "");
        EXPECT_EQ(top("compcar"), 945) << "nothing was checked";
    }
    d.setText("factorbox", "", 1);
    d.typeEnter("factorbox", "1", 1);
    d.typeEnter("factorbox", "2", 2);
    const int beeps = d.platform.beeps;
    d.typeEnter("factorbox", "2", 3); // a repeat divides 24 but is wrong
    EXPECT_EQ(d.platform.beeps, beeps) << "a wrong factor is silent";
    EXPECT_EQ(d.text("factorbox", 3), "");
    EXPECT_EQ(top("compcar"), 948);
    EXPECT_EQ(d.control("compcar").left, 2954);
    d.typeEnter("factorbox", "0", 3);
    EXPECT_EQ(top("compcar"), 954);

    d.platform.queueDraw(drawFor(9));
    d.setText("factorbox", "1.5", 3); // pasted: 24 / 1.5 is 16, but factors are whole
    d.enter("factorbox", 3);
    EXPECT_EQ(
        d.platform.messages(),
        std::vector<std::string>{"You have typed three wrong answers - go back to the start!"});
    EXPECT_EQ(top("compcar"), 963) << "the computer keeps its place";
    EXPECT_EQ(top("youcar"), 945);
    EXPECT_EQ(d.caption("Questionno"), "9");
    d.typeEnter("factorbox", "1", 1);
    EXPECT_EQ(top("youcar"), 975) << "the pupil's step starts again at 1";

    // Two wrong on 9 do not carry over to the next number; three on that one count again.
    d.typeEnter("factorbox", "2", 2);
    d.typeEnter("factorbox", "4", 2);
    d.platform.queueDraw(drawFor(3));
    d.typeEnter("factorbox", "3", 2);
    d.typeEnter("factorbox", "9", 3);
    d.typeEnter("factorbox", "2", 1);
    EXPECT_EQ(d.platform.messages().size(), 1u);
    d.platform.queueDraw(drawFor(5));
    d.typeEnter("factorbox", "4", 1);
    d.typeEnter("factorbox", "5", 1);
    EXPECT_EQ(d.platform.messages().size(), 2u);
}

TEST_F(FactorRace, FromTheMenuTheSeventeenthRightFactorWinsTheFiftyFifthMoveLoses)
{
    d.progress().FactorBest = Value::int16(5);
    d.platform.queueNo(); // stay on level 1
    d.platform.queueDraws({drawFor(24), drawFor(24), drawFor(24)});
    d.open("divmenu");
    d.click("Command9");
    EXPECT_EQ(d.front().title(), "Factor racing");
    d.click("start");
    answerAll();
    answerAll();
    const Control &car = d.control("youcar");
    EXPECT_LT(car.top + car.width, 7085) << "16 moves are not enough";

    d.platform.queueYes();
    d.platform.queueDraw(drawFor(13));
    d.typeEnter("factorbox", "1", 1);
    EXPECT_EQ(d.platform.lastMessage(),
              "Well done, you have won level 1. Do you want to try the next level ?");
    EXPECT_EQ(d.progress().FactorBest.number(), 1);
    EXPECT_EQ(d.caption("level"), "2");
    EXPECT_EQ(top("youcar"), 945);
    EXPECT_EQ(d.caption("Questionno"), "13");

    // The computer's 55th move would cross the line and lose the race for the pupil: here a
    // wrong entry makes it, and Yes starts again with no wrong entries counted.
    d.tick("compmover", 54);
    EXPECT_EQ(d.platform.shown.size(), 2u);
    d.platform.queueYes();
    d.platform.queueDraw(drawFor(5));
    d.typeEnter("factorbox", "7", 1);
    EXPECT_EQ(d.platform.lastMessage(), "You have lost on level 2. Do you want to try again ?");
    EXPECT_EQ(top("compcar"), 945);
    EXPECT_EQ(d.caption("Questionno"), "5");
    d.typeEnter("factorbox", "2", 1);
    d.typeEnter("factorbox", "3", 1);
    EXPECT_TRUE(d.platform.messages().empty()) << "the losing entry does not count on";

    // This time a tick makes the 55th move (two were made by the wrong entries); No leaves.
    d.tick("compmover", 52);
    EXPECT_EQ(d.platform.shown.size(), 3u);
    d.platform.queueNo();
    d.tick("compmover");
    EXPECT_EQ(d.platform.lastMessage(), "You have lost on level 2. Do you want to try again ?");
    EXPECT_EQ(d.frontName(), "divmenu");
    EXPECT_FALSE(d.isOpen("factor"));
    EXPECT_EQ(d.progress().FactorBest.number(), 1) << "the last level won is kept";
}

} // namespace
} // namespace nb::test
