#include "puzzles/PuzzleLevels.h"

#include "activity/Ask.h"
#include "core/Platform.h"
#include "core/PupilProgress.h"

#include <algorithm>

namespace nb {

int offerLevel(Platform &platform, PupilProgress &progress, const Value &best, int top)
{
    const int reached = int(best.number());
    if (reached <= 0)
        return 1;
    const int next = std::min(reached + 1, top);
    const int reply = ask(platform, progress,
                          "You have reached level " + std::to_string(next) +
                              " before, would you like to go straight to this level now?");
    return reply == kYes ? next : 1;
}

int levelPassed(Platform &platform, PupilProgress &progress, Value &best, int level, int top,
                const std::string &praise)
{
    // An easier level passed later does not lower the level kept.
    if (level > int(best.number()))
        best = Value::int16(std::int16_t(level));
    if (level < top)
        return ask(platform, progress, praise + ". Do you want to try the next level ?") == kYes
                   ? level + 1
                   : 0;
    return ask(platform, progress, praise + ", the top level. Do you want another go ?") == kYes
               ? level
               : 0;
}

} // namespace nb
