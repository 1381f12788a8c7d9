#include "fit/CZxFitGWDataSource.h"

#include <algorithm>
#include <string>

#include "fit/FitEquation.h"
#include "text/BoundedText.h"

CZxFitGWDataSource::CZxFitGWDataSource(const CFitOptionsInterface& fit, CFitSeedInterface& seeds)
    : m_fit(fit), m_seeds(seeds) {
    CDataOptionsInterface& data = fit.Data();
    const double* pX = data.GetXValues();
    const double* pY = data.GetYValues();
    if (pX != nullptr && pY != nullptr)
        m_points = {pX, pY, std::min(data.GetFetchedXCount(), data.GetFetchedYCount())};
    m_stats = CFitSeedInterface::StatsOf(m_points.pX, m_points.pY, m_points.uCount);
    const std::uint32_t uTerms = fit.IsCustomFunction() ? 1 : fit.EffectiveTermCount();
    if (uTerms > 1) m_vTermShown.assign(uTerms, true);
}

std::int32_t CZxFitGWDataSource::GetCurve(std::uint32_t uCurve, GMT_Curve* pCurve) {
    const std::uint32_t uTerm = uCurve - kFirstTerm;
    pCurve->bVisible = uCurve < kFirstTerm || IsTermShown(uTerm);
    pCurve->uKind = uTerm;
    std::string sName = "Term " + std::to_string(uTerm + 1);
    if (uCurve == kData) {
        pCurve->uKind = GMT_KIND_DATA;
        sName = "Data";
    } else if (uCurve == kTotal) {
        pCurve->uKind = GMT_KIND_TOTAL;
        sName = "Fit";
    }
    CopyText(pCurve->szName, sName.c_str());
    return 1;
}

std::int32_t CZxFitGWDataSource::GetPoints(std::uint32_t uCurve, GMT_Points* pPoints) {
    if (uCurve != kData || m_points.uCount == 0) return 0;
    *pPoints = m_points;
    return 1;
}

std::int32_t CZxFitGWDataSource::Evaluate(std::uint32_t uCurve, const double* pX, double* pY,
                                          std::uint32_t uCount) {
    if (uCurve == kData) return 0;
    if (uCurve != kTotal)
        return m_seeds.CurveOfTermAt(m_stats, pX, pY, uCount, uCurve - kFirstTerm) ? 1 : 0;
    if (m_seeds.CurveAt(m_stats, pX, pY, uCount)) return 1;
    if (!m_fit.IsCustomFunction()) return 0;
    // A library need not know what a custom function is; its equation is here.
    CFitSeedInterface::Values parameters{};
    for (std::uint32_t i = 0; i < m_seeds.GridCount(); ++i)
        parameters[i] = m_seeds.dWork[m_seeds.PlaceOfFlat(i)];
    return EvaluateCustomFunction(RightSideOf(m_fit.Options().szEquation).c_str(),
                                  parameters.data(), static_cast<int>(m_seeds.GridCount()), pX, pY,
                                  static_cast<int>(uCount))
               ? 1
               : 0;
}
