#include "puzzles/search.h"

#include "core/Platform.h"
#include "core/PupilProgress.h"
#include "puzzles/PuzzleLevels.h"

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

    startAndExit();
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
    level_ = offerLevel(platform(), progress(), best(), SearchBoard::kLevels);
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
    level_ = levelPassed(platform(), progress(), best(), level_, SearchBoard::kLevels,
                         "Well done, you found " + pairs(score_) + " in " +
                             std::to_string(kSeconds - secondsLeft()) +
                             " seconds and passed level " + std::to_string(level_));
    if (level_ == 0)
        return leave();
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
