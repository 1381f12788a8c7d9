// Options of Subtract Control, section SubtractControl.
// The record crosses the boundary between host and library: little-endian, this layout, plain data.
#pragma once

#include <stddef.h>
#include <stdint.h>

struct ZXADLG_SubtractControlOptions {
    char szSubtractFileName[512];  // path of the control file, as BrowseForFile gave it
    double dMultiplier;  // of the control, no units; used where bUseMultiplier is 1. Start with 1
    uint8_t bUseMultiplier;
    uint8_t bUseFirstTraceOnly;  // the control's first sweep is subtracted from all
    uint8_t bUseLastFile;        // kept with the record; no control shows it
    int32_t anListEntry[16];     // the selected signals of the control file, from 0
    int32_t nFileID;             // identifier that GetFileHandle gave
    int32_t nNumGroups;          // entries of the list in use
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
