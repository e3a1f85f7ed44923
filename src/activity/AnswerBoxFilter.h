#pragma once
// The rule every answer box of the written methods applies to each key, on the box text as it
// stands before the key goes in: badly formed text is emptied (the key then goes into the empty
// box), and an Enter on acceptable text submits the text as a whole number.
#include <cstdint>
#include <optional>
#include <string>

namespace nb {

constexpr int kEnterKey = 13;

// `reference` decides whether the text must be written exactly as its number (05, 5., 5a and
// " 5" are not): the check applies only when the reference is above 0. Normally the reference is
// the box's own text read as a number (see the overload below). Returns the submitted value when
// the key is Enter and the text survives; the value is rounded to a 16-bit whole number.
std::optional<std::int16_t> filterAnswerKey(std::string &text, double reference, int key);

// The usual form: the box's own text is the reference.
std::optional<std::int16_t> filterAnswerKey(std::string &text, int key);

} // namespace nb
