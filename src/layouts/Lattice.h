#pragma once
// Lattice multiplication as numbers. The digits of A stand along the top of a lattice of cells,
// the digits of B down its right-hand side. Each cell holds the product of its column digit and
// its row digit, split by the cell's diagonal: the tens in the upper-left triangle, the units in
// the lower-right one. The diagonals continue as strips down to the sum boxes below and to the
// left of the lattice; each strip is added from the right, with the carry from the strip before,
// and gives one digit of A x B, the rightmost strip the units.
//
// Box numbering (the same on every lattice, whatever its size):
//   question(1), (2), (3)  A's hundreds, tens and units digits (a 2-digit A uses 2 and 3);
//   question(10), (20)     B's tens and units digits (a 1-digit B uses 20);
//   answers(6 r + 2 p)     the tens triangle of the cell in row r (0 = top) under the place p of
//                          A (0 hundreds, 1 tens, 2 units); answers(6 r + 2 p + 1) its units;
//   answerbox(2 s)         the digit of strip s (0 = the rightmost strip);
//   answerbox(2 s + 1)     the carry out of strip s into strip s + 1.
#include "layouts/LayoutStep.h"

#include <vector>

namespace nb {

class Lattice
{
public:
    struct Triangle
    {
        int row = 0;    // 0 = the top row
        int column = 0; // 0 = the leftmost column
        bool upper = false;
        int box = 0;   // answers(box)
        int strip = 0; // 0 = the rightmost strip
    };

    // A lattice for an A of `columns` digits (1 to 3) and a B of `rows` digits (1 or 2).
    Lattice(int columns, int rows);

    int columns() const { return columns_; }
    int rows() const { return rows_; }
    // One strip per digit the product can have.
    int strips() const { return columns_ + rows_; }

    int aBox(int column) const { return 4 - columns_ + column; }
    int bBox(int row) const { return (rows_ == 2 ? 10 : 20) + 10 * row; }
    int triangleBox(int row, int column, bool upper) const
    {
        return 6 * row + 2 * (3 - columns_ + column) + (upper ? 0 : 1);
    }
    int stripOf(int row, int column, bool upper) const
    {
        return (columns_ - 1 - column) + (rows_ - 1 - row) + (upper ? 1 : 0);
    }
    static int sumBox(int strip) { return 2 * strip; }
    static int carryBox(int strip) { return 2 * strip + 1; }
    // The strip a sum or carry box belongs to.
    static int stripOfSumBox(int box) { return box / 2; }
    static bool isCarryBox(int box) { return box % 2 == 1; }
    // Only strips with two or more triangles can reach 10: never the rightmost, and the leftmost
    // never does either, since A x B has at most columns + rows digits.
    bool canCarry(int strip) const { return strip >= 1 && strip <= strips() - 2; }

    // Every triangle in the order the pupil fills them: the rows from the top, the cells from
    // left to right, the tens before the units.
    const std::vector<Triangle> &triangles() const { return triangles_; }
    // The triangle that answers(box) belongs to, or nullptr.
    const Triangle *triangleAt(int box) const;
    // The sum and carry boxes this lattice has, in index order.
    std::vector<int> sumBoxes() const;

    // The boxes of one question in the order they are filled: A's digits, B's digits, every
    // triangle, then the strips from the right, each strip's digit followed by its carry box
    // whenever the strip reaches 10. A leftmost strip that adds up to 0 is a leading zero: the
    // question ends before it.
    LayoutSteps steps(const std::vector<int> &a, const std::vector<int> &b) const;

private:
    int columns_;
    int rows_;
    std::vector<Triangle> triangles_;
};

} // namespace nb
