#include "core/Value.h"

#include "core/NumberText.h"

#include <limits>

namespace nb {

double Value::number() const
{
    switch (tag_) {
    case ValueTag::Empty:
        return 0.0;
    case ValueTag::Int16:
    case ValueTag::Int32:
        return std::get<std::int32_t>(data_);
    case ValueTag::Float:
    case ValueTag::Double:
        return std::get<double>(data_);
    case ValueTag::Text:
        return readNumber(std::get<std::string>(data_));
    }
    return 0.0;
}

std::int32_t Value::whole() const
{
    const long long r = roundHalfEven(number());
    if (r > std::numeric_limits<std::int32_t>::max())
        return std::numeric_limits<std::int32_t>::max();
    if (r < std::numeric_limits<std::int32_t>::min())
        return std::numeric_limits<std::int32_t>::min();
    return std::int32_t(r);
}

std::string Value::str() const
{
    switch (tag_) {
    case ValueTag::Empty:
        return {};
    case ValueTag::Text:
        return std::get<std::string>(data_);
    case ValueTag::Float: {
        // A single-precision number shows with the 7 digits it really holds.
        return numberText(readNumber(generalText(std::get<double>(data_), 7)));
    }
    default:
        return numberText(number());
    }
}

bool Value::operator==(const Value &other) const
{
    const bool textish = isText() || other.isText();
    if (textish) {
        if ((isText() || isEmpty()) && (other.isText() || other.isEmpty()))
            return str() == other.str();
    }
    return number() == other.number();
}

} // namespace nb
