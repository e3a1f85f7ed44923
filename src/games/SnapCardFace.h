#pragma once
// How a snap card looks: a white playing card with its suit in two corners, a thin frame in the
// suit's colour and the calculation large in the middle. The suits go round the captions (card
// n has suit (n / 4) % 4), so every value appears in all four suits and a suit never tells two
// values apart: only the calculations do.
#include "core/Drawing.h"

#include <string>

namespace nb::snap {

// Replaces the drawing with card `card` showing `caption`, on a card w x h twips.
void drawFace(Drawing &d, double w, double h, int card, const std::string &caption);

// Replaces the drawing with an empty place on the table, where a card will lie.
void drawPlace(Drawing &d, double w, double h);

// How many characters a UTF-8 text has (a name's length in letters, a caption's width).
int characterCount(const std::string &text);

} // namespace nb::snap
