// The seven further written-method screens share the written frame: the best time announced on
// opening, five questions, the closing best-time check on each screen's own slot, Yes to start
// afresh and Exit or No back to the menu that opened it; and whatever a child presses, in any
// box and at any moment, the screen stays in a state its rules allow.
#include "WrittenTestSupport.h"
#include "core/Random.h"
#include "written/AnswerBoxMethod.h"

#include <functional>

namespace nb::test {
namespace {

struct MethodCase
{
    const char *screen;
    const char *menu;
    Value PupilProgress::*best;
    std::vector<double> draws;            // one question
    std::function<void(Driver &)> answer; // and its right answer
};
void PrintTo(const MethodCase &c, std::ostream *os)
{
    *os << c.screen;
}

void answerBoxes(Driver &d, const char *digits)
{
    // Hundreds, tens, units.
    d.type("Text13", std::string(1, digits[0]));
    d.type("Text12", std::string(1, digits[1]));
    d.type("Text11", std::string(1, digits[2]));
    d.click("Command13");
}

const MethodCase kCases[] = {
    {"ADD333b", "addmenu", &PupilProgress::ColumnAddBest, columnAddDraws(100, 100, 100),
     [](Driver &d) { answerBoxes(d, "300"); }},
    {"sub33b", "submenu", &PupilProgress::ColumnSubBest, columnSubDraws(555, 111),
     [](Driver &d) { answerBoxes(d, "444"); }},
    {"t22",
     "mulmenu",
     &PupilProgress::Mul22Best,
     {drawFor(1, 1, 9), digitDraw(2), drawFor(1, 1, 9), drawFor(1, 1, 9)},
     [](Driver &d) { fillSteps(d); }},
    {"t32",
     "mulmenu",
     &PupilProgress::Mul32Best,
     {drawFor(1, 1, 9), digitDraw(0), digitDraw(0), drawFor(1, 1, 9), drawFor(1, 1, 9)},
     [](Driver &d) { fillSteps(d); }},
    // 7 / 2: divisor 2, remainder 1, whole answer 50 (the lowest of 50..499).
    {"div1into3withremsum",
     "divmenu",
     &PupilProgress::DivRemBest,
     {0.0, 0.0, 0.0},
     [](Driver &d) { fillSteps(d); }},
    {"div1into3dec",
     "divmenu",
     &PupilProgress::DivDecBest,
     {0.0, 0.0, 0.0},
     [](Driver &d) { fillSteps(d); }},
    {"div1into3frac",
     "divmenu",
     &PupilProgress::DivFracBest,
     {0.0, 0.0, 0.0},
     [](Driver &d) { fillSteps(d); }},
};

class WrittenMethod : public ::testing::TestWithParam<MethodCase>
{
protected:
    // Five questions with `seconds` on the stopwatch, `reply` to another go.
    void playExercise(int seconds, int reply)
    {
        const MethodCase &c = GetParam();
        d.open(c.screen);
        queueDraws(d, c.draws);
        d.click("Command11");
        EXPECT_FALSE(d.enabled("Command11"));
        d.tick("Timer1", seconds);
        for (int q = 0; q < 5; ++q) {
            if (q > 0) {
                queueDraws(d, c.draws);
                d.click("Command10");
            }
            if (q == 4)
                d.platform.queueYesNo(reply);
            c.answer(d);
        }
    }
    Driver d;
};

TEST_P(WrittenMethod, FifthQuestionChecksTheScreensOwnBest)
{
    const MethodCase &c = GetParam();
    Value &best = d.progress().*c.best;
    playExercise(12, kNo);
    EXPECT_TRUE(d.platform.messages().empty()) << "no best, no announcement";
    EXPECT_EQ(d.platform.lastMessage(),
              "You completed 5 questions in 12 seconds.Do you want another go ?");
    EXPECT_EQ(best.number(), 12);
    EXPECT_EQ(d.frontName(), c.menu);
    EXPECT_FALSE(d.isOpen(c.screen));

    playExercise(10, kYes);
    EXPECT_EQ(d.platform.messages(), std::vector<std::string>{"Your best time is 12 seconds."});
    EXPECT_EQ(d.platform.lastMessage(), "You completed 5 questions in 10 seconds. You have beaten "
                                        "your best time!!! Do you want another go ?");
    EXPECT_EQ(best.number(), 10);
    EXPECT_EQ(d.caption("score") + "/" + d.caption("time"), "0/0") << "Yes starts afresh";
    EXPECT_TRUE(d.timerOn("Timer1"));
    d.click("Command22");
    EXPECT_EQ(d.frontName(), c.menu);

    playExercise(10, kNo);
    EXPECT_EQ(d.platform.lastMessage(),
              "You completed 5 questions in 10 seconds.Do you want another go ?")
        << "an equal time is no new best";
    EXPECT_EQ(best.number(), 10);
}

// Random keys in every box a pupil can reach, Start, Next, CHECK, Exit and ticks at any moment.
// After every event: at most one box of a guided screen takes input and it is yellow, the
// stopwatch only goes up within a run, and the score never passes five.
TEST_P(WrittenMethod, AnyKeyInAnyBoxAtAnyMoment)
{
    const MethodCase &c = GetParam();
    d.platform.setLenient(true, 5);
    UniformRandom rnd(11);
    const int keys[] = {'0', '1', '2', '3', '4', '5', '6', '7', '8',
                        '9', '-', '.', ' ', 'a', 13,  13,  8};
    const bool guided = dynamic_cast<GuidedSteps *>(&d.open(c.screen)) != nullptr;
    int lastTime = 0;
    for (int i = 0; i < 4000; ++i) {
        if (!d.isOpen(c.screen)) {
            d.open(c.screen);
            lastTime = 0;
        }
        Screen &s = d.front();
        std::vector<const Control *> usable;
        for (const Control &ctl : s.controls())
            if (ctl.visible && ctl.enabled &&
                (ctl.kind == ControlKind::TextBox ||
                 (ctl.kind == ControlKind::Button &&
                  (ctl.name != "Command22" || rnd.next() < 0.02))))
                usable.push_back(&ctl);
        const double r = rnd.next();
        if (r < 0.05)
            d.tick("Timer1");
        else if (!usable.empty()) {
            const Control &ctl = *usable[std::size_t(rnd.next() * double(usable.size()))];
            const std::string name = ctl.name;
            if (ctl.kind == ControlKind::Button)
                d.click(name);
            else
                d.key(name, keys[std::size_t(rnd.next() * std::size(keys))]);
        }
        if (!d.isOpen(c.screen) || d.frontName() != c.screen)
            continue;
        const int time = int(readNumber(d.caption("time")));
        EXPECT_TRUE(time >= lastTime || time == 0);
        lastTime = time;
        int open = 0;
        for (const Control &ctl : d.front().controls()) {
            if (ctl.kind != ControlKind::TextBox || !ctl.visible || !ctl.enabled)
                continue;
            ++open;
            EXPECT_TRUE(!guided || ctl.backColor == colors::yellow) << ctl.name;
        }
        ASSERT_TRUE(!guided || open <= 1);
        ASSERT_LE(int(readNumber(d.caption("score"))), 5);
    }
}

INSTANTIATE_TEST_SUITE_P(Screens, WrittenMethod, ::testing::ValuesIn(kCases),
                         [](const auto &info) { return std::string(info.param.screen); });

} // namespace
} // namespace nb::test
