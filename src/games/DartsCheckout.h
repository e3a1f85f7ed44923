#pragma once
// Where the computer aims with a given score left: a fixed point for some scores, a bed named by
// its half of the board, number and ring for the others. Every score from 2 to 301 has an aim
// that, thrown without error, hits the bed it names and never busts.
#include "core/Drawing.h"
#include "games/DartBoard.h"

namespace nb::darts {

struct Aim
{
    PointTw point; // in the scoring coordinates
    Bed bed;       // the bed it is meant to hit
    int number;    // and its number (25 or 50 for the bulls)
};

Aim computerAim(int remaining);

// The middle of a bed in one half of the board (rightHalf: x >= 5873), for aiming at it. The 20
// and the 3 straddle both halves; their aim stays inside the half asked for.
PointTw bedAimPoint(bool rightHalf, int number, Bed bed);

} // namespace nb::darts
