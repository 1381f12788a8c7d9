// The data-selection record, the same for all analyses: a block of information that the library
// writes for the host (4008 bytes; in deferred mode the host supplies it), then the selection that
// the user edits. The record crosses the boundary between host and library: little-endian, this
// layout, plain data.
#pragma once

#include <stddef.h>
#include <stdint.h>

// A group of the data: its name, at most 19 characters, and the number the host gave it.
struct ZXADLG_GroupEntry {
    char szName[20];
    uint32_t uCode;
};
static_assert(sizeof(ZXADLG_GroupEntry) == 24, "layout");
static_assert(offsetof(ZXADLG_GroupEntry, szName) == 0, "layout");
static_assert(offsetof(ZXADLG_GroupEntry, uCode) == 20, "layout");

// First and last point index of a region, 0-based.
struct ZXADLG_PointSpan {
    uint32_t uFirstPoint;
    uint32_t uLastPoint;
};
static_assert(sizeof(ZXADLG_PointSpan) == 8, "layout");
static_assert(offsetof(ZXADLG_PointSpan, uFirstPoint) == 0, "layout");
static_assert(offsetof(ZXADLG_PointSpan, uLastPoint) == 4, "layout");

// A stimulus waveform: its number and name.
struct ZXADLG_EpochEntry {
    uint32_t uNumber;
    char szName[20];
};
static_assert(sizeof(ZXADLG_EpochEntry) == 24, "layout");
static_assert(offsetof(ZXADLG_EpochEntry, uNumber) == 0, "layout");
static_assert(offsetof(ZXADLG_EpochEntry, szName) == 4, "layout");

// A region by its position in the host's list.
struct ZXADLG_RegionEntry {
    int32_t nRegionId;
    uint32_t uFirstPoint;
    uint32_t uLastPoint;
    uint32_t uGroup;  // left behind by the previous lookup
    uint32_t uSet;    // left behind by the previous lookup
    double dStart;    // on the x axis; 0 when the lookup failed
    double dEnd;
};
static_assert(sizeof(ZXADLG_RegionEntry) == 40, "layout");
static_assert(offsetof(ZXADLG_RegionEntry, nRegionId) == 0, "layout");
static_assert(offsetof(ZXADLG_RegionEntry, uFirstPoint) == 4, "layout");
static_assert(offsetof(ZXADLG_RegionEntry, uLastPoint) == 8, "layout");
static_assert(offsetof(ZXADLG_RegionEntry, uGroup) == 12, "layout");
static_assert(offsetof(ZXADLG_RegionEntry, uSet) == 16, "layout");
static_assert(offsetof(ZXADLG_RegionEntry, dStart) == 24, "layout");
static_assert(offsetof(ZXADLG_RegionEntry, dEnd) == 32, "layout");

// Indices are 0-based. Selection lists are texts such as "0..4,17", 0-based and without blanks.
struct ZXADLG_DataOptions {
    uint32_t eDataKind;  // 0 data file, 1 other set-oriented data, 2 sheet
    ZXADLG_GroupEntry aGroups[16];
    uint32_t uVisibleGroups;  // visible groups among the first 16
    uint32_t uVisibleSets;    // visible sets of the current group
    uint32_t uGroupCount;
    uint32_t uSetCount;  // sets of group 0
    uint32_t bSegmented;
    uint32_t uRegionCount;
    double dSamplingFrequency;  // Hz; data files only
    double dMinValue;           // smallest y value over the selection
    double dMaxValue;           // largest y value over the selection
    uint8_t bHasUserList;
    uint32_t uBlobSize;  // bytes used of aBlob; data files only
    uint8_t aBlob[200];
    ZXADLG_PointSpan aRegionPoints[25];  // region ids 1 to 25
    uint32_t uActiveGroup;
    uint32_t aActiveSets[16];  // active set minus 1
    uint32_t uEpochCount;      // data files only
    ZXADLG_EpochEntry aEpochs[2];
    char szVisibleGroups[32];
    char szVisibleSets[1000];
    ZXADLG_RegionEntry aRegions[50];
    uint8_t bPaired;
    uint8_t reserved0[7];
    int32_t eDataGroup1SelectionMode;  // 0 active, 1 one, 2 all visible, 3 all
    int32_t eDataSet1SelectionMode;  // 0 all visible, 1 all, 2 active, 3 from the list box, 4 typed
                                     // list
    char szUnitarySelectionList1[1000];
    uint32_t uGroup1Index;
    int32_t eDataGroup2SelectionMode;
    int32_t eDataSet2SelectionMode;
    char szUnitarySelectionList2[1000];
    uint32_t uGroup2Index;
    uint32_t uPairedGroupIndex;
    uint8_t bExtrapolate;
    uint8_t bForceExcludedRegionToZero;
    uint32_t uExtrapolationCursor;
    int32_t eAnalysisRegion;
    uint32_t uSelectedDataSet;  // which of the two selections is edited, 0 or 1
    uint32_t uFirstDataIndex;
    uint32_t uLastDataIndex;
    double adConstants[6];
    uint8_t abIsConstant[6];
    uint8_t bUseFullDataRange;
    uint32_t uIndepVarDataSetIndex;
    uint32_t uDepVarDataSetIndex;
    char szDepVarSelectionList[1000];
};
static_assert(sizeof(ZXADLG_DataOptions) == 7128, "layout");
static_assert(offsetof(ZXADLG_DataOptions, eDataKind) == 0, "layout");
static_assert(offsetof(ZXADLG_DataOptions, aGroups) == 4, "layout");
static_assert(offsetof(ZXADLG_DataOptions, uVisibleGroups) == 388, "layout");
static_assert(offsetof(ZXADLG_DataOptions, uVisibleSets) == 392, "layout");
static_assert(offsetof(ZXADLG_DataOptions, uGroupCount) == 396, "layout");
static_assert(offsetof(ZXADLG_DataOptions, uSetCount) == 400, "layout");
static_assert(offsetof(ZXADLG_DataOptions, bSegmented) == 404, "layout");
static_assert(offsetof(ZXADLG_DataOptions, uRegionCount) == 408, "layout");
static_assert(offsetof(ZXADLG_DataOptions, dSamplingFrequency) == 416, "layout");
static_assert(offsetof(ZXADLG_DataOptions, dMinValue) == 424, "layout");
static_assert(offsetof(ZXADLG_DataOptions, dMaxValue) == 432, "layout");
static_assert(offsetof(ZXADLG_DataOptions, bHasUserList) == 440, "layout");
static_assert(offsetof(ZXADLG_DataOptions, uBlobSize) == 444, "layout");
static_assert(offsetof(ZXADLG_DataOptions, aBlob) == 448, "layout");
static_assert(offsetof(ZXADLG_DataOptions, aRegionPoints) == 648, "layout");
static_assert(offsetof(ZXADLG_DataOptions, uActiveGroup) == 848, "layout");
static_assert(offsetof(ZXADLG_DataOptions, aActiveSets) == 852, "layout");
static_assert(offsetof(ZXADLG_DataOptions, uEpochCount) == 916, "layout");
static_assert(offsetof(ZXADLG_DataOptions, aEpochs) == 920, "layout");
static_assert(offsetof(ZXADLG_DataOptions, szVisibleGroups) == 968, "layout");
static_assert(offsetof(ZXADLG_DataOptions, szVisibleSets) == 1000, "layout");
static_assert(offsetof(ZXADLG_DataOptions, aRegions) == 2000, "layout");
static_assert(offsetof(ZXADLG_DataOptions, bPaired) == 4000, "layout");
static_assert(offsetof(ZXADLG_DataOptions, eDataGroup1SelectionMode) == 4008, "layout");
static_assert(offsetof(ZXADLG_DataOptions, eDataSet1SelectionMode) == 4012, "layout");
static_assert(offsetof(ZXADLG_DataOptions, szUnitarySelectionList1) == 4016, "layout");
static_assert(offsetof(ZXADLG_DataOptions, uGroup1Index) == 5016, "layout");
static_assert(offsetof(ZXADLG_DataOptions, eDataGroup2SelectionMode) == 5020, "layout");
static_assert(offsetof(ZXADLG_DataOptions, eDataSet2SelectionMode) == 5024, "layout");
static_assert(offsetof(ZXADLG_DataOptions, szUnitarySelectionList2) == 5028, "layout");
static_assert(offsetof(ZXADLG_DataOptions, uGroup2Index) == 6028, "layout");
static_assert(offsetof(ZXADLG_DataOptions, uPairedGroupIndex) == 6032, "layout");
static_assert(offsetof(ZXADLG_DataOptions, bExtrapolate) == 6036, "layout");
static_assert(offsetof(ZXADLG_DataOptions, bForceExcludedRegionToZero) == 6037, "layout");
static_assert(offsetof(ZXADLG_DataOptions, uExtrapolationCursor) == 6040, "layout");
static_assert(offsetof(ZXADLG_DataOptions, eAnalysisRegion) == 6044, "layout");
static_assert(offsetof(ZXADLG_DataOptions, uSelectedDataSet) == 6048, "layout");
static_assert(offsetof(ZXADLG_DataOptions, uFirstDataIndex) == 6052, "layout");
static_assert(offsetof(ZXADLG_DataOptions, uLastDataIndex) == 6056, "layout");
static_assert(offsetof(ZXADLG_DataOptions, adConstants) == 6064, "layout");
static_assert(offsetof(ZXADLG_DataOptions, abIsConstant) == 6112, "layout");
static_assert(offsetof(ZXADLG_DataOptions, bUseFullDataRange) == 6118, "layout");
static_assert(offsetof(ZXADLG_DataOptions, uIndepVarDataSetIndex) == 6120, "layout");
static_assert(offsetof(ZXADLG_DataOptions, uDepVarDataSetIndex) == 6124, "layout");
static_assert(offsetof(ZXADLG_DataOptions, szDepVarSelectionList) == 6128, "layout");
