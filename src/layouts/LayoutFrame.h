#pragma once
// The frame shared by the grid and lattice screens: START, NEXT and EXIT, the stopwatch and
// score, the question line and the prompt line. A run is five questions; each question is a list
// of boxes filled one at a time (the factors set out, the work inside the grid or lattice, the
// answer). Only the waiting box is enabled. A right entry beeps and opens the next box; a wrong
// one is emptied and costs two seconds.
#include "activity/AnswerBoxes.h"
#include "activity/TimedRun.h"
#include "core/PupilProgress.h"
#include "core/Screen.h"
#include "layouts/LayoutStep.h"

#include <string>
#include <string_view>
#include <vector>

namespace nb {

class LayoutFrame : public Screen
{
public:
    void onOpened() override;
    void onClick(const std::string &name, int index) override;
    void onTimer(const std::string &name) override;
    void onKeyPress(const std::string &name, int index, int &key) override;
    void onScreenKey(int key) override;

    static constexpr int kQuestions = 5;

    // The page left of the panel, where the families lay out their grid or lattice (twips).
    static constexpr int kPageLeft = 300;
    static constexpr int kPageRight = 7900;
    static constexpr int kPromptTop = 7350;

    static constexpr std::uint32_t kInk = rgb(25, 45, 120);
    static constexpr std::uint32_t kPaper = rgb(253, 253, 248);

    // The range a digit is drawn from.
    struct Range
    {
        int lo = 0, hi = 9;
    };
    // The digit ranges of A and of B, highest place first.
    struct Sizes
    {
        std::vector<Range> a, b;
    };

    // The box now waiting for an entry and what it expects, or nullptr between questions.
    const LayoutStep *waiting() const;

protected:
    // When the boxes of a question are emptied: once the question is done (the grid), or at
    // START and NEXT before the next question (the lattice).
    enum class Clearing { AfterQuestion, BeforeQuestion };

    // The colours a box of each stage takes while it waits and once it is answered.
    // kDefaultColor as the answered colour leaves the box as it is.
    struct StageColours
    {
        std::uint32_t waiting, answered;
    };

    LayoutFrame(App &app, Value PupilProgress::*best, Sizes sizes, Clearing clearing);

    // What each family provides: the boxes of a question in order, and their colours.
    virtual LayoutSteps plan(const std::vector<int> &a, const std::vector<int> &b) const = 0;
    virtual StageColours colours(LayoutStep::Stage stage) const = 0;
    // The colour of the box whose right answer completes a question (kDefaultColor: unchanged).
    virtual std::uint32_t completingColour() const { return kDefaultColor; }
    // Hooks for what the family draws around the boxes.
    virtual void questionStarted() {}
    virtual void stepOpened(const LayoutStep &step) { (void)step; }
    virtual void stepAnswered(const LayoutStep &step) { (void)step; }

    // Builders for the families' pages (twips).
    Control &answerBox(std::string name, std::string spoken, int index, int l, int t, int w, int h,
                       double points);
    Control &fixedLabel(std::string name, std::string caption, int index, int l, int t, int w,
                        int h, double points);
    // The question line ("57x8"), placed by the family.
    Control &questionLine(int l, int t, int w, int h);
    // A bright ring that sits round the waiting box so that a child sees where to type; built
    // after the family's drawing and before its boxes, so that it lies between them.
    void halo();

    const Sizes &sizes() const { return sizes_; }

private:
    void start();
    void next();
    void newQuestion();
    void open(std::size_t step);
    void check(Control &box, double value);
    void questionDone();
    void endRun();
    void exitToMenu();
    // A back colour with ink that reads on it.
    static void paint(Control &box, std::uint32_t back);

    Value PupilProgress::*best_;
    Sizes sizes_;
    Clearing clearing_;
    TimedRun run_;
    AnswerBoxes boxes_;
    Control *halo_ = nullptr;
    LayoutSteps steps_;
    std::size_t current_ = 0;
    bool inQuestion_ = false;
};

} // namespace nb
