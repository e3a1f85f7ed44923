// The ten-question drill frame as a pupil meets it on every drill screen: Start, the stopwatch,
// the Enter rules, the penalty, the best-time check and the way back to the menu.
#include "drills/DrillFrame.h"
#include "core/NumberText.h"
#include "drills/BestTimeCheck.h"
#include "support/Driver.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace nb::test {
namespace {

struct DrillCase
{
    const char *screen;
    const char *menu;
    const char *box;
    // The right answer to the question on show, worked out from what the screen shows.
    double (*answer)(Driver &);
    // The slot of a run at level 1 with no options.
    BestSlot slot;
};

double shown(Driver &d, const char *name)
{
    return readNumber(d.caption(name));
}

const DrillCase kDrills[] = {
    {"add11", "addmenu", "Text5", [](Driver &d) { return shown(d, "text1") + shown(d, "text3"); },
     &PupilProgress::AddBestNormal1},
    {"sub11", "submenu", "Text5", [](Driver &d) { return shown(d, "text1") - shown(d, "text3"); },
     &PupilProgress::SubBestNormal1},
    {"mul11", "mulmenu", "Text5", [](Driver &d) { return shown(d, "text1") * shown(d, "text3"); },
     &PupilProgress::MulBest},
    {"mentmul", "mulmenu", "Text5", [](Driver &d) { return shown(d, "text1") * shown(d, "text3"); },
     &PupilProgress::MentMulBest},
    {"div11", "divmenu", "Text5", [](Driver &d) { return shown(d, "text1") / shown(d, "text3"); },
     &PupilProgress::DivBest1},
    {"maketen", "addmenu", "text3", [](Driver &d) { return shown(d, "Text5") - shown(d, "text1"); },
     &PupilProgress::MakeTenBest},
    {"makeany", "addmenu", "text3", [](Driver &d) { return shown(d, "Text5") - shown(d, "text1"); },
     &PupilProgress::MakeAnyBest},
    {"maketensub", "submenu", "text3",
     [](Driver &d) { return shown(d, "text1") - shown(d, "Text5"); },
     &PupilProgress::MakeTenSubBest},
    {"makeanysub", "submenu", "text3",
     [](Driver &d) { return shown(d, "text1") - shown(d, "Text5"); },
     &PupilProgress::MakeAnySubBest},
    {"maketentimes", "mulmenu", "text3",
     [](Driver &d) { return shown(d, "Text5") / shown(d, "text1"); },
     &PupilProgress::MakeTenTimesBestA},
    {"maketendiv", "divmenu", "text3",
     [](Driver &d) { return shown(d, "text1") / shown(d, "Text5"); },
     &PupilProgress::MakeTenDivBest},
};

std::string answerText(double v)
{
    return numberText(std::round(v * 10) / 10);
}

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
    void answerRight() { d.typeEnter(GetParam().box, answerText(GetParam().answer(d))); }
    Value &slot() { return d.progress().*GetParam().slot; }
    Driver d;
};

TEST_P(EveryDrill, TenRightAnswersEndTheRunAndStoreAFirstTime)
{
    EXPECT_TRUE(d.platform.shown.empty()) << "no best time yet, nothing announced";
    EXPECT_FALSE(d.reachable(GetParam().box)) << "the box waits for Start";
    d.click("Command11");
    EXPECT_FALSE(d.enabled("Command11"));
    EXPECT_TRUE(d.timerOn("Timer1"));
    EXPECT_EQ(d.interval("Timer1"), 1000);
    for (int i = 0; i < 10; ++i) {
        EXPECT_EQ(d.caption("score"), std::to_string(i));
        d.tick("Timer1", 2);
        if (i == 9)
            d.platform.queueNo();
        answerRight();
    }
    EXPECT_EQ(d.platform.beeps, 10);
    EXPECT_EQ(d.platform.lastMessage(),
              "You completed 10 questions in 20 seconds.Do you want another go ?");
    EXPECT_EQ(slot().tag(), ValueTag::Double);
    EXPECT_EQ(slot().number(), 20);
    EXPECT_EQ(d.frontName(), GetParam().menu) << "No goes back to the menu that opened it";
    EXPECT_FALSE(d.isOpen(GetParam().screen));
}

TEST_P(EveryDrill, WrongAnswersNeverEndTheRun)
{
    d.click("Command11");
    for (int i = 0; i < 9; ++i)
        answerRight();
    const std::string question = d.caption("text1") + d.caption("text3") + d.caption("Text5");
    const std::string right = answerText(GetParam().answer(d));
    for (const char *wrong : {"1000", "-1000", "1"}) {
        if (right != wrong)
            d.typeEnter(GetParam().box, wrong);
    }
    EXPECT_EQ(d.caption("score"), "9");
    EXPECT_EQ(d.caption("text1") + d.caption("text3") + d.caption("Text5"), question);
    EXPECT_EQ(d.platform.beeps, 9) << "a wrong answer is silent";
    d.platform.queueYes();
    answerRight();
    EXPECT_EQ(d.platform.shown.size(), 1u);
}

TEST_P(EveryDrill, ExitAtAnyTimeReturnsToItsMenu)
{
    d.click("Command11");
    answerRight();
    d.click("Command12");
    EXPECT_EQ(d.frontName(), GetParam().menu);
    EXPECT_FALSE(d.isOpen(GetParam().screen));
    EXPECT_TRUE(slot().isEmpty());
}

TEST_P(EveryDrill, AnnouncesTheStoredBestOnOpening)
{
    d.app.close(GetParam().screen);
    slot() = Value::real(37.5);
    d.open(GetParam().screen);
    EXPECT_EQ(d.platform.messages(), std::vector<std::string>{"Your best time is 37.5 seconds."});
    EXPECT_EQ(d.progress().MessageText.str(), "Your best time is 37.5 seconds.");
}

INSTANTIATE_TEST_SUITE_P(Drills, EveryDrill, ::testing::ValuesIn(kDrills),
                         [](const auto &info) { return std::string(info.param.screen); });

// The frame's own rules, on the make-ten screen (where 0 can be a right answer) with scripted
// draws: with no options the number shown is Int(r × 10) + 1.
class Frame : public ::testing::Test
{
protected:
    void start(double draw)
    {
        d.open("maketen");
        d.platform.queueDraw(draw);
        d.click("Command11");
    }
    Driver d;
};

TEST_F(Frame, UntidyEntriesAreClearedWithoutPenalty)
{
    start(0.25); // 3 + [7] = 10
    d.tick("Timer1", 3);
    for (const char *entry : {"07", "7.", ".7", "7a", " 7", "-0", "0.0", "", "abc", "7 "}) {
        d.typeEnter("text3", entry);
        EXPECT_EQ(d.caption("text3"), "") << entry;
        EXPECT_EQ(d.caption("time"), "3") << entry;
    }
    EXPECT_EQ(d.caption("score"), "0");
    EXPECT_EQ(d.platform.beeps, 0);
    d.typeEnter("text3", "7");
    EXPECT_EQ(d.caption("score"), "1");
}

TEST_F(Frame, TheSingleDigitZeroIsAnAnswer)
{
    start(0.95); // 10 + [0] = 10
    d.typeEnter("text3", "0");
    EXPECT_EQ(d.caption("score"), "1");
    EXPECT_EQ(d.platform.beeps, 1);
}

TEST_F(Frame, AWrongAnswerAddsTwoSecondsAtOnce)
{
    start(0.25);
    d.tick("Timer1", 4);
    d.typeEnter("text3", "6");
    EXPECT_EQ(d.caption("time"), "6");
    EXPECT_EQ(d.caption("text3"), "");
    EXPECT_EQ(d.caption("text1"), "3") << "the same question stays";
    EXPECT_TRUE(d.reachable("text3"));
    EXPECT_EQ(d.front().focusName(), "text3");
    d.tick("Timer1");
    EXPECT_EQ(d.caption("time"), "7");
    EXPECT_EQ(d.caption("score"), "0");
}

TEST_F(Frame, OtherKeysEditTheBoxAndTheStopwatchOnlyRunsAfterStart)
{
    d.open("maketen");
    d.tick("Timer1", 5);
    EXPECT_EQ(d.caption("time"), "");
    d.platform.queueDraw(0.25);
    d.click("Command11");
    d.type("text3", "12");
    d.key("text3", 8);
    EXPECT_EQ(d.caption("text3"), "1");
    EXPECT_EQ(d.caption("score"), "0");
}

// The best-time check with the run's time against the stored best.
struct BestCase
{
    const char *name;
    Value stored;
    int seconds;
    const char *message;
    double kept;
};

TEST_F(Frame, BestTimeCheck)
{
    const BestCase cases[] = {
        {"first", Value(), 12, "You completed 10 questions in 12 seconds.Do you want another go ?",
         12},
        {"zero is no best", Value::int16(0), 12,
         "You completed 10 questions in 12 seconds.Do you want another go ?", 12},
        {"equal", Value::real(12), 12,
         "You completed 10 questions in 12 seconds.Do you want another go ?", 12},
        {"slower", Value::real(11.5), 12,
         "You completed 10 questions in 12 seconds.Do you want another go ?", 11.5},
        {"faster", Value::real(12.5), 12,
         "You completed 10 questions in 12 seconds. You have beaten your best time!!! Do you "
         "want another go ?",
         12},
    };
    for (const BestCase &c : cases) {
        SCOPED_TRACE(c.name);
        Driver run;
        run.progress().MakeTenBest = c.stored;
        run.open("maketen");
        run.platform.clearShown();
        run.click("Command11");
        for (int i = 0; i < 10; ++i) {
            run.tick("Timer1", i < 9 ? 1 : c.seconds - 9 - 2);
            if (i == 0) // one wrong answer: a two-second penalty
                run.typeEnter("text3", answerText(11 - shown(run, "text1")));
            if (i == 9)
                run.platform.queueNo();
            run.typeEnter("text3", answerText(10 - shown(run, "text1")));
        }
        EXPECT_EQ(run.platform.lastMessage(), c.message);
        EXPECT_EQ(run.progress().MessageText.str(), c.message);
        EXPECT_EQ(run.progress().MessageReply.whole(), kNo);
        EXPECT_EQ(run.progress().MakeTenBest.number(), c.kept);
        EXPECT_EQ(run.frontName(), "addmenu");
    }
}

TEST_F(Frame, YesStartsAgainAtOnce)
{
    start(0.95);
    d.tick("Timer1", 30);
    for (int i = 0; i < 10; ++i) {
        if (i == 9) {
            d.platform.queueYes();
            d.platform.queueDraw(0.25);
        }
        d.typeEnter("text3", answerText(10 - shown(d, "text1")));
    }
    EXPECT_EQ(d.progress().MessageReply.whole(), kYes);
    EXPECT_EQ(d.frontName(), "maketen");
    EXPECT_EQ(d.caption("time"), "0");
    EXPECT_EQ(d.caption("score"), "0");
    EXPECT_TRUE(d.timerOn("Timer1"));
    EXPECT_FALSE(d.enabled("Command11")) << "Start stays disabled";
    EXPECT_EQ(d.caption("text1"), "3") << "a new question at once";
    EXPECT_EQ(d.caption("text3"), "");
    EXPECT_EQ(d.progress().MakeTenBest.number(), 30);
}

// Slot selection: level 1 to 4 and flags of exactly 0 or 1 pick a slot; anything else none.
TEST(DrillSlots, LevelAndFlagsPickTheSlot)
{
    struct Case
    {
        Value level, negatives, decimals;
        BestSlot slot; // nullptr: no slot
    };
    const Value one = Value::int16(1), zero = Value::int16(0);
    const Case cases[] = {
        {Value::int16(2), zero, zero, &PupilProgress::AddBestNormal2},
        {Value::int16(3), one, zero, &PupilProgress::AddBestNeg3},
        {Value::int16(4), zero, one, &PupilProgress::AddBestDec4},
        {Value::int16(1), one, one, &PupilProgress::AddBestNegDec1},
        {Value::real(2), Value(), Value(), &PupilProgress::AddBestNormal2},
        {Value::int16(0), zero, zero, nullptr},
        {Value::int16(5), zero, zero, nullptr},
        {Value::real(2.5), zero, zero, nullptr},
        {Value::int16(2), Value::int16(2), zero, nullptr},
        {Value::int16(2), zero, Value::int16(-1), nullptr},
        {Value::int16(2), Value::text("1"), zero, nullptr},
    };
    for (const Case &c : cases) {
        Driver d;
        d.progress().AddLevel = c.level;
        d.progress().AddNegatives = c.negatives;
        d.progress().AddDecimals = c.decimals;
        PupilProgress &p = d.progress();
        for (BestSlot s : {&PupilProgress::AddBestNormal2, &PupilProgress::AddBestNeg3,
                           &PupilProgress::AddBestDec4, &PupilProgress::AddBestNegDec1})
            p.*s = Value::real(50);
        d.open("add11");
        SCOPED_TRACE(c.level.str() + "/" + c.negatives.str() + "/" + c.decimals.str());
        EXPECT_EQ(d.platform.messages().size(), c.slot ? 1u : 0u) << "announced only with a slot";
        d.click("Command11");
        for (int i = 0; i < 10; ++i) {
            if (i == 9)
                d.platform.queueNo();
            d.typeEnter("Text5", answerText(shown(d, "text1") + shown(d, "text3")));
        }
        for (BestSlot s : {&PupilProgress::AddBestNormal2, &PupilProgress::AddBestNeg3,
                           &PupilProgress::AddBestDec4, &PupilProgress::AddBestNegDec1})
            EXPECT_EQ((p.*s).number(), s == c.slot ? 0 : 50)
                << "a 0-second run beats only the slot";
    }
}

TEST(DrillSlots, TwoSlotScreensAndDivisionLevels)
{
    struct Case
    {
        const char *screen;
        Value PupilProgress::*flag;
        Value flagValue;
        Value divLevel;
        BestSlot slot;
    };
    const Value one = Value::int16(1), zero = Value::int16(0), two = Value::int16(2);
    const Case cases[] = {
        {"maketentimes", &PupilProgress::MulNegatives, zero, one,
         &PupilProgress::MakeTenTimesBestA},
        {"maketentimes", &PupilProgress::MulNegatives, one, one, &PupilProgress::MakeTenTimesBestB},
        {"maketentimes", &PupilProgress::MulNegatives, two, one, nullptr},
        {"maketendiv", &PupilProgress::DivNegatives, zero, one, &PupilProgress::MakeTenDivBest},
        {"maketendiv", &PupilProgress::DivNegatives, one, one, &PupilProgress::MakeTenDivBest2},
        {"div11", &PupilProgress::DivNegatives, zero, one, &PupilProgress::DivBest1},
        {"div11", &PupilProgress::DivNegatives, zero, two, &PupilProgress::DivBest2},
        {"div11", &PupilProgress::DivNegatives, one, one, &PupilProgress::DivBest3},
        {"div11", &PupilProgress::DivNegatives, one, two, &PupilProgress::DivBest4},
        {"div11", &PupilProgress::DivNegatives, zero, Value::int16(3), nullptr},
        {"makeany", &PupilProgress::AddDecimals, one, one, &PupilProgress::MakeAnyBestDec},
        {"maketensub", &PupilProgress::SubNegatives, one, one, &PupilProgress::MakeTenSubBestNeg},
    };
    const BestSlot all[] = {&PupilProgress::MakeTenTimesBestA, &PupilProgress::MakeTenTimesBestB,
                            &PupilProgress::MakeTenDivBest,    &PupilProgress::MakeTenDivBest2,
                            &PupilProgress::DivBest1,          &PupilProgress::DivBest2,
                            &PupilProgress::DivBest3,          &PupilProgress::DivBest4,
                            &PupilProgress::MakeAnyBestDec,    &PupilProgress::MakeTenSubBestNeg};
    for (const Case &c : cases) {
        SCOPED_TRACE(std::string(c.screen) + " " + c.flagValue.str() + " " + c.divLevel.str());
        Driver d;
        d.progress().*c.flag = c.flagValue;
        d.progress().DivLevel = c.divLevel;
        for (BestSlot s : all)
            d.progress().*s = Value::real(50);
        d.open(c.screen);
        EXPECT_EQ(d.platform.messages().size(), c.slot ? 1u : 0u);
        d.click("Command11");
        const auto &row = *std::find_if(std::begin(kDrills), std::end(kDrills),
                                        [&](auto &k) { return std::string(k.screen) == c.screen; });
        for (int i = 0; i < 10; ++i) {
            if (i == 9)
                d.platform.queueNo();
            d.typeEnter(row.box, answerText(row.answer(d)));
        }
        for (BestSlot s : all)
            EXPECT_EQ((d.progress().*s).number(), s == c.slot ? 0 : 50);
    }
}

} // namespace
} // namespace nb::test
