// Options of Leak Subtraction, section LeakSubtractionSection.
// The record crosses the boundary between host and library: little-endian, this layout, plain data.
#pragma once

#include <stddef.h>
#include <stdint.h>

#include "zxadlg/AnalysisCommon.h"

struct ZXADLG_LeakSubtractionOptions {
    double dPassiveResistance;  // megohms; start with one above 0
    // 0.000001 for pA and V, 0.001 for pA and mV, 1 for nA and mV, 1000 for uA and mV, 1000000 for
    // mA and mV; any other value shows as the first. Start with 1
    double dConversionFactor;
    uint32_t uWaveformIndex;  // the number that GetEpochName gave
    ZXADLG_AnalysisCommon common;
};
static_assert(sizeof(ZXADLG_LeakSubtractionOptions) == 32, "layout");
static_assert(offsetof(ZXADLG_LeakSubtractionOptions, dPassiveResistance) == 0, "layout");
static_assert(offsetof(ZXADLG_LeakSubtractionOptions, dConversionFactor) == 8, "layout");
static_assert(offsetof(ZXADLG_LeakSubtractionOptions, uWaveformIndex) == 16, "layout");
static_assert(offsetof(ZXADLG_LeakSubtractionOptions, common) == 20, "layout");
