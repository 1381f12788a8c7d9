// Options of Force Values, section ForceValuesSection.
// The record crosses the boundary between host and library: little-endian, this layout, plain data.
#pragma once

#include <stddef.h>
#include <stdint.h>

#include "zxadlg/AnalysisCommon.h"

struct ZXADLG_ForceValuesOptions {
    int32_t eForceValuesMode;  // 0 to 4, the selected method
    int32_t eRegionToForce;    // region id
    double dFixedValue;        // units of the data
    ZXADLG_AnalysisCommon common;
};
static_assert(sizeof(ZXADLG_ForceValuesOptions) == 24, "layout");
static_assert(offsetof(ZXADLG_ForceValuesOptions, eForceValuesMode) == 0, "layout");
static_assert(offsetof(ZXADLG_ForceValuesOptions, eRegionToForce) == 4, "layout");
static_assert(offsetof(ZXADLG_ForceValuesOptions, dFixedValue) == 8, "layout");
static_assert(offsetof(ZXADLG_ForceValuesOptions, common) == 16, "layout");
