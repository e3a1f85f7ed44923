#pragma once
// The number board of four in a row, shared by the game against the computer and the game for two
// players. Six numbers stand on the left and six on the right; the 6 x 6 cells start as their
// addition table (cell (r, c) = left r + right c) and are then scrambled, so a cell is claimed by
// choosing a left and a right number and finding a cell that holds their sum.
//
// Rows and columns of the board run from 4 to 9 and a cell is named 100 x row + column. Ownership
// and the two sides' status codes are kept on a 12 x 12 grid (rows and columns 1 to 12): the board
// sits inside it with a margin of three free cells on every side, so a walk of up to three cells
// from any board cell stays inside the grid without a bounds test.
#include <array>
#include <cassert>
#include <cstdint>
#include <functional>
#include <optional>

namespace nb::fourrow {

constexpr int kFirst = 4;     // first row and column of the board
constexpr int kLast = 9;      // last row and column of the board
constexpr int kSide = 6;      // cells along a side
constexpr int kCells = 36;    // cells on the board
constexpr int kGrid = 13;     // grid rows and columns 1..12 (0 unused)
constexpr int kSwaps = 60;    // cell exchanges that scramble a new board
constexpr int kComplete = 3;  // own pieces beside a cell that make four with it
constexpr int kClaimed = 4;   // status code of a cell in the claimer's array
constexpr int kOpponents = 5; // status code of a cell in the other side's array

// Who holds a cell. Red is the pupil (or player 1), green the computer (or player 2).
enum class Owner : std::uint8_t { None, Red, Green };

constexpr Owner opponentOf(Owner o)
{
    return o == Owner::Red ? Owner::Green : Owner::Red;
}

constexpr int cellId(int row, int col)
{
    return 100 * row + col;
}

// The four line directions: across, down and the two diagonals.
constexpr bool onBoard(int row, int col)
{
    return row >= kFirst && row <= kLast && col >= kFirst && col <= kLast;
}

struct Step
{
    int dr, dc;
};
inline constexpr std::array<Step, 4> kDirections{{{0, 1}, {1, 0}, {1, 1}, {1, -1}}};

struct Cell
{
    int row = 0, col = 0;
    bool operator==(const Cell &) const = default;
};

using Draw = std::function<double()>;
using Numbers = std::array<int, kSide>; // index 0 is row or column 4

template<class T> using Grid = std::array<std::array<T, kGrid>, kGrid>;

class FourRowBoard
{
public:
    // A fresh board: the numbers given, the cells as their addition table scrambled by 60
    // exchanges of two cells drawn at random (row, column, row, column per exchange), no claims.
    void setUp(const Numbers &left, const Numbers &right, const Draw &draw);

    int left(int row) const { return left_[std::size_t(row - kFirst)]; }
    int right(int col) const { return right_[std::size_t(col - kFirst)]; }
    int sum(int row, int col) const
    {
        return sums_[std::size_t(row - kFirst)][std::size_t(col - kFirst)];
    }
    // Any grid cell, margin included. Every line walk stays inside the grid; checked builds
    // prove it on each read.
    Owner owner(int row, int col) const
    {
        assert(row >= 1 && row < kGrid && col >= 1 && col < kGrid);
        return owner_.cells[row][col];
    }
    bool isFree(int row, int col) const { return owner(row, col) == Owner::None; }
    int claimed() const { return claimed_; }
    bool full() const { return claimed_ == kCells; }

    // Claims a free board cell; true when it completes four in a row for its new owner. A cell
    // already held is left alone (false).
    bool claim(int row, int col, Owner who);
    // The ends of the longest line of four or more cells through (row, col) that are all held by
    // the cell's owner, if there is one.
    std::optional<std::array<Cell, 2>> fourThrough(int row, int col) const;

    // Status codes: 0..3 the evaluation of a free cell, 4 claimed by that side, 5 by the other.
    // Red's codes are the pupil's (playerstatus), green's the computer's (compstatus).
    int status(Owner side, int row, int col) const
    {
        return (side == Owner::Red ? redStatus_ : greenStatus_)[std::size_t(row)][std::size_t(col)];
    }
    void setStatus(Owner side, int row, int col, int code)
    {
        (side == Owner::Red ? redStatus_ : greenStatus_)[std::size_t(row)][std::size_t(col)] =
            std::int8_t(code);
    }
    // The computer's tie-break score of a cell (0..4), written while it chooses a move.
    int freeScore(int row, int col) const { return freeScore_[std::size_t(row)][std::size_t(col)]; }
    void setFreeScore(int row, int col, int s)
    {
        freeScore_[std::size_t(row)][std::size_t(col)] = std::int8_t(s);
    }

private:
    void setSum(int row, int col, int value)
    {
        sums_[std::size_t(row - kFirst)][std::size_t(col - kFirst)] = value;
    }

    Numbers left_{}, right_{};
    std::array<std::array<int, kSide>, kSide> sums_{};
    // A plain array: every line walk reads it, and it is copied whole with the board.
    struct
    {
        Owner cells[kGrid][kGrid];
    } owner_{};
    Grid<std::int8_t> redStatus_{}, greenStatus_{}, freeScore_{};
    int claimed_ = 0;
};

// The numbers of the game against the computer at a level: 50L + 1 to 50L + 49 below level 10,
// 450 to 498 from level 10 on. Left side first, then right.
std::array<Numbers, 2> computerGameNumbers(const Draw &draw, int level);

// The numbers of the two-player game by number mode (0, 1 or 2) and level; nullopt for any other
// mode, which leaves the numbers undrawn.
std::optional<std::array<Numbers, 2>> twoPlayerNumbers(const Draw &draw, int mode, int level);

} // namespace nb::fourrow
