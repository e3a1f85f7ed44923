#include "drills/sub11.h"

namespace nb {

namespace {

// Each level takes back what the same addition level adds: level 1 within twenty, level 2 a
// two-digit number and a digit or tens, level 3 exchanges across a hundred, level 4 any two-digit
// difference. Without negatives every difference is at least 1, so the decimals option (which
// moves each operand by at most 0.7 down or 0.1 up) never makes an answer negative.
// aT and aU are the tens and units digits of the first operand; tens are drawn before units.

const QuestionType kLevel1[] = {
    // 2..10 take away 1: the mirror of adding one.
    {"taking away one",
     [](Draws &d) {
         return Operands{d.whole(2, 10), 1};
     }},
    // Differences 1..8 inside nine.
    {"taking away within 9",
     [](Draws &d) {
         const int a = d.whole(2, 9);
         return Operands{a, d.upTo(a - 1)};
     }},
    // 11..19 take away its units leaves 10.
    {"teen take away its units",
     [](Draws &d) {
         const int a = 10 + d.upTo(9);
         return Operands{a, unitsDigit(a)};
     }},
    // 12..19 take away fewer units than it has: the answer stays in the teens.
    {"teen take away units, answer at least 11",
     [](Draws &d) {
         const int a = d.whole(12, 19);
         return Operands{a, d.upTo(unitsDigit(a) - 1)};
     }},
};

// Takes (aU + 1) .. 9 from a number: always goes back past the ten below.
int unitsBackThroughTen(Draws &d, int a)
{
    return unitsDigit(a) + 1 + d.below(9 - unitsDigit(a));
}

const QuestionType kLevel2[] = {
    // 11..99 take away its units leaves the tens.
    {"tens and units take away the units",
     [](Draws &d) {
         const int a = d.twoDigit(1, 9, 1, 9);
         return Operands{a, unitsDigit(a)};
     }},
    // 21..99 take away 10.
    {"taking away ten",
     [](Draws &d) {
         return Operands{d.twoDigit(2, 9, 1, 9), 10};
     }},
    // 20..90 take away fewer tens.
    {"tens take away tens",
     [](Draws &d) {
         const int a = d.tens(8) + 10;
         return Operands{a, d.tens(tensDigit(a) - 1)};
     }},
    // 12..89 take away fewer units than it has.
    {"units without exchanging",
     [](Draws &d) {
         const int a = d.twoDigit(1, 8, 2, 9);
         return Operands{a, d.upTo(unitsDigit(a) - 1)};
     }},
    // 11..18 take away more units than it has: the answer is a single digit.
    {"teen take away units back through ten",
     [](Draws &d) {
         const int a = d.twoDigit(1, 1, 1, 8);
         return Operands{a, unitsBackThroughTen(d, a)};
     }},
    // 21..28 take away more units than it has: the answer is a teen.
    {"take away units back through twenty",
     [](Draws &d) {
         const int a = d.twoDigit(2, 2, 1, 8);
         return Operands{a, unitsBackThroughTen(d, a)};
     }},
    // 21..99 take away fewer tens than it has.
    {"taking away tens",
     [](Draws &d) {
         const int a = d.twoDigit(2, 9, 1, 9);
         return Operands{a, d.tens(tensDigit(a) - 1)};
     }},
    // 21..98 take away more units than it has.
    {"units back through a ten",
     [](Draws &d) {
         const int a = d.twoDigit(2, 9, 1, 8);
         return Operands{a, unitsBackThroughTen(d, a)};
     }},
};

// Takes (aT + 1) .. 9 tens from a number between 100 and 199: always goes back below 100.
int tensBackAcrossHundred(Draws &d, int a)
{
    return (tensDigit(a) + 1 + d.below(9 - tensDigit(a))) * 10;
}

const QuestionType kLevel3[] = {
    // 22..99 take away fewer tens and fewer units than it has.
    {"two-digit take away two-digit, no exchanging",
     [](Draws &d) {
         const int a = d.twoDigit(2, 9, 2, 9);
         const int tensPart = d.tens(tensDigit(a) - 1);
         return Operands{a, tensPart + d.upTo(unitsDigit(a) - 1)};
     }},
    // 111..189 take away tens back below 100.
    {"taking tens back across 100",
     [](Draws &d) {
         const int a = 100 + d.twoDigit(1, 8, 1, 9);
         return Operands{a, tensBackAcrossHundred(d, a)};
     }},
    // 110..180 take away tens back below 100.
    {"tens take away tens across 100",
     [](Draws &d) {
         const int a = 100 + d.tens(8);
         return Operands{a, tensBackAcrossHundred(d, a)};
     }},
};

const QuestionType kLevel4[] = {
    // 12..99 take away a smaller two-digit number, exchanging or not.
    {"any two-digit difference",
     [](Draws &d) {
         const int a = d.whole(12, 99);
         return Operands{a, d.whole(11, a - 1)};
     }},
};

} // namespace

const QuestionLevels kSubtractionLevels = {kLevel1, kLevel2, kLevel3, kLevel4};

Sub11::Sub11(App &app)
    : SumDrill(app, {"\u2212", "Text5", "submenu", rgb(220, 255, 215)},
               {kSubtractionLevels,
                -1,
                &PupilProgress::SubLevel,
                &PupilProgress::SubNegatives,
                &PupilProgress::SubDecimals,
                {{{&PupilProgress::SubBestNormal1, &PupilProgress::SubBestNormal2,
                   &PupilProgress::SubBestNormal3, &PupilProgress::SubBestNormal4},
                  {&PupilProgress::SubBestNeg1, &PupilProgress::SubBestNeg2,
                   &PupilProgress::SubBestNeg3, &PupilProgress::SubBestNeg4},
                  {&PupilProgress::SubBestDec1, &PupilProgress::SubBestDec2,
                   &PupilProgress::SubBestDec3, &PupilProgress::SubBestDec4},
                  {&PupilProgress::SubBestNegDec1, &PupilProgress::SubBestNegDec2,
                   &PupilProgress::SubBestNegDec3, &PupilProgress::SubBestNegDec4}}}})
{}

} // namespace nb
