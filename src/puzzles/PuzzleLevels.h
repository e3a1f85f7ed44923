#pragma once
// The level rules the search and perfection puzzles share: the highest level passed is kept in
// the pupil's slot, a returning pupil is offered the level after it, and a pass offers the next
// level (or, at the top level, another go there).
#include <string>

namespace nb {

class Platform;
class Value;
struct PupilProgress;

// The level to start on: 1, or with levels passed before and a Yes to the offer, the next one
// (held to `top`).
int offerLevel(Platform &platform, PupilProgress &progress, const Value &best, int top);

// `level` has been passed: it is kept in `best` unless a higher one is there, and the pupil is
// asked `praise` + the offer. Returns the level to play next, or 0 when the pupil says No.
int levelPassed(Platform &platform, PupilProgress &progress, Value &best, int level, int top,
                const std::string &praise);

} // namespace nb
