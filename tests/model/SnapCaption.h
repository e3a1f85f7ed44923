#pragma once
// Works out a snap card's calculation ("6 x 8", "29 - 5", "72 ÷ 3") as a pupil would, independently
// of the deck: nullopt unless it is one operation on plain whole numbers with a whole answer.
#include <optional>
#include <regex>
#include <string>

namespace nb::test {

inline std::optional<long> captionValue(const std::string &caption)
{
    static const std::regex form("([1-9][0-9]{0,5}) (x|\\+|-|\u00F7) ([1-9][0-9]{0,5})");
    std::smatch m;
    if (!std::regex_match(caption, m, form))
        return std::nullopt;
    const long a = std::stol(m[1]), b = std::stol(m[3]);
    const std::string op = m[2];
    if (op == "x")
        return a * b;
    if (op == "+")
        return a + b;
    if (op == "-")
        return a - b;
    return a % b == 0 ? std::optional<long>(a / b) : std::nullopt;
}

} // namespace nb::test
