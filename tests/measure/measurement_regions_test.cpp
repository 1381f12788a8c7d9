// Times and samples of regions, the record as a whole, and the region table of the host.

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <memory>

#include "analysis/SmoothingLengths.h"
#include "measure/MeasurementRecord.h"
#include "measure/MeasurementRegions.h"

namespace {

using Record = ZXADLG_MeasurementOptions;
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr SampleAxis kAxis = {0.05, 1000, true};

void ExpectSpan(const RegionSpan& span, std::int32_t nStart, std::int32_t nEnd, double dStart,
                double dEnd) {
    EXPECT_EQ(span.nStart, nStart);
    EXPECT_EQ(span.nEnd, nEnd);
    EXPECT_DOUBLE_EQ(span.dStart, dStart);
    EXPECT_DOUBLE_EQ(span.dEnd, dEnd);
}

std::unique_ptr<Record> Filled(int nByte) {
    auto pRecord = std::make_unique<Record>();
    std::memset(static_cast<void*>(pRecord.get()), nByte, sizeof *pRecord);
    return pRecord;
}

// --- Times and samples ---------------------------------------------------------------------------

TEST(MeasurementAxis, TheIntervalIsAThousandthOfTheRate) {
    EXPECT_DOUBLE_EQ(IntervalOfRate(20000.0), 0.05);
    for (const double dRate : {0.0, -5.0, kNaN, 1e-306}) EXPECT_EQ(IntervalOfRate(dRate), 0.0);
}

TEST(MeasurementAxis, FieldsEndBehindTheLastSample) {
    EXPECT_DOUBLE_EQ(kAxis.End(), 50.0);
    EXPECT_DOUBLE_EQ((SampleAxis{0.0, 1000, true}).End(), 1000.0);
    EXPECT_EQ((SampleAxis{0.05, 0, true}).End(), 0.0);
    EXPECT_GT((SampleAxis{0.05, 0, false}).End(), 1e8);
}

TEST(MeasurementAxis, ASampleIsTheNearestOne) {
    EXPECT_EQ(SampleAt(kAxis, 0.149), 3);
    EXPECT_EQ(SampleAt(kAxis, 0.12), 2);
    EXPECT_EQ(SampleAt(kAxis, 0.0), 0);
    EXPECT_EQ(SampleAt(kAxis, -1.0), 0);
    EXPECT_EQ(SampleAt(kAxis, kNaN), 0);
    EXPECT_EQ(SampleAt(kAxis, 1e300), 2147483647);
    // Without an interval times count samples.
    EXPECT_EQ(SampleAt({0.0, 1000, true}, 7.4), 7);
    EXPECT_EQ(SampleAt({0.0, 1000, true}, 7.5), 8);
}

TEST(MeasurementRegions, TypedTimesGiveSamples) {
    ExpectSpan(SpanOfTimes(kAxis, 0.149, 12.5), 3, 250, 0.149, 12.5);
}

TEST(MeasurementRegions, TypedTimesBeyondTheDataBecomeTheirEnd) {
    ExpectSpan(SpanOfTimes(kAxis, -3.0, 50.0), 0, 999, 0.0, 49.95);
    ExpectSpan(SpanOfTimes(kAxis, kNaN, 1e300), 0, 999, 0.0, 49.95);
    ExpectSpan(SpanOfTimes({0.0, 6, true}, 2.0, 44.0), 2, 5, 2.0, 5.0);
    ExpectSpan(SpanOfTimes({0.05, 0, true}, 2.0, 3.0), 0, 0, 0.0, 0.0);
    ExpectSpan(SpanOfTimes({0.05, 1, true}, 2.0, 0.01), 0, 0, 0.0, 0.01);
    // Where nobody knows how long the data are, no time is too late.
    ExpectSpan(SpanOfTimes({0.05, 0, false}, 2.0, 70.0), 40, 1400, 2.0, 70.0);
}

TEST(MeasurementRegions, SamplesGiveTimes) {
    ExpectSpan(SpanOfSamples(kAxis, 100, 199), 100, 199, 5.0, 9.95);
    ExpectSpan(SpanOfSamples({0.0, 1000, true}, 100, 199), 100, 199, 100.0, 199.0);
    ExpectSpan(SpanOfSamples({0.0, 1000, true}, 4294967295u, 0), 2147483647, 0, 2147483647.0, 0.0);
}

TEST(MeasurementRegions, TheUserSetsTheEndsOfNumberedRegions) {
    for (const int nKind : {1, 25, 35}) EXPECT_TRUE(HasUsersEnds(nKind)) << nKind;
    for (const int nKind : {-1, 0, 36, 99}) EXPECT_FALSE(HasUsersEnds(nKind)) << nKind;
}

TEST(MeasurementRegions, SamplesAndTimesAreOrderedByThemselves) {
    ExpectSpan(Ordered({9, 4, 1.0, 2.0}), 4, 9, 1.0, 2.0);
    ExpectSpan(Ordered({4, 9, 2.0, 1.0}), 4, 9, 1.0, 2.0);
    ExpectSpan(Ordered({9, 4, 2.0, 1.0}), 4, 9, 1.0, 2.0);
}

TEST(SmoothingLengths, DataShorterThanSixSamplesStillHaveAListOfThree) {
    using Lengths = std::vector<std::int32_t>;
    for (const std::uint32_t uPoints : {0u, 1u, 5u, 6u, 12u})
        EXPECT_EQ(SmoothingLengths(uPoints), (Lengths{3, 3, 3})) << uPoints;
    EXPECT_EQ(SmoothingLengths(14), (Lengths{3, 5, 7}));
    EXPECT_EQ(SmoothingLengths(1000).size(), 49u);
    EXPECT_EQ(SmoothingLengths(4294967295u).back(), 99);
}

// --- The record ------------------------------------------------------------------------------

TEST(MeasurementRecord, TakesTheSearchesOfTheHostButTheFirstGraph) {
    const auto pHost = Filled(0x11);
    const auto pRecord = Filled(0x22);
    pRecord->nDlgSearchIndex = 7;
    TakeSearches(*pRecord, *pHost);
    EXPECT_EQ(pRecord->aSearches[0].bMean, 0x11);
    EXPECT_EQ(pRecord->aSearches[0].nRiseFromPercent, 0x11111111);
    EXPECT_EQ(pRecord->aSearches[0].bDoAutoGraph, 0x22);
    EXPECT_EQ(pRecord->aSearches[0].nNumYPlotItems, 0x22222222);
    EXPECT_EQ(pRecord->aSearches[0].eAutoPlotXVariable, 0x22222222);
    for (const std::int32_t eY : pRecord->aSearches[0].aeAutoPlotYVariable)
        EXPECT_EQ(eY, 0x22222222);
    for (int i = 1; i < 24; ++i) {
        EXPECT_EQ(std::memcmp(&pRecord->aSearches[i], &pHost->aSearches[i], 156), 0) << i;
    }
    EXPECT_EQ(pRecord->aStatsRegions[23].eStatsRegion, 0x11111111);
    EXPECT_EQ(pRecord->aBaselines[0].eBaseMode, 0x11111111);
    EXPECT_EQ(pRecord->aPolarities[23].aePeakPolarity[15], 0x11111111);
    EXPECT_EQ(pRecord->common.eDestinationOption, 0x22222222);
    EXPECT_EQ(pRecord->common.bWriteRegionInfo, 0x22);
    EXPECT_EQ(pRecord->nDlgSearchIndex, 7);
    EXPECT_EQ(pRecord->bImportAllowed, 0x22);
    EXPECT_EQ(pRecord->bImportFromFile, 0x22);
    EXPECT_EQ(pRecord->eOutputOrder, 0x22222222);
}

// Bytes of no field, and the permission to import, are the host's.
TEST(MeasurementRecord, IsHandedBackFieldByField) {
    const auto pHost = Filled(0xA5);
    const auto pRecord = Filled(0x5A);
    ReturnMeasurements(pHost.get(), *pRecord);
    const auto* pBytes = reinterpret_cast<const unsigned char*>(pHost.get());
    for (std::size_t n = 0; n < sizeof(Record); ++n) {
        bool bHosts = false;
        if (n < 3744) {
            const std::size_t nByte = n % 156;
            bHosts = nByte == 0 || nByte == 23 || (nByte >= 28 && nByte < 32);
        } else if (n < 4704) {
            const std::size_t nByte = (n - 3744) % 40;
            bHosts = nByte >= 20 && nByte < 24;
        } else if (n >= 5856 && n < 7584) {
            const std::size_t nByte = (n - 5856) % 72;
            bHosts = nByte >= 65 && nByte < 68;
        } else if (n >= 7590) {
            bHosts = n < 7592 || n == 7596 || n == 7598 || n == 7599 || n >= 7604;
        }
        EXPECT_EQ(pBytes[n], bHosts ? 0xA5 : 0x5A) << n;
    }
}

TEST(MeasurementRecord, TheImportLeavesTheFirstSearchOnAlone) {
    const auto pRecord = Filled(0);
    pRecord->aSearches[3].bRegionEnable = 1;
    pRecord->aSearches[23].bRegionEnable = 1;
    AcceptImport(*pRecord, true);
    EXPECT_EQ(pRecord->bImportFromFile, 1);
    for (int i = 0; i < 24; ++i) EXPECT_EQ(pRecord->aSearches[i].bRegionEnable, i == 0) << i;
}

TEST(MeasurementRecord, WithoutAnImportTheSearchesStay) {
    const auto pRecord = Filled(0);
    pRecord->aSearches[3].bRegionEnable = 1;
    pRecord->bImportFromFile = 1;
    AcceptImport(*pRecord, false);
    EXPECT_EQ(pRecord->bImportFromFile, 0);
    EXPECT_EQ(FirstSearchOn(*pRecord), 3);
}

TEST(MeasurementRecord, TellsTheFirstSearchThatIsOn) {
    const auto pRecord = Filled(0);
    EXPECT_EQ(FirstSearchOn(*pRecord), -1);
    pRecord->aSearches[23].bRegionEnable = 7;
    EXPECT_EQ(FirstSearchOn(*pRecord), 23);
}

TEST(MeasurementRecord, OrdersTheRegionsOfSearchesThatAreOn) {
    const auto pRecord = Filled(0);
    pRecord->aSearches[2].bRegionEnable = 1;
    for (const int i : {2, 4}) {
        StoreSpan(pRecord->aStatsRegions[i], {9, 4, 0.9, 0.4});
        StoreSpan(pRecord->aBaselines[i], {8, 3, 0.8, 0.3});
    }
    OrderRegions(*pRecord);
    ExpectSpan(SpanOf(pRecord->aStatsRegions[2]), 4, 9, 0.4, 0.9);
    ExpectSpan(SpanOf(pRecord->aBaselines[2]), 3, 8, 0.3, 0.8);
    ExpectSpan(SpanOf(pRecord->aStatsRegions[4]), 9, 4, 0.9, 0.4);
    ExpectSpan(SpanOf(pRecord->aBaselines[4]), 8, 3, 0.8, 0.3);
}

// --- The region table ------------------------------------------------------------------------

class RegionTable : public testing::Test {
  protected:
    RegionTable() {
        data.aRegions[0].nRegionId = 8;
        data.aRegions[1].nRegionId = 3;
        data.aRegions[2].nRegionId = 40;
        data.aRegions[49].nRegionId = 5;
        for (ZXADLG_RegionEntry& entry : data.aRegions) {
            entry.uFirstPoint = 71;
            entry.uLastPoint = 72;
            entry.dStart = 7.1;
            entry.dEnd = 7.2;
        }
    }
    void Search(int i, int nKind, const RegionSpan& span, int nBaseKind, const RegionSpan& base) {
        pRecord->aSearches[i].bRegionEnable = 1;
        pRecord->aStatsRegions[i].eStatsRegion = nKind;
        StoreSpan(pRecord->aStatsRegions[i], span);
        pRecord->aBaselines[i].eBaseRegion = nBaseKind;
        StoreSpan(pRecord->aBaselines[i], base);
    }
    void ExpectEntry(int i, std::uint32_t uFirst, std::uint32_t uLast, double dStart,
                     double dEnd) const {
        SCOPED_TRACE(i);
        EXPECT_EQ(data.aRegions[i].uFirstPoint, uFirst);
        EXPECT_EQ(data.aRegions[i].uLastPoint, uLast);
        EXPECT_DOUBLE_EQ(data.aRegions[i].dStart, dStart);
        EXPECT_DOUBLE_EQ(data.aRegions[i].dEnd, dEnd);
    }

    std::unique_ptr<Record> pRecord = Filled(0);
    ZXADLG_DataOptions data = {};
};

TEST_F(RegionTable, NumberedRegionsTakeTimesAndOthersSamples) {
    Search(0, 3, {1, 2, 0.149, 12.5}, 40, {100, 199, 1.0, 2.0});
    WriteRegions(*pRecord, kAxis, data);
    ExpectEntry(0, 71, 72, 7.1, 7.2);
    ExpectEntry(1, 3, 250, 0.149, 12.5);
    ExpectEntry(2, 100, 199, 5.0, 9.95);
    ExpectEntry(49, 71, 72, 7.1, 7.2);
}

TEST_F(RegionTable, OfSeveralTheLastOneCounts) {
    Search(0, 3, {0, 0, 1.0, 2.0}, 5, {0, 0, 3.0, 4.0});
    Search(6, 8, {0, 0, 5.0, 6.0}, 3, {0, 0, 7.0, 8.0});
    WriteRegions(*pRecord, kAxis, data);
    ExpectEntry(0, 100, 120, 5.0, 6.0);
    ExpectEntry(1, 140, 160, 7.0, 8.0);
    ExpectEntry(49, 60, 80, 3.0, 4.0);
}

TEST_F(RegionTable, SearchesThatAreOffLeaveItAlone) {
    data.aRegions[4].nRegionId = 0;
    Search(0, 3, {0, 0, 1.0, 2.0}, 5, {0, 0, 3.0, 4.0});
    // Search 1 is off and its kind is 0.
    WriteRegions(*pRecord, kAxis, data);
    ExpectEntry(4, 71, 72, 7.1, 7.2);
}

TEST_F(RegionTable, AFixedBaselineHasNoRegion) {
    Search(0, 3, {0, 0, 1.0, 2.0}, 3, {0, 0, 3.0, 4.0});
    pRecord->aBaselines[0].eBaseMode = 1;
    WriteRegions(*pRecord, kAxis, data);
    ExpectEntry(1, 20, 40, 1.0, 2.0);
}

TEST_F(RegionTable, NegativeBecomesZero) {
    Search(0, 3, {0, 0, -4.0, kNaN}, 40, {-5, 9, 0.0, 0.0});
    WriteRegions(*pRecord, kAxis, data);
    EXPECT_EQ(data.aRegions[1].uFirstPoint, 0u);
    EXPECT_EQ(data.aRegions[1].uLastPoint, 0u);
    ExpectEntry(2, 0, 9, 0.0, 0.45);
}

TEST_F(RegionTable, WithoutAnIntervalTimesAreSamples) {
    Search(0, 3, {0, 0, 7.5, 9.4}, 40, {100, 199, 1.0, 2.0});
    WriteRegions(*pRecord, {0.0, 1000, true}, data);
    ExpectEntry(1, 8, 9, 7.5, 9.4);
    ExpectEntry(2, 100, 199, 100.0, 199.0);
}

}  // namespace
