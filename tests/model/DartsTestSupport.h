#pragma once
// What every darts test does as a pupil: sets the wobble and reads a dart's score off the screen.
#include "support/Driver.h"

#include <map>
#include <string>

namespace nb::test {

inline void setWobble(Driver &d, int value)
{
    d.front().ctl("scroller").value = value;
    d.app.change(d.front(), "scroller");
}

// The dart on show: its number times what its bed counts for.
inline int shownScore(Driver &d)
{
    static const std::map<std::string, int> times = {
        {"Single", 1}, {"Double", 2}, {"Treble", 3},         {"Quad", 4},
        {"Bull", 1},   {"Missed", 0}, {"Outer bullseye", 1},
    };
    const std::string n = d.caption("text2");
    return times.at(d.caption("text1")) * (n.empty() ? 0 : std::stoi(n));
}

} // namespace nb::test
