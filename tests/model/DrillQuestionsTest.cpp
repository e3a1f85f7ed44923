// The questions of every drill, from many draws of the real seeded generator: operands in their
// ranges, every question type of a level turning up, answers within what the level promises;
// and the draw order, through the screens with scripted draws.
#include "DrillTestSupport.h"
#include "core/NumberText.h"
#include "core/Random.h"
#include "drills/MakeDrill.h"
#include "drills/add11.h"
#include "drills/sub11.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <map>
#include <set>

namespace nb::test {
namespace {

constexpr int kSamples = 40000;

Draws seeded(UniformRandom &rng)
{
    return Draws([&rng] { return rng.next(); });
}

struct Span
{
    int lo = INT_MAX;
    int hi = INT_MIN;
    void add(int v) { lo = std::min(lo, v), hi = std::max(hi, v); }
    bool operator==(const Span &) const = default;
};
std::ostream &operator<<(std::ostream &os, const Span &s)
{
    return os << s.lo << ".." << s.hi;
}

// What one question type promises: the exact span of each operand and of the answer, and any
// rule about carrying or exchanging, checked on every question drawn.
struct TypeCase
{
    int level;
    int type;
    Span first, second, answer;
    bool (*rule)(int a, int b) = nullptr;
};

void checkLevels(const QuestionLevels &levels, int sign, const std::vector<TypeCase> &cases)
{
    UniformRandom rng(2024);
    Draws draws = seeded(rng);
    for (int level = 1; level <= 4; ++level) {
        const QuestionLevel table = levels[std::size_t(level - 1)];
        std::map<int, Span> first, second, answer;
        std::map<int, int> count;
        for (int i = 0; i < kSamples; ++i) {
            const SumQuestion q = drawSumQuestion(table, false, false, draws);
            const int a = int(q.first), b = int(q.second);
            ASSERT_EQ(a, q.first);
            ASSERT_EQ(b, q.second);
            ++count[q.type];
            first[q.type].add(a);
            second[q.type].add(b);
            answer[q.type].add(a + sign * b);
            for (const TypeCase &c : cases) {
                if (c.level == level && c.type == q.type && c.rule) {
                    ASSERT_TRUE(c.rule(a, b))
                        << "level " << level << " type " << q.type << ": " << a << ", " << b;
                }
            }
        }
        ASSERT_EQ(count.size(), table.size()) << "every type of level " << level << " occurs";
        for (auto [type, n] : count)
            EXPECT_NEAR(n, double(kSamples) / double(table.size()), kSamples / 40.0)
                << "types equally likely, level " << level;
        for (const TypeCase &c : cases) {
            if (c.level != level)
                continue;
            SCOPED_TRACE(std::string(table[std::size_t(c.type - 1)].practises));
            EXPECT_EQ(first[c.type], c.first);
            EXPECT_EQ(second[c.type], c.second);
            EXPECT_EQ(answer[c.type], c.answer);
        }
    }
}

int units(int v)
{
    return v % 10;
}
int tens(int v)
{
    return v / 10 % 10;
}

// Rules on the two operands of one question.
using Rule = bool (*)(int a, int b);
const Rule roundFirst = [](int a, int) { return units(a) == 0; };
const Rule roundSecond = [](int, int b) { return units(b) == 0; };
const Rule roundAnswer = [](int a, int b) { return units(a + b) == 0; };
const Rule exchanges = [](int a, int b) { return units(a) < units(b); };

TEST(DrillQuestions, AdditionLevelsKeepTheirPromises)
{
    const Rule noCarry = [](int a, int b) {
        return units(a) + units(b) <= 9 && tens(a) + tens(b) <= 9;
    };
    const Rule noRoundOperand = [](int a, int b) { return units(a) != 0 && units(b) != 0; };
    checkLevels(
        kAdditionLevels, +1,
        {
            {1, 1, {1, 9}, {1, 1}, {2, 10}},
            {1, 2, {1, 8}, {1, 8}, {2, 9}},
            {1, 3, {10, 10}, {1, 9}, {11, 19}},
            {1, 4, {11, 18}, {1, 8}, {12, 19}},
            {2, 1, {10, 90}, {1, 9}, {11, 99}, roundFirst},
            {2, 2, {11, 89}, {10, 10}, {21, 99}, [](int a, int) { return units(a) != 0; }},
            {2, 3, {10, 80}, {10, 80}, {20, 90}, roundAnswer},
            {2, 4, {11, 89}, {1, 8}, {12, 90}, [](int a, int b) { return units(a) + b <= 10; }},
            {2, 5, {1, 9}, {1, 9}, {10, 17}},
            {2, 6, {11, 19}, {1, 9}, {20, 27}},
            {2, 7, {11, 89}, {10, 80}, {21, 99}, roundSecond},
            {2, 8, {11, 89}, {1, 9}, {20, 97}, [](int a, int b) { return units(a) + b >= 10; }},
            {3, 1, {11, 88}, {11, 88}, {22, 99}, noCarry},
            {3, 2, {11, 99}, {10, 90}, {101, 179}, roundSecond},
            {3, 3, {10, 90}, {10, 90}, {100, 170}, roundAnswer},
            {4, 1, {11, 99}, {11, 99}, {22, 198}, noRoundOperand},
        });
}

TEST(DrillQuestions, SubtractionLevelsMirrorAdditionAndStayPositive)
{
    const Rule roundDifference = [](int a, int b) { return units(a - b) == 0; };
    const Rule noExchange = [](int a, int b) { return units(a) > units(b) && tens(a) > tens(b); };
    checkLevels(
        kSubtractionLevels, -1,
        {
            {1, 1, {2, 10}, {1, 1}, {1, 9}},
            {1, 2, {2, 9}, {1, 8}, {1, 8}},
            {1, 3, {11, 19}, {1, 9}, {10, 10}},
            {1, 4, {12, 19}, {1, 8}, {11, 18}},
            {2, 1, {11, 99}, {1, 9}, {10, 90}},
            {2, 2, {21, 99}, {10, 10}, {11, 89}},
            {2, 3, {20, 90}, {10, 80}, {10, 80}, roundDifference},
            {2, 4, {12, 89}, {1, 8}, {11, 88}, [](int a, int b) { return units(a) > units(b); }},
            {2, 5, {11, 18}, {2, 9}, {2, 9}, exchanges},
            {2, 6, {21, 28}, {2, 9}, {12, 19}, exchanges},
            {2, 7, {21, 99}, {10, 80}, {11, 89}, roundSecond},
            {2, 8, {21, 98}, {2, 9}, {12, 89}, exchanges},
            {3, 1, {22, 99}, {11, 88}, {11, 88}, noExchange},
            {3, 2, {111, 189}, {20, 90}, {21, 99}, roundSecond},
            {3, 3, {110, 180}, {20, 90}, {20, 90}, roundSecond},
            {4, 1, {12, 99}, {11, 98}, {1, 88}},
        });
}

// With decimals each operand moves to a tenth from 0.7 below to 0.1 above; with negatives each
// is negated on its own coin toss.
TEST(DrillQuestions, OptionsOnEveryLevel)
{
    UniformRandom rng(99);
    Draws draws = seeded(rng);
    for (const QuestionLevels *levels : {&kAdditionLevels, &kSubtractionLevels}) {
        for (QuestionLevel table : *levels) {
            std::set<int> tenths;
            std::map<std::pair<bool, bool>, int> signs;
            for (int i = 0; i < 4000; ++i) {
                const SumQuestion dec = drawSumQuestion(table, true, false, draws);
                for (double v : {dec.first, dec.second}) {
                    const double scaled = std::round(v * 10);
                    ASSERT_NEAR(v * 10, scaled, 1e-9) << "one decimal place";
                    ASSERT_GT(v, 0.2);
                    tenths.insert(int(scaled) % 10);
                }
                if (levels == &kSubtractionLevels) {
                    ASSERT_GT(dec.first - dec.second, 0) << "no negative answer without negatives";
                }
                const SumQuestion both = drawSumQuestion(table, true, true, draws);
                ++signs[{both.first < 0, both.second < 0}];
            }
            EXPECT_EQ(tenths, (std::set<int>{0, 1, 3, 4, 5, 6, 7, 8, 9}));
            ASSERT_EQ(signs.size(), 4u);
            for (auto [s, n] : signs)
                EXPECT_NEAR(n, 1000, 150);
        }
    }
}

// Draw order on the screen: the type, the first operand (tens, units), the second, the decimals
// draw of each operand, the two coin tosses. Level 2, type 1: 30 and 4 become -29.9 and 3.4.
TEST(DrillQuestions, AdditionDrawsInOrderAndAcceptsTheDisplayedSum)
{
    Driver d;
    d.progress().AddLevel = Value::int16(2);
    d.progress().AddNegatives = Value::int16(1);
    d.progress().AddDecimals = Value::int16(1);
    d.open("add11");
    d.platform.setStrictDraws(true);
    d.platform.queueDraws({0.0, 0.25, 0.35, 0.25, 0.8, 0.1, 0.9});
    d.click("Command11");
    EXPECT_EQ(d.caption("text1"), "-29.9");
    EXPECT_EQ(d.caption("text2"), "+");
    EXPECT_EQ(d.caption("text3"), "3.4");
    d.platform.queueDraws({0.0, 0.25, 0.35, 0.0, 0.99, 0.6, 0.4});
    d.typeEnter("Text5", "-26.5");
    EXPECT_EQ(d.caption("score"), "1");
    EXPECT_EQ(d.caption("text1"), "30.1");
    EXPECT_EQ(d.caption("text3"), "-3.3");
    d.typeEnter("Text5", "26.79");
    EXPECT_EQ(d.caption("time"), "2") << "0.01 off is wrong";
    d.platform.setStrictDraws(false);
    d.typeEnter("Text5", "26.8");
    EXPECT_EQ(d.caption("score"), "2");
}

TEST(DrillQuestions, MakeScreensCompleteTheirTotals)
{
    UniformRandom rng(7);
    Draws draws = seeded(rng);
    struct Family
    {
        bool negatives, decimals;
        // The number to complete, in tenths (the addition form); 0 for "up to the total".
        Span number;
    };
    const Family families[] = {{false, false, {10, 0}},
                               {true, false, {-100, 190}},
                               {false, true, {1, 0}},
                               {true, true, {-100, 199}}};
    for (bool drawnTotal : {false, true}) {
        for (bool subtract : {false, true}) {
            for (const Family &f : families) {
                SCOPED_TRACE(std::to_string(drawnTotal) + std::to_string(subtract) +
                             std::to_string(f.negatives) + std::to_string(f.decimals));
                Span totals, numbers;
                bool negativeAnswer = false;
                for (int i = 0; i < kSamples / 4; ++i) {
                    const MakeQuestion q =
                        drawMakeQuestion(drawnTotal, subtract, f.negatives, f.decimals, draws);
                    const double a = std::stod(numberText(q.shown));
                    const double x = std::stod(numberText(q.answer));
                    ASSERT_NEAR(subtract ? a - x : a + x, q.total, 1e-9);
                    ASSERT_NEAR(x * 10, std::round(x * 10), 1e-9);
                    if (!f.decimals) {
                        ASSERT_EQ(x, std::round(x)) << "whole answers without decimals";
                    }
                    if (!f.negatives) {
                        ASSERT_GE(x, 0) << "no negative answer without negatives";
                    }
                    negativeAnswer |= x < 0;
                    totals.add(int(q.total));
                    numbers.add(int(std::lround((q.total - x) * 10)));
                }
                EXPECT_EQ(totals, (drawnTotal ? Span{11, 30} : Span{10, 10}));
                EXPECT_EQ(numbers, (Span{f.number.lo, f.number.hi ? f.number.hi : totals.hi * 10}));
                EXPECT_EQ(negativeAnswer, f.negatives);
            }
        }
    }
}

// The multiplication and division screens, sampled with the negatives flags at 0 and at 1: the
// sizes of the two numbers shown and of the answer span exactly their ranges, every answer is
// whole, and negative numbers turn up only on screens with the option, when it is on.
TEST(DrillQuestions, TimesAndDivisionScreens)
{
    struct Case
    {
        const char *screen;
        int level;
        Span text1, other, answer; // sizes, without signs; "other" is text3 or Text5
        bool hasNegatives;
    };
    const Case cases[] = {
        {"mul11", 1, {1, 10}, {1, 10}, {1, 100}, false},
        {"mentmul", 1, {10, 59}, {1, 10}, {10, 590}, false},
        {"div11", 1, {2, 100}, {2, 10}, {1, 10}, true},
        {"div11", 2, {22, 200}, {2, 10}, {11, 20}, true},
        {"maketentimes", 1, {1, 10}, {1, 100}, {1, 10}, true},
        {"maketendiv", 1, {2, 100}, {1, 10}, {2, 10}, true},
    };
    for (const Case &c : cases) {
        for (int neg : {0, 1}) {
            SCOPED_TRACE(std::string(c.screen) + " level " + std::to_string(c.level) +
                         (neg ? " negatives" : ""));
            Driver d;
            d.progress().DivLevel = Value::int16(std::int16_t(c.level));
            d.progress().DivNegatives = d.progress().MulNegatives = Value::int16(std::int16_t(neg));
            const DrillCase &drill = test::drill(c.screen);
            const char *other = std::string(drill.box) == "text3" ? "Text5" : "text3";
            Span text1, otherSpan, answer;
            bool negative = false;
            d.open(c.screen);
            d.click("Command11");
            for (int i = 1; i <= 2000; ++i) {
                const double a = shownNumber(d, "text1"), b = shownNumber(d, other);
                const double x = rightAnswer(d, drill);
                ASSERT_EQ(x, std::round(x)) << a << " " << b;
                text1.add(std::abs(int(a)));
                otherSpan.add(std::abs(int(b)));
                answer.add(std::abs(int(x)));
                negative |= a < 0 || b < 0;
                if (i % 10 == 0)
                    d.platform.queueYes();
                answerRight(d, drill);
                ASSERT_EQ(d.platform.beeps, i);
            }
            EXPECT_EQ(text1, c.text1);
            EXPECT_EQ(otherSpan, c.other);
            EXPECT_EQ(answer, c.answer);
            EXPECT_EQ(negative, neg == 1 && c.hasNegatives);
        }
    }
}

} // namespace
} // namespace nb::test
