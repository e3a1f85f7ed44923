#include "puzzles/SearchBoard.h"

#include "core/Random.h"

#include <algorithm>
#include <cstdlib>

namespace nb {

namespace {

// The numbers on the board, level by level (rows) and operation by operation (columns: add,
// take away, times, divide). For dividing, each number is the product of two numbers from the
// range, so that many neighbours divide exactly.
constexpr SearchRange kRanges[SearchBoard::kLevels][4] = {
    {{1, 9}, {1, 10}, {1, 5}, {1, 3}},      {{1, 15}, {1, 20}, {2, 7}, {1, 4}},
    {{2, 25}, {5, 30}, {2, 9}, {1, 5}},     {{5, 50}, {10, 60}, {2, 12}, {1, 7}},
    {{10, 99}, {20, 99}, {3, 15}, {1, 10}},
};

int row(int cell)
{
    return cell / SearchBoard::kSide;
}
int column(int cell)
{
    return cell % SearchBoard::kSide;
}

} // namespace

SearchOp searchOpFor(int caller)
{
    return caller >= 1 && caller <= 4 ? SearchOp(caller) : SearchOp::Add;
}

SearchRange searchRange(SearchOp op, int level)
{
    level = std::clamp(level, 1, SearchBoard::kLevels);
    return kRanges[level - 1][int(op) - 1];
}

void SearchBoard::fill(int level, const Draw &draw)
{
    const SearchRange r = searchRange(op_, level);
    for (int &v : values_) {
        v = wholeFromDraw(draw(), r.lo, r.hi);
        if (op_ == SearchOp::Divide)
            v *= wholeFromDraw(draw(), r.lo, r.hi);
    }
    found_.fill(false);
    foundPairs_.clear();
}

bool SearchBoard::neighbours(int a, int b)
{
    if (!onBoard(a) || !onBoard(b) || a == b)
        return false;
    return std::abs(row(a) - row(b)) <= 1 && std::abs(column(a) - column(b)) <= 1;
}

std::optional<int> SearchBoard::makes(int a, int b) const
{
    const int x = std::max(value(a), value(b)), y = std::min(value(a), value(b));
    switch (op_) {
    case SearchOp::Add:
        return x + y;
    case SearchOp::Subtract:
        if (x == y)
            return std::nullopt;
        return x - y;
    case SearchOp::Times:
        return x * y;
    case SearchOp::Divide:
        if (y <= 0 || x == y || x % y != 0)
            return std::nullopt;
        return x / y;
    }
    return std::nullopt;
}

bool SearchBoard::isAnswer(int a, int b, int target) const
{
    return neighbours(a, b) && !found(a) && !found(b) && makes(a, b) == target;
}

std::vector<std::pair<int, int>> SearchBoard::openPairs() const
{
    std::vector<std::pair<int, int>> pairs;
    for (int a = 0; a < kCells; ++a) {
        if (found(a))
            continue;
        // The neighbours after a: right, and the three below.
        const int later[] = {a + 1, a + kSide - 1, a + kSide, a + kSide + 1};
        for (int b : later)
            if (neighbours(a, b) && !found(b) && makes(a, b))
                pairs.emplace_back(a, b);
    }
    return pairs;
}

std::optional<int> SearchBoard::pickTarget(const Draw &draw) const
{
    const auto pairs = openPairs();
    if (pairs.empty())
        return std::nullopt;
    const auto &[a, b] = pairs[std::size_t(wholeFromDraw(draw(), 0, int(pairs.size()) - 1))];
    return makes(a, b);
}

void SearchBoard::markFound(int a, int b)
{
    found_[std::size_t(a)] = true;
    found_[std::size_t(b)] = true;
    foundPairs_.emplace_back(a, b);
}

} // namespace nb
