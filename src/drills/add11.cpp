#include "drills/add11.h"

namespace nb {

namespace {

// In every rule the tens digit of a two-digit operand is drawn before its units digit, and the
// first operand before the second. aT and aU are the tens and units digits of the first operand.

const QuestionType kLevel1[] = {
    {"adding one",
     [](Draws &d) {
         return Operands{d.upTo(9), 1};
     }},
    {"sum at most 9",
     [](Draws &d) {
         const int a = d.upTo(8);
         return Operands{a, d.upTo(9 - a)};
     }},
    {"ten and units",
     [](Draws &d) {
         return Operands{10, d.upTo(9)};
     }},
    {"teen plus units, sum at most 19",
     [](Draws &d) {
         const int a = d.whole(11, 18);
         return Operands{a, d.upTo(19 - a)};
     }},
};

// Adds (10 - aU) .. 9 to a number: always passes the next ten.
int bridgingUnits(Draws &d, int a)
{
    return 10 - unitsDigit(a) + d.below(unitsDigit(a) - 1);
}

const QuestionType kLevel2[] = {
    {"tens and units",
     [](Draws &d) {
         const int a = d.tens(9);
         return Operands{a, d.upTo(9)};
     }},
    {"adding ten",
     [](Draws &d) {
         return Operands{d.twoDigit(1, 8, 1, 9), 10};
     }},
    {"tens plus tens, sum at most 90",
     [](Draws &d) {
         const int a = d.tens(8);
         return Operands{a, d.tens(9 - tensDigit(a))};
     }},
    {"units without carrying",
     [](Draws &d) {
         const int a = d.twoDigit(1, 8, 1, 9);
         return Operands{a, d.upTo(9 - unitsDigit(a))};
     }},
    {"two digits bridging ten",
     [](Draws &d) {
         const int a = d.upTo(9);
         return Operands{a, bridgingUnits(d, a)};
     }},
    {"teen plus units bridging twenty",
     [](Draws &d) {
         const int a = 10 + d.upTo(9);
         return Operands{a, bridgingUnits(d, a)};
     }},
    {"adding tens, sum below 100",
     [](Draws &d) {
         const int a = d.twoDigit(1, 8, 1, 9);
         return Operands{a, d.tens(9 - tensDigit(a))};
     }},
    {"units bridging the next ten",
     [](Draws &d) {
         const int a = d.twoDigit(1, 8, 1, 9);
         return Operands{a, bridgingUnits(d, a)};
     }},
};

// Adds (10 - aT) .. 9 tens to a number: always passes 100.
int tensAcrossHundred(Draws &d, int a)
{
    return (10 - tensDigit(a) + d.below(tensDigit(a) - 1)) * 10;
}

const QuestionType kLevel3[] = {
    {"two-digit sum with no carrying in either column",
     [](Draws &d) {
         const int a = d.twoDigit(1, 8, 1, 8);
         const int tensPart = d.tens(9 - tensDigit(a));
         return Operands{a, tensPart + d.upTo(9 - unitsDigit(a))};
     }},
    {"adding tens across 100",
     [](Draws &d) {
         const int a = d.twoDigit(1, 9, 1, 9);
         return Operands{a, tensAcrossHundred(d, a)};
     }},
    {"tens plus tens across 100",
     [](Draws &d) {
         const int a = d.tens(9);
         return Operands{a, tensAcrossHundred(d, a)};
     }},
};

const QuestionType kLevel4[] = {
    {"any two-digit sum",
     [](Draws &d) {
         const int a = d.twoDigit(1, 9, 1, 9);
         return Operands{a, d.twoDigit(1, 9, 1, 9)};
     }},
};

} // namespace

const QuestionLevels kAdditionLevels = {kLevel1, kLevel2, kLevel3, kLevel4};

Add11::Add11(App &app)
    : SumDrill(app, {"+", "Text5", "addmenu", rgb(200, 235, 255)},
               {kAdditionLevels,
                +1,
                &PupilProgress::AddLevel,
                &PupilProgress::AddNegatives,
                &PupilProgress::AddDecimals,
                {{{&PupilProgress::AddBestNormal1, &PupilProgress::AddBestNormal2,
                   &PupilProgress::AddBestNormal3, &PupilProgress::AddBestNormal4},
                  {&PupilProgress::AddBestNeg1, &PupilProgress::AddBestNeg2,
                   &PupilProgress::AddBestNeg3, &PupilProgress::AddBestNeg4},
                  {&PupilProgress::AddBestDec1, &PupilProgress::AddBestDec2,
                   &PupilProgress::AddBestDec3, &PupilProgress::AddBestDec4},
                  {&PupilProgress::AddBestNegDec1, &PupilProgress::AddBestNegDec2,
                   &PupilProgress::AddBestNegDec3, &PupilProgress::AddBestNegDec4}}}})
{}

} // namespace nb
