#include "games/DartBoard.h"

#include <cmath>

namespace nb::darts {

namespace {

constexpr Ring kStandard[] = {{0, Bed::Bull},      {80, Bed::OuterBull}, {200, Bed::Single},
                              {1200, Bed::Treble}, {1400, Bed::Single},  {2300, Bed::Double},
                              {2500, Bed::Missed}};
// Doubling only: no treble and no outer bull; one single from 80 out to the double.
constexpr Ring kDoubles[] = {
    {0, Bed::Bull}, {80, Bed::Single}, {2300, Bed::Double}, {2500, Bed::Missed}};
// A quad ring near the middle and the treble moved out to 1500.
constexpr Ring kQuads[] = {{0, Bed::Bull},      {80, Bed::OuterBull}, {200, Bed::Single},
                           {800, Bed::Quad},    {1000, Bed::Single},  {1500, Bed::Treble},
                           {1700, Bed::Single}, {2300, Bed::Double},  {2500, Bed::Missed}};

// The numbers of the bands between sector lines, from the lowest angle (top on the right half,
// bottom on the left) to the highest.
constexpr int kRightBands[11] = {20, 1, 18, 4, 13, 6, 10, 15, 2, 17, 3};
constexpr int kLeftBands[11] = {3, 19, 7, 16, 8, 11, 14, 9, 12, 5, 20};

} // namespace

std::string_view bedName(Bed bed)
{
    switch (bed) {
    case Bed::Single:
        return "Single";
    case Bed::Double:
        return "Double";
    case Bed::Treble:
        return "Treble";
    case Bed::Quad:
        return "Quad";
    case Bed::Bull:
        return "Bull";
    case Bed::OuterBull:
        return "Outer bullseye";
    case Bed::Missed:
        break;
    }
    return "Missed";
}

int multiplierOf(Bed bed)
{
    switch (bed) {
    case Bed::Double:
        return 2;
    case Bed::Treble:
        return 3;
    case Bed::Quad:
        return 4;
    case Bed::Missed:
        return 0;
    default:
        return 1;
    }
}

std::span<const Ring> ringsOf(BoardKind kind)
{
    switch (kind) {
    case BoardKind::Doubles:
        return kDoubles;
    case BoardKind::Quads:
        return kQuads;
    case BoardKind::Standard:
        break;
    }
    return kStandard;
}

Bed bedAtDistance(BoardKind kind, double distance)
{
    Bed bed = Bed::Bull;
    for (const Ring &r : ringsOf(kind))
        if (distance >= r.from)
            bed = r.bed;
    return bed;
}

std::optional<int> sectorAt(bool rightHalf, double theta)
{
    // Sector lines lie at odd multiples of pi/20; bounds are strict, so a line itself has none.
    int band = 0;
    for (int k = -9; k <= 9; k += 2) {
        const double line = k * kPi / 20;
        if (theta == line)
            return std::nullopt;
        if (theta > line)
            ++band;
    }
    return rightHalf ? kRightBands[band] : kLeftBands[band];
}

std::optional<int> sectorAt(double x, double y)
{
    if (x == kCentreX)
        x = kCentreX + 1;
    return sectorAt(x >= kCentreX, std::atan((y - kCentreY) / (x - kCentreX)));
}

Hit classify(BoardKind kind, double x, double y, int previousNumber)
{
    Hit hit;
    hit.bed = bedAtDistance(kind, std::hypot(x - kCentreX, y - kCentreY));
    hit.number = previousNumber;
    switch (hit.bed) {
    case Bed::Missed: // no number, and a multiplier of 0
        break;
    case Bed::Bull:
        hit.number = 50;
        hit.hasNumber = true;
        break;
    case Bed::OuterBull:
        hit.number = 25;
        hit.hasNumber = true;
        break;
    default:
        if (const std::optional<int> n = sectorAt(x, y)) {
            hit.number = *n;
            hit.hasNumber = true;
        }
        break;
    }
    return hit;
}

int signFrom(double r)
{
    return int(r * 2 + 1) == 1 ? 1 : -1;
}

Verdict judge(int remaining, const Hit &hit)
{
    const int d = hit.score();
    if (d == remaining)
        return multiplierOf(hit.bed) == 2 || d == 50 ? Verdict::Finish : Verdict::NeedsDouble;
    if (d >= remaining - 1)
        return Verdict::Bust;
    return Verdict::Counts;
}

} // namespace nb::darts
