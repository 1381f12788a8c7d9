// Options of Arithmetic, sections TraceArithmetic and ColumnArithmetic.
// The record crosses the boundary between host and library: little-endian, this layout, plain data.
#pragma once

#include <stddef.h>
#include <stdint.h>

#include "zxadlg/AnalysisCommon.h"

struct ZXADLG_ArithmeticOptions {
    char szExpression[255];         // as the host receives it
    char szColumnTitle[255];        // title of the new column
    char szDisplayExpression[255];  // as typed, when it had no left side
    char szSelectionList[1000];     // data sets, 0-based
    uint8_t reserved0[1];
    uint8_t bForceExcludedRegionToZero;
    int32_t eAnalysisRegion;
    int32_t eDataSet1SelectionMode;
    int32_t eDataGroup1SelectionMode;  // 0 active group, 1 one group
    uint32_t uGroup1Index;
    uint32_t uRegionIndex;     // entry of the region combo box
    uint32_t uFirstDataIndex;  // first row
    uint32_t uLastDataIndex;   // last row
    uint8_t bUseFullDataRange;
    ZXADLG_AnalysisCommon common;
    uint8_t reserved1[1000];
};
static_assert(sizeof(ZXADLG_ArithmeticOptions) == 2808, "layout");
static_assert(offsetof(ZXADLG_ArithmeticOptions, szExpression) == 0, "layout");
static_assert(offsetof(ZXADLG_ArithmeticOptions, szColumnTitle) == 255, "layout");
static_assert(offsetof(ZXADLG_ArithmeticOptions, szDisplayExpression) == 510, "layout");
static_assert(offsetof(ZXADLG_ArithmeticOptions, szSelectionList) == 765, "layout");
static_assert(offsetof(ZXADLG_ArithmeticOptions, bForceExcludedRegionToZero) == 1766, "layout");
static_assert(offsetof(ZXADLG_ArithmeticOptions, eAnalysisRegion) == 1768, "layout");
static_assert(offsetof(ZXADLG_ArithmeticOptions, eDataSet1SelectionMode) == 1772, "layout");
static_assert(offsetof(ZXADLG_ArithmeticOptions, eDataGroup1SelectionMode) == 1776, "layout");
static_assert(offsetof(ZXADLG_ArithmeticOptions, uGroup1Index) == 1780, "layout");
static_assert(offsetof(ZXADLG_ArithmeticOptions, uRegionIndex) == 1784, "layout");
static_assert(offsetof(ZXADLG_ArithmeticOptions, uFirstDataIndex) == 1788, "layout");
static_assert(offsetof(ZXADLG_ArithmeticOptions, uLastDataIndex) == 1792, "layout");
static_assert(offsetof(ZXADLG_ArithmeticOptions, bUseFullDataRange) == 1796, "layout");
static_assert(offsetof(ZXADLG_ArithmeticOptions, common) == 1800, "layout");
