#include "activity/BestTimeCheck.h"

#include "activity/Ask.h"
#include "core/NumberText.h"
#include "core/Platform.h"
#include "core/PupilProgress.h"

namespace nb {

void announceBestTime(Platform &platform, PupilProgress &progress, const Value *slot)
{
    if (!slot || !(slot->number() > 0))
        return;
    tell(platform, progress, "Your best time is " + slot->str() + " seconds.");
}

int bestTimeCheck(Platform &platform, PupilProgress &progress, Value *slot, double seconds,
                  int questions)
{
    std::string msg = "You completed " + std::to_string(questions) + " questions in " +
                      numberText(seconds) + " seconds.";
    const double t = seconds;
    if (slot) {
        const double best = slot->number();
        if (best == 0 || t < best) {
            if (best != 0)
                msg += " You have beaten your best time!!! ";
            *slot = Value::real(t);
        }
    }
    msg += "Do you want another go ?";
    return ask(platform, progress, msg);
}

} // namespace nb

namespace nb {

int flagBit(const Value &flag)
{
    if (flag.equalsNumber(1))
        return 1;
    return flag.equalsNumber(0) ? 0 : -1;
}

int optionFamily(const Value &negatives, const Value &decimals)
{
    const int neg = flagBit(negatives);
    const int dec = flagBit(decimals);
    return neg < 0 || dec < 0 ? -1 : neg + 2 * dec;
}

int levelIndex(const Value &level, int levels)
{
    for (int n = 1; n <= levels; ++n)
        if (level.equalsNumber(n))
            return n - 1;
    return -1;
}

} // namespace nb
