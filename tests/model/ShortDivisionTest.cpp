// Short division: every question filled in as asked is right; drawn questions stay in range.
#include "written/ShortDivision.h"
#include "WrittenTestSupport.h"

#include <numeric>

namespace nb::test {
namespace {

// A question of the decimals screen does not come out whole and ends within two places.
bool endsInTwoPlaces(int n, int d)
{
    return n % d != 0 && n * 100 % d == 0;
}

void checkQuestion(int n, int d, DivisionEnding ending)
{
    SCOPED_TRACE(std::to_string(n) + " / " + std::to_string(d));
    const char *const answerBoxes[] = {"Text13", "Text12", "Text11", "Text18", "Text19"};
    const char *const carriedBoxes[] = {"", "Text22", "Text21", "Text28", "Text29"};
    const auto steps = shortDivisionSteps(n, d, ending);
    const Filled f(steps);
    const int digits[] = {n / 100, n / 10 % 10, n % 10, 0, 0};
    // Each place: (carried * 10 + digit) / d gives the answer digit; 0 is never carried.
    EXPECT_EQ(f.has("Text13"), digits[0] >= d);
    long long answer = 0;
    int carried = 0;
    for (int p = 0; p < (ending == DivisionEnding::Decimals ? 5 : 3); ++p) {
        if (p > 0) {
            EXPECT_TRUE(f[carriedBoxes[p]] == carried && f.has(carriedBoxes[p]) == (carried > 0))
                << carriedBoxes[p];
        }
        const int part = carried * 10 + digits[p], q = f[answerBoxes[p]];
        EXPECT_TRUE(part - q * d >= 0 && part - q * d < d) << answerBoxes[p];
        carried = part - q * d;
        answer = answer * 10 + q;
    }
    if (ending == DivisionEnding::Decimals) {
        EXPECT_EQ(answer * d, n * 100LL);
        EXPECT_NE(steps.back().value, 0) << "no trailing zero";
        return;
    }
    EXPECT_EQ(answer, n / d);
    if (ending == DivisionEnding::Remainder) {
        EXPECT_EQ(f["Text30"], n % d);
        return;
    }
    EXPECT_EQ(f["Text31"] * 10 + f["Text32"], n % d * 10 + d);
    const int g = std::gcd(n % d, d);
    EXPECT_EQ(f.has("Text33"), g > 1) << "simplified only where it can be";
    EXPECT_TRUE(g == 1 || (f["Text33"] * d == f["Text34"] * (n % d) &&
                           std::gcd(f["Text33"], f["Text34"]) == 1));
}

TEST(ShortDivision, EveryQuestionFilledInAsAskedIsRight)
{
    for (int d = 2; d <= 9; ++d)
        for (int n = 100; n <= 999; ++n)
            if (n % d != 0) {
                checkQuestion(n, d, DivisionEnding::Remainder);
                checkQuestion(n, d, DivisionEnding::Fraction);
                if (endsInTwoPlaces(n, d))
                    checkQuestion(n, d, DivisionEnding::Decimals);
            }
}

// Draws from both ends and the middle of every range.
TEST(ShortDivision, DrawnQuestionsStayInRange)
{
    const double ends[] = {0.0, 0.5, 0.999999};
    for (const std::string screen : {"div1into3withremsum", "div1into3dec", "div1into3frac"})
        for (int i = 0; i < 27; ++i) {
            Driver d;
            d.open(screen);
            d.platform.queueDraws({ends[i / 9], ends[i / 3 % 3], ends[i % 3]});
            d.click("Command11");
            const int n =
                int(readNumber(d.caption("text1") + d.caption("text3") + d.caption("Text5")));
            const int divisor = int(readNumber(d.caption("text2")));
            SCOPED_TRACE(screen + " " + std::to_string(n) + " / " + std::to_string(divisor));
            EXPECT_TRUE(n >= 100 && n <= 999 && divisor >= 2 && divisor <= 9);
            EXPECT_NE(n % divisor, 0);
            EXPECT_TRUE(screen != "div1into3dec" || endsInTwoPlaces(n, divisor));
        }
}

std::string shown(Driver &d, std::initializer_list<const char *> names)
{
    std::string out;
    for (const char *n : names)
        out += d.visible(n) ? d.caption(n) : "-";
    return out;
}

// The draws of the decimals screen (divisor 8, remainder 2 of {2, 4, 6}, answer 89 of 13..124)
// and of the others (divisor 6, remainder 2 of 1..5, answer 76 of 17..166).
TEST(ShortDivision, WhatTheMethodWritesAppearsAsItGoesOn)
{
    Driver d;
    d.open("div1into3dec");
    d.platform.queueDraws({drawFor(4, 0, 5), drawFor(0, 0, 3), drawFor(89, 13, 112)});
    d.click("Command11"); // 714 / 8 = 89.25
    EXPECT_EQ(d.caption("hint"), "8 won't go into 7.");
    EXPECT_FALSE(d.visible("Text13"));
    EXPECT_EQ(shown(d, {"text8", "text9", "text6", "text7"}), "----");
    fillSteps(d, 4);
    EXPECT_EQ(d.caption("hint"), "Carry on past the decimal point.");
    EXPECT_EQ(shown(d, {"text8", "text9", "text6", "text7"}), "..0-");
    fillSteps(d, 2);
    EXPECT_EQ(shown(d, {"text7"}), "0");
    fillSteps(d);
    EXPECT_EQ(d.text("Text12") + d.text("Text11") + "." + d.text("Text18") + d.text("Text19"),
              "89.25");
    d.platform.queueDraws({drawFor(0, 0, 5), 0.0, drawFor(228, 50, 450)});
    d.click("Command10"); // 457 / 2 = 228.5: a new question starts clean and ends at the tenths
    EXPECT_EQ(shown(d, {"text8", "text6", "text7"}), "---");
    fillSteps(d);
    EXPECT_EQ(shown(d, {"text7", "Text19"}), "--");

    Driver f;
    f.open("div1into3frac");
    f.platform.queueDraws({drawFor(6, 2, 8), drawFor(2, 1, 5), drawFor(76, 17, 150)});
    f.click("Command11"); // 458 / 6 = 76 2/6 = 76 1/3
    fillSteps(f, 6);
    EXPECT_EQ(shown(f, {"sign", "Label2", "Label3", "Label4"}), "=76");
    f.typeEnter("Text33", "2");
    EXPECT_EQ(f.caption("time") + f.caption("text17"), "2Simplify: enter the top.")
        << "an equal fraction that is not the simplest is wrong";
    fillSteps(f);
    EXPECT_EQ(f.text("Text31") + "/" + f.text("Text32") + "=" + f.text("Text33") + "/" +
                  f.text("Text34"),
              "2/6=1/3");

    Driver r;
    r.open("div1into3withremsum");
    r.platform.queueDraws({drawFor(6, 2, 8), drawFor(1, 1, 5), drawFor(76, 17, 150)});
    r.click("Command11"); // 457 / 6 = 76 r 1
    fillSteps(r, 4);
    EXPECT_EQ(shown(r, {"Label1"}) + r.caption("text17"), "rEnter the remainder.");
    fillSteps(r);
    EXPECT_TRUE(r.visible("Command10"));
}

} // namespace
} // namespace nb::test
