#pragma once
// The frame shared by the written-method screens: an exercise-book page with the sum on squared
// paper, a prompt line under it, the stopwatch and score, and Start, Next and Exit. An exercise
// is five questions; each answer box takes one entry at a time through the answer-box key
// filter, a right entry beeps and a wrong one is emptied and costs two seconds.
#include "activity/AnswerBoxes.h"
#include "activity/TimedRun.h"
#include "core/PupilProgress.h"
#include "core/Screen.h"

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace nb {

class WrittenFrame : public Screen
{
public:
    void onOpened() override;
    void onClick(const std::string &name, int index) override;
    void onTimer(const std::string &name) override;
    void onKeyPress(const std::string &name, int index, int &key) override;

    static constexpr int kQuestions = 5;
    static constexpr std::uint32_t kActiveBox = colors::yellow;
    static constexpr std::uint32_t kIdleBox = colors::lightRed;

protected:
    // `best` is the pupil's best time for this screen; `menu` is where Exit (and a No to another
    // go) returns.
    WrittenFrame(App &app, Value PupilProgress::*best, std::string menu);

    // The page: squares of kCell twips, one digit to a square, counted from the page's top-left.
    static constexpr int kCell = 960;
    static constexpr int kPageLeft = 480;
    static constexpr int kPageTop = 480;
    static constexpr int kPageColumns = 7;
    static constexpr int kPageRows = 7;
    // The columns every sum uses: its sign on the left, then thousands to units.
    static constexpr int kSignColumn = 1, kThousandsColumn = 2, kHundredsColumn = 3,
                         kTensColumn = 4, kUnitsColumn = 5;
    static int cellX(int column) { return kPageLeft + column * kCell; }
    static int cellY(int row) { return kPageTop + row * kCell; }

    // A digit of the sum, filling its square.
    Control &digitLabel(std::string name, int column, int row);
    // An operation sign (+, -, x) in its square.
    Control &signLabel(std::string text, int column, int row);
    // Small column headings ("H", "T", "U" ...) from `firstColumn` rightwards.
    void headings(int firstColumn, int row, std::initializer_list<const char *> letters);
    // An answer box filling its square, and a smaller carry box at the top of its square.
    Control &answerBox(std::string name, std::string spoken, int column, int row);
    Control &carryBox(std::string name, std::string spoken, int column, int row);
    // The rules around the answer row from `firstColumn` to `lastColumn`: Line1 over it, Line2
    // under it and, with `doubleRule`, Line3 just below Line2.
    void rules(int answerRow, int firstColumn, int lastColumn, bool doubleRule);

    // What each screen does for itself.
    virtual void newQuestion() = 0;
    // An Enter accepted by the key filter in one of the answer boxes, with the value entered.
    virtual void submit(const std::string &box, int value) = 0;
    // The number whose sign decides whether a box's text must be a tidy number: normally the
    // box's own text.
    virtual double keyReference(const std::string &box);
    // The end of the fifth question: the best-time check on this screen's best time.
    virtual void finishExercise();
    // Clicks on controls other than Start, Next and Exit.
    virtual void onPageClick(const std::string &name, int index) { (void)name, (void)index; }

    // Draws a whole number Int(n r) + lo, shows it in `label` and returns it.
    int drawDigit(const char *label, int n, int lo = 0);

    void startExercise();
    void backToMenu();
    // A right entry beeps; a wrong one empties the box and adds two seconds.
    void rightEntry();
    void wrongEntry(const std::string &box);
    void setPrompt(std::string_view text) { caption("text17") = std::string(text); }
    // Empties every answer box and the prompt line and hides Next: the start of a question.
    void clearPage();
    // Marks the question complete, shows a praise text and Next, scores it and, after the fifth
    // question, finishes the exercise.
    void questionDone();
    // The closing question of an exercise: shows `message` + "Do you want another go ?" and
    // starts again on Yes or goes back to the menu on No.
    void askAnotherGo(std::string message);
    // Stops the stopwatch and hides Next: the first thing every end of an exercise does.
    void stopExercise();

    Value &bestTime() { return progress().*best_; }
    const TimedRun &run() const { return run_; }
    bool isAnswerBox(std::string_view name) const;

    bool questionComplete_ = false;

private:
    // The reply to "Do you want another go ?": Yes starts afresh, No goes back to the menu.
    void carryOn(int reply);

    Value PupilProgress::*best_;
    std::string menu_;
    AnswerBoxes boxes_;
    TimedRun run_;
};

} // namespace nb
