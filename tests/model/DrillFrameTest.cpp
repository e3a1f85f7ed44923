// The ten-question drill frame as a pupil meets it on every drill screen: Start, the stopwatch,
// the Enter rules, the penalty, the best-time check and the way back to the menu.
#include "DrillTestSupport.h"

#include <gtest/gtest.h>

namespace nb::test {
namespace {

class EveryDrill : public ::testing::TestWithParam<DrillCase>
{
protected:
    void SetUp() override
    {
        for (Value PupilProgress::*level :
             {&PupilProgress::AddLevel, &PupilProgress::SubLevel, &PupilProgress::DivLevel})
            d.progress().*level = Value::int16(1);
        d.open(GetParam().menu);
        d.open(GetParam().screen);
    }
    void answerRight() { test::answerRight(d, GetParam()); }
    Value &slot() { return d.progress().*GetParam().slot; }
    Driver d;
};

TEST_P(EveryDrill, ExitLeavesAtOnceAndTenRightAnswersStoreAFirstTime)
{
    EXPECT_TRUE(d.platform.shown.empty()) << "no best time yet, nothing announced";
    EXPECT_FALSE(d.reachable(GetParam().box)) << "the box waits for Start";
    d.click("Command11");
    answerRight();
    d.click("Command12");
    EXPECT_EQ(d.frontName(), GetParam().menu);
    EXPECT_FALSE(d.isOpen(GetParam().screen));
    EXPECT_TRUE(slot().isEmpty());

    d.open(GetParam().screen);
    d.click("Command11");
    EXPECT_FALSE(d.enabled("Command11"));
    EXPECT_TRUE(d.timerOn("Timer1"));
    EXPECT_EQ(d.interval("Timer1"), 1000);
    for (int i = 0; i < 10; ++i) {
        EXPECT_EQ(d.caption("score"), std::to_string(i));
        d.tick("Timer1", 2);
        if (i == 9)
            d.platform.queueYesNo(kCancel); // the box escaped: as No
        answerRight();
    }
    EXPECT_EQ(d.platform.beeps, 11);
    EXPECT_EQ(d.platform.lastMessage(),
              "You completed 10 questions in 20 seconds.Do you want another go ?");
    EXPECT_EQ(slot().tag(), ValueTag::Double);
    EXPECT_EQ(slot().number(), 20);
    EXPECT_EQ(d.frontName(), GetParam().menu) << "back to the menu that opened it";
    EXPECT_FALSE(d.isOpen(GetParam().screen));
}

INSTANTIATE_TEST_SUITE_P(Drills, EveryDrill, ::testing::ValuesIn(kDrills),
                         [](const auto &info) { return std::string(info.param.screen); });

// The frame's own rules, on the make-ten screen (where 0 can be a right answer) with scripted
// draws: with no options the number shown is Int(r × 10) + 1.

// Enter on 10 + [?] = 10, one entry after another: untidy entries are cleared at no cost, a
// wrong answer costs two seconds at once and keeps the question, and the single digit 0 is the
// right answer. A Yes at the end starts again at once.
TEST(DrillFrame, EnterRulesAndYesStartsAgain)
{
    struct Step
    {
        const char *entry;
        const char *time;
        const char *score;
    };
    const Step steps[] = {{"07", "3", "0"},
                          {"7.", "3", "0"},
                          {".7", "3", "0"},
                          {"7a", "3", "0"},
                          {" 7", "3", "0"},
                          {"-0", "3", "0"},
                          {"0.0", "3", "0"},
                          {"", "3", "0"},
                          {"00", "3", "0"},
                          {"12345678901234567", "3", "0"},
                          {"-1234567890123456789", "3", "0"},
                          {"7", "5", "0"},
                          {"123456789012345", "7", "0"},
                          {"-1", "9", "0"},
                          {"0", "9", "1"}};
    Driver d;
    d.open("maketen");
    d.platform.queueDraw(0.95);
    d.click("Command11");
    d.tick("Timer1", 3);
    for (const Step &s : steps) {
        SCOPED_TRACE(s.entry);
        EXPECT_EQ(d.caption("text1"), "10");
        d.typeEnter("text3", s.entry);
        EXPECT_EQ(d.caption("text3"), "");
        EXPECT_EQ(d.caption("time"), s.time);
        EXPECT_EQ(d.caption("score"), s.score);
        EXPECT_EQ(d.front().focusName(), "text3");
    }
    EXPECT_EQ(d.platform.beeps, 1) << "only the right answer beeps";
    d.tick("Timer1");
    EXPECT_EQ(d.caption("time"), "10") << "the stopwatch carries on from the penalty";

    for (int i = 1; i < 10; ++i) {
        if (i == 9) {
            d.platform.queueYes();
            d.platform.queueDraw(0.25);
        }
        d.typeEnter("text3", answerText(10 - shownNumber(d, "text1")));
    }
    EXPECT_EQ(d.progress().MessageReply.whole(), kYes);
    EXPECT_EQ(d.frontName(), "maketen");
    EXPECT_EQ(d.caption("time") + "/" + d.caption("score"), "0/0");
    EXPECT_TRUE(d.timerOn("Timer1"));
    EXPECT_FALSE(d.enabled("Command11")) << "Start stays disabled";
    EXPECT_EQ(d.caption("text1"), "3") << "a new question at once";
    EXPECT_EQ(d.caption("text3"), "");
    EXPECT_EQ(d.progress().MakeTenBest.number(), 10);
}

// The best-time check after a 12-second run (ten ticks and one penalty) against the stored best.
TEST(DrillFrame, BestTimeCheck)
{
    const std::string done = "You completed 10 questions in 12 seconds.";
    const std::string again = "Do you want another go ?";
    struct Case
    {
        const char *name;
        Value stored;
        bool praised;
        double kept;
    };
    const Case cases[] = {{"first", Value(), false, 12},
                          {"zero is no best", Value::int16(0), false, 12},
                          {"equal", Value::real(12), false, 12},
                          {"slower", Value::real(11.5), false, 11.5},
                          {"faster", Value::real(12.5), true, 12}};
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        Driver run;
        run.progress().MakeTenBest = c.stored;
        run.open("maketen");
        EXPECT_EQ(run.platform.messages(),
                  c.stored.number() > 0 ? std::vector<std::string>{"Your best time is " +
                                                                   c.stored.str() + " seconds."}
                                        : std::vector<std::string>{});
        run.platform.clearShown();
        run.click("Command11");
        for (int i = 0; i < 10; ++i) {
            run.tick("Timer1");
            if (i == 0) // one wrong answer: a two-second penalty
                run.typeEnter("text3", answerText(11 - shownNumber(run, "text1")));
            if (i == 9)
                run.platform.queueNo();
            run.typeEnter("text3", answerText(10 - shownNumber(run, "text1")));
        }
        const std::string message =
            done + (c.praised ? " You have beaten your best time!!! " : "") + again;
        EXPECT_EQ(run.platform.lastMessage(), message);
        EXPECT_EQ(run.progress().MessageText.str(), message);
        EXPECT_EQ(run.progress().MessageReply.whole(), kNo);
        EXPECT_EQ(run.progress().MakeTenBest.number(), c.kept);
        EXPECT_EQ(run.frontName(), "addmenu");
    }
}

// Slot selection: a level of 1 to 4 (1 or 2 on div11) and flags of exactly 0 or 1 pick the slot;
// anything else picks none. A one-second run is stored in that slot and nowhere else.
TEST(DrillSlots, LevelAndFlagsPickTheSlot)
{
    struct Case
    {
        const char *screen;
        Value level, negatives, decimals;
        BestSlot slot; // nullptr: no slot
    };
    const Value one = Value::int16(1), zero = Value::int16(0), two = Value::int16(2);
    const Case cases[] = {
        {"add11", two, zero, zero, &PupilProgress::AddBestNormal2},
        {"add11", Value::int16(3), one, zero, &PupilProgress::AddBestNeg3},
        {"add11", Value::int16(4), zero, one, &PupilProgress::AddBestDec4},
        {"sub11", one, one, one, &PupilProgress::SubBestNegDec1},
        {"add11", Value::real(2), Value(), Value(), &PupilProgress::AddBestNormal2},
        {"add11", Value::int16(0), zero, zero, nullptr},
        {"sub11", Value::int16(5), zero, zero, nullptr},
        {"add11", Value::real(2.5), zero, zero, nullptr},
        {"add11", two, two, zero, nullptr},
        {"sub11", two, zero, Value::int16(-1), nullptr},
        {"add11", two, Value::text("1"), zero, nullptr},
        {"makeany", zero, zero, one, &PupilProgress::MakeAnyBestDec},
        {"maketensub", zero, one, zero, &PupilProgress::MakeTenSubBestNeg},
        {"maketentimes", zero, one, zero, &PupilProgress::MakeTenTimesBestB},
        {"maketentimes", zero, two, zero, nullptr},
        {"maketendiv", zero, one, zero, &PupilProgress::MakeTenDivBest2},
        {"div11", two, zero, zero, &PupilProgress::DivBest2},
        {"div11", one, one, zero, &PupilProgress::DivBest3},
        {"div11", two, one, zero, &PupilProgress::DivBest4},
        {"div11", Value::int16(3), zero, zero, nullptr},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(std::string(c.screen) + " " + c.level.str() + "/" + c.negatives.str() + "/" +
                     c.decimals.str());
        Driver d;
        PupilProgress &p = d.progress();
        for (const auto &field : PupilProgress::recordFields())
            p.*field.member = Value::real(50);
        p.AddLevel = p.SubLevel = p.DivLevel = c.level;
        p.AddNegatives = p.SubNegatives = p.MulNegatives = p.DivNegatives = c.negatives;
        p.AddDecimals = p.SubDecimals = c.decimals;
        d.open(c.screen);
        EXPECT_EQ(d.platform.messages().size(), c.slot ? 1u : 0u) << "announced only with a slot";
        d.click("Command11");
        d.tick("Timer1");
        for (int i = 0; i < 10; ++i) {
            if (i == 9)
                d.platform.queueNo();
            answerRight(d, drill(c.screen));
        }
        for (const auto &field : PupilProgress::recordFields())
            EXPECT_EQ((p.*field.member).number(), field.member == c.slot ? 1 : 50) << field.name;
    }
}

} // namespace
} // namespace nb::test
