// Short division: every question a pupil can meet, filled in as the screen asks, gives the right
// answer with every carried remainder, decimal digit and fraction right; the drawn questions stay
// in range; and the three screens as a pupil meets them.
#include "written/ShortDivision.h"
#include "WrittenTestSupport.h"

#include <algorithm>
#include <numeric>

namespace nb::test {
namespace {

// The answer boxes and the carried-remainder boxes from the left: hundreds to hundredths.
const char *const kAnswer[] = {"Text13", "Text12", "Text11", "Text18", "Text19"};
const char *const kCarried[] = {"", "Text22", "Text21", "Text28", "Text29"};

// Whether n / d is a question of the decimals screen: it does not come out whole, and ends within
// two decimal places.
bool endsInTwoPlaces(int n, int d)
{
    return n % d != 0 && n * 100 % d == 0;
}

void checkQuestion(int n, int d, DivisionEnding ending)
{
    SCOPED_TRACE(std::to_string(n) + " / " + std::to_string(d));
    const auto steps = shortDivisionSteps(n, d, ending);
    const auto boxes = filledBoxes(steps);
    const int digits[] = {n / 100, n / 10 % 10, n % 10, 0, 0};
    const int places = ending == DivisionEnding::Decimals ? 5 : 3;

    // Each place: the remainder carried in, in front of the digit, divided by d gives the answer
    // digit and the remainder carried on. Nothing is written over a first digit d does not go
    // into.
    EXPECT_EQ(boxes.count("Text13") == 1, digits[0] >= d);
    long long answer = 0;
    int carried = 0;
    for (int p = 0; p < places; ++p) {
        const int in = p == 0 ? 0 : valueOf(boxes, kCarried[p]);
        if (p > 0) {
            EXPECT_EQ(in, carried) << kCarried[p];
            EXPECT_EQ(boxes.count(kCarried[p]) == 1, carried > 0) << "asked only when not 0";
        }
        const int part = in * 10 + digits[p];
        const int q = valueOf(boxes, kAnswer[p]);
        EXPECT_GE(part - q * d, 0) << kAnswer[p];
        EXPECT_LT(part - q * d, d) << kAnswer[p];
        carried = part - q * d;
        answer = answer * 10 + q;
    }

    switch (ending) {
    case DivisionEnding::Remainder:
        EXPECT_EQ(answer, n / d);
        EXPECT_EQ(valueOf(boxes, "Text30"), n % d);
        EXPECT_EQ(steps.back().box, "Text30");
        break;
    case DivisionEnding::Decimals:
        EXPECT_EQ(answer * d, n * 100LL) << "the decimal answer times the divisor";
        EXPECT_EQ(carried, 0);
        // The last digit asked is not a trailing zero.
        EXPECT_NE(steps.back().value, 0);
        EXPECT_EQ(steps.back().box, boxes.count("Text19") ? "Text19" : "Text18");
        break;
    case DivisionEnding::Fraction: {
        EXPECT_EQ(answer, n / d);
        EXPECT_EQ(valueOf(boxes, "Text31"), n % d);
        EXPECT_EQ(valueOf(boxes, "Text32"), d);
        const int g = std::gcd(n % d, d);
        EXPECT_EQ(boxes.count("Text33") == 1, g > 1) << "simplified only where it can be";
        if (g > 1) {
            const int top = valueOf(boxes, "Text33"), bottom = valueOf(boxes, "Text34");
            EXPECT_EQ(top * d, bottom * (n % d)) << "the same fraction";
            EXPECT_EQ(std::gcd(top, bottom), 1) << "in its simplest form";
        }
        break;
    }
    }
}

TEST(ShortDivision, EveryQuestionFilledInAsAskedIsRight)
{
    for (int d = 2; d <= 9; ++d)
        for (int n = 100; n <= 999; ++n) {
            if (n % d == 0)
                continue;
            checkQuestion(n, d, DivisionEnding::Remainder);
            checkQuestion(n, d, DivisionEnding::Fraction);
            if (endsInTwoPlaces(n, d))
                checkQuestion(n, d, DivisionEnding::Decimals);
        }
}

// The draws of a question: the divisor, the remainder after the units, the whole answer.
std::vector<double> questionDraws(int n, int d, bool decimals)
{
    const int r = n % d;
    const int lowest = (100 - r + d - 1) / d, highest = (999 - r) / d;
    const double whole = drawFor(n / d, lowest, highest - lowest + 1);
    if (!decimals)
        return {drawFor(d, 2, 8), drawFor(r, 1, d - 1), whole};
    const std::vector<std::vector<int>> remainders = {{1}, {1, 2, 3}, {1, 2, 3, 4}, {3}, {2, 4, 6}};
    const int divisors[] = {2, 4, 5, 6, 8};
    const int i = int(std::find(std::begin(divisors), std::end(divisors), d) - divisors);
    const auto &rs = remainders[std::size_t(i)];
    const int j = int(std::find(rs.begin(), rs.end(), r) - rs.begin());
    return {drawFor(i, 0, 5), drawFor(j, 0, int(rs.size())), whole};
}

int shownDividend(Driver &d)
{
    return int(readNumber(d.caption("text1") + d.caption("text3") + d.caption("Text5")));
}

// Draws from both ends and the middle of every range: the number always has three digits and
// the division is one of the screen's own.
TEST(ShortDivision, DrawnQuestionsStayInRange)
{
    const double ends[] = {0.0, 0.5, 0.999999};
    for (const char *screen : {"div1into3withremsum", "div1into3dec", "div1into3frac"}) {
        Driver d;
        d.open(screen);
        d.click("Command11");
        const bool decimals = screen == std::string("div1into3dec");
        for (double r1 : ends)
            for (double r2 : ends)
                for (double r3 : ends) {
                    d.click("Command22");
                    d.open(screen);
                    d.platform.queueDraws({r1, r2, r3});
                    d.click("Command11");
                    const int n = shownDividend(d), divisor = int(readNumber(d.caption("text2")));
                    SCOPED_TRACE(std::string(screen) + " " + std::to_string(n) + " / " +
                                 d.caption("text2"));
                    EXPECT_GE(n, 100);
                    EXPECT_LE(n, 999);
                    EXPECT_GE(divisor, 2);
                    EXPECT_LE(divisor, 9);
                    EXPECT_NE(n % divisor, 0);
                    EXPECT_TRUE(!decimals || endsInTwoPlaces(n, divisor));
                    const auto &g = dynamic_cast<GuidedSteps &>(d.front());
                    EXPECT_EQ(g.steps().size(),
                              shortDivisionSteps(n, divisor,
                                                 decimals ? DivisionEnding::Decimals
                                                 : screen == std::string("div1into3frac")
                                                     ? DivisionEnding::Fraction
                                                     : DivisionEnding::Remainder)
                                  .size());
                }
    }
}

void queueNext(Driver &d, const std::vector<double> &draws)
{
    for (double r : draws)
        d.platform.queueDraw(r);
}

struct Pupil
{
    void start(const char *screen, int n, int divisor)
    {
        d.open(screen);
        for (double r : questionDraws(n, divisor, screen == std::string("div1into3dec")))
            d.platform.queueDraw(r);
        d.click("Command11");
    }
    std::string shown(const char *name) { return d.visible(name) ? d.caption(name) : "-"; }
    Driver d;
};

TEST(ShortDivision, RemainderAfterR)
{
    Pupil p;
    Driver &d = p.d;
    p.start("div1into3withremsum", 457, 6);
    EXPECT_EQ(d.caption("text2") + ")" + d.caption("text1") + d.caption("text3") +
                  d.caption("Text5"),
              "6)457");
    // 6 does not go into 4: nothing over the hundreds, the 4 is carried.
    EXPECT_EQ(d.caption("text17"), "Enter the number to carry.");
    EXPECT_EQ(d.caption("hint"), "6 won't go into 4.");
    EXPECT_FALSE(d.visible("Text13"));
    EXPECT_EQ(p.shown("Label1"), "-");
    d.typeEnter("Text22", "0");
    EXPECT_EQ(d.caption("time"), "2");
    EXPECT_EQ(d.text("Text22"), "");
    d.typeEnter("Text22", "x");
    d.enter("Text22");
    d.typeEnter("Text22", "04");
    EXPECT_EQ(d.caption("time"), "2") << "untidy and empty entries submit nothing";
    EXPECT_EQ(d.platform.beeps, 0);
    fillSteps(d, 4); // carry 4, 7, carry 3, 6
    EXPECT_EQ(d.caption("text17"), "Enter the remainder.");
    EXPECT_EQ(p.shown("Label1"), "r");
    d.typeEnter("Text30", "7");
    EXPECT_EQ(d.caption("time"), "4");
    fillSteps(d);
    EXPECT_EQ(d.text("Text12") + d.text("Text11") + " r " + d.text("Text30"), "76 r 1");
    EXPECT_TRUE(d.visible("Command10"));
    for (const char *box : {"Text22", "Text12", "Text21", "Text11", "Text30"}) {
        EXPECT_FALSE(d.enabled(box)) << box;
        EXPECT_EQ(d.backColor(box), colors::lightRed) << box;
    }
}

TEST(ShortDivision, DecimalPlacesAppearAsTheDivisionGoesOn)
{
    Pupil p;
    Driver &d = p.d;
    // 714 / 8 = 89.25: the point and a first 0 come with the remainder after the units, a second
    // 0 with the remainder after the tenths.
    p.start("div1into3dec", 714, 8);
    EXPECT_EQ(p.shown("text8") + p.shown("text9") + p.shown("text6") + p.shown("text7"), "----");
    fillSteps(d, 4); // carry 7, 8, carry 7, 9
    EXPECT_EQ(d.caption("hint"), "Carry on past the decimal point.");
    EXPECT_EQ(p.shown("text8") + p.shown("text9") + p.shown("text6") + p.shown("text7"), "..0-");
    fillSteps(d, 2); // carry 2, 2
    EXPECT_EQ(p.shown("text7"), "0");
    fillSteps(d, 1); // carry 4
    EXPECT_EQ(d.caption("text17"), "Enter the hundredths.");
    fillSteps(d);
    EXPECT_EQ(d.text("Text12") + d.text("Text11") + "." + d.text("Text18") + d.text("Text19"),
              "89.25");

    // 457 / 2 = 228.5 ends after the tenths: no hundredths place.
    queueNext(d, questionDraws(457, 2, true));
    d.click("Command10");
    EXPECT_EQ(p.shown("text8") + p.shown("text6"), "--") << "a new question starts clean";
    fillSteps(d);
    EXPECT_EQ(p.shown("text7") + p.shown("Text19"), "--");
    EXPECT_TRUE(d.visible("Command10"));
}

TEST(ShortDivision, FractionInItsSimplestForm)
{
    Pupil p;
    Driver &d = p.d;
    // 458 / 6 = 76 2/6 = 76 1/3.
    p.start("div1into3frac", 458, 6);
    fillSteps(d, 4);
    EXPECT_EQ(d.caption("text17"), "Enter the remainder on top.");
    EXPECT_TRUE(d.visible("Line5"));
    EXPECT_EQ(p.shown("sign"), "-");
    fillSteps(d, 2);
    EXPECT_EQ(d.caption("text17"), "Simplify: enter the top.");
    EXPECT_EQ(p.shown("sign") + p.shown("Label2") + p.shown("Label3") + p.shown("Label4"), "=76");
    d.typeEnter("Text33", "2");
    EXPECT_EQ(d.caption("time"), "2") << "the same fraction, not simplified";
    fillSteps(d);
    EXPECT_EQ(d.text("Text31") + "/" + d.text("Text32") + "=" + d.text("Text33") + "/" +
                  d.text("Text34"),
              "2/6=1/3");
    EXPECT_TRUE(d.visible("Command10"));

    // 457 / 6 = 76 1/6 cannot be simplified: the question ends with the fraction.
    queueNext(d, questionDraws(457, 6, false));
    d.click("Command10");
    fillSteps(d);
    EXPECT_TRUE(d.visible("Command10"));
    EXPECT_EQ(p.shown("Text33") + p.shown("sign"), "--");
}

} // namespace
} // namespace nb::test
