#include "layouts/LatticeFrame.h"

#include <algorithm>
#include <string_view>

namespace nb {

namespace {
constexpr int kLatticeTop = 2500;
constexpr int kLatticeBottom = 6650; // the band's lowest point, leaving room for "Answer"
constexpr int kSideColumn = 1000;    // B's digits to the right of the lattice

constexpr std::uint32_t kPending = rgb(255, 247, 235);
constexpr std::uint32_t kRule = rgb(60, 60, 110);

// The largest cell that fits the page; a small lattice gets larger cells. Every other measure of
// the lattice is in proportion to the cell: the band of sum boxes is 13/14 of a cell deep.
int cellFor(int columns, int rows)
{
    const int byWidth =
        (LayoutFrame::kPageRight - LayoutFrame::kPageLeft - kSideColumn) * 14 / (14 * columns + 13);
    const int byHeight = (kLatticeBottom - kLatticeTop) * 14 / (14 * rows + 13);
    return std::min({byWidth, byHeight, 2100});
}
} // namespace

LatticeFrame::LatticeFrame(App &app, Value PupilProgress::*best, Sizes sizes,
                           std::vector<int> spareBoxes)
    : LayoutFrame(app, best, std::move(sizes), Clearing::BeforeQuestion)
    , lattice_(int(this->sizes().a.size()), int(this->sizes().b.size()))
    , cell_(cellFor(lattice_.columns(), lattice_.rows()))
    , band_(cell_ * 13 / 14)
    , shades_(lattice_.triangles().size(), Shade::Done)
{
    const int digitBox = 780;
    const int triangleBox = scaled(520);
    const int sumBox = scaled(620);
    const int carryBox = scaled(420);
    const int columns = lattice_.columns();
    const int rows = lattice_.rows();
    const int width = band_ + columns * cell_ + kSideColumn;
    left_ = kPageLeft + (kPageRight - kPageLeft - width) / 2 + band_;
    top_ = kLatticeTop;
    const int right = left_ + columns * cell_;
    const int bottom = top_ + rows * cell_;

    canvas_ =
        &canvas("lattice", left_ - band_, top_, columns * cell_ + band_, rows * cell_ + band_);
    canvas_->mouseTransparent = true;
    redraw();
    const int digitTop = top_ - digitBox - 200;
    // Trays under the factors' digits: A's along the top, B's down the side.
    const auto tray = [this](const char *name, int l, int t, int w, int h) {
        Control &c = shape(name, ShapeKind::RoundedRectangle, kPending, kRule, l, t, w, h);
        c.mouseTransparent = true;
    };
    tray("Shape3", left_ + 60, digitTop - 60, columns * cell_ - 120, digitBox + 120);
    tray("Shape4", right + 50, top_ + 60, digitBox + 120, rows * cell_ - 120);
    halo();
    shape("Shape1", ShapeKind::Rectangle, kDefaultColor, kInk, left_, top_, columns * cell_,
          rows * cell_)
        .lineWidth = 60;
    // The band's outer edges, left and bottom, ruled over its outline.
    line("Line1", left_ - band_, top_ + band_, left_ - band_, bottom + band_, kRule)
        .mouseTransparent = true;
    line("Line2", left_ - band_, bottom + band_, right - band_, bottom + band_, kRule)
        .mouseTransparent = true;

    fixedLabel("Questions", "Question", 0, kPageLeft, 420, 2600, 800, 24);
    questionLine(kPageLeft + 2700, 250, 3800, 1050);

    for (int c = 0; c < columns; ++c)
        answerBox("question", "digit of the first number", lattice_.aBox(c),
                  left_ + c * cell_ + (cell_ - digitBox) / 2, digitTop, digitBox, digitBox, 30);
    fixedLabel("Questions", "x", 2, right + 110, digitTop - 100, digitBox, digitBox + 100, 40);
    for (int r = 0; r < rows; ++r)
        answerBox("question", "digit of the second number", lattice_.bBox(r), right + 110,
                  top_ + r * cell_ + (cell_ - digitBox) / 2, digitBox, digitBox, 30);

    for (const Lattice::Triangle &t : lattice_.triangles()) {
        const double at = t.upper ? 0.28 : 0.72;
        answerBox("answers", t.upper ? "tens" : "units", t.box,
                  int(left_ + (t.column + at) * cell_) - triangleBox / 2,
                  int(top_ + (t.row + at) * cell_) - triangleBox / 2, triangleBox, triangleBox,
                  points(20));
    }

    for (int box : lattice_.sumBoxes()) {
        const int strip = Lattice::stripOfSumBox(box);
        const bool carry = Lattice::isCarryBox(box);
        const PointTw at = carry ? carryCentre(strip + 1) : sumCentre(strip);
        const int size = carry ? carryBox : sumBox;
        answerBox("answerbox", carry ? "carry" : "sum", box, int(at.x) - size / 2,
                  int(at.y) - size / 2, size, size, points(carry ? 16 : 24));
    }
    for (int box : spareBoxes)
        answerBox("answerbox", "sum", box, left_ - band_, bottom, sumBox, sumBox, 24).visible =
            false;

    fixedLabel("Questions", "Answer", 1, left_ - band_, bottom + band_ + 60, 2400, 560, 18).align =
        Align::Left;
    Control &how = fixedLabel("Label1", "Add each strip, starting on the right.", -1, right - 250,
                              bottom + 300, kPageRight - right + 250, 1700, 14);
    how.align = Align::Left;
    how.font.bold = false;
}

PointTw LatticeFrame::sumCentre(int strip) const
{
    const int columns = lattice_.columns();
    const int bottom = top_ + lattice_.rows() * cell_;
    if (strip < columns) {
        // A strip leaving the lattice's bottom edge: its box sits deep in the band, to the left
        // as the strip slopes.
        const double x1 = left_ + (columns - 1 - strip) * cell_;
        return {x1 - scaled(210), bottom + scaled(910) + 0.0};
    }
    const double y1 = top_ + (lattice_.rows() - 1 - (strip - columns)) * cell_;
    return {left_ - scaled(910) + 0.0, y1 + cell_ + scaled(210)};
}

PointTw LatticeFrame::carryCentre(int strip) const
{
    // Near the lattice's edge, on the side the carry comes from.
    const int columns = lattice_.columns();
    const int bottom = top_ + lattice_.rows() * cell_;
    if (strip < columns) {
        const double x1 = left_ + (columns - 1 - strip) * cell_;
        return {x1 + scaled(420), bottom + scaled(280) + 0.0};
    }
    const double y1 = top_ + (lattice_.rows() - 1 - (strip - columns)) * cell_;
    return {left_ - scaled(280) + 0.0, y1 + scaled(980)};
}

LayoutFrame::StageColours LatticeFrame::colours(LayoutStep::Stage stage) const
{
    if (stage == LayoutStep::Stage::SetOut)
        return {colors::lightRed, colors::red};
    // An answered triangle shows as such on the lattice, not on its box: the box stays yellow.
    return {colors::yellow, kDefaultColor};
}

void LatticeFrame::questionStarted()
{
    std::fill(shades_.begin(), shades_.end(), Shade::Pending);
    activeStrip_ = -1;
    redraw();
}

void LatticeFrame::setShade(const LayoutStep &step, Shade shade)
{
    if (std::string_view(step.box) != "answers")
        return;
    const auto &all = lattice_.triangles();
    for (std::size_t i = 0; i < all.size(); ++i)
        if (all[i].box == step.index)
            shades_[i] = shade;
}

void LatticeFrame::stepOpened(const LayoutStep &step)
{
    setShade(step, Shade::Waiting);
    if (std::string_view(step.box) == "answerbox")
        // A carry box stands in the strip its carry goes into: that strip lights up.
        activeStrip_ =
            Lattice::stripOfSumBox(step.index) + (Lattice::isCarryBox(step.index) ? 1 : 0);
    redraw();
}

void LatticeFrame::stepAnswered(const LayoutStep &step)
{
    setShade(step, Shade::Done);
    activeStrip_ = -1;
    redraw();
}

void LatticeFrame::redraw()
{
    const int columns = lattice_.columns();
    const int rows = lattice_.rows();
    // Canvas coordinates: the lattice's top-left corner is at (band_, 0).
    const double l = band_;
    const double r = l + columns * cell_;
    const double b = double(rows) * cell_;
    Drawing &d = canvas_->drawing;
    d.clear();

    d.polygon({{l, 0}, {l, b}, {r, b}, {r - band_, b + band_}, {0, b + band_}, {0, double(band_)}},
              kPink, kRule, 30);
    if (activeStrip_ >= 0) {
        const int s = activeStrip_;
        if (s < columns) {
            const double x1 = l + (columns - 1 - s) * cell_;
            d.polygon({{x1, b},
                       {x1 + cell_, b},
                       {x1 + cell_ - band_, b + band_},
                       {x1 - band_, b + band_}},
                      colors::yellow, kRule, 30);
        } else {
            const double y1 = double(rows - 1 - (s - columns)) * cell_;
            d.polygon({{l, y1}, {l, y1 + cell_}, {0, y1 + cell_ + band_}, {0, y1 + band_}},
                      colors::yellow, kRule, 30);
        }
    }

    const auto &all = lattice_.triangles();
    for (std::size_t i = 0; i < all.size(); ++i) {
        const Lattice::Triangle &t = all[i];
        const double x = l + t.column * cell_;
        const double y = double(t.row) * cell_;
        const std::uint32_t fill = shades_[i] == Shade::Waiting ? colors::yellow
                                   : shades_[i] == Shade::Done  ? kLightOrange
                                                                : kPending;
        if (t.upper)
            d.polygon({{x, y}, {x + cell_, y}, {x, y + cell_}}, fill, fill, 0);
        else
            d.polygon({{x + cell_, y}, {x + cell_, y + cell_}, {x, y + cell_}}, fill, fill, 0);
    }

    // The cells' sides, then every diagonal, carried on through the band as the strips' edges.
    for (int c = 1; c < columns; ++c)
        d.line(l + c * cell_, 0, l + c * cell_, b, kInk, 40);
    for (int rr = 1; rr < rows; ++rr)
        d.line(l, rr * cell_, r, rr * cell_, kInk, 40);
    for (int rr = 0; rr < rows; ++rr)
        for (int c = 0; c < columns; ++c)
            d.line(l + (c + 1) * cell_, rr * cell_, l + c * cell_, (rr + 1) * cell_, kRule, 25);
    for (int c = 0; c < columns; ++c)
        d.line(l + c * cell_, b, l + c * cell_ - band_, b + band_, kRule, 25);
    for (int rr = 1; rr < rows; ++rr)
        d.line(l, rr * cell_, 0, rr * cell_ + band_, kRule, 25);
}

} // namespace nb
