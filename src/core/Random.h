#pragma once
// The program's uniform random source: a 64-bit Mersenne Twister seeded once per run from the
// clock (or with a fixed seed in tests and benchmarks).
#include <cstdint>
#include <random>

namespace nb {

class UniformRandom
{
public:
    UniformRandom(); // seeded from the clock
    explicit UniformRandom(std::uint64_t seed)
        : gen_(seed)
    {}

    // A draw in [0, 1): 53 random bits, never 1.0.
    double next() { return double(gen_() >> 11) * 0x1.0p-53; }

private:
    std::mt19937_64 gen_;
};

// Int((hi - lo + 1) * r) + lo: a whole number from lo to hi from a draw r in [0, 1).
inline int wholeFromDraw(double r, int lo, int hi)
{
    return int(double(hi - lo + 1) * r) + lo;
}

} // namespace nb
