// Options of Current/Voltage, section CurrentVoltageSection.
// The record crosses the boundary between host and library: little-endian, this layout, plain data.
#pragma once

#include <stddef.h>
#include <stdint.h>

#include "zxadlg/AnalysisCommon.h"

struct ZXADLG_CurrentVoltageOptions {
    int32_t ePeakRegion;    // region id
    int32_t ePeakPolarity;  // 0 positive, 1 negative, 2 absolute
    int32_t
        eVoltageSource;  // 0 waveform at cursor 1, 1 at cursor 3, 2 data group at cursor 3, 3 epoch
    int32_t eCurrentSource;     // 0 value at cursor 1, 1 mean, 2 peak
    int32_t eFixedEpoch;        // epoch code
    int32_t eSetSelectionMode;  // 1 all including hidden, 0 visible
    uint32_t uWaveformIndex;    // waveform number
    uint32_t uXDataGroupIndex;
    uint32_t uYDataGroupIndex;
    uint32_t uSmoothingPoints;
    uint8_t bInvertX;
    uint8_t bInvertY;
    uint8_t bDoFilter;
    ZXADLG_AnalysisCommon common;  // its flags have the keys bGraphDynamicLink and bVerboseOutput
};
static_assert(sizeof(ZXADLG_CurrentVoltageOptions) == 52, "layout");
static_assert(offsetof(ZXADLG_CurrentVoltageOptions, ePeakRegion) == 0, "layout");
static_assert(offsetof(ZXADLG_CurrentVoltageOptions, ePeakPolarity) == 4, "layout");
static_assert(offsetof(ZXADLG_CurrentVoltageOptions, eVoltageSource) == 8, "layout");
static_assert(offsetof(ZXADLG_CurrentVoltageOptions, eCurrentSource) == 12, "layout");
static_assert(offsetof(ZXADLG_CurrentVoltageOptions, eFixedEpoch) == 16, "layout");
static_assert(offsetof(ZXADLG_CurrentVoltageOptions, eSetSelectionMode) == 20, "layout");
static_assert(offsetof(ZXADLG_CurrentVoltageOptions, uWaveformIndex) == 24, "layout");
static_assert(offsetof(ZXADLG_CurrentVoltageOptions, uXDataGroupIndex) == 28, "layout");
static_assert(offsetof(ZXADLG_CurrentVoltageOptions, uYDataGroupIndex) == 32, "layout");
static_assert(offsetof(ZXADLG_CurrentVoltageOptions, uSmoothingPoints) == 36, "layout");
static_assert(offsetof(ZXADLG_CurrentVoltageOptions, bInvertX) == 40, "layout");
static_assert(offsetof(ZXADLG_CurrentVoltageOptions, bInvertY) == 41, "layout");
static_assert(offsetof(ZXADLG_CurrentVoltageOptions, bDoFilter) == 42, "layout");
static_assert(offsetof(ZXADLG_CurrentVoltageOptions, common) == 44, "layout");
