#pragma once
// Reads a snap card's calculation ("6 x 8", "29 - 5", "72 ÷ 3") the way a pupil would work it out,
// independently of how the deck made it: nullopt for anything that is not one whole-number
// operation with a whole-number answer.
#include <optional>
#include <string>

namespace nb::test {

inline std::optional<long> wholeOf(const std::string &s)
{
    if (s.empty() || s.size() > 9 || s.find_first_not_of("0123456789") != std::string::npos ||
        (s.size() > 1 && s[0] == '0'))
        return std::nullopt;
    return std::stol(s);
}

inline std::optional<long> captionValue(const std::string &caption)
{
    const auto first = caption.find(' ');
    const auto last = caption.rfind(' ');
    if (first == std::string::npos || first == last)
        return std::nullopt;
    const auto a = wholeOf(caption.substr(0, first));
    const auto b = wholeOf(caption.substr(last + 1));
    const std::string op = caption.substr(first + 1, last - first - 1);
    if (!a || !b)
        return std::nullopt;
    if (op == "x")
        return *a * *b;
    if (op == "+")
        return *a + *b;
    if (op == "-")
        return *a - *b;
    if (op == "\u00F7" && *b != 0 && *a % *b == 0)
        return *a / *b;
    return std::nullopt;
}

} // namespace nb::test
