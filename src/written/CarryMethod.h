#pragma once
// The column method with carry boxes, shared by column addition and short multiplication. The
// answer is filled in from the units up, one box at a time; when a column's total is 10 or more,
// the carry is written in a small box under the next column before that column is answered.
//
// Steps: 1 units (Text11), 2 carry into the tens (Text15), 3 tens (Text12), 4 carry into the
// hundreds (Text16), 5 hundreds (Text13), 6 thousands (Text14). A carry step is asked only when
// its column carries, the thousands only when the hundreds carry.
#include "written/WrittenFrame.h"

namespace nb {

class CarryMethod : public WrittenFrame
{
protected:
    using WrittenFrame::WrittenFrame;

    // The answer row with its rules, and the carry boxes in the row under it. Without
    // `toThousands` the answer stops at the hundreds and only the tens have a carry box.
    void buildAnswerRows(int answerRow, bool toThousands);
    // Starts a question whose column totals (sums or products of the digits) are given.
    void beginQuestion(int unitsTotal, int tensTotal, int hundredsTotal);
    // Shows the boxes of the current step, the active one yellow and the only one taking input.
    void showStep();
    // Checks the entry of the current step; one Enter moves on at most one step.
    virtual void checkStep();
    // Steps 1 and 2, the same on every screen of this kind.
    void checkUnitsColumn();

    void submit(const std::string &box, int value) override;

    // A right entry: beep and go on to `next`.
    void moveTo(int next);
    // A right entry that completes the question: `box` stops taking input and every box turns
    // idle.
    void completeWith(const char *box);
    // A wrong entry: the step's box is emptied, two seconds are added, the step stays.
    void miss();

    // The value last entered in each box; each box writes only its own.
    struct Entered
    {
        int units = 0, tens = 0, hundreds = 0, thousands = 0;
        int carryToTens = 0, carryToHundreds = 0;
    };
    Entered entered_;
    int step_ = 1;
    int unitsTotal_ = 0, tensTotal_ = 0, hundredsTotal_ = 0;
    // Digits in the answer: set with each question.
    int answerWidth_ = 0;

private:
    bool carryToTensShown_ = false;
    bool carryToHundredsShown_ = false;
};

} // namespace nb
