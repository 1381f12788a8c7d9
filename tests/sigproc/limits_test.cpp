// The limits over a grid of 10,000 combinations and the averaging over 2,000, against figures of a
// second model (tools/sigproc/limits.py), and what the notes on them name.

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <sstream>
#include <string>

#include "analysis/SmoothingLengths.h"
#include "sigproc/FilterLimits.h"
#include "sigproc/SamplingRate.h"
#include "sigproc/SpectrumLengths.h"
#include "text/NumberParse.h"

namespace {

// The library's own reading of numbers: those of C runtimes differ.
class Figures {
  public:
    Figures() : m_file(ZX_SOURCE_DIR "/tests/sigproc/limits.txt") {}

    // The next line; false at the end of a part.
    bool Next() {
        std::string sLine;
        if (!std::getline(m_file, sLine)) return false;
        while (!sLine.empty() && (sLine.back() == '\r' || sLine.back() == '\n')) sLine.pop_back();
        if (sLine.empty() || sLine == "averaging") return false;
        m_line = std::istringstream(sLine);
        return true;
    }
    double Number() {
        std::string sWord;
        m_line >> sWord;
        return TextToDouble(sWord.c_str());
    }
    std::uint32_t Count() { return static_cast<std::uint32_t>(Number()); }

  private:
    std::ifstream m_file;
    std::istringstream m_line;
};

bool IsNear(double a, double b) {
    return std::fabs(a - b) <= 1e-11 * std::fmax(std::fabs(a), std::fabs(b));
}

TEST(LimitsGrid, AgreesWithASecondModel) {
    Figures figures;
    int nCells = 0;
    while (figures.Next()) {
        const double dRate = figures.Number();
        const std::uint32_t uPoints = figures.Count();
        for (std::int32_t eFamily = 2; eFamily < 10; ++eFamily) {
            const double dLow = figures.Number();
            const double dHigh = figures.Number();
            const double dStep = figures.Number();
            const FilterLimits limits = LowpassLimits(eFamily, dRate, uPoints);
            ++nCells;
            ASSERT_TRUE(IsNear(limits.dLow, dLow) && IsNear(limits.dHigh, dHigh) &&
                        CutoffStep(limits) == dStep)
                << dRate << " Hz, " << uPoints << " points, family " << eFamily << ": "
                << limits.dLow << " to " << limits.dHigh << " by " << CutoffStep(limits)
                << " instead of " << dLow << " to " << dHigh << " by " << dStep;
        }
    }
    EXPECT_EQ(nCells, 10000);
}

TEST(LimitsGrid, AveragingAgreesWithASecondModel) {
    Figures figures;
    while (figures.Next()) {
    }
    int nRows = 0;
    while (figures.Next()) {
        SpectrumSignal signal;
        SpectrumOptions options = {};
        signal.uPoints = figures.Count();
        signal.uWholePoints = figures.Count();
        signal.uTraces = figures.Count();
        options.uTransformLength = figures.Count();
        signal.bSwept = figures.Count() != 0;
        options.bAverageSegments = static_cast<std::int32_t>(figures.Count());
        options.bDoOverlap = static_cast<std::int32_t>(figures.Count());
        options.bDialogAverageTraces = static_cast<std::int32_t>(figures.Count());
        const bool bSegments = figures.Count() != 0;
        const bool bOverlap = figures.Count() != 0;
        const bool bTraces = figures.Count() != 0;
        const std::int64_t nCount = static_cast<std::int64_t>(figures.Number());
        const SpectrumAveraging averaging = AveragingOf(options, signal);
        SCOPED_TRACE(nRows++);
        ASSERT_EQ(averaging.bSegmentsEnabled, bSegments);
        ASSERT_EQ(averaging.bOverlapEnabled, bOverlap);
        ASSERT_EQ(averaging.bTracesEnabled, bTraces);
        ASSERT_EQ(SegmentCount(options, signal), nCount);
    }
    EXPECT_EQ(nRows, 2000);
}

// --- Named figures -------------------------------------------------------------------------------

TEST(FilterLimits, AreSharesOfTheRateByFamily) {
    const struct {
        std::int32_t eFamily;
        double dHigh;
    } rows[] = {{2, 1400.0}, {4, 2000.0}, {5, 2000.0}, {6, 5000.0},
                {7, 5000.0}, {8, 1500.0}, {9, 1400.0}, {-1, 1400.0}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.eFamily);
        const FilterLimits limits = LowpassLimits(row.eFamily, 10000.0, 1000000);
        EXPECT_DOUBLE_EQ(limits.dHigh, row.dHigh);
        // The longest Gaussian takes 0.0002 of the rate, whatever the points.
        EXPECT_DOUBLE_EQ(limits.dLow, row.eFamily == 6 ? 3.0 : 1.0);
    }
    EXPECT_DOUBLE_EQ(HighpassLimits(2, 10000.0).dHigh, 1400.0);
    EXPECT_DOUBLE_EQ(HighpassLimits(7, 10000.0).dHigh, 5000.0);
    EXPECT_DOUBLE_EQ(HighpassLimits(4, 10000.0).dHigh, 1400.0);
    EXPECT_DOUBLE_EQ(HighpassLimits(7, 10000.0).dLow, 1.0);
    EXPECT_DOUBLE_EQ(NotchCenterLimits(10000.0).dLow, 10.0);
    EXPECT_DOUBLE_EQ(NotchCenterLimits(10000.0).dHigh, 3000.0);
    EXPECT_DOUBLE_EQ(NotchWidthLimits(10000.0).dLow, 0.0);
    EXPECT_DOUBLE_EQ(NotchWidthLimits(10000.0).dHigh, 5000.0);
}

TEST(FilterLimits, GaussianMinimumRisesAsThePointsFall) {
    const struct {
        std::uint32_t uPoints;
        double dLow;
    } rows[] = {{1000, 45.0}, {16, 3535.0}, {12, 4999.0}, {8, 4999.0},
                {7, 4999.0},  {3, 4999.0},  {1, 4999.0},  {0, 1.0}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.uPoints);
        const FilterLimits limits = LowpassLimits(kGaussian, 10000.0, row.uPoints);
        EXPECT_EQ(limits.dLow, row.dLow);
        EXPECT_EQ(limits.dHigh, 5000.0);
    }
    // Well above 0.0001 of the rate.
    EXPECT_GT(LowpassLimits(kGaussian, 10000.0, 16).dLow, 1000.0);
    EXPECT_EQ(LowpassLimits(kGaussian, 10000.0, 1u << 31).dLow, 3.0);
}

TEST(FilterLimits, OddRatesStayFinite) {
    for (const double dRate : {1e-300, 1e-5, 1e12, 1e300}) {
        SCOPED_TRACE(dRate);
        for (std::int32_t eFamily = 2; eFamily < 9; ++eFamily) {
            for (const std::uint32_t uPoints : {0u, 1u, 3u, 15u, 1u << 31}) {
                const FilterLimits limits = LowpassLimits(eFamily, dRate, uPoints);
                EXPECT_TRUE(std::isfinite(limits.dLow) && std::isfinite(limits.dHigh));
                EXPECT_LT(limits.dLow, limits.dHigh * (1.0 + 1e-15));
                EXPECT_GE(CutoffStep(limits), 1.0);
                EXPECT_LE(CutoffStep(limits), 100.0);
            }
        }
    }
    for (const double dRate : {0.0, -1.0, std::nan(""), static_cast<double>(INFINITY), 1e301})
        EXPECT_EQ(KnownRate(dRate), 0.0);
    EXPECT_EQ(KnownRate(1e-300), 1e-300);
    EXPECT_EQ(KnownRate(1e300), 1e300);
}

TEST(FilterLimits, StepsAreWholeTens) {
    EXPECT_EQ(CutoffStep(LowpassLimits(kBessel, 10000.0, 1000)), 20.0);
    EXPECT_EQ(CutoffStep(LowpassLimits(kRC, 10000.0, 1000)), 70.0);
    EXPECT_EQ(CutoffStep(NotchCenterLimits(10000.0)), 40.0);
    EXPECT_EQ(CutoffStep({0.0, 74.0}), 1.0);
    EXPECT_EQ(CutoffStep({0.0, 75.0}), 10.0);
    // A multiple of ten stays.
    EXPECT_EQ(CutoffStep({0.0, 1500.0}), 20.0);
    EXPECT_EQ(CutoffStep({0.0, 75.0 * 101.0}), 100.0);
}

using Lengths = std::vector<std::int32_t>;

TEST(SmoothingLengths, AreOddAndFitTwiceIntoThePoints) {
    for (const std::uint32_t uPoints : {0u, 3u, 6u, 10u, 13u})
        EXPECT_EQ(SmoothingLengths(uPoints), (Lengths{3, 3, 3})) << uPoints;
    EXPECT_EQ(SmoothingLengths(14), (Lengths{3, 5, 7}));
    EXPECT_EQ(SmoothingLengths(19), (Lengths{3, 5, 7, 9}));
    EXPECT_EQ(SmoothingLengths(197).size(), 48u);
    for (const std::uint32_t uPoints : {198u, 1000u, 1u << 31, 0xFFFFFFFFu}) {
        EXPECT_EQ(SmoothingLengths(uPoints).size(), 49u) << uPoints;
        EXPECT_EQ(SmoothingLengths(uPoints).back(), 99) << uPoints;
    }
    const FilterLimits inverted = LowpassLimits(kBoxcar, 10000.0, 3);
    EXPECT_EQ(inverted.dLow, 2.0);
    EXPECT_EQ(inverted.dHigh, 3.0);
}

TEST(FilterFigures, CountTheCoefficientsOfAGaussian) {
    // 0.13250518 over the share of the rate, four times that, both ways and the middle.
    EXPECT_EQ(CoefficientCount(1000.0, 10000.0), 11);
    EXPECT_EQ(CoefficientCount(100.0, 10000.0), 107);
    EXPECT_EQ(CoefficientCount(1.0, 10000.0), 10601);
    EXPECT_EQ(CoefficientCount(5000.0, 10000.0), 5);
    for (const double d : {0.0, -1.0, std::nan("")}) {
        EXPECT_EQ(CoefficientCount(d, 10000.0), 0);
        EXPECT_EQ(CoefficientCount(1000.0, d), 0);
    }
    EXPECT_EQ(CoefficientCount(1e-300, 1e12), 2000000001);
}

TEST(FilterFigures, TellPeriodAndBandwidthOfTheInterference) {
    EXPECT_EQ(SamplesPerPeriod(k50Hz, 10000.0), 200.0);
    EXPECT_EQ(SamplesPerPeriod(kAutoReference, 10000.0), 200.0);
    EXPECT_EQ(SamplesPerPeriod(k60Hz, 12000.0), 200.0);
    EXPECT_EQ(SamplesPerPeriod(k60Hz, 0.0), 0.0);
    EXPECT_EQ(InterferenceBandwidth(k50Hz, 1), 30.000001192092896);
    EXPECT_EQ(InterferenceBandwidth(kAutoReference, 1), 30.000001192092896);
    EXPECT_EQ(InterferenceBandwidth(k60Hz, 1), 36.000001430511475);
    EXPECT_EQ(InterferenceBandwidth(k60Hz, 8), 36.000001430511475 / 8.0);
    EXPECT_EQ(InterferenceBandwidth(k50Hz, 0), 0.0);
}

TEST(ShownFrequency, HasSixDigits) {
    EXPECT_EQ(ShownFrequency(1728.3938), 1728.39);
    EXPECT_EQ(ShownFrequency(0.1234567), 0.123457);
    EXPECT_TRUE(std::isnan(ShownFrequency(std::nan(""))));
    // Both sides are compared as they are shown, so that single precision costs nobody a limit.
    const FilterLimits limits = {1.0, 1728.3938};
    EXPECT_TRUE(IsShownWithin(SingleFrequency(1728.39), limits));
    EXPECT_GT(SingleFrequency(1728.39), 1728.39);
    EXPECT_FALSE(IsShownWithin(1728.40, limits));
    EXPECT_TRUE(IsShownWithin(0.9999999, limits));
    EXPECT_FALSE(IsShownWithin(0.99999, limits));
    EXPECT_FALSE(IsShownWithin(std::nan(""), limits));
    EXPECT_EQ(SingleFrequency(1e300), static_cast<double>(3.402823466e38f));
    EXPECT_EQ(SingleFrequency(-1e300), -static_cast<double>(3.402823466e38f));
    EXPECT_EQ(SingleFrequency(0.1), static_cast<double>(0.1f));
}

TEST(TransformLength, IsTheLongestThatFits) {
    const struct {
        std::uint32_t uPoints, uMaximum, uUsual;
    } rows[] = {
        {0, 16, 16},
        {15, 16, 16},
        {16, 16, 16},
        {17, 16, 16},
        {31, 16, 16},
        {32, 32, 32},
        {100, 64, 64},
        {1023, 512, 512},
        {1024, 1024, 1024},
        {5000, 4096, 1024},
        {524287, 262144, 1024},
        {524288, 524288, 1024},
        {1u << 31, 524288, 1024},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.uPoints);
        EXPECT_EQ(MaximumLength(row.uPoints), row.uMaximum);
        EXPECT_EQ(UsualLength(row.uPoints), row.uUsual);
    }
    EXPECT_EQ(TransformLengths().size(), 16u);
    std::int32_t nLength = 16;
    for (const std::int32_t n : TransformLengths()) {
        EXPECT_EQ(n, nLength);
        nLength *= 2;
    }
}

TEST(SpectralFigures, ResolutionIsTheRateOverTheLength) {
    EXPECT_EQ(SpectralResolution(1024, 10000.0), 9.765625);
    EXPECT_EQ(SpectralResolution(0, 10000.0), 0.0);
    EXPECT_EQ(SpectralResolution(64, 0.0), 0.0);
}

// --- Averaging at its borders --------------------------------------------------------------------

struct Averaging : testing::Test {
    Averaging() { options.uTransformLength = 64; }
    std::string Enabled(std::uint32_t uPoints) {
        signal.uPoints = signal.uWholePoints = uPoints;
        const SpectrumAveraging averaging = AveragingOf(options, signal);
        return std::string(averaging.bSegmentsEnabled ? "S" : "-") +
               (averaging.bOverlapEnabled ? "O" : "-") + (averaging.bTracesEnabled ? "T" : "-");
    }
    SpectrumOptions options = {};
    SpectrumSignal signal;
};

TEST_F(Averaging, NeedsRoomForTwoLengths) {
    EXPECT_EQ(Enabled(95), "---");
    EXPECT_EQ(Enabled(96), "-O-");
    EXPECT_EQ(Enabled(127), "-O-");
    EXPECT_EQ(Enabled(128), "S--");
    options.bAverageSegments = 1;
    EXPECT_EQ(Enabled(128), "SO-");
    EXPECT_EQ(Enabled(129), "SO-");
    EXPECT_EQ(Enabled(127), "-O-");
    signal.uTraces = 2;
    EXPECT_EQ(Enabled(127), "-OT");
}

TEST_F(Averaging, OfSweepsLooksAtTheWholeSweep) {
    signal.bSwept = true;
    EXPECT_EQ(Enabled(96), "---");
    EXPECT_EQ(Enabled(127), "---");
    EXPECT_EQ(Enabled(128), "SO-");
    signal.uPoints = 128;
    signal.uWholePoints = 95;
    EXPECT_FALSE(AveragingOf(options, signal).bOverlapEnabled);
    signal.uWholePoints = 96;
    EXPECT_TRUE(AveragingOf(options, signal).bOverlapEnabled);
}

TEST_F(Averaging, CountsTheSegmentsThatAreShown) {
    signal.uPoints = signal.uWholePoints = 640;
    signal.uTraces = 5;
    EXPECT_EQ(SegmentCount(options, signal), 50);
    options.bDialogAverageTraces = 1;
    EXPECT_EQ(SegmentCount(options, signal), 5);
    options.bAverageSegments = 1;
    EXPECT_EQ(SegmentCount(options, signal), 1);
    options.bDialogAverageTraces = 0;
    EXPECT_EQ(SegmentCount(options, signal), 10);
    options.bDoOverlap = 1;
    EXPECT_EQ(SegmentCount(options, signal), 19);
    // An overlap that has no room counts as none.
    options.bAverageSegments = 0;
    EXPECT_EQ(SegmentCount(options, signal), 50);
}

TEST_F(Averaging, CountsBeyond32BitsAndNeverBelowZero) {
    options.uTransformLength = 16;
    signal.uPoints = signal.uWholePoints = 1u << 31;
    signal.uTraces = 10000;
    EXPECT_EQ(SegmentCount(options, signal), 1342177280000);
    options.bDoOverlap = options.bAverageSegments = 1;
    EXPECT_EQ(SegmentCount(options, signal), 268435455);
    options.uTransformLength = 0;
    EXPECT_EQ(SegmentCount(options, signal), 0);
    options.uTransformLength = 524288;
    signal.uPoints = 1000;
    signal.bPointsKnown = false;
    EXPECT_EQ(SegmentCount(options, signal), 0);
}

}  // namespace
