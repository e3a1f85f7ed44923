#pragma once
// What the achievements screen lists: one row per activity with up to four best-time slots (one
// per option: normal, negatives, decimals, both) or one level. The achievements screen and the
// class overview both read it, so a slot has the same name and wording everywhere.
#include "core/PupilProgress.h"

#include <array>
#include <string>
#include <vector>

namespace nb {

struct AchievementRow
{
    const char *label;   // the achievements screen's value label (an array when several)
    const char *caption; // the activity's name
    std::array<Value PupilProgress::*, 4> fields; // one per option column; unused ones null
    bool level = false;                           // shown as "level" + value

    int members() const;
};

// Every row, in the order the achievements screen fills them.
const std::vector<AchievementRow> &achievementRows();
// The rows shown in the screen's first column; the rest fill the second.
constexpr int kFirstColumnRows = 18;

// The option columns: "Normal", "Negatives", "Decimals", "Negatives  + decimals".
extern const char *const kOptionColumnNames[4];

// How a slot's value reads: "" when there is no result (empty or 0), else the value as plain
// decimal text, with "level" before it on level rows ("level3").
std::string achievementText(const Value &value, bool level);

// One slot of one activity, named as a column heading: the caption, and for rows with several
// slots " / " and the option ("Addition 1 / Negatives").
struct AchievementSlot
{
    std::string heading;
    Value PupilProgress::*field;
    bool level;
};
const std::vector<AchievementSlot> &achievementSlots();

} // namespace nb
