#include "drills/DrillScreens.h"

#include "drills/MakeDrill.h"
#include "drills/MissingFactorDrill.h"
#include "drills/add11.h"
#include "drills/div11.h"
#include "drills/mentmul.h"
#include "drills/mul11.h"
#include "drills/sub11.h"

#include <memory>

namespace nb {

namespace {

using P = PupilProgress;

constexpr std::uint32_t kAddTheme = rgb(200, 235, 255);
constexpr std::uint32_t kSubTheme = rgb(220, 255, 215);

// The drills that differ only by their settings: one row each, with the screen's name, title,
// the menu its Exit returns to, its colour and its rules.
struct MakeRow
{
    const char *name;
    const char *title;
    const char *menu;
    std::uint32_t theme;
    MakeDrill::Rules rules;
};

const MakeRow kMakeDrills[] = {
    {"maketen",
     "Make 10",
     "addmenu",
     kAddTheme,
     {false,
      false,
      &P::AddNegatives,
      &P::AddDecimals,
      {&P::MakeTenBest, &P::MakeTenBestNeg, &P::MakeTenBestDec, &P::MakeTenBestNegDec}}},
    {"makeany",
     "Make the total",
     "addmenu",
     kAddTheme,
     {true,
      false,
      &P::AddNegatives,
      &P::AddDecimals,
      {&P::MakeAnyBest, &P::MakeAnyBestNeg, &P::MakeAnyBestDec, &P::MakeAnyBestNegDec}}},
    {"maketensub",
     "Take away to make 10",
     "submenu",
     kSubTheme,
     {false,
      true,
      &P::SubNegatives,
      &P::SubDecimals,
      {&P::MakeTenSubBest, &P::MakeTenSubBestNeg, &P::MakeTenSubBestDec,
       &P::MakeTenSubBestNegDec}}},
    {"makeanysub",
     "Take away to make the number",
     "submenu",
     kSubTheme,
     {true,
      true,
      &P::SubNegatives,
      &P::SubDecimals,
      {&P::MakeAnySubBest, &P::MakeAnySubBestNeg, &P::MakeAnySubBestDec,
       &P::MakeAnySubBestNegDec}}},
};

struct MissingFactorRow
{
    const char *name;
    const char *title;
    const char *menu;
    std::uint32_t theme;
    MissingFactorDrill::Rules rules;
};

const MissingFactorRow kMissingFactorDrills[] = {
    // The tables up to 10 × 10 of the times tables drill, the other way round.
    {"maketentimes",
     "Missing factor",
     "mulmenu",
     rgb(255, 230, 200),
     {false, {1, 10}, {1, 10}, &P::MulNegatives, {&P::MakeTenTimesBestA, &P::MakeTenTimesBestB}}},
    // The facts of Division 1: quotients 1 to 10, divisors 2 to 10.
    {"maketendiv",
     "Missing divisor",
     "divmenu",
     rgb(235, 220, 255),
     {true, {1, 10}, {2, 10}, &P::DivNegatives, {&P::MakeTenDivBest, &P::MakeTenDivBest2}}},
};

} // namespace

void registerDrillScreens(ScreenRegistry &registry)
{
    registry.add<Add11>("add11", "Addition practice");
    registry.add<Sub11>("sub11", "Subtraction practice");
    registry.add<Mul11>("mul11", "Times tables");
    registry.add<MentMul>("mentmul", "Mental times");
    registry.add<Div11>("div11", "Division practice");
    for (const MakeRow &row : kMakeDrills)
        registry.add(row.name, row.title, [&row](App &app) {
            return std::make_unique<MakeDrill>(app, row.menu, row.theme, row.rules);
        });
    for (const MissingFactorRow &row : kMissingFactorDrills)
        registry.add(row.name, row.title, [&row](App &app) {
            return std::make_unique<MissingFactorDrill>(app, row.menu, row.theme, row.rules);
        });
}

} // namespace nb
