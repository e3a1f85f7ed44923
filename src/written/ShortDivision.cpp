#include "written/ShortDivision.h"

#include "core/NumberText.h"

#include <array>
#include <numeric>

namespace nb {

namespace {
constexpr int kQuotientRow = 1, kDividendRow = 2, kSimplestRow = 4;
constexpr int kDivisorColumn = 1, kFirstColumn = 2;
// Places from the left: hundreds, tens, units, tenths, hundredths.
constexpr const char *kAnswerBoxes[] = {"Text13", "Text12", "Text11", "Text18", "Text19"};
constexpr const char *kCarryBoxes[] = {"", "Text22", "Text21", "Text28", "Text29"};
constexpr const char *kDividendLabels[] = {"text1", "text3", "Text5", "text6", "text7"};
constexpr const char *kWholeCopies[] = {"Label2", "Label3", "Label4"};
constexpr const char *kCarryPrompt = "Enter the number to carry.";

int columnOf(int place)
{
    return kFirstColumn + place;
}

// The divisors whose divisions can end within two decimal places, and for each the remainders
// after the units that make them do so without ending at the units.
struct DecimalDivisor
{
    int divisor;
    std::vector<int> remainders;
};
const std::array<DecimalDivisor, 5> kDecimalDivisors = {{
    {2, {1}},
    {4, {1, 2, 3}},
    {5, {1, 2, 3, 4}},
    {6, {3}},
    {8, {2, 4, 6}},
}};
} // namespace

std::vector<GuidedStep> shortDivisionSteps(int dividend, int divisor, DivisionEnding ending)
{
    const int digits[] = {dividend / 100, dividend / 10 % 10, dividend % 10};
    const std::string d = numberText(divisor);
    std::vector<GuidedStep> steps;
    int carry = 0;
    std::string hint;
    for (int place = 0; place < 3; ++place) {
        if (carry > 0)
            steps.push_back({kCarryBoxes[place], carry, kCarryPrompt, hint, {}});
        hint.clear();
        const int part = carry * 10 + digits[place];
        carry = part % divisor;
        if (place == 0 && part < divisor) {
            // Nothing is written over a first digit the divisor does not go into.
            hint = d + " won't go into " + numberText(part) + ".";
            continue;
        }
        steps.push_back({kAnswerBoxes[place], part / divisor, placePrompt(2 - place), {}, {}});
    }

    switch (ending) {
    case DivisionEnding::Remainder:
        steps.push_back({"Text30", carry, "Enter the remainder.", {}, {"Label1"}});
        break;
    case DivisionEnding::Decimals:
        for (int place = 3; place < 5 && carry > 0; ++place) {
            std::vector<std::string> reveal = {kDividendLabels[place]};
            if (place == 3)
                reveal.insert(reveal.end(), {"text8", "text9"});
            steps.push_back({kCarryBoxes[place], carry, kCarryPrompt,
                             "Carry on past the decimal point.", std::move(reveal)});
            const int part = carry * 10;
            carry = part % divisor;
            steps.push_back({kAnswerBoxes[place], part / divisor, placePrompt(2 - place), {}, {}});
        }
        break;
    case DivisionEnding::Fraction: {
        const std::string hint = "The remainder goes over the divisor.";
        steps.push_back({"Text31", carry, "Enter the remainder on top.", hint, {"Line5"}});
        steps.push_back({"Text32", divisor, "Enter the divisor underneath.", hint, {}});
        const int g = std::gcd(carry, divisor);
        if (g > 1) {
            const std::string simplest = "Divide the top and the bottom by the same number.";
            steps.push_back({"Text33",
                             carry / g,
                             "Simplify: enter the top.",
                             simplest,
                             {"sign", "Line6", kWholeCopies[0], kWholeCopies[1], kWholeCopies[2]}});
            steps.push_back({"Text34", divisor / g, "Simplify: enter the bottom.", simplest, {}});
        }
        break;
    }
    }
    return steps;
}

ShortDivision::ShortDivision(App &app, Value PupilProgress::*best, DivisionEnding ending)
    : GuidedSteps(app, best, "divmenu")
    , ending_(ending)
{
    const bool decimals = ending == DivisionEnding::Decimals;
    const int places = decimals ? 5 : 3;
    if (decimals)
        headings(kFirstColumn, 0, {"H", "T", "U", "t", "h"});
    else
        headings(kFirstColumn, 0, {"H", "T", "U"});

    // The number under the bus stop, each digit to the right of its square so that a carried
    // remainder fits in front of it.
    digitLabel("text2", kDivisorColumn, kDividendRow);
    for (int place = 0; place < places; ++place) {
        Control &c = digitLabel(kDividendLabels[place], columnOf(place), kDividendRow);
        c.left += 220;
        c.width -= 220;
        if (place >= 3)
            c.caption = "0";
        if (place > 0) {
            Control &box = answerBox(kCarryBoxes[place], "carried into the " + placeName(2 - place),
                                     columnOf(place), kDividendRow);
            box.left = cellX(columnOf(place)) + 20;
            box.top = cellY(kDividendRow) + 60;
            box.width = box.height = 370;
            box.font.points = 16;
        }
    }
    rule("Line1", cellY(kDividendRow), kFirstColumn, columnOf(places - 1));
    penLine("Line2", cellX(kFirstColumn) + 40, cellY(kDividendRow), cellX(kFirstColumn) + 40 - 60,
            cellY(kDividendRow + 1) - 60);

    for (int place = 0; place < places; ++place)
        answerBox(kAnswerBoxes[place], placeName(2 - place), columnOf(place), kQuotientRow);

    const auto point = [this](const char *name, int row) {
        Control &c = digitLabel(name, columnOf(3), row);
        c.left = cellX(columnOf(3)) - 200;
        c.width = 400;
        c.caption = ".";
    };
    // A fraction in one square: the top box, the bar, the bottom box.
    const auto fraction = [this](const char *top, const char *bar, const char *bottom, int row,
                                 const char *spoken) {
        const int x = cellX(columnOf(3));
        const int mid = cellY(row) + kCell / 2;
        for (const char *name : {top, bottom}) {
            Control &b = answerBox(name, std::string(spoken) + (name == top ? " top" : " bottom"),
                                   columnOf(3), row);
            b.left = x + 190;
            b.width = kCell - 380;
            b.top = name == top ? mid - 450 : mid + 40;
            b.height = 410;
            b.font.points = 18;
        }
        penLine(bar, x + 140, mid, x + kCell - 140, mid);
    };

    switch (ending) {
    case DivisionEnding::Remainder: {
        Control &r = digitLabel("Label1", columnOf(3), kQuotientRow);
        r.caption = "r";
        answerBox("Text30", "remainder", columnOf(4), kQuotientRow);
        break;
    }
    case DivisionEnding::Decimals:
        point("text8", kQuotientRow);
        point("text9", kDividendRow);
        break;
    case DivisionEnding::Fraction:
        fraction("Text31", "Line5", "Text32", kQuotientRow, "fraction");
        signLabel("=", kDivisorColumn, kSimplestRow);
        for (int place = 0; place < 3; ++place)
            digitLabel(kWholeCopies[place], columnOf(place), kSimplestRow);
        fraction("Text33", "Line6", "Text34", kSimplestRow, "simplest fraction");
        break;
    }
    // What the method writes as it goes is hidden until then.
    for (const char *name : {"Label1", "text6", "text7", "text8", "text9", "Line5", "sign", "Line6",
                             kWholeCopies[0], kWholeCopies[1], kWholeCopies[2]})
        if (Control *c = find(name))
            c->visible = false;
    sideHint("");
}

void ShortDivision::newQuestion()
{
    // The divisor, then the remainder after the units, then the whole-number answer, chosen so
    // that the number has three digits.
    int divisor = 0, remainder = 0;
    if (ending_ == DivisionEnding::Decimals) {
        const DecimalDivisor &choice = kDecimalDivisors[std::size_t(draw() * 5)];
        divisor = choice.divisor;
        remainder = choice.remainders[std::size_t(draw() * double(choice.remainders.size()))];
    } else {
        divisor = int(draw() * 8) + 2;
        remainder = int(draw() * (divisor - 1)) + 1;
    }
    const int lowest = (100 - remainder + divisor - 1) / divisor;
    const int highest = (999 - remainder) / divisor;
    const int whole = int(draw() * (highest - lowest + 1)) + lowest;
    const int dividend = whole * divisor + remainder;

    caption("text2") = numberText(divisor);
    caption("text1") = numberText(dividend / 100);
    caption("text3") = numberText(dividend / 10 % 10);
    caption("Text5") = numberText(dividend % 10);
    if (ending_ == DivisionEnding::Fraction) {
        const int digits[] = {whole / 100, whole / 10 % 10, whole % 10};
        for (int place = 0; place < 3; ++place)
            caption(kWholeCopies[place]) =
                whole >= 100 || place > 0 ? numberText(digits[place]) : "";
    }
    beginSteps(shortDivisionSteps(dividend, divisor, ending_));
}

} // namespace nb
