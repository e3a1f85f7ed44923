#pragma once
// The two number-and-text rules every screen shares: how the text of a box reads as a number, and
// how a number is written as text.
#include <string>
#include <string_view>

namespace nb {

// The leading number of a text: leading blanks are skipped, then an optional sign, digits, an
// optional decimal point with more digits and an optional exponent. Text that does not begin with
// a number reads as 0.
double readNumber(std::string_view text);

// The plain decimal text of a number: digits, "-" for negatives, "." as the point, no thousands
// separators and no trailing zeros; at most 15 significant digits so that 0.1 + 0.2 shows as 0.3.
std::string numberText(double value);

// A number with at most `significant` significant digits, as printf's %g writes it but always
// with "." as the point, whatever the locale.
std::string generalText(double value, int significant);

// True when the text is exactly the plain decimal text of the number it reads as, or is exactly
// "0" for zero: the test every answer box applies before it accepts an entry.
bool isCleanNumberText(std::string_view text);

// Round to the nearest whole number, halves to even (the rule for storing a number in an integer).
long long roundHalfEven(double v);

} // namespace nb
