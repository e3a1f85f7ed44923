#pragma once
// One box of a grid or lattice question: which box the pupil fills, what it expects and which
// stage of the question it belongs to. A question is the list of its boxes in the order the
// pupil fills them.
#include <vector>

namespace nb {

struct LayoutStep
{
    // Setting out the factors, working inside the grid or lattice, and the answer.
    enum class Stage { SetOut, Work, Answer };

    const char *box = ""; // "question", "answers" or "answerbox"
    int index = -1;       // the box's index in its array; -1 for a single box
    int expected = 0;     // the value that is right
    Stage stage = Stage::SetOut;
};

using LayoutSteps = std::vector<LayoutStep>;

// The digits of a number, highest place first, and the number they make.
int numberOf(const std::vector<int> &digits);

} // namespace nb
