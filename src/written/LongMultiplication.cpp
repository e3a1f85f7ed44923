#include "written/LongMultiplication.h"

#include "core/NumberText.h"

#include <algorithm>

namespace nb {

namespace {
constexpr int kTopRow = 1, kMultiplierRow = 2, kFirstRow = 3, kSecondRow = 4, kTotalRow = 5,
              kCarryRow = 6;

// The digits of n from the units up.
std::vector<int> digitsOf(int n)
{
    std::vector<int> d;
    do {
        d.push_back(n % 10);
        n /= 10;
    } while (n > 0);
    return d;
}

std::string boxName(int row, int place)
{
    return "Text" + std::to_string(row) + std::to_string(place + 1);
}

const char *const kCarryPrompt = "Enter the number to carry.";

// One row of a times the digit m, shifted left by `shift` places (the placeholder zeros).
void multiplyRow(std::vector<GuidedStep> &steps, const std::vector<int> &a, int m, int shift,
                 int row, const std::string &hint)
{
    if (shift > 0)
        steps.push_back({boxName(row, 0), 0, "Put a zero in the units column.", hint, {}});
    int carry = 0;
    for (std::size_t i = 0; i < a.size(); ++i) {
        const int place = int(i) + shift;
        if (carry > 0)
            steps.push_back({boxName(row + 3, place), carry, kCarryPrompt, hint, {}});
        const int t = a[i] * m + carry;
        steps.push_back({boxName(row, place), t % 10, placePrompt(place), hint, {}});
        carry = t / 10;
    }
    // The carry out of the last digit is written straight in as the next digit.
    if (carry > 0)
        steps.push_back({boxName(row, int(a.size()) + shift),
                         carry,
                         placePrompt(int(a.size()) + shift),
                         hint,
                         {}});
}
} // namespace

std::vector<GuidedStep> longMultiplicationSteps(int a, int b)
{
    const std::vector<int> digits = digitsOf(a);
    const int units = b % 10, tens = b / 10;
    std::vector<GuidedStep> steps;
    multiplyRow(steps, digits, units, 0, 1,
                "First row: " + numberText(a) + " \u00d7 " + numberText(units));
    multiplyRow(steps, digits, tens, 1, 2,
                "Second row: " + numberText(a) + " \u00d7 " + numberText(tens * 10));

    const std::vector<int> first = digitsOf(a * units), second = digitsOf(a * tens * 10);
    const std::size_t places = std::max(first.size(), second.size());
    const std::string hint = "Add the two rows.";
    int carry = 0;
    for (std::size_t i = 0; i < places; ++i) {
        const int place = int(i);
        if (carry > 0)
            steps.push_back({boxName(6, place), carry, kCarryPrompt, hint, {}});
        const int t =
            (i < first.size() ? first[i] : 0) + (i < second.size() ? second[i] : 0) + carry;
        steps.push_back({boxName(3, place), t % 10, placePrompt(place), hint, {}});
        carry = t / 10;
    }
    if (carry > 0)
        steps.push_back({boxName(3, int(places)), carry, placePrompt(int(places)), hint, {}});
    return steps;
}

LongMultiplication::LongMultiplication(App &app, Value PupilProgress::*best, int digits)
    : GuidedSteps(app, best, "mulmenu")
    , digits_(digits)
{
    // A x B has at most digits + 2 places; the sign sits just left of the widest row.
    const int places = digits + 2;
    const int signColumn = columnOf(places);
    if (places == 5)
        headings(columnOf(4), 0, {"TTh", "Th", "H", "T", "U"});
    else
        headings(columnOf(3), 0, {"Th", "H", "T", "U"});

    static const char *const kTopLabels[] = {"Text5", "text3", "text1"};
    for (int place = 0; place < digits; ++place)
        digitLabel(kTopLabels[place], columnOf(place), kTopRow);
    signLabel("\u00d7", signColumn, kMultiplierRow);
    digitLabel("text2", columnOf(0), kMultiplierRow);
    digitLabel("text4", columnOf(1), kMultiplierRow);

    rule("Line4", cellY(kFirstRow), signColumn, columnOf(0));
    rules(kTotalRow, signColumn, columnOf(0), true);

    // First row: A x units has up to digits + 1 places, with carries into the tens and up.
    for (int place = 0; place <= digits; ++place)
        digitBox(1, place, place >= 1 && place < digits, 4);
    // Second row: the placeholder, then A x tens with carries into the hundreds and up.
    for (int place = 0; place <= digits + 1; ++place)
        digitBox(2, place, place >= 2 && place <= digits, 5);
    // The total, with the carries of the addition written under the rule.
    for (int place = 0; place <= digits + 1; ++place) {
        answerBox(boxName(3, place), "total " + placeName(place), columnOf(place), kTotalRow);
        if (place >= 2)
            carryBox(boxName(6, place), "carry when adding", columnOf(place), kCarryRow);
    }
    sideHint("");
}

void LongMultiplication::digitBox(int row, int place, bool withCarry, int carryRow)
{
    const int pageRow = row == 1 ? kFirstRow : kSecondRow;
    const std::string spoken = (row == 1 ? "first row " : "second row ");
    Control &d =
        answerBox(boxName(row, place), spoken + placeName(place), columnOf(place), pageRow);
    d.top = cellY(pageRow) + 40;
    d.height = 600;
    d.font.points = 26;
    if (!withCarry)
        return;
    constexpr int width = 440, height = 290;
    Control &c = answerBox(boxName(carryRow, place), spoken + "carry", columnOf(place), pageRow);
    c.left = cellX(columnOf(place)) + (kCell - width) / 2;
    c.top = cellY(pageRow) + 655;
    c.width = width;
    c.height = height;
    c.font.points = 14;
}

void LongMultiplication::newQuestion()
{
    // A: the first digit 1 to 9, the others 0 to 9. B: tens 1 to 9, units 1 to 9, so that
    // neither row is all zeros.
    static const char *const kTopLabels[] = {"text1", "text3", "Text5"};
    int a = 0;
    for (int i = 3 - digits_; i < 3; ++i)
        a = a * 10 +
            (i == 3 - digits_ ? drawDigit(kTopLabels[i], 9, 1) : drawDigit(kTopLabels[i], 10));
    const int tens = drawDigit("text4", 9, 1);
    const int units = drawDigit("text2", 9, 1);
    beginSteps(longMultiplicationSteps(a, tens * 10 + units));
}

} // namespace nb
