// The written-method screens as a pupil meets them: the answer-box key filter, the shared frame
// (stopwatch, penalties, praise, the closing question) and each screen's step machine, with the
// digits of every question scripted.
#include "activity/AnswerBoxFilter.h"
#include "activity/PraiseList.h"
#include "core/PupilProgress.h"
#include "support/Driver.h"

#include <gtest/gtest.h>

#include <optional>
#include <sstream>
#include <vector>

namespace nb::test {
namespace {

// The draw that makes Int(n r) + lo come out as v.
double drawFor(int v, int lo, int n)
{
    return (v - lo + 0.5) / n;
}
double digit(int d)
{
    return drawFor(d, 0, 10);
}

// The draws of one question on each screen.
std::vector<double> add333Draws(int a, int b, int c)
{
    std::vector<double> out;
    for (int n : {a, b, c})
        out.insert(out.end(), {drawFor(n / 100, 1, 9), digit(n / 10 % 10), digit(n % 10)});
    return out;
}
std::vector<double> sub33Draws(int top, int bottom)
{
    return {drawFor(top / 100, 1, 9), digit(top / 10 % 10),
            digit(top % 10),          drawFor(bottom / 100, 0, top / 100),
            digit(bottom / 10 % 10),  digit(bottom % 10)};
}
std::vector<double> times2Draws(int n, int m)
{
    return {drawFor(n / 10, 2, 8), digit(n % 10), drawFor(m, 4, 6)};
}
std::vector<double> timesDraws(int n, int m)
{
    return {drawFor(n / 100, 1, 9), digit(n / 10 % 10), digit(n % 10), drawFor(m, 1, 9)};
}

// A pupil at one of the screens, with the screen's digits scripted.
struct Pupil
{
    void queue(const std::vector<double> &draws)
    {
        for (double r : draws)
            d.platform.queueDraw(r);
    }
    // Opens the screen and presses Start on a scripted first question.
    void start(const std::string &screen, const std::vector<double> &draws)
    {
        d.open(screen);
        queue(draws);
        d.click("Command11");
    }
    // A script of right entries, "11=7 15=2" for 7 in Text11 then 2 in Text15: each box must be
    // the active one, and each entry must beep.
    void answer(const std::string &script)
    {
        std::istringstream in(script);
        std::string item;
        while (in >> item) {
            const std::string box = "Text" + item.substr(0, item.find('='));
            SCOPED_TRACE(item);
            ASSERT_TRUE(d.reachable(box));
            EXPECT_EQ(d.backColor(box), colors::yellow);
            const int beeps = d.platform.beeps;
            d.typeEnter(box, item.substr(item.find('=') + 1));
            EXPECT_EQ(d.platform.beeps, beeps + 1);
        }
    }
    // Five times the same question, `seconds` on the stopwatch, `reply` to another go.
    void playExercise(const std::string &screen, const std::vector<double> &draws,
                      const std::string &script, int seconds, int reply)
    {
        start(screen, draws);
        d.tick("Timer1", seconds);
        for (int q = 0; q < 5; ++q) {
            if (q > 0) {
                queue(draws);
                d.click("Command10");
            }
            if (q == 4)
                d.platform.queueYesNo(reply);
            answer(script);
        }
    }
    bool complete() { return d.visible("Command10"); }
    // A label as the pupil sees it: "-" when hidden.
    std::string shown(const char *name) { return d.visible(name) ? d.caption(name) : "-"; }
    Driver d;
};

class Written : public ::testing::Test, protected Pupil
{};

TEST(WrittenFilter, EmptiesUntidyTextAndSubmitsOnlyOnEnter)
{
    struct Case
    {
        const char *text;
        int key;
        const char *after;            // the box text once the rule has run
        std::optional<int> submitted; // only for an accepted Enter
    };
    const Case cases[] = {
        {"7", kEnterKey, "7", 7},     {"0", kEnterKey, "0", 0},
        {"-3", kEnterKey, "-3", -3},  {"", kEnterKey, "", {}},
        {"07", kEnterKey, "", {}},    {"5.", kEnterKey, "", {}},
        {"5a", kEnterKey, "", {}},    {" 5", kEnterKey, "", {}},
        {"abc", kEnterKey, "", {}},   {"0.0", kEnterKey, "", {}},
        {"-0", kEnterKey, "", {}},    {"2.5", kEnterKey, "2.5", 2}, // halves to even
        {"3.5", kEnterKey, "3.5", 4}, {"99999", kEnterKey, "99999", 32767},
        {"0", '5', "0", {}},          {"07", '1', "", {}},
        {"x", '1', "", {}},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(std::string("\"") + c.text + "\" key " + std::to_string(c.key));
        std::string text = c.text;
        const auto got = filterAnswerKey(text, c.key);
        EXPECT_EQ(text, c.after);
        EXPECT_EQ(got ? std::optional<int>(*got) : std::nullopt, c.submitted);
    }
    std::string text = "07";
    EXPECT_EQ(filterAnswerKey(text, 0, kEnterKey), std::optional<std::int16_t>(7))
        << "a reference of 0 lets untidy numbers through";
}

TEST(WrittenFilter, PraiseIsPickedFromTenTextsByTenths)
{
    EXPECT_EQ(praiseFor(0.0), "That's correct !");
    EXPECT_EQ(praiseFor(0.45), "Way to go dude !");
    EXPECT_EQ(praiseFor(0.999999), "Superb !");
}

// ---------------------------------------------------------------- the frame, on every screen

struct ScreenCase
{
    const char *screen;
    const char *menu;
    Value PupilProgress::*best;
    std::vector<double> draws; // one easy question
    const char *script;        // and its right answers
};
void PrintTo(const ScreenCase &c, std::ostream *os)
{
    *os << c.screen;
}

const ScreenCase kScreens[] = {
    {"ADD333", "addmenu", &PupilProgress::ColumnAddBest, add333Draws(100, 100, 100),
     "11=0 12=0 13=3"},
    {"sub33", "submenu", &PupilProgress::ColumnSubBest, sub33Draws(555, 111), "11=4 12=4 13=4"},
    {"times2", "mulmenu", &PupilProgress::Mul21Best, times2Draws(21, 4), "11=4 12=8"},
    {"times", "mulmenu", &PupilProgress::Mul31Best, timesDraws(111, 2), "11=2 12=2 13=2"},
};

class WrittenFrame : public Written, public ::testing::WithParamInterface<ScreenCase>
{
protected:
    void playExercise(int seconds, int reply)
    {
        Pupil::playExercise(GetParam().screen, GetParam().draws, GetParam().script, seconds, reply);
    }
};

TEST_P(WrittenFrame, StopwatchRunsThroughTheQuestionAndPenalisesWrongEntries)
{
    start(GetParam().screen, GetParam().draws);
    EXPECT_FALSE(d.enabled("Command11"));
    EXPECT_TRUE(d.timerOn("Timer1"));
    EXPECT_EQ(d.interval("Timer1"), 1000);
    EXPECT_EQ(d.caption("score") + "/" + d.caption("time"), "0/0");
    EXPECT_EQ(d.caption("text17"), "Enter the units.");
    d.tick("Timer1", 3);
    EXPECT_EQ(d.caption("time"), "3");

    d.typeEnter("Text11", "9");
    EXPECT_EQ(d.caption("time"), "5") << "two seconds at once, between ticks";
    EXPECT_EQ(d.text("Text11"), "");
    EXPECT_EQ(d.platform.beeps, 0) << "a wrong entry is silent";
    EXPECT_EQ(d.caption("text17"), "Enter the units.");
    EXPECT_EQ(d.backColor("Text11"), colors::yellow);
    d.type("Text11", "x");
    d.enter("Text11");
    d.enter("Text11");
    EXPECT_EQ(d.caption("time"), "5") << "non-numbers and empty boxes submit nothing";

    d.platform.queueDraw(0.75); // the praise
    answer(GetParam().script);
    EXPECT_EQ(d.caption("text17"), "That's brainy !");
    EXPECT_TRUE(complete());
    EXPECT_EQ(d.caption("score"), "1");
    d.tick("Timer1");
    EXPECT_EQ(d.caption("time"), "6") << "the stopwatch runs on between questions";

    queue(GetParam().draws);
    d.click("Command10");
    EXPECT_FALSE(complete());
    EXPECT_EQ(d.caption("text17"), "Enter the units.");
    EXPECT_EQ(d.text("Text11"), "");
    EXPECT_FALSE(d.visible("Text12"));
}

// A first time is stored (a zero best is no best), a faster one praised and stored; a slower one
// is kept out, except on column addition, where every run beats and replaces a best.
TEST_P(WrittenFrame, FifthQuestionChecksTheBestAndAsksForAnotherGo)
{
    const ScreenCase &c = GetParam();
    Value &best = d.progress().*c.best;
    best = Value::int16(0);
    playExercise(12, kNo);
    EXPECT_TRUE(d.platform.messages().empty()) << "no best, no announcement";
    EXPECT_EQ(d.platform.lastMessage(),
              "You completed 5 questions in 12 seconds.Do you want another go ?");
    EXPECT_EQ(best.number(), 12);
    EXPECT_EQ(d.frontName(), c.menu);
    EXPECT_FALSE(d.isOpen(c.screen));

    playExercise(10, kYes);
    EXPECT_EQ(d.platform.messages(), std::vector<std::string>{"Your best time is 12 seconds."});
    const std::string beaten = " You have beaten your best time!!! ";
    EXPECT_EQ(d.platform.lastMessage(),
              "You completed 5 questions in 10 seconds." + beaten + "Do you want another go ?");
    EXPECT_EQ(best.number(), 10);
    EXPECT_TRUE(d.progress().MessageReply.equalsNumber(kYes));
    EXPECT_EQ(d.caption("score") + "/" + d.caption("time"), "0/0") << "Yes starts afresh";
    EXPECT_TRUE(d.timerOn("Timer1"));
    EXPECT_FALSE(complete());
    d.click("Command22");
    EXPECT_EQ(d.frontName(), c.menu);
    EXPECT_FALSE(d.isOpen(c.screen));

    const bool addition = c.screen == std::string("ADD333");
    playExercise(15, kCancel); // the box escaped: as No
    EXPECT_EQ(d.platform.lastMessage(), "You completed 5 questions in 15 seconds." +
                                            (addition ? beaten : "") + "Do you want another go ?");
    EXPECT_EQ(best.number(), addition ? 15 : 10);
    EXPECT_EQ(d.frontName(), c.menu);
}

INSTANTIATE_TEST_SUITE_P(Screens, WrittenFrame, ::testing::ValuesIn(kScreens),
                         [](const auto &info) { return std::string(info.param.screen); });

// ---------------------------------------------------------------- column addition

TEST_F(Written, AdditionWithoutCarriesSkipsEveryCarryStep)
{
    start("ADD333", add333Draws(123, 204, 311));
    EXPECT_EQ(d.caption("text1") + d.caption("text3") + d.caption("Text5"), "123");
    EXPECT_EQ(d.caption("text10") + d.caption("text4") + d.caption("text2"), "204");
    EXPECT_EQ(d.caption("text20") + d.caption("text19") + d.caption("text18"), "311");
    answer("11=8 12=3");
    EXPECT_EQ(d.caption("text17"), "Enter the hundreds.");
    answer("13=6");
    EXPECT_TRUE(complete());
    EXPECT_EQ(shown("Text14") + shown("Text15") + shown("Text16"), "---");
    for (const char *box : {"Text11", "Text12", "Text13"}) {
        EXPECT_EQ(d.backColor(box), colors::lightRed) << box;
        EXPECT_FALSE(d.enabled(box)) << box;
    }
}

TEST_F(Written, AdditionWalksThroughBothCarriesAndTheThousands)
{
    start("ADD333", add333Draws(999, 999, 999));
    answer("11=7");
    EXPECT_EQ(d.caption("text17"), "Enter the number to carry.");
    EXPECT_EQ(d.backColor("Text11"), colors::lightRed);
    EXPECT_FALSE(d.enabled("Text11"));
    EXPECT_FALSE(d.visible("Text12"));
    answer("15=2 12=9");
    EXPECT_TRUE(d.visible("Text15")) << "a carry box stays once asked for";
    EXPECT_FALSE(d.enabled("Text15"));
    answer("16=2 13=9");
    EXPECT_EQ(d.caption("text17"), "Enter the thousands.");
    answer("14=2");
    EXPECT_TRUE(complete());
}

TEST(WrittenAddition, AColumnSummingToExactlyTenCarriesOne)
{
    const struct
    {
        int a, b, c;
        const char *script;
    } cases[] = {
        {102, 305, 103, "11=0 15=1 12=1 13=5"}, // units 2 + 5 + 3
        {130, 150, 120, "11=0 12=0 16=1 13=4"}, // tens 3 + 5 + 2
        {104, 203, 102, "11=9 12=0 13=4"},      // units 9: no carry
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.script);
        Pupil run;
        run.start("ADD333", add333Draws(c.a, c.b, c.c));
        run.answer(c.script);
        EXPECT_TRUE(run.complete());
        EXPECT_EQ(run.d.caption("time"), "0");
    }
}

TEST_F(Written, AdditionKeepsTheStepOnAWrongEntry)
{
    // Units 8 + 0 + 7 = 15: 5, carry 1; tens 0 + 0 + 0 + 1 = 1 with no carry.
    start("ADD333", add333Draws(108, 200, 307));
    d.typeEnter("Text11", "15");
    answer("11=5");
    d.typeEnter("Text15", "2");
    EXPECT_EQ(d.caption("time"), "4");
    EXPECT_EQ(d.caption("text17"), "Enter the number to carry.");
    answer("15=1 12=1 13=6");
    EXPECT_TRUE(complete());
    EXPECT_FALSE(d.visible("Text16"));
}

TEST_F(Written, AdditionUnitsBoxTakesItsTidinessRuleFromTheFirstUnitsDigit)
{
    // The first number ends in 0: "07" in the units box counts as 7, in the tens box it is
    // emptied.
    start("ADD333", add333Draws(100, 103, 104));
    d.typeEnter("Text11", "07");
    EXPECT_EQ(d.caption("text17"), "Enter the tens.");
    d.typeEnter("Text12", "00");
    EXPECT_EQ(d.text("Text12"), "");
    EXPECT_EQ(d.caption("text17"), "Enter the tens.");

    d.click("Command22");
    start("ADD333", add333Draws(101, 103, 103));
    d.typeEnter("Text11", "07");
    EXPECT_EQ(d.text("Text11"), "");
    EXPECT_EQ(d.caption("text17"), "Enter the units.");
    EXPECT_EQ(d.caption("time"), "0");
}

// ---------------------------------------------------------------- column subtraction

TEST_F(Written, SubtractionThroughAnEmptyTensColumn)
{
    start("sub33", sub33Draws(402, 157));
    EXPECT_FALSE(d.enabled("Text11")) << "the units wait for an exchange";
    d.click("Label2");
    EXPECT_EQ(shown("Text15"), "-") << "no tens to give yet";
    d.click("Label1");
    EXPECT_EQ(shown("Text16") + shown("Text14"), "31");
    EXPECT_FALSE(d.enabled("Text11"));
    d.click("Label2");
    EXPECT_EQ(shown("Text15") + shown("Text14") + shown("text18"), "9-1");
    d.click("Label1");
    d.click("Label2");
    EXPECT_EQ(shown("Text16") + shown("Text15"), "39") << "each exchange only once";
    answer("11=5 12=4 13=2");
    EXPECT_TRUE(complete());
}

TEST_F(Written, SubtractionWithoutExchangeIgnoresTheTopDigits)
{
    start("sub33", sub33Draws(743, 521));
    d.click("Label2");
    d.click("Label1");
    answer("11=2");
    d.click("Label1");
    answer("12=2 13=2");
    EXPECT_EQ(shown("Text16") + shown("Text15") + shown("Text14") + shown("text18") +
                  shown("text19"),
              "-----");
}

TEST_F(Written, SubtractionExchangesAHundredForTheTens)
{
    start("sub33", sub33Draws(512, 481));
    answer("11=1");
    EXPECT_EQ(d.caption("text17"), "Enter the tens.");
    EXPECT_FALSE(d.enabled("Text12"));
    // A disabled box cannot be typed in; an Enter reaching it anyway, with the right digit
    // already there, counts as wrong until the exchange is made.
    Screen &s = d.front();
    s.ctl("Text12").caption = "3";
    d.app.keyPress(s, "Text12", -1, kEnterKey);
    EXPECT_EQ(d.caption("time"), "2");
    d.click("Label2");
    EXPECT_EQ(shown("Text15"), "-") << "the units exchange belongs to the units step";
    d.click("Label1");
    EXPECT_EQ(shown("Text16") + shown("Text14") + shown("text19"), "41-");
    answer("12=3");
    EXPECT_EQ(d.caption("text17"), "Enter the hundreds.") << "asked although the answer is 31";
    answer("13=0");
    EXPECT_TRUE(complete());
}

TEST_F(Written, SubtractionExchangesTwiceIntoARewrittenTens)
{
    // 322 - 127: the units take a ten (2 tens -> 1), then the tens take a hundred: the "1" goes
    // in front of the rewritten 1.
    start("sub33", sub33Draws(322, 127));
    d.click("Label2");
    answer("11=5");
    EXPECT_FALSE(d.enabled("Text12"));
    d.click("Label1");
    EXPECT_EQ(shown("Text16") + shown("text19") + shown("Text15") + shown("Text14"), "211-");
    answer("12=9 13=1");
    EXPECT_TRUE(complete());
}

TEST_F(Written, SubtractionWaitingForAnExchangeRestsOnTheDigitToClick)
{
    // The focus never rests where Enter would act (Exit): while a column waits, it is on the top
    // digit to click, which the hint names and which is marked; the prompt line stays as it is.
    struct Case
    {
        int top, bottom;
        const char *before; // right entries made first
        const char *digit;  // the label to click
        const char *named;  // in the hint
        const char *prompt;
    };
    const Case cases[] = {
        {350, 272, "", "Label2", "Click the 5 at the top of the tens", "Enter the units."},
        {402, 157, "", "Label1", "Click the 4 at the top of the hundreds", "Enter the units."},
        {689, 497, "11=2", "Label1", "Click the 6 at the top of the hundreds", "Enter the tens."},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(std::to_string(c.top) + " - " + std::to_string(c.bottom));
        Pupil p;
        p.start("sub33", sub33Draws(c.top, c.bottom));
        p.answer(c.before);
        EXPECT_EQ(p.d.front().focusName(), c.digit);
        EXPECT_EQ(p.d.caption("text17"), c.prompt);
        EXPECT_TRUE(p.d.visible("hint"));
        EXPECT_NE(p.d.caption("hint").find(c.named), std::string::npos) << p.d.caption("hint");
        EXPECT_TRUE(p.d.control(c.digit).border);
        EXPECT_FALSE(p.d.control(std::string(c.digit) == "Label1" ? "Label2" : "Label1").border);
    }

    // Through the empty tens: the hundreds first, then the rewritten ten tens, then the box.
    start("sub33", sub33Draws(402, 157));
    d.click("Label1");
    EXPECT_EQ(d.front().focusName(), "Label2");
    EXPECT_NE(d.caption("hint").find("Click the 10 at the top of the tens"), std::string::npos);
    d.click("Label2");
    EXPECT_EQ(d.front().focusName(), "Text11");
    EXPECT_FALSE(d.visible("hint"));
    EXPECT_FALSE(d.control("Label1").border || d.control("Label2").border);
}

// ---------------------------------------------------------------- short multiplication

TEST(WrittenTimes, StepMachines)
{
    struct Case
    {
        const char *screen;
        std::vector<double> draws;
        const char *script;
        const char *neverShown; // boxes never seen in the question, as their numbers
    };
    const Case cases[] = {
        {"times2", times2Draws(25, 4), "11=0 15=2 12=0 13=1", ""},
        {"times2", times2Draws(21, 4), "11=4 12=8", "15 13"},
        {"times2", times2Draws(99, 9), "11=1 15=8 12=9 13=8", ""},
        {"times", timesDraws(999, 9), "11=1 15=8 12=9 16=8 13=9 14=8", ""},
        {"times", timesDraws(987, 1), "11=7 12=8 13=9", "14 15 16"},
        {"times", timesDraws(150, 7), "11=0 12=5 16=3 13=0 14=1", "15"},
        // A column product of exactly 10 carries 1.
        {"times2", times2Draws(32, 5), "11=0 15=1 12=6 13=1", ""},
        {"times", timesDraws(125, 2), "11=0 15=1 12=5 13=2", "14 16"},
        {"times", timesDraws(152, 2), "11=4 12=0 16=1 13=3", "14 15"},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(std::string(c.screen) + " " + c.script);
        Pupil run;
        run.start(c.screen, c.draws);
        std::istringstream in(c.script);
        for (std::string item; in >> item;) {
            run.answer(item);
            std::istringstream hidden(c.neverShown);
            for (std::string box; hidden >> box;)
                EXPECT_FALSE(run.d.visible("Text" + box)) << box;
        }
        EXPECT_TRUE(run.complete());
        EXPECT_EQ(run.d.caption("time"), "0");
    }
}

} // namespace
} // namespace nb::test
