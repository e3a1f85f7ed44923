#pragma once
// Four-in-a-row boards written as six rows of text: 'R' red (the pupil or player 1), 'G' green
// (the computer or player 2), '.' free. Row 4 first, column 4 leftmost.
#include "core/NumberText.h"
#include "games/FourRowBoard.h"
#include "support/Driver.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace nb::test {

using Rows = std::array<std::string, fourrow::kSide>;

inline void lay(fourrow::FourRowBoard &b, const Rows &rows)
{
    for (int r = fourrow::kFirst; r <= fourrow::kLast; ++r)
        for (int c = fourrow::kFirst; c <= fourrow::kLast; ++c) {
            const char ch =
                rows[std::size_t(r - fourrow::kFirst)][std::size_t(c - fourrow::kFirst)];
            if (ch != '.')
                b.claim(r, c, ch == 'R' ? fourrow::Owner::Red : fourrow::Owner::Green);
        }
}

inline fourrow::FourRowBoard boardOf(const Rows &rows)
{
    fourrow::FourRowBoard b;
    lay(b, rows);
    return b;
}

// A full board with no four in a row anywhere, red and green 18 cells each.
inline const Rows kNoFour = {"RRGGRR", "RRGGRR", "GGRRGG", "RRGGRR", "GGRRGG", "GGRRGG"};

inline int number(Driver &d, const char *side, int k)
{
    return int(readNumber(d.caption(side, k)));
}

// Chooses two numbers whose sum the cell holds and clicks the cell.
inline void claim(Driver &d, int row, int col)
{
    const int want = int(readNumber(d.caption("Label1", fourrow::cellId(row, col))));
    for (int l = fourrow::kFirst; l <= fourrow::kLast; ++l)
        for (int r = fourrow::kFirst; r <= fourrow::kLast; ++r)
            if (number(d, "xvalue", l) + number(d, "expression", r) == want) {
                d.click("xvalue", l);
                d.click("expression", r);
                d.click("Label1", fourrow::cellId(row, col));
                return;
            }
    FAIL() << "no pair makes the sum in " << row << "," << col;
}

} // namespace nb::test
