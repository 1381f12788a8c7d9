// Options of Curve Fitting, section CurveFitSection. The record goes whole to the curve-fit library
// as well. The record crosses the boundary between host and library: little-endian, this layout,
// plain data.
#pragma once

#include <stddef.h>
#include <stdint.h>

#include "zxadlg/AnalysisCommon.h"

// Packed to 4 bytes; booleans are 32-bit unless they are bytes. Parameter arrays have 26 places.
#pragma pack(push, 4)
struct FitOptions {
    double dLMPrecision;  // in effect, Levenberg-Marquardt
    double dVMPrecision;  // in effect, variable metric
    double dFractError;   // in effect, simplex
    double dUserLMPrecision;
    double dUserVMPrecision;
    double dUserFractError;
    double dZDBoltzmanTemperature;  // degrees Celsius
    double dNernstTemperature;      // degrees Celsius
    double dGoldmanTemperature;     // degrees Celsius
    double dExtGoldmanTemperature;  // degrees Celsius; has no key
    double dTolerance;              // confidence level of model comparison
    double dXInterval;              // x[1] minus x[0]
    int32_t bFreeAndRefit;
    int32_t bAutoAdjustOnFailure;
    int32_t bUseFractErrDefault;
    int32_t bUseLMPrecisionDefault;
    int32_t bUseVMPrecisionDefault;
    uint8_t reserved0[4];
    int32_t bForcePropsPositive;
    int32_t bForceTausPositive;
    int32_t bAutoDefaultOptions;
    int32_t bCompareModels;
    int32_t bDlgCompareModels;
    int32_t bAutoCompare;
    uint8_t reserved1[4];
    int32_t bForceAutoSeed;
    int32_t bDoZeroShift;
    int32_t bAutoZeroShift;
    int32_t bUseChebyFilter;
    int32_t bDlgChebyFilter;
    int32_t bOfferMethodChange;
    uint32_t uFirstDataIndex;  // first point of the equation data
    uint32_t uLastDataIndex;   // last point
    uint32_t uMaxIterations;
    uint32_t uFitOrder;  // terms in effect
    uint32_t uDlgFitOrder;
    uint32_t uCurTimePowerA;
    uint32_t uCurTimePowerB;
    uint32_t uExpPower;
    uint32_t uStartCompare;
    uint32_t uEndCompare;
    uint32_t uPolynomTerm;
    uint32_t uTermsToFit;
    uint8_t reserved2[260];
    uint32_t uNernstValence;
    int32_t bFullRange;
    uint32_t uFirstPoint;  // 1-based
    uint32_t uLastPoint;   // 1-based
    int32_t eSearchMethod;
    int32_t eFunctionType;
    int32_t eWeightingType;
    int32_t eMinimMethod;
    int32_t ePrevFunctionType;  // the last predefined function
    uint32_t nNumCustomParams;
    uint32_t nNumCustomIndepVars;
    char szEquation[256];
    char szCustomEquations[20][256];  // most recently used first
    uint8_t reserved3[1820];
    int32_t bIsConstantVar[6];
    double dConstantVar[6];
    uint8_t reserved4[128];
    ZXADLG_AnalysisCommon common;  // bWriteRegionInfo has the key bVerboseOutput
    char szFunctionName[45];
    uint32_t uConstraints[26];  // 1 fixed
    uint32_t uDlgConstraints[26];
    double dParameters[26];  // seed values; place 24 offset, place 25 slope
    double dLeftExtrapolationValue;
    double dRightExtrapolationValue;
    double dSubstZeroLinearFactor;
    uint8_t bWriteFittedData;
    uint8_t bWriteStatistics;
    uint8_t bZeroShiftInEffect;
    uint8_t bExtrapolateLeft;
    uint8_t bExtrapolateRight;
    int32_t eFunctionGroupID;
    uint8_t reserved5[4];
};
#pragma pack(pop)
static_assert(sizeof(FitOptions) == 8432, "layout");
static_assert(offsetof(FitOptions, dLMPrecision) == 0, "layout");
static_assert(offsetof(FitOptions, dVMPrecision) == 8, "layout");
static_assert(offsetof(FitOptions, dFractError) == 16, "layout");
static_assert(offsetof(FitOptions, dUserLMPrecision) == 24, "layout");
static_assert(offsetof(FitOptions, dUserVMPrecision) == 32, "layout");
static_assert(offsetof(FitOptions, dUserFractError) == 40, "layout");
static_assert(offsetof(FitOptions, dZDBoltzmanTemperature) == 48, "layout");
static_assert(offsetof(FitOptions, dNernstTemperature) == 56, "layout");
static_assert(offsetof(FitOptions, dGoldmanTemperature) == 64, "layout");
static_assert(offsetof(FitOptions, dExtGoldmanTemperature) == 72, "layout");
static_assert(offsetof(FitOptions, dTolerance) == 80, "layout");
static_assert(offsetof(FitOptions, dXInterval) == 88, "layout");
static_assert(offsetof(FitOptions, bFreeAndRefit) == 96, "layout");
static_assert(offsetof(FitOptions, bAutoAdjustOnFailure) == 100, "layout");
static_assert(offsetof(FitOptions, bUseFractErrDefault) == 104, "layout");
static_assert(offsetof(FitOptions, bUseLMPrecisionDefault) == 108, "layout");
static_assert(offsetof(FitOptions, bUseVMPrecisionDefault) == 112, "layout");
static_assert(offsetof(FitOptions, bForcePropsPositive) == 120, "layout");
static_assert(offsetof(FitOptions, bForceTausPositive) == 124, "layout");
static_assert(offsetof(FitOptions, bAutoDefaultOptions) == 128, "layout");
static_assert(offsetof(FitOptions, bCompareModels) == 132, "layout");
static_assert(offsetof(FitOptions, bDlgCompareModels) == 136, "layout");
static_assert(offsetof(FitOptions, bAutoCompare) == 140, "layout");
static_assert(offsetof(FitOptions, bForceAutoSeed) == 148, "layout");
static_assert(offsetof(FitOptions, bDoZeroShift) == 152, "layout");
static_assert(offsetof(FitOptions, bAutoZeroShift) == 156, "layout");
static_assert(offsetof(FitOptions, bUseChebyFilter) == 160, "layout");
static_assert(offsetof(FitOptions, bDlgChebyFilter) == 164, "layout");
static_assert(offsetof(FitOptions, bOfferMethodChange) == 168, "layout");
static_assert(offsetof(FitOptions, uFirstDataIndex) == 172, "layout");
static_assert(offsetof(FitOptions, uLastDataIndex) == 176, "layout");
static_assert(offsetof(FitOptions, uMaxIterations) == 180, "layout");
static_assert(offsetof(FitOptions, uFitOrder) == 184, "layout");
static_assert(offsetof(FitOptions, uDlgFitOrder) == 188, "layout");
static_assert(offsetof(FitOptions, uCurTimePowerA) == 192, "layout");
static_assert(offsetof(FitOptions, uCurTimePowerB) == 196, "layout");
static_assert(offsetof(FitOptions, uExpPower) == 200, "layout");
static_assert(offsetof(FitOptions, uStartCompare) == 204, "layout");
static_assert(offsetof(FitOptions, uEndCompare) == 208, "layout");
static_assert(offsetof(FitOptions, uPolynomTerm) == 212, "layout");
static_assert(offsetof(FitOptions, uTermsToFit) == 216, "layout");
static_assert(offsetof(FitOptions, uNernstValence) == 480, "layout");
static_assert(offsetof(FitOptions, bFullRange) == 484, "layout");
static_assert(offsetof(FitOptions, uFirstPoint) == 488, "layout");
static_assert(offsetof(FitOptions, uLastPoint) == 492, "layout");
static_assert(offsetof(FitOptions, eSearchMethod) == 496, "layout");
static_assert(offsetof(FitOptions, eFunctionType) == 500, "layout");
static_assert(offsetof(FitOptions, eWeightingType) == 504, "layout");
static_assert(offsetof(FitOptions, eMinimMethod) == 508, "layout");
static_assert(offsetof(FitOptions, ePrevFunctionType) == 512, "layout");
static_assert(offsetof(FitOptions, nNumCustomParams) == 516, "layout");
static_assert(offsetof(FitOptions, nNumCustomIndepVars) == 520, "layout");
static_assert(offsetof(FitOptions, szEquation) == 524, "layout");
static_assert(offsetof(FitOptions, szCustomEquations) == 780, "layout");
static_assert(offsetof(FitOptions, bIsConstantVar) == 7720, "layout");
static_assert(offsetof(FitOptions, dConstantVar) == 7744, "layout");
static_assert(offsetof(FitOptions, common) == 7920, "layout");
static_assert(offsetof(FitOptions, szFunctionName) == 7928, "layout");
static_assert(offsetof(FitOptions, uConstraints) == 7976, "layout");
static_assert(offsetof(FitOptions, uDlgConstraints) == 8080, "layout");
static_assert(offsetof(FitOptions, dParameters) == 8184, "layout");
static_assert(offsetof(FitOptions, dLeftExtrapolationValue) == 8392, "layout");
static_assert(offsetof(FitOptions, dRightExtrapolationValue) == 8400, "layout");
static_assert(offsetof(FitOptions, dSubstZeroLinearFactor) == 8408, "layout");
static_assert(offsetof(FitOptions, bWriteFittedData) == 8416, "layout");
static_assert(offsetof(FitOptions, bWriteStatistics) == 8417, "layout");
static_assert(offsetof(FitOptions, bZeroShiftInEffect) == 8418, "layout");
static_assert(offsetof(FitOptions, bExtrapolateLeft) == 8419, "layout");
static_assert(offsetof(FitOptions, bExtrapolateRight) == 8420, "layout");
static_assert(offsetof(FitOptions, eFunctionGroupID) == 8424, "layout");
