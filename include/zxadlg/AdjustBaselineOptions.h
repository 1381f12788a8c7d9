// Options of Adjust Baseline, section AdjustBaseline.
// The record crosses the boundary between host and library: little-endian, this layout, plain data.
#pragma once

#include <stddef.h>
#include <stdint.h>

#include "zxadlg/AnalysisCommon.h"

struct ZXADLG_AdjustBaselineOptions {
    int32_t eAdjustMode;   // 0 mean, 1 slope, 2 fixed value, 3 by hand
    int32_t eValueRegion;  // region id for mean and slope
    double dFixedValue;    // value to subtract, in the units of the data (GetUnits)
    ZXADLG_AnalysisCommon common;
};
static_assert(sizeof(ZXADLG_AdjustBaselineOptions) == 24, "layout");
static_assert(offsetof(ZXADLG_AdjustBaselineOptions, eAdjustMode) == 0, "layout");
static_assert(offsetof(ZXADLG_AdjustBaselineOptions, eValueRegion) == 4, "layout");
static_assert(offsetof(ZXADLG_AdjustBaselineOptions, dFixedValue) == 8, "layout");
static_assert(offsetof(ZXADLG_AdjustBaselineOptions, common) == 16, "layout");
