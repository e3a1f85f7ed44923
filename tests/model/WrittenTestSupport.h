#pragma once
// Written-method tests: draws for a chosen question, and a pupil filling in a guided screen.
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

inline void queueDraws(Driver &d, const std::vector<double> &draws)
{
    for (double r : draws)
        d.platform.queueDraw(r);
}

// Column addition of three numbers and column subtraction.
inline std::vector<double> columnDraws(std::vector<int> numbers)
{
    std::vector<double> out;
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        const int n = numbers[i];
        const bool bottomOfTwo = numbers.size() == 2 && i == 1;
        out.insert(out.end(),
                   {bottomOfTwo ? drawFor(n / 100, 0, numbers[0] / 100) : drawFor(n / 100, 1, 9),
                    drawFor(n / 10 % 10, 0, 10), drawFor(n % 10, 0, 10)});
    }
    return out;
}

// A guided question's boxes with their right values; 0 for a box never asked for.
struct Filled
{
    explicit Filled(const std::vector<GuidedStep> &steps)
    {
        for (const GuidedStep &s : steps)
            EXPECT_TRUE(boxes.emplace(s.box, s.value).second) << s.box << " asked twice";
    }
    int operator[](const std::string &box) const
    {
        const auto it = boxes.find(box);
        return it == boxes.end() ? 0 : it->second;
    }
    bool has(const std::string &box) const { return boxes.count(box) != 0; }
    std::map<std::string, int> boxes;
};

// Types the right value into the next `count` steps (default all); each must be the focused,
// yellow box with its prompt, and beep.
inline void fillSteps(Driver &d, std::size_t count = std::size_t(-1))
{
    for (std::size_t i = 0; i < count; ++i) {
        const auto *screen = dynamic_cast<const GuidedSteps *>(d.app.front());
        if (!screen || screen->currentStep() >= screen->steps().size())
            return;
        const GuidedStep step = screen->steps()[screen->currentStep()];
        const bool last = screen->currentStep() + 1 == screen->steps().size();
        SCOPED_TRACE(step.box + "=" + numberText(step.value));
        ASSERT_TRUE(d.reachable(step.box));
        EXPECT_EQ(d.front().focusName(), step.box);
        EXPECT_EQ(d.backColor(step.box), colors::yellow);
        EXPECT_EQ(d.caption("text17"), step.prompt);
        const int beeps = d.platform.beeps;
        d.typeEnter(step.box, numberText(step.value));
        EXPECT_EQ(d.platform.beeps, beeps + 1);
        if (last)
            return; // a Yes to another go may already show the next question
    }
}

} // namespace nb::test
