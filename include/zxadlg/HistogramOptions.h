// Options of Histogram, section HistogramSection.
// The record crosses the boundary between host and library: little-endian, this layout, plain data.
#pragma once

#include <stddef.h>
#include <stdint.h>

#include "zxadlg/AnalysisCommon.h"

struct ZXADLG_HistogramOptions {
    int32_t eHistoType;  // 0 conventional, 1 cumulative, 2 logarithmic, 3 variable width cumulative
    float fBinWidth;
    float fMinDataValue;     // lower data limit
    float fMaxDataValue;     // upper data limit
    int32_t nBinsPerDecade;  // logarithmic
    uint8_t bBinAllData;     // ignore the limits
    uint8_t reserved0[1];
    uint8_t bCombineData;
    uint8_t reserved1[2];
    uint8_t bNormalize;  // normalise the area
    uint8_t reserved2[130];
    ZXADLG_AnalysisCommon common;  // bWriteRegionInfo has the key bVerboseOutput
    int32_t nNumBins;
};
static_assert(sizeof(ZXADLG_HistogramOptions) == 168, "layout");
static_assert(offsetof(ZXADLG_HistogramOptions, eHistoType) == 0, "layout");
static_assert(offsetof(ZXADLG_HistogramOptions, fBinWidth) == 4, "layout");
static_assert(offsetof(ZXADLG_HistogramOptions, fMinDataValue) == 8, "layout");
static_assert(offsetof(ZXADLG_HistogramOptions, fMaxDataValue) == 12, "layout");
static_assert(offsetof(ZXADLG_HistogramOptions, nBinsPerDecade) == 16, "layout");
static_assert(offsetof(ZXADLG_HistogramOptions, bBinAllData) == 20, "layout");
static_assert(offsetof(ZXADLG_HistogramOptions, bCombineData) == 22, "layout");
static_assert(offsetof(ZXADLG_HistogramOptions, bNormalize) == 25, "layout");
static_assert(offsetof(ZXADLG_HistogramOptions, common) == 156, "layout");
static_assert(offsetof(ZXADLG_HistogramOptions, nNumBins) == 164, "layout");
