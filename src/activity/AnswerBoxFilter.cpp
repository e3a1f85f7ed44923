#include "activity/AnswerBoxFilter.h"

#include "core/NumberText.h"

#include <algorithm>

namespace nb {

std::optional<std::int16_t> filterAnswerKey(std::string &text, double reference, int key)
{
    const double value = readNumber(text);
    if (reference > 0 && numberText(value) != text) {
        text.clear();
        return std::nullopt;
    }
    // Empty or not a number (also "0.0" and "-0"): only the plain "0" stands for zero.
    if (text != "0" && value == 0) {
        text.clear();
        return std::nullopt;
    }
    if (key != kEnterKey)
        return std::nullopt;
    // Numbers beyond the 16-bit range are held at its ends rather than wrapped.
    return std::int16_t(roundHalfEven(std::clamp(value, -32768.0, 32767.0)));
}

std::optional<std::int16_t> filterAnswerKey(std::string &text, int key)
{
    return filterAnswerKey(text, readNumber(text), key);
}

} // namespace nb
