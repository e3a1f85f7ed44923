#pragma once
// The eight grid and lattice screens' digit ranges and best-time slots, and a scripted pupil.
#include "core/NumberText.h"
#include "core/PupilProgress.h"
#include "layouts/LayoutStep.h"
#include "support/Driver.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

namespace nb::test {

struct Range
{
    int lo, hi;
};

struct LayoutScreen
{
    const char *name;
    std::vector<Range> a, b; // highest place first
    Value PupilProgress::*best;
    bool lattice;
};

using P = PupilProgress;
inline const LayoutScreen kLayoutScreens[] = {
    {"grid21", {{3, 9}, {3, 9}}, {{1, 9}}, &P::Mul21Best, false},
    {"grid22", {{2, 9}, {1, 9}}, {{1, 5}, {1, 9}}, &P::Mul22Best, false},
    {"grid31", {{1, 5}, {1, 9}, {1, 9}}, {{3, 9}}, &P::Mul31Best, false},
    {"grid32", {{1, 5}, {1, 9}, {1, 9}}, {{1, 5}, {1, 9}}, &P::Mul32Best, false},
    {"italian21", {{3, 9}, {1, 9}}, {{3, 9}}, &P::Mul21Best, true},
    {"italian22", {{1, 9}, {1, 9}}, {{1, 9}, {1, 9}}, &P::Mul22Best, true},
    {"italian31", {{1, 9}, {1, 9}, {1, 9}}, {{1, 9}}, &P::Mul31Best, true},
    {"italian32", {{1, 9}, {1, 9}, {1, 9}}, {{1, 9}, {1, 9}}, &P::Mul32Best, true},
};

inline const LayoutScreen &layoutScreen(const std::string &name)
{
    for (const LayoutScreen &s : kLayoutScreens)
        if (name == s.name)
            return s;
    throw std::invalid_argument(name);
}

// The digits of n, highest place first, padded with zeros to `places`.
inline std::vector<int> digitsOf(int n, std::size_t places)
{
    std::vector<int> out(places);
    for (std::size_t i = places; i-- > 0; n /= 10)
        out[i] = n % 10;
    return out;
}

// The draw that makes Int((hi - lo + 1) r) + lo come out as d.
inline double drawFor(int d, Range r)
{
    return (d - r.lo + 0.5) / (r.hi - r.lo + 1);
}

// One entry of a script such as "question(1)=50 answerbox=456".
struct ScriptEntry
{
    std::string id, name;
    int index;
    int value;
};
inline std::vector<ScriptEntry> script(const std::string &text)
{
    std::vector<ScriptEntry> out;
    std::istringstream in(text);
    std::string item;
    while (in >> item) {
        const std::string id = item.substr(0, item.find('='));
        const std::size_t open = id.find('(');
        out.push_back({id, id.substr(0, open),
                       open == std::string::npos ? -1 : std::stoi(id.substr(open + 1)),
                       std::stoi(item.substr(item.find('=') + 1))});
    }
    return out;
}

// A pupil at one of the layout screens with its questions scripted.
struct LayoutPupil
{
    explicit LayoutPupil(const std::string &screen)
        : s(layoutScreen(screen))
    {}

    // Queues the draws of the question a x b.
    void queue(int a, int b)
    {
        const auto digitsA = digitsOf(a, s.a.size());
        const auto digitsB = digitsOf(b, s.b.size());
        for (std::size_t i = 0; i < s.a.size(); ++i)
            d.platform.queueDraw(drawFor(digitsA[i], s.a[i]));
        for (std::size_t i = 0; i < s.b.size(); ++i)
            d.platform.queueDraw(drawFor(digitsB[i], s.b[i]));
    }
    // Opens the screen and presses START on the question a x b.
    void start(int a, int b)
    {
        d.open(s.name);
        queue(a, b);
        d.click("Command1");
    }
    // A and B with every digit equal to `digit`.
    int aOf(int digit) { return numberOf(std::vector<int>(s.a.size(), digit)); }
    int bOf(int digit) { return numberOf(std::vector<int>(s.b.size(), digit)); }
    // The box waiting for an entry, as the focus shows it.
    std::string focusName() { return d.front().focusName(); }
    int focusIndex() { return d.front().focusIndex(); }
    std::string focusId()
    {
        return focusIndex() < 0 ? focusName()
                                : focusName() + "(" + std::to_string(focusIndex()) + ")";
    }
    // Types `value` into the waiting box and presses Enter.
    void enter(int value) { d.typeEnter(focusName(), numberText(value), focusIndex()); }
    // The text boxes now enabled, as "name(index)".
    std::vector<std::string> enabledBoxes()
    {
        std::vector<std::string> out;
        for (const Control &c : d.front().controls())
            if (c.kind == ControlKind::TextBox && c.enabled && c.visible)
                out.push_back(c.id());
        return out;
    }

    const LayoutScreen &s;
    Driver d;
};

} // namespace nb::test
