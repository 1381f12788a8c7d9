// Options of Normalize, section NormalizeSection.
// The record crosses the boundary between host and library: little-endian, this layout, plain data.
#pragma once

#include <stddef.h>
#include <stdint.h>

#include "zxadlg/AnalysisCommon.h"

struct ZXADLG_NormalizeOptions {
    uint32_t eBaselineRegion;  // region id; used where bUseAllPoints is 1
    uint32_t ePeakRegion;      // region id; used where bUseAllPoints is 1
    uint8_t bUseAllPoints;  // its name says the contrary: 0 all points, 1 between the two regions
    ZXADLG_AnalysisCommon common;
};
static_assert(sizeof(ZXADLG_NormalizeOptions) == 20, "layout");
static_assert(offsetof(ZXADLG_NormalizeOptions, eBaselineRegion) == 0, "layout");
static_assert(offsetof(ZXADLG_NormalizeOptions, ePeakRegion) == 4, "layout");
static_assert(offsetof(ZXADLG_NormalizeOptions, bUseAllPoints) == 8, "layout");
static_assert(offsetof(ZXADLG_NormalizeOptions, common) == 12, "layout");
