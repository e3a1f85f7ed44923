#pragma once
// The input rules shared by the window and the test driver, so that model tests exercise the same
// rules a pupil meets: what a click does to a check box or option button before the screen hears
// of it, and what a key that the screen let through does to a box's text.
#include "core/Control.h"

#include <deque>

#include <string>

namespace nb {

// A click on a check box turns it over; a click on an option button chooses it (and, in a
// control array, un-chooses the other members). Other controls are left alone.
void applyClick(std::deque<Control> &controls, Control &clicked);

// Puts a key the screen let through into a text box: Backspace removes the last character (a
// whole UTF-8 sequence), a printable character is added unless the box is full or read-only.
// Returns whether the text changed.
bool applyKey(Control &box, int key);

// The number of characters (not bytes) of a UTF-8 text.
std::size_t utf8Length(const std::string &text);

// UTF-8 text of one character code.
std::string utf8(int code);

} // namespace nb
