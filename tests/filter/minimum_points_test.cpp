// The smallest number of points of each family and of sections together.

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "FilterFixture.h"

namespace {

using namespace filter_test;

std::uint32_t Points(const FilterOptions& options) {
    return Make(options)->GetMinimumPoints();
}

TEST(MinimumPoints, FollowTheSettlingOfEachFamily) {
    struct Row {
        const char* szName;
        FilterOptions (*record)(std::int32_t, double);
        std::int32_t eFamily;
        std::uint32_t points[4];  // at 0.0001, 0.001, 0.01 and 0.1
        double dLimit;
        std::uint32_t uAtLimit;
    };
    const Row rows[] = {
        {"Bessel", Lowpass, 2, {11379, 1139, 115, 13}, 0.14, 10},
        {"Butterworth", Lowpass, 4, {50933, 5095, 511, 52}, 0.2, 27},
        {"Chebyshev", Lowpass, 5, {130128, 13014, 1303, 132}, 0.2, 67},
        {"RC", Lowpass, 7, {10995, 1100, 110, 12}, 0.5, 4},
        {"RC 8", Lowpass, 8, {9399, 941, 95, 11}, 0.15, 8},
        {"Gaussian", Lowpass, 6, {10601, 1061, 107, 11}, 0.5, 5},
        {"Bessel highpass", Highpass, 2, {57105, 5712, 573, 59}, 0.14, 42},
        {"RC highpass", Highpass, 7, {10996, 1101, 111, 13}, 0.5, 5},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.szName);
        const double fractions[] = {0.0001, 0.001, 0.01, 0.1};
        for (int i = 0; i < 4; ++i)
            EXPECT_EQ(Points(row.record(row.eFamily, fractions[i])), row.points[i]) << fractions[i];
        EXPECT_EQ(Points(row.record(row.eFamily, row.dLimit)), row.uAtLimit);
    }
}

TEST(MinimumPoints, OfTheNotchArePeriodsNotItsSettling) {
    EXPECT_EQ(Points(Notch(0.001, 0.0001)), 1000u);
    EXPECT_EQ(Points(Notch(0.01, 0.0001)), 100u);
    EXPECT_EQ(Points(Notch(0.1, 0.0001)), 10u);
    EXPECT_EQ(Points(Notch(0.3, 0.0001)), 4u);
    EXPECT_EQ(Points(Notch(0.5, 0.0001)), 3u);
}

TEST(MinimumPoints, OfTheInterferenceFilterAreItsCycles) {
    EXPECT_EQ(Points(Interference(0, 1, 5, 10)), 2000u);
    EXPECT_EQ(Points(Interference(1, 1, 5, 10)), 1667u);
    EXPECT_EQ(Points(Interference(2, 1, 5, 500)), 100000u);
    EXPECT_EQ(Points(Interference(0, 1, 5, 0)), 200u);
}

TEST(MinimumPoints, OfABoxcarAreItsOddPoints) {
    EXPECT_EQ(Points(Boxcar(3)), 3u);
    EXPECT_EQ(Points(Boxcar(98)), 99u);
    EXPECT_EQ(Points(Boxcar(0)), 3u);
    EXPECT_EQ(Points(Boxcar(4000000000u)), 99u);
}

TEST(MinimumPoints, AreTheLargestOfAllSections) {
    EXPECT_EQ(Points(NoFilter()), 1u);
    FilterOptions all = Lowpass(2, 0.1);
    all.highpass = Highpass(7, 0.01).highpass;
    all.notch = Notch(0.1, 0.01).notch;
    EXPECT_EQ(Points(all), 111u);
    all.adaptive = Interference(0, 1, 1, 10).adaptive;
    EXPECT_EQ(Points(all), 2000u);
}

TEST(MinimumPoints, DoNotTipWithCutoffsInSinglePrecision) {
    for (const double dFraction : {0.0001, 0.001, 0.01, 0.02, 0.05, 0.1}) {
        FilterOptions options = Lowpass(2, dFraction);
        options.dSampleInterval = 7.0;
        options.lowpass.m_dCornerFreq = dFraction * 1e6 / 7.0;
        const std::uint32_t uExact = Points(options);
        options.lowpass.m_dCornerFreq = static_cast<float>(options.lowpass.m_dCornerFreq);
        EXPECT_EQ(Points(options), uExact) << dFraction;
    }
}

TEST(MinimumPoints, OfFiguresThatDescribeNoFilterAreOne) {
    const double dNaN = std::numeric_limits<double>::quiet_NaN();
    const double dInfinite = std::numeric_limits<double>::infinity();
    for (const double d : {0.0, -1.0, dNaN, dInfinite, -dInfinite}) {
        SCOPED_TRACE(d);
        EXPECT_EQ(Points(Lowpass(4, d)), 1u);
        EXPECT_EQ(Points(Highpass(2, d)), 1u);
        EXPECT_EQ(Points(Notch(d, 0.1)), 1u);
        FilterOptions options = Lowpass(2, 0.1);
        options.dSampleInterval = d;
        EXPECT_EQ(Points(options), 1u);
        options = Interference(0, 1, 1, 100);
        options.dSampleInterval = d;
        EXPECT_EQ(Points(options), 1u);
    }
}

TEST(MinimumPoints, StayWithinWhatAMessageCanShow) {
    EXPECT_EQ(Points(Lowpass(5, 1e-12)), 13012675u);
    EXPECT_EQ(Points(Lowpass(5, 1e6)), 28u);
    FilterOptions options = Interference(0, 1, 1, 4294967295u);
    options.dSampleInterval = 1e-6;
    EXPECT_EQ(Points(options), 2147483647u);
    options.dSampleInterval = 5e-324;
    EXPECT_EQ(Points(options), 1u) << "1 / interval is infinite, so that there is no frequency";
}

TEST(MinimumPoints, OfAnUnlistedFamilyAreThoseThatTheDialogPutsInItsPlace) {
    for (const std::int32_t eFamily : {-1, 0, 1, 9, 2147483647}) {
        EXPECT_EQ(Points(Lowpass(eFamily, 0.01)), 107u) << eFamily;
        EXPECT_EQ(Points(Highpass(eFamily, 0.01)), 573u) << eFamily;
    }
    EXPECT_EQ(Points(Highpass(4, 0.01)), 573u);
    EXPECT_EQ(Points(Interference(-1, 1, 1, 10)), 2000u);
    EXPECT_EQ(Points(Interference(3, 1, 1, 10)), 2000u);
}

}  // namespace
