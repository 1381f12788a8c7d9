// A short run of the fuzz target with bytes of a fixed seed, each function in turn.

#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "CurveFitFuzz.h"

namespace {

TEST(CurveFitFuzz, AnyBytesAreSurvived) {
    std::mt19937 random(20);
    std::vector<std::uint8_t> bytes;
    for (int i = 0; i < 420; ++i) {
        bytes.assign(random() % 700, 0);
        // Half of the runs are mostly plain numbers, half any bits.
        for (std::uint8_t& b : bytes)
            b = static_cast<std::uint8_t>(i % 2 == 0 ? 16 + random() % 240 : random());
        if (!bytes.empty()) bytes[0] = static_cast<std::uint8_t>(i % 42);
        // A copy of just its size, so that a reader beyond it is caught.
        const std::vector<std::uint8_t> exact(bytes);
        FuzzCurveFit(exact.data(), exact.size());
    }
    FuzzCurveFit(nullptr, 0);
}

}  // namespace
