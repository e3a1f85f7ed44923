#pragma once
// A loosely typed value as kept in the pupil's progress: it remembers which kind of number or text
// it last held, so a record file can write it back with the same type tag it was read with.
#include <cstdint>
#include <string>
#include <variant>

namespace nb {

enum class ValueTag : std::uint16_t {
    Empty = 0,
    Int16 = 2,
    Int32 = 3,
    Float = 4,
    Double = 5,
    Text = 8,
};

class Value
{
public:
    Value() = default;

    static Value int16(std::int16_t v) { return Value(ValueTag::Int16, Payload(std::int32_t(v))); }
    static Value int32(std::int32_t v) { return Value(ValueTag::Int32, Payload(v)); }
    static Value single(float v) { return Value(ValueTag::Float, Payload(double(v))); }
    static Value real(double v) { return Value(ValueTag::Double, Payload(v)); }
    static Value text(std::string v) { return Value(ValueTag::Text, Payload(std::move(v))); }

    ValueTag tag() const { return tag_; }
    bool isEmpty() const { return tag_ == ValueTag::Empty; }
    bool isText() const { return tag_ == ValueTag::Text; }

    // Numeric value: empty is 0, text reads as its leading number.
    double number() const;
    // Whole-number view, rounded to nearest (halves to even, as the stored integers were).
    std::int32_t whole() const;
    // Display text: empty is "", numbers in their plain decimal text, text as it is.
    std::string str() const;

    std::int16_t asInt16() const { return std::int16_t(std::get<std::int32_t>(data_)); }
    std::int32_t asInt32() const { return std::get<std::int32_t>(data_); }
    float asFloat() const { return float(std::get<double>(data_)); }
    double asDouble() const { return std::get<double>(data_); }
    const std::string &asText() const { return std::get<std::string>(data_); }

    // Empty equals 0 and "" alike; numbers compare by value; text compares as text.
    bool operator==(const Value &other) const;
    bool equalsNumber(double v) const { return !isText() && number() == v; }

private:
    using Payload = std::variant<std::monostate, std::int32_t, double, std::string>;
    Value(ValueTag tag, Payload data)
        : tag_(tag)
        , data_(std::move(data))
    {}

    ValueTag tag_ = ValueTag::Empty;
    Payload data_;
};

} // namespace nb
