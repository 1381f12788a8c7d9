// What the filter dialog refuses, as functions of the record and the data.

#include <gtest/gtest.h>

#include <cmath>
#include <optional>

#include "sigproc/FilterChecks.h"
#include "sigproc_ids.h"

namespace {

class FilterChecks : public testing::Test {
  protected:
    FilterChecks() {
        options.dSampleInterval = 100.0;
        options.lowpass = {1, kBessel, 0, 9, 1000.0, 0.0, 0.0, 0, {}};
        options.highpass = {0, kBessel, 0, 0, 10.0, 0.0, 0.0, 0, {}};
        options.notch = {0, 0, 0, 0, 60.0, 20.0, 0.0, 0, {}};
        options.adaptive.m_uHarmonicNumberEnd = 7;
        options.adaptive.m_uAveragingCycles = 10;
    }

    CheckResult Check() {
        return CheckFilter({.options = options,
                            .signal = signal,
                            .bDeferred = bDeferred,
                            .minimumPoints =
                                [this] {
                                    ++nAsked;
                                    return uMinimum;
                                },
                            .setHarmonics = [this](std::uint32_t u) { harmonics = u; },
                            .setCycles = [this](std::uint32_t u) { cycles = u; }});
    }
    // The string and the control of the first fault; 0 and 0 for none.
    std::pair<UINT, int> Fault() {
        const CheckResult result = Check();
        if (!result.has_value()) return {0, 0};
        EXPECT_EQ(result->nPage, 0);
        return {result->nStringId, result->nControl};
    }
    static constexpr std::pair<UINT, int> kNone = {0, 0};
    void Select(FilterType eType) { SelectFilterType(options, eType); }
    using Found = std::pair<UINT, int>;

    FilterOptions options = {};
    FilterSignal signal = {10000.0, 1000, true};
    bool bDeferred = false;
    std::uint32_t uMinimum = 1;
    int nAsked = 0;
    std::optional<std::uint32_t> harmonics, cycles;
};

TEST_F(FilterChecks, EachArrangementPasses) {
    for (const FilterType eType :
         {kBandpassFilter, kHighpassFilter, kLowpassFilter, kNotchFilter}) {
        Select(eType);
        EXPECT_EQ(Fault(), kNone) << eType;
    }
    EXPECT_EQ(nAsked, 4);
    // Ten periods of 50 Hz are 2000 points.
    Select(kInterferenceFilter);
    signal.uPoints = 2000;
    EXPECT_EQ(Fault(), kNone);
    EXPECT_EQ(nAsked, 4) << "the library is not asked";
}

TEST_F(FilterChecks, AnIntervalIsNeeded) {
    signal.dRate = 0.0;
    EXPECT_EQ(Fault(), Found(2248, 2253));
    bDeferred = true;
    EXPECT_EQ(Fault(), kNone);
}

TEST_F(FilterChecks, TooFewPointsPointAtTheFirstSelectedSection) {
    uMinimum = 1001;
    const struct {
        FilterType eType;
        std::int32_t eFamily;
        int nControl;
    } rows[] = {{kLowpassFilter, kBessel, 2263},
                {kLowpassFilter, kBoxcar, 2264},
                {kBandpassFilter, kBessel, 2263},
                {kHighpassFilter, kBessel, 2262},
                {kNotchFilter, kBessel, 2266}};
    for (const auto& row : rows) {
        Select(row.eType);
        options.lowpass.m_eFilterFamily = row.eFamily;
        EXPECT_EQ(Fault(), Found(2240, row.nControl));
    }
    EXPECT_EQ(Check()->vArguments, (std::vector<std::string>{"1001", "1000"}));
    uMinimum = 1000;
    EXPECT_EQ(Fault(), kNone);
    uMinimum = 4294967295u;
    signal.uPoints = 1u << 31;
    EXPECT_EQ(Check()->vArguments, (std::vector<std::string>{"4294967295", "2147483648"}));
    signal = {10000.0, 0, false};
    nAsked = 0;
    EXPECT_EQ(Fault(), kNone);
    EXPECT_EQ(nAsked, 0);
}

TEST_F(FilterChecks, ANotchHasToSettleWithinTheData) {
    Select(kNotchFilter);
    EXPECT_EQ(Fault(), kNone);  // 20000 over 20 are the 1000 points
    options.notch.m_d3dbWidth = 19.98;
    EXPECT_EQ(Fault(), Found(2238, 2267));  // 1001.001, cut
    options.notch.m_d3dbWidth = 19.985;
    EXPECT_EQ(Fault(), kNone);  // 1000.75, cut
    // No width settles over two seconds.
    for (const double dWidth : {0.0, -4.0}) {
        options.notch.m_d3dbWidth = dWidth;
        signal.uPoints = 19999;
        EXPECT_EQ(Fault(), Found(2238, 2267));
        signal.uPoints = 20000;
        EXPECT_EQ(Fault(), Found(2241, 2267));
    }
    options.notch.m_d3dbWidth = 1e-20;
    signal = {10000.0, 0, false};
    bDeferred = true;
    EXPECT_EQ(Fault(), Found(2241, 2267));
}

TEST_F(FilterChecks, HarmonicsAndCyclesAreMended) {
    Select(kInterferenceFilter);
    options.adaptive.m_uHarmonicNumberEnd = 0;
    options.adaptive.m_uAveragingCycles = 0;
    EXPECT_EQ(Fault(), Found(2237, 2289));
    CheckResult result = Check();
    ASSERT_NE(result->FindAnswer(IDOK), nullptr);
    EXPECT_EQ(result->FindAnswer(IDOK)->eNext, Finding::Next::kStay);
    result->FindAnswer(IDOK)->step();
    EXPECT_EQ(harmonics, 1u);
    options.adaptive.m_uHarmonicNumberEnd = 1;
    EXPECT_EQ(Fault(), Found(2236, 2288));
    result = Check();
    EXPECT_EQ(result->FindAnswer(IDOK)->eNext, Finding::Next::kStay);
    result->FindAnswer(IDOK)->step();
    EXPECT_EQ(cycles, 5u);
    // They are looked at whatever is known, and for an automatic reference too.
    options.adaptive.m_eReferenceGeneration = kAutoReference;
    signal = {0.0, 0, false};
    bDeferred = true;
    EXPECT_EQ(Fault(), Found(2236, 2288));
}

TEST_F(FilterChecks, FewerCyclesAreOfferedWhereTheDataAreShort) {
    Select(kInterferenceFilter);
    signal.uPoints = 1999;
    EXPECT_EQ(Fault(), Found(2331, 2288));
    const CheckResult result = Check();
    EXPECT_EQ(result->vArguments, std::vector<std::string>{"9"});
    EXPECT_EQ(result->uFlags, static_cast<UINT>(MB_ICONQUESTION | MB_YESNO));
    ASSERT_NE(result->FindAnswer(IDYES), nullptr);
    EXPECT_EQ(result->FindAnswer(IDYES)->eNext, Finding::Next::kStay);
    EXPECT_EQ(result->FindAnswer(IDNO), nullptr);
    result->FindAnswer(IDYES)->step();
    EXPECT_EQ(cycles, 9u);
    // At 60 Hz a period is shorter.
    options.adaptive.m_eReferenceGeneration = k60Hz;
    EXPECT_EQ(Fault(), kNone);
    signal.uPoints = 1666;
    EXPECT_EQ(Check()->vArguments, std::vector<std::string>{"9"});
    signal.uPoints = 1667;
    EXPECT_EQ(Fault(), kNone);
    // One period is the least; below there is nothing to offer.
    options.adaptive.m_eReferenceGeneration = k50Hz;
    signal.uPoints = 200;
    EXPECT_EQ(Check()->vArguments, std::vector<std::string>{"1"});
    signal.uPoints = 199;
    EXPECT_EQ(Fault(), Found(2231, 2288));
    EXPECT_TRUE(Check()->vAnswers.empty());
    signal.uPoints = 0;
    EXPECT_EQ(Fault(), Found(2231, 2288));
    options.adaptive.m_uAveragingCycles = 4294967295u;
    signal.uPoints = 1u << 31;
    EXPECT_EQ(Check()->vArguments, std::vector<std::string>{"10737418"});
    // A rate so low that a period is less than a point.
    signal.dRate = 1e-300;
    EXPECT_EQ(Fault(), kNone);
    for (const FilterSignal& unknown : {FilterSignal{0.0, 10, true}, FilterSignal{1e4, 0, false}}) {
        signal = unknown;
        bDeferred = true;
        EXPECT_EQ(Fault(), kNone);
    }
}

TEST_F(FilterChecks, TheLowpassIsWithinItsRange) {
    for (const double d : {0.9999, 1400.01, -3.0, std::nan("")}) {
        options.lowpass.m_dCornerFreq = d;
        EXPECT_EQ(Fault(), Found(2239, 2263)) << d;
    }
    for (const double d : {1.0, 1400.0, 1400.0001}) {
        options.lowpass.m_dCornerFreq = d;
        EXPECT_EQ(Fault(), kNone) << d;
    }
    options.lowpass.m_dCornerFreq = 1e9;
    signal.dRate = 0.0;
    bDeferred = true;
    EXPECT_EQ(Fault(), kNone);
}

TEST_F(FilterChecks, ABoxcarIsComparedByItsPoints) {
    options.lowpass.m_eFilterFamily = kBoxcar;
    options.lowpass.m_dCornerFreq = 1e9;
    options.highpass.m_bIsSelected = 1;  // whose corner it need not exceed
    EXPECT_EQ(Fault(), kNone);
    for (const std::uint32_t u : {0u, 1u, 2u}) {
        options.lowpass.m_uNumAveragePoints = u;
        EXPECT_EQ(Fault(), Found(2235, 2264));
    }
    EXPECT_EQ(Check()->vArguments, std::vector<std::string>{"3"});
    options.lowpass.m_uNumAveragePoints = 100;
    EXPECT_EQ(Fault(), Found(2239, 2264));
    options.lowpass.m_uNumAveragePoints = 99;
    EXPECT_EQ(Fault(), kNone);
    options.lowpass.m_uNumAveragePoints = 4;  // the field's own list refuses it
    EXPECT_EQ(Fault(), kNone);
    options.lowpass.m_uNumAveragePoints = 5000;
    signal = {10000.0, 0, false};
    bDeferred = true;
    EXPECT_EQ(Fault(), kNone);
}

TEST_F(FilterChecks, ABandpassHasItsCornersInOrder) {
    Select(kBandpassFilter);
    options.highpass.m_dCornerFreq = 1000.0;
    EXPECT_EQ(Fault(), Found(2232, 2263));
    options.highpass.m_dCornerFreq = 1000.0001;  // reads the same
    EXPECT_EQ(Fault(), Found(2232, 2263));
    options.highpass.m_dCornerFreq = 999.999;
    EXPECT_EQ(Fault(), kNone);
    // It goes before the ranges.
    options.highpass.m_dCornerFreq = 3000.0;
    options.lowpass.m_dCornerFreq = 2000.0;
    EXPECT_EQ(Fault(), Found(2232, 2263));
    options.lowpass.m_dCornerFreq = 4000.0;
    EXPECT_EQ(Fault(), Found(2239, 2263));
    options.lowpass.m_eFilterFamily = kRC;
    EXPECT_EQ(Fault(), Found(2234, 2262));
}

TEST_F(FilterChecks, HighpassAndNotchAreWithinTheirRanges) {
    Select(kHighpassFilter);
    for (const double d : {0.999, 1400.01}) {
        options.highpass.m_dCornerFreq = d;
        EXPECT_EQ(Fault(), Found(2234, 2262)) << d;
    }
    Select(kNotchFilter);
    for (const double d : {9.99, 3000.01}) {
        options.notch.m_dCornerFreq = d;
        EXPECT_EQ(Fault(), Found(2233, 2266)) << d;
    }
    signal.dRate = 0.0;
    bDeferred = true;
    EXPECT_EQ(Fault(), kNone);
    Select(kHighpassFilter);
    EXPECT_EQ(Fault(), kNone);
}

TEST_F(FilterChecks, FrequenciesAreComparedWithTheIntervalAsItStands) {
    // At 0.1 Hz the interval is 10 s, which no frequency in range exceeds.
    signal = {0.1, 1000, true};
    options.dSampleInterval = 1e7;
    options.lowpass.m_dCornerFreq = 0.01;
    EXPECT_EQ(Fault(), Found(2242, 2263));
    Select(kHighpassFilter);
    options.highpass.m_dCornerFreq = 0.01;
    EXPECT_EQ(Fault(), Found(2242, 2262));
    Select(kNotchFilter);
    options.notch.m_dCornerFreq = 0.02;
    EXPECT_EQ(Fault(), Found(2242, 2266));
    options.notch.m_d3dbWidth = 9.9;
    EXPECT_EQ(Fault(), Found(2241, 2267));
    // Equal is not below.
    options.notch.m_d3dbWidth = 10.0;
    EXPECT_EQ(Fault(), Found(2242, 2266));
}

TEST_F(FilterChecks, TheFirstFaultIsTold) {
    // A record with every fault, which are mended one after another.
    options = {};
    options.lowpass = {1, kBessel, 0, 0, 1.0, 0.0, 0.0, 0, {}};
    options.highpass = {1, kBessel, 0, 0, 2.0, 0.0, 0.0, 0, {}};
    options.notch = {1, 0, 0, 0, 1.0, 1e-9, 0.0, 0, {}};
    options.dSampleInterval = 1e7;
    signal = {0.0, 10, true};
    uMinimum = 11;
    EXPECT_EQ(Fault().first, 2248u);
    signal.dRate = 20.0;
    EXPECT_EQ(Fault().first, 2240u);
    // The interference is not asked for points.
    options.adaptive.m_bIsSelected = 1;
    EXPECT_EQ(Fault().first, 2238u);
    options.notch.m_d3dbWidth = 8.0;
    EXPECT_EQ(Fault().first, 2237u);
    options.adaptive.m_uHarmonicNumberEnd = 1;
    EXPECT_EQ(Fault().first, 2236u);
    options.adaptive.m_uAveragingCycles = 90;
    EXPECT_EQ(Fault().first, 2331u);
    options.adaptive.m_uAveragingCycles = 1;
    EXPECT_EQ(Fault().first, 2232u);
    options.lowpass.m_dCornerFreq = 3.0;
    EXPECT_EQ(Fault(), Found(2239, 2263));
    options.lowpass.m_dCornerFreq = 2.5;
    options.highpass.m_dCornerFreq = 2.0;
    EXPECT_EQ(Fault(), Found(2242, 2263));
    options.dSampleInterval = 2.1e6;
    EXPECT_EQ(Fault(), Found(2242, 2262));
    options.highpass.m_dCornerFreq = 0.0001;
    EXPECT_EQ(Fault(), Found(2234, 2262));
    options.highpass.m_dCornerFreq = 2.2;
    options.notch.m_dCornerFreq = 7.0;
    EXPECT_EQ(Fault(), Found(2233, 2266));
    options.notch.m_dCornerFreq = 2.0;
    options.notch.m_d3dbWidth = 4.0;
    EXPECT_EQ(Fault(), Found(2242, 2266));
    options.notch.m_dCornerFreq = 5.0;
    EXPECT_EQ(Fault(), kNone);
}

}  // namespace
