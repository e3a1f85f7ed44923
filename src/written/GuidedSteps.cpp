#include "written/GuidedSteps.h"

namespace nb {

std::string placeName(int place)
{
    static const char *const kPlaces[] = {"hundredths", "tenths",    "units",        "tens",
                                          "hundreds",   "thousands", "ten thousands"};
    return kPlaces[place + 2];
}

std::string placePrompt(int place)
{
    return "Enter the " + placeName(place) + ".";
}

void GuidedSteps::beginSteps(std::vector<GuidedStep> steps)
{
    clearPage();
    // What the last question wrote on the page goes.
    for (const GuidedStep &step : steps_)
        for (const std::string &name : step.reveal)
            setVisible(name, false);
    steps_ = std::move(steps);
    current_ = 0;
    for (const auto &[box, index] : answerBoxes())
        setVisible(box, false, index);
    setRevealed(0);
    showStep();
}

void GuidedSteps::setRevealed(std::size_t upTo)
{
    for (std::size_t i = 0; i < steps_.size(); ++i)
        for (const std::string &name : steps_[i].reveal)
            setVisible(name, i <= upTo);
}

void GuidedSteps::showStep()
{
    for (std::size_t i = 0; i < steps_.size(); ++i) {
        Control &box = ctl(steps_[i].box);
        box.visible = i <= current_;
        box.enabled = i == current_;
        box.backColor = i == current_ ? kActiveBox : kIdleBox;
    }
    if (current_ >= steps_.size())
        return;
    const GuidedStep &step = steps_[current_];
    setRevealed(current_);
    setPrompt(step.prompt);
    if (Control *hint = find("hint"))
        hint->caption = step.hint;
    setFocus(step.box);
}

void GuidedSteps::submit(const std::string &box, int value)
{
    if (questionComplete_ || current_ >= steps_.size() || box != steps_[current_].box)
        return;
    if (value != steps_[current_].value) {
        wrongEntry(box);
        return showStep();
    }
    rightEntry();
    ++current_;
    showStep();
    if (current_ == steps_.size()) {
        if (Control *hint = find("hint"))
            hint->caption.clear();
        questionDone();
    }
}

} // namespace nb
