#include "shell/AchievementTable.h"

namespace nb {

namespace {

using P = PupilProgress;

// In the order the screen fills them: the first column of rows, then the second.
const std::vector<AchievementRow> kRows = {
    {"Label37",
     "Make Ten",
     {&P::MakeTenBest, &P::MakeTenBestNeg, &P::MakeTenBestDec, &P::MakeTenBestNegDec}},
    {"Label38",
     "Make Any",
     {&P::MakeAnyBest, &P::MakeAnyBestNeg, &P::MakeAnyBestDec, &P::MakeAnyBestNegDec}},
    {"Label39",
     "Addition 1",
     {&P::AddBestNormal1, &P::AddBestNeg1, &P::AddBestDec1, &P::AddBestNegDec1}},
    {"Label40",
     "Addition 2",
     {&P::AddBestNormal2, &P::AddBestNeg2, &P::AddBestDec2, &P::AddBestNegDec2}},
    {"Label41",
     "Addition 3",
     {&P::AddBestNormal3, &P::AddBestNeg3, &P::AddBestDec3, &P::AddBestNegDec3}},
    {"Label69",
     "Addition 4",
     {&P::AddBestNormal4, &P::AddBestNeg4, &P::AddBestDec4, &P::AddBestNegDec4}},
    {"Label43", "Column addition", {&P::ColumnAddBest}},
    {"Label44", "Add search", {&P::SearchBest1}, true},
    {"Label71", "Four in a row", {&P::ExtraBestB}, true},
    {"Label45", "Times tables", {&P::MulBest}},
    {"Label46", "Make ? times", {&P::MakeTenTimesBestA, &P::MakeTenTimesBestB}},
    {"Label47", "Mental times", {&P::MentMulBest, &P::ExtraBestA}},
    {"Label48", "Times TU x U", {&P::Mul21Best}},
    {"Label49", "Times HTU x U", {&P::Mul31Best}},
    {"Label50", "Times TU x TU", {&P::Mul22Best}},
    {"Label51", "Times HTU x TU", {&P::Mul32Best}},
    {"Label52", "Times search", {&P::SearchBest3}, true},
    {"Label77", "Perfection", {&P::PerfectionBest}, true},
    {"Label53",
     "Make 10 take away",
     {&P::MakeTenSubBest, &P::MakeTenSubBestNeg, &P::MakeTenSubBestDec, &P::MakeTenSubBestNegDec}},
    {"Label54",
     "Make ? take away",
     {&P::MakeAnySubBest, &P::MakeAnySubBestNeg, &P::MakeAnySubBestDec, &P::MakeAnySubBestNegDec}},
    {"Label55",
     "Subtraction 1",
     {&P::SubBestNormal1, &P::SubBestNeg1, &P::SubBestDec1, &P::SubBestNegDec1}},
    {"Label56",
     "Subtraction 2",
     {&P::SubBestNormal2, &P::SubBestNeg2, &P::SubBestDec2, &P::SubBestNegDec2}},
    {"Label73",
     "Subtraction 3",
     {&P::SubBestNormal3, &P::SubBestNeg3, &P::SubBestDec3, &P::SubBestNegDec3}},
    {"Label57",
     "Subtraction 4",
     {&P::SubBestNormal4, &P::SubBestNeg4, &P::SubBestDec4, &P::SubBestNegDec4}},
    {"Label58", "Column subtraction", {&P::ColumnSubBest}},
    {"Label59", "Take away search", {&P::SearchBest2}, true},
    {"Label60", "Darts", {&P::DartsBest}},
    {"Label61", "Make ? divide", {&P::MakeTenDivBest, &P::MakeTenDivBest2}},
    {"Label62", "Division 1", {&P::DivBest1, &P::DivBest3}},
    {"Label63", "Division 2", {&P::DivBest2, &P::DivBest4}},
    {"Label64", "Long division 1", {&P::DivRemBest}},
    {"Label65", "Long division 2", {&P::DivDecBest}},
    {"Label66", "Long division 3", {&P::DivFracBest}},
    {"Label67", "Divide search", {&P::SearchBest4}, true},
    {"Label68", "Factor race", {&P::FactorBest}, true},
};

} // namespace

const char *const kOptionColumnNames[4] = {"Normal", "Negatives", "Decimals",
                                           "Negatives  + decimals"};

int AchievementRow::members() const
{
    int n = 0;
    while (n < 4 && fields[std::size_t(n)])
        ++n;
    return n;
}

const std::vector<AchievementRow> &achievementRows()
{
    return kRows;
}

std::string achievementText(const Value &value, bool level)
{
    // No result yet: empty, 0, or empty text. A text such as "Champion." is a result.
    if (value.isEmpty() || (value.isText() ? value.asText().empty() : value.number() == 0))
        return {};
    return (level ? "level" : "") + value.str();
}

const std::vector<AchievementSlot> &achievementSlots()
{
    static const std::vector<AchievementSlot> slots = [] {
        std::vector<AchievementSlot> all;
        for (const AchievementRow &r : kRows) {
            const int members = r.members();
            for (int m = 0; m < members; ++m) {
                std::string heading = r.caption;
                if (members > 1) {
                    // The option's name with its spacing tidied for a heading.
                    std::string option = kOptionColumnNames[m];
                    if (const auto at = option.find("  "); at != std::string::npos)
                        option.erase(at, 1);
                    heading += " / " + option;
                }
                all.push_back({heading, r.fields[std::size_t(m)], r.level});
            }
        }
        return all;
    }();
    return slots;
}

} // namespace nb
