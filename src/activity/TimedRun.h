#pragma once
// The timed run every timed activity shares: Start begins it, a one-second stopwatch counts up,
// a wrong entry adds a penalty, each finished question scores a point, and after the last
// question the stopwatch stops and the best-time check compares the time with the pupil's best.
// The run keeps its seconds and score as numbers and writes them into the screen's labels; it
// never reads a caption back.
#include "core/Value.h"

#include <string>

namespace nb {

struct Control;
class Platform;
class Screen;
struct PupilProgress;

class TimedRun
{
public:
    // The controls of the screen the run drives, by name.
    struct Names
    {
        std::string start = "Command11"; // disabled while a run is on
        std::string time = "time";       // the stopwatch label
        std::string score = "score";     // the score label
        std::string timer = "Timer1";    // the one-second timer
    };

    // `questions` is the length of a run. The named controls must exist on the screen by the
    // time the run is first used (a frame makes the run before it builds its controls).
    TimedRun(Screen &screen, Names names, int questions);
    TimedRun(const TimedRun &) = delete;
    TimedRun &operator=(const TimedRun &) = delete;

    // A new run: score and stopwatch at 0, the stopwatch running, Start disabled.
    void begin();
    // One second of the stopwatch (the timer's tick). Does nothing when no run is on.
    void tick();
    // Seconds added for a wrong entry.
    void penalty(int seconds = 2);
    // A finished question: the score goes up by one. True when that was the last question.
    bool scorePoint();
    // Stops the stopwatch; Start stays as it is (the closing question decides what comes next).
    void stop();
    // Stops the run and holds the best-time check on `slot` (nullptr: no slot): the closing
    // message, a first or faster time stored, "Do you want another go ?". Returns the reply.
    int finish(Platform &platform, PupilProgress &progress, Value *slot);

    bool running() const { return running_; }
    int seconds() const { return seconds_; }
    int score() const { return score_; }
    int questions() const { return questions_; }

private:
    void render();
    // The named controls, looked up once on first use.
    void bind();

    Screen &screen_;
    Names names_;
    Control *start_ = nullptr;
    Control *time_ = nullptr;
    Control *scoreLabel_ = nullptr;
    Control *timer_ = nullptr;
    int questions_;
    int seconds_ = 0;
    int score_ = 0;
    bool running_ = false;
};

} // namespace nb
