#include "core/NumberText.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace nb {

double readNumber(std::string_view text)
{
    std::size_t i = 0;
    const std::size_t n = text.size();
    while (i < n && (text[i] == ' ' || text[i] == '\t'))
        ++i;
    std::string digits;
    if (i < n && (text[i] == '+' || text[i] == '-'))
        digits += text[i++];
    bool any = false;
    while (i < n && text[i] >= '0' && text[i] <= '9') {
        digits += text[i++];
        any = true;
    }
    if (i < n && text[i] == '.') {
        digits += text[i++];
        while (i < n && text[i] >= '0' && text[i] <= '9') {
            digits += text[i++];
            any = true;
        }
    }
    if (!any)
        return 0.0;
    if (i < n && (text[i] == 'e' || text[i] == 'E')) {
        std::size_t j = i + 1;
        std::string exp = "e";
        if (j < n && (text[j] == '+' || text[j] == '-'))
            exp += text[j++];
        bool expDigits = false;
        while (j < n && text[j] >= '0' && text[j] <= '9' && exp.size() < 8) {
            exp += text[j++];
            expDigits = true;
        }
        if (expDigits)
            digits += exp;
    }
    double v = std::strtod(digits.c_str(), nullptr);
    if (!std::isfinite(v))
        return 0.0;
    return v == 0.0 ? 0.0 : v;
}

std::string numberText(double value)
{
    if (value == 0.0 || std::isnan(value))
        return "0";
    char buf[64];
    std::snprintf(buf, sizeof buf, "%.15g", value);
    std::string s(buf);
    for (char &c : s)
        if (c == 'e')
            c = 'E';
    return s;
}

bool isCleanNumberText(std::string_view text)
{
    return text == numberText(readNumber(text));
}

long long roundHalfEven(double v)
{
    if (!std::isfinite(v))
        return 0;
    return std::llrint(v); // default rounding mode is to nearest, ties to even
}

} // namespace nb
