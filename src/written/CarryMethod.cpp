#include "written/CarryMethod.h"

namespace nb {

namespace {
struct StepInfo
{
    const char *box;
    const char *prompt;
};
constexpr StepInfo kSteps[] = {
    {"Text11", "Enter the units."},    {"Text15", "Enter the number to carry."},
    {"Text12", "Enter the tens."},     {"Text16", "Enter the number to carry."},
    {"Text13", "Enter the hundreds."}, {"Text14", "Enter the thousands."},
};
const StepInfo &info(int step)
{
    return kSteps[step - 1];
}
} // namespace

void CarryMethod::buildAnswerRows(int answerRow, bool toThousands)
{
    rules(answerRow, kSignColumn, kUnitsColumn, true);
    if (toThousands)
        answerBox("Text14", "thousands", kThousandsColumn, answerRow);
    answerBox("Text13", "hundreds", kHundredsColumn, answerRow);
    answerBox("Text12", "tens", kTensColumn, answerRow);
    answerBox("Text11", "units", kUnitsColumn, answerRow);
    if (toThousands)
        carryBox("Text16", "carry into the hundreds", kHundredsColumn, answerRow + 1);
    carryBox("Text15", "carry into the tens", kTensColumn, answerRow + 1);
}

void CarryMethod::beginQuestion(int unitsTotal, int tensTotal, int hundredsTotal)
{
    unitsTotal_ = unitsTotal;
    tensTotal_ = tensTotal;
    hundredsTotal_ = hundredsTotal;
    clearPage();
    entered_ = {};
    carryToTensShown_ = false;
    carryToHundredsShown_ = false;
    step_ = 1;
    showStep();
}

void CarryMethod::showStep()
{
    if (step_ == 2)
        carryToTensShown_ = true;
    if (step_ == 4)
        carryToHundredsShown_ = true;
    // Earlier answers stay in view, and a carry box stays once it has been asked for.
    const auto place = [this](const char *box, bool visible) {
        if (Control *c = find(box)) {
            c->visible = visible;
            c->enabled = false;
            c->backColor = kIdleBox;
        }
    };
    place("Text11", true);
    place("Text15", carryToTensShown_);
    place("Text12", step_ >= 3);
    place("Text16", carryToHundredsShown_);
    place("Text13", step_ >= 5);
    place("Text14", step_ == 6);

    Control &active = ctl(info(step_).box);
    active.enabled = true;
    if (questionComplete_ && step_ >= 5) {
        active.backColor = kIdleBox; // the praise stays in the prompt line
    } else {
        active.backColor = kActiveBox;
        setPrompt(info(step_).prompt);
    }
    setFocus(active.name);
}

void CarryMethod::submit(const std::string &box, int value)
{
    int *field = box == "Text11"   ? &entered_.units
                 : box == "Text12" ? &entered_.tens
                 : box == "Text13" ? &entered_.hundreds
                 : box == "Text14" ? &entered_.thousands
                 : box == "Text15" ? &entered_.carryToTens
                 : box == "Text16" ? &entered_.carryToHundreds
                                   : nullptr;
    if (!field)
        return;
    *field = value;
    checkStep();
}

void CarryMethod::checkStep()
{
    const Entered &e = entered_;
    const int tens = tensTotal_ + e.carryToTens;
    const int hundreds = hundredsTotal_ + e.carryToHundreds;
    switch (step_) {
    case 6:
        if (hundreds - e.hundreds == e.thousands * 10)
            return completeWith("Text14");
        return miss();
    case 5:
        if (hundreds % 10 != e.hundreds)
            return miss();
        setEnabled("Text13", false);
        if (hundreds > 9)
            return moveTo(6);
        return completeWith("Text13");
    case 4:
        if (tens - e.tens == e.carryToHundreds * 10)
            return moveTo(5);
        return miss();
    case 3:
        if (tens % 10 != e.tens)
            return miss();
        if (tens > 9)
            return moveTo(4);
        entered_.carryToHundreds = 0;
        return moveTo(5);
    default:
        return checkUnitsColumn();
    }
}

void CarryMethod::checkUnitsColumn()
{
    const Entered &e = entered_;
    if (step_ == 2) {
        if (unitsTotal_ - e.units == e.carryToTens * 10)
            return moveTo(3);
        return miss();
    }
    if (unitsTotal_ % 10 != e.units)
        return miss();
    if (unitsTotal_ > 9)
        return moveTo(2);
    entered_.carryToTens = 0;
    moveTo(3);
}

void CarryMethod::moveTo(int next)
{
    rightEntry();
    step_ = next;
    showStep();
}

void CarryMethod::completeWith(const char *box)
{
    rightEntry();
    setEnabled(box, false);
    for (const char *b : {"Text11", "Text12", "Text13", "Text14", "Text15", "Text16"})
        if (Control *c = find(b))
            c->backColor = kIdleBox;
    questionDone();
}

void CarryMethod::miss()
{
    wrongEntry(info(step_).box);
    showStep();
}

} // namespace nb
