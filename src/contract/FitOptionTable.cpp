// The keys of curve fitting.

#include <cstddef>

#include "contract/OptionPersistence.h"
#include "contract/OptionTables.h"

namespace {

using enum OptionType;

constexpr OptionKey kCurveFitFirstKeys[] = {
    Single("eFunctionType", kInt32, offsetof(FitOptions, eFunctionType)),
    Single("eSearchMethod", kInt32, offsetof(FitOptions, eSearchMethod)),
    Single("eWeightingType", kInt32, offsetof(FitOptions, eWeightingType)),
    Single("eMinimMethod", kInt32, offsetof(FitOptions, eMinimMethod)),
    Single("eFunctionGroupID", kInt32, offsetof(FitOptions, eFunctionGroupID)),
    Single("nNumCustomParams", kInt32, offsetof(FitOptions, nNumCustomParams)),
    Single("eDestinationOption", kInt32, offsetof(FitOptions, common.eDestinationOption)),
    Single("dGoldmanTemperature", kDouble, offsetof(FitOptions, dGoldmanTemperature)),
    Single("dNernstTemperature", kDouble, offsetof(FitOptions, dNernstTemperature)),
    Single("dZDBoltzmanTemperature", kDouble, offsetof(FitOptions, dZDBoltzmanTemperature)),
    Single("dUserLMPrecision", kDouble, offsetof(FitOptions, dUserLMPrecision)),
    Single("dUserVMPrecision", kDouble, offsetof(FitOptions, dUserVMPrecision)),
    Single("dUserFractError", kDouble, offsetof(FitOptions, dUserFractError)),
    Single("dTolerance", kDouble, offsetof(FitOptions, dTolerance)),
    Single("dSubstZeroLinearFactor", kDouble, offsetof(FitOptions, dSubstZeroLinearFactor)),
    Single("dLeftExtrapolationValue", kDouble, offsetof(FitOptions, dLeftExtrapolationValue)),
    Single("dRightExtrapolationValue", kDouble, offsetof(FitOptions, dRightExtrapolationValue)),
};

constexpr OptionKey kCurveFitParameterKeys[] = {
    Repeated("Parameter%d", kDouble, offsetof(FitOptions, dParameters), 8),
};

constexpr OptionKey kCurveFitSecondKeys[] = {
    Single("bDoZeroShift", kBool32, offsetof(FitOptions, bDoZeroShift)),
    Single("bAutoZeroShift", kBool32, offsetof(FitOptions, bAutoZeroShift)),
    Single("bFreeAndRefit", kBool32, offsetof(FitOptions, bFreeAndRefit)),
    Single("bAutoAdjustOnFailure", kBool32, offsetof(FitOptions, bAutoAdjustOnFailure)),
    Single("bUseVMPrecisionDefault", kBool32, offsetof(FitOptions, bUseVMPrecisionDefault)),
    Single("bUseLMPrecisionDefault", kBool32, offsetof(FitOptions, bUseLMPrecisionDefault)),
    Single("bUseFractErrDefault", kBool32, offsetof(FitOptions, bUseFractErrDefault)),
    Single("bForcePropsPositive", kBool32, offsetof(FitOptions, bForcePropsPositive)),
    Single("bForceTausPositive", kBool32, offsetof(FitOptions, bForceTausPositive)),
    Single("bForceAutoSeed", kBool32, offsetof(FitOptions, bForceAutoSeed)),
    Single("bAutoDefaultOptions", kBool32, offsetof(FitOptions, bAutoDefaultOptions)),
    Single("bCompareModels", kBool32, offsetof(FitOptions, bCompareModels)),
    Single("bAutoCompare", kBool32, offsetof(FitOptions, bAutoCompare)),
    Single("bUseChebyFilter", kBool32, offsetof(FitOptions, bUseChebyFilter)),
    Single("bWriteFittedData", kBool8, offsetof(FitOptions, bWriteFittedData)),
    Single("bWriteStatistics", kBool8, offsetof(FitOptions, bWriteStatistics)),
    Single("bExtrapolateLeft", kBool8, offsetof(FitOptions, bExtrapolateLeft)),
    Single("bExtrapolateRight", kBool8, offsetof(FitOptions, bExtrapolateRight)),
    Single("bVerboseOutput", kBool8, offsetof(FitOptions, common.bWriteRegionInfo)),
    Single("uStartCompare", kUInt32, offsetof(FitOptions, uStartCompare)),
    Single("uEndCompare", kUInt32, offsetof(FitOptions, uEndCompare)),
    Single("uMaxIterations", kUInt32, offsetof(FitOptions, uMaxIterations)),
    Single("uFitOrder", kUInt32, offsetof(FitOptions, uFitOrder)),
    Single("uCurTimePowerA", kUInt32, offsetof(FitOptions, uCurTimePowerA)),
    Single("uCurTimePowerB", kUInt32, offsetof(FitOptions, uCurTimePowerB)),
    Single("uExpPower", kUInt32, offsetof(FitOptions, uExpPower)),
    Single("uDlgFitOrder", kUInt32, offsetof(FitOptions, uDlgFitOrder)),
    Single("uPolynomTerm", kUInt32, offsetof(FitOptions, uPolynomTerm)),
};

constexpr OptionKey kCurveFitConstraintKeys[] = {
    Repeated("Constraint%d", kUInt32, offsetof(FitOptions, uConstraints), 4),
    Repeated("DlgConstraint%d", kUInt32, offsetof(FitOptions, uDlgConstraints), 4),
};

constexpr OptionKey kCurveFitEquationKeys[] = {
    Text("szEquation", offsetof(FitOptions, szEquation), 256),
};

constexpr OptionKey kCurveFitCustomKeys[] = {
    RepeatedText("CustomEquation%d", offsetof(FitOptions, szCustomEquations), 256, 256),
};

constexpr OptionBlock kCurveFitBlocks[] = {
    {kCurveFitFirstKeys},          {kCurveFitParameterKeys, 26}, {kCurveFitSecondKeys},
    {kCurveFitConstraintKeys, 26}, {kCurveFitEquationKeys},      {kCurveFitCustomKeys, 20},
};

}  // namespace

const OptionSection kCurveFitSection = {"CurveFitSection", kCurveFitBlocks};
