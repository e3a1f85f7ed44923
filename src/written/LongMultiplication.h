#pragma once
// Long multiplication of a two- or three-digit number A by a two-digit number B, guided box by
// box: the first row is A times the units digit of B with its carries, the second row starts with
// a zero in the units column and is A times the tens digit with its carries, then the two rows
// are added column by column with carries. Five questions against the stopwatch.
//
// Boxes are named by row and place (place 1 units, 2 tens, 3 hundreds, 4 thousands, 5 ten
// thousands): Text1p the first row, Text2p the second, Text3p the total; the carries into place p
// are Text4p (first row), Text5p (second row) and Text6p (adding the rows).
#include "written/GuidedSteps.h"

namespace nb {

// The steps of a x b: every digit, carry and the placeholder zero, in the order a pupil writes
// them.
std::vector<GuidedStep> longMultiplicationSteps(int a, int b);

class LongMultiplication : public GuidedSteps
{
protected:
    // `digits` is the number of digits of A (2 or 3).
    LongMultiplication(App &app, Value PupilProgress::*best, int digits);

    void newQuestion() override;

private:
    // A place (0 units) as a column of the page.
    static int columnOf(int place) { return 6 - place; }
    // A digit box with the small box for the carry into it at the bottom of its square.
    void digitBox(int row, int place, bool withCarry, int carryRow);

    int digits_;
};

} // namespace nb
