#include "drills/MakeDrill.h"

#include "activity/BestTimeCheck.h"

namespace nb {

namespace {

// The number to complete, m = (Int(r × span) + offset) / divisor, where span is fixed +
// perTotal × the total. With no options m runs from 1 to the total, so the answer is never
// negative; decimals keep that range in tenths; negatives and both take m from -10 to 19(.9)
// whatever the total, as make ten does.
struct NumberRule
{
    int fixedSpan;
    int spanPerTotal;
    int offset;
    int divisor;
};
constexpr NumberRule kNumberRules[] = {
    {0, 1, 1, 1},       // neither: 1 .. total
    {30, 0, -10, 1},    // negatives: -10 .. 19
    {0, 10, 1, 10},     // decimals: 0.1 .. total
    {300, 0, -100, 10}, // both: -10.0 .. 19.9
};

// Totals past ten (ten has its own button), twenty of them: 11 to 30.
constexpr int kTotalStart = 11;
constexpr int kTotalCount = 20;

} // namespace

MakeQuestion drawMakeQuestion(bool drawnTotal, bool subtract, bool negatives, bool decimals,
                              Draws &draws)
{
    MakeQuestion q;
    const int total = drawnTotal ? draws.below(kTotalCount) + kTotalStart : 10;
    const NumberRule &rule = kNumberRules[(negatives ? 1 : 0) + (decimals ? 2 : 0)];
    // m × divisor: kept whole so that total - m and 2 × total - m are exact to the tenth.
    const int scaled = draws.below(rule.fixedSpan + rule.spanPerTotal * total) + rule.offset;
    const int scale = rule.divisor;
    q.total = total;
    q.answer = double(total * scale - scaled) / scale;
    q.shown = subtract ? double(2 * total * scale - scaled) / scale : double(scaled) / scale;
    return q;
}

MakeDrill::MakeDrill(App &app, std::string menu, std::uint32_t theme, Rules rules)
    : DrillFrame(app, {rules.subtract ? "\u2212" : "+", "text3", std::move(menu), theme})
    , rules_(rules)
{}

void MakeDrill::showQuestion(Draws &draws)
{
    const PupilProgress &p = progress();
    const MakeQuestion q =
        drawMakeQuestion(rules_.drawnTotal, rules_.subtract, flagBit(p.*rules_.negatives) == 1,
                         flagBit(p.*rules_.decimals) == 1, draws);
    show("text1", q.shown);
    show("Text5", q.total);
}

bool MakeDrill::isRight(double typed) const
{
    const double a = shown("text1");
    return closeEnough(shown("Text5"), rules_.subtract ? a - typed : a + typed);
}

Value *MakeDrill::bestSlot()
{
    const PupilProgress &p = progress();
    return slotIn(rules_.slots, optionFamily(p.*rules_.negatives, p.*rules_.decimals));
}

} // namespace nb
