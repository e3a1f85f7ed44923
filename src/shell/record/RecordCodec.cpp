#include "shell/record/RecordCodec.h"

#include "shell/record/CodePage.h"

#include <bit>
#include <cstdint>

namespace nb::record {

namespace {

void put16(std::string &out, std::uint16_t v)
{
    out += char(v & 0xFF);
    out += char(v >> 8);
}

void put32(std::string &out, std::uint32_t v)
{
    for (int i = 0; i < 4; ++i)
        out += char((v >> (8 * i)) & 0xFF);
}

void put64(std::string &out, std::uint64_t v)
{
    for (int i = 0; i < 8; ++i)
        out += char((v >> (8 * i)) & 0xFF);
}

std::uint64_t getLE(std::string_view bytes, std::size_t at, int size)
{
    std::uint64_t v = 0;
    for (int i = size - 1; i >= 0; --i)
        v = (v << 8) | static_cast<unsigned char>(bytes[at + std::size_t(i)]);
    return v;
}

// The file bytes of a text, cut to at most kMaxTextBytes without splitting a character. A name
// that long can only come from a paste gone wrong; refusing to save it would cost the pupil every
// best time of the run (the name cannot be changed once given), so its start is kept.
std::string fittedTextBytes(const std::string &text)
{
    std::string bytes = textToFileBytes(text);
    if (bytes.size() <= kMaxTextBytes)
        return bytes;
    if (bytes != text) { // code-page bytes, one a character
        bytes.resize(kMaxTextBytes);
        if (!isMultibyteUtf8(bytes)) // still reads back as the code page
            return bytes;
    }
    // Cut as UTF-8; the code-page form of the shorter text is never longer.
    std::size_t cut = kMaxTextBytes;
    while (cut > 0 && (static_cast<unsigned char>(text[cut]) & 0xC0) == 0x80)
        --cut;
    return textToFileBytes(std::string_view(text).substr(0, cut));
}

std::string valueText(std::size_t position)
{
    return "value " + std::to_string(position + 1) + " of " +
           std::to_string(PupilProgress::kRecordFieldCount);
}

} // namespace

Values valuesOf(const PupilProgress &progress)
{
    Values values;
    const auto &fields = PupilProgress::recordFields();
    for (std::size_t i = 0; i < fields.size(); ++i)
        values[i] = progress.*fields[i].member;
    return values;
}

void store(const Values &values, PupilProgress &progress)
{
    const auto &fields = PupilProgress::recordFields();
    for (std::size_t i = 0; i < fields.size(); ++i)
        progress.*fields[i].member = values[i];
}

std::string encode(const Values &values)
{
    std::string out;
    out.reserve(values.size() * 10);
    for (const Value &v : values) {
        put16(out, static_cast<std::uint16_t>(v.tag()));
        switch (v.tag()) {
        case ValueTag::Empty:
            break;
        case ValueTag::Int16:
            put16(out, static_cast<std::uint16_t>(v.asInt16()));
            break;
        case ValueTag::Int32:
            put32(out, static_cast<std::uint32_t>(v.asInt32()));
            break;
        case ValueTag::Float:
            put32(out, std::bit_cast<std::uint32_t>(v.asFloat()));
            break;
        case ValueTag::Double:
            put64(out, std::bit_cast<std::uint64_t>(v.asDouble()));
            break;
        case ValueTag::Text: {
            const std::string bytes = fittedTextBytes(v.asText());
            put16(out, static_cast<std::uint16_t>(bytes.size()));
            out += bytes;
            break;
        }
        }
    }
    return out;
}

Decoded decode(std::string_view bytes)
{
    Decoded result;
    Values values;
    std::size_t at = 0;
    const auto fail = [&](std::string why) {
        result.error = std::move(why);
        result.length = at;
        return result;
    };
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (bytes.size() - at < 2)
            return fail("it ends part-way through " + valueText(i));
        const auto tag = static_cast<std::uint16_t>(getLE(bytes, at, 2));
        at += 2;
        int size = 0;
        switch (static_cast<ValueTag>(tag)) {
        case ValueTag::Empty:
            break;
        case ValueTag::Int16:
            size = 2;
            break;
        case ValueTag::Int32:
        case ValueTag::Float:
            size = 4;
            break;
        case ValueTag::Double:
            size = 8;
            break;
        case ValueTag::Text:
            size = 2;
            break;
        default:
            return fail(valueText(i) + " is of an unknown type (" + std::to_string(tag) + ")");
        }
        if (bytes.size() - at < std::size_t(size))
            return fail("it ends part-way through " + valueText(i));
        const std::uint64_t raw = getLE(bytes, at, size);
        at += std::size_t(size);
        switch (static_cast<ValueTag>(tag)) {
        case ValueTag::Empty:
            values[i] = Value();
            break;
        case ValueTag::Int16:
            values[i] = Value::int16(static_cast<std::int16_t>(raw));
            break;
        case ValueTag::Int32:
            values[i] = Value::int32(static_cast<std::int32_t>(raw));
            break;
        case ValueTag::Float:
            values[i] = Value::single(std::bit_cast<float>(static_cast<std::uint32_t>(raw)));
            break;
        case ValueTag::Double:
            values[i] = Value::real(std::bit_cast<double>(raw));
            break;
        case ValueTag::Text:
            if (bytes.size() - at < raw)
                return fail("the text of " + valueText(i) + " runs past the end of the file");
            values[i] = Value::text(fileBytesToText(bytes.substr(at, raw)));
            at += raw;
            break;
        }
    }
    result.values = std::move(values);
    result.length = at;
    return result;
}

} // namespace nb::record
