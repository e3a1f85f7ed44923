#pragma once
// What the drill tests know about each drill screen: its menu, the box the pupil types into, and
// how the right answer follows from the numbers the screen shows.
#include "core/NumberText.h"
#include "drills/DrillFrame.h"
#include "support/Driver.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <string>

namespace nb::test {

struct DrillCase
{
    const char *screen;
    const char *menu;
    const char *box;
    // The answer is `left op right`, from the numbers those labels show.
    const char *left;
    char op;
    const char *right;
    BestSlot slot; // the slot of a run at level 1 with no options
};

using P = PupilProgress;
inline const DrillCase kDrills[] = {
    {"add11", "addmenu", "Text5", "text1", '+', "text3", &P::AddBestNormal1},
    {"sub11", "submenu", "Text5", "text1", '-', "text3", &P::SubBestNormal1},
    {"mul11", "mulmenu", "Text5", "text1", '*', "text3", &P::MulBest},
    {"mentmul", "mulmenu", "Text5", "text1", '*', "text3", &P::MentMulBest},
    {"div11", "divmenu", "Text5", "text1", '/', "text3", &P::DivBest1},
    {"maketen", "addmenu", "text3", "Text5", '-', "text1", &P::MakeTenBest},
    {"makeany", "addmenu", "text3", "Text5", '-', "text1", &P::MakeAnyBest},
    {"maketensub", "submenu", "text3", "text1", '-', "Text5", &P::MakeTenSubBest},
    {"makeanysub", "submenu", "text3", "text1", '-', "Text5", &P::MakeAnySubBest},
    {"maketentimes", "mulmenu", "text3", "Text5", '/', "text1", &P::MakeTenTimesBestA},
    {"maketendiv", "divmenu", "text3", "text1", '/', "Text5", &P::MakeTenDivBest},
};

inline const DrillCase &drill(const std::string &screen)
{
    return *std::find_if(std::begin(kDrills), std::end(kDrills),
                         [&](const DrillCase &c) { return c.screen == screen; });
}

inline double shownNumber(Driver &d, const char *name)
{
    return readNumber(d.caption(name));
}

inline double rightAnswer(Driver &d, const DrillCase &c)
{
    const double a = shownNumber(d, c.left), b = shownNumber(d, c.right);
    return c.op == '+' ? a + b : c.op == '-' ? a - b : c.op == '*' ? a * b : a / b;
}

// Answers are whole or have one decimal place.
inline std::string answerText(double v)
{
    return numberText(std::round(v * 10) / 10);
}

inline void answerRight(Driver &d, const DrillCase &c)
{
    d.typeEnter(c.box, answerText(rightAnswer(d, c)));
}

} // namespace nb::test
