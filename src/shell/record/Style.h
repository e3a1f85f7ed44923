#pragma once
// The look shared by the record screens and the achievements screen.
#include "core/Control.h"

namespace nb {

// A large bold button in a friendly colour.
inline Control &bigButton(Control &c, std::uint32_t color)
{
    c.font.points = 16;
    c.font.bold = true;
    c.backColor = color;
    return c;
}

// A list, drop-down list or box with a name screen readers speak.
inline Control &spoken(Control &c, const char *name, double points = 14)
{
    c.font.points = points;
    c.spokenName = name;
    return c;
}

} // namespace nb
