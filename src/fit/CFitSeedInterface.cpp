#include "fit/CFitSeedInterface.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "fit/FitVariables.h"

namespace {

constexpr std::uint32_t kRows = 6;
constexpr std::uint32_t kGridPlaces = 24;

FitDataStats StatsOf(const double* pX, const double* pY, std::uint32_t uCount) {
    FitDataStats stats{};
    stats.uNumPoints = uCount;
    stats.dXStep = 1.0;
    if (uCount == 0) return stats;
    const double dStep = uCount > 1 ? std::fabs(pX[1] - pX[0]) : 0.0;
    const double dMean = std::fabs(pX[uCount - 1] - pX[0]) / uCount;
    if (dStep != 0.0) {
        stats.dXStep = dStep;
    } else if (dMean != 0.0) {
        stats.dXStep = dMean;
    }
    stats.dSumY = std::accumulate(pY, pY + uCount, 0.0);
    stats.dFirstX = pX[0];
    stats.dMaxY = *std::max_element(pY, pY + uCount);
    return stats;
}

}  // namespace

CFitSeedInterface::CFitSeedInterface(CFitOptionsInterface* pFit, CDataOptionsInterface* pData)
    : m_pFit(pFit), m_pData(pData) {}

std::uint32_t CFitSeedInterface::GridCount() const {
    return std::min(m_pFit->GridParameterCount(), kGridPlaces);
}

std::uint32_t CFitSeedInterface::PlaceOfFlat(std::uint32_t uFlat) const {
    if (m_pFit->IsCustomFunction()) return uFlat * kColumns - (uFlat / kRows) * 23;
    const std::uint32_t uTerms = m_pFit->EffectiveTermCount();
    return uFlat / uTerms + (uFlat % uTerms) * kColumns;
}

double CFitSeedInterface::GetSeed(std::uint32_t uTerm, std::uint32_t uColumn) const {
    const std::uint32_t uPlace = PlaceOf(uTerm, uColumn);
    return uColumn < kColumns && uPlace < kPlaces ? dSeeds[uPlace] : 0.0;
}

void CFitSeedInterface::SetSeed(std::uint32_t uTerm, std::uint32_t uColumn, double dValue) {
    const std::uint32_t uPlace = PlaceOf(uTerm, uColumn);
    if (uColumn < kColumns && uPlace < kPlaces) dSeeds[uPlace] = dValue;
}

std::uint32_t CFitSeedInterface::GetSeeds(double* pSeeds, std::uint32_t* pFixed) const {
    std::uint32_t uCount = 0;
    const auto add = [&](std::uint32_t uPlace) {
        pSeeds[uCount] = dSeeds[uPlace];
        if (pFixed != nullptr) pFixed[uCount] = uFixed[uPlace];
        ++uCount;
    };
    const std::uint32_t uGrid = GridCount();
    for (std::uint32_t i = 0; i < uGrid; ++i) add(PlaceOfFlat(i));
    if (m_pFit->IsCustomFunction()) return uCount;
    if (m_pFit->Properties().bHasOffset != 0) add(CFitOptionsInterface::kOffsetPlace);
    if (m_pFit->Properties().bHasSlope != 0) add(CFitOptionsInterface::kSlopePlace);
    return uCount;
}

void CFitSeedInterface::SetSeeds(const double* pSeeds) {
    dSeeds.fill(0.0);
    const std::uint32_t uGrid = GridCount();
    for (std::uint32_t i = 0; i < uGrid; ++i) dSeeds[PlaceOfFlat(i)] = *pSeeds++;
    if (m_pFit->IsCustomFunction()) return;
    if (m_pFit->Properties().bHasOffset != 0)
        dSeeds[CFitOptionsInterface::kOffsetPlace] = *pSeeds++;
    if (m_pFit->Properties().bHasSlope != 0) dSeeds[CFitOptionsInterface::kSlopePlace] = *pSeeds;
}

std::uint32_t CFitSeedInterface::GetTermSeeds(std::uint32_t uTerm, double* pSeeds) const {
    const std::uint32_t uParams = std::min(m_pFit->Properties().uParamsPerTerm, kColumns);
    for (std::uint32_t c = 0; c < uParams; ++c) pSeeds[c] = GetSeed(uTerm, c);
    return uParams;
}

double CFitSeedInterface::StepForSeed(std::uint32_t uTerm, std::uint32_t uColumn) const {
    const std::uint32_t uPlace = PlaceOf(uTerm, uColumn);
    const FitFunctionProps& props = m_pFit->Properties();
    if ((uPlace == CFitOptionsInterface::kOffsetPlace && props.bHasOffset == 0) ||
        (uPlace == CFitOptionsInterface::kSlopePlace && props.bHasSlope == 0)) {
        return 0.01;
    }
    const double dValue = uPlace < kPlaces ? std::fabs(dWork[uPlace]) : 0.0;
    return dValue == 0.0 ? 0.1 : 0.01 * dValue;
}

std::uint32_t CFitSeedInterface::VisibleRows() const {
    if (m_pFit->IsCustomFunction()) return std::min(m_pFit->GridParameterCount(), kRows);
    return m_pFit->EffectiveTermCount();
}

bool CFitSeedInterface::ComputeSeeds(const double* const* ppArrays, std::uint32_t uArrays,
                                     std::uint32_t uPoints) {
    dSeeds.fill(0.0);
    uFixed.fill(0);
    const CurveFitUse use = m_pFit->Library().Use(m_pFit->ScratchRecord());
    double flat[kPlaces] = {};
    if (!use || use->ComputeSeeds(ppArrays, flat, uArrays, uPoints) == 0) return false;
    SetSeeds(flat);
    return true;
}

void CFitSeedInterface::AddLinear(double* pBehindGrid) const {
    const FitFunctionProps& props = m_pFit->Properties();
    if (props.bHasOffset != 0) *pBehindGrid++ = dWork[CFitOptionsInterface::kOffsetPlace];
    if (props.bHasSlope != 0) *pBehindGrid = dWork[CFitOptionsInterface::kSlopePlace];
}

bool CFitSeedInterface::Draw(const double* pX, double* pY, std::uint32_t uCount,
                             std::uint32_t uOrder, const double* pFlat) {
    const CurveFitUse use = m_pFit->Library().Use(m_pFit->ScratchRecord());
    if (!use) return false;
    FitDataStats stats = StatsOf(pX, pY, uCount);
    stats.uOrder = uOrder;
    stats.dOffsetSeed = dWork[CFitOptionsInterface::kOffsetPlace];
    stats.dSlopeSeed = dWork[CFitOptionsInterface::kSlopePlace];
    if (use->SetUpCurve(&stats, pFlat) == 0) return false;
    return use->Evaluate(FitVariables(*m_pData, pX, uCount).Arrays(), pY, uCount) != 0;
}

bool CFitSeedInterface::CurveFromSeeds(const double* pX, double* pY, std::uint32_t uCount,
                                       std::uint32_t uTerms) {
    const std::uint32_t uEffective = m_pFit->EffectiveTermCount();
    if (uTerms < uEffective) return CurveOfTerm(pX, pY, uCount, 0);
    double flat[kPlaces] = {};
    const std::uint32_t uGrid = GridCount();
    for (std::uint32_t i = 0; i < uGrid; ++i) flat[i] = dWork[PlaceOfFlat(i)];
    AddLinear(flat + uGrid);
    return Draw(pX, pY, uCount, uEffective, flat);
}

bool CFitSeedInterface::CurveOfTerm(const double* pX, double* pY, std::uint32_t uCount,
                                    std::uint32_t uTerm) {
    double flat[kPlaces] = {};
    const std::uint32_t uParams = std::min(m_pFit->Properties().uParamsPerTerm, kColumns);
    for (std::uint32_t c = 0; c < uParams && PlaceOf(uTerm, c) < kGridPlaces; ++c)
        flat[c] = dWork[PlaceOf(uTerm, c)];
    AddLinear(flat + uParams);
    return Draw(pX, pY, uCount, 1, flat);
}
