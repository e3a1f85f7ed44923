#pragma once
// The search puzzle for one pupil: find kToPass pairs that make the targets before the
// 120-second clock runs out to pass the level; the highest level passed is kept in the
// SearchBest slot of the operation (SearchCaller 1 add, 2 take away, 3 times, 4 divide).
#include "puzzles/SearchFrame.h"

namespace nb {

class Value;

class Search : public SearchFrame
{
public:
    static constexpr int kToPass = 10;

    explicit Search(App &app);

    void onOpened() override;
    void onClick(const std::string &name, int index) override;

    int level() const { return level_; }
    int score() const { return score_; }

protected:
    void pairFound() override;
    void timeUp() override;

private:
    void begin();
    void passed();
    Value &best();

    int level_ = 1;
    int score_ = 0;
};

} // namespace nb
