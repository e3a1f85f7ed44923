#include "core/NumberText.h"

#include <charconv>
#include <cmath>

namespace nb {

std::string generalText(double value, int significant)
{
    // to_chars writes "." as the point whatever the locale (printf would follow LC_NUMERIC).
    char buf[64];
    const auto [end, ec] =
        std::to_chars(buf, buf + sizeof buf, value, std::chars_format::general, significant);
    return ec == std::errc() ? std::string(buf, end) : std::string("0");
}

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
    // from_chars reads "." as the point whatever the locale; it takes no leading "+".
    const char *first = digits.data();
    const char *last = digits.data() + digits.size();
    if (first != last && *first == '+')
        ++first;
    double v = 0.0;
    const auto [end, ec] = std::from_chars(first, last, v);
    (void)end;
    if (ec != std::errc() || !std::isfinite(v)) // out of range reads as 0, like no number
        return 0.0;
    return v == 0.0 ? 0.0 : v;
}

std::string numberText(double value)
{
    if (value == 0.0 || std::isnan(value))
        return "0";
    std::string s = generalText(value, 15);
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
