#include "fit/FitSeedRules.h"

#include <algorithm>
#include <cmath>

#include "ZXADLG.h"
#include "contract/SelectionList.h"

namespace {

using Model = CDataOptionsInterface;

constexpr double kNormalTolerance = 1e-7;

// Proportions are the first column of the grid.
std::uint32_t ProportionCount(const CFitOptionsInterface& fit) {
    return fit.IsCustomFunction() ? 0 : fit.EffectiveTermCount();
}

double SumOfProportions(const CFitOptionsInterface& fit, const CFitSeedInterface& seeds,
                        bool bAbsolute) {
    double dSum = 0.0;
    for (std::uint32_t t = 0; t < ProportionCount(fit); ++t) {
        const double d = seeds.GetSeed(t, 0);
        dSum += bAbsolute ? std::fabs(d) : d;
    }
    return dSum;
}

void ScaleProportions(const CFitOptionsInterface& fit, CFitSeedInterface& seeds, double dFactor) {
    for (std::uint32_t t = 0; t < ProportionCount(fit); ++t)
        seeds.SetSeed(t, 0, seeds.GetSeed(t, 0) * dFactor);
}

// Sums that are normal already, and sums that cannot be divided by, are left alone.
bool CanDivideBy(double dSum) {
    return dSum > 0.0 && std::isfinite(dSum) && std::fabs(dSum - 1.0) > kNormalTolerance;
}

}  // namespace

MendedSeeds MendSigns(const CFitOptionsInterface& fit, CFitSeedInterface& seeds) {
    MendedSeeds mended;
    if (fit.IsCustomFunction() || !fit.IsForcePositiveInEffect()) return mended;
    const FitFunctionProps& props = fit.Properties();
    const bool bAlways = props.bAlwaysPositive != 0;
    const bool bForceProps = bAlways || fit.Options().bForcePropsPositive != 0;
    const bool bForceOthers = bAlways || fit.Options().bForceTausPositive != 0;
    const std::uint32_t uTerms = fit.EffectiveTermCount();
    const std::uint32_t uCount =
        std::min(props.bOnlyProportionsForced != 0 ? uTerms : uTerms * props.uParamsPerTerm,
                 seeds.GridCount());
    for (std::uint32_t i = 0; i < uCount; ++i) {
        const bool bProportion = i < uTerms;
        double& dSeed = seeds.dSeeds[seeds.PlaceOfFlat(i)];
        if (!(dSeed < 0.0) || !(bProportion ? bForceProps : bForceOthers)) continue;
        dSeed *= bProportion && props.bFractionalProportions != 0 ? -0.001 : -1.0;
        (bProportion ? mended.bProportions : mended.bOthers) = true;
    }
    return mended;
}

std::optional<std::uint32_t> FindMissingSeed(const CFitOptionsInterface& fit,
                                             const CFitSeedInterface& seeds) {
    for (std::uint32_t i = 0; i < seeds.GridCount(); ++i) {
        if (!fit.IsCustomFunction() && i == fit.Properties().uZeroAllowedParam) continue;
        const std::uint32_t uPlace = seeds.PlaceOfFlat(i);
        const double d = seeds.dSeeds[uPlace];
        if (d == 0.0 || !std::isfinite(d)) return uPlace;
    }
    return {};
}

bool AreSeedsUsable(const CFitOptionsInterface& fit, const CFitSeedInterface& seeds) {
    CFitSeedInterface::Values flat{};
    CFitSeedInterface::Flags fixed{};
    seeds.GetSeeds(flat.data(), fixed.data());
    return fit.AreSeedsUsable(flat.data(), fixed.data());
}

// --- Proportions ---------------------------------------------------------------------------------

void TakeProportionScale(CFitOptionsInterface& fit, const CFitSeedInterface& seeds,
                         double dDataScale) {
    const double dSum = SumOfProportions(fit, seeds, true);
    fit.dProportionScale = dSum > 0.0 && std::isfinite(dSum) ? dSum : dDataScale;
}

double ProportionScaleOfData(CDataOptionsInterface& data) {
    const double* x = data.GetXValues();
    if (x == nullptr) return 1.0;
    const std::uint32_t uPointsX = data.GetFetchedXCount();
    double dLargest = 0.0;
    for (std::uint32_t i = 1; i < uPointsX; ++i)
        dLargest = std::max(dLargest, std::fabs(x[i] - x[i - 1]));
    const double* y = data.GetYValues();
    if (y == nullptr) return 1.0;
    double dSum = 0.0;
    for (std::uint32_t i = 0; i < data.GetFetchedYCount(); ++i) dSum += y[i];
    const double dScale = dLargest * dSum;
    return dScale != 0.0 && std::isfinite(dScale) ? dScale : 1.0;
}

void NormalizeProportions(const CFitOptionsInterface& fit, CFitSeedInterface& seeds) {
    const double dSum = SumOfProportions(fit, seeds, true);
    if (CanDivideBy(dSum)) ScaleProportions(fit, seeds, 1.0 / dSum);
}

void RestoreProportions(const CFitOptionsInterface& fit, CFitSeedInterface& seeds) {
    ScaleProportions(fit, seeds, fit.dProportionScale);
}

void MakeProportionsSumToOne(const CFitOptionsInterface& fit, CFitSeedInterface& seeds) {
    const double dSum = SumOfProportions(fit, seeds, false);
    if (CanDivideBy(dSum)) ScaleProportions(fit, seeds, 1.0 / dSum);
}

// --- The record ----------------------------------------------------------------------------------

void RestoreStoredSeeds(const FitOptions& options, CFitSeedInterface& seeds) {
    for (std::size_t i = 0; i < seeds.dSeeds.size(); ++i) {
        const double d = options.dParameters[i];
        seeds.dSeeds[i] = std::isfinite(d) ? d : 0.0;
    }
}

void RestoreStoredFlags(const FitOptions& options, CFitSeedInterface& seeds) {
    for (std::size_t i = 0; i < seeds.uFixed.size(); ++i)
        seeds.uFixed[i] = options.uDlgConstraints[i] != 0 ? 1 : 0;
}

void StoreSeeds(const CFitOptionsInterface& fit, const CFitSeedInterface& seeds,
                FitOptions& options) {
    std::fill(std::begin(options.dParameters), std::end(options.dParameters), 0.0);
    std::fill(std::begin(options.uConstraints), std::end(options.uConstraints), 0u);
    std::fill(std::begin(options.uDlgConstraints), std::end(options.uDlgConstraints), 0u);
    const bool bFlags = fit.IsSeeded();
    const auto store = [&](std::uint32_t uPlace) {
        options.dParameters[uPlace] = seeds.dSeeds[uPlace];
        if (!bFlags) return;
        options.uDlgConstraints[uPlace] = seeds.uFixed[uPlace];
        // While models are compared nothing is fixed.
        if (!fit.IsComparing()) options.uConstraints[uPlace] = seeds.uFixed[uPlace];
    };
    for (std::uint32_t i = 0; i < seeds.GridCount(); ++i) store(seeds.PlaceOfFlat(i));
    if (fit.IsCustomFunction()) return;
    if (fit.Properties().bHasOffset != 0) store(CFitOptionsInterface::kOffsetPlace);
    if (fit.Properties().bHasSlope != 0) store(CFitOptionsInterface::kSlopePlace);
}

// --- The selection -------------------------------------------------------------------------------

namespace {

std::uint32_t SetsOfGroup(const CDataOptionsInterface& data, std::uint32_t uGroup) {
    ZXADLG_CDlgDataSource& source = *data.GetDataSource();
    const std::uint32_t uSets = source.GetSetCount(uGroup);
    switch (data.GetDataSetSelectionMode(0)) {
        case Model::kActiveSet:
            return 1;
        case Model::kAllSets:
            return uSets;
        case Model::kVisibleSets: {
            std::uint32_t uVisible = 0;
            for (std::uint32_t u = 0; u < uSets; ++u) uVisible += source.IsSetVisible(uGroup, u);
            return uVisible;
        }
        default:
            return static_cast<std::uint32_t>(ParseSelection(data.GetSelectionList(0), 0).size());
    }
}

}  // namespace

bool TakesSeveralDataSets(const CDataOptionsInterface& data) {
    if (data.IsSheetData()) {
        return data.GetUseDepVarList() &&
               ParseSelection(data.GetDepVarSelectionList(), 0).size() > 1;
    }
    ZXADLG_CDlgDataSource& source = *data.GetDataSource();
    const int eGroups = data.GetDataGroupSelectionMode(0);
    if (eGroups == Model::kActiveGroup || eGroups == Model::kOneGroup)
        return SetsOfGroup(data, data.GetGroup()) > 1;
    std::uint32_t uCount = 0;
    for (std::uint32_t g = 0; g < source.GetGroupCount(); ++g) {
        if (eGroups == Model::kAllGroups || source.IsGroupVisible(g))
            uCount += SetsOfGroup(data, g);
    }
    return uCount > 1;
}
