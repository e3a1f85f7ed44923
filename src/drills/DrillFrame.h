#pragma once
// The frame of every ten-question drill: Start and Exit, the one-second stopwatch, the score, the
// Enter-key entry rules, the two-second penalty, the announcement of the pupil's best time on
// opening and the best-time check after the tenth right answer. A drill adds only its question,
// the rule that says whether an answer is right, and its best-time slot.
//
// The sum is laid out as  text1 text2 text3 text4 Text5 : the pupil types into Text5 (the answer
// after the equals sign) or, on the screens that ask for a missing number, into text3.
#include "activity/TimedRun.h"
#include "core/PupilProgress.h"
#include "core/Screen.h"
#include "drills/Draws.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace nb {

using BestSlot = Value PupilProgress::*;

class DrillFrame : public Screen
{
public:
    static constexpr int kQuestions = 10;

    struct Look
    {
        std::string sign;      // the operator in text2
        std::string answerBox; // "Text5" or "text3"
        std::string menu;      // the topic menu shown again on Exit
        std::uint32_t theme;   // the screen's background colour
    };

    DrillFrame(App &app, Look look);

    void onOpened() override;
    void onClick(const std::string &name, int index) override;
    void onKeyPress(const std::string &name, int index, int &key) override;
    void onTimer(const std::string &name) override;

    // The tolerance of answers that may have decimals: equal, or within 0.01 (one-decimal sums
    // held as doubles are not exact).
    static bool closeEnough(double expected, double typed);

protected:
    // Draws the next question and writes it to the labels of the sum.
    virtual void showQuestion(Draws &draws) = 0;
    // Whether the typed number answers the question on show.
    virtual bool isRight(double typed) const = 0;
    // The best-time slot of the current run, or nullptr when the options select none.
    virtual Value *bestSlot() = 0;

    // The number a label shows (answers are checked against what the pupil sees).
    double shown(std::string_view name) const;
    // Shows a number as its plain decimal text.
    void show(std::string_view name, double value);

    // The slot a table of slots names at an index, or nullptr for an index of -1 (no slot).
    template<class Table> Value *slotIn(const Table &slots, int i)
    {
        return i < 0 ? nullptr : &(progress().*slots[i]);
    }
    template<class Table> Value *slotIn(const Table &slots, int row, int column)
    {
        return row < 0 || column < 0 ? nullptr : &(progress().*slots[row][column]);
    }

private:
    void start();
    void nextQuestion();
    void enter();
    void finish();

    Look look_;
    Draws draws_;
    TimedRun run_;
};

} // namespace nb
