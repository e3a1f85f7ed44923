#pragma once
// The end-of-run comparison of the elapsed time with the pupil's best, shared by every timed
// activity, the announcement of the stored best when a timed screen opens, and the rule that
// picks a run's best-time slot from its level and option flags.
#include "core/Value.h"

#include <string>

namespace nb {

class Platform;
struct PupilProgress;

// When the slot holds a best time (> 0), show "Your best time is <best> seconds.".
// A null slot (no slot for the chosen options) announces nothing.
void announceBestTime(Platform &platform, PupilProgress &progress, const Value *slot);

// Ends a run of `questions` questions that took `seconds`: builds the
// closing message, stores a first or faster time in the slot (an equal time is not a new best),
// asks "Do you want another go ?" and returns the reply (kYes or kNo), also kept in MessageReply.
// A null slot stores nothing and praises nothing.
int bestTimeCheck(Platform &platform, PupilProgress &progress, Value *slot, double seconds,
                  int questions);

// Slot selection. A flag counts as set only when it equals 1 and as clear only when it equals 0
// (a flag never written is 0); a level counts only when it is a whole number in range. Anything
// else selects no slot, so nothing is announced and nothing is stored.

// 1 for a set flag, 0 for a clear one, -1 for any other value.
int flagBit(const Value &flag);
// The option family of a negatives and a decimals flag: 0 neither, 1 negatives only, 2 decimals
// only, 3 both; -1 when either flag is neither 0 nor 1.
int optionFamily(const Value &negatives, const Value &decimals);
// The level as an index from 0 when it equals 1..levels, else -1.
int levelIndex(const Value &level, int levels);

} // namespace nb
