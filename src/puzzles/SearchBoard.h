#pragma once
// The number board of the search puzzles: 8 x 8 numbers, a target made by two neighbouring
// numbers (across, down or diagonally) under one operation, and the pairs already found. Every
// target is taken from a pair still on the board, so a target always has an answer.
#include <array>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace nb {

// The operation that makes a target from two numbers; the values are those of SearchCaller.
enum class SearchOp { Add = 1, Subtract = 2, Times = 3, Divide = 4 };

// SearchCaller as an operation; anything other than 1 to 4 counts as adding.
SearchOp searchOpFor(int caller);

class SearchBoard
{
public:
    static constexpr int kSide = 8;
    static constexpr int kCells = kSide * kSide;
    static constexpr int kLevels = 5;

    using Draw = std::function<double()>; // uniform draws in [0, 1)

    explicit SearchBoard(SearchOp op = SearchOp::Add)
        : op_(op)
    {}

    SearchOp op() const { return op_; }

    // New numbers for a level (1 to kLevels; others are held to that range); nothing found yet.
    void fill(int level, const Draw &draw);

    // Cells are numbered 0 to 63 row by row from the top left.
    int value(int cell) const { return values_[std::size_t(cell)]; }
    void setValue(int cell, int v) { values_[std::size_t(cell)] = v; }
    bool found(int cell) const { return found_[std::size_t(cell)]; }
    static bool onBoard(int cell) { return cell >= 0 && cell < kCells; }
    // Two different cells that touch across, down or diagonally.
    static bool neighbours(int a, int b);

    // What the two numbers make under the operation: the sum; the bigger less the smaller when
    // they differ; the product; the bigger divided by the smaller when that is whole and more
    // than 1. Nothing for pairs that make no target.
    std::optional<int> makes(int a, int b) const;
    // Whether neighbouring cells, neither found yet, make the target.
    bool isAnswer(int a, int b, int target) const;
    // Neighbouring pairs not yet found (each pair once, lower cell first) that make a target.
    std::vector<std::pair<int, int>> openPairs() const;
    // A target made by one of the open pairs, or nothing when none is left.
    std::optional<int> pickTarget(const Draw &draw) const;
    void markFound(int a, int b);
    // The pairs found on this board, in the order they were found.
    const std::vector<std::pair<int, int>> &foundPairs() const { return foundPairs_; }

private:
    SearchOp op_;
    std::array<int, kCells> values_{};
    std::array<bool, kCells> found_{};
    std::vector<std::pair<int, int>> foundPairs_;
};

// The numbers a level puts on the board.
struct SearchRange
{
    int lo, hi;
};
SearchRange searchRange(SearchOp op, int level);

} // namespace nb
