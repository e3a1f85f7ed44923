#include "core/Random.h"

#include <chrono>

namespace nb {

UniformRandom::UniformRandom()
    : gen_(std::uint64_t(std::chrono::high_resolution_clock::now().time_since_epoch().count()) ^
           std::random_device{}())
{}

} // namespace nb
