#pragma once
// The end-of-run comparison of the elapsed time with the pupil's best, shared by every timed
// activity, and the announcement of the stored best when a timed screen opens.
#include "core/Value.h"

#include <string>

namespace nb {

class Platform;
struct PupilProgress;

// When the slot holds a best time (> 0), show "Your best time is <best> seconds.".
// A null slot (no slot for the chosen options) announces nothing.
void announceBestTime(Platform &platform, PupilProgress &progress, const Value *slot);

// Ends a run of `questions` questions that took the time shown as `timeText`: builds the
// closing message, stores a first or faster time in the slot (an equal time is not a new best),
// asks "Do you want another go ?" and returns the reply (kYes or kNo), also kept in MessageReply.
// A null slot stores nothing and praises nothing.
int bestTimeCheck(Platform &platform, PupilProgress &progress, Value *slot,
                  const std::string &timeText, int questions);

} // namespace nb
