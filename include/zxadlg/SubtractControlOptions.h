// Options of Subtract Control, section SubtractControl.
// The record crosses the boundary between host and library: little-endian, this layout, plain data.
#pragma once

#include <stddef.h>
#include <stdint.h>

struct ZXADLG_SubtractControlOptions {
    char szSubtractFileName[512];
    double dMultiplier;
    uint8_t bUseMultiplier;
    uint8_t bUseFirstTraceOnly;
    uint8_t bUseLastFile;     // kept with the record; no control shows it
    int32_t anListEntry[16];  // indices of the selected signals
    int32_t nFileID;          // identifier that GetFileHandle gave
    int32_t nNumGroups;       // entries of the list in use
    uint8_t reserved0[12];
};
static_assert(sizeof(ZXADLG_SubtractControlOptions) == 608, "layout");
static_assert(offsetof(ZXADLG_SubtractControlOptions, szSubtractFileName) == 0, "layout");
static_assert(offsetof(ZXADLG_SubtractControlOptions, dMultiplier) == 512, "layout");
static_assert(offsetof(ZXADLG_SubtractControlOptions, bUseMultiplier) == 520, "layout");
static_assert(offsetof(ZXADLG_SubtractControlOptions, bUseFirstTraceOnly) == 521, "layout");
static_assert(offsetof(ZXADLG_SubtractControlOptions, bUseLastFile) == 522, "layout");
static_assert(offsetof(ZXADLG_SubtractControlOptions, anListEntry) == 524, "layout");
static_assert(offsetof(ZXADLG_SubtractControlOptions, nFileID) == 588, "layout");
static_assert(offsetof(ZXADLG_SubtractControlOptions, nNumGroups) == 592, "layout");
