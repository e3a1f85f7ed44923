#pragma once
// Shared by the tests of the written methods: the draws that make a screen set a chosen
// question, and a pupil who fills in what a guided screen asks for.
#include "core/NumberText.h"
#include "support/Driver.h"
#include "written/GuidedSteps.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace nb::test {

// The draw that makes Int(n r) + lo come out as v.
inline double drawFor(int v, int lo, int n)
{
    return (v - lo + 0.5) / n;
}
inline double digitDraw(int d)
{
    return drawFor(d, 0, 10);
}

// The boxes of a guided question filled in the order asked, each with its right value. Fails
// the test when a box is asked for twice.
inline std::map<std::string, int> filledBoxes(const std::vector<GuidedStep> &steps)
{
    std::map<std::string, int> boxes;
    for (const GuidedStep &s : steps)
        EXPECT_TRUE(boxes.emplace(s.box, s.value).second) << s.box << " asked twice";
    return boxes;
}

// A box's value, or 0 when it was never asked for.
inline int valueOf(const std::map<std::string, int> &boxes, const std::string &box)
{
    const auto it = boxes.find(box);
    return it == boxes.end() ? 0 : it->second;
}

// Types the right value into each of the next `count` steps of the guided screen in front (all
// of them by default); each must be the active box and beep. Stops when the question is complete
// or the screen has gone (the end of an exercise).
inline void fillSteps(Driver &d, std::size_t count = std::size_t(-1))
{
    for (std::size_t i = 0; i < count; ++i) {
        const auto *screen = dynamic_cast<const GuidedSteps *>(d.app.front());
        if (!screen || screen->currentStep() >= screen->steps().size())
            return;
        const GuidedStep step = screen->steps()[screen->currentStep()];
        SCOPED_TRACE(step.box + "=" + numberText(step.value));
        ASSERT_TRUE(d.reachable(step.box));
        ASSERT_EQ(d.front().focusName(), step.box);
        EXPECT_EQ(d.backColor(step.box), colors::yellow);
        EXPECT_EQ(d.caption("text17"), step.prompt);
        const bool last = screen->currentStep() + 1 == screen->steps().size();
        const int beeps = d.platform.beeps;
        d.typeEnter(step.box, numberText(step.value));
        EXPECT_EQ(d.platform.beeps, beeps + 1);
        if (last)
            return; // a Yes to another go may already show the next question
    }
}

} // namespace nb::test

namespace nb::test {

// The draws of one question of the column addition and subtraction screens.
inline std::vector<double> columnAddDraws(int a, int b, int c)
{
    std::vector<double> out;
    for (int n : {a, b, c})
        out.insert(out.end(), {drawFor(n / 100, 1, 9), digitDraw(n / 10 % 10), digitDraw(n % 10)});
    return out;
}
inline std::vector<double> columnSubDraws(int top, int bottom)
{
    return {drawFor(top / 100, 1, 9),    digitDraw(top / 10 % 10),
            digitDraw(top % 10),         drawFor(bottom / 100, 0, top / 100),
            digitDraw(bottom / 10 % 10), digitDraw(bottom % 10)};
}

inline void queueDraws(Driver &d, const std::vector<double> &draws)
{
    for (double r : draws)
        d.platform.queueDraw(r);
}

} // namespace nb::test
