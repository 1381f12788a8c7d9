// Options of Data Reduction/Interpolation, section ConvertSampleRateSection.
// The record crosses the boundary between host and library: little-endian, this layout, plain data.
#pragma once

#include <stddef.h>
#include <stdint.h>

#include "zxadlg/AnalysisCommon.h"

struct ZXADLG_ModifySampleRateOptions {
    int32_t eRateConversionType;   // 0 reduction, 1 interpolation
    int32_t eReductionMethod;      // 0 decimate, 1 substitute average, 2 min/max
    int32_t eInterpolationMethod;  // 0 straight line, 1 cubic spline
    int32_t nReduceFactor;         // 2 to 1000; that many points become one
    int32_t nInterpolFactor;       // 1 to 100; one point becomes that many
    ZXADLG_AnalysisCommon common;
};
static_assert(sizeof(ZXADLG_ModifySampleRateOptions) == 28, "layout");
static_assert(offsetof(ZXADLG_ModifySampleRateOptions, eRateConversionType) == 0, "layout");
static_assert(offsetof(ZXADLG_ModifySampleRateOptions, eReductionMethod) == 4, "layout");
static_assert(offsetof(ZXADLG_ModifySampleRateOptions, eInterpolationMethod) == 8, "layout");
static_assert(offsetof(ZXADLG_ModifySampleRateOptions, nReduceFactor) == 12, "layout");
static_assert(offsetof(ZXADLG_ModifySampleRateOptions, nInterpolFactor) == 16, "layout");
static_assert(offsetof(ZXADLG_ModifySampleRateOptions, common) == 20, "layout");
