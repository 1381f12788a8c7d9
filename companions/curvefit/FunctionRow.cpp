#include "FunctionRow.h"

#include <cstring>
#include <string_view>

#include "BoundedCopy.h"

namespace curvefit {

bool Holds(Trait trait, const Settings& settings) {
    switch (trait) {
        case kNo:
            return false;
        case kYes:
            return true;
        case kNotChebyshev:
            return !settings.IsChebyshev();
        case kNotLikelihood:
            return !settings.IsLikelihood();
        case kOnlyLikelihood:
            return settings.IsLikelihood();
    }
    return false;
}

uint32_t TermsOf(const FunctionRow& row, const Settings& settings) {
    return Holds(row.traits.bMultiTerm, settings) ? settings.uOrder : 1;
}

bool IsZeroShiftInEffect(const FunctionRow& row, const Settings& settings) {
    switch (row.traits.zeroShift) {
        case ZeroShift::kNone:
            return false;
        case ZeroShift::kMandatory:
            return true;
        case ZeroShift::kAllowedOff:
        case ZeroShift::kAllowedOn:
            break;
    }
    return settings.bAutoZeroShift ? row.traits.zeroShift == ZeroShift::kAllowedOn
                                   : settings.bDoZeroShift;
}

void FillProperties(const FunctionRow& row, const Settings& settings, FitFunctionProps* props) {
    const Traits& traits = row.traits;
    const auto is = [&](Trait trait) { return Holds(trait, settings) ? 1 : 0; };
    *props = {};
    props->uParamsPerTerm = row.uParams;
    props->uNumDataArrays = row.uVariables + 1;
    // The parameters of term 1 stand one number of terms apart.
    props->uZeroAllowedParam = traits.uZeroColumn == kNoZeroColumn
                                   ? kNoZeroColumn
                                   : traits.uZeroColumn * TermsOf(row, settings);
    props->bNormalizeWhenForced = is(traits.bNormalizeWhenForced);
    props->bProportionsSumToOne = is(traits.bProportionsSumToOne);
    props->bMultiTerm = is(traits.bMultiTerm);
    props->bFractionalProportions = is(traits.bFractionalProportions);
    props->bIntegralX = is(traits.bIntegralX);
    props->bNormalizedY = is(traits.bNormalizedY);
    props->bHasSlope = is(traits.bHasSlope);
    props->bHasOffset = is(traits.bHasOffset);
    props->bCanForcePositive = is(traits.bCanForcePositive);
    props->bAlwaysPositive = is(traits.bAlwaysPositive);
    props->bZeroShiftAllowed = traits.zeroShift != ZeroShift::kNone;
    props->bNormalizedX = is(traits.bNormalizedX);
    props->bZeroShiftMandatory = traits.zeroShift == ZeroShift::kMandatory;
    props->bCanNormalizeProportions = is(traits.bCanNormalizeProportions);
    props->bBinWidthWeighting = is(traits.bBinWidthWeighting);
    props->bRejectsNegativeData = is(traits.bRejectsNegativeData);
    props->bOnlyProportionsForced = is(traits.bOnlyProportionsForced);
    props->bUsesPowerA = is(traits.bUsesPowerA);
    props->bUsesPowerB = is(traits.bUsesPowerB);
    props->bUsesTemperature = is(traits.bUsesTemperature);
    props->bUsesValence = is(traits.bUsesValence);
    props->bAutoZeroShiftDefault =
        traits.zeroShift == ZeroShift::kAllowedOn || traits.zeroShift == ZeroShift::kMandatory;
    props->bNeedsObservationCount = is(traits.bNeedsObservationCount);
    props->bNoChebyFilter = is(traits.bNoChebyFilter);
    props->bAllowLM = is(traits.bAllowLM);
    props->bAllowSimplex = is(traits.bAllowSimplex);
    props->bAllowChebyshev = is(traits.bAllowChebyshev);
    props->bAllowChebyFilter = is(traits.bAllowChebyshev);
    props->bStraightLine = is(traits.bStraightLine);
    props->bPolynomial = is(traits.bPolynomial);
    props->bSubstitutesZeroX = is(traits.bSubstitutesZeroX);
    for (uint32_t i = 0; i < row.uParams; ++i) CopyText(props->szParamNames[i], row.aszParams[i]);
    for (uint32_t i = 0; i < row.uVariables; ++i)
        CopyText(props->szVariableNames[i], row.aszVariables[i]);
    CopyText(props->szDependentName, row.szDependent);
    if (props->bHasOffset) CopyText(props->szOffsetName, row.szOffset);
    if (props->bHasSlope) CopyText(props->szSlopeName, row.szSlope);
    CopyText(props->szFunctionName, row.szCaption);
}

}  // namespace curvefit
