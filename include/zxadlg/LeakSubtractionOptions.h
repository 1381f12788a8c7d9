// Options of Leak Subtraction, section LeakSubtractionSection.
// The record crosses the boundary between host and library: little-endian, this layout, plain data.
#pragma once

#include <stddef.h>
#include <stdint.h>

#include "zxadlg/AnalysisCommon.h"

struct ZXADLG_LeakSubtractionOptions {
    double dPassiveResistance;  // megohms
    double dConversionFactor;
    uint32_t uWaveformIndex;  // waveform number
    ZXADLG_AnalysisCommon common;
};
static_assert(sizeof(ZXADLG_LeakSubtractionOptions) == 32, "layout");
static_assert(offsetof(ZXADLG_LeakSubtractionOptions, dPassiveResistance) == 0, "layout");
static_assert(offsetof(ZXADLG_LeakSubtractionOptions, dConversionFactor) == 8, "layout");
static_assert(offsetof(ZXADLG_LeakSubtractionOptions, uWaveformIndex) == 16, "layout");
static_assert(offsetof(ZXADLG_LeakSubtractionOptions, common) == 20, "layout");
