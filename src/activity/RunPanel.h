#pragma once
// The right-hand panel of the written-method and layout screens: "Time" and "Score" with their
// framed values, and the start, next and exit buttons, at the panel's place on the screen.
#include "core/Control.h"

#include <cstdint>

namespace nb {

class Screen;

struct RunPanel
{
    int left;        // twips from the screen's left edge
    int width;       // of the buttons
    int valueOffset; // from the panel's left to the framed values
    std::uint32_t ink;
    // The three buttons, by name and caption; the next button starts hidden.
    const char *start, *startCaption;
    const char *next, *nextCaption;
    const char *exit, *exitCaption;
};

// Adds the panel's controls: timelabel, time, scorelabel, score, then the three buttons.
void addRunPanel(Screen &screen, const RunPanel &panel);

} // namespace nb
