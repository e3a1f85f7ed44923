#include "shell/record/CodePage.h"

#include <array>

namespace nb::record {

namespace {

// Characters of the bytes 0x80 to 0x9F; the rest of the code page is Latin-1.
constexpr std::array<char32_t, 32> kHigh = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

// Reads one UTF-8 character at bytes[i]; returns its length, or 0 when the sequence is malformed.
std::size_t readUtf8(std::string_view bytes, std::size_t i, char32_t &cp)
{
    const auto b0 = static_cast<unsigned char>(bytes[i]);
    if (b0 < 0x80) {
        cp = b0;
        return 1;
    }
    std::size_t len;
    char32_t min;
    if (b0 >= 0xC2 && b0 <= 0xDF) {
        len = 2, min = 0x80, cp = b0 & 0x1F;
    } else if (b0 >= 0xE0 && b0 <= 0xEF) {
        len = 3, min = 0x800, cp = b0 & 0x0F;
    } else if (b0 >= 0xF0 && b0 <= 0xF4) {
        len = 4, min = 0x10000, cp = b0 & 0x07;
    } else {
        return 0;
    }
    if (bytes.size() - i < len)
        return 0;
    for (std::size_t k = 1; k < len; ++k) {
        const auto b = static_cast<unsigned char>(bytes[i + k]);
        if ((b & 0xC0) != 0x80)
            return 0;
        cp = (cp << 6) | (b & 0x3F);
    }
    if (cp < min || cp > 0x10FFFF || (cp >= 0xD800 && cp <= 0xDFFF))
        return 0;
    return len;
}

void appendUtf8(std::string &out, char32_t cp)
{
    if (cp < 0x80) {
        out += char(cp);
    } else if (cp < 0x800) {
        out += char(0xC0 | (cp >> 6));
        out += char(0x80 | (cp & 0x3F));
    } else {
        out += char(0xE0 | (cp >> 12));
        out += char(0x80 | ((cp >> 6) & 0x3F));
        out += char(0x80 | (cp & 0x3F));
    }
}

std::optional<unsigned char> cp1252Byte(char32_t cp)
{
    if (cp < 0x80 || (cp >= 0xA0 && cp <= 0xFF))
        return static_cast<unsigned char>(cp);
    for (std::size_t i = 0; i < kHigh.size(); ++i)
        if (kHigh[i] == cp)
            return static_cast<unsigned char>(0x80 + i);
    return std::nullopt;
}

// Scans the bytes as UTF-8: whether they are valid, and whether any character takes two or more.
bool scanUtf8(std::string_view bytes, bool &multibyte)
{
    multibyte = false;
    for (std::size_t i = 0; i < bytes.size();) {
        char32_t cp;
        const std::size_t len = readUtf8(bytes, i, cp);
        if (len == 0)
            return false;
        multibyte = multibyte || len > 1;
        i += len;
    }
    return true;
}

} // namespace

bool isValidUtf8(std::string_view bytes)
{
    bool multibyte;
    return scanUtf8(bytes, multibyte);
}

bool isMultibyteUtf8(std::string_view bytes)
{
    bool multibyte;
    return scanUtf8(bytes, multibyte) && multibyte;
}

std::string cp1252ToUtf8(std::string_view bytes)
{
    std::string out;
    out.reserve(bytes.size() * 2);
    for (char c : bytes) {
        const auto b = static_cast<unsigned char>(c);
        appendUtf8(out, b >= 0x80 && b < 0xA0 ? kHigh[b - 0x80] : char32_t(b));
    }
    return out;
}

std::optional<std::string> utf8ToCp1252(std::string_view text)
{
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size();) {
        char32_t cp;
        const std::size_t len = readUtf8(text, i, cp);
        if (len == 0)
            return std::nullopt;
        const std::optional<unsigned char> b = cp1252Byte(cp);
        if (!b)
            return std::nullopt;
        out += char(*b);
        i += len;
    }
    return out;
}

std::string textToFileBytes(std::string_view text)
{
    // Code-page bytes such as "Ã©" (C3 A9) are also valid UTF-8 and would read back as "é", so
    // such a text goes out as UTF-8, which reads back as itself.
    if (std::optional<std::string> single = utf8ToCp1252(text); single && !isMultibyteUtf8(*single))
        return *single;
    return std::string(text);
}

std::string fileBytesToText(std::string_view bytes)
{
    if (isMultibyteUtf8(bytes))
        return std::string(bytes);
    return cp1252ToUtf8(bytes);
}

} // namespace nb::record
