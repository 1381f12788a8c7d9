// The counts, widths and limits of the histogram, and what OK refuses: without a window.

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "measure/HistogramChecks.h"

namespace {

constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();
constexpr float kNoFloat = std::numeric_limits<float>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

HistogramRange Range(double dMin, double dMax) {
    return {dMin, dMax, true};
}

// --- Counts --------------------------------------------------------------------------------------

TEST(HistogramBins, CountTheClosingBin) {
    const struct {
        double dMin, dMax;
        float fWidth;
        int nCount;
    } rows[] = {
        {0, 10, 1, 11},       {0, 10, 3, 4},         {0, 10, 2.5f, 5},       {-5, 5, 1, 11},
        {0, 0.3, 0.1f, 4},    {7, 7, 2, 1},          {0, 0, 1, 1},           {0, 0.9, 1, 1},
        {0, 0.99998, 1, 1},   {0, 0.99999, 1, 2},    {10, 0, 1, -8},         {1, 0, 1, 1},
        {0, 5e6, 1, 5000001}, {0, 1e9, 1, 10000000}, {1e9, 0, 1, -10000000},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << row.dMin << " to " << row.dMax << " by " << row.fWidth);
        const BinCount count = CountLinearBins(Range(row.dMin, row.dMax), row.fWidth);
        EXPECT_EQ(count.eState, BinCountState::kCounted);
        EXPECT_EQ(count.nCount, row.nCount);
    }
}

TEST(HistogramBins, NeedAWidth) {
    for (const float fWidth : {0.0f, -1.0f, kNoFloat}) {
        for (const BinCount& count : {CountLinearBins(Range(1, 10), fWidth),
                                      CountLogarithmicBins(Range(1, 10), fWidth, 7)}) {
            EXPECT_EQ(count.eState, BinCountState::kNoWidth);
            EXPECT_EQ(count.nCount, 0);
        }
    }
}

TEST(HistogramBins, NeverExceedTenMillions) {
    const HistogramRange ranges[] = {Range(-1e308, 1e308), Range(0, kInfinity), Range(0, 1)};
    for (const HistogramRange& range : ranges) {
        EXPECT_EQ(CountLinearBins(range, 1e-20f).nCount, 10000000);
        EXPECT_EQ(CountLinearBins(range, std::numeric_limits<float>::denorm_min()).nCount,
                  10000000);
    }
    EXPECT_EQ(CountLinearBins(Range(-1e308, 1e308), 1e30f).nCount, 10000000);
    EXPECT_EQ(CountLinearBins(Range(kInfinity, kInfinity), 1.0f).nCount, 1);
    EXPECT_EQ(CountLogarithmicBins(Range(1, 1e308), 1.0f, 2147483647).nCount, 10000000);
    EXPECT_EQ(CountLogarithmicBins(Range(1, 1e308), 1.0f, -2147483647).nCount, -10000000);
}

// The maximum counts and not its logarithm, so three decades give far more than 21 bins.
TEST(HistogramBins, OfDecadesAreTheirNumberTimesTheMaximum) {
    const struct {
        double dMin, dMax;
        int nPerDecade, nCount;
    } rows[] = {{1, 1000, 7, 7001}, {0.5, 10, 7, 71}, {1e-300, 2, 3, 7}, {1, 10, 0, 1},
                {0.1, 0.2, 3, 1},   {1, 10, -1, -8},  {3, 3, 2, 7}};
    for (const auto& row : rows) {
        const BinCount count =
            CountLogarithmicBins(Range(row.dMin, row.dMax), 1.0f, row.nPerDecade);
        EXPECT_EQ(count.eState, BinCountState::kCounted);
        EXPECT_EQ(count.nCount, row.nCount) << row.dMax << " times " << row.nPerDecade;
    }
}

TEST(HistogramBins, OfDecadesNeedDataAboveZero) {
    for (const auto& range :
         {Range(0, 10), Range(-1, 10), Range(-10, -1), Range(0, 0), Range(1, 0), Range(1, -1)}) {
        const BinCount count = CountLogarithmicBins(range, 1.0f, 7);
        EXPECT_EQ(count.eState, BinCountState::kNegative);
        EXPECT_EQ(count.nCount, 0);
    }
}

// --- Widths --------------------------------------------------------------------------------------

TEST(HistogramWidth, DividesTheRange) {
    EXPECT_EQ(WidthOfBins(Range(0, 10), 5), 2.0f);
    EXPECT_EQ(WidthOfBins(Range(-1, 1), 8), 0.25f);
    EXPECT_EQ(WidthOfBins(Range(4, 4), 3), 0.0f);
    EXPECT_EQ(WidthOfBins(Range(-1e308, 1e308), 2), 1e30f);
}

TEST(HistogramWidth, ReachesTenTimesTheLargerOfRangeAndWidth) {
    EXPECT_EQ(MostWidth(Range(0, 10), 3.0f), 100.0);
    EXPECT_EQ(MostWidth(Range(0, 1), 30.0f), 300.0);
    EXPECT_EQ(MostWidth(Range(4, 4), 2.0f), 20.0);
    EXPECT_EQ(MostWidth(Range(-1e308, 1e308), 2.0f), 1e30);
}

TEST(HistogramWidth, StepsByAHundredthOfTheRangeInOnesTwosAndFives) {
    EXPECT_EQ(WidthStep(Range(0, 10)), 0.1);
    EXPECT_EQ(WidthStep(Range(0, 30)), 0.2);
    EXPECT_EQ(WidthStep(Range(0, 99)), 0.5);
    EXPECT_EQ(WidthStep(Range(0, 0.001)), 1e-5);
    EXPECT_EQ(WidthStep(Range(3, 3)), 1.0);
    EXPECT_EQ(WidthStep(Range(3, 1)), 1.0);
    EXPECT_EQ(WidthStep(Range(-1e308, 1e308)), 1e28);
}

TEST(HistogramWidth, IsKeptWithSinglePrecision) {
    EXPECT_EQ(SingleValue(0.1), 0.1f);
    EXPECT_EQ(SingleValue(1e-300), 0.0f);
    EXPECT_EQ(SingleValue(1e308), 1e30f);
    EXPECT_EQ(SingleValue(-kInfinity), -1e30f);
    EXPECT_EQ(SingleValue(kNoNumber), 0.0f);
}

// --- Limits --------------------------------------------------------------------------------------

TEST(HistogramLimits, OutsideGoToTheirOwnEnd) {
    const HistogramRange range = Range(10, 20);
    for (const float f : {-5.0f, 9.99f, 20.01f, 1e30f, kNoFloat}) {
        EXPECT_EQ(ClampLower(f, range), 10.0f) << f;
        EXPECT_EQ(ClampUpper(f, range), 20.0f) << f;
    }
    for (const float f : {10.0f, 15.5f, 20.0f}) {
        EXPECT_EQ(ClampLower(f, range), f);
        EXPECT_EQ(ClampUpper(f, range), f);
    }
}

// 0.1 with single precision lies above 0.1.
TEST(HistogramLimits, AtTheEndOfTheRangeStay) {
    ASSERT_GT(static_cast<double>(0.1f), 0.1);
    EXPECT_EQ(ClampUpper(0.1f, Range(0, 0.1)), 0.1f);
    EXPECT_EQ(ClampLower(-0.1f, Range(-0.1, 0)), -0.1f);
    EXPECT_EQ(ClampUpper(std::nextafter(0.1f, 1.0f), Range(0.05, 0.1)), 0.1f);
    EXPECT_EQ(ClampLower(std::nextafter(0.1f, 1.0f), Range(0.05, 0.1)), 0.05f);
}

TEST(HistogramLimits, FollowTheRange) {
    const HistogramRange none;
    const HistogramLimits first = {2, 7};
    const struct {
        const char* szWhat;
        HistogramLimits limits, first;
        HistogramRange range;
        float fWidth;
        HistogramLimits result;
    } rows[] = {
        {"inside", {2, 7}, first, Range(0, 10), 1, {2, 7}},
        {"half outside", {2, 7}, first, Range(3, 10), 1, {3, 7}},
        {"outside", {2, 7}, first, Range(30, 40), 1, {30, 40}},
        {"no data", {2, 7}, first, none, 1, {0, 0}},
        {"no data still", {0, 0}, first, none, 1, {0, 0}},
        {"data again", {0, 0}, first, Range(5, 10), 1, {5, 10}},
        {"whole widths", {0, 0}, first, Range(5, 10), 3, {3, 9}},
        {"towards 0", {0, 0}, first, Range(-5.5, 10.25), 1, {-5, 10}},
        {"no width", {0, 0}, first, Range(5, 10), 0, {0, 0}},
        {"a lower one of 0", {0, 0}, {0, 7}, Range(5, 10), 3, {5, 10}},
        {"an upper one of 0", {0, 0}, {-7, 0}, Range(5, 10), 3, {5, 10}},
        {"one of 0 alone", {0, 8}, first, Range(-5, 10), 3, {0, 8}},
        {"0 by the range", {2, 7}, first, Range(0, 0), 3, {0, 0}},
        {"0 after all", {0, 7}, first, Range(-7, 0), 2, {-6, 0}},
        {"huge", {0, 0}, first, Range(-1e308, 1e308), 2, {-1e30f, 1e30f}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(FollowRange(row.limits, row.first, row.range, row.fWidth), row.result)
            << row.szWhat;
}

// --- The record ----------------------------------------------------------------------------------

TEST(HistogramRecord, BecomesGood) {
    const struct {
        std::int32_t eKind;
        float fWidth;
        std::int32_t nPerDecade, nBins;
        std::int32_t eKindAfter;
        float fWidthAfter;
        std::int32_t nPerDecadeAfter, nBinsAfter;
    } rows[] = {
        {3, 2.5f, 7, 9, 3, 2.5f, 7, 9},
        {9, 0.0f, -1, -1, 0, 1.0f, 0, 0},
        {-1, -2.0f, 10000001, 2147483647, 0, 1.0f, 10000000, 10000000},
        {4, kNoFloat, 10000000, 10000000, 0, 1.0f, 10000000, 10000000},
        {0, std::numeric_limits<float>::infinity(), 0, 0, 0, 1.0f, 0, 0},
        {2, 1e-38f, 1, 1, 2, 1e-38f, 1, 1},
    };
    for (const auto& row : rows) {
        ZXADLG_HistogramOptions options = {};
        options.eHistoType = row.eKind;
        options.fBinWidth = row.fWidth;
        options.nBinsPerDecade = row.nPerDecade;
        options.nNumBins = row.nBins;
        CompleteHistogramRecord(options);
        EXPECT_EQ(options.eHistoType, row.eKindAfter);
        EXPECT_EQ(options.fBinWidth, row.fWidthAfter);
        EXPECT_EQ(options.nBinsPerDecade, row.nPerDecadeAfter);
        EXPECT_EQ(options.nNumBins, row.nBinsAfter);
    }
}

TEST(HistogramRecord, TheLastTwoKindsHaveDecades) {
    EXPECT_FALSE(HasDecades(0));
    EXPECT_FALSE(HasDecades(1));
    EXPECT_TRUE(HasDecades(2));
    EXPECT_TRUE(HasDecades(3));
}

// --- Checks --------------------------------------------------------------------------------------

TEST(HistogramChecks, RefuseInTheirOrder) {
    const struct {
        const char* szWhat;
        HistogramCheck check;
        unsigned nString;  // 0: passes
        int nControl;
    } rows[] = {
        {"all well", {0, 0, 1.0f, {1, 2}, false}, 0, 0},
        {"no decades", {2, 0, 0.0f, {0, 0}, false}, 2211, 2332},
        {"decades below 0", {2, -1, 1.0f, {1, 2}, true}, 2211, 2332},
        {"a lower limit of 0", {2, 1, 0.0f, {0, 0}, false}, 2212, 2339},
        {"all data", {2, 1, 0.0f, {0, 0}, true}, 0, 0},
        {"a lower limit below 0", {2, 1, 0.0f, {-1, 2}, false}, 0, 0},
        {"equal limits", {2, 1, 0.0f, {3, 3}, false}, 2210, 2339},
        {"no width", {0, 0, 0.0f, {3, 3}, false}, 2411, 2329},
        {"a width below 0", {1, 0, -1.0f, {1, 2}, true}, 2411, 2329},
        {"a width that is no number", {1, 0, kNoFloat, {1, 2}, true}, 2411, 2329},
        {"equal limits of a linear kind", {1, 0, 1.0f, {0, 0}, false}, 2210, 2339},
        {"limits upside down", {3, 0, 0.0f, {4, 3}, false}, 2210, 2339},
        {"a limit that is no number", {3, 0, 0.0f, {4, kNoFloat}, false}, 2210, 2339},
        {"neither width nor decades", {3, 0, 0.0f, {3, 4}, false}, 0, 0},
        {"upside down, but all data", {0, 0, 1.0f, {4, 3}, true}, 0, 0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.szWhat);
        const CheckResult result = CheckHistogram(row.check);
        EXPECT_EQ(result.has_value() ? result->nStringId : 0u, row.nString);
        if (!result.has_value()) continue;
        EXPECT_EQ(result->nControl, row.nControl);
        EXPECT_EQ(result->nPage, 0);
        EXPECT_EQ(result->uFlags, static_cast<UINT>(MB_ICONHAND));
    }
}

}  // namespace
