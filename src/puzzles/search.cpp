#include "puzzles/search.h"

#include "core/Platform.h"
#include "core/PupilProgress.h"

#include <algorithm>

namespace nb {

namespace {
std::string pairs(int n)
{
    return std::to_string(n) + (n == 1 ? " pair" : " pairs");
}
} // namespace

Search::Search(App &app)
    : SearchFrame(app)
{
    const int x = kPanelLeft, w = kPanelWidth;
    textLabel("levellabel", "Level", x + 100, 1500, 1900, 650);
    valueLabel("level", x + 2150, 1400, 1400, 850, rgb(200, 40, 40)).caption = "1";
    textLabel("timelabel", "Time left", x + 100, 2600, 1900, 650);
    valueLabel("time", x + 2150, 2500, 1400, 850, rgb(30, 60, 140)).caption =
        std::to_string(kSeconds);
    textLabel("scorelabel", "Found", x + 100, 3700, 1900, 650);
    valueLabel("score", x + 2150, 3600, 1400, 850, rgb(40, 130, 40)).caption = "0";
    Control &need = textLabel("need",
                              "Find " + std::to_string(kToPass) +
                                  " pairs before the time runs out to pass the level.",
                              x, 4800, w, 1300);
    need.font.points = 15;
    need.align = Align::Center;

    Control &start = button("start", "START", x + 100, 7600, 1750, 950);
    start.font.points = 22;
    start.font.bold = true;
    start.backColor = rgb(120, 220, 120);
    Control &exit = button("exit", "EXIT", x + 2000, 7600, 1550, 950);
    exit.font.points = 22;
    exit.font.bold = true;
    exit.backColor = rgb(250, 150, 150);
    setFocus("start");
}

Value &Search::best()
{
    PupilProgress &p = progress();
    Value *slots[] = {&p.SearchBest1, &p.SearchBest2, &p.SearchBest3, &p.SearchBest4};
    return *slots[caller() - 1];
}

void Search::onOpened()
{
    const int reached = int(best().number());
    if (reached > 0) {
        const int next = std::min(reached + 1, SearchBoard::kLevels);
        if (ask("You have reached level " + std::to_string(next) +
                " before, would you like to go straight to this level now?") == kYes)
            level_ = next;
    }
    caption("level") = std::to_string(level_);
}

void Search::onClick(const std::string &name, int)
{
    if (name == "start" && !running()) {
        begin();
    } else if (name == "exit") {
        leave();
    }
}

void Search::begin()
{
    score_ = 0;
    caption("score") = "0";
    caption("level") = std::to_string(level_);
    setEnabled("start", false);
    beginRound(level_);
}

void Search::pairFound()
{
    caption("score") = std::to_string(++score_);
    if (score_ >= kToPass) {
        stopRound();
        passed();
    }
}

void Search::passed()
{
    // The highest level passed is kept; an easier level passed later does not lower it.
    Value &slot = best();
    if (level_ > int(slot.number()))
        slot = Value::int16(std::int16_t(level_));
    const std::string found = "Well done, you found " + pairs(score_) + " in " +
                              std::to_string(kSeconds - secondsLeft()) +
                              " seconds and passed level " + std::to_string(level_);
    if (level_ < SearchBoard::kLevels) {
        if (ask(found + ". Do you want to try the next level ?") != kYes)
            return leave();
        ++level_;
    } else if (ask(found + ", the top level. Do you want another go ?") != kYes) {
        return leave();
    }
    begin();
}

void Search::timeUp()
{
    if (ask("Time is up. You found " + pairs(score_) + "; you need " + std::to_string(kToPass) +
            " to pass level " + std::to_string(level_) + ". Do you want another go ?") != kYes)
        return leave();
    begin();
}

} // namespace nb
