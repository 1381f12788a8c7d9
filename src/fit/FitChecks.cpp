#include "fit/FitChecks.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <string>

#include "ZXADLG.h"
#include "contract/SelectionList.h"
#include "fit/FitSeedRules.h"
#include "fit_control_ids.h"
#include "fit_ids.h"
#include "ids.h"

namespace {

// The largest size of normalized data, but for rounding.
constexpr double kOne = 1.00001;

// What the source gave of the selected points: fewer than the selection names where it is of other
// data.
struct Points {
    std::span<const double> x;
    std::span<const double> y;
    std::size_t nCount;  // as selected where there are none
};

Points FetchPoints(CDataOptionsInterface& data) {
    Points points;
    if (const double* pX = data.GetXValues()) points.x = {pX, data.GetFetchedXCount()};
    if (const double* pY = data.GetYValues()) points.y = {pY, data.GetFetchedYCount()};
    points.nCount = !points.x.empty()   ? points.x.size()
                    : !points.y.empty() ? points.y.size()
                                        : data.GetSelectedPointCount();
    return points;
}

bool IsAllZero(std::span<const double> x) {
    return std::none_of(x.begin(), x.end(), [](double d) { return d != 0.0; });
}

// Not a number is within.
bool IsWithinOne(std::span<const double> y) {
    return std::none_of(y.begin(), y.end(), [](double d) { return std::fabs(d) > kOne; });
}

}  // namespace

// --- The custom function -------------------------------------------------------------------------

CheckResult CheckCustomDefined(const CFitOptionsInterface& fit) {
    if (!fit.IsCustomFunction() || fit.bCustomTextPresent) return {};
    return Refusal(IDS_FIT_CUSTOM_MISSING, kFitFunctionPage, IDC_FIT_EQUATION);
}

// --- The data ------------------------------------------------------------------------------------

CheckResult CheckColumnsDiffer(const CDataOptionsInterface& data) {
    if (!data.IsSheetData()) return {};
    std::vector<std::int32_t> vDependents;
    if (data.GetUseDepVarList()) {
        vDependents = ParseSelection(data.GetDepVarSelectionList(), 0);
    } else {
        vDependents.push_back(static_cast<std::int32_t>(data.GetYSet()));
    }
    const auto nX = static_cast<std::int32_t>(data.GetXSet());
    if (std::find(vDependents.begin(), vDependents.end(), nX) == vDependents.end()) return {};
    Finding finding = Refusal(IDS_FIT_SAME_COLUMN, kFitDataPage);
    finding.uFlags |= MB_TASKMODAL;
    return finding;
}

CheckResult CheckConstants(const CFitOptionsInterface& fit) {
    const CDataOptionsInterface& data = fit.Data();
    const std::uint32_t uVariables = data.GetConstantCount();
    if (uVariables < 2) return {};
    std::uint32_t uConstants = 0;
    for (std::uint32_t i = 0; i < uVariables; ++i) {
        if (!data.GetIsConstant(i)) continue;
        ++uConstants;
        if (!(data.GetConstant(i) > 0.0)) {
            return Refusal(IDS_FIT_CONSTANTS_POSITIVE, kFitDataPage,
                           IDC_CONSTANT_FIRST + static_cast<int>(i));
        }
    }
    if (uConstants + 1 == uVariables) return {};
    return Refusal(IDS_FIT_CONSTANTS_COUNT, kFitDataPage);
}

CheckResult CheckDataForFit(const CFitOptionsInterface& fit, FitDataUse eUse) {
    if (CheckResult result = CheckConstants(fit)) return result;
    CDataOptionsInterface& data = fit.Data();
    const Points points = FetchPoints(data);
    const std::uint32_t uParameters = fit.TotalParameterCount();
    if (points.nCount < uParameters) {
        Finding finding = Refusal(eUse == FitDataUse::kEstimate ? IDS_FIT_TOO_FEW_POINTS_TO_ESTIMATE
                                                                : IDS_FIT_TOO_FEW_POINTS,
                                  kFitAdvancedPage);
        finding.vArguments = {std::to_string(points.nCount), std::to_string(uParameters)};
        finding.ePlaces = TemplatePlaces::kNumbers;
        return finding;
    }
    if (data.IsSheetData() && (points.x.empty() || points.y.empty()))
        return Refusal(IDS_COLUMNS_EMPTY, kFitAdvancedPage);
    if (points.x.empty()) return Refusal(IDS_FIT_NO_X, kFitAdvancedPage);
    if (points.y.empty()) return Refusal(IDS_FIT_NO_Y, kFitAdvancedPage);
    if (IsAllZero(points.x)) return Refusal(IDS_FIT_X_ALL_ZERO, kFitAdvancedPage);
    // A comparison that needs the number of observations can't be made of their proportions.
    if (fit.IsComparing() && fit.Properties().bNeedsObservationCount != 0 &&
        IsWithinOne(points.y)) {
        return Refusal(IDS_FIT_COMPARE_NORMALIZED, kFitAdvancedPage);
    }
    return {};
}

CheckResult CheckEvenX(const CFitOptionsInterface& fit, std::function<void()> useLM) {
    const EvenXFinding found = fit.IsXUniform();
    if (found.bEven) return {};
    if (fit.GetSearchMethod() == kSearchChebyshev && fit.Options().bOfferMethodChange != 0) {
        return Finding{.nStringId = IDS_FIT_OFFER_LM,
                       .uFlags = MB_ICONQUESTION | MB_OKCANCEL,
                       .vAnswers = {{IDOK, Finding::Next::kGoOn, std::move(useLM)}}};
    }
    return Finding{.nStringId = static_cast<UINT>(found.nString), .uFlags = MB_ICONASTERISK};
}

CheckResult CheckNegativeData(const CFitOptionsInterface& fit) {
    if (fit.Properties().bRejectsNegativeData == 0) return {};
    const Points points = FetchPoints(fit.Data());
    if (std::none_of(points.y.begin(), points.y.end(), [](double d) { return d < 0.0; })) return {};
    const bool bLikelihood = fit.GetFunction() == 12 && fit.Options().eMinimMethod == kMinimML;
    return Refusal(bLikelihood ? IDS_FIT_NEGATIVE_DATA_LIKELIHOOD : IDS_FIT_NEGATIVE_DATA,
                   kFitFunctionPage, IDC_FIT_FUNCTIONS);
}

CheckResult CheckColumnLengths(const CDataOptionsInterface& data) {
    if (!data.IsSheetData() || !data.GetUseDepVarList()) return {};
    const std::vector<std::int32_t> vSets = ParseSelection(data.GetDepVarSelectionList(), 0);
    if (vSets.empty()) return Refusal(IDS_NO_DATA_SELECTED, kFitDataPage);
    const auto length = [&](std::int32_t nSet) {
        return data.GetDataSource()->GetPointCount(data.GetGroup(),
                                                   static_cast<std::uint32_t>(nSet), nullptr, 0);
    };
    const std::uint32_t uFirst = length(vSets.front());
    if (std::all_of(vSets.begin() + 1, vSets.end(),
                    [&](std::int32_t nSet) { return length(nSet) == uFirst; })) {
        return {};
    }
    return Refusal(IDS_FIT_LENGTHS_DIFFER, kFitDataPage);
}

// --- The seeds -----------------------------------------------------------------------------------

namespace {

// The edit of the first seed that is missing.
int FirstMissing(const CFitOptionsInterface& fit, const CFitSeedInterface& seeds) {
    const auto uPlace = FindMissingSeed(fit, seeds);
    return uPlace ? IDC_FIT_SEED_FIRST + static_cast<int>(*uPlace) : 0;
}

}  // namespace

bool AreSeedsOutOfDate(const CFitOptionsInterface& fit) {
    return fit.bSeedsStale && (!fit.bSeedsValid || fit.IsCustomFunction());
}

CheckResult CheckSeeds(CFitOptionsInterface& fit, const CFitSeedInterface& seeds,
                       const SeedCheck& check) {
    if (fit.IsComparing()) return {};
    // There is no estimate that could be more valid than what was typed.
    if (fit.IsCustomFunction()) fit.bSeedsValid = true;
    const bool bUsable = AreSeedsUsable(fit, seeds);
    if (bUsable && fit.bSeedsValid) return {};
    fit.bAutoSeedDeclined = false;
    if (fit.IsCustomFunction())
        return Refusal(IDS_FIT_CUSTOM_SEED_MISSING, kFitSeedPage, FirstMissing(fit, seeds));
    if (bUsable || check.bDeferred) return {};
    if (check.bReadOnly) {
        return Finding{.nStringId = IDS_FIT_SEEDS_NOT_VALID,
                       .uFlags = MB_ICONHAND | MB_OKCANCEL | MB_DEFBUTTON2,
                       .nPage = kFitSeedPage,
                       .vAnswers = {{IDCANCEL, Finding::Next::kCancel}}};
    }
    const auto estimate = [&fit, run = check.estimate] {
        const bool bEstimated = run();
        fit.bAutoSeedDeclined = !bEstimated;
    };
    const auto keep = [&fit, run = check.keep] {
        fit.bAutoSeedDeclined = false;
        fit.bSeedsStale = false;
        fit.bSeedsAutomatic = false;
        fit.bSeedsValid = true;
        run();
    };
    return Finding{
        .nStringId = IDS_FIT_SEEDS_ESTIMATE,
        .uFlags = MB_ICONQUESTION | MB_YESNO,
        .nPage = kFitSeedPage,
        .nControl = FirstMissing(fit, seeds),
        .vAnswers = {{IDYES, Finding::Next::kGoOn, estimate}, {IDNO, Finding::Next::kStay, keep}}};
}

CheckResult CheckEstimate(const CFitOptionsInterface& fit, const CFitSeedInterface& seeds) {
    if (fit.IsComparing() || fit.bSeedsValid || AreSeedsUsable(fit, seeds)) return {};
    return Finding{.nPage = kFitSeedPage};
}

CheckResult CheckGraphNeeded(const CFitOptionsInterface& fit, const CFitSeedInterface& seeds) {
    const auto tell = [](UINT uString) {
        return Finding{.nStringId = uString, .uFlags = MB_ICONASTERISK};
    };
    const bool bAnyFixed = std::any_of(seeds.uFixed.begin(), seeds.uFixed.end(),
                                       [](std::uint32_t uFixed) { return uFixed != 0; });
    if (fit.GetSearchMethod() == kSearchChebyshev) {
        switch (fit.GetFunction()) {
            case 3:
                return tell(IDS_FIT_GRAPH_NOT_SHIFTED_BOLTZMANN);
            case 11:
                return tell(IDS_FIT_GRAPH_NOT_POWER_EXPONENTIAL);
            case 14:
                if (!bAnyFixed) return tell(IDS_FIT_GRAPH_SLOPING_FIX);
                break;
            case 15:
                if (!bAnyFixed) return tell(IDS_FIT_GRAPH_STANDARD_FIX);
                break;
            default:
                break;
        }
    }
    if (fit.Properties().bPolynomial != 0) return tell(IDS_FIT_GRAPH_NOT_POLYNOMIAL);
    if (fit.Properties().bStraightLine != 0) return tell(IDS_FIT_GRAPH_NOT_LINE);
    if (FindMissingSeed(fit, seeds)) return tell(IDS_FIT_GRAPH_SEED_MISSING);
    if (fit.IsCustomFunction() && !fit.bCustomCompiled) return tell(IDS_FIT_GRAPH_CUSTOM_MISSING);
    return {};
}

// --- Fixed parameters, the comparison of models, the range of the curve --------------------------

CheckResult CheckComparisonOrder(const CFitOptionsInterface& fit) {
    if (!fit.IsComparing() || fit.Options().uEndCompare > fit.Options().uStartCompare) return {};
    return Refusal(IDS_FIT_COMPARE_ORDER, kFitFunctionPage, IDC_FIT_END_TERM);
}

CheckResult CheckAnyFree(const CFitOptionsInterface& fit, const CFitSeedInterface& seeds) {
    // The flags of a function whose seeds are not entered are hidden, and ask nothing.
    if (!fit.IsSeeded()) return {};
    CFitSeedInterface::Values flat{};
    CFitSeedInterface::Flags fixed{};
    const std::uint32_t uCount = seeds.GetSeeds(flat.data(), fixed.data());
    if (std::any_of(fixed.begin(), fixed.begin() + uCount, [](std::uint32_t u) { return u == 0; }))
        return {};
    if (fit.IsComparing()) return Refusal(IDS_FIT_COMPARE_ALL_FIXED, kFitSeedPage);
    return Finding{.nStringId = IDS_FIT_ALL_FIXED,
                   .uFlags = MB_ICONQUESTION | MB_OKCANCEL,
                   .nPage = kFitSeedPage,
                   .vAnswers = {{IDOK, Finding::Next::kGoOn}}};
}

CheckResult CheckCurveRange(CFitOptionsInterface& fit) {
    if (fit.CheckExtrapolation()) return {};
    const FitOptions& options = fit.Options();
    const bool bFrom = options.bExtrapolateLeft != 0 && !(options.dLeftExtrapolationValue > 0.0);
    return Refusal(IDS_FIT_RANGE_POSITIVE, kFitAdvancedPage,
                   bFrom ? IDC_FIT_FROM_VALUE : IDC_FIT_TO_VALUE);
}

CurveRangeForm FormOfCurveRange(const CDataOptionsInterface& data, bool bHasDataPage,
                                bool bReadOnly, bool bDeferred) {
    const bool bCursors = data.IsFileData() && bHasDataPage;
    return {.bCursorPair = bCursors,
            .bLimits = !bCursors,
            .bLimitEdits = !bCursors && !bReadOnly,
            .bDataTexts = !bCursors && !bReadOnly && !bDeferred,
            .nCaption = data.IsSheetData() ? IDS_FIT_FITTED_CURVE_RANGE : 0};
}
