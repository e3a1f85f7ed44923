// The answer-box forms of column addition and subtraction.
#include "WrittenTestSupport.h"
#include "core/Random.h"
#include "written/AnswerBoxMethod.h"

#include <algorithm>
#include <array>
#include <tuple>

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

void start(Driver &d, const std::string &screen, const std::vector<int> &numbers)
{
    d.open(screen);
    queueDraws(d, columnDraws(numbers));
    d.click("Command11");
}

TEST(AnswerBox, RandomQuestionsAnsweredInAnyOrder)
{
    UniformRandom rnd(33);
    for (const std::string screen : {"ADD333b", "sub33b"}) {
        const bool adding = screen == "ADD333b";
        Driver d;
        d.open(screen);
        d.click("Command11");
        for (int q = 0; q < 200; ++q) {
            const int bottom = shownNumber(d, {"text10", "text4", "text2"});
            const int answer = adding ? shownNumber(d, {"text1", "text3", "Text5"}) + bottom +
                                            shownNumber(d, {"text20", "text19", "text18"})
                                      : shownNumber(d, {"Label1", "Label2", "Text5"}) - bottom;
            SCOPED_TRACE(screen + " " + std::to_string(answer));
            std::vector<std::pair<std::string, int>> digits;
            for (int p = 0, a = answer; p < (answer >= 1000 ? 4 : 3); ++p, a /= 10)
                digits.emplace_back("Text1" + std::to_string(p + 1), a % 10);
            std::shuffle(digits.begin(), digits.end(), std::mt19937(std::uint32_t(q)));
            const std::size_t wrong = std::size_t(rnd.next() * double(digits.size()));
            for (std::size_t i = 0; i < digits.size(); ++i) {
                d.type(digits[i].first, numberText((digits[i].second + (i == wrong)) % 10));
                d.setText(adding ? "Text15" : "text18", numberText(q % 10)); // never marked
            }
            const int before = int(readNumber(d.caption("time")));
            d.enter(digits.back().first);
            for (std::size_t i = 0; i < digits.size(); ++i)
                EXPECT_TRUE(d.backColor(digits[i].first) == (i == wrong ? kWrong : kRight) &&
                            d.enabled(digits[i].first) == (i == wrong));
            EXPECT_EQ(d.front().focusName() + d.caption("text17"),
                      digits[wrong].first + "Change the red digits.");
            d.platform.queueDraw(rnd.next()); // the praise
            if (q % 5 == 4)
                d.platform.queueYes();
            d.type(digits[wrong].first, numberText(digits[wrong].second));
            d.click("Command13");
            if (q % 5 == 4) {
                EXPECT_EQ(d.caption("time"), "0") << "another go starts afresh";
                continue;
            }
            EXPECT_EQ(int(readNumber(d.caption("time"))), before + 2);
            d.click("Command10");
        }
    }
}

TEST(AnswerBox, MarkingRules)
{
    Driver d;
    start(d, "ADD333b", {123, 204, 311}); // 638
    EXPECT_EQ(d.front().focusName() + d.caption("text17"), "Text11Write the answer, then CHECK.");
    // Enter after the units alone marks nothing; a second digit replaces the first.
    d.typeEnter("Text11", "8");
    d.type("Text12", "43");
    d.enter("Text12");
    EXPECT_EQ(d.front().focusName() + d.caption("text17"), "Text13Fill in H, T and U first.");
    EXPECT_EQ(d.caption("time") + d.text("Text12"), "03");
    // A 1 in the thousands of a three-digit answer is wrong, as are wrong hundreds: four
    // seconds; marking again without a change costs nothing more.
    d.type("Text13", "5");
    d.type("Text14", "1");
    d.click("Command13");
    d.click("Command13");
    d.enter("Text13");
    EXPECT_EQ(d.caption("time") + d.text("Text13"), "45");
    EXPECT_EQ(d.backColor("Text14"), kWrong);
    EXPECT_EQ(d.backColor("Text12"), kRight);
    d.key("Text14", 8);
    EXPECT_TRUE(d.backColor("Text14") == colors::yellow && d.text("Text14").empty())
        << "a changed red box is open again";
    d.type("Text13", "6");
    d.platform.queueDraw(0.0);
    d.typeEnter("Text15", "1");
    EXPECT_EQ(d.caption("time") + d.caption("text17"), "4That's correct !");
    EXPECT_FALSE(d.enabled("Text15"));

    // Subtraction: 512 - 481 = 31 needs its tens and units before it is marked.
    d.click("Command22");
    start(d, "sub33b", {512, 481});
    d.typeEnter("Text11", "1");
    EXPECT_EQ(d.front().focusName() + d.caption("text17"), "Text12Fill in H, T and U first.");
    d.typeEnter("Text12", "3");
    EXPECT_EQ(d.caption("time") + d.front().focusName(), "0Command10");
}

// In front of the first digit: empty or 0 is right, any other digit wrong; inner 0s must be
// written.
TEST(AnswerBox, PlacesInFrontOfTheAnswer)
{
    struct Case
    {
        const char *screen;
        std::vector<int> numbers;
        // Units, tens, hundreds (, thousands): "" leaves the box empty.
        std::vector<const char *> entries;
        const char *outcome; // "done", "missing" or the boxes marked wrong
    };
    const Case cases[] = {
        {"ADD333b", {123, 204, 311}, {"8", "3", "6", ""}, "done"},
        {"ADD333b", {123, 204, 311}, {"8", "3", "6", "0"}, "done"},
        {"ADD333b", {123, 204, 311}, {"8", "3", "6", "1"}, "Text14"},
        {"ADD333b", {999, 999, 999}, {"7", "9", "9", ""}, "Text14"},
        {"ADD333b", {999, 999, 999}, {"7", "9", "9", "0"}, "Text14"},
        {"ADD333b", {400, 300, 300}, {"0", "0", "0", "1"}, "done"},
        {"ADD333b", {400, 300, 300}, {"0", "", "0", "1"}, "missing"},
        {"sub33b", {512, 481}, {"1", "3", ""}, "done"},
        {"sub33b", {512, 481}, {"1", "3", "0"}, "done"},
        {"sub33b", {512, 481}, {"1", "3", "1"}, "Text13"},
        {"sub33b", {305, 298}, {"7", "", ""}, "done"},
        {"sub33b", {305, 298}, {"7", "0", "0"}, "done"},
        {"sub33b", {305, 298}, {"7", "", "0"}, "done"},
        {"sub33b", {305, 298}, {"7", "1", ""}, "Text12"},
        {"sub33b", {510, 480}, {"", "3", ""}, "missing"},
        {"sub33b", {510, 480}, {"0", "3", ""}, "done"},
        {"sub33b", {700, 398}, {"2", "", "3"}, "missing"},
        {"sub33b", {700, 398}, {"2", "0", "3"}, "done"},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(std::string(c.screen) + " " + c.entries[0] + c.entries[1] + c.entries[2]);
        Driver d;
        start(d, c.screen, c.numbers);
        d.platform.queueDraw(0.0); // the praise
        std::string wrong;
        for (std::size_t i = 0; i < c.entries.size(); ++i)
            d.type("Text1" + std::to_string(i + 1), c.entries[i]);
        d.click("Command13");
        for (std::size_t i = 0; i < c.entries.size(); ++i)
            if (d.backColor("Text1" + std::to_string(i + 1)) == kWrong)
                wrong += "Text1" + std::to_string(i + 1);
        const std::string outcome = d.visible("Command10")                               ? "done"
                                    : d.caption("text17") == "Fill in H, T and U first." ? "missing"
                                                                                         : wrong;
        EXPECT_EQ(outcome, c.outcome);
    }
}

// Carry and exchange boxes are big enough to use and cover no digit's ink.
TEST(AnswerBox, NoteBoxesAreReadableAndLeaveTheDigitsClear)
{
    struct Page
    {
        const char *screen;
        std::vector<const char *> notes, digits;
    };
    const Page pages[] = {
        {"ADD333b",
         {"Text15", "Text16"},
         {"text1", "text3", "Text5", "text10", "text4", "text2", "text20", "text19", "text18"}},
        {"sub33b",
         {"Text14", "Text15", "Text16", "text18"},
         {"Label1", "Label2", "Text5", "text10", "text4", "text2"}},
    };
    for (const Page &p : pages) {
        Driver d;
        d.open(p.screen);
        for (const char *note : p.notes) {
            const Control &n = d.front().ctl(note);
            SCOPED_TRACE(std::string(p.screen) + " " + note);
            EXPECT_GE(std::min(n.width, n.height), 360);
            for (const char *digit : p.digits) {
                const Control &g = d.front().ctl(digit);
                const int inkLeft = g.left + 280, inkRight = g.left + g.width - 280;
                const int inkTop = g.top + 230, inkBottom = g.top + g.height - 230;
                EXPECT_FALSE(n.left < inkRight && inkLeft < n.left + n.width && n.top < inkBottom &&
                             inkTop < n.top + n.height)
                    << "covers " << digit;
            }
        }
    }
}

TEST(AnswerBox, TheCursorMovesLeftAsDigitsAreWritten)
{
    struct Case
    {
        const char *screen;
        std::vector<int> numbers;
        // Box and digit typed, then the box the cursor is in.
        std::vector<std::array<const char *, 3>> keys;
    };
    const Case cases[] = {
        {"ADD333b",
         {123, 204, 311},
         {{"Text11", "8", "Text12"}, {"Text12", "3", "Text13"}, {"Text13", "6", "Text13"}}},
        {"ADD333b",
         {123, 204, 311},
         {{"Text13", "6", "Text13"}, {"Text11", "8", "Text12"}, {"Text12", "3", "Text12"}}},
        {"ADD333b", {999, 999, 999}, {{"Text14", "2", "Text14"}, {"Text12", "9", "Text13"}}},
        {"sub33b", {512, 481}, {{"Text11", "1", "Text12"}, {"Text12", "3", "Text13"}}},
        {"sub33b", {512, 481}, {{"Text16", "4", "Text16"}, {"Text11", "1", "Text12"}}},
    };
    for (const Case &c : cases) {
        Driver d;
        start(d, c.screen, c.numbers);
        EXPECT_EQ(d.front().focusName(), "Text11");
        for (const auto &[box, digit, then] : c.keys) {
            d.front().setFocus(box);
            d.type(box, digit);
            EXPECT_EQ(d.front().focusName(), then) << c.screen << " " << box << digit;
        }
    }
    // Enter where the cursor stops marks the answer, also in an empty box in front of it.
    for (const auto &[screen, numbers, digits] :
         {std::tuple{"ADD333b", std::vector{123, 204, 311}, "836"},
          std::tuple{"sub33b", std::vector{512, 481}, "13"}}) {
        Driver d;
        start(d, screen, numbers);
        d.platform.queueDraw(0.0);
        for (const char *digit = digits; *digit; ++digit)
            d.type(std::string(d.front().focusName()), std::string(1, *digit));
        d.enter(std::string(d.front().focusName()));
        EXPECT_EQ(d.caption("text17") + d.front().focusName(), "That's correct !Command10")
            << screen;
    }
}

TEST(AnswerBox, TheBottomNumberHasNoZerosInFront)
{
    const std::tuple<int, int, const char *> cases[] = {{512, 81, "|8|1"},
                                                        {512, 7, "||7"},
                                                        {512, 100, "1|0|0"},
                                                        {905, 30, "|3|0"},
                                                        {905, 804, "8|0|4"}};
    for (const auto &[top, bottom, shown] : cases) { // hundreds|tens|units
        Driver d;
        start(d, "sub33b", {top, bottom});
        EXPECT_EQ(d.caption("text10") + "|" + d.caption("text4") + "|" + d.caption("text2"), shown)
            << top << " - " << bottom;
    }
}

} // namespace
} // namespace nb::test
