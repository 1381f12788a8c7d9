// The options that most analyses share. Each option record holds this block at a fixed place.
#pragma once

#include <stddef.h>
#include <stdint.h>

// Where results go and what is written with them.
struct ZXADLG_AnalysisCommon {
    int32_t eDestinationOption;  // 0 append to the results, 1 replace them
    uint8_t bDynamicLink;        // link the graph to the Analysis Window
    uint8_t bWriteRegionInfo;    // write analysis region information
};
static_assert(sizeof(ZXADLG_AnalysisCommon) == 8, "layout");
static_assert(offsetof(ZXADLG_AnalysisCommon, eDestinationOption) == 0, "layout");
static_assert(offsetof(ZXADLG_AnalysisCommon, bDynamicLink) == 4, "layout");
static_assert(offsetof(ZXADLG_AnalysisCommon, bWriteRegionInfo) == 5, "layout");
