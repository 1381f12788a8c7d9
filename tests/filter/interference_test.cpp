// Hum of the mains taken out of a trace.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>
#include <vector>

#include "FilterFixture.h"
#include "LineFrequency.h"

namespace {

using namespace filter_test;

double Harmonics(double dLine, std::uint32_t uFrom, std::uint32_t uTo, double dTime) {
    double dSum = 0.0;
    for (std::uint32_t l = uFrom; l <= uTo; ++l)
        dSum += std::cos(2.0 * std::numbers::pi * std::remainder(l * dLine * dTime, 1.0) + l) / l;
    return dSum;
}

std::vector<double> Hum(double dLine, std::uint32_t uFrom, std::uint32_t uTo, double dSampling,
                        std::size_t nPoints) {
    std::vector<double> values(nPoints);
    for (std::size_t i = 0; i < nPoints; ++i)
        values[i] = Harmonics(dLine, uFrom, uTo, static_cast<double>(i) / dSampling);
    return values;
}

FilterOptions Record(double dSampling, std::int32_t eReference, std::uint32_t uFrom,
                     std::uint32_t uTo, std::uint32_t uCycles, bool bCompensate) {
    FilterOptions options = Interference(eReference, uFrom, uTo, uCycles);
    options.dSampleInterval = 1e6 / dSampling;
    options.adaptive.m_bEndEffectCompensation = bCompensate;
    return options;
}

void Apply(const FilterOptions& options, std::vector<double>& values) {
    const Filter filter = Make(options);
    ASSERT_EQ(filter->FilterArray(values.data(), static_cast<std::uint32_t>(values.size())), 1)
        << ErrorOf(*filter);
}

double Largest(const std::vector<double>& values, std::size_t nFrom, std::size_t nTo) {
    double d = 0.0;
    for (std::size_t i = nFrom; i < nTo; ++i) d = std::max(d, std::fabs(values[i]));
    return d;
}

TEST(Hum, VanishesToTheEndsWithCompensation) {
    struct Row {
        double dSampling;
        std::int32_t eReference;
        std::uint32_t uTo, uCycles;
    };
    const Row rows[] = {{333.3, 0, 2, 1},     {333.3, 0, 3, 10},     {333.3, 1, 2, 10},
                        {1000.0, 0, 9, 2},    {4000.0, 1, 20, 10},   {10000.0, 0, 20, 5},
                        {12345.0, 1, 20, 50}, {20000.0, 1, 20, 500}, {20000.0, 0, 100, 10}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.dSampling);
        const double dLine = row.eReference == 1 ? 60.0 : 50.0;
        const auto nPoints =
            static_cast<std::size_t>(1.7 * (row.uCycles + 1) * row.dSampling / dLine);
        std::vector<double> values = Hum(dLine, 1, row.uTo, row.dSampling, nPoints);
        ASSERT_GT(Largest(values, 0, nPoints), 0.5);
        Apply(Record(row.dSampling, row.eReference, 1, row.uTo, row.uCycles, true), values);
        EXPECT_LT(Largest(values, 0, nPoints), row.uCycles == 1 ? 1e-10 : 1e-11);
    }
}

TEST(Hum, BelowTheFirstHarmonicStays) {
    std::vector<double> low = Hum(50.0, 1, 2, 10000.0, 5000);
    for (double& d : low) d += -60.0;
    std::vector<double> both = Hum(50.0, 3, 20, 10000.0, 5000);
    for (std::size_t i = 0; i < both.size(); ++i) both[i] += low[i];
    Apply(Record(10000.0, 0, 3, 20, 5, true), both);
    for (std::size_t i = 0; i < both.size(); ++i) ASSERT_NEAR(both[i], low[i], 1e-10) << i;
}

TEST(Hum, StaysInPartAtTheEndsWithoutCompensation) {
    std::vector<double> values = Hum(50.0, 1, 5, 10000.0, 10000);
    std::vector<double> compensated = values;
    Apply(Record(10000.0, 0, 1, 5, 10, false), values);
    Apply(Record(10000.0, 0, 1, 5, 10, true), compensated);
    EXPECT_GT(Largest(values, 0, 500), 0.1);
    EXPECT_GT(Largest(values, 9500, 10000), 0.1);
    EXPECT_LT(Largest(values, 1000, 9000), 1e-11);
    for (std::size_t i = 1000; i < 9000; ++i) ASSERT_NEAR(values[i], compensated[i], 1e-11);
}

TEST(Hum, PassesWhereNoHarmonicIsToGo) {
    const std::vector<double> before = Hum(50.0, 1, 5, 10000.0, 5000);
    // The last below the first, and a sampling frequency that has no harmonic.
    for (const FilterOptions& options :
         {Record(10000.0, 0, 4, 3, 5, true), Record(10000.0, 0, 1, 0, 5, false),
          Record(90.0, 0, 1, 20, 5, true), Record(10000.0, 0, 101, 500, 5, true),
          Record(10000.0, 2, 101, 500, 5, true)}) {
        std::vector<double> after = before;
        Apply(options, after);
        EXPECT_EQ(after, before) << options.adaptive.m_uHarmonicNumberStart;
    }
}

TEST(Hum, CountsFirstHarmonicAndCyclesFromOne) {
    std::vector<double> zeros = Hum(50.0, 1, 5, 10000.0, 5000);
    std::vector<double> ones = zeros;
    Apply(Record(10000.0, 0, 0, 5, 0, true), zeros);
    Apply(Record(10000.0, 0, 1, 5, 1, true), ones);
    EXPECT_EQ(zeros, ones);
}

// A signal between the harmonics passes; half of one that is 0.6034 f / cycles off a harmonic goes.
TEST(Hum, IsTakenOutOfTheBandwidthThatTheDialogTells) {
    const double dOff = 0.6034 * 50.0 / 20.0;
    std::vector<double> values(20000);
    for (std::size_t i = 0; i < values.size(); ++i)
        values[i] = std::cos(2.0 * std::numbers::pi * (50.0 + dOff) * static_cast<double>(i) / 1e4);
    Apply(Record(10000.0, 0, 1, 1, 20, false), values);
    EXPECT_NEAR(Largest(values, 8000, 12000), 0.5, 0.03);
}

TEST(LineFrequency, IsFoundInNoise) {
    std::mt19937 random(3);
    std::normal_distribution<double> noise;
    for (const double dLine : {49.75, 50.0, 50.03, 59.97, 60.4}) {
        SCOPED_TRACE(dLine);
        std::vector<double> values = Hum(dLine, 1, 8, 4000.0, 8000);
        for (double& d : values) d += -60.0 + noise(random);
        EXPECT_NEAR(filter::FindLineFrequency(values.data(), 8000, 4000.0, 1, 10), dLine, 0.01);
        EXPECT_NEAR(filter::FindLineFrequency(values.data(), 400, 4000.0, 1, 10), dLine, 1.0);
    }
}

TEST(LineFrequency, IsFoundWithoutNoiseToAThousandth) {
    for (const double dLine : {49.51, 50.03, 60.2}) {
        SCOPED_TRACE(dLine);
        const std::vector<double> values = Hum(dLine, 1, 20, 20000.0, 100000);
        EXPECT_NEAR(filter::FindLineFrequency(values.data(), values.size(), 20000.0, 1, 20), dLine,
                    0.001);
    }
}

// 280 s: more than one piece of the spectrum.
TEST(LineFrequency, IsFoundInLongTraces) {
    const std::vector<double> values = Hum(60.02, 1, 4, 1000.0, 280000);
    EXPECT_NEAR(filter::FindLineFrequency(values.data(), values.size(), 1000.0, 1, 6), 60.02,
                0.0005);
}

TEST(LineFrequency, IsFiftyWhereNothingCanBeFound) {
    const std::vector<double> values = Hum(60.0, 1, 3, 4000.0, 8000);
    EXPECT_EQ(filter::FindLineFrequency(values.data(), 399, 4000.0, 1, 10), 50.0);
    EXPECT_EQ(filter::FindLineFrequency(values.data(), 8000, 100.0, 1, 10), 50.0);
    EXPECT_EQ(filter::FindLineFrequency(values.data(), 8000, 4000.0, 40, 50), 50.0);
    const std::vector<double> silence(8000, -60.0);
    const double d = filter::FindLineFrequency(silence.data(), 8000, 4000.0, 1, 10);
    EXPECT_NEAR(d, 50.0, 0.5);
}

TEST(LineFrequency, IsFoundByTheFilterOfTheDialogsThirdChoice) {
    for (const double dLine : {49.8, 60.3}) {
        SCOPED_TRACE(dLine);
        std::vector<double> values = Hum(dLine, 1, 10, 10000.0, 20000);
        Apply(Record(10000.0, 2, 1, 10, 10, true), values);
        EXPECT_LT(Largest(values, 0, 20000), 0.01);
    }
    // As many points as fifty cycles of 50 Hz have: fewer than fifty of 49.6.
    const FilterOptions options = Record(10000.0, 2, 1, 10, 50, true);
    ASSERT_EQ(Make(options)->GetMinimumPoints(), 10000u);
    std::vector<double> values = Hum(49.6, 1, 10, 10000.0, 10000);
    Apply(options, values);
    EXPECT_LT(Largest(values, 0, 10000), 0.02);
}

}  // namespace
