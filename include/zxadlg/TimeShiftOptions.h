// Options of Time Shift, section TimeShiftSection.
// The record crosses the boundary between host and library: little-endian, this layout, plain data.
#pragma once

#include <stddef.h>
#include <stdint.h>

#include "zxadlg/AnalysisCommon.h"

struct ZXADLG_TimeShiftOptions {
    int32_t eAlignmentMode;    // 0 shift by a time interval, 1 align peaks
    int32_t eDirection;        // 0 left, 1 right
    int32_t eValueMode;        // 0 fixed value, 1 interval between cursors
    int32_t eAdjustMode;       // 0 rotate samples, 1 replace wrapped samples with zeros
    int32_t ePeakPolarity;     // 0 positive, 1 negative, 2 absolute
    int32_t eValueRegion;      // region id for "between cursors"
    int32_t eSearchRegion;     // region id of the region to search
    uint32_t uDataGroupIndex;  // group to search for peaks, from 0
    double dShiftValue;        // fixed interval, ms
    ZXADLG_AnalysisCommon common;
};
static_assert(sizeof(ZXADLG_TimeShiftOptions) == 48, "layout");
static_assert(offsetof(ZXADLG_TimeShiftOptions, eAlignmentMode) == 0, "layout");
static_assert(offsetof(ZXADLG_TimeShiftOptions, eDirection) == 4, "layout");
static_assert(offsetof(ZXADLG_TimeShiftOptions, eValueMode) == 8, "layout");
static_assert(offsetof(ZXADLG_TimeShiftOptions, eAdjustMode) == 12, "layout");
static_assert(offsetof(ZXADLG_TimeShiftOptions, ePeakPolarity) == 16, "layout");
static_assert(offsetof(ZXADLG_TimeShiftOptions, eValueRegion) == 20, "layout");
static_assert(offsetof(ZXADLG_TimeShiftOptions, eSearchRegion) == 24, "layout");
static_assert(offsetof(ZXADLG_TimeShiftOptions, uDataGroupIndex) == 28, "layout");
static_assert(offsetof(ZXADLG_TimeShiftOptions, dShiftValue) == 32, "layout");
static_assert(offsetof(ZXADLG_TimeShiftOptions, common) == 40, "layout");
