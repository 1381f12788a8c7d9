// Options of Force Values, section ForceValuesSection.
// The record crosses the boundary between host and library: little-endian, this layout, plain data.
#pragma once

#include <stddef.h>
#include <stdint.h>

#include "zxadlg/AnalysisCommon.h"

struct ZXADLG_ForceValuesOptions {
    // 0 the data value at cursor 1, 1 the mean between cursors 1 and 2, 2 the mean between cursors
    // 3 and 4, 3 a straight line between cursors 1 and 2, 4 dFixedValue
    int32_t eForceValuesMode;
    int32_t eRegionToForce;  // region id of the points that are overwritten
    double dFixedValue;      // in the units of the data (GetUnits)
    ZXADLG_AnalysisCommon common;
};
static_assert(sizeof(ZXADLG_ForceValuesOptions) == 24, "layout");
static_assert(offsetof(ZXADLG_ForceValuesOptions, eForceValuesMode) == 0, "layout");
static_assert(offsetof(ZXADLG_ForceValuesOptions, eRegionToForce) == 4, "layout");
static_assert(offsetof(ZXADLG_ForceValuesOptions, dFixedValue) == 8, "layout");
static_assert(offsetof(ZXADLG_ForceValuesOptions, common) == 16, "layout");
