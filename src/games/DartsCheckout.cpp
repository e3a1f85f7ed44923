#include "games/DartsCheckout.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace nb::darts {

namespace {

constexpr double kDegree = 3.14159265358979323846 / 180;

// Sector positions in each half: the right half counts clockwise from the top, the left half
// upward from the bottom.
constexpr int kRightPositions[11] = {20, 1, 18, 4, 13, 6, 10, 15, 2, 17, 3};
constexpr int kLeftPositions[11] = {3, 19, 7, 16, 8, 11, 14, 9, 12, 5, 20};

struct FixedAim
{
    int remaining;
    Aim aim;
};
// Fixed points for some scores (T20 is handled by range below).
constexpr FixedAim kFixed[] = {
    {73, {{4640, 3780}, Bed::Treble, 11}}, {60, {{5940, 1980}, Bed::Single, 20}},
    {51, {{4040, 3780}, Bed::Single, 11}}, {50, {{5940, 3780}, Bed::OuterBull, 25}},
    {46, {{7840, 3780}, Bed::Single, 6}},  {43, {{5940, 5080}, Bed::Treble, 3}},
    {40, {{5940, 1380}, Bed::Double, 20}}, {22, {{3560, 3780}, Bed::Double, 11}},
    {12, {{8340, 3780}, Bed::Double, 6}},  {6, {{5940, 6180}, Bed::Double, 3}},
};
constexpr Aim kTreble20{{5940, 2480}, Bed::Treble, 20};

struct SectorAim
{
    int remaining;
    bool rightHalf;
    int position; // 1 to 11 within the half
    Bed bed;
};
// Set-up shots that leave a favourite double: 147 - 51 = 96, 149 - 57 = 92 (both leave three
// darts' worth in reach of T20); 97 - 57 = 40, 93 - 57 = 36, 89 - 57 = 32, 87 - 51 = 36,
// 81 - 57 = 24; 38 is the double 19.
constexpr SectorAim kSectorRows[] = {
    {147, true, 10, Bed::Treble}, {149, false, 2, Bed::Treble}, {97, false, 2, Bed::Treble},
    {93, false, 2, Bed::Treble},  {89, false, 2, Bed::Treble},  {87, true, 10, Bed::Treble},
    {81, false, 2, Bed::Treble},  {38, false, 2, Bed::Double},
};

double radiusOf(Bed bed)
{
    switch (bed) {
    case Bed::Double:
        return 2400;
    case Bed::Treble:
        return 1300;
    case Bed::Bull:
        return 0;
    case Bed::OuterBull:
        return 140;
    default:
        return 1850; // the outer single, the wider of the two
    }
}

bool inRightHalf(int number)
{
    return std::find(std::begin(kRightPositions), std::end(kRightPositions), number) !=
           std::end(kRightPositions);
}

Aim sectorAim(bool rightHalf, int position, Bed bed)
{
    const int number = (rightHalf ? kRightPositions : kLeftPositions)[position - 1];
    return {bedAimPoint(rightHalf, number, bed), bed, number};
}

// Any other score: one dart that leaves a double the computer likes, a single where it can be,
// else a treble; the favourites come first.
Aim setUpAim(int remaining)
{
    static constexpr int kLeaves[] = {40, 32, 36, 24, 16, 20, 8,  12, 28, 38,
                                      34, 30, 26, 18, 14, 10, 22, 6,  4,  2};
    for (int leave : kLeaves) {
        const int s = remaining - leave;
        if (s >= 1 && s <= 20)
            return {bedAimPoint(inRightHalf(s), s, Bed::Single), Bed::Single, s};
        if (s > 20 && s <= 60 && s % 3 == 0)
            return {bedAimPoint(inRightHalf(s / 3), s / 3, Bed::Treble), Bed::Treble, s / 3};
    }
    return kTreble20; // scores this far from home all start with the treble 20
}

} // namespace

PointTw bedAimPoint(bool rightHalf, int number, Bed bed)
{
    const auto at = std::find(kClockwiseFromTop.begin(), kClockwiseFromTop.end(), number);
    double degrees = double(at - kClockwiseFromTop.begin()) * 18; // clockwise from the top
    // The 20 (at the top) and the 3 (at the bottom) lie across the middle line: aim a quarter
    // of the sector into the half asked for.
    if (number == 20)
        degrees += rightHalf ? 4.5 : -4.5;
    else if (number == 3)
        degrees += rightHalf ? -4.5 : 4.5;
    const double r = radiusOf(bed);
    return {std::round(kCentreX + r * std::sin(degrees * kDegree)),
            std::round(kCentreY - r * std::cos(degrees * kDegree))};
}

Aim computerAim(int remaining)
{
    if (remaining >= 150 || remaining == 148 || (remaining >= 98 && remaining <= 146))
        return kTreble20;
    for (const FixedAim &f : kFixed)
        if (f.remaining == remaining)
            return f.aim;
    for (const SectorAim &s : kSectorRows)
        if (s.remaining == remaining)
            return sectorAim(s.rightHalf, s.position, s.bed);
    if (remaining % 2 == 0 && remaining >= 2 && remaining <= 40) {
        const int number = remaining / 2;
        return {bedAimPoint(inRightHalf(number), number, Bed::Double), Bed::Double, number};
    }
    return setUpAim(remaining);
}

} // namespace nb::darts
