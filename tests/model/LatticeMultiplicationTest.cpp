// The lattice screens: worked examples box by box, each lattice's boxes, and every question of
// all four lattices checked against values worked out here from A and B alone.
#include "LayoutScreensTestSupport.h"
#include "layouts/Lattice.h"
#include "layouts/LatticeFrame.h"

#include <algorithm>
#include <map>
#include <set>

namespace nb::test {
namespace {

constexpr std::uint32_t kLightOrange = LatticeFrame::kLightOrange;
constexpr std::uint32_t kLightCyan = LatticeFrame::kLightCyan;

// What each box of a lattice expects for A x B, from the layout's numbering: A's digits in
// question(1..3) by place, B's in question(10) and (20); answers(6 r + 2 p) the tens of the cell in
// row r under place p, + 1 its units; answerbox(2 s) the digit of strip s (0 = units) and
// answerbox(2 s + 1) the carry out of strip s.
struct Oracle
{
    Oracle(int a, int b, int rows)
        : a3(digitsOf(a, 3))
        , b2(digitsOf(b, 2))
        , rows(rows)
        , product(a * b)
    {
        const int columns = a >= 100 ? 3 : 2;
        int totals[6] = {};
        for (int r = 0; r < rows; ++r)
            for (int p = 3 - columns; p < 3; ++p) {
                const int cell = a3[std::size_t(p)] * rowDigit(r);
                const int strip = (2 - p) + (rows - 1 - r);
                totals[strip] += cell % 10;
                totals[strip + 1] += cell / 10;
            }
        int carry = 0;
        for (int s = 0; s < 6; ++s) {
            totals[s] += carry;
            carry = totals[s] / 10;
            carries[s] = carry;
        }
    }
    int rowDigit(int r) const { return rows == 2 ? b2[std::size_t(r)] : b2[1]; }
    int expected(const std::string &name, int index) const
    {
        if (name == "question")
            return index <= 3 ? a3[std::size_t(index - 1)] : b2[std::size_t(index / 10 - 1)];
        if (name == "answers") {
            const int cell = a3[std::size_t(index % 6 / 2)] * rowDigit(index / 6);
            return index % 2 == 0 ? cell / 10 : cell % 10;
        }
        const int strip = index / 2;
        if (index % 2 == 1)
            return carries[strip];
        int n = product;
        for (int s = 0; s < strip; ++s)
            n /= 10;
        return n % 10;
    }

    std::vector<int> a3, b2;
    int rows;
    int product;
    int carries[6] = {};
};

// Counts the lattice canvas's triangles (and strips) shaded in `colour`.
int shaded(Driver &d, std::uint32_t colour)
{
    int n = 0;
    for (const DrawOp &op : d.control("lattice").drawing.ops)
        n += op.kind == DrawOp::Kind::Polygon && op.fillColor == colour;
    return n;
}

TEST(LatticeMultiplication, WorkedExamplesOnTheSmallestLattice)
{
    struct Case
    {
        int a, b;
        const char *boxes; // in the order the screen opens them, with the right entry of each
        int completing;    // the sum box that completes the question
    };
    const Case cases[] = {
        {47, 6,
         "question(2)=4 question(3)=7 question(20)=6 answers(2)=2 answers(3)=4 answers(4)=4 "
         "answers(5)=2 answerbox(0)=2 answerbox(2)=8 answerbox(4)=2",
         4},
        {58, 7,
         "question(2)=5 question(3)=8 question(20)=7 answers(2)=3 answers(3)=5 answers(4)=5 "
         "answers(5)=6 answerbox(0)=6 answerbox(2)=0 answerbox(3)=1 answerbox(4)=4",
         4},
        // A leading 0 in the leftmost strip is not asked for.
        {31, 3,
         "question(2)=3 question(3)=1 question(20)=3 answers(2)=0 answers(3)=9 answers(4)=0 "
         "answers(5)=3 answerbox(0)=3 answerbox(2)=9",
         2},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.a);
        LayoutPupil p("italian21");
        p.start(c.a, c.b);
        int triangles = 0;
        for (const ScriptEntry &e : script(c.boxes)) {
            SCOPED_TRACE(e.id);
            ASSERT_EQ(p.focusId(), e.id);
            EXPECT_EQ(p.enabledBoxes(), std::vector<std::string>{e.id});
            EXPECT_EQ(p.d.backColor(e.name, e.index),
                      e.name == "question" ? colors::lightRed : colors::yellow);
            if (e.name == "answers") {
                // The waiting triangle is the one yellow triangle; answered ones are orange.
                EXPECT_EQ(shaded(p.d, colors::yellow), 1);
                EXPECT_EQ(shaded(p.d, kLightOrange), triangles++);
            }
            p.enter(e.value);
            EXPECT_FALSE(p.d.enabled(e.name, e.index));
            // Answered, a digit box turns red; a triangle or sum box keeps its yellow (the
            // completing one aside).
            const bool completing = e.name == "answerbox" && e.index == c.completing;
            if (!completing) {
                EXPECT_EQ(p.d.backColor(e.name, e.index),
                          e.name == "question" ? colors::red : colors::yellow);
            }
        }
        EXPECT_EQ(p.d.backColor("answerbox", c.completing), kLightCyan);
        EXPECT_TRUE(p.d.reachable("Command10"));
        EXPECT_EQ(p.d.caption("score"), "1");
        // Done, the lattice keeps its digits until NEXT empties every box.
        EXPECT_EQ(p.d.caption("questionbox"), numberText(c.a) + "x" + numberText(c.b));
        EXPECT_EQ(p.d.caption("answerbox", 0), numberText(c.a * c.b % 10));
        p.queue(33, 3);
        p.d.click("Command10");
        for (const ScriptEntry &e : script(c.boxes))
            EXPECT_EQ(p.d.caption(e.name, e.index), "") << e.id;
        EXPECT_EQ(p.d.caption("questionbox"), "33x3");
    }
}

TEST(LatticeMultiplication, EachLatticeHasItsBoxesAndStartClearsThem)
{
    struct Case
    {
        const char *screen;
        std::set<int> digits, triangles, sums, hidden;
    };
    const Case cases[] = {
        {"italian21", {2, 3, 20}, {2, 3, 4, 5}, {0, 2, 3, 4}, {}},
        {"italian22", {2, 3, 10, 20}, {2, 3, 4, 5, 8, 9, 10, 11}, {0, 2, 3, 4, 5, 6, 8}, {8}},
        {"italian31", {1, 2, 3, 20}, {0, 1, 2, 3, 4, 5}, {0, 2, 3, 4, 5, 6}, {}},
        {"italian32",
         {1, 2, 3, 10, 20},
         {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11},
         {0, 2, 3, 4, 5, 6, 7, 8, 9},
         {9}},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.screen);
        Driver d;
        Screen &screen = d.open(c.screen);
        std::map<std::string, std::set<int>> boxes;
        for (const Control &control : screen.controls())
            if (control.kind == ControlKind::TextBox)
                boxes[control.name].insert(control.index);
        EXPECT_EQ(boxes["question"], c.digits);
        EXPECT_EQ(boxes["answers"], c.triangles);
        EXPECT_EQ(boxes["answerbox"], c.sums);
        for (int i : c.hidden)
            EXPECT_FALSE(d.visible("answerbox", i));
        // START empties every box and the question line before the first question.
        for (Control &control : screen.controls())
            if (control.kind == ControlKind::TextBox || control.name == "questionbox")
                control.caption = "9";
        d.click("Command1");
        for (const Control &control : screen.controls())
            EXPECT_TRUE(control.kind != ControlKind::TextBox || control.caption.empty())
                << control.id();
    }
}

// Every question of a screen, A before B, limited by `keep`.
std::vector<std::pair<int, int>> questionsOf(const LayoutScreen &s, bool (*keep)(int a, int b))
{
    const auto each = [](const std::vector<Range> &ranges) {
        std::vector<int> out{0};
        for (const Range &r : ranges) {
            std::vector<int> next;
            for (int n : out)
                for (int d = r.lo; d <= r.hi; ++d)
                    next.push_back(n * 10 + d);
            out = next;
        }
        return out;
    };
    std::vector<std::pair<int, int>> out;
    for (int a : each(s.a))
        for (int b : each(s.b))
            if (keep(a, b))
                out.emplace_back(a, b);
    return out;
}

// One question's boxes in the order they were filled, with the values filled in.
struct Box
{
    std::string name;
    int index;
    int value;
};
using Filled = std::vector<Box>;

// True when the boxes, filled in that order, are the lattice of a x b: each value is the oracle's,
// every digit box and triangle is filled, the strip digits read a x b, and a carry box follows a
// strip's digit exactly when the strip reaches 10.
bool isLatticeOf(const LayoutScreen &s, int a, int b, const Filled &filled)
{
    const Oracle oracle(a, b, int(s.b.size()));
    std::string sums;
    std::size_t digitsAndTriangles = 0;
    std::vector<int> sumAt(10, -1); // where each sum or carry box was filled
    for (std::size_t i = 0; i < filled.size(); ++i) {
        const Box &box = filled[i];
        if (box.value != oracle.expected(box.name, box.index))
            return false;
        if (box.name != "answerbox") {
            ++digitsAndTriangles;
            continue;
        }
        sumAt[std::size_t(box.index)] = int(i);
        if (box.index % 2 == 0)
            sums += char('0' + box.value);
    }
    std::string product = numberText(a * b);
    std::reverse(product.begin(), product.end());
    if (sums != product || digitsAndTriangles != s.a.size() + s.b.size() * (1 + 2 * s.a.size()))
        return false;
    for (std::size_t strip = 0; strip < 5; ++strip) {
        const int sum = sumAt[2 * strip];
        const int carry = sumAt[2 * strip + 1];
        if ((oracle.carries[strip] > 0) != (carry >= 0))
            return false;
        if (carry >= 0 && (sum < 0 || carry != sum + 1))
            return false;
    }
    return true;
}

TEST(LatticeMultiplication, EveryQuestionOfEachLatticeModelReadsAsTheProduct)
{
    for (const LayoutScreen &s : kLayoutScreens) {
        if (!s.lattice)
            continue;
        SCOPED_TRACE(s.name);
        const Lattice lattice(int(s.a.size()), int(s.b.size()));
        for (const auto &[a, b] : questionsOf(s, [](int, int) { return true; })) {
            Filled filled;
            for (const LayoutStep &step :
                 lattice.steps(digitsOf(a, s.a.size()), digitsOf(b, s.b.size())))
                filled.push_back({step.box, step.index, step.expected});
            ASSERT_TRUE(isLatticeOf(s, a, b, filled)) << a << "x" << b;
        }
    }
}

} // namespace
} // namespace nb::test
