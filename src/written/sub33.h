#pragma once
// Column subtraction of a three-digit number from a larger one by exchange. Where a top digit is
// smaller than the one under it, the pupil clicks the top digit to its left to exchange: that
// digit is rewritten one less above its column and a small "1" goes in front of the digit that
// received. Five questions against the stopwatch.
#include "written/WrittenFrame.h"

namespace nb {

class Sub33 : public WrittenFrame
{
public:
    explicit Sub33(App &app);

protected:
    void newQuestion() override;
    void submit(const std::string &box, int value) override;
    void onPageClick(const std::string &name, int index) override;

private:
    void showStep();
    // The top digit the pupil must click before the active column can be answered, if any.
    const char *digitToClick() const;
    // Marks that digit and says in the hint what to do; with none, both go quiet.
    void pointAt(const char *digit);
    void checkStep();
    // Label2: a ten into the units. Label1: a hundred into the tens.
    void exchangeIntoUnits();
    void exchangeIntoTens();
    // Shows a rewritten digit or a small "1".
    void write(const char *label, int value);
    // The top units and tens as they stand after the exchanges made so far.
    int unitsNow() const { return topUnits_ + 10 * exchangedFromTens_; }
    int tensNow() const { return topTens_ - exchangedFromTens_ + 10 * exchangedFromHundreds_; }

    int topHundreds_ = 0, topTens_ = 0, topUnits_ = 0;
    int bottomHundreds_ = 0, bottomTens_ = 0, bottomUnits_ = 0;
    int difference_ = 0;
    int answerWidth_ = 0; // digits in the answer, set with each question
    int unitsEntered_ = 0, tensEntered_ = 0, hundredsEntered_ = 0;
    int step_ = 1; // 1 units, 2 tens, 3 hundreds
    int exchangedFromTens_ = 0;
    int exchangedFromHundreds_ = 0;
};

} // namespace nb
