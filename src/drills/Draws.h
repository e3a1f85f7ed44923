#pragma once
// The whole numbers a drill's questions are made of, each from one uniform draw r in [0, 1) of
// the screen's random source, in the forms the question tables use. Every helper takes exactly
// one draw (twoDigit two), so the order of calls is the order of draws.
#include <cmath>
#include <functional>
#include <utility>

namespace nb {

class Draws
{
public:
    explicit Draws(std::function<double()> source)
        : source_(std::move(source))
    {}

    double r() { return source_(); }
    // Int(r × n): 0 to n - 1 (0 when n is 0).
    int below(int n) { return int(std::floor(r() * n)); }
    // Int(r × n) + 1: 1 to n.
    int upTo(int n) { return below(n) + 1; }
    // Int((hi - lo + 1) × r) + lo: lo to hi.
    int whole(int lo, int hi) { return below(hi - lo + 1) + lo; }
    // A multiple of ten, (Int(r × n) + 1) × 10: 10 to 10n.
    int tens(int n) { return upTo(n) * 10; }
    // A two-digit number from two draws, its tens digit first, then its units digit.
    int twoDigit(int tensLo, int tensHi, int unitsLo, int unitsHi)
    {
        const int tensPart = whole(tensLo, tensHi) * 10;
        return tensPart + whole(unitsLo, unitsHi);
    }
    // A coin toss that comes up 1 half the time: Int(2r) + 1 = 1.
    bool heads() { return upTo(2) == 1; }

private:
    std::function<double()> source_;
};

// A range of whole numbers a factor is drawn from, both ends included.
struct FactorRange
{
    int lo;
    int hi;
};

struct FactorPair
{
    int first;
    int second;
};

// Two factors, the first drawn before the second; with negatives, each is then negated on its
// own coin toss (first, then second).
inline FactorPair drawFactors(Draws &draws, FactorRange first, FactorRange second, bool negatives)
{
    FactorPair f{draws.whole(first.lo, first.hi), 0};
    f.second = draws.whole(second.lo, second.hi);
    if (negatives) {
        const bool negateFirst = draws.heads();
        const bool negateSecond = draws.heads();
        f.first = negateFirst ? -f.first : f.first;
        f.second = negateSecond ? -f.second : f.second;
    }
    return f;
}

} // namespace nb
