// The written-method screens' shared frame: best times on each screen's own slot, Yes and No.
#include "WrittenTestSupport.h"

namespace nb::test {
namespace {

struct MethodCase
{
    const char *screen;
    const char *menu;
    Value PupilProgress::*best;
    std::vector<double> draws; // one question
    const char *digits;        // its hundreds, tens and units in answer boxes, else guided
};

// 11 x 11, 100 x 11, and 101 / 2 (divisor 2, remainder 1, the lowest answer 50).
const std::vector<double> kT22 = {drawFor(1, 1, 9), drawFor(1, 0, 10), 0.0, 0.0};
const MethodCase kCases[] = {
    {"ADD333b", "addmenu", &PupilProgress::ColumnAddBest, columnDraws({100, 100, 100}), "300"},
    {"sub33b", "submenu", &PupilProgress::ColumnSubBest, columnDraws({555, 111}), "444"},
    {"t22", "mulmenu", &PupilProgress::Mul22Best, kT22, nullptr},
    {"t32", "mulmenu", &PupilProgress::Mul32Best, {0.0, 0.0, 0.0, 0.0, 0.0}, nullptr},
    {"div1into3withremsum", "divmenu", &PupilProgress::DivRemBest, {0.0, 0.0, 0.0}, nullptr},
    {"div1into3dec", "divmenu", &PupilProgress::DivDecBest, {0.0, 0.0, 0.0}, nullptr},
    {"div1into3frac", "divmenu", &PupilProgress::DivFracBest, {0.0, 0.0, 0.0}, nullptr},
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
            if (!c.digits) {
                fillSteps(d);
                continue;
            }
            for (int i = 0; i < 3; ++i)
                d.type("Text1" + std::to_string(3 - i), std::string(1, c.digits[i]));
            d.click("Command13");
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

INSTANTIATE_TEST_SUITE_P(Screens, WrittenMethod, ::testing::ValuesIn(kCases),
                         [](const auto &info) { return std::string(info.param.screen); });

} // namespace
} // namespace nb::test
