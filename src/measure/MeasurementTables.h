// What a search can measure, which of it a graph can show, and the percents of the amplitude
// between which some of it is taken.
#pragma once

#include <cstdint>

#include "measurement_ids.h"
#include "zxadlg/MeasurementOptions.h"

using MeasurementSwitch = std::uint8_t ZXADLG_MeasurementSearch::*;

// By the number of the measurement.
struct Measurement {
    int nCheck;
    int nString;  // its caption, with a place for the unit; 0: that of the template stays
    MeasurementSwitch pOn;
};
inline constexpr Measurement kMeasurements[] = {
    {IDC_MEASURE_PEAK, IDS_MEASURE_PEAK, &ZXADLG_MeasurementSearch::bPeakAmplitude},
    {IDC_MEASURE_PEAK_TIME, 0, &ZXADLG_MeasurementSearch::bPeakTime},
    {IDC_MEASURE_ANTIPEAK, IDS_MEASURE_ANTIPEAK, &ZXADLG_MeasurementSearch::bAntipeakAmplitude},
    {IDC_MEASURE_ANTIPEAK_TIME, 0, &ZXADLG_MeasurementSearch::bAntipeakTime},
    {IDC_MEASURE_MEAN, IDS_MEASURE_MEAN, &ZXADLG_MeasurementSearch::bMean},
    {IDC_MEASURE_DEVIATION, IDS_MEASURE_DEVIATION, &ZXADLG_MeasurementSearch::bStanDev},
    {IDC_MEASURE_AREA, IDS_MEASURE_AREA, &ZXADLG_MeasurementSearch::bArea},
    {IDC_MEASURE_HALF_WIDTH, 0, &ZXADLG_MeasurementSearch::bHalfWidth},
    {IDC_MEASURE_MAX_RISE, IDS_MEASURE_MAX_RISE, &ZXADLG_MeasurementSearch::bMaxRiseSlope},
    {IDC_MEASURE_MAX_RISE_TIME, 0, &ZXADLG_MeasurementSearch::bMaxRiseSlopeTime},
    {IDC_MEASURE_MAX_DECAY, IDS_MEASURE_MAX_DECAY, &ZXADLG_MeasurementSearch::bMaxDecaySlope},
    {IDC_MEASURE_MAX_DECAY_TIME, 0, &ZXADLG_MeasurementSearch::bMaxDecaySlopeTime},
    {IDC_MEASURE_SLOPE, IDS_MEASURE_SLOPE, &ZXADLG_MeasurementSearch::bRegionSlope},
    {IDC_MEASURE_BASELINE_LEVEL, IDS_MEASURE_BASELINE, &ZXADLG_MeasurementSearch::bBaseline},
    {IDC_MEASURE_RISE_SLOPE, IDS_MEASURE_RISE_SLOPE, &ZXADLG_MeasurementSearch::bRiseSlope},
    {IDC_MEASURE_RISE_TIME, 0, &ZXADLG_MeasurementSearch::bRiseTime},
    {IDC_MEASURE_DECAY_SLOPE, IDS_MEASURE_DECAY_SLOPE, &ZXADLG_MeasurementSearch::bDecaySlope},
    {IDC_MEASURE_DECAY_TIME, 0, &ZXADLG_MeasurementSearch::bDecayTime},
    {IDC_MEASURE_EVENT_DURATION, 0, &ZXADLG_MeasurementSearch::bEventDuration},
};
inline constexpr int kMeasurementCount = 19;
static_assert(sizeof kMeasurements / sizeof *kMeasurements == kMeasurementCount);

// A percent, and the measurements that it serves: it can be edited where one of them is on.
struct MeasurementPercent {
    int nLabel, nField, nSpin, nUnit;
    std::int32_t ZXADLG_MeasurementSearch::*pPercent;
    int nFirst, nSecond;
};
inline constexpr MeasurementPercent kMeasurementPercents[] = {
    {IDC_MEASURE_RISE_FROM_LABEL, IDC_MEASURE_RISE_FROM, IDC_MEASURE_RISE_FROM_SPIN,
     IDC_MEASURE_RISE_FROM_UNIT, &ZXADLG_MeasurementSearch::nRiseFromPercent, 14, 15},
    {IDC_MEASURE_RISE_TO_LABEL, IDC_MEASURE_RISE_TO, IDC_MEASURE_RISE_TO_SPIN,
     IDC_MEASURE_RISE_TO_UNIT, &ZXADLG_MeasurementSearch::nRiseToPercent, 14, 15},
    {IDC_MEASURE_DECAY_FROM_LABEL, IDC_MEASURE_DECAY_FROM, IDC_MEASURE_DECAY_FROM_SPIN,
     IDC_MEASURE_DECAY_FROM_UNIT, &ZXADLG_MeasurementSearch::nDecayFromPercent, 16, 17},
    {IDC_MEASURE_DECAY_TO_LABEL, IDC_MEASURE_DECAY_TO, IDC_MEASURE_DECAY_TO_SPIN,
     IDC_MEASURE_DECAY_TO_UNIT, &ZXADLG_MeasurementSearch::nDecayToPercent, 16, 17},
    {IDC_MEASURE_EVENT_AT_LABEL, IDC_MEASURE_EVENT_AT, IDC_MEASURE_EVENT_AT_SPIN,
     IDC_MEASURE_EVENT_AT_UNIT, &ZXADLG_MeasurementSearch::nEventDurationPercent, 18, 18},
};
inline constexpr int kPercentCount = 5;
static_assert(sizeof kMeasurementPercents / sizeof *kMeasurementPercents == kPercentCount);
inline constexpr int kMostPercent = 100;

// Scales that can share an axis.
enum OutputFamily {
    kTraceTimeFamily = -1,  // and no family yet
    kTimeFamily = 0,
    kAreaFamily = 1,
    kSlopeFamily = 2,
    kAmplitudeFamily = 3,
};

// What an axis of the graph can show, in the order of the lists. The ids are a numbering of their
// own, which the record's X and Y variables hold.
struct OutputRow {
    int nId;
    int nString;
    int eFamily;
    MeasurementSwitch pOn;  // null: always there

    bool IsIn(const ZXADLG_MeasurementSearch& search) const {
        return pOn == nullptr || search.*pOn != 0;
    }
};
inline constexpr int kTraceTimeId = 1;
inline constexpr int kPeakId = 2;
inline constexpr int kPeakTimeId = 4;
inline constexpr int kAntipeakId = 5;
inline constexpr int kAntipeakTimeId = 7;
inline constexpr OutputRow kOutputRows[] = {
    {kPeakId, IDS_OUTPUT_PEAK, kAmplitudeFamily, &ZXADLG_MeasurementSearch::bPeakAmplitude},
    {kAntipeakId, IDS_OUTPUT_ANTIPEAK, kAmplitudeFamily,
     &ZXADLG_MeasurementSearch::bAntipeakAmplitude},
    {8, IDS_OUTPUT_MEAN, kAmplitudeFamily, &ZXADLG_MeasurementSearch::bMean},
    {9, IDS_OUTPUT_DEVIATION, kAmplitudeFamily, &ZXADLG_MeasurementSearch::bStanDev},
    {23, IDS_OUTPUT_BASELINE, kAmplitudeFamily, &ZXADLG_MeasurementSearch::bBaseline},
    {10, IDS_OUTPUT_AREA, kAreaFamily, &ZXADLG_MeasurementSearch::bArea},
    {12, IDS_OUTPUT_MAX_RISE, kSlopeFamily, &ZXADLG_MeasurementSearch::bMaxRiseSlope},
    {15, IDS_OUTPUT_MAX_DECAY, kSlopeFamily, &ZXADLG_MeasurementSearch::bMaxDecaySlope},
    {22, IDS_OUTPUT_SLOPE, kSlopeFamily, &ZXADLG_MeasurementSearch::bRegionSlope},
    {18, IDS_OUTPUT_RISE_SLOPE, kSlopeFamily, &ZXADLG_MeasurementSearch::bRiseSlope},
    {20, IDS_OUTPUT_DECAY_SLOPE, kSlopeFamily, &ZXADLG_MeasurementSearch::bDecaySlope},
    {11, IDS_OUTPUT_HALF_WIDTH, kTimeFamily, &ZXADLG_MeasurementSearch::bHalfWidth},
    {19, IDS_OUTPUT_RISE_TIME, kTimeFamily, &ZXADLG_MeasurementSearch::bRiseTime},
    {21, IDS_OUTPUT_DECAY_TIME, kTimeFamily, &ZXADLG_MeasurementSearch::bDecayTime},
    {kPeakTimeId, IDS_OUTPUT_PEAK_TIME, kTraceTimeFamily, &ZXADLG_MeasurementSearch::bPeakTime},
    {kAntipeakTimeId, IDS_OUTPUT_ANTIPEAK_TIME, kTraceTimeFamily,
     &ZXADLG_MeasurementSearch::bAntipeakTime},
    {14, IDS_OUTPUT_MAX_RISE_TIME, kTraceTimeFamily, &ZXADLG_MeasurementSearch::bMaxRiseSlopeTime},
    {17, IDS_OUTPUT_MAX_DECAY_TIME, kTraceTimeFamily,
     &ZXADLG_MeasurementSearch::bMaxDecaySlopeTime},
    {kTraceTimeId, IDS_OUTPUT_TIME, kTimeFamily, nullptr},
};
static_assert(sizeof kOutputRows / sizeof *kOutputRows == 19);

// Null for an id of no row.
constexpr const OutputRow* FindOutputRow(int nId) {
    for (const OutputRow& row : kOutputRows) {
        if (row.nId == nId) return &row;
    }
    return nullptr;
}
