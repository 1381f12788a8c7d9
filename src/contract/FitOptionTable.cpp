// The keys of curve fitting.

#include <cstddef>

#include "contract/OptionPersistence.h"
#include "contract/OptionTables.h"

namespace {

constexpr OptionKey kCurveFitFirstKeys[] = {
    {"eFunctionType", OptionType::kInt32, offsetof(FitOptions, eFunctionType)},
    {"eSearchMethod", OptionType::kInt32, offsetof(FitOptions, eSearchMethod)},
    {"eWeightingType", OptionType::kInt32, offsetof(FitOptions, eWeightingType)},
    {"eMinimMethod", OptionType::kInt32, offsetof(FitOptions, eMinimMethod)},
    {"eFunctionGroupID", OptionType::kInt32, offsetof(FitOptions, eFunctionGroupID)},
    {"nNumCustomParams", OptionType::kInt32, offsetof(FitOptions, nNumCustomParams)},
    {"eDestinationOption", OptionType::kInt32, offsetof(FitOptions, common.eDestinationOption)},
    {"dGoldmanTemperature", OptionType::kDouble, offsetof(FitOptions, dGoldmanTemperature)},
    {"dNernstTemperature", OptionType::kDouble, offsetof(FitOptions, dNernstTemperature)},
    {"dZDBoltzmanTemperature", OptionType::kDouble, offsetof(FitOptions, dZDBoltzmanTemperature)},
    {"dUserLMPrecision", OptionType::kDouble, offsetof(FitOptions, dUserLMPrecision)},
    {"dUserVMPrecision", OptionType::kDouble, offsetof(FitOptions, dUserVMPrecision)},
    {"dUserFractError", OptionType::kDouble, offsetof(FitOptions, dUserFractError)},
    {"dTolerance", OptionType::kDouble, offsetof(FitOptions, dTolerance)},
    {"dSubstZeroLinearFactor", OptionType::kDouble, offsetof(FitOptions, dSubstZeroLinearFactor)},
    {"dLeftExtrapolationValue", OptionType::kDouble, offsetof(FitOptions, dLeftExtrapolationValue)},
    {"dRightExtrapolationValue", OptionType::kDouble,
     offsetof(FitOptions, dRightExtrapolationValue)},
};

constexpr OptionKey kCurveFitParameterKeys[] = {
    {.szKey = "Parameter%d",
     .eType = OptionType::kDouble,
     .uOffset = offsetof(FitOptions, dParameters),
     .uStride = 8},
};

constexpr OptionKey kCurveFitSecondKeys[] = {
    {"bDoZeroShift", OptionType::kBool32, offsetof(FitOptions, bDoZeroShift)},
    {"bAutoZeroShift", OptionType::kBool32, offsetof(FitOptions, bAutoZeroShift)},
    {"bFreeAndRefit", OptionType::kBool32, offsetof(FitOptions, bFreeAndRefit)},
    {"bAutoAdjustOnFailure", OptionType::kBool32, offsetof(FitOptions, bAutoAdjustOnFailure)},
    {"bUseVMPrecisionDefault", OptionType::kBool32, offsetof(FitOptions, bUseVMPrecisionDefault)},
    {"bUseLMPrecisionDefault", OptionType::kBool32, offsetof(FitOptions, bUseLMPrecisionDefault)},
    {"bUseFractErrDefault", OptionType::kBool32, offsetof(FitOptions, bUseFractErrDefault)},
    {"bForcePropsPositive", OptionType::kBool32, offsetof(FitOptions, bForcePropsPositive)},
    {"bForceTausPositive", OptionType::kBool32, offsetof(FitOptions, bForceTausPositive)},
    {"bForceAutoSeed", OptionType::kBool32, offsetof(FitOptions, bForceAutoSeed)},
    {"bAutoDefaultOptions", OptionType::kBool32, offsetof(FitOptions, bAutoDefaultOptions)},
    {"bCompareModels", OptionType::kBool32, offsetof(FitOptions, bCompareModels)},
    {"bAutoCompare", OptionType::kBool32, offsetof(FitOptions, bAutoCompare)},
    {"bUseChebyFilter", OptionType::kBool32, offsetof(FitOptions, bUseChebyFilter)},
    {"bWriteFittedData", OptionType::kBool8, offsetof(FitOptions, bWriteFittedData)},
    {"bWriteStatistics", OptionType::kBool8, offsetof(FitOptions, bWriteStatistics)},
    {"bExtrapolateLeft", OptionType::kBool8, offsetof(FitOptions, bExtrapolateLeft)},
    {"bExtrapolateRight", OptionType::kBool8, offsetof(FitOptions, bExtrapolateRight)},
    {"bVerboseOutput", OptionType::kBool8, offsetof(FitOptions, common.bWriteRegionInfo)},
    {"uStartCompare", OptionType::kUInt32, offsetof(FitOptions, uStartCompare)},
    {"uEndCompare", OptionType::kUInt32, offsetof(FitOptions, uEndCompare)},
    {"uMaxIterations", OptionType::kUInt32, offsetof(FitOptions, uMaxIterations)},
    {"uFitOrder", OptionType::kUInt32, offsetof(FitOptions, uFitOrder)},
    {"uCurTimePowerA", OptionType::kUInt32, offsetof(FitOptions, uCurTimePowerA)},
    {"uCurTimePowerB", OptionType::kUInt32, offsetof(FitOptions, uCurTimePowerB)},
    {"uExpPower", OptionType::kUInt32, offsetof(FitOptions, uExpPower)},
    {"uDlgFitOrder", OptionType::kUInt32, offsetof(FitOptions, uDlgFitOrder)},
    {"uPolynomTerm", OptionType::kUInt32, offsetof(FitOptions, uPolynomTerm)},
};

constexpr OptionKey kCurveFitConstraintKeys[] = {
    {.szKey = "Constraint%d",
     .eType = OptionType::kUInt32,
     .uOffset = offsetof(FitOptions, uConstraints),
     .uStride = 4},
    {.szKey = "DlgConstraint%d",
     .eType = OptionType::kUInt32,
     .uOffset = offsetof(FitOptions, uDlgConstraints),
     .uStride = 4},
};

constexpr OptionKey kCurveFitEquationKeys[] = {
    {.szKey = "szEquation",
     .eType = OptionType::kText,
     .uOffset = offsetof(FitOptions, szEquation),
     .uSize = 256},
};

constexpr OptionKey kCurveFitCustomKeys[] = {
    {.szKey = "CustomEquation%d",
     .eType = OptionType::kText,
     .uOffset = offsetof(FitOptions, szCustomEquations),
     .uSize = 256,
     .uStride = 256},
};

constexpr OptionBlock kCurveFitBlocks[] = {
    {kCurveFitFirstKeys},          {kCurveFitParameterKeys, 26}, {kCurveFitSecondKeys},
    {kCurveFitConstraintKeys, 26}, {kCurveFitEquationKeys},      {kCurveFitCustomKeys, 20},
};

}  // namespace

const OptionSection kCurveFitSection = {"CurveFitSection", kCurveFitBlocks};
