#pragma once
// Grid multiplication: the parts of A (hundreds, tens, units) stand in boxes along the top of a
// grid and the parts of B down its side; each cell takes the product of its column part and its
// row part, and the pupil then types the whole product.
//
// Boxes: question(1), (2), (3) hold the parts of A from the highest place (a 2-digit A uses 1 and
// 2); question(10) and (20) the parts of B (a 1-digit B uses 10 alone); the cell in the row of
// question(r) and the column of question(c) is answers(r + c); answerbox is the product.
#include "layouts/LayoutFrame.h"

namespace nb {

class GridFrame : public LayoutFrame
{
public:
    // The boxes of a grid question in order: A's parts, B's parts, the cells row by row, the
    // product.
    static LayoutSteps gridSteps(const std::vector<int> &a, const std::vector<int> &b);

protected:
    GridFrame(App &app, Value PupilProgress::*best, Sizes sizes);

    LayoutSteps plan(const std::vector<int> &a, const std::vector<int> &b) const override
    {
        return gridSteps(a, b);
    }
    StageColours colours(LayoutStep::Stage stage) const override;

private:
    void drawPaper(int gridLeft, int gridTop, int columns, int rows);
};

} // namespace nb
