// Long multiplication: every question filled in as asked is right; a pupil's slips.
#include "written/LongMultiplication.h"
#include "WrittenTestSupport.h"
#include "core/Random.h"

namespace nb::test {
namespace {

std::string box(int row, int place)
{
    return "Text" + std::to_string(row) + std::to_string(place + 1);
}

std::vector<int> digitsOf(int n)
{
    std::vector<int> d;
    for (; n > 0; n /= 10)
        d.push_back(n % 10);
    return d;
}

// A row's number (no gaps, no leading zero); per column, work + carry in = digit + 10 * carry out.
int checkRow(const Filled &f, int row, int carryRow, const std::vector<int> &work, int shift)
{
    int n = 0, top = -1;
    for (int p = 0, scale = 1; f.has(box(row, p)); ++p, scale *= 10, top = p - 1)
        n += f[box(row, p)] * scale;
    EXPECT_FALSE(f.has(box(row, top + 2))) << "gap in row " << row;
    EXPECT_TRUE(top == 0 || f[box(row, top)] != 0) << "leading zero in row " << row;
    for (std::size_t i = 0; i < work.size(); ++i) {
        const int p = int(i) + shift;
        const int out = i + 1 < work.size() ? f[box(carryRow, p + 1)] : f[box(row, p + 1)];
        EXPECT_EQ(work[i] + f[box(carryRow, p)], f[box(row, p)] + 10 * out) << box(row, p);
    }
    return n;
}

void checkQuestion(int a, int b)
{
    SCOPED_TRACE(std::to_string(a) + " x " + std::to_string(b));
    const auto steps = longMultiplicationSteps(a, b);
    const Filled f(steps);
    const int units = b % 10, tens = b / 10;
    std::vector<int> first, second, sums;
    for (int d : digitsOf(a)) {
        first.push_back(d * units);
        second.push_back(d * tens);
    }
    const auto p1 = digitsOf(a * units), p2 = digitsOf(a * tens * 10);
    for (std::size_t i = 0; i < std::max(p1.size(), p2.size()); ++i)
        sums.push_back((i < p1.size() ? p1[i] : 0) + (i < p2.size() ? p2[i] : 0));
    EXPECT_EQ(checkRow(f, 1, 4, first, 0), a * units);
    EXPECT_EQ(checkRow(f, 2, 5, second, 1), a * tens * 10);
    EXPECT_EQ(checkRow(f, 3, 6, sums, 0), a * b);
    // The second row opens with its placeholder; a carry is asked only when there is one, just
    // before the digit it goes into.
    for (std::size_t i = 0; i < steps.size(); ++i) {
        const std::string &b = steps[i].box;
        if (b == "Text21") {
            EXPECT_TRUE(steps[i].prompt == "Put a zero in the units column." &&
                        (steps[i - 1].box[4] == '1' || steps[i - 1].box[4] == '4'));
        }
        if (b[4] >= '4') {
            EXPECT_TRUE(steps[i].value > 0 && steps[i + 1].box == box(b[4] - '3', b[5] - '1')) << b;
        }
    }
}

TEST(LongMultiplication, EveryQuestionFilledInAsAskedIsRight)
{
    for (int a = 10; a <= 99; ++a)
        for (int b = 11; b <= 99; ++b)
            if (b % 10 != 0)
                checkQuestion(a, b);
    UniformRandom rnd(16);
    for (int i = 0; i < 4000; ++i)
        checkQuestion(wholeFromDraw(rnd.next(), 100, 999),
                      wholeFromDraw(rnd.next(), 1, 9) * 10 + wholeFromDraw(rnd.next(), 1, 9));
    checkQuestion(999, 99);
}

std::vector<double> questionDraws(int a, int b)
{
    std::vector<double> draws;
    const auto digits = digitsOf(a);
    for (std::size_t i = digits.size(); i-- > 0;)
        draws.push_back(i + 1 == digits.size() ? drawFor(digits[i], 1, 9)
                                               : drawFor(digits[i], 0, 10));
    draws.push_back(drawFor(b / 10, 1, 9));
    draws.push_back(drawFor(b % 10, 1, 9));
    return draws;
}

TEST(LongMultiplication, PupilWorksThroughBothRowsAndTheAddition)
{
    Driver d;
    d.open("t22");
    queueDraws(d, questionDraws(47, 36));
    d.click("Command11");
    EXPECT_EQ(d.caption("hint"), "First row: 47 \u00d7 6");
    fillSteps(d, 1);
    d.typeEnter("Text42", "2"); // a wrong carry: emptied, two seconds, the same step, no beep
    EXPECT_EQ(d.caption("time") + d.text("Text42") + d.caption("text17"),
              "2Enter the number to carry.");
    EXPECT_EQ(d.platform.beeps, 1);
    fillSteps(d, 3);
    EXPECT_EQ(d.caption("text17"), "Put a zero in the units column.");
    EXPECT_EQ(d.caption("hint"), "Second row: 47 \u00d7 30");
    EXPECT_FALSE(d.enabled("Text13"));
    fillSteps(d, 6);
    EXPECT_EQ(d.caption("hint"), "Add the two rows.");
    fillSteps(d);
    EXPECT_EQ(d.text("Text34") + d.text("Text33") + d.text("Text32") + d.text("Text31"), "1692");
    EXPECT_EQ(d.front().focusName(), "Command10");

    // The largest question reaches the ten thousands and every carry box.
    d.click("Command22");
    d.open("t32");
    queueDraws(d, questionDraws(999, 99));
    d.click("Command11");
    fillSteps(d);
    EXPECT_EQ(d.text("Text35") + d.text("Text65") + d.caption("time"), "910");
}

} // namespace
} // namespace nb::test
