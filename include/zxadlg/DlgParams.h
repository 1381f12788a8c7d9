// What a dialog shows, and whether it restores, stores and copies back. Read by the library, never
// written. A host must pass readable memory up to the last byte, whatever it needs of it.
#pragma once

#include <stddef.h>
#include <stdint.h>

// One byte each, 0 or 1.
struct ZXADLG_DlgParams {
    uint8_t bUseDataOptions;              // data tab; the data record takes part
    uint8_t bShowGroupSelector;           // the data tab shows the group combo box
    uint8_t bShowDestination;             // the options tab shows the results destination
    uint8_t bShowDynamicLink;             // the options tab shows the dynamic link check box
    uint8_t bNewColumnArithmetic;         // arithmetic: the form for one new column
    uint8_t bShowMeasurementOutput;       // measurements: the Output tab
    uint8_t bShowWriteRegionInfo;         // the options tab shows the region information check box
    uint8_t bMeasurementOptionA;          // measurements: read by the options tab
    uint8_t bReadOnly;                    // display only: no restore, no copy-back, no store
    uint8_t bRemapColumns;                // arithmetic: apply a stored expression to other columns
    uint8_t bMeasurementOutputA;          // measurements: read by the Output tab
    uint8_t bAdjustBaselineFourthMethod;  // adjust baseline: offer the fourth method
    uint8_t bFitKeepSeeds;                // curve fit: read by the seed refresh
    uint8_t bDeferredRun;         // settings for a later run: no restore, no store, but copy-back
    uint8_t bFitSelectRegionOne;  // curve fit: eAnalysisRegion becomes 1 at the start
    uint8_t bMeasurementOutputB;  // measurements: read by the Output tab
    uint8_t bMeasurementOutputC;  // measurements: read by the Output tab
    uint8_t bMeasurementRegionCheck;  // measurements: read by the dialog
    uint8_t bNoDependentList;         // the data load keeps the host's dependent selection
    uint8_t bMeasurementOptionB;      // measurements: read by the options tab
    uint8_t bFitOptionByte;           // curve fit: stored in the option record
};
static_assert(sizeof(ZXADLG_DlgParams) == 21, "layout");
static_assert(offsetof(ZXADLG_DlgParams, bUseDataOptions) == 0, "layout");
static_assert(offsetof(ZXADLG_DlgParams, bShowGroupSelector) == 1, "layout");
static_assert(offsetof(ZXADLG_DlgParams, bShowDestination) == 2, "layout");
static_assert(offsetof(ZXADLG_DlgParams, bShowDynamicLink) == 3, "layout");
static_assert(offsetof(ZXADLG_DlgParams, bNewColumnArithmetic) == 4, "layout");
static_assert(offsetof(ZXADLG_DlgParams, bShowMeasurementOutput) == 5, "layout");
static_assert(offsetof(ZXADLG_DlgParams, bShowWriteRegionInfo) == 6, "layout");
static_assert(offsetof(ZXADLG_DlgParams, bMeasurementOptionA) == 7, "layout");
static_assert(offsetof(ZXADLG_DlgParams, bReadOnly) == 8, "layout");
static_assert(offsetof(ZXADLG_DlgParams, bRemapColumns) == 9, "layout");
static_assert(offsetof(ZXADLG_DlgParams, bMeasurementOutputA) == 10, "layout");
static_assert(offsetof(ZXADLG_DlgParams, bAdjustBaselineFourthMethod) == 11, "layout");
static_assert(offsetof(ZXADLG_DlgParams, bFitKeepSeeds) == 12, "layout");
static_assert(offsetof(ZXADLG_DlgParams, bDeferredRun) == 13, "layout");
static_assert(offsetof(ZXADLG_DlgParams, bFitSelectRegionOne) == 14, "layout");
static_assert(offsetof(ZXADLG_DlgParams, bMeasurementOutputB) == 15, "layout");
static_assert(offsetof(ZXADLG_DlgParams, bMeasurementOutputC) == 16, "layout");
static_assert(offsetof(ZXADLG_DlgParams, bMeasurementRegionCheck) == 17, "layout");
static_assert(offsetof(ZXADLG_DlgParams, bNoDependentList) == 18, "layout");
static_assert(offsetof(ZXADLG_DlgParams, bMeasurementOptionB) == 19, "layout");
static_assert(offsetof(ZXADLG_DlgParams, bFitOptionByte) == 20, "layout");
