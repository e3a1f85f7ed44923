#pragma once
// Four-in-a-row boards written as text, row 4 first and column 4 leftmost, rows separated by '/':
// 'R' red (the pupil or player 1), 'G' green (the computer or player 2), '.' free. Rows left out
// at the end are free. And a claim made through a screen as a player would.
#include "core/NumberText.h"
#include "games/FourRowBoard.h"
#include "support/Driver.h"

#include <gtest/gtest.h>

#include <string_view>

namespace nb::test {

inline void lay(fourrow::FourRowBoard &b, std::string_view rows)
{
    int k = 0;
    for (const char ch : rows) {
        if (ch == '/')
            continue;
        const int r = fourrow::kFirst + k / fourrow::kSide,
                  c = fourrow::kFirst + k % fourrow::kSide;
        if (ch != '.')
            b.claim(r, c, ch == 'R' ? fourrow::Owner::Red : fourrow::Owner::Green);
        ++k;
    }
}

// A full board with no four in a row anywhere, red and green 18 cells each.
inline constexpr std::string_view kNoFour = "RRGGRR/RRGGRR/GGRRGG/RRGGRR/GGRRGG/GGRRGG";

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

// A free cell that does not hold the sum of left number l and right number r.
inline int wrongCell(const fourrow::FourRowBoard &b, int l, int r)
{
    for (int row = fourrow::kFirst; row <= fourrow::kLast; ++row)
        for (int col = fourrow::kFirst; col <= fourrow::kLast; ++col)
            if (b.isFree(row, col) && b.sum(row, col) != b.left(l) + b.right(r))
                return fourrow::cellId(row, col);
    return 0;
}

} // namespace nb::test
