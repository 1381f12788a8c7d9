// Options of Resistance, section ResistanceSection.
// The record crosses the boundary between host and library: little-endian, this layout, plain data.
#pragma once

#include <stddef.h>
#include <stdint.h>

#include "zxadlg/AnalysisCommon.h"

struct ZXADLG_ResistanceOptions {
    // 0.000001 for pA and V, 0.001 for pA and mV, 1 for nA and mV, 1000 for uA and mV, 1000000 for
    // mA and mV; any other value shows as the first. Start with 1
    double dConversionFactor;
    uint32_t uExperimentType;  // 0 voltage clamp, 1 current clamp
    uint32_t uWaveformIndex;   // the number that GetEpochName gave
    ZXADLG_AnalysisCommon common;
};
static_assert(sizeof(ZXADLG_ResistanceOptions) == 24, "layout");
static_assert(offsetof(ZXADLG_ResistanceOptions, dConversionFactor) == 0, "layout");
static_assert(offsetof(ZXADLG_ResistanceOptions, uExperimentType) == 8, "layout");
static_assert(offsetof(ZXADLG_ResistanceOptions, uWaveformIndex) == 12, "layout");
static_assert(offsetof(ZXADLG_ResistanceOptions, common) == 16, "layout");
