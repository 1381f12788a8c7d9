// Options of Filter (the sections of the four filters) and Power Spectrum (PowerSpectrumSection):
// the two analyses share one record of 400 bytes and each uses its own half of it. The record
// crosses the boundary between host and library: little-endian, this layout, plain data.
#pragma once

#include <stddef.h>
#include <stdint.h>

#include "zxadlg/AnalysisCommon.h"

// One filter of the arrangement.
struct ZXADLG_FilterSection {
    uint8_t m_bIsSelected;
    int32_t m_eFilterFamily;  // 2 Bessel, 3 boxcar, 4 Butterworth, 5 Chebyshev, 6 Gaussian, 7 RC, 8
                              // RC 8-pole
    int32_t m_eFilterType;
    uint32_t m_uNumAveragePoints;  // boxcar smoothing points, odd
    double m_dCornerFreq;          // Hz; centre of a notch
    double m_d3dbWidth;            // Hz; notch only
    double m_dPrevFilterFreq;      // Hz
    uint32_t uApplyOrder;
    uint8_t reserved0[28];
};
static_assert(sizeof(ZXADLG_FilterSection) == 72, "layout");
static_assert(offsetof(ZXADLG_FilterSection, m_bIsSelected) == 0, "layout");
static_assert(offsetof(ZXADLG_FilterSection, m_eFilterFamily) == 4, "layout");
static_assert(offsetof(ZXADLG_FilterSection, m_eFilterType) == 8, "layout");
static_assert(offsetof(ZXADLG_FilterSection, m_uNumAveragePoints) == 12, "layout");
static_assert(offsetof(ZXADLG_FilterSection, m_dCornerFreq) == 16, "layout");
static_assert(offsetof(ZXADLG_FilterSection, m_d3dbWidth) == 24, "layout");
static_assert(offsetof(ZXADLG_FilterSection, m_dPrevFilterFreq) == 32, "layout");
static_assert(offsetof(ZXADLG_FilterSection, uApplyOrder) == 40, "layout");

// Removal of electrical interference.
struct ZXADLG_AdaptiveFilterSection {
    uint8_t m_bIsSelected;
    uint8_t reserved0[43];
    int32_t m_eReferenceGeneration;  // 0 50 Hz, 1 60 Hz, 2 automatic
    uint8_t reserved1[8];
    uint32_t m_uHarmonicNumberStart;
    uint32_t m_uHarmonicNumberEnd;
    uint32_t m_uAveragingCycles;
    uint8_t m_bEndEffectCompensation;
};
static_assert(sizeof(ZXADLG_AdaptiveFilterSection) == 72, "layout");
static_assert(offsetof(ZXADLG_AdaptiveFilterSection, m_bIsSelected) == 0, "layout");
static_assert(offsetof(ZXADLG_AdaptiveFilterSection, m_eReferenceGeneration) == 44, "layout");
static_assert(offsetof(ZXADLG_AdaptiveFilterSection, m_uHarmonicNumberStart) == 56, "layout");
static_assert(offsetof(ZXADLG_AdaptiveFilterSection, m_uHarmonicNumberEnd) == 60, "layout");
static_assert(offsetof(ZXADLG_AdaptiveFilterSection, m_uAveragingCycles) == 64, "layout");
static_assert(offsetof(ZXADLG_AdaptiveFilterSection, m_bEndEffectCompensation) == 68, "layout");

struct ZXADLG_SignalProcessingOptions {
    uint8_t reserved0[8];
    double dSampleInterval;  // microseconds
    ZXADLG_FilterSection lowpass;
    ZXADLG_FilterSection highpass;
    ZXADLG_FilterSection notch;
    ZXADLG_AdaptiveFilterSection adaptive;
    int32_t eWindowType;  // 0 to 9, the spectral window
    double dPoissonAlpha;
    double dKaiserAlpha;
    uint8_t reserved1[16];
    uint32_t uTransformLength;  // points
    uint8_t reserved2[4];
    uint32_t uNumBinsToExclude;  // 1 to 10
    double dDisplayValue;        // 50.0 when a dialog is built
    int32_t bDoOverlap;
    int32_t bAverageSegments;
    int32_t bAverageTraces;        // in effect
    int32_t bDialogAverageTraces;  // the user's choice
    uint8_t reserved3[4];
    int32_t bUseMaxSegment;
    ZXADLG_AnalysisCommon common;
};
static_assert(sizeof(ZXADLG_SignalProcessingOptions) == 400, "layout");
static_assert(offsetof(ZXADLG_SignalProcessingOptions, dSampleInterval) == 8, "layout");
static_assert(offsetof(ZXADLG_SignalProcessingOptions, lowpass) == 16, "layout");
static_assert(offsetof(ZXADLG_SignalProcessingOptions, highpass) == 88, "layout");
static_assert(offsetof(ZXADLG_SignalProcessingOptions, notch) == 160, "layout");
static_assert(offsetof(ZXADLG_SignalProcessingOptions, adaptive) == 232, "layout");
static_assert(offsetof(ZXADLG_SignalProcessingOptions, eWindowType) == 304, "layout");
static_assert(offsetof(ZXADLG_SignalProcessingOptions, dPoissonAlpha) == 312, "layout");
static_assert(offsetof(ZXADLG_SignalProcessingOptions, dKaiserAlpha) == 320, "layout");
static_assert(offsetof(ZXADLG_SignalProcessingOptions, uTransformLength) == 344, "layout");
static_assert(offsetof(ZXADLG_SignalProcessingOptions, uNumBinsToExclude) == 352, "layout");
static_assert(offsetof(ZXADLG_SignalProcessingOptions, dDisplayValue) == 360, "layout");
static_assert(offsetof(ZXADLG_SignalProcessingOptions, bDoOverlap) == 368, "layout");
static_assert(offsetof(ZXADLG_SignalProcessingOptions, bAverageSegments) == 372, "layout");
static_assert(offsetof(ZXADLG_SignalProcessingOptions, bAverageTraces) == 376, "layout");
static_assert(offsetof(ZXADLG_SignalProcessingOptions, bDialogAverageTraces) == 380, "layout");
static_assert(offsetof(ZXADLG_SignalProcessingOptions, bUseMaxSegment) == 388, "layout");
static_assert(offsetof(ZXADLG_SignalProcessingOptions, common) == 392, "layout");

using FilterOptions = ZXADLG_SignalProcessingOptions;
using SpectrumOptions = ZXADLG_SignalProcessingOptions;
