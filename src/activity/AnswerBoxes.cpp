#include "activity/AnswerBoxes.h"

#include "core/Screen.h"

#include <algorithm>

namespace nb {

bool AnswerBoxes::contains(std::string_view name, int index) const
{
    return std::any_of(boxes_.begin(), boxes_.end(),
                       [&](const auto &b) { return b.first == name && b.second == index; });
}

void AnswerBoxes::clear(Screen &screen) const
{
    for (const auto &[name, index] : boxes_)
        screen.ctl(name, index).caption.clear();
}

} // namespace nb
