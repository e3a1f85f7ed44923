// The guided written-method screens played in the window as a pupil plays them: the keyboard
// only, Enter after every entry and after every praise, wrong entries on the way. The focus must
// always be where the next key belongs, never on Exit, and the closing question must come after
// the fifth question.
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
};

class AnswerBoxPlay : public WrittenPlay
{};

TEST_P(WrittenPlay, FiveQuestionsFromTheKeyboardAlone)
{
    open(GetParam(), "Command22");
    if (HasFatalFailure())
        return;
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
            type(std::to_string(step.value));
            if (HasFatalFailure())
                return;
        }
        if (question < 4) {
            ASSERT_EQ(focus(), widget("Command10"));
            press(Qt::Key_Return); // Next
        }
    }
    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_EQ(boxes[0].rfind("You completed 5 questions in ", 0), 0u) << boxes[0];
    EXPECT_NE(app.front(), screen);
}

INSTANTIATE_TEST_SUITE_P(Guided, WrittenPlay,
                         ::testing::Values("t22", "t32", "div1into3withremsum", "div1into3dec",
                                           "div1into3frac"));

// The answer-box screens from the keyboard: the digits of the answer typed from the units upwards
// (the cursor moves left by itself, a thousands digit is clicked into), then Enter.
TEST_P(AnswerBoxPlay, FiveQuestionsFromTheKeyboard)
{
    open(GetParam(), "Command22");
    if (HasFatalFailure())
        return;
    Screen *screen = app.front();
    const bool adding = std::string(GetParam()) == "ADD333b";
    // A number as its digit labels show it (an empty label in front of it reads as nothing).
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
        press(Qt::Key_Return);
        if (HasFatalFailure())
            return;
        if (question < 4) {
            ASSERT_EQ(focus(), widget("Command10")) << answer;
            press(Qt::Key_Return); // Next
        }
    }
    ASSERT_EQ(boxes.size(), 1u) << "score " << screen->ctl("score").caption;
    EXPECT_EQ(boxes[0].rfind("You completed 5 questions in ", 0), 0u) << boxes[0];
    EXPECT_NE(app.front(), screen);
}

// CHECK clicked with the mouse before the answer is complete: the cursor goes back to the box to
// fill, so the next digit typed lands there and not on the button.
TEST_P(AnswerBoxPlay, CheckClickedTooEarlySendsTheCursorBack)
{
    open(GetParam(), "Command22");
    if (HasFatalFailure())
        return;
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
