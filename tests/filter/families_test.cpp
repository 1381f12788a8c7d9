// What is promised of every family: its corner over all cutoffs, its time course, that constants
// stay, and that long traces do not drift.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <string>
#include <vector>

#include "FilterFixture.h"
#include "Gaussian.h"
#include "ParallelLowpass.h"
#include "RcFilters.h"
#include "SecondOrder.h"

namespace {

using namespace filter_test;

struct FamilyRow {
    const char* szName;
    FilterOptions (*record)(std::int32_t, double);
    std::int32_t eFamily;
    double dLimit;
};

constexpr FamilyRow kFamilies[] = {
    {"Bessel", Lowpass, 2, 0.14},
    {"Butterworth", Lowpass, 4, 0.2},
    {"Chebyshev", Lowpass, 5, 0.2},
    {"RC", Lowpass, 7, 0.5},
    {"RC 8", Lowpass, 8, 0.15},
    {"Gaussian", Lowpass, 6, 0.5},
    {"Bessel highpass", Highpass, 2, 0.14},
    {"RC highpass", Highpass, 7, 0.5},
};

void Apply(const FilterOptions& options, std::vector<double>& values) {
    const Filter filter = Make(options);
    ASSERT_EQ(filter->FilterArray(values.data(), static_cast<std::uint32_t>(values.size())), 1)
        << ErrorOf(*filter);
}

// The gain in decibels, out of the answer to an impulse.
double DecibelAt(const FilterOptions& options, double f) {
    const std::size_t nReach = 4 * std::size_t{Make(options)->GetMinimumPoints()} + 100;
    std::vector<double> values(2 * nReach + 1, 0.0);
    values[nReach] = 1.0;
    Apply(options, values);
    // Goertzel would lose digits at low frequencies: cosines of every point.
    double re = 0.0;
    double im = 0.0;
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (values[i] == 0.0) continue;
        const double dTurns =
            std::remainder(f * (static_cast<double>(i) - static_cast<double>(nReach)), 1.0);
        re += values[i] * std::cos(2.0 * std::numbers::pi * dTurns);
        im += values[i] * std::sin(2.0 * std::numbers::pi * dTurns);
    }
    return 10.0 * std::log10(re * re + im * im);
}

TEST(Corner, IsWhereItIsAskedForOverAllCutoffs) {
    constexpr int kCutoffs = 200;
    for (const FamilyRow& row : kFamilies) {
        SCOPED_TRACE(row.szName);
        for (int i = 0; i < kCutoffs; ++i) {
            const double f = 0.0001 * std::pow(row.dLimit / 0.0001, i / (kCutoffs - 1.0));
            EXPECT_NEAR(DecibelAt(row.record(row.eFamily, f), f), -3.0103, 0.01) << f;
        }
    }
}

TEST(Corner, OfBoxcarsIsTheirOwn) {
    // sin(pi n f) = n sin(pi f) / sqrt 2.
    EXPECT_NEAR(DecibelAt(Boxcar(3), 0.155274), -3.0103, 0.0001);
    EXPECT_NEAR(DecibelAt(Boxcar(5), 0.090159), -3.0103, 0.0001);
    EXPECT_NEAR(DecibelAt(Boxcar(11), 0.040412), -3.0103, 0.001);
    EXPECT_NEAR(DecibelAt(Boxcar(99), 0.004474), -3.0103, 0.001);
}

TEST(TimeCourse, OfTheStepHasTheFiguresOfEachFamily) {
    struct Row {
        FilterOptions options;
        double steps[8];
    };
    const Row rows[] = {
        {Lowpass(2, 0.1),
         {0, 0.00037086753673, 0.017791502474, 0.11766568375, 0.34347136053, 0.62860407024,
          0.8563785901, 0.97212251239}},
        {Lowpass(4, 0.1),
         {0, 3.1925204703e-6, 0.00026856190827, 0.003148850498, 0.016522242932, 0.054954301021,
          0.13531316769, 0.26812362153}},
        {Lowpass(5, 0.1),
         {0, 1.4421453292e-7, 1.5899187195e-5, 0.00024043394351, 0.0016102726333, 0.0067969018149,
          0.02116261569, 0.052899188787}},
        {Lowpass(7, 0.1),
         {0.4558867801, 0.70394080393, 0.83891027755, 0.91234895242, 0.95230790628, 0.97405010132,
          0.98588031707, 0.99231729386}},
        {Lowpass(8, 0.1),
         {0, 0.0088651314989, 0.14961196836, 0.44788978015, 0.72505299895, 0.88897950374,
          0.96183484437, 0.98841958406}},
        {Highpass(7, 0.1),
         {0.73764030523, 0.4013598416, 0.21838519575, 0.11882627204, 0.064654945487, 0.035179610571,
          0.019141691183, 0.010415247224}},
        {Highpass(2, 0.1),
         {0.36874907084, -0.34098150112, -0.31606990815, -0.0951917022, 0.094693143778,
          0.18769064479, 0.19126141194, 0.13818709858}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.options.lowpass.m_eFilterFamily +
                     10 * row.options.highpass.m_eFilterFamily);
        std::vector<double> values(500, 0.0);
        std::fill(values.begin() + 100, values.end(), 1.0);
        Apply(row.options, values);
        for (std::size_t i = 0; i < 8; ++i) EXPECT_NEAR(values[100 + i], row.steps[i], 1e-10) << i;
    }
}

// Overshoot, and rise from 10 to 90 %, of a step at a low cutoff, where time is nearly continuous.
TEST(TimeCourse, HasTheOvershootAndRiseOfTheAnalogFilters) {
    struct Row {
        std::int32_t eFamily;
        double dOvershoot, dRise;
    };
    const Row rows[] = {{2, 0.00344, 0.3466}, {4, 0.1634, 0.4595}, {5, 0.1985, 0.5317},
                        {7, 0.0, 0.3497},     {8, 0.0, 0.3407},    {6, 0.0, 0.3397}};
    constexpr double kCutoff = 0.0005;
    for (const Row& row : rows) {
        SCOPED_TRACE(row.eFamily);
        std::vector<double> values(80000, 0.0);
        std::fill(values.begin() + 40000, values.end(), 1.0);
        Apply(Lowpass(row.eFamily, kCutoff), values);
        const auto reach = [&](double d) {
            return std::find_if(values.begin(), values.end(), [d](double y) { return y >= d; });
        };
        EXPECT_NEAR(*std::max_element(values.begin(), values.end()) - 1.0, row.dOvershoot, 0.0001);
        EXPECT_NEAR(static_cast<double>(reach(0.9) - reach(0.1)) * kCutoff, row.dRise, 0.001);
    }
}

TEST(Design, HasTheCoefficientsOfTheFormulas) {
    EXPECT_NEAR(1.0 - filter::RcStep(0.1), 0.54411321989713344, 1e-15);
    EXPECT_NEAR(1.0 - filter::RcStep(0.5), 3.0 - std::sqrt(8.0), 1e-15);
    EXPECT_NEAR(1.0 - filter::DesignRc8(0.1).dStep, 0.12403478314008351, 1e-14);
    const filter::HighpassSection section = filter::DesignBesselHighpass(0.1).sections[0];
    const double q = section.k * section.k;
    EXPECT_NEAR(section.k * section.r - 2.0, -1.3863895700679578, 1e-14);
    EXPECT_NEAR(q - section.k * section.r + 1.0, 0.48213534366679164, 1e-14);
    const filter::NotchDesign notch = filter::DesignNotch(0.05, 0.01);
    EXPECT_NEAR(1.0 - notch.dDepth, 0.96953125290874618, 1e-15);
    EXPECT_NEAR(notch.k * notch.r - 2.0, -1.8441580316613352, 1e-14);
    EXPECT_NEAR(notch.k * notch.k - notch.k * notch.r + 1.0, 0.93906250581749235, 1e-14);
    EXPECT_NEAR(notch.dSlope * notch.k, 2.0, 1e-15);
    EXPECT_DOUBLE_EQ(filter::DesignNotch(0.05, 0.5).dDepth, filter::DesignNotch(0.05, 0.49).dDepth);
}

TEST(Gaussian, HasAsManyWeightsAsTheDialogCounts) {
    // 2 int(4 x) + 1, at least 5, with x = 0.1325051817635 / f.
    EXPECT_EQ(filter::GaussianHalfLength(0.0001), 5300u);
    EXPECT_EQ(filter::GaussianHalfLength(0.01), 53u);
    EXPECT_EQ(filter::GaussianHalfLength(0.1), 5u);
    EXPECT_EQ(filter::GaussianHalfLength(0.3), 2u);
    EXPECT_EQ(filter::GaussianHalfLength(0.5), 2u);
    const std::vector<double> weights = filter::GaussianWeights(0.1);
    const double atTenth[] = {0.301063161467, 0.226463005367, 0.0963865004,
                              0.0232121012,   0.0031629476,   0.0002438646};
    ASSERT_EQ(weights.size(), 6u);
    for (std::size_t k = 0; k < 6; ++k) EXPECT_NEAR(weights[k], atTenth[k], 1e-10) << k;
    const std::vector<double> shortest = filter::GaussianWeights(0.5);
    const double atHalf[] = {0.853460904507, 0.073223304703, 0.0000462430};
    ASSERT_EQ(shortest.size(), 3u);
    for (std::size_t k = 0; k < 3; ++k) EXPECT_NEAR(shortest[k], atHalf[k], 1e-10) << k;
}

std::vector<FilterOptions> EveryKind(double f) {
    std::vector<FilterOptions> all;
    for (const FamilyRow& row : kFamilies) all.push_back(row.record(row.eFamily, f));
    all.push_back(Boxcar(3));
    all.push_back(Boxcar(99));
    all.push_back(Notch(f, f / 2));
    all.push_back(Interference(0, 1, 20, 5));
    all.push_back(Interference(1, 2, 20, 7));
    all.back().adaptive.m_bEndEffectCompensation = 1;
    return all;
}

TEST(Constant, ComesBackOrIsTakenAway) {
    for (const double f : {0.0001, 0.003, 0.1}) {
        for (const FilterOptions& options : EveryKind(f)) {
            SCOPED_TRACE(testing::Message()
                         << f << ", " << int{options.lowpass.m_bIsSelected}
                         << int{options.highpass.m_bIsSelected} << int{options.notch.m_bIsSelected}
                         << ", family " << options.lowpass.m_eFilterFamily);
            std::vector<double> values(150000, -60.0);
            Apply(options, values);
            const double dWanted = options.highpass.m_bIsSelected ? 0.0 : -60.0;
            double dWorst = 0.0;
            for (const double d : values) dWorst = std::max(dWorst, std::fabs(d - dWanted));
            EXPECT_LT(dWorst, 1e-12);
        }
    }
}

TEST(LongTrace, DoesNotDrift) {
    constexpr std::size_t kPoints = 10000000;
    std::vector<double> values(kPoints);
    for (const FamilyRow& row : kFamilies) {
        SCOPED_TRACE(row.szName);
        const std::size_t nStep = kPoints / 10;
        std::fill(values.begin(), values.begin() + nStep, 0.0);
        std::fill(values.begin() + nStep, values.end(), 1.0);
        Apply(row.record(row.eFamily, 0.0001), values);
        const double dWanted = row.record == Highpass ? 0.0 : 1.0;
        double dWorst = 0.0;
        for (std::size_t i = nStep + 1000000; i < kPoints; ++i)
            dWorst = std::max(dWorst, std::fabs(values[i] - dWanted));
        EXPECT_LT(dWorst, 1e-11);
    }
}

// The state of a recursive filter over silence ends at zero, not among the denormal numbers.
TEST(LongTrace, FadesToZero) {
    for (const FamilyRow& row : kFamilies) {
        SCOPED_TRACE(row.szName);
        std::vector<double> values(40000, 0.0);
        values[500] = 1.0;
        Apply(row.record(row.eFamily, 0.1), values);
        for (std::size_t i = 30000; i < values.size(); ++i) ASSERT_EQ(values[i], 0.0) << i;
    }
}

TEST(Notch, TakesItsCenterAndLeavesTheRest) {
    std::vector<double> values(20000);
    const auto tone = [](double f, std::size_t i) {
        return std::cos(2.0 * std::numbers::pi * f * static_cast<double>(i));
    };
    for (std::size_t i = 0; i < values.size(); ++i) values[i] = 3.0 + tone(0.05, i) + tone(0.01, i);
    Apply(Notch(0.05, 0.002), values);
    double dWorst = 0.0;
    for (std::size_t i = 15000; i < values.size(); ++i)
        dWorst = std::max(dWorst, std::fabs(values[i] - 3.0 - tone(0.01, i)));
    // At a fifth of the centre the notch still turns the phase by 0.4 %.
    EXPECT_LT(dWorst, 0.03);
    EXPECT_GT(dWorst, 0.001);
}

}  // namespace
