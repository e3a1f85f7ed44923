// The dartboard's rings, sectors, rules and aims, and the drawn board against what is scored.
#include "games/DartBoard.h"
#include "games/DartsCheckout.h"
#include "games/DartsFrame.h"
#include "support/Driver.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace nb::test {
namespace {

using namespace darts;

constexpr double kDeg = 3.14159265358979323846 / 180;

// A point at a distance from the scoring centre, at an angle clockwise from the top.
PointTw at(double r, double degrees)
{
    return {kCentreX + r * std::sin(degrees * kDeg), kCentreY - r * std::cos(degrees * kDeg)};
}

// Landing points exactly on a sector line (the angle equals k pi/20 to the last bit).
constexpr PointTw kOnSectorLines[] = {{6102, 3749.2748179684422}, {5973, 4345.1250706282872}};

Hit hitAt(BoardKind kind, PointTw p, int previous = 0)
{
    return classify(kind, p.x, p.y, previous);
}

TEST(DartBoard, RingEdgesBelongToTheRingOutside)
{
    using enum BoardKind;
    using enum Bed;
    struct Case
    {
        BoardKind kind;
        double r;
        Bed bed;
    } cases[] = {
        {Standard, 0, Bull},          {Standard, 79.99, Bull},    {Standard, 80, OuterBull},
        {Standard, 199.9, OuterBull}, {Standard, 200, Single},    {Standard, 1199.9, Single},
        {Standard, 1200, Treble},     {Standard, 1400, Single},   {Standard, 2299.9, Single},
        {Standard, 2300, Double},     {Standard, 2499.9, Double}, {Standard, 2500, Missed},
        {Doubles, 79.9, Bull},        {Doubles, 80, Single},      {Doubles, 150, Single},
        {Doubles, 1300, Single},      {Doubles, 2300, Double},    {Doubles, 2500, Missed},
        {Quads, 150, OuterBull},      {Quads, 799.9, Single},     {Quads, 800, Quad},
        {Quads, 900, Quad},           {Quads, 1000, Single},      {Quads, 1300, Single},
        {Quads, 1500, Treble},        {Quads, 1600, Treble},      {Quads, 1700, Single},
        {Quads, 2300, Double},        {Quads, 2500, Missed},      {Quads, 9000, Missed},
    };
    for (const Case &c : cases) {
        // Along both axes and a slant of 3 to 4, so the distance, not one coordinate, decides.
        const PointTw points[] = {{kCentreX + c.r, kCentreY},
                                  {kCentreX, kCentreY - c.r},
                                  {kCentreX - 0.6 * c.r, kCentreY + 0.8 * c.r}};
        for (PointTw p : points)
            EXPECT_EQ(hitAt(c.kind, p, 7).bed, c.bed)
                << int(c.kind) << " r=" << c.r << " at " << p.x << "," << p.y;
    }
    // What each bed scores in the sector of the 6 (straight to the right).
    EXPECT_EQ(hitAt(BoardKind::Standard, at(1300, 90)).score(), 18);
    EXPECT_EQ(hitAt(BoardKind::Standard, at(2400, 90)).score(), 12);
    EXPECT_EQ(hitAt(BoardKind::Standard, at(150, 90)).score(), 25);
    EXPECT_EQ(hitAt(BoardKind::Standard, at(10, 90)).score(), 50);
    EXPECT_EQ(hitAt(BoardKind::Doubles, at(150, 90)).score(), 6);
    EXPECT_EQ(hitAt(BoardKind::Quads, at(900, 90)).score(), 24);
    EXPECT_EQ(hitAt(BoardKind::Quads, at(1600, 90)).score(), 18);
    EXPECT_EQ(hitAt(BoardKind::Standard, at(2600, 90), 6).score(), 0);
}

TEST(DartBoard, SectorLinesUseThePiOf3142AndALineKeepsTheNumberBefore)
{
    // Exactly on a line: no number. A hair either side: the two neighbours.
    const double unit = kPi / 20;
    struct Case
    {
        int k; // the line at k pi/20
        int rightBelow, rightAbove, leftBelow, leftAbove;
    } cases[] = {{-9, 20, 1, 3, 19}, {-1, 13, 6, 8, 11}, {1, 6, 10, 11, 14}, {9, 17, 3, 5, 20}};
    for (const Case &c : cases) {
        const double line = c.k * unit;
        EXPECT_EQ(sectorAt(true, line), std::nullopt) << c.k;
        EXPECT_EQ(sectorAt(false, line), std::nullopt) << c.k;
        EXPECT_EQ(sectorAt(true, std::nextafter(line, -9.0)), c.rightBelow) << c.k;
        EXPECT_EQ(sectorAt(true, std::nextafter(line, 9.0)), c.rightAbove) << c.k;
        EXPECT_EQ(sectorAt(false, std::nextafter(line, -9.0)), c.leftBelow) << c.k;
        EXPECT_EQ(sectorAt(false, std::nextafter(line, 9.0)), c.leftAbove) << c.k;
    }
    // The program's pi moves the line past the exact one: an angle between 9 pi/20 with the two
    // values of pi is still the 17, not the 3.
    const double between = (9 * 3.14159265358979 / 20 + 9 * unit) / 2;
    EXPECT_EQ(sectorAt(true, between), 17);

    // Points exactly on the lines at pi/20 and 9 pi/20 below the middle: no number of their
    // own, so the number of the dart before stays, with the ring they hit.
    for (PointTw onLine : kOnSectorLines) {
        const Hit h = hitAt(BoardKind::Standard, onLine, 19);
        EXPECT_FALSE(h.hasNumber);
        EXPECT_EQ(h.bed, Bed::Single);
        EXPECT_EQ(h.score(), 19);
    }
    // Straight up or down (x = 5873) counts as one twip to the right: the 20 and the 3, as just
    // left of the middle line.
    EXPECT_EQ(sectorAt(kCentreX, kCentreY - 1500), 20);
    EXPECT_EQ(sectorAt(kCentreX, kCentreY + 1500), 3);
    EXPECT_EQ(sectorAt(kCentreX - 1, kCentreY - 1500), 20);
    EXPECT_EQ(sectorAt(kCentreX - 1, kCentreY + 1500), 3);
}

TEST(DartBoard, BustFinishAndCountingDarts)
{
    const Hit single20{Bed::Single, 20, true}, double10{Bed::Double, 10, true},
        bull{Bed::Bull, 50, true}, outer{Bed::OuterBull, 25, true}, miss{Bed::Missed, 5, false},
        treble2{Bed::Treble, 2, true}, quad5{Bed::Quad, 5, true};
    struct Case
    {
        int remaining;
        Hit hit;
        Verdict verdict;
    } cases[] = {
        {40, single20, Verdict::Counts},      {22, single20, Verdict::Counts},
        {21, single20, Verdict::Bust}, // leaves 1
        {20, single20, Verdict::NeedsDouble}, {19, single20, Verdict::Bust},
        {20, double10, Verdict::Finish},      {21, double10, Verdict::Bust},
        {50, bull, Verdict::Finish},          {25, outer, Verdict::NeedsDouble},
        {6, treble2, Verdict::NeedsDouble},   {20, quad5, Verdict::NeedsDouble},
        {2, miss, Verdict::Counts},           {301, single20, Verdict::Counts},
    };
    for (const Case &c : cases)
        EXPECT_EQ(judge(c.remaining, c.hit), c.verdict) << c.remaining << " " << c.hit.score();
}

TEST(DartsCheckout, EveryScoreHasAnAimThatHitsItsBedAndNeverBusts)
{
    for (int r = 2; r <= 301; ++r) {
        const Aim aim = computerAim(r);
        const Hit h = hitAt(BoardKind::Standard, aim.point);
        ASSERT_EQ(h.bed, aim.bed) << r;
        ASSERT_EQ(h.number, aim.number) << r;
        const Verdict v = judge(r, h);
        ASSERT_TRUE(v == Verdict::Counts || v == Verdict::Finish) << r;
        // Every even score up to 40 goes out with one dart.
        if (r % 2 == 0 && r <= 40) {
            EXPECT_EQ(v, Verdict::Finish) << r;
        }
    }
    // A sector aim on the half it names: the 16 is on the left.
    EXPECT_EQ(computerAim(32).number, 16);
    EXPECT_LT(computerAim(32).point.x, kCentreX);
}

// The colour the topmost filled shape paints at a point; wires and text are left out.
std::uint32_t paintedAt(const Drawing &d, double x, double y)
{
    for (auto it = d.ops.rbegin(); it != d.ops.rend(); ++it) {
        const DrawOp &op = *it;
        if (!op.filled || (op.kind != DrawOp::Kind::Ellipse && op.kind != DrawOp::Kind::Pie))
            continue;
        const double cx = (op.points[0].x + op.points[1].x) / 2;
        const double cy = (op.points[0].y + op.points[1].y) / 2;
        const double r = (op.points[1].x - op.points[0].x) / 2;
        if (std::hypot(x - cx, y - cy) > r)
            continue;
        if (op.kind == DrawOp::Kind::Pie) {
            double a = std::atan2(cy - y, x - cx) / kDeg - op.startAngle; // counter-clockwise
            a = std::fmod(std::fmod(a, 360) + 360, 360);
            if (a > op.spanAngle)
                continue;
        }
        return op.fillColor;
    }
    return kDefaultColor;
}

// Whether a wire (a drawn line) passes over the point.
bool wireAt(const Drawing &d, double x, double y)
{
    for (const DrawOp &op : d.ops) {
        if (op.kind != DrawOp::Kind::Line)
            continue;
        const PointTw a = op.points[0], b = op.points[1];
        const double len2 = (b.x - a.x) * (b.x - a.x) + (b.y - a.y) * (b.y - a.y);
        const double t =
            std::clamp(((x - a.x) * (b.x - a.x) + (y - a.y) * (b.y - a.y)) / len2, 0.0, 1.0);
        if (std::hypot(a.x + t * (b.x - a.x) - x, a.y + t * (b.y - a.y) - y) <= op.penWidth)
            return true;
    }
    return false;
}

// The colour of a bed that scores (a missed dart has none).
std::uint32_t expectedColour(const Hit &h)
{
    if (h.bed == Bed::Bull || h.bed == Bed::OuterBull)
        return h.bed == Bed::Bull ? DartsFrame::kRedRing : DartsFrame::kGreenRing;
    const bool dark = DartsFrame::darkSector(h.number);
    if (h.bed == Bed::Single)
        return dark ? DartsFrame::kDarkSector : DartsFrame::kCreamSector;
    return dark ? DartsFrame::kRedRing : DartsFrame::kGreenRing;
}

// A mark whose middle is at a drawn point scores the bed drawn there; rim numbers match too.
TEST(DartsBoardDrawing, EveryDrawnRingAndNumberIsWhatIsScored)
{
    const std::pair<const char *, BoardKind> screens[] = {{"darts", BoardKind::Standard},
                                                          {"dart", BoardKind::Standard},
                                                          {"doubledarts", BoardKind::Doubles},
                                                          {"quaddarts", BoardKind::Quads}};
    for (auto [screen, kind] : screens) {
        SCOPED_TRACE(screen);
        Driver d;
        d.open(screen);
        const Control &board = d.control("board");
        std::vector<double> radii = {1, 40, 2600, 2900};
        for (const Ring &ring : ringsOf(kind))
            if (ring.from > 0)
                for (double off : {-1.0, 1.0, 30.0})
                    radii.push_back(ring.from + off);
        int sampled = 0;
        for (double r : radii)
            for (int sector = 0; sector < 20; ++sector)
                for (double off : {-8.0, -1.0, 0.0, 1.0, 8.0}) {
                    const double deg = sector * 18 + off;
                    const PointTw drawn{kDrawnX + r * std::sin(deg * kDeg),
                                        kDrawnY - r * std::cos(deg * kDeg)};
                    const Hit h = hitAt(kind, {drawn.x - kMarkSize / 2, drawn.y - kMarkSize / 2});
                    const std::uint32_t shown =
                        paintedAt(board.drawing, drawn.x - board.left, drawn.y - board.top);
                    if (h.bed == Bed::Missed)
                        ASSERT_TRUE(
                            shown != DartsFrame::kDarkSector && shown != DartsFrame::kCreamSector &&
                            shown != DartsFrame::kRedRing && shown != DartsFrame::kGreenRing)
                            << r << " at " << deg;
                    else
                        ASSERT_EQ(shown, expectedColour(h)) << r << " at " << deg;
                    ++sampled;
                }
        EXPECT_GT(sampled, 1000);
        // A wire runs along every sector line through every bed that takes a sector's number.
        for (const Ring &ring : ringsOf(kind)) {
            if (ring.bed == Bed::Bull || ring.bed == Bed::OuterBull || ring.bed == Bed::Missed)
                continue;
            for (int i = 0; i < 20; ++i) {
                const double a = (i * 18 + 9) * kDeg, r = ring.from + 20;
                EXPECT_TRUE(wireAt(board.drawing, kDrawnX + r * std::sin(a) - board.left,
                                   kDrawnY - r * std::cos(a) - board.top))
                    << bedName(ring.bed) << " from " << ring.from << ", line " << i;
            }
        }
        for (int i = 0; i < 20; ++i) {
            const Control &n = d.control("Label" + std::to_string(i + 1));
            const double x = n.left + n.width / 2.0 - kDrawnX, y = n.top + n.height / 2.0 - kDrawnY;
            EXPECT_EQ(n.caption, std::to_string(*sectorAt(kCentreX + x, kCentreY + y)));
            EXPECT_GT(std::hypot(x, y), kBoardRadius); // outside the scoring face
            EXPECT_TRUE(n.mouseTransparent);
        }
    }
}

} // namespace
} // namespace nb::test
