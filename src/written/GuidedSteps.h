#pragma once
// Written methods guided one box at a time from a list of steps worked out when the question is
// drawn: each step names the box to fill, the value that is right there and the prompt. Earlier
// boxes stay in view, the box of the current step is yellow and the only one taking input, later
// boxes are hidden. A right entry beeps and moves on; a wrong one is emptied and costs two
// seconds; the last right entry completes the question.
#include "written/WrittenFrame.h"

#include <string>
#include <vector>

namespace nb {

struct GuidedStep
{
    std::string box;
    int value = 0;
    std::string prompt;
    // A note beside the page while the step is on (empty: none).
    std::string hint;
    // Labels that the method writes on the page when the step is reached (a decimal point, an
    // "r"); hidden at the start of every question.
    std::vector<std::string> reveal;
};

// "hundredths" ... "ten thousands" for a place counted from the units (0; -1 tenths), and its
// prompt "Enter the units." ... "Enter the ten thousands.".
std::string placeName(int place);
std::string placePrompt(int place);

class GuidedSteps : public WrittenFrame
{
public:
    const std::vector<GuidedStep> &steps() const { return steps_; }
    // The step waiting for an entry (steps().size() once the question is complete).
    std::size_t currentStep() const { return current_; }

protected:
    using WrittenFrame::WrittenFrame;

    // Starts a question: every answer box empty and hidden, then the first step shown.
    void beginSteps(std::vector<GuidedStep> steps);
    void submit(const std::string &box, int value) override;

private:
    void showStep();
    void setRevealed(std::size_t upTo);

    std::vector<GuidedStep> steps_;
    std::size_t current_ = 0;
};

} // namespace nb
