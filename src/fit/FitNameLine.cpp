#include "fit/FitNameLine.h"

#include <algorithm>
#include <cstring>

#include "fit/FitEquation.h"
#include "fit_ids.h"

namespace {

std::string Caption(const CFitOptionsInterface& fit, auto text) {
    if (!fit.IsCustomFunction() || !fit.bCustomCompiled)
        return text(FitCaptionString(fit.GetFunction()));
    const char* szEquation = fit.Options().szEquation;
    const bool bEquals = std::strchr(szEquation, '=') != nullptr;
    return bEquals ? "f(x1)=" + RightSideOf(szEquation) : szEquation;
}

bool IsAnyFixed(const CFitSeedInterface& seeds) {
    CFitSeedInterface::Values flat{};
    CFitSeedInterface::Flags fixed{};
    const std::uint32_t uCount = seeds.GetSeeds(flat.data(), fixed.data());
    return std::any_of(fixed.begin(), fixed.begin() + uCount,
                       [](std::uint32_t u) { return u != 0; });
}

}  // namespace

FitNameFields FitNameLine(const CFitOptionsInterface& fit, const CFitSeedInterface& seeds) {
    const FitOptions& options = fit.Options();
    const FitFunctionProps& props = fit.Properties();
    const auto text = [&fit](int nString) -> std::string {
        char szText[256] = "";
        LoadStringA(fit.GetInstance(), static_cast<UINT>(nString), szText, sizeof szText);
        return szText;
    };
    const auto where = [&text](bool bSaid, int nString) {
        return bSaid ? text(nString) : std::string();
    };
    const bool bAutoFree = options.bFreeAndRefit != 0 && fit.bSeedsValid &&
                           options.bCompareModels == 0 && IsAnyFixed(seeds);
    return {
        Caption(fit, text),
        where(props.bZeroShiftMandatory != 0 || fit.IsZeroShiftInEffect(), IDS_FIT_NAME_ZERO_SHIFT),
        where(props.bIntegralX != 0, IDS_FIT_NAME_INTEGRAL_X),
        where(props.bNormalizedX != 0, IDS_FIT_NAME_NORMALIZED_X),
        where(props.bNormalizedY != 0, IDS_FIT_NAME_NORMALIZED_Y),
        where(fit.IsForcePositiveInEffect(), IDS_FIT_NAME_FORCE_POSITIVE),
        where(bAutoFree, IDS_FIT_NAME_AUTO_FREE),
        where(fit.IsComparing(), IDS_FIT_NAME_COMPARE)};
}
