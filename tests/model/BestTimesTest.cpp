// The achievements screen: which saved value shows in which label, how it shows, and PRINT.
#include "support/Driver.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <unistd.h>

namespace nb::test {
namespace {

namespace fs = std::filesystem;

struct Shows
{
    const char *label;
    std::vector<int> positions; // record positions (1 = the name) of its members, in order
    bool level = false;
};

// Every saved value but the name appears exactly once.
// clang-format off
const Shows kMap[] = {
    {"Label37", {2, 8, 10, 12}}, {"Label38", {3, 9, 11, 13}}, {"Label39", {4, 14, 18, 22}},
    {"Label40", {5, 15, 19, 23}}, {"Label41", {6, 16, 20, 24}}, {"Label69", {7, 17, 21, 25}},
    {"Label43", {26}}, {"Label44", {70}, true}, {"Label71", {74}, true},
    {"Label45", {52}}, {"Label46", {53, 59}}, {"Label47", {54, 60}},
    {"Label48", {55}}, {"Label49", {56}}, {"Label50", {57}},
    {"Label51", {58}}, {"Label52", {72}, true}, {"Label77", {76}, true},
    {"Label53", {27, 34, 40, 46}}, {"Label54", {28, 35, 41, 47}}, {"Label55", {29, 36, 42, 48}},
    {"Label56", {30, 37, 43, 49}}, {"Label73", {31, 38, 44, 50}}, {"Label57", {32, 39, 45, 51}},
    {"Label58", {33}}, {"Label59", {71}, true}, {"Label60", {75}},
    {"Label61", {61, 67}}, {"Label62", {62, 68}}, {"Label63", {63, 69}},
    {"Label64", {64}}, {"Label65", {65}}, {"Label66", {66}},
    {"Label67", {73}, true}, {"Label68", {77}, true},
};
// clang-format on

Value &field(PupilProgress &p, int position)
{
    return p.*PupilProgress::recordFields()[std::size_t(position - 1)].member;
}

int member(const Shows &s, std::size_t i)
{
    return s.positions.size() > 1 ? int(i) : -1;
}

class BestTimes : public ::testing::Test
{
protected:
    void SetUp() override
    {
        docs = fs::temp_directory_path() / ("numbrook-besttimes-" + std::to_string(::getpid()));
        d.platform.setDocuments(docs.string());
        d.progress().PupilName = Value::text("Ann Smith");
    }
    void TearDown() override { fs::remove_all(docs); }
    fs::path docs;
    Driver d;
};

TEST_F(BestTimes, EachSavedValueShowsInItsOwnLabelAndNoneShowsWhenZero)
{
    std::set<int> seen;
    for (const Shows &s : kMap)
        for (int pos : s.positions)
            EXPECT_TRUE(seen.insert(pos).second) << pos;
    EXPECT_EQ(seen.size(), 76u);

    // A pupil with no results: only the name shows.
    field(d.progress(), 2) = Value::int16(0); // as NEW leaves them
    d.open("besttimes");
    EXPECT_EQ(d.caption("namebox"), "Ann Smith");
    d.type("namebox", "x");
    d.key("namebox", 8);
    EXPECT_EQ(d.caption("namebox"), "Ann Smith") << "the name cannot be typed over";
    for (const Shows &s : kMap)
        for (std::size_t i = 0; i < s.positions.size(); ++i)
            EXPECT_EQ(d.caption(s.label, member(s, i)), "") << s.label;
    d.click("Command1");

    for (int pos = 2; pos <= 77; ++pos)
        field(d.progress(), pos) = Value::int16(std::int16_t(pos));
    d.open("besttimes");
    EXPECT_EQ(d.caption("namebox"), "Ann Smith");
    for (const Shows &s : kMap)
        for (std::size_t i = 0; i < s.positions.size(); ++i)
            EXPECT_EQ(d.caption(s.label, member(s, i)),
                      (s.level ? "level" : "") + std::to_string(s.positions[i]))
                << s.label << "(" << member(s, i) << ")";
}

TEST_F(BestTimes, ValuesShowAsPlainText)
{
    const struct
    {
        Value value;
        std::string plain; // in Label39(0), a best time
        std::string level; // in Label68, a level
    } cases[] = {
        {Value::single(37.5f), "37.5", "level37.5"},
        {Value::real(0.1 + 0.2), "0.3", "level0.3"},
        {Value::int16(-2), "-2", "level-2"},
        {Value::real(0), "", ""},
    };
    for (const auto &c : cases) {
        d.progress().AddBestNormal1 = c.value;
        d.progress().FactorBest = c.value;
        d.open("besttimes");
        EXPECT_EQ(d.caption("Label39", 0), c.plain);
        EXPECT_EQ(d.caption("Label68"), c.level);
        d.click("Command1");
        EXPECT_FALSE(d.isOpen("besttimes"));
    }
}

// Opened over a menu: PRINT says where the page went, EXIT goes back to the menu.
TEST_F(BestTimes, PrintSaysWhereThePageWentAndExitReturnsToTheMenu)
{
    const fs::path pdf = docs / "NUMBROOK records" / "Best times Ann Smith.pdf";
    d.progress().Unsaved = Value::int16(1);
    d.open("mulmenu");
    d.click("Command10");
    // One outcome at a time (a table of outcomes holding strings trips a false GCC warning at -O3).
    const auto print = [&](PrintOutcome::Kind kind, const std::string &detail,
                           const std::string &message) {
        d.platform.setPrintOutcome(PrintOutcome{kind, detail});
        d.click("Command2");
        EXPECT_EQ(d.platform.printed.back(), pdf.string());
        EXPECT_EQ(d.platform.lastMessage(), message);
    };
    print(PrintOutcome::Kind::Printed, "", "The best times have been sent to the printer.");
    print(PrintOutcome::Kind::SavedPdf, pdf.string(),
          "There is no printer, so the best times have been saved as " + pdf.string());
    print(PrintOutcome::Kind::Failed, "the printer is out of paper",
          "The best times could not be printed: the printer is out of paper");
    EXPECT_TRUE(fs::is_directory(pdf.parent_path()));
    EXPECT_TRUE(d.isOpen("mulmenu"));
    d.click("Command1");
    EXPECT_EQ(d.frontName(), "mulmenu");
    EXPECT_FALSE(d.isOpen("besttimes"));

    // The pupil's name goes into the file name tidied and, when long, cut between characters.
    const struct
    {
        std::string name;
        std::string file;
    } names[] = {
        {"a/b:c", "Best times a_b_c.pdf"},
        {std::string(300, 'x'), "Best times " + std::string(40, 'x') + ".pdf"},
        {std::string(39, 'x') + "\u00e9\u00e9", "Best times " + std::string(39, 'x') + ".pdf"},
        {std::string(38, 'x') + " .yz", "Best times " + std::string(38, 'x') + ".pdf"},
    };
    for (const auto &n : names) {
        d.progress().PupilName = Value::text(n.name);
        d.open("besttimes");
        d.click("Command2");
        EXPECT_EQ(fs::path(d.platform.printed.back()).filename().string(), n.file);
        d.click("Command1");
    }
}

} // namespace
} // namespace nb::test
