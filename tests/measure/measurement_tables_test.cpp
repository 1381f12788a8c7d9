// The tables of the measurements, row by row.

#include <gtest/gtest.h>

#include <cstddef>
#include <iterator>

#include "measure/MeasurementTables.h"
#include "platform/platform.h"

namespace {

using Search = ZXADLG_MeasurementSearch;

// The byte of a search that a member is.
int OffsetOf(MeasurementSwitch pOn) {
    static const Search search = {};
    return static_cast<int>(reinterpret_cast<const std::uint8_t*>(&(search.*pOn)) -
                            reinterpret_cast<const std::uint8_t*>(&search));
}
int OffsetOf(std::int32_t Search::*pField) {
    static const Search search = {};
    return static_cast<int>(reinterpret_cast<const std::uint8_t*>(&(search.*pField)) -
                            reinterpret_cast<const std::uint8_t*>(&search));
}
std::string Text(int nString) {
    char szText[128] = "";
    LoadStringA(GetModuleHandleA(nullptr), static_cast<UINT>(nString), szText, sizeof szText);
    return szText;
}

TEST(MeasurementTables, NineteenMeasurementsByNumber) {
    const struct {
        int nCheck, nString, nOffset;
    } rows[] = {{2476, 2350, 3},  {2477, 0, 4},     {2478, 2343, 5},  {2479, 0, 6},
                {2480, 2349, 7},  {2481, 2353, 8},  {2482, 2344, 9},  {2489, 0, 10},
                {2483, 2348, 11}, {2484, 0, 12},    {2472, 2347, 13}, {2485, 0, 14},
                {2492, 2351, 19}, {2488, 2345, 20}, {2490, 2352, 16}, {2486, 0, 15},
                {2491, 2346, 18}, {2487, 0, 17},    {2591, 0, 22}};
    ASSERT_EQ(std::size(rows), std::size(kMeasurements));
    for (std::size_t i = 0; i < std::size(rows); ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ(kMeasurements[i].nCheck, rows[i].nCheck);
        EXPECT_EQ(kMeasurements[i].nString, rows[i].nString);
        EXPECT_EQ(OffsetOf(kMeasurements[i].pOn), rows[i].nOffset);
    }
}

TEST(MeasurementTables, NineteenRowsOfTheOutput) {
    const struct {
        int nId;
        const char* szLabel;
        int eFamily, nOffset;
    } rows[] = {{2, "Peak amplitude", 3, 3},
                {5, "Antipeak amplitude", 3, 5},
                {8, "Mean", 3, 7},
                {9, "Standard deviation", 3, 8},
                {23, "Baseline", 3, 20},
                {10, "Area", 1, 9},
                {12, "Maximum rise slope", 2, 11},
                {15, "Maximum decay slope", 2, 13},
                {22, "Slope", 2, 19},
                {18, "Rise slope", 2, 16},
                {20, "Decay slope", 2, 18},
                {11, "Half-width", 0, 10},
                {19, "Rise time", 0, 15},
                {21, "Decay time", 0, 17},
                {4, "Time of peak (Trace)", -1, 4},
                {7, "Time of antipeak (Trace)", -1, 6},
                {14, "Time of maximum rise slope (Trace)", -1, 12},
                {17, "Time of maximum decay slope (Trace)", -1, 14},
                {1, "Time (Trace)", 0, -1}};
    ASSERT_EQ(std::size(rows), std::size(kOutputRows));
    for (std::size_t i = 0; i < std::size(rows); ++i) {
        SCOPED_TRACE(rows[i].szLabel);
        EXPECT_EQ(kOutputRows[i].nId, rows[i].nId);
        EXPECT_EQ(Text(kOutputRows[i].nString), rows[i].szLabel);
        EXPECT_EQ(kOutputRows[i].eFamily, rows[i].eFamily);
        EXPECT_EQ(kOutputRows[i].pOn == nullptr ? -1 : OffsetOf(kOutputRows[i].pOn),
                  rows[i].nOffset);
        EXPECT_EQ(FindOutputRow(rows[i].nId), &kOutputRows[i]);
    }
    for (const int nId : {0, -1, 3, 6, 13, 16, 24}) EXPECT_EQ(FindOutputRow(nId), nullptr) << nId;
}

TEST(MeasurementTables, PercentsServeTheirMeasurements) {
    const struct {
        int nLabel, nField, nSpin, nUnit, nOffset, nFirst, nSecond;
    } rows[] = {{2513, 2497, 2504, 2493, 36, 14, 15},
                {2515, 2498, 2507, 2494, 40, 14, 15},
                {2514, 2499, 2508, 2495, 48, 16, 17},
                {2516, 2500, 2509, 2496, 44, 16, 17},
                {2525, 2592, 2594, 2505, 52, 18, 18}};
    ASSERT_EQ(std::size(rows), std::size(kMeasurementPercents));
    for (std::size_t i = 0; i < std::size(rows); ++i) {
        SCOPED_TRACE(rows[i].nField);
        const MeasurementPercent& percent = kMeasurementPercents[i];
        EXPECT_EQ(percent.nLabel, rows[i].nLabel);
        EXPECT_EQ(percent.nField, rows[i].nField);
        EXPECT_EQ(percent.nSpin, rows[i].nSpin);
        EXPECT_EQ(percent.nUnit, rows[i].nUnit);
        EXPECT_EQ(OffsetOf(percent.pPercent), rows[i].nOffset);
        EXPECT_EQ(percent.nFirst, rows[i].nFirst);
        EXPECT_EQ(percent.nSecond, rows[i].nSecond);
    }
}

TEST(MeasurementTables, TheBracketIsAPictureInTwoSizes) {
    for (const int nId : {2133, 2333}) {
        EXPECT_NE(FindResourceA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(nId),
                                MAKEINTRESOURCEA(2 /* bitmap */)),
                  nullptr)
            << nId;
    }
}

}  // namespace
