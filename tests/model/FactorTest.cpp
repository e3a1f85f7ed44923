// The factor race, driven as a pupil would with scripted numbers and timer ticks.
#include "support/Driver.h"

#include <gtest/gtest.h>

namespace nb::test {
namespace {

// The draw that makes the number n (2 to 31).
double drawFor(int n)
{
    return (n - 2 + 0.5) / 30;
}

class FactorRace : public ::testing::Test
{
protected:
    // Opens the race with no stored level and starts it on the number n.
    void startOn(int n)
    {
        d.open("factor");
        d.platform.queueDraw(drawFor(n));
        d.click("start");
    }
    // Types every factor of the number on show, in order.
    void answerAll()
    {
        const int n = std::stoi(d.caption("Questionno"));
        int box = 1;
        for (int f = 1; f <= n; ++f)
            if (n % f == 0)
                d.typeEnter("factorbox", std::to_string(f), box++);
    }
    int visibleBoxes()
    {
        int count = 0;
        for (int k = 1; k <= 8; ++k)
            count += d.visible("factorbox", k);
        return count;
    }
    const Control &car(const char *name) { return d.control(name); }
    Driver d;
};

TEST_F(FactorRace, RoadIsDrawnOnceAsFourHundredSixtyNineNarrowingSilverLines)
{
    d.open("factor");
    const Drawing &road = d.control("road").drawing;
    std::vector<const DrawOp *> silver;
    for (const DrawOp &op : road.ops)
        if (op.kind == DrawOp::Kind::Line && op.penColor == rgb(192, 192, 192))
            silver.push_back(&op);
    ASSERT_EQ(silver.size(), 469u);
    for (std::size_t i = 0; i < silver.size(); ++i) {
        const auto &p = silver[i]->points;
        ASSERT_EQ(p[0].y, 7845.0 - 15 * i);
        ASSERT_EQ(p[1].y, p[0].y);
        ASSERT_EQ(p[0].x, 600.0 + 5 * i);
        ASSERT_EQ(p[1].x, 6650.0 - 5 * i);
    }
    EXPECT_EQ(silver.back()->points[0].x, 2940);
    EXPECT_EQ(silver.back()->points[1].x, 4310);

    // Moving cars never touch the drawing, so the window's cached picture stays valid.
    const auto revision = road.revision;
    d.platform.queueDraw(drawFor(7));
    d.click("start");
    d.tick("compmover", 10);
    d.typeEnter("factorbox", "1", 1);
    d.typeEnter("factorbox", "5", 2);
    EXPECT_EQ(d.control("road").drawing.revision, revision);
}

TEST_F(FactorRace, StoredLevelIsOfferedAndSetsTheTimer)
{
    struct Case
    {
        int stored;
        int reply; // 0: no question expected
        std::string level;
        int interval;
    } cases[] = {
        {0, 0, "1", 1500},    {1, kYes, "2", 1440}, {4, kNo, "1", 1500},
        {24, kYes, "25", 60}, {25, kYes, "26", 60}, {39, kYes, "40", 60},
    };
    for (const Case &c : cases) {
        Driver drv;
        drv.progress().FactorBest = Value::int16(std::int16_t(c.stored));
        if (c.reply)
            drv.platform.queueYesNo(c.reply);
        drv.open("factor");
        SCOPED_TRACE(c.stored);
        if (c.reply)
            EXPECT_EQ(drv.platform.lastMessage(),
                      "You have reached level " + std::to_string(c.stored + 1) +
                          " before, would you like to go straight to this level now?");
        else
            EXPECT_TRUE(drv.platform.shown.empty());
        EXPECT_EQ(drv.caption("level"), c.level);
        EXPECT_FALSE(drv.timerOn("compmover"));
        drv.click("start");
        EXPECT_EQ(drv.interval("compmover"), c.interval);
        EXPECT_TRUE(drv.timerOn("compmover"));
        EXPECT_FALSE(drv.enabled("start"));
    }
}

TEST_F(FactorRace, OneBoxPerFactorWithTheFirstOneOpen)
{
    const std::pair<int, int> cases[] = {{24, 8}, {30, 8}, {2, 2}, {31, 2}, {16, 5}, {12, 6}};
    for (auto [n, boxes] : cases) {
        Driver drv;
        drv.open("factor");
        drv.platform.queueDraw(drawFor(n));
        drv.click("start");
        SCOPED_TRACE(n);
        EXPECT_EQ(drv.caption("Questionno"), std::to_string(n));
        for (int k = 1; k <= 8; ++k) {
            EXPECT_EQ(drv.visible("factorbox", k), k <= boxes) << k;
            EXPECT_EQ(drv.reachable("factorbox", k), k == 1) << k;
        }
        EXPECT_EQ(drv.backColor("factorbox", 1), 65535u);
        EXPECT_EQ(drv.backColor("factorbox", 2), 255u);
        EXPECT_EQ(drv.front().focusName(), "factorbox");
        EXPECT_EQ(drv.front().focusIndex(), 1);
    }
}

TEST_F(FactorRace, RightFactorsDriveThePupilWithGrowingSteps)
{
    startOn(6);
    d.typeEnter("factorbox", "1", 1);
    d.typeEnter("factorbox", "2", 2);
    EXPECT_EQ(d.backColor("factorbox", 1), 255u);
    EXPECT_FALSE(d.enabled("factorbox", 1));
    EXPECT_TRUE(d.reachable("factorbox", 3));
    EXPECT_EQ(d.backColor("factorbox", 3), 65535u);
    // Steps 1 and 2: top +30 then +60, left +2.13 then +4.26, width +7.2 then +14.4.
    EXPECT_EQ(car("youcar").top, 945 + 90);
    EXPECT_EQ(car("youcar").left, 3771);  // 3771.39
    EXPECT_EQ(car("youcar").width, 517);  // 516.6
    EXPECT_EQ(car("youcar").height, 517); // the shape is kept
    EXPECT_EQ(car("compcar").top, 945);

    // The last factor brings a new number.
    d.platform.queueDraw(drawFor(5));
    d.typeEnter("factorbox", "3", 3);
    d.typeEnter("factorbox", "6", 4);
    EXPECT_EQ(d.caption("Questionno"), "5");
    EXPECT_EQ(visibleBoxes(), 2);
    EXPECT_EQ(d.text("factorbox", 1), "");
    EXPECT_EQ(car("youcar").top, 945 + 30 * 10);
    EXPECT_EQ(d.platform.beeps, 0);
}

TEST_F(FactorRace, MalformedTextIsEmptiedAndNeverSubmits)
{
    struct Case
    {
        std::string typed, shown;
    } cases[] = {{"", ""}, {"12a", "12a"}, {"1a2", "2"}, {"007", "7"}, {"4.0", "0"}, {"-", "-"}};
    for (const Case &c : cases) {
        Driver drv;
        drv.open("factor");
        drv.platform.queueDraw(drawFor(24));
        drv.click("start");
        SCOPED_TRACE(c.typed);
        drv.type("factorbox", c.typed, 1);
        EXPECT_EQ(drv.text("factorbox", 1), c.shown);
        if (c.shown == "0" || c.shown == "2" || c.shown == "7")
            continue; // clean numbers: Enter would check them
        drv.enter("factorbox", 1);
        EXPECT_EQ(drv.text("factorbox", 1), "");
        EXPECT_EQ(drv.control("compcar").top, 945) << "no move for an entry never submitted";
    }
}

TEST_F(FactorRace, WrongEntriesMoveTheComputerAndThreeSendThePupilBack)
{
    startOn(24);
    d.typeEnter("factorbox", "1", 1);
    d.typeEnter("factorbox", "2", 2);
    const int pupilTop = car("youcar").top;
    // A repeat divides 24 but is still wrong; so are 0, a non-factor and a fraction.
    d.typeEnter("factorbox", "2", 3);
    EXPECT_EQ(d.text("factorbox", 3), "");
    EXPECT_EQ(car("compcar").top, 945 + 3);
    EXPECT_EQ(car("compcar").left, 2955 - 1);
    d.typeEnter("factorbox", "0", 3);
    EXPECT_EQ(car("compcar").top, 945 + 3 + 6);
    EXPECT_TRUE(d.platform.shown.empty());

    d.platform.queueDraw(drawFor(9));
    d.setText("factorbox", "1.5", 3); // pasted: 24 / 1.5 is 16, but factors are whole
    d.enter("factorbox", 3);
    EXPECT_EQ(
        d.platform.messages(),
        std::vector<std::string>{"You have typed three wrong answers - go back to the start!"});
    EXPECT_EQ(car("compcar").top, 945 + 3 + 6 + 9) << "the computer is not sent back";
    EXPECT_EQ(car("youcar").top, 945);
    EXPECT_EQ(car("youcar").left, 3765);
    EXPECT_EQ(car("youcar").width, 495);
    EXPECT_LT(car("youcar").top, pupilTop);
    EXPECT_EQ(d.caption("Questionno"), "9");
    EXPECT_EQ(visibleBoxes(), 3);
    EXPECT_TRUE(d.reachable("factorbox", 1));
    EXPECT_FALSE(d.reachable("factorbox", 3));

    // The pupil's step starts again at 1.
    d.typeEnter("factorbox", "1", 1);
    EXPECT_EQ(car("youcar").top, 945 + 30);
}

TEST_F(FactorRace, WrongCountStartsAgainWithEachNumber)
{
    startOn(2);
    d.typeEnter("factorbox", "5", 1);
    d.typeEnter("factorbox", "1", 1);
    d.typeEnter("factorbox", "7", 2);
    d.platform.queueDraw(drawFor(3));
    d.typeEnter("factorbox", "2", 2);
    d.typeEnter("factorbox", "2", 1);
    d.typeEnter("factorbox", "4", 1);
    EXPECT_TRUE(d.platform.shown.empty());
    EXPECT_EQ(car("youcar").top, 945 + 90);
}

TEST_F(FactorRace, FirstToTheLineWins)
{
    startOn(24);
    d.platform.queueDraw(drawFor(24));
    answerAll();
    d.platform.queueDraw(drawFor(24));
    answerAll(); // 16 right factors: not there yet
    EXPECT_LT(car("youcar").top + car("youcar").width, 7085);
    EXPECT_TRUE(d.platform.shown.empty());

    d.platform.queueYes();
    d.platform.queueDraw(drawFor(13));
    d.typeEnter("factorbox", "1", 1); // the 17th
    EXPECT_EQ(d.platform.lastMessage(),
              "Well done, you have won level 1. Do you want to try the next level ?");
    EXPECT_EQ(d.progress().FactorBest.number(), 1);
    EXPECT_EQ(d.caption("level"), "2");
    EXPECT_EQ(d.interval("compmover"), 1440);
    EXPECT_TRUE(d.timerOn("compmover"));
    EXPECT_EQ(car("youcar").top, 945);
    EXPECT_EQ(d.caption("Questionno"), "13");

    // The computer needs 55 moves; its last one would cross the line.
    d.tick("compmover", 54);
    EXPECT_TRUE(d.platform.shown.size() == 1);
    EXPECT_LT(car("compcar").top + car("compcar").width, 7085);
    d.platform.queueNo();
    d.tick("compmover");
    EXPECT_EQ(d.platform.lastMessage(), "You have lost on level 2. Do you want to try again ?");
    EXPECT_EQ(d.frontName(), "divmenu");
    EXPECT_FALSE(d.isOpen("factor"));
    EXPECT_EQ(d.progress().FactorBest.number(), 1);
}

TEST_F(FactorRace, AWrongEntryCanLoseTheRaceAndYesRestartsIt)
{
    startOn(24);
    d.tick("compmover", 54);
    d.platform.queueYes();
    d.platform.queueDraw(drawFor(5));
    d.typeEnter("factorbox", "7", 1);
    EXPECT_EQ(d.platform.lastMessage(), "You have lost on level 1. Do you want to try again ?");
    EXPECT_EQ(car("compcar").top, 945);
    EXPECT_EQ(car("compcar").width, 495);
    EXPECT_TRUE(d.timerOn("compmover"));
    EXPECT_EQ(d.caption("Questionno"), "5");
    // The losing entry does not count against the new number.
    d.typeEnter("factorbox", "2", 1);
    d.typeEnter("factorbox", "3", 1);
    EXPECT_EQ(d.platform.messages().size(), 0u);
}

TEST_F(FactorRace, LastLevelWonIsKeptEvenWhenLower)
{
    d.progress().FactorBest = Value::int16(5);
    d.platform.queueNo();
    d.open("factor");
    d.platform.queueDraws({drawFor(24), drawFor(24), drawFor(24)});
    d.click("start");
    answerAll();
    answerAll();
    d.platform.queueNo();
    d.typeEnter("factorbox", "1", 1);
    EXPECT_EQ(d.progress().FactorBest.number(), 1);
    EXPECT_EQ(d.frontName(), "divmenu");
}

TEST_F(FactorRace, ExitReturnsToTheDivisionMenu)
{
    d.open("divmenu");
    d.click("Command9");
    EXPECT_EQ(d.frontName(), "factor");
    EXPECT_EQ(d.front().title(), "Factor racing");
    d.click("exit");
    EXPECT_EQ(d.frontName(), "divmenu");
    EXPECT_FALSE(d.isOpen("factor"));
}

} // namespace
} // namespace nb::test
