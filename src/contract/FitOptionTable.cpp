// The keys of curve fitting.

#include "contract/FitGraphView.h"
#include "contract/OptionPersistence.h"
#include "contract/OptionTables.h"

namespace {

using enum OptionType;
using Record = FitOptions;

constexpr OptionKey kCurveFitFirstKeys[] = {
    KEY(eFunctionType),
    KEY(eSearchMethod),
    KEY(eWeightingType),
    KEY(eMinimMethod),
    KEY(eFunctionGroupID),
    SIGNED_KEY(nNumCustomParams),
    KEY(common.eDestinationOption),
    KEY(dGoldmanTemperature),
    KEY(dNernstTemperature),
    KEY(dZDBoltzmanTemperature),
    KEY(dUserLMPrecision),
    KEY(dUserVMPrecision),
    KEY(dUserFractError),
    KEY(dTolerance),
    KEY(dSubstZeroLinearFactor),
    KEY(dLeftExtrapolationValue),
    KEY(dRightExtrapolationValue),
};

constexpr OptionKey kCurveFitParameterKeys[] = {
    KEY_OF_ELEMENTS("Parameter%d", dParameters),
};

constexpr OptionKey kCurveFitSecondKeys[] = {
    KEY(bDoZeroShift),
    KEY(bAutoZeroShift),
    KEY(bFreeAndRefit),
    KEY(bAutoAdjustOnFailure),
    KEY(bUseVMPrecisionDefault),
    KEY(bUseLMPrecisionDefault),
    KEY(bUseFractErrDefault),
    KEY(bForcePropsPositive),
    KEY(bForceTausPositive),
    KEY(bForceAutoSeed),
    KEY(bAutoDefaultOptions),
    KEY(bCompareModels),
    KEY(bAutoCompare),
    KEY(bUseChebyFilter),
    KEY(bWriteFittedData),
    KEY(bWriteStatistics),
    KEY(bExtrapolateLeft),
    KEY(bExtrapolateRight),
    KEY_NAMED("bVerboseOutput", common.bWriteRegionInfo),
    KEY(uStartCompare),
    KEY(uEndCompare),
    KEY(uMaxIterations),
    KEY(uFitOrder),
    KEY(uCurTimePowerA),
    KEY(uCurTimePowerB),
    KEY(uExpPower),
    KEY(uDlgFitOrder),
    KEY(uPolynomTerm),
};

constexpr OptionKey kCurveFitConstraintKeys[] = {
    KEY_OF_ELEMENTS("Constraint%d", uConstraints),
    KEY_OF_ELEMENTS("DlgConstraint%d", uDlgConstraints),
};

constexpr OptionKey kCurveFitEquationKeys[] = {
    KEY(szEquation),
};

constexpr OptionKey kCurveFitCustomKeys[] = {
    KEY_OF_ELEMENTS("CustomEquation%d", szCustomEquations),
};

constexpr OptionBlock kCurveFitBlocks[] = {
    {kCurveFitFirstKeys},          {kCurveFitParameterKeys, 26}, {kCurveFitSecondKeys},
    {kCurveFitConstraintKeys, 26}, {kCurveFitEquationKeys},      {kCurveFitCustomKeys, 20},
};

}  // namespace

const OptionSection kCurveFitSection = {"CurveFitSection", "FitOptions", kCurveFitBlocks};

// --- Graphical seeding
// -----------------------------------------------------------------------------

namespace graph_view {
namespace {

using Record = FitGraphView;

constexpr OptionKey kKeys[] = {
    KEY(bShowLegend),
    KEY(bShowAxes),
    KEY(bContinuousAutoScale),
};

constexpr OptionBlock kBlocks[] = {{kKeys}};

// The section is that of the options, whose load and save leave these keys alone.
const OptionSection kSection = {"CurveFitSection", "FitGraphView", kBlocks};

}  // namespace
}  // namespace graph_view

void LoadFitGraphView(const char* pszProfile, FitGraphView* pView) {
    LoadSection(pszProfile, graph_view::kSection, pView);
}

bool SaveFitGraphView(const char* pszProfile, const FitGraphView* pView) {
    return SaveSection(pszProfile, graph_view::kSection, pView);
}
