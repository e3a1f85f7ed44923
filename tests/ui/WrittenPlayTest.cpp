// The written-method screens played in the window from the keyboard, slips included.
#include "PlayInWindow.h"
#include "written/GuidedSteps.h"

namespace nb::ui {
namespace {

class WrittenPlay : public PlayInWindow
{
protected:
    void type(const std::string &text)
    {
        for (char c : text)
            press(Qt::Key_0 + (c - '0'));
        press(Qt::Key_Return);
    }
    void expectFinished(const Screen *screen)
    {
        ASSERT_EQ(boxes.size(), 1u) << "score " << screen->ctl("score").caption;
        EXPECT_EQ(boxes[0].rfind("You completed 5 questions in ", 0), 0u) << boxes[0];
        EXPECT_NE(app.front(), screen);
    }
};

class AnswerBoxPlay : public WrittenPlay
{};

TEST_P(WrittenPlay, FiveQuestionsFromTheKeyboardAlone)
{
    ASSERT_NO_FATAL_FAILURE(open(GetParam(), "Command22"));
    auto *screen = dynamic_cast<const GuidedSteps *>(app.front());
    ASSERT_NE(screen, nullptr);

    press(Qt::Key_Return); // Start
    for (int question = 0; question < 5; ++question) {
        SCOPED_TRACE(question);
        ASSERT_EQ(app.front(), screen);
        const std::size_t count = screen->steps().size();
        for (std::size_t i = 0; i < count; ++i) {
            const GuidedStep step = screen->steps()[i];
            ASSERT_EQ(screen->currentStep(), i);
            ASSERT_EQ(focus(), widget(step.box)) << step.box << ": " << step.prompt;
            // One wrong entry on the first step of every question.
            if (i == 0) {
                type(std::to_string(step.value == 9 ? 8 : step.value + 1));
                ASSERT_EQ(screen->currentStep(), 0u);
                ASSERT_EQ(focus(), widget(step.box));
            }
            ASSERT_NO_FATAL_FAILURE(type(std::to_string(step.value)));
        }
        if (question < 4) {
            ASSERT_EQ(focus(), widget("Command10"));
            press(Qt::Key_Return); // Next
        }
    }
    expectFinished(screen);
}

INSTANTIATE_TEST_SUITE_P(Guided, WrittenPlay,
                         ::testing::Values("t22", "t32", "div1into3withremsum", "div1into3dec",
                                           "div1into3frac"));

TEST_P(AnswerBoxPlay, FiveQuestionsFromTheKeyboard)
{
    ASSERT_NO_FATAL_FAILURE(open(GetParam(), "Command22"));
    Screen *screen = app.front();
    const bool adding = std::string(GetParam()) == "ADD333b";
    const auto number = [screen](std::initializer_list<const char *> labels) {
        int n = 0;
        for (const char *l : labels)
            for (char c : screen->ctl(l).caption)
                n = n * 10 + (c - '0');
        return n;
    };
    press(Qt::Key_Return); // Start
    for (int question = 0; question < 5; ++question) {
        SCOPED_TRACE(question);
        const int bottom = number({"text10", "text4", "text2"});
        const int answer = adding ? number({"text1", "text3", "Text5"}) + bottom +
                                        number({"text20", "text19", "text18"})
                                  : number({"Label1", "Label2", "Text5"}) - bottom;
        ASSERT_EQ(focus(), widget("Text11"));
        if (question == 0) {
            // A slip, then the units box clicked and the digit written over.
            press(Qt::Key_0 + (answer + 1) % 10);
            ASSERT_EQ(focus(), widget("Text12"));
            click("Text11");
        }
        for (int place = 0, rest = answer; place < 3 && (rest > 0 || place == 0);
             ++place, rest /= 10)
            press(Qt::Key_0 + rest % 10);
        if (answer >= 1000) {
            click("Text14");
            press(Qt::Key_0 + answer / 1000);
        }
        ASSERT_NO_FATAL_FAILURE(press(Qt::Key_Return));
        if (question < 4) {
            ASSERT_EQ(focus(), widget("Command10")) << answer;
            press(Qt::Key_Return); // Next
        }
    }
    expectFinished(screen);
}

TEST_P(AnswerBoxPlay, CheckClickedTooEarlySendsTheCursorBack)
{
    ASSERT_NO_FATAL_FAILURE(open(GetParam(), "Command22"));
    press(Qt::Key_Return); // Start
    press(Qt::Key_1);
    ASSERT_EQ(focus(), widget("Text12"));
    click("Command13");
    EXPECT_EQ(app.front()->ctl("text17").caption, "Fill in H, T and U first.");
    EXPECT_EQ(focus(), widget("Text12"));
}

INSTANTIATE_TEST_SUITE_P(AnswerBoxes, AnswerBoxPlay, ::testing::Values("ADD333b", "sub33b"));

} // namespace
} // namespace nb::ui
