// Options of Current/Voltage, section CurrentVoltageSection.
// The record crosses the boundary between host and library: little-endian, this layout, plain data.
#pragma once

#include <stddef.h>
#include <stdint.h>

#include "zxadlg/AnalysisCommon.h"

struct ZXADLG_CurrentVoltageOptions {
    int32_t ePeakRegion;    // region id
    int32_t ePeakPolarity;  // 0 positive, 1 negative, 2 absolute
    // 0 waveform at cursor 1, 1 waveform at cursor 3, 2 data group at cursor 3, 3 epoch
    int32_t eVoltageSource;
    int32_t eCurrentSource;  // 0 value at cursor 1, 1 mean, 2 peak
    // Epoch variable: 0 to 9 the levels of epochs A to J, 10 to 19 their durations, 20 the user's
    // list (HasUserList). The data have variable n where a region has the id n + 26
    int32_t eFixedEpoch;
    int32_t eSetSelectionMode;     // 1 all including hidden, 0 visible
    uint32_t uWaveformIndex;       // the number that GetEpochName gave
    uint32_t uXDataGroupIndex;     // group, from 0, of the x axis; used where eVoltageSource is 2
    uint32_t uYDataGroupIndex;     // group, from 0, of the y axis
    uint32_t uSmoothingPoints;     // points; 1 or more. Start with 5
    uint8_t bInvertX;              // the sign of x is changed
    uint8_t bInvertY;              // the sign of y is changed
    uint8_t bDoFilter;             // smooth over uSmoothingPoints
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
