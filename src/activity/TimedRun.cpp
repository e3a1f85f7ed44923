#include "activity/TimedRun.h"

#include "activity/BestTimeCheck.h"
#include "core/Control.h"
#include "core/NumberText.h"
#include "core/Screen.h"

namespace nb {

TimedRun::TimedRun(Screen &screen, Names names, int questions)
    : screen_(screen)
    , names_(std::move(names))
    , questions_(questions)
{}

void TimedRun::bind()
{
    if (start_)
        return;
    start_ = &screen_.ctl(names_.start);
    time_ = &screen_.ctl(names_.time);
    scoreLabel_ = &screen_.ctl(names_.score);
    timer_ = &screen_.ctl(names_.timer);
}

void TimedRun::render()
{
    bind();
    time_->caption = numberText(seconds_);
    scoreLabel_->caption = numberText(score_);
}

void TimedRun::begin()
{
    seconds_ = 0;
    score_ = 0;
    running_ = true;
    render();
    start_->enabled = false;
    timer_->timerOn = true;
}

void TimedRun::tick()
{
    if (!running_)
        return;
    ++seconds_;
    render();
}

void TimedRun::penalty(int seconds)
{
    if (!running_)
        return;
    seconds_ += seconds;
    render();
}

bool TimedRun::scorePoint()
{
    if (!running_)
        return false;
    ++score_;
    render();
    return score_ >= questions_;
}

void TimedRun::stop()
{
    running_ = false;
    bind();
    timer_->timerOn = false;
}

int TimedRun::finish(Platform &platform, PupilProgress &progress, Value *slot)
{
    stop();
    return bestTimeCheck(platform, progress, slot, seconds_, questions_);
}

} // namespace nb
