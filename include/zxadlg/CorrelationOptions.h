// Options of Correlation, section CorrelationSection.
// The record crosses the boundary between host and library: little-endian, this layout, plain data.
#pragma once

#include <stddef.h>
#include <stdint.h>

#include "zxadlg/AnalysisCommon.h"

struct ZXADLG_CorrelationOptions {
    int32_t eType;              // 0 autocorrelation, 1 cross-correlation
    double dSamplingFrequency;  // Hz; in effect where the data tell none
    uint32_t uNumberOfLags;     // points; start with one above 0
    uint8_t reserved0[68];
    ZXADLG_AnalysisCommon common;
};
static_assert(sizeof(ZXADLG_CorrelationOptions) == 96, "layout");
static_assert(offsetof(ZXADLG_CorrelationOptions, eType) == 0, "layout");
static_assert(offsetof(ZXADLG_CorrelationOptions, dSamplingFrequency) == 8, "layout");
static_assert(offsetof(ZXADLG_CorrelationOptions, uNumberOfLags) == 16, "layout");
static_assert(offsetof(ZXADLG_CorrelationOptions, common) == 88, "layout");
