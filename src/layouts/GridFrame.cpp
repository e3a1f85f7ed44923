#include "layouts/GridFrame.h"

namespace nb {

namespace {
// The paper is ruled in squares; a grid cell is three squares wide and two high, so the grid's
// lines fall on the paper's.
constexpr int kSquare = 575;
constexpr int kCellW = 3 * kSquare;
constexpr int kCellH = 2 * kSquare;
constexpr int kPaperTop = 250;
constexpr int kPaperBottom = kPaperTop + 12 * kSquare;
constexpr int kInset = 90;

constexpr std::uint32_t kSquares = rgb(200, 222, 245);
constexpr std::uint32_t kHeader = rgb(255, 236, 236);
constexpr std::uint32_t kCorner = rgb(255, 250, 205);
constexpr std::uint32_t kCornerInk = rgb(200, 40, 40);

int power10(int n)
{
    int p = 1;
    while (n-- > 0)
        p *= 10;
    return p;
}
} // namespace

LayoutSteps GridFrame::gridSteps(const std::vector<int> &a, const std::vector<int> &b)
{
    using Stage = LayoutStep::Stage;
    LayoutSteps out;
    out.reserve(16);
    // Column i + 1 holds A's part of the place i from the top; row 10 r holds B's part r.
    int aParts[3] = {};
    int bParts[2] = {};
    const int na = int(a.size());
    const int nb = int(b.size());
    for (int i = 0; i < na; ++i) {
        aParts[i] = a[std::size_t(i)] * power10(na - 1 - i);
        out.push_back({"question", i + 1, aParts[i], Stage::SetOut});
    }
    for (int r = 0; r < nb; ++r) {
        bParts[r] = b[std::size_t(r)] * power10(nb - 1 - r);
        out.push_back({"question", 10 * (r + 1), bParts[r], Stage::SetOut});
    }
    for (int r = 0; r < nb; ++r)
        for (int i = 0; i < na; ++i)
            out.push_back({"answers", 10 * (r + 1) + i + 1, aParts[i] * bParts[r], Stage::Work});
    out.push_back({"answerbox", -1, numberOf(a) * numberOf(b), Stage::Answer});
    return out;
}

GridFrame::GridFrame(App &app, Value PupilProgress::*best, Sizes sizes)
    : LayoutFrame(app, best, std::move(sizes), Clearing::AfterQuestion)
{
    const int columns = int(this->sizes().a.size()) + 1;
    const int rows = int(this->sizes().b.size()) + 1;
    // Centred on the page, on the paper's squares.
    const int spare = (kPageRight - kPageLeft - columns * kCellW) / 2;
    const int gridLeft = kPageLeft + (spare + kSquare / 2) / kSquare * kSquare;
    const int gridTop = kPaperTop + 3 * kSquare;
    drawPaper(gridLeft, gridTop, columns, rows);
    halo();

    fixedLabel("Questions", "Q", 1, gridLeft, kPaperTop + kSquare, kCellW / 2, 2 * kSquare, 36);
    questionLine(gridLeft + kCellW / 2, kPaperTop + kSquare, 2 * kCellW, 2 * kSquare - 100);

    const auto cellBox = [this, gridLeft, gridTop](const char *name, const std::string &spoken,
                                                   int index, int column, int row) {
        answerBox(name, spoken, index, gridLeft + column * kCellW + kInset,
                  gridTop + row * kCellH + kInset, kCellW - 2 * kInset, kCellH - 2 * kInset, 24);
    };
    fixedLabel("Questions", "X", 0, gridLeft, gridTop + kInset, kCellW, kCellH - 2 * kInset, 44)
        .foreColor = kCornerInk;
    for (int c = 1; c < columns; ++c)
        cellBox("question", "part of the first number", c, c, 0);
    for (int r = 1; r < rows; ++r)
        cellBox("question", "part of the second number", 10 * r, 0, r);
    for (int r = 1; r < rows; ++r)
        for (int c = 1; c < columns; ++c)
            cellBox("answers", "grid cell", 10 * r + c, c, r);
    shape("Shape1", ShapeKind::Rectangle, kDefaultColor, kInk, gridLeft, gridTop, columns * kCellW,
          rows * kCellH)
        .lineWidth = 60;

    const int answerTop = gridTop + rows * kCellH + kSquare;
    fixedLabel("Questions", "A", 2, gridLeft, answerTop, kCellW / 2, 2 * kSquare, 36);
    answerBox("answerbox", "answer", -1, gridLeft + kCellW / 2, answerTop, 2 * kCellW,
              2 * kSquare - 100, 36);
}

void GridFrame::drawPaper(int gridLeft, int gridTop, int columns, int rows)
{
    Control &paper =
        canvas("paper", kPageLeft, kPaperTop, kPageRight - kPageLeft, kPaperBottom - kPaperTop);
    paper.mouseTransparent = true;
    Drawing &d = paper.drawing;
    const double w = kPageRight - kPageLeft;
    const double h = kPaperBottom - kPaperTop;
    d.rect(0, 0, w, h, kPaper, kSquares, 30);
    for (int x = kSquare; x < w; x += kSquare)
        d.line(x, 0, x, h, kSquares, 12);
    for (int y = kSquare; y < h; y += kSquare)
        d.line(0, y, w, y, kSquares, 12);

    // The grid in paper coordinates: its headings tinted, the corner brightest, ruled in ink.
    const double l = gridLeft - kPageLeft;
    const double t = gridTop - kPaperTop;
    const double r = l + columns * kCellW;
    const double b = t + rows * kCellH;
    d.rect(l, t, r, t + kCellH, kHeader, kHeader, 0);
    d.rect(l, t, l + kCellW, b, kHeader, kHeader, 0);
    d.rect(l, t, l + kCellW, t + kCellH, kCorner, kCorner, 0);
    for (int c = 1; c < columns; ++c)
        d.line(l + c * kCellW, t, l + c * kCellW, b, kInk, c == 1 ? 60 : 30);
    for (int rr = 1; rr < rows; ++rr)
        d.line(l, t + rr * kCellH, r, t + rr * kCellH, kInk, rr == 1 ? 60 : 30);
}

LayoutFrame::StageColours GridFrame::colours(LayoutStep::Stage stage) const
{
    switch (stage) {
    case LayoutStep::Stage::SetOut:
        return {colors::lightRed, colors::red};
    case LayoutStep::Stage::Work:
        return {colors::yellow, rgb(255, 255, 128)};
    case LayoutStep::Stage::Answer:
        break;
    }
    return {colors::yellow, kDefaultColor};
}

} // namespace nb
