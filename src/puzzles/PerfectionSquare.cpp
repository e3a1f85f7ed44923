#include "puzzles/PerfectionSquare.h"

#include "core/Random.h"

#include <algorithm>
#include <numeric>

namespace nb {

namespace {
// Level by level: the side of the square and how many squares are blank.
constexpr int kSides[PerfectionSquare::kLevels] = {5, 6, 8, 10, 12};
constexpr int kBlanks[PerfectionSquare::kLevels] = {8, 12, 20, 32, 48};
} // namespace

int PerfectionSquare::sideFor(int level)
{
    return kSides[std::clamp(level, 1, kLevels) - 1];
}

int PerfectionSquare::blanksFor(int level)
{
    return kBlanks[std::clamp(level, 1, kLevels) - 1];
}

void PerfectionSquare::fill(int level, const std::function<double()> &draw)
{
    side_ = sideFor(level);
    // The first `blanks` squares of a shuffle of all the squares.
    std::vector<int> squares(std::size_t(side_ * side_));
    std::iota(squares.begin(), squares.end(), 0);
    const int n = blanksFor(level);
    for (int i = 0; i < n; ++i) {
        const int j = wholeFromDraw(draw(), i, int(squares.size()) - 1);
        std::swap(squares[std::size_t(i)], squares[std::size_t(j)]);
    }
    blanks_.clear();
    for (int i = 0; i < n; ++i) {
        const int sq = squares[std::size_t(i)];
        blanks_.push_back(sq / side_ * kMaxSide + sq % side_);
    }
    std::sort(blanks_.begin(), blanks_.end());
}

bool PerfectionSquare::blank(int row, int column) const
{
    return std::binary_search(blanks_.begin(), blanks_.end(), row * kMaxSide + column);
}

bool PerfectionSquare::right(const std::string &entry, int row, int column)
{
    return entry == std::to_string(product(row, column));
}

int PerfectionSquare::percent(int right, int blanks)
{
    if (blanks <= 0)
        return 0;
    return std::clamp(right, 0, blanks) * 100 / blanks;
}

} // namespace nb
