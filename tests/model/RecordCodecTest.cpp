// The record file format byte for byte: golden records built here from their parts, every tag in
// odd places, truncation at every byte, and names in and out of the Windows-1252 code page.
#include "shell/record/RecordCodec.h"
#include "activity/BestTimeCheck.h"
#include "shell/record/CodePage.h"
#include "support/Driver.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstring>
#include <limits>
#include <set>

namespace nb::test {
namespace {

using record::decode;
using record::encode;

// Little-endian record bytes, one tagged value at a time.
class Bytes
{
public:
    Bytes &empty() { return tag(0); }
    Bytes &i16(std::int16_t v) { return tag(2).le(std::uint16_t(v), 2); }
    Bytes &i32(std::int32_t v) { return tag(3).le(std::uint32_t(v), 4); }
    Bytes &f32(float v) { return tag(4).le(std::bit_cast<std::uint32_t>(v), 4); }
    Bytes &f64(double v) { return tag(5).le(std::bit_cast<std::uint64_t>(v), 8); }
    Bytes &text(const std::string &raw) { return tag(8).le(raw.size(), 2).raw(raw); }
    Bytes &tag(std::uint16_t t) { return le(t, 2); }
    Bytes &raw(const std::string &b)
    {
        s += b;
        return *this;
    }
    Bytes &le(std::uint64_t v, int n)
    {
        for (int i = 0; i < n; ++i)
            s += char((v >> (8 * i)) & 0xFF);
        return *this;
    }
    std::string s;
};

std::string hex(std::string_view b)
{
    static const char *digits = "0123456789ABCDEF";
    std::string out;
    for (unsigned char c : b) {
        out += digits[c >> 4];
        out += digits[c & 15];
        out += ' ';
    }
    return out;
}

TEST(RecordCodec, NewPupilWithOneDrillTime)
{
    Driver d;
    d.toMainMenu();
    d.newPupil("Ann");
    d.platform.queueNo();
    bestTimeCheck(d.platform, d.progress(), &d.progress().AddBestNormal1, 41.5, 10);

    // Positions (1-based) that NEW sets to a 16-bit 0; all others but the name and the time are
    // slots never touched, written as bare empty tags.
    const std::set<int> zeroed = {2,  3,  27, 28, 33, 52, 55, 56, 57,
                                  58, 61, 70, 71, 72, 73, 75, 76, 77};
    Bytes want;
    want.text("Ann");
    for (int pos = 2; pos <= 77; ++pos) {
        if (pos == 4)
            want.f64(41.5);
        else if (zeroed.count(pos))
            want.i16(0);
        else
            want.empty();
    }
    const std::string got = encode(d.progress());
    EXPECT_EQ(hex(got), hex(want.s));
    EXPECT_EQ(hex(got.substr(0, 24)),
              "08 00 03 00 41 6E 6E 02 00 00 00 02 00 00 00 05 00 00 00 00 00 00 C0 44 ");
}

// A record with every tag, several in places they never normally are.
std::string oddRecord()
{
    Bytes b;
    b.i32(-7);    // the name as a number
    b.f32(37.5f); // a single-precision best time
    b.text("12"); // a best time as text
    b.f64(-0.0);  // negative zero keeps its sign bit
    b.i16(std::numeric_limits<std::int16_t>::min());
    b.i32(std::numeric_limits<std::int32_t>::max());
    b.f64(std::bit_cast<double>(0x7FF8'0000'0000'1234ull)); // a NaN with a payload
    b.text("");
    for (int pos = 9; pos <= 76; ++pos)
        b.empty();
    b.text("Zo\xEB"); // the last slot holds a code-page name
    return b.s;
}

TEST(RecordCodec, EveryTagAnywhereSurvivesReadAndWrite)
{
    const std::string bytes = oddRecord();
    const record::Decoded d = decode(bytes);
    ASSERT_TRUE(d.values) << d.error;
    const record::Values &v = *d.values;
    const std::pair<int, ValueTag> tags[] = {
        {0, ValueTag::Int32}, {1, ValueTag::Float}, {2, ValueTag::Text},   {3, ValueTag::Double},
        {4, ValueTag::Int16}, {5, ValueTag::Int32}, {6, ValueTag::Double}, {7, ValueTag::Text},
        {8, ValueTag::Empty}, {76, ValueTag::Text}};
    for (auto [i, tag] : tags)
        EXPECT_EQ(v[std::size_t(i)].tag(), tag) << "value " << i + 1;
    EXPECT_EQ(v[0].number(), -7);
    EXPECT_EQ(v[1].str(), "37.5");
    EXPECT_EQ(v[4].number(), -32768);
    EXPECT_TRUE(std::signbit(v[3].asDouble()));
    EXPECT_EQ(v[76].asText(), "Zoë");
    EXPECT_EQ(d.length, bytes.size());
    EXPECT_EQ(hex(encode(v)), hex(bytes)) << "written back byte for byte";
}

TEST(RecordCodec, EveryTruncationFailsAndBytesAfterTheRecordAreIgnored)
{
    const std::string bytes = oddRecord();
    for (std::size_t n = 0; n < bytes.size(); ++n) {
        const record::Decoded d = decode(std::string_view(bytes).substr(0, n));
        ASSERT_FALSE(d.values) << "cut at " << n;
        ASSERT_FALSE(d.error.empty()) << "cut at " << n;
    }
    EXPECT_EQ(decode(bytes.substr(0, 9)).error, "it ends part-way through value 2 of 77");
    EXPECT_EQ(decode(bytes.substr(0, 17)).error,
              "the text of value 3 of 77 runs past the end of the file");

    const record::Decoded tail = decode(bytes + "old tail of a longer file");
    ASSERT_TRUE(tail.values);
    EXPECT_EQ(tail.length, bytes.size());
}

TEST(RecordCodec, UnknownTagsAreRefusedWhereverTheyAre)
{
    for (std::uint16_t bad : {1, 6, 7, 9, 0x0800, 0xFFFF}) {
        for (int pos : {1, 40, 77}) {
            Bytes b;
            for (int i = 1; i <= 77; ++i)
                i == pos ? b.tag(bad).le(0, 8) : b.empty();
            const record::Decoded d = decode(b.s);
            EXPECT_FALSE(d.values);
            EXPECT_EQ(d.error, "value " + std::to_string(pos) + " of 77 is of an unknown type (" +
                                   std::to_string(bad) + ")");
        }
    }
}

TEST(RecordCodec, NamesInAndOutOfTheCodePage)
{
    const struct
    {
        std::string text;
        std::string file;
    } cases[] = {
        {"Tom", "Tom"},
        {"Zoë Ångström", "Zo\xEB \xC5ngstr\xF6m"},
        {"€ „Œ“ ž Ÿ", "\x80 \x84\x8C\x93 \x9E \x9F"},
        {utf8(0x81) + utf8(0x9D), "\x81\x9D"}, // bytes the code page leaves undefined
        {"Łucja Żak", "Łucja Żak"},            // outside the code page: UTF-8 as it is
        {"王芳", "王芳"},                      //
        {"Ã©", "Ã©"}, // in the code page, but C3 A9 would read back as "é"
        {"Ã" + std::string(" ©"), "\xC3 \xA9"}, // not UTF-8 once written: code page
    };
    for (const auto &c : cases) {
        EXPECT_EQ(hex(record::textToFileBytes(c.text)), hex(c.file)) << c.text;
        EXPECT_EQ(record::fileBytesToText(c.file), c.text) << c.text;
        PupilProgress p;
        p.PupilName = Value::text(c.text);
        const std::string bytes = encode(p);
        const record::Decoded d = decode(bytes);
        ASSERT_TRUE(d.values);
        EXPECT_EQ((*d.values)[0].asText(), c.text);
        EXPECT_EQ(encode(*d.values), bytes);
    }
    // Every single byte of an old file reads as a character that writes back as that byte.
    for (int b = 0; b < 256; ++b) {
        const std::string one(1, char(b));
        EXPECT_EQ(record::textToFileBytes(record::fileBytesToText(one)), one) << b;
    }
}

std::string repeat(const std::string &s, int n)
{
    std::string out;
    for (int i = 0; i < n; ++i)
        out += s;
    return out;
}

TEST(RecordCodec, OverlongNamesAreCutToWhatTheLengthCanHold)
{
    const struct
    {
        std::string piece;
        int times;
        std::size_t fileBytes; // length of the text as written
        int keptPieces;        // whole pieces read back (a half piece may follow)
    } cases[] = {
        {"x", 70000, 65535, 65535},
        {"é", 60000, 60000, 60000},  // 120000 UTF-8 bytes, but one code-page byte each
        {"Ł", 40000, 65534, 32767},  // outside the code page: cut between UTF-8 characters
        {"Ã©", 40000, 32767, 16383}, // written as UTF-8 (see above), cut as UTF-8
    };
    for (const auto &c : cases) {
        PupilProgress p;
        p.PupilName = Value::text(repeat(c.piece, c.times));
        p.FactorBest = Value::int16(9);
        const std::string bytes = encode(p);
        EXPECT_EQ(std::size_t(std::uint8_t(bytes[2]) | std::uint8_t(bytes[3]) << 8), c.fileBytes)
            << c.piece;
        const record::Decoded d = decode(bytes);
        ASSERT_TRUE(d.values) << d.error;
        const std::string back = (*d.values)[0].asText();
        EXPECT_TRUE(back.starts_with(repeat(c.piece, c.keptPieces))) << c.piece;
        EXPECT_LT(back.size(), repeat(c.piece, c.keptPieces + 1).size()) << c.piece;
        EXPECT_TRUE(p.PupilName.asText().starts_with(back)) << c.piece;
        EXPECT_EQ((*d.values)[76].number(), 9) << "the values after the name are intact";
    }
}

} // namespace
} // namespace nb::test
