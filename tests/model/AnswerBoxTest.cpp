// The answer-box forms of column addition and subtraction: the pupil fills in the answer in any
// order and has it marked as a whole. Random questions answered right (and put right after a
// wrong digit) complete without more penalty than the wrong digit; the marking rules for missing,
// extra, repeated and corrected digits.
#include "WrittenTestSupport.h"
#include "core/Random.h"
#include "written/AnswerBoxMethod.h"

#include <algorithm>

namespace nb::test {
namespace {

constexpr std::uint32_t kRight = AnswerBoxMethod::kRightBox;
constexpr std::uint32_t kWrong = AnswerBoxMethod::kWrongBox;

int shownNumber(Driver &d, std::initializer_list<const char *> labels)
{
    std::string text;
    for (const char *l : labels)
        text += d.caption(l);
    return int(readNumber(text));
}

// The answer boxes of a question with their right text, units first.
std::vector<std::pair<std::string, std::string>> rightDigits(int answer, int places)
{
    std::vector<std::pair<std::string, std::string>> out;
    for (int p = 0; p < places; ++p, answer /= 10)
        out.emplace_back("Text1" + std::to_string(p + 1), numberText(answer % 10));
    return out;
}

// Random questions on both screens: the digits typed in a random order, one of them wrong at
// first, random notes in the small boxes; marking shows the wrong digit alone, costs two seconds,
// and the corrected answer completes the question.
TEST(AnswerBox, RandomQuestionsAnsweredInAnyOrder)
{
    UniformRandom rnd(33);
    for (const char *screen : {"ADD333b", "sub33b"}) {
        const bool adding = screen == std::string("ADD333b");
        const std::vector<std::string> notes =
            adding ? std::vector<std::string>{"Text15", "Text16"}
                   : std::vector<std::string>{"Text16", "Text15", "Text14", "text18"};
        Driver d;
        d.open(screen);
        d.click("Command11");
        for (int q = 0; q < 200; ++q) {
            const int answer = adding ? shownNumber(d, {"text1", "text3", "Text5"}) +
                                            shownNumber(d, {"text10", "text4", "text2"}) +
                                            shownNumber(d, {"text20", "text19", "text18"})
                                      : shownNumber(d, {"Label1", "Label2", "Text5"}) -
                                            shownNumber(d, {"text10", "text4", "text2"});
            SCOPED_TRACE(std::string(screen) + " answer " + std::to_string(answer));
            ASSERT_GT(answer, 0);
            auto digits = rightDigits(answer, adding && answer >= 1000 ? 4 : 3);
            std::shuffle(digits.begin(), digits.end(),
                         std::mt19937(std::uint32_t(rnd.next() * 1e9)));
            const std::size_t wrong = std::size_t(rnd.next() * double(digits.size()));
            const std::string wrongText =
                numberText((int(readNumber(digits[wrong].second)) + 1) % 10);
            for (std::size_t i = 0; i < digits.size(); ++i) {
                d.type(digits[i].first, i == wrong ? wrongText : digits[i].second);
                if (rnd.next() < 0.5) {
                    const std::string &note = notes[std::size_t(rnd.next() * double(notes.size()))];
                    d.setText(note, numberText(int(rnd.next() * 10)));
                }
            }
            const int before = int(readNumber(d.caption("time")));
            d.enter(digits.back().first);
            EXPECT_EQ(int(readNumber(d.caption("time"))), before + 2);
            for (std::size_t i = 0; i < digits.size(); ++i) {
                EXPECT_EQ(d.backColor(digits[i].first), i == wrong ? kWrong : kRight);
                EXPECT_EQ(d.enabled(digits[i].first), i == wrong);
            }
            EXPECT_EQ(d.front().focusName(), digits[wrong].first);
            EXPECT_EQ(d.caption("text17"), "Change the red digits.");

            const int beeps = d.platform.beeps;
            d.platform.queueDraw(rnd.next()); // praise
            queueDraws(d, {rnd.next(), rnd.next(), rnd.next(), rnd.next(), rnd.next(), rnd.next(),
                           rnd.next(), rnd.next(), rnd.next()});
            if (q % 5 == 4)
                d.platform.queueYes();
            d.type(digits[wrong].first, digits[wrong].second);
            EXPECT_EQ(d.text(digits[wrong].first), digits[wrong].second) << "typed afresh";
            d.click("Command13");
            EXPECT_EQ(d.platform.beeps, beeps + 1);
            if (q % 5 != 4) {
                EXPECT_TRUE(d.visible("Command10"));
                EXPECT_FALSE(d.visible("Command13"));
                EXPECT_EQ(int(readNumber(d.caption("time"))), before + 2);
                d.click("Command10");
            } else {
                EXPECT_EQ(d.caption("time"), "0") << "another go starts afresh";
            }
        }
    }
}

TEST(AnswerBox, AdditionMarkingRules)
{
    Driver d;
    d.open("ADD333b");
    queueDraws(d, columnAddDraws(123, 204, 311)); // 638
    d.click("Command11");
    EXPECT_EQ(d.caption("text17"), "Write the answer, then CHECK.");
    EXPECT_EQ(d.front().focusName(), "Text11");
    for (const char *box : {"Text11", "Text12", "Text13", "Text14"})
        EXPECT_EQ(d.backColor(box), colors::yellow) << box;

    // Enter after the units alone marks nothing: the tens and hundreds are missing.
    d.typeEnter("Text11", "8");
    EXPECT_EQ(d.caption("text17"), "Fill in H, T and U first.");
    EXPECT_EQ(d.front().focusName(), "Text12");
    EXPECT_EQ(d.caption("time"), "0");
    EXPECT_EQ(d.backColor("Text11"), colors::yellow);
    // An Enter on an empty box, and a second digit typed in a one-digit box, do nothing.
    d.enter("Text12");
    d.type("Text12", "34");
    EXPECT_EQ(d.text("Text12"), "3");
    EXPECT_EQ(d.caption("text17"), "Fill in H, T and U first.");

    // A 0 written in the thousands of a three-digit answer is wrong, as are wrong hundreds: two
    // digits, four seconds; the right ones stay.
    d.type("Text13", "5");
    d.type("Text14", "0");
    d.click("Command13");
    EXPECT_EQ(d.caption("time"), "4");
    EXPECT_EQ(d.backColor("Text13"), kWrong);
    EXPECT_EQ(d.backColor("Text14"), kWrong);
    EXPECT_EQ(d.backColor("Text12"), kRight);
    EXPECT_FALSE(d.enabled("Text11"));
    EXPECT_EQ(d.front().focusName(), "Text13");
    // Marking again with nothing changed costs nothing more (a double click, an Enter in a red
    // box).
    d.click("Command13");
    d.enter("Text13");
    EXPECT_EQ(d.caption("time"), "4");
    EXPECT_EQ(d.text("Text13"), "5") << "a red digit stays in view until it is changed";

    // Backspace empties the thousands; the hundreds are typed afresh.
    d.key("Text14", 8);
    EXPECT_EQ(d.text("Text14"), "");
    EXPECT_EQ(d.backColor("Text14"), colors::yellow);
    d.type("Text13", "6");
    d.typeEnter("Text15", "1");
    EXPECT_TRUE(d.visible("Command10"));
    EXPECT_EQ(d.caption("time"), "4");
    EXPECT_FALSE(d.enabled("Text15")) << "notes are closed with the question";
    EXPECT_EQ(d.text("Text15"), "1");

    // A four-digit total needs its thousands: leaving them empty is a wrong digit.
    queueDraws(d, columnAddDraws(999, 999, 999)); // 2997
    d.click("Command10");
    EXPECT_EQ(d.text("Text11") + d.text("Text15"), "") << "a new question starts empty";
    d.type("Text11", "7");
    d.type("Text12", "9");
    d.type("Text13", "9");
    d.type("Text16", "3"); // a wrong carry is not marked
    d.click("Command13");
    EXPECT_EQ(d.caption("time"), "6");
    EXPECT_EQ(d.backColor("Text14"), kWrong);
    d.typeEnter("Text14", "2");
    EXPECT_TRUE(d.visible("Command10"));
    EXPECT_EQ(d.caption("time"), "6");
}

TEST(AnswerBox, SubtractionAnswersEveryColumn)
{
    Driver d;
    d.open("sub33b");
    queueDraws(d, columnSubDraws(512, 481)); // 31
    d.click("Command11");
    EXPECT_EQ(d.caption("Label1") + d.caption("Label2") + d.caption("Text5") + "-" +
                  d.caption("text10") + d.caption("text4") + d.caption("text2"),
              "512-481");
    d.click("Label1");
    d.click("Label2");
    d.type("Text11", "1");
    d.typeEnter("Text12", "3");
    EXPECT_EQ(d.caption("text17"), "Fill in H, T and U first.")
        << "a difference below 100 has 0 hundreds";
    EXPECT_EQ(d.front().focusName(), "Text13");
    d.typeEnter("Text16", "4"); // exchanges in the small boxes
    d.setText("Text14", "1");
    EXPECT_EQ(d.caption("time"), "0");
    d.typeEnter("Text13", "0");
    EXPECT_TRUE(d.visible("Command10"));
    EXPECT_EQ(d.caption("time"), "0");
    EXPECT_EQ(d.front().focusName(), "Command10");
}

} // namespace
} // namespace nb::test
