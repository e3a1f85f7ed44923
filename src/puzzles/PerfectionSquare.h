#pragma once
// The times square of the perfection puzzle: the products of 1 to n by 1 to n, n growing with the
// level up to 12, with some squares left blank for the pupil to fill, and the marking of what the
// pupil wrote in them.
#include <functional>
#include <string>
#include <vector>

namespace nb {

class PerfectionSquare
{
public:
    static constexpr int kLevels = 5;
    static constexpr int kMaxSide = 12;

    // The square's side and how many of its squares are blank at a level (held to 1..kLevels).
    static int sideFor(int level);
    static int blanksFor(int level);

    // A new square for a level with its blanks drawn at random (uniform draws in [0, 1)).
    void fill(int level, const std::function<double()> &draw);
    // The level's square with nothing blank yet (shown before a start).
    void clear(int level)
    {
        side_ = sideFor(level);
        blanks_.clear();
    }

    int side() const { return side_; }
    int blankCount() const { return int(blanks_.size()); }
    // Squares are numbered 0 to side*side - 1 row by row; rows and columns count from 0.
    bool blank(int row, int column) const;
    static int product(int row, int column) { return (row + 1) * (column + 1); }
    // The blank squares as row * kMaxSide + column, in reading order.
    const std::vector<int> &blanks() const { return blanks_; }

    // An entry is right when it is exactly the product written as a plain number.
    static bool right(const std::string &entry, int row, int column);
    // The share of the blanks filled right, in whole percent rounded down, so that only a square
    // with every blank right shows 100.
    static int percent(int right, int blanks);

private:
    int side_ = 0;
    std::vector<int> blanks_;
};

} // namespace nb
