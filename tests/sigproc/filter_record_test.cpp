// What the filter dialog makes of any record: arrangement, families, defaults, cutoffs in their
// limits, and the order of the sections.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <string>
#include <vector>

#include "sigproc/FilterRecord.h"
#include "sigproc/SamplingRate.h"

namespace {

constexpr FilterSignal k10kHz = {10000.0, 1000, true};

FilterOptions Selecting(int nLowpass, int nHighpass, int nNotch, int nAdaptive) {
    FilterOptions options = {};
    options.lowpass.m_bIsSelected = static_cast<std::uint8_t>(nLowpass);
    options.highpass.m_bIsSelected = static_cast<std::uint8_t>(nHighpass);
    options.notch.m_bIsSelected = static_cast<std::uint8_t>(nNotch);
    options.adaptive.m_bIsSelected = static_cast<std::uint8_t>(nAdaptive);
    return options;
}

std::string Selected(const FilterOptions& options) {
    std::string s;
    if (options.lowpass.m_bIsSelected != 0) s += 'L';
    if (options.highpass.m_bIsSelected != 0) s += 'H';
    if (options.notch.m_bIsSelected != 0) s += 'N';
    if (options.adaptive.m_bIsSelected != 0) s += 'A';
    return s;
}

TEST(FilterArrangement, FollowsTheSelectedSections) {
    const struct {
        int nLowpass, nHighpass, nNotch, nAdaptive;
        FilterType eType;
        const char* szSelected;  // once it is complete
    } rows[] = {
        {1, 1, 0, 0, kBandpassFilter, "LH"}, {0, 1, 0, 0, kHighpassFilter, "H"},
        {1, 0, 0, 0, kLowpassFilter, "L"},   {0, 0, 0, 1, kInterferenceFilter, "A"},
        {0, 0, 1, 0, kNotchFilter, "N"},     {0, 0, 1, 1, kNotchFilter, "N"},
        {0, 0, 0, 0, kLowpassFilter, "L"},   {1, 1, 1, 1, kBandpassFilter, "LHNA"},
        {1, 0, 1, 0, kLowpassFilter, "LN"},  {0, 1, 0, 1, kHighpassFilter, "HA"},
        {77, 0, 0, 0, kLowpassFilter, "L"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.szSelected);
        FilterOptions options = Selecting(row.nLowpass, row.nHighpass, row.nNotch, row.nAdaptive);
        EXPECT_EQ(FilterTypeOf(options), row.eType);
        CompleteFilterRecord(options, 10000.0);
        EXPECT_EQ(FilterTypeOf(options), row.eType);
        EXPECT_EQ(Selected(options), row.szSelected);
    }
}

TEST(FilterArrangement, ChosenSelectsItsSectionsAlone) {
    const std::pair<FilterType, const char*> rows[] = {{kBandpassFilter, "LH"},
                                                       {kHighpassFilter, "H"},
                                                       {kLowpassFilter, "L"},
                                                       {kInterferenceFilter, "A"},
                                                       {kNotchFilter, "N"}};
    for (const auto& [eType, szSelected] : rows) {
        FilterOptions options = Selecting(1, 1, 1, 1);
        SelectFilterType(options, eType);
        EXPECT_EQ(Selected(options), szSelected);
    }
}

TEST(FilterRecord, GetsAFamilyThatIsOffered) {
    const struct {
        std::int32_t eStored, eLowpass, eHighpass;
    } rows[] = {{0, 6, 2}, {1, 6, 2}, {2, 2, 2}, {3, 3, 2}, {4, 4, 2},          {5, 5, 2},
                {6, 6, 2}, {7, 7, 7}, {8, 8, 2}, {9, 6, 2}, {-2147483647, 6, 2}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.eStored);
        FilterOptions options = {};
        options.lowpass.m_eFilterFamily = options.highpass.m_eFilterFamily = row.eStored;
        CompleteFilterRecord(options, 10000.0);
        EXPECT_EQ(options.lowpass.m_eFilterFamily, row.eLowpass);
        EXPECT_EQ(options.highpass.m_eFilterFamily, row.eHighpass);
    }
}

TEST(FilterRecord, GetsAReferenceThatIsOffered) {
    for (const auto& [eStored, eShown] :
         std::vector<std::pair<int, int>>{{0, 0}, {1, 1}, {2, 2}, {3, 0}, {-1, 0}}) {
        FilterOptions options = {};
        options.adaptive.m_eReferenceGeneration = eStored;
        CompleteFilterRecord(options, 10000.0);
        EXPECT_EQ(options.adaptive.m_eReferenceGeneration, eShown);
    }
}

TEST(FilterRecord, GetsDefaultsWhereThereIsNone) {
    FilterOptions options = {};
    CompleteFilterRecord(options, 44105.0);
    EXPECT_EQ(options.lowpass.m_dCornerFreq, 4410.0);
    EXPECT_EQ(options.lowpass.m_uNumAveragePoints, 0u);
    EXPECT_EQ(options.highpass.m_dCornerFreq, static_cast<double>(2.20525f));
    EXPECT_EQ(options.notch.m_dCornerFreq, 60.0);
    EXPECT_EQ(options.notch.m_d3dbWidth, 10.0);
    // Half of the rate times 0.0001, but at least 1.
    options = {};
    options.notch.m_d3dbWidth = -3.0;
    CompleteFilterRecord(options, 10000.0);
    EXPECT_EQ(options.highpass.m_dCornerFreq, 1.0);
    EXPECT_EQ(options.notch.m_d3dbWidth, 10.0);
    // A boxcar has points and no corner.
    for (const std::uint32_t uPoints : {0u, 2u, 3u, 9u}) {
        options = {};
        options.lowpass.m_eFilterFamily = kBoxcar;
        options.lowpass.m_uNumAveragePoints = uPoints;
        CompleteFilterRecord(options, 10000.0);
        EXPECT_EQ(options.lowpass.m_uNumAveragePoints, std::max(uPoints, 3u));
        EXPECT_EQ(options.lowpass.m_dCornerFreq, 0.0);
    }
    options = {};
    options.notch.m_d3dbWidth = std::nan("");
    CompleteFilterRecord(options, 10000.0);
    EXPECT_EQ(options.notch.m_d3dbWidth, 10.0);
}

TEST(FilterRecord, KeepsWhatItHas) {
    FilterOptions options = Selecting(0, 1, 0, 0);
    options.lowpass = {0, 4, 3, 8, 333.25, 1.5, 77.125, 9, {}};
    options.highpass = {1, 7, 2, 5, 21.5, 2.5, 66.125, 8, {}};
    options.notch = {0, 1, 4, 6, 120.5, 4.25, 55.125, 7, {}};
    options.adaptive.m_uHarmonicNumberStart = 3;
    options.adaptive.m_bEndEffectCompensation = 1;
    const FilterOptions before = options;
    CompleteFilterRecord(options, 10000.0);
    ClampLowpass(options, k10kHz);
    ClampHighpass(options, k10kHz);
    ClampNotch(options, k10kHz);
    EXPECT_EQ(std::memcmp(&options, &before, sizeof options), 0);
}

TEST(FilterRecord, GoesToTheNearerLimit) {
    FilterOptions options = {};
    options.lowpass.m_eFilterFamily = kGaussian;
    options.lowpass.m_dCornerFreq = 10.0;
    options.highpass.m_eFilterFamily = kBessel;
    options.highpass.m_dCornerFreq = 1e9;
    options.notch.m_dCornerFreq = -7.0;
    options.notch.m_d3dbWidth = 6000.0;
    ClampLowpass(options, k10kHz);
    ClampHighpass(options, k10kHz);
    ClampNotch(options, k10kHz);
    EXPECT_EQ(options.lowpass.m_dCornerFreq, 45.0);
    EXPECT_EQ(options.highpass.m_dCornerFreq, 1400.0);
    EXPECT_EQ(options.notch.m_dCornerFreq, 10.0);
    EXPECT_EQ(options.notch.m_d3dbWidth, 5000.0);
    // The default of the highpass lies below its own minimum.
    options = {};
    CompleteFilterRecord(options, 20000.0);
    ClampHighpass(options, {20000.0, 1000, true});
    EXPECT_EQ(options.highpass.m_dCornerFreq, 2.0);
    options.lowpass.m_dCornerFreq = std::nan("");
    ClampLowpass(options, k10kHz);
    EXPECT_EQ(options.lowpass.m_dCornerFreq, 45.0);
}

TEST(FilterRecord, ClampedCutoffsReadAsWithinTheirLimits) {
    // Rates whose limits have more digits than a field shows, and than single precision keeps.
    for (int i = 1; i < 2000; ++i) {
        const FilterSignal signal = {1234.567 * i * 1.0000037, 100000, true};
        FilterOptions options = {};
        options.highpass.m_eFilterFamily = i % 2 == 0 ? kBessel : kRC;
        options.highpass.m_dCornerFreq = i % 3 == 0 ? 1e9 : 1e-9;
        ClampHighpass(options, signal);
        ASSERT_TRUE(IsShownWithin(options.highpass.m_dCornerFreq,
                                  HighpassLimits(options.highpass.m_eFilterFamily, signal.dRate)))
            << i;
    }
}

TEST(FilterRecord, SmoothingPointsGoIntoTheListsEnds) {
    FilterOptions options = {};
    options.lowpass.m_eFilterFamily = kBoxcar;
    const auto clamped = [&options](std::uint32_t uPoints, const FilterSignal& signal) {
        options.lowpass.m_uNumAveragePoints = uPoints;
        ClampLowpass(options, signal);
        return options.lowpass.m_uNumAveragePoints;
    };
    EXPECT_EQ(clamped(4000000000u, k10kHz), 99u);
    EXPECT_EQ(clamped(99, {10000.0, 30, true}), 15u);
    // An even one is within: OK refuses it.
    EXPECT_EQ(clamped(4, k10kHz), 4u);
    EXPECT_EQ(clamped(1, k10kHz), 3u);
    EXPECT_EQ(clamped(500, {10000.0, 0, false}), 500u);
    EXPECT_EQ(SmoothingLengthsFor({10000.0, 0, false}).back(), 99);
    EXPECT_EQ(SmoothingLengthsFor({10000.0, 0, true}).back(), 3);
}

TEST(FilterRecord, StaysWhereNoLimitIsKnown) {
    FilterOptions options = {};
    options.lowpass.m_dCornerFreq = options.highpass.m_dCornerFreq = 1e9;
    options.notch.m_dCornerFreq = options.notch.m_d3dbWidth = 1e9;
    const FilterOptions before = options;
    ClampLowpass(options, {0.0, 1000, true});
    ClampHighpass(options, {0.0, 1000, true});
    ClampNotch(options, {0.0, 1000, true});
    EXPECT_EQ(std::memcmp(&options, &before, sizeof options), 0);
    EXPECT_FALSE(AreLowpassLimitsKnown(options, {0.0, 1000, true}));
    EXPECT_TRUE(AreLowpassLimitsKnown(options, {1.0, 0, false}));
    options.lowpass.m_eFilterFamily = kBoxcar;
    EXPECT_TRUE(AreLowpassLimitsKnown(options, {0.0, 1000, true}));
    EXPECT_FALSE(AreLowpassLimitsKnown(options, {1.0, 0, false}));
}

TEST(FilterRecord, IntervalAndRateAreEachOthersReverse) {
    FilterOptions options = {};
    EXPECT_EQ(RateOfInterval(options), 0.0);
    StoreInterval(options, 10000.0);
    EXPECT_EQ(options.dSampleInterval, 100.0);
    EXPECT_EQ(RateOfInterval(options), 10000.0);
    StoreInterval(options, 30000.0);
    EXPECT_EQ(options.dSampleInterval, static_cast<double>(33.3333321f));
    for (const double d : {-1.0, std::nan(""), static_cast<double>(INFINITY), 1e-310}) {
        options.dSampleInterval = d;
        EXPECT_EQ(RateOfInterval(options), 0.0) << d;
    }
    StoreInterval(options, 1e-300);
    EXPECT_TRUE(std::isfinite(options.dSampleInterval));
}

TEST(FilterOrder, CountsWhatComesOneAfterAnother) {
    const struct {
        int nLowpass, nHighpass, nNotch, nAdaptive;
        std::int32_t eFamily;
        std::uint32_t uCount;
    } rows[] = {
        {1, 1, 0, 0, kBessel, 2}, {1, 0, 0, 0, kBoxcar, 0},   {1, 1, 0, 0, kBoxcar, 1},
        {1, 0, 0, 0, kRC, 1},     {0, 1, 0, 0, kBoxcar, 1},   {0, 0, 1, 0, kBessel, 1},
        {0, 0, 0, 1, kBessel, 0}, {1, 1, 1, 1, kGaussian, 3}, {0, 0, 0, 0, kBessel, 0},
    };
    for (const auto& row : rows) {
        FilterOptions options = Selecting(row.nLowpass, row.nHighpass, row.nNotch, row.nAdaptive);
        options.lowpass.m_eFilterFamily = row.eFamily;
        EXPECT_EQ(FilterApplyCount(options), row.uCount) << Selected(options) << row.eFamily;
    }
}

}  // namespace
