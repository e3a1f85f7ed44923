#pragma once
// Short division ("bus stop") of a three-digit number by a divisor from 2 to 9, guided digit by
// digit from the left: each digit of the answer above the line, and each remainder carried in a
// small box in front of the next digit of the number. How the division ends is the screen's own:
// a remainder after "r", decimal places (the number gets ".0" places as they are needed), or the
// remainder as a fraction of the divisor and then in its simplest form. Five questions against
// the stopwatch.
//
// Boxes: the answer digits Text13 (hundreds), Text12 (tens), Text11 (units), Text18 (tenths),
// Text19 (hundredths); the carried remainders Text22 (into the tens), Text21 (into the units),
// Text28 (into the tenths), Text29 (into the hundredths); the remainder Text30; the fraction
// Text31 over Text32, in its simplest form Text33 over Text34.
#include "written/GuidedSteps.h"

namespace nb {

enum class DivisionEnding { Remainder, Decimals, Fraction };

// The steps of dividend / divisor with that ending, in the order a pupil writes them. With
// decimals the division must end within two decimal places.
std::vector<GuidedStep> shortDivisionSteps(int dividend, int divisor, DivisionEnding ending);

class ShortDivision : public GuidedSteps
{
protected:
    ShortDivision(App &app, Value PupilProgress::*best, DivisionEnding ending);

    void newQuestion() override;

private:
    DivisionEnding ending_;
};

} // namespace nb
