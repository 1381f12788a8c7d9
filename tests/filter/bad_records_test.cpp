// Records and data that describe nothing that could be done: a text, and the values as they were.

#include <gtest/gtest.h>

#include <cstring>
#include <limits>
#include <vector>

#include "FilterFixture.h"

namespace {

using namespace filter_test;

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinite = std::numeric_limits<double>::infinity();

// The text of a refusal; empty when the trace was filtered.
std::string WhyNot(const FilterOptions& options, std::uint32_t nPoints = 3000) {
    const Filter filter = Make(options);
    std::vector<double> values(nPoints, 5.0);
    values[nPoints / 2] = 6.0;
    const std::vector<double> before = values;
    const bool bDone = filter->FilterArray(values.data(), nPoints) != 0;
    const std::string sText = ErrorOf(*filter);
    EXPECT_EQ(bDone, sText.empty());
    if (!bDone) {
        EXPECT_EQ(values, before);
    }
    return sText;
}

TEST(BadRecord, TellsTheInterval) {
    const std::string sInterval = "The sampling interval must be greater than zero.";
    for (const double d : {0.0, -5.0, kNaN, kInfinite}) {
        for (FilterOptions options : {Lowpass(2, 0.1), Highpass(7, 0.1), Notch(0.1, 0.1),
                                      Lowpass(6, 0.1), Interference(0, 1, 5, 2)}) {
            options.dSampleInterval = d;
            EXPECT_EQ(WhyNot(options), sInterval) << d;
        }
        FilterOptions options = Boxcar(5);
        options.dSampleInterval = d;
        EXPECT_EQ(WhyNot(options), "") << "points need no interval";
    }
}

TEST(BadRecord, TellsTheCutoff) {
    const std::string sLow = "The lowpass cutoff frequency is outside the range of the filter.";
    const std::string sHigh = "The highpass cutoff frequency is outside the range of the filter.";
    const std::string sCenter = "The notch center frequency is outside the range of the filter.";
    for (const double d : {0.0, -0.1, kNaN, kInfinite, 0.51, 1e300, 1e-300}) {
        SCOPED_TRACE(d);
        for (const std::int32_t eFamily : {2, 4, 5, 6, 7, 8}) {
            EXPECT_EQ(WhyNot(Lowpass(eFamily, d)), sLow) << eFamily;
        }
        EXPECT_EQ(WhyNot(Highpass(2, d)), sHigh);
        EXPECT_EQ(WhyNot(Highpass(7, d)), sHigh);
        EXPECT_EQ(WhyNot(Notch(d, 0.1)), sCenter);
    }
    struct Row {
        std::int32_t eFamily;
        double dLimit;
    };
    for (const Row& row :
         {Row{2, 0.14}, Row{4, 0.2}, Row{5, 0.2}, Row{6, 0.5}, Row{7, 0.5}, Row{8, 0.15}}) {
        SCOPED_TRACE(row.eFamily);
        EXPECT_EQ(WhyNot(Lowpass(row.eFamily, row.dLimit)), "");
        EXPECT_EQ(WhyNot(Lowpass(row.eFamily, row.dLimit * (1 + 9e-7))), "") << "single precision";
        EXPECT_EQ(WhyNot(Lowpass(row.eFamily, row.dLimit * (1 + 1e-5))), sLow);
    }
    EXPECT_EQ(WhyNot(Highpass(2, 0.1401)), sHigh);
    EXPECT_EQ(WhyNot(Highpass(2, 0.14)), "");
    EXPECT_EQ(WhyNot(Notch(0.5, 0.1)), "");
}

TEST(BadRecord, TellsTheWidthOfTheNotch) {
    for (const double d : {0.0, -1.0, kNaN, kInfinite})
        EXPECT_EQ(WhyNot(Notch(0.1, d)), "The notch width must be greater than zero.") << d;
    EXPECT_EQ(WhyNot(Notch(0.1, 0.5)), "");
    EXPECT_EQ(WhyNot(Notch(0.1, 7.0)), "");
}

TEST(BadRecord, TellsTooManyHarmonics) {
    FilterOptions options = Interference(0, 1, 1001, 1);
    options.dSampleInterval = 2.0;  // 500 kHz: 4900 harmonics below half of it
    EXPECT_EQ(WhyNot(options, 12000), "At most 1000 harmonics can be removed.");
    options.adaptive.m_uHarmonicNumberEnd = 30;
    EXPECT_EQ(WhyNot(options, 12000), "");
    // Those that are not there are no trouble.
    options = Interference(0, 1, 4294967295u, 1);
    EXPECT_EQ(WhyNot(options), "");
}

TEST(BadRecord, TellsTheFirstThingOfSeveral) {
    FilterOptions options = Lowpass(2, 0.3);
    options.highpass = Highpass(2, kNaN).highpass;
    EXPECT_EQ(WhyNot(options), "The lowpass cutoff frequency is outside the range of the filter.");
    options.lowpass.m_dCornerFreq = 500.0;
    EXPECT_EQ(WhyNot(options), "The highpass cutoff frequency is outside the range of the filter.");
}

TEST(BadData, AreToldAndStay) {
    const std::string sValue = "The data contain a value that is not a number or is too large.";
    const Filter filter = Make(Lowpass(7, 0.1));
    for (const double d : {kNaN, kInfinite, -kInfinite, 1e101}) {
        std::vector<double> values(50, 1.0);
        values[49] = d;
        EXPECT_EQ(filter->FilterArray(values.data(), 50), 0);
        EXPECT_EQ(ErrorOf(*filter), sValue) << d;
        EXPECT_EQ(values[48], 1.0);
    }
    EXPECT_EQ(filter->FilterArray(nullptr, 50), 0);
    EXPECT_EQ(ErrorOf(*filter), "There are no data.");
    std::vector<double> values(50, -1e100);
    EXPECT_EQ(filter->FilterArray(values.data(), 11), 0);
    EXPECT_EQ(ErrorOf(*filter), "The data have fewer points than the filter needs.");
    EXPECT_EQ(filter->FilterArray(values.data(), 12), 1);
    EXPECT_EQ(ErrorOf(*filter), "");
}

TEST(BadData, AreNoMatterWhereNothingIsSelected) {
    const Filter filter = Make(NoFilter());
    EXPECT_EQ(filter->FilterArray(nullptr, 0), 1);
    double values[] = {1.0, 2.0};
    EXPECT_EQ(filter->FilterArray(values, 2), 1);
    EXPECT_EQ(values[1], 2.0);
    EXPECT_EQ(ErrorOf(*filter), "");
}

TEST(ErrorText, IsCutAtItsBuffer) {
    const Filter filter = Make(Lowpass(2, 0.0));
    double value = 0.0;
    EXPECT_EQ(filter->FilterArray(&value, 1), 0);
    char szText[9] = "????????";
    EXPECT_EQ(filter->GetErrorText(szText, 5), 1);
    EXPECT_STREQ(szText, "The ");
    EXPECT_EQ(szText[5], '?');
    EXPECT_EQ(filter->GetErrorText(szText, 1), 1);
    EXPECT_STREQ(szText, "");
    EXPECT_EQ(filter->GetErrorText(nullptr, 5), 0);
    EXPECT_EQ(filter->GetErrorText(szText, 0), 0);
}

// Every family at its own smallest number of points, and a record of any bytes.
TEST(Record, OfAnyKindGivesAnObjectThatWorksAtItsSmallestNumberOfPoints) {
    for (const double f : {0.0001, 0.004, 0.1, 0.14}) {
        for (const FilterOptions& options :
             {Lowpass(2, f), Lowpass(4, f), Lowpass(5, f), Lowpass(6, f), Lowpass(7, f),
              Lowpass(8, f), Boxcar(99), Highpass(2, f), Highpass(7, f), Notch(f, 0.01),
              Interference(0, 1, 20, 3), Interference(1, 1, 2000, 1), Interference(2, 1, 20, 3)}) {
            EXPECT_EQ(WhyNot(options, Make(options)->GetMinimumPoints()), "");
        }
    }
    FilterOptions options;
    for (const int nByte : {0x01, 0x3F, 0x7F, 0x80, 0xFF}) {
        std::memset(static_cast<void*>(&options), nByte, sizeof options);
        const Filter filter = Make(options);
        EXPECT_GE(filter->GetMinimumPoints(), 1u) << nByte;
        EXPECT_LE(filter->GetMinimumPoints(), 2147483647u) << nByte;
        std::vector<double> values(100, 1.0);
        EXPECT_EQ(filter->FilterArray(values.data(), 100), 0) << nByte;
    }
}

TEST(Object, KeepsNothingBetweenTwoTraces) {
    const Filter filter = Make(Lowpass(5, 0.05));
    std::vector<double> first(400, 0.0);
    first[200] = 100.0;
    std::vector<double> second = first;
    std::vector<double> other(400, 77.0);
    EXPECT_EQ(filter->FilterArray(first.data(), 400), 1);
    EXPECT_EQ(filter->FilterArray(other.data(), 400), 1);
    EXPECT_EQ(filter->FilterArray(second.data(), 400), 1);
    EXPECT_EQ(first, second);
}

}  // namespace
