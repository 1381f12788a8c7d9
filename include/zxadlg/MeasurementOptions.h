// Options of Measurements, section Measurements: four arrays of one entry per search, then single
// fields. The record crosses the boundary between host and library: little-endian, this layout,
// plain data.
#pragma once

#include <stddef.h>
#include <stdint.h>

#include "zxadlg/AnalysisCommon.h"

// What one search reports, and how.
struct ZXADLG_MeasurementSearch {
    uint8_t reserved0[1];
    uint8_t bRegionEnable;
    uint8_t bApplyFilter;
    uint8_t bPeakAmplitude;
    uint8_t bPeakTime;
    uint8_t bAntipeakAmplitude;
    uint8_t bAntipeakTime;
    uint8_t bMean;
    uint8_t bStanDev;
    uint8_t bArea;
    uint8_t bHalfWidth;
    uint8_t bMaxRiseSlope;
    uint8_t bMaxRiseSlopeTime;
    uint8_t bMaxDecaySlope;
    uint8_t bMaxDecaySlopeTime;
    uint8_t bRiseTime;
    uint8_t bRiseSlope;
    uint8_t bDecayTime;
    uint8_t bDecaySlope;
    uint8_t bRegionSlope;
    uint8_t bBaseline;
    uint8_t bDoAutoGraph;
    uint8_t bEventDuration;
    int32_t nNumYPlotItems;
    uint8_t reserved1[4];
    int32_t nSmoothingPoints;  // odd, at least 3
    int32_t nRiseFromPercent;
    int32_t nRiseToPercent;
    int32_t nDecayToPercent;
    int32_t nDecayFromPercent;
    int32_t nEventDurationPercent;
    int32_t eAutoPlotXVariable;
    int32_t aeAutoPlotYVariable[24];
};
static_assert(sizeof(ZXADLG_MeasurementSearch) == 156, "layout");
static_assert(offsetof(ZXADLG_MeasurementSearch, bRegionEnable) == 1, "layout");
static_assert(offsetof(ZXADLG_MeasurementSearch, bApplyFilter) == 2, "layout");
static_assert(offsetof(ZXADLG_MeasurementSearch, bPeakAmplitude) == 3, "layout");
static_assert(offsetof(ZXADLG_MeasurementSearch, bPeakTime) == 4, "layout");
static_assert(offsetof(ZXADLG_MeasurementSearch, bAntipeakAmplitude) == 5, "layout");
static_assert(offsetof(ZXADLG_MeasurementSearch, bAntipeakTime) == 6, "layout");
static_assert(offsetof(ZXADLG_MeasurementSearch, bMean) == 7, "layout");
static_assert(offsetof(ZXADLG_MeasurementSearch, bStanDev) == 8, "layout");
static_assert(offsetof(ZXADLG_MeasurementSearch, bArea) == 9, "layout");
static_assert(offsetof(ZXADLG_MeasurementSearch, bHalfWidth) == 10, "layout");
static_assert(offsetof(ZXADLG_MeasurementSearch, bMaxRiseSlope) == 11, "layout");
static_assert(offsetof(ZXADLG_MeasurementSearch, bMaxRiseSlopeTime) == 12, "layout");
static_assert(offsetof(ZXADLG_MeasurementSearch, bMaxDecaySlope) == 13, "layout");
static_assert(offsetof(ZXADLG_MeasurementSearch, bMaxDecaySlopeTime) == 14, "layout");
static_assert(offsetof(ZXADLG_MeasurementSearch, bRiseTime) == 15, "layout");
static_assert(offsetof(ZXADLG_MeasurementSearch, bRiseSlope) == 16, "layout");
static_assert(offsetof(ZXADLG_MeasurementSearch, bDecayTime) == 17, "layout");
static_assert(offsetof(ZXADLG_MeasurementSearch, bDecaySlope) == 18, "layout");
static_assert(offsetof(ZXADLG_MeasurementSearch, bRegionSlope) == 19, "layout");
static_assert(offsetof(ZXADLG_MeasurementSearch, bBaseline) == 20, "layout");
static_assert(offsetof(ZXADLG_MeasurementSearch, bDoAutoGraph) == 21, "layout");
static_assert(offsetof(ZXADLG_MeasurementSearch, bEventDuration) == 22, "layout");
static_assert(offsetof(ZXADLG_MeasurementSearch, nNumYPlotItems) == 24, "layout");
static_assert(offsetof(ZXADLG_MeasurementSearch, nSmoothingPoints) == 32, "layout");
static_assert(offsetof(ZXADLG_MeasurementSearch, nRiseFromPercent) == 36, "layout");
static_assert(offsetof(ZXADLG_MeasurementSearch, nRiseToPercent) == 40, "layout");
static_assert(offsetof(ZXADLG_MeasurementSearch, nDecayToPercent) == 44, "layout");
static_assert(offsetof(ZXADLG_MeasurementSearch, nDecayFromPercent) == 48, "layout");
static_assert(offsetof(ZXADLG_MeasurementSearch, nEventDurationPercent) == 52, "layout");
static_assert(offsetof(ZXADLG_MeasurementSearch, eAutoPlotXVariable) == 56, "layout");
static_assert(offsetof(ZXADLG_MeasurementSearch, aeAutoPlotYVariable) == 60, "layout");

// Where one search looks.
struct ZXADLG_StatisticsRegion {
    int32_t eStatsRegion;  // region kind
    int32_t nStatsRegionStartIndex;
    int32_t nStatsRegionEndIndex;
    int32_t nStatsRegionEpisode1;
    int32_t nStatsRegionEpisode2;
    double dStatsRegionStartTime;  // ms
    double dStatsRegionEndTime;    // ms
};
static_assert(sizeof(ZXADLG_StatisticsRegion) == 40, "layout");
static_assert(offsetof(ZXADLG_StatisticsRegion, eStatsRegion) == 0, "layout");
static_assert(offsetof(ZXADLG_StatisticsRegion, nStatsRegionStartIndex) == 4, "layout");
static_assert(offsetof(ZXADLG_StatisticsRegion, nStatsRegionEndIndex) == 8, "layout");
static_assert(offsetof(ZXADLG_StatisticsRegion, nStatsRegionEpisode1) == 12, "layout");
static_assert(offsetof(ZXADLG_StatisticsRegion, nStatsRegionEpisode2) == 16, "layout");
static_assert(offsetof(ZXADLG_StatisticsRegion, dStatsRegionStartTime) == 24, "layout");
static_assert(offsetof(ZXADLG_StatisticsRegion, dStatsRegionEndTime) == 32, "layout");

// The baseline of one search.
struct ZXADLG_BaselineRegion {
    int32_t eBaseRegion;  // region kind
    int32_t eBaseMode;    // 0 mean level, 1 fixed value
    double dBaseFixedValue;
    int32_t nBaseRegionStartIndex;
    int32_t nBaseRegionEndIndex;
    int32_t nBaseRegionEpisode1;
    int32_t nBaseRegionEpisode2;
    double dBaseRegionStartTime;  // ms
    double dBaseRegionEndTime;    // ms
};
static_assert(sizeof(ZXADLG_BaselineRegion) == 48, "layout");
static_assert(offsetof(ZXADLG_BaselineRegion, eBaseRegion) == 0, "layout");
static_assert(offsetof(ZXADLG_BaselineRegion, eBaseMode) == 4, "layout");
static_assert(offsetof(ZXADLG_BaselineRegion, dBaseFixedValue) == 8, "layout");
static_assert(offsetof(ZXADLG_BaselineRegion, nBaseRegionStartIndex) == 16, "layout");
static_assert(offsetof(ZXADLG_BaselineRegion, nBaseRegionEndIndex) == 20, "layout");
static_assert(offsetof(ZXADLG_BaselineRegion, nBaseRegionEpisode1) == 24, "layout");
static_assert(offsetof(ZXADLG_BaselineRegion, nBaseRegionEpisode2) == 28, "layout");
static_assert(offsetof(ZXADLG_BaselineRegion, dBaseRegionStartTime) == 32, "layout");
static_assert(offsetof(ZXADLG_BaselineRegion, dBaseRegionEndTime) == 40, "layout");

// Peak polarities of one search: 0 positive, 1 negative, 2 absolute.
struct ZXADLG_PolarityEntry {
    int32_t aePeakPolarity[16];  // per group
    uint8_t bPeakApplyToAll;
    int32_t eAllGroupsPeakPolarity;
};
static_assert(sizeof(ZXADLG_PolarityEntry) == 72, "layout");
static_assert(offsetof(ZXADLG_PolarityEntry, aePeakPolarity) == 0, "layout");
static_assert(offsetof(ZXADLG_PolarityEntry, bPeakApplyToAll) == 64, "layout");
static_assert(offsetof(ZXADLG_PolarityEntry, eAllGroupsPeakPolarity) == 68, "layout");

struct ZXADLG_MeasurementOptions {
    ZXADLG_MeasurementSearch aSearches[24];
    ZXADLG_StatisticsRegion aStatsRegions[24];
    ZXADLG_BaselineRegion aBaselines[24];
    ZXADLG_PolarityEntry aPolarities[24];
    ZXADLG_AnalysisCommon common;  // bWriteRegionInfo has the key bVerboseOutput
    int32_t nDlgSearchIndex;       // search shown, from 0
    uint8_t bImportAllowed;        // given by the host
    uint8_t bImportFromFile;
    int32_t eOutputOrder;
};
static_assert(sizeof(ZXADLG_MeasurementOptions) == 7608, "layout");
static_assert(offsetof(ZXADLG_MeasurementOptions, aSearches) == 0, "layout");
static_assert(offsetof(ZXADLG_MeasurementOptions, aStatsRegions) == 3744, "layout");
static_assert(offsetof(ZXADLG_MeasurementOptions, aBaselines) == 4704, "layout");
static_assert(offsetof(ZXADLG_MeasurementOptions, aPolarities) == 5856, "layout");
static_assert(offsetof(ZXADLG_MeasurementOptions, common) == 7584, "layout");
static_assert(offsetof(ZXADLG_MeasurementOptions, nDlgSearchIndex) == 7592, "layout");
static_assert(offsetof(ZXADLG_MeasurementOptions, bImportAllowed) == 7596, "layout");
static_assert(offsetof(ZXADLG_MeasurementOptions, bImportFromFile) == 7597, "layout");
static_assert(offsetof(ZXADLG_MeasurementOptions, eOutputOrder) == 7600, "layout");
