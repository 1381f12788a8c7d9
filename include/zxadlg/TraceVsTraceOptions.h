// Options of Trace vs. Trace, section TraceVsTraceSection.
// The record crosses the boundary between host and library: little-endian, this layout, plain data.
#pragma once

#include <stddef.h>
#include <stdint.h>

#include "zxadlg/AnalysisCommon.h"

struct ZXADLG_TraceVsTraceOptions {
    int32_t eXSource;      // 0 waveform, 1 data group
    int32_t eYSource;      // 0 waveform, 1 data group
    int32_t eValueRegion;  // region id
    // Of each axis: set and group, both from 0, where its source is 1; otherwise the waveform, by
    // the number that GetEpochName gave.
    uint32_t uXDataSetIndex;
    uint32_t uYDataSetIndex;
    uint32_t uXWaveformIndex;
    uint32_t uYWaveformIndex;
    uint32_t uXDataGroupIndex;
    uint32_t uYDataGroupIndex;
    uint8_t bInvertX;              // the sign of x is changed
    uint8_t bInvertY;              // the sign of y is changed
    ZXADLG_AnalysisCommon common;  // its flags have the keys bGraphDynamicLink and bVerboseOutput
};
static_assert(sizeof(ZXADLG_TraceVsTraceOptions) == 48, "layout");
static_assert(offsetof(ZXADLG_TraceVsTraceOptions, eXSource) == 0, "layout");
static_assert(offsetof(ZXADLG_TraceVsTraceOptions, eYSource) == 4, "layout");
static_assert(offsetof(ZXADLG_TraceVsTraceOptions, eValueRegion) == 8, "layout");
static_assert(offsetof(ZXADLG_TraceVsTraceOptions, uXDataSetIndex) == 12, "layout");
static_assert(offsetof(ZXADLG_TraceVsTraceOptions, uYDataSetIndex) == 16, "layout");
static_assert(offsetof(ZXADLG_TraceVsTraceOptions, uXWaveformIndex) == 20, "layout");
static_assert(offsetof(ZXADLG_TraceVsTraceOptions, uYWaveformIndex) == 24, "layout");
static_assert(offsetof(ZXADLG_TraceVsTraceOptions, uXDataGroupIndex) == 28, "layout");
static_assert(offsetof(ZXADLG_TraceVsTraceOptions, uYDataGroupIndex) == 32, "layout");
static_assert(offsetof(ZXADLG_TraceVsTraceOptions, bInvertX) == 36, "layout");
static_assert(offsetof(ZXADLG_TraceVsTraceOptions, bInvertY) == 37, "layout");
static_assert(offsetof(ZXADLG_TraceVsTraceOptions, common) == 40, "layout");
