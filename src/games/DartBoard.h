#pragma once
// The dartboard every darts screen plays on: which bed a landing point hits (rings by distance,
// sectors by angle), where a dart lands from where it was aimed, and whether a dart counts, busts
// or finishes. Lengths are twips on the screen, x to the right and y downward.
#include <array>
#include <optional>
#include <span>
#include <string_view>

namespace nb::darts {

// Hits are scored about this point. The board is drawn about a point 67 twips further right and
// down, because a dart mark is placed by its top-left corner and its middle is where it shows.
constexpr double kCentreX = 5873, kCentreY = 3713;
constexpr double kDrawnX = 5940, kDrawnY = 3780;
constexpr double kMarkSize = 2 * (kDrawnX - kCentreX); // a mark's middle lies on the drawn point
constexpr double kBoardRadius = 2500;
// The angle unit of the sector lines is this value of pi over 20, not the exact one: it moves
// every sector line by a hair, and the scores follow that.
constexpr double kPi = 3.142;

enum class BoardKind { Standard, Doubles, Quads };

// The beds a dart can land in. Single, Double, Treble and Quad take the sector's number.
enum class Bed { Single, Double, Treble, Quad, Bull, OuterBull, Missed };
std::string_view bedName(Bed bed); // "Single", ..., "Bull", "Outer bullseye", "Missed"
int multiplierOf(Bed bed);         // 1, 2, 3, 4, 1, 1, 0

// One ring: from its lower bound (included) to the next ring's lower bound (excluded).
struct Ring
{
    double from;
    Bed bed;
};
std::span<const Ring> ringsOf(BoardKind kind);
Bed bedAtDistance(BoardKind kind, double distance);

// The numbers read clockwise on screen from the top.
constexpr std::array<int, 20> kClockwiseFromTop = {20, 1,  18, 4,  13, 6,  10, 15, 2,  17,
                                                   3,  19, 7,  16, 8,  11, 14, 9,  12, 5};

// The number of the sector a point lies in, or none when it lies exactly on a sector line. A
// point straight above or below the centre (x = 5873) counts as one twip to the right.
std::optional<int> sectorAt(double x, double y);
// The same from the angle arctan(dy / dx) and the half of the board (x >= 5873 is the right).
std::optional<int> sectorAt(bool rightHalf, double theta);

// Where a dart hit and what it scores. A point on a sector line keeps the number of the dart
// before (hasNumber is false); a missed dart names no number and scores nothing.
struct Hit
{
    Bed bed = Bed::Missed;
    int number = 0;
    bool hasNumber = false;
    int score() const { return number * multiplierOf(bed); }
};
Hit classify(BoardKind kind, double x, double y, int previousNumber);

// A sign drawn from a uniform draw r in [0, 1): Int(2r + 1) is 1 for plus, 2 for minus.
int signFrom(double r);

// The rule for a dart of score D with R left before it.
enum class Verdict {
    Counts,      // R - D is left; the thrower works it out
    Bust,        // D >= R - 1 and D != R: the turn's darts do not count
    NeedsDouble, // D = R but not on a double or the 50: a bust too
    Finish,      // D = R on a double or the 50
};
Verdict judge(int remaining, const Hit &hit);

} // namespace nb::darts
