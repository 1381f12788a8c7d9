// What seeds of a long record take: no more than one more copy of the data, and that only for
// points in no order.

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>

#include "CurveFitFixture.h"
#include "fixtures/memory/CountedMemory.h"

namespace {

using namespace curvefit_test;

constexpr std::size_t kPoints = 200000;
// The reduced points and what the methods make of them.
constexpr std::size_t kWorkspace = 16u << 20;

std::size_t BytesForSeeds(int32_t eFunction, const std::vector<double>& x,
                          const std::vector<double>& y) {
    const CurveFit fit = Make(OptionsFor(eFunction));
    const double* arrays[] = {x.data(), y.data()};
    double seeds[26];
    std::size_t nBytes = 0;
    int32_t bFound = 0;
    {
        const test_support::MemoryCount count;
        bFound = fit->ComputeSeeds(arrays, seeds, 2, static_cast<uint32_t>(x.size()));
        nBytes = count.Bytes();
    }
    EXPECT_EQ(bFound, 1) << eFunction << ErrorOf(*fit);
    return nBytes;
}

TEST(Memory, SeedsOfALongRecordCopyNothingButPointsInNoOrder) {
    std::vector<double> x(kPoints);
    std::vector<double> y(kPoints);
    for (std::size_t i = 0; i < kPoints; ++i) {
        x[i] = 0.001 * static_cast<double>(i + 1);
        y[i] = 3.0 + 90.0 * x[i] / (20.0 + x[i]);
    }
    std::vector<std::size_t> order(kPoints);
    std::iota(order.begin(), order.end(), 0u);
    std::mt19937 random(5);
    std::shuffle(order.begin(), order.end(), random);
    std::vector<double> shuffledX(kPoints);
    std::vector<double> shuffledY(kPoints);
    for (std::size_t i = 0; i < kPoints; ++i) {
        shuffledX[i] = x[order[i]];
        shuffledY[i] = y[order[i]];
    }
    const std::vector<double> backX(x.rbegin(), x.rend());
    const std::vector<double> backY(y.rbegin(), y.rend());
    constexpr std::size_t kCopy = 2 * sizeof(double) * kPoints;
    for (const int32_t e : {8, 15, 22, 29, 35}) {
        SCOPED_TRACE(e);
        const std::size_t nOrdered = BytesForSeeds(e, x, y);
        EXPECT_LT(nOrdered, kWorkspace);
        EXPECT_EQ(BytesForSeeds(e, backX, backY), nOrdered);
        EXPECT_LE(BytesForSeeds(e, shuffledX, shuffledY), nOrdered + kCopy);
    }
}

}  // namespace
