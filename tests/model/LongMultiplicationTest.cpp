// Long multiplication: every question a pupil can meet, filled in as the screen asks, gives both
// rows and the total with every carry and the placeholder zero right; and the screens as a pupil
// meets them.
#include "written/LongMultiplication.h"
#include "WrittenTestSupport.h"
#include "core/Random.h"

namespace nb::test {
namespace {

std::string box(int row, int place)
{
    return "Text" + std::to_string(row) + std::to_string(place + 1);
}

// The number written in a row of boxes, from the units up; fails on a gap or a leading zero.
int rowNumber(const std::map<std::string, int> &boxes, int row)
{
    int n = 0, scale = 1, top = -1;
    for (int place = 0; boxes.count(box(row, place)); ++place, scale *= 10) {
        n += boxes.at(box(row, place)) * scale;
        top = place;
    }
    for (int place = top + 1; place < 6; ++place)
        EXPECT_FALSE(boxes.count(box(row, place))) << "gap before " << box(row, place);
    if (top > 0) {
        EXPECT_NE(boxes.at(box(row, top)), 0) << "leading zero in row " << row;
    }
    return n;
}

std::vector<int> digitsOf(int n)
{
    std::vector<int> d;
    for (; n > 0; n /= 10)
        d.push_back(n % 10);
    return d;
}

// Each column: what comes in plus the column's work is the digit written plus ten times what
// goes out, where what goes out is the next carry box or, past the last column worked, the next
// digit itself.
void checkColumns(const std::map<std::string, int> &boxes, const std::vector<int> &work, int shift,
                  int row, int carryRow)
{
    for (std::size_t i = 0; i < work.size(); ++i) {
        const int place = int(i) + shift;
        const int in = valueOf(boxes, box(carryRow, place));
        const int out = i + 1 < work.size() ? valueOf(boxes, box(carryRow, place + 1))
                                            : valueOf(boxes, box(row, place + 1));
        EXPECT_EQ(work[i] + in, valueOf(boxes, box(row, place)) + 10 * out)
            << "row " << row << " place " << place;
    }
}

void checkQuestion(int a, int b)
{
    SCOPED_TRACE(std::to_string(a) + " x " + std::to_string(b));
    const std::vector<GuidedStep> steps = longMultiplicationSteps(a, b);
    const auto boxes = filledBoxes(steps);
    const int units = b % 10, tens = b / 10;
    EXPECT_EQ(rowNumber(boxes, 1), a * units);
    EXPECT_EQ(rowNumber(boxes, 2), a * tens * 10);
    EXPECT_EQ(rowNumber(boxes, 3), a * b);

    const std::vector<int> digits = digitsOf(a);
    std::vector<int> first, second;
    for (int d : digits) {
        first.push_back(d * units);
        second.push_back(d * tens);
    }
    checkColumns(boxes, first, 0, 1, 4);
    checkColumns(boxes, second, 1, 2, 5);
    const std::vector<int> p1 = digitsOf(a * units), p2 = digitsOf(a * tens * 10);
    std::vector<int> sums(std::max(p1.size(), p2.size()));
    for (std::size_t i = 0; i < sums.size(); ++i)
        sums[i] = (i < p1.size() ? p1[i] : 0) + (i < p2.size() ? p2[i] : 0);
    checkColumns(boxes, sums, 0, 3, 6);

    // The second row begins with its placeholder; a carry is asked only when there is one, just
    // before the digit of the column it goes into.
    std::size_t firstOfRow2 = 0;
    while (steps[firstOfRow2].box[4] == '1' || steps[firstOfRow2].box[4] == '4')
        ++firstOfRow2;
    EXPECT_EQ(steps[firstOfRow2].box, "Text21");
    EXPECT_EQ(steps[firstOfRow2].prompt, "Put a zero in the units column.");
    for (std::size_t i = 0; i < steps.size(); ++i) {
        const char row = steps[i].box[4];
        if (row < '4')
            continue;
        EXPECT_GT(steps[i].value, 0) << steps[i].box;
        EXPECT_EQ(steps[i].prompt, "Enter the number to carry.");
        ASSERT_LT(i + 1, steps.size());
        EXPECT_EQ(steps[i + 1].box, box(row - '3', steps[i].box[5] - '1'));
    }
}

// Every question of the two-digit screen, and a large random sample of the three-digit one.
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
    for (int a : {100, 999})
        for (int b : {11, 19, 91, 99})
            checkQuestion(a, b);
}

std::vector<double> questionDraws(int a, int b)
{
    std::vector<double> draws;
    const std::vector<int> digits = digitsOf(a);
    for (std::size_t i = digits.size(); i-- > 0;)
        draws.push_back(i + 1 == digits.size() ? drawFor(digits[i], 1, 9) : digitDraw(digits[i]));
    draws.push_back(drawFor(b / 10, 1, 9));
    draws.push_back(drawFor(b % 10, 1, 9));
    return draws;
}

TEST(LongMultiplication, PupilWorksThroughBothRowsAndTheAddition)
{
    Driver d;
    d.progress().Mul22Best = Value::real(30);
    d.open("t22");
    EXPECT_EQ(d.platform.messages(), std::vector<std::string>{"Your best time is 30 seconds."});
    for (double r : questionDraws(47, 36))
        d.platform.queueDraw(r);
    d.click("Command11");
    EXPECT_EQ(d.caption("text3") + d.caption("Text5") + "x" + d.caption("text4") +
                  d.caption("text2"),
              "47x36");
    EXPECT_EQ(d.caption("hint"), "First row: 47 \u00d7 6");
    fillSteps(d, 1);
    // A wrong carry: emptied, two seconds, same box and prompt, no beep.
    d.typeEnter("Text42", "2");
    EXPECT_EQ(d.caption("time"), "2");
    EXPECT_EQ(d.text("Text42"), "");
    EXPECT_EQ(d.platform.beeps, 1);
    EXPECT_EQ(d.caption("text17"), "Enter the number to carry.");
    d.enter("Text42");
    d.typeEnter("Text42", "04");
    EXPECT_EQ(d.caption("time"), "2") << "empty and untidy entries submit nothing";
    fillSteps(d, 3); // 4, 8, 2
    EXPECT_EQ(d.caption("text17"), "Put a zero in the units column.");
    EXPECT_EQ(d.caption("hint"), "Second row: 47 \u00d7 30");
    EXPECT_FALSE(d.enabled("Text13")) << "finished boxes take no more input";
    EXPECT_EQ(d.backColor("Text13"), colors::lightRed);
    d.typeEnter("Text21", "7");
    EXPECT_EQ(d.caption("time"), "4");
    fillSteps(d, 5); // 0, 1, carry 2, 4, 1
    EXPECT_EQ(d.caption("hint"), "Add the two rows.");
    EXPECT_FALSE(d.visible("Text63")) << "8 + 1 in the tens carries nothing";
    fillSteps(d);
    EXPECT_EQ(d.text("Text34") + d.text("Text33") + d.text("Text32") + d.text("Text31"), "1692");
    EXPECT_TRUE(d.visible("Command10"));
    EXPECT_EQ(d.front().focusName(), "Command10");
    EXPECT_EQ(d.caption("hint"), "");
    EXPECT_EQ(d.caption("score"), "1");
}

TEST(LongMultiplication, LargestQuestionsReachTheTopPlaces)
{
    struct Case
    {
        const char *screen;
        int a, b;
        const char *filled; // box=value in the order asked
    };
    const Case cases[] = {
        {"t32", 999, 99,
         "11=1 42=8 12=9 43=8 13=9 14=8 21=0 22=1 53=8 23=9 54=8 24=9 25=8 31=1 32=0 63=1 33=9 "
         "64=1 34=8 65=1 35=9"},
        {"t22", 99, 99,
         "11=1 42=8 12=9 13=8 21=0 22=1 53=8 23=9 24=8 31=1 32=0 63=1 33=8 64=1 34=9"},
        {"t22", 10, 11, "11=0 12=1 21=0 22=0 23=1 31=0 32=1 33=1"},
    };
    for (const Case &c : cases) {
        std::string got;
        for (const GuidedStep &s : longMultiplicationSteps(c.a, c.b))
            got += (got.empty() ? "" : " ") + s.box.substr(4) + "=" + numberText(s.value);
        EXPECT_EQ(got, c.filled);
        Driver d;
        d.open(c.screen);
        for (double r : questionDraws(c.a, c.b))
            d.platform.queueDraw(r);
        d.click("Command11");
        fillSteps(d);
        EXPECT_TRUE(d.visible("Command10")) << c.screen;
    }
}

} // namespace
} // namespace nb::test
