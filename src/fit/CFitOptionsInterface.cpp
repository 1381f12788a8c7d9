#include "fit/CFitOptionsInterface.h"

#include <algorithm>
#include <cmath>

#include "ZXADLG.h"
#include "fit_ids.h"
#include "text/BoundedText.h"
#include "text/TextTemplate.h"

namespace {

constexpr double kUsualTemperature = 20.0;
constexpr std::int32_t kPolynomial = 34;
constexpr double kEvenTolerance = 0.01;
constexpr std::uint32_t kMostParams = 24;
constexpr std::uint32_t kColumns = 4;  // of the grid

// What holds until the library has reported.
FitFunctionProps DefaultProperties() {
    FitFunctionProps props{};
    props.uNumDataArrays = 2;
    props.uZeroAllowedParam = 99;
    props.bOnlyProportionsForced = 1;
    props.bAllowLM = 1;
    props.bAllowSimplex = 1;
    return props;
}

// A library may have nothing to say.
const char* TextOf(const char* szText) {
    return szText == nullptr ? "" : szText;
}

// A typed valence; none is 1.
std::int32_t ClampValence(std::int32_t nValence) {
    return nValence == 0 ? 1 : std::clamp<std::int32_t>(nValence, -4, 4);
}

std::uint32_t InTerms(std::uint32_t uTerms) {
    return std::clamp<std::uint32_t>(uTerms, 1, CFitOptionsInterface::kMaxTerms);
}

}  // namespace

CFitOptionsInterface::CFitOptionsInterface(FitOptions* pOptions, CDataOptionsInterface* pData,
                                           CurveFitLibrary* pLibrary)
    : CAnalysisOptionsInterfaceBase(&pOptions->common, pData->GetDataSource()),
      bChebyshevSelected(pOptions->eSearchMethod == kSearchChebyshev),
      m_pOptions(pOptions),
      m_pData(pData),
      m_pLibrary(pLibrary),
      m_Props(DefaultProperties()) {}

void CFitOptionsInterface::Open() {
    FitOptions& record = *m_pOptions;
    // Stored numbers index tables.
    const auto correct = [](std::int32_t& eField, std::int32_t eLast, std::int32_t eElse) {
        if (eField < 0 || eField > eLast) eField = eElse;
    };
    correct(record.eFunctionType, kCustomFitFunction, kStandardExponential);
    correct(record.eSearchMethod, kSearchChebyshev, kSearchLM);
    correct(record.eMinimMethod, kMinimMeanAbs, kMinimSS);
    correct(record.eWeightingType, kWeightBinWidth, kWeightNone);
    correct(record.eFunctionGroupID, kParabolic, kAllFunctions);
    record.szEquation[sizeof record.szEquation - 1] = '\0';
    for (auto& szEquation : record.szCustomEquations) szEquation[sizeof szEquation - 1] = '\0';
    record.szFunctionName[sizeof record.szFunctionName - 1] = '\0';
    // The fields are clamped as what is typed into them is.
    constexpr std::uint32_t kUsualPower = 3;
    for (std::uint32_t* puPower : {&record.uCurTimePowerA, &record.uExpPower})
        *puPower = *puPower == 0 ? kUsualPower : InTerms(*puPower);
    for (std::uint32_t* puTerm : {&record.uCurTimePowerB, &record.uStartCompare,
                                  &record.uDlgFitOrder, &record.uPolynomTerm})
        *puTerm = InTerms(*puTerm);
    record.uEndCompare = std::clamp<std::uint32_t>(record.uEndCompare, 2, kMaxTerms);
    record.uNernstValence =
        static_cast<std::uint32_t>(ClampValence(static_cast<std::int32_t>(record.uNernstValence)));
    // Of each pair one is stored, or survives a function of one term.
    if (record.bUseChebyFilter != 0) record.bDlgChebyFilter = 1;
    if (record.bDlgCompareModels != 0) record.bCompareModels = 1;
    eLastPredefined = FindFitFunction(record.eFunctionType) != nullptr ? record.eFunctionType
                      : FindFitFunction(record.ePrevFunctionType) != nullptr
                          ? record.ePrevFunctionType
                          : kStandardExponential;
    bChebyshevSelected = record.eSearchMethod == kSearchChebyshev;
    uSavedOrder = GetDlgOrder();
}

const char* CFitOptionsInterface::GetParamName(std::uint32_t uParam) const {
    return uParam < kMostParams ? m_szParamNames[uParam] : "";
}

const char* CFitOptionsInterface::PictureName() const {
    return FitFunctionPictureName(GetFunction(), GetSearchMethod(), m_Props.bHasOffset != 0);
}

int CFitOptionsInterface::ReadProperties() {
    const CurveFitUse use = m_pLibrary->Use(ScratchRecord());
    if (!use) return 1;
    FitFunctionProps props = DefaultProperties();
    if (use->GetProperties(&props) == 0) return 1;
    // More would not fit the grid and the arrays.
    const std::uint32_t uMost =
        props.bMultiTerm != 0 && !IsCustomFunction() ? kColumns : kMostParams;
    if (props.uParamsPerTerm > uMost) return 1;
    m_Props = props;
    const std::uint32_t uVariables =
        std::clamp<std::uint32_t>(use->GetVariableCount(), 1, CDataOptionsInterface::kMaxConstants);
    m_pData->SetConstantCount(uVariables);
    for (std::uint32_t i = 0; i < uVariables; ++i)
        m_pData->SetConstantName(i, TextOf(use->GetVariableLabel(i, i)));
    m_pData->SetDependentName(TextOf(use->GetDependentLabel()));
    for (std::uint32_t i = 0; i < kMostParams; ++i) {
        CopyText(m_szParamNames[i],
                 i < props.uParamsPerTerm ? TextOf(use->GetParameterName(i, i)) : "");
    }
    CopyText(m_szOffsetName, TextOf(use->GetOffsetName()));
    CopyText(m_szSlopeName, TextOf(use->GetSlopeName()));
    // The library's text is a format without arguments.
    CopyText(m_szFunctionText, ExpandWithoutArguments(TextOf(use->GetFunctionText())));
    return 0;
}

void CFitOptionsInterface::DropProperties() {
    m_Props = DefaultProperties();
    m_pData->SetConstantCount(1);
    for (auto& szName : m_szParamNames) szName[0] = '\0';
    m_szOffsetName[0] = m_szSlopeName[0] = m_szFunctionText[0] = '\0';
}

// --- The function's own numbers ------------------------------------------------------------------

double CFitOptionsInterface::GetTemperature() const {
    const auto pField = FitTemperatureField(GetFunction());
    return pField == nullptr ? kUsualTemperature : m_pOptions->*pField;
}

void CFitOptionsInterface::SetTemperature(double dCelsius) {
    if (const auto pField = FitTemperatureField(GetFunction())) m_pOptions->*pField = dCelsius;
}

std::uint32_t CFitOptionsInterface::GetPowerA() const {
    const auto pField = FitPowerAField(GetFunction());
    return pField == nullptr ? m_pOptions->uCurTimePowerA : m_pOptions->*pField;
}

void CFitOptionsInterface::SetPowerA(std::uint32_t uPower) {
    if (const auto pField = FitPowerAField(GetFunction())) m_pOptions->*pField = uPower;
}

std::uint32_t CFitOptionsInterface::GetPowerB() const {
    return m_pOptions->uCurTimePowerB;
}

void CFitOptionsInterface::SetPowerB(std::uint32_t uPower) {
    if (const auto pField = FitPowerBField(GetFunction())) m_pOptions->*pField = uPower;
}

std::int32_t CFitOptionsInterface::GetValence() const {
    const auto pField = FitValenceField(GetFunction());
    return pField == nullptr ? 1 : static_cast<std::int32_t>(m_pOptions->*pField);
}

void CFitOptionsInterface::SetValence(std::int32_t nValence) {
    if (const auto pField = FitValenceField(GetFunction()))
        m_pOptions->*pField = static_cast<std::uint32_t>(nValence);
}

// --- Terms ---------------------------------------------------------------------------------------

std::uint32_t CFitOptionsInterface::GetDlgOrder() const {
    return InTerms(GetFunction() == kPolynomial ? m_pOptions->uPolynomTerm
                                                : m_pOptions->uDlgFitOrder);
}

void CFitOptionsInterface::SetDlgOrder(std::uint32_t uOrder) {
    (GetFunction() == kPolynomial ? m_pOptions->uPolynomTerm : m_pOptions->uDlgFitOrder) = uOrder;
    // One for a function without a number of terms.
    m_pOptions->uFitOrder = EffectiveTermCount();
}

bool CFitOptionsInterface::IsOneTermByChebyshev() const {
    return GetSearchMethod() == kSearchChebyshev && (GetFunction() == 3 || GetFunction() == 11);
}

bool CFitOptionsInterface::IsTermCapable() const {
    return !IsOneTermByChebyshev() && m_Props.bMultiTerm != 0;
}

bool CFitOptionsInterface::IsComparing() const {
    return m_pOptions->bCompareModels != 0 && IsTermCapable() && !IsCustomFunction();
}

std::uint32_t CFitOptionsInterface::EffectiveTermCount() const {
    if (!IsTermCapable() || IsCustomFunction()) return 1;
    if (!IsComparing()) return GetDlgOrder();
    return m_pOptions->bAutoCompare != 0 ? 1 : InTerms(m_pOptions->uStartCompare);
}

std::uint32_t CFitOptionsInterface::GridParameterCount() const {
    if (IsCustomFunction()) return m_pOptions->nNumCustomParams;
    return m_Props.uParamsPerTerm * (IsTermCapable() ? EffectiveTermCount() : 1);
}

std::uint32_t CFitOptionsInterface::TotalParameterCount() const {
    if (IsCustomFunction()) return m_pOptions->nNumCustomParams;
    return m_pOptions->uFitOrder * m_Props.uParamsPerTerm + (m_Props.bHasOffset != 0 ? 1 : 0) +
           (m_Props.bHasSlope != 0 ? 1 : 0);
}

// --- Methods -------------------------------------------------------------------------------------

void CFitOptionsInterface::SetSearchMethod(std::int32_t eMethod) {
    m_pOptions->eSearchMethod = eMethod;
    bChebyshevSelected = eMethod == kSearchChebyshev;
}

// With automatic methods only what was chosen is open.
bool CFitOptionsInterface::IsAutomaticallyOther(std::int32_t eStands, std::int32_t eThis) const {
    return m_pOptions->bAutoDefaultOptions != 0 && eStands != eThis;
}

bool CFitOptionsInterface::IsSearchLMEnabled() const {
    return !IsAutomaticallyOther(GetSearchMethod(), kSearchLM) && !IsLineOrPolynomial() &&
           m_Props.bAllowLM != 0;
}

bool CFitOptionsInterface::IsSearchVMEnabled() const {
    return !IsAutomaticallyOther(GetSearchMethod(), kSearchVM) && !IsLineOrPolynomial();
}

bool CFitOptionsInterface::IsSearchSimplexEnabled() const {
    return !IsAutomaticallyOther(GetSearchMethod(), kSearchSimplex) && !IsLineOrPolynomial() &&
           m_Props.bAllowSimplex != 0;
}

bool CFitOptionsInterface::IsSearchChebyshevEnabled() const {
    return !IsAutomaticallyOther(GetSearchMethod(), kSearchChebyshev) &&
           m_Props.bAllowChebyshev != 0;
}

bool CFitOptionsInterface::IsChebyFilterEnabled() const {
    return GetSearchMethod() == kSearchChebyshev && !IsLineOrPolynomial() &&
           m_Props.bAllowChebyFilter != 0;
}

bool CFitOptionsInterface::IsMinimSSEnabled() const {
    return !IsAutomaticallyOther(m_pOptions->eMinimMethod, kMinimSS) && !IsLineOrPolynomial() &&
           GetSearchMethod() >= kSearchLM && GetSearchMethod() <= kSearchSimplex;
}

bool CFitOptionsInterface::IsMinimMLEnabled() const {
    return !IsAutomaticallyOther(m_pOptions->eMinimMethod, kMinimML) && !IsLineOrPolynomial() &&
           (GetSearchMethod() == kSearchVM || GetSearchMethod() == kSearchSimplex) &&
           (GetFunction() == 10 || GetFunction() == 12);
}

bool CFitOptionsInterface::IsMinimMinimaxEnabled() const {
    return !IsAutomaticallyOther(m_pOptions->eMinimMethod, kMinimMinimax) &&
           !IsLineOrPolynomial() && GetSearchMethod() != kSearchChebyshev &&
           GetSearchMethod() != kSearchVM;
}

bool CFitOptionsInterface::IsMinimMeanAbsEnabled() const {
    return !IsAutomaticallyOther(m_pOptions->eMinimMethod, kMinimMeanAbs) &&
           !IsLineOrPolynomial() && GetSearchMethod() != kSearchChebyshev &&
           GetSearchMethod() != kSearchVM;
}

bool CFitOptionsInterface::IsMLEInEffect() const {
    return m_pOptions->eMinimMethod == kMinimML &&
           (GetSearchMethod() == kSearchVM || GetSearchMethod() == kSearchSimplex);
}

bool CFitOptionsInterface::IsWeightEnabled(std::int32_t eWeighting) const {
    return !IsMLEInEffect() && !IsAutomaticallyOther(m_pOptions->eWeightingType, eWeighting) &&
           !IsLineOrPolynomial() && GetSearchMethod() == kSearchLM;
}

bool CFitOptionsInterface::IsWeightBinWidthEnabled() const {
    return IsWeightEnabled(kWeightBinWidth) && m_Props.bBinWidthWeighting != 0;
}

bool CFitOptionsInterface::IsOpen(FitMethodGroup eGroup, std::int32_t eMethod) const {
    using Rule = bool (CFitOptionsInterface::*)() const;
    using This = CFitOptionsInterface;
    static constexpr Rule kRules[][kFitMethods] = {
        {&This::IsSearchLMEnabled, &This::IsSearchVMEnabled, &This::IsSearchSimplexEnabled,
         &This::IsSearchChebyshevEnabled},
        {&This::IsMinimSSEnabled, &This::IsMinimMLEnabled, &This::IsMinimMinimaxEnabled,
         &This::IsMinimMeanAbsEnabled},
        {&This::IsWeightNoneEnabled, &This::IsWeightFunctionEnabled, &This::IsWeightDataEnabled,
         &This::IsWeightBinWidthEnabled}};
    return (this->*kRules[static_cast<int>(eGroup)][eMethod])();
}

bool CFitOptionsInterface::IsAnyOpen(FitMethodGroup eGroup) const {
    for (std::int32_t e = 0; e < kFitMethods; ++e) {
        if (IsOpen(eGroup, e)) return true;
    }
    return false;
}

bool CFitOptionsInterface::IsZeroShiftPermitted() const {
    return m_Props.bZeroShiftAllowed != 0 && m_Props.bZeroShiftMandatory == 0;
}

bool CFitOptionsInterface::IsZeroShiftInEffect() const {
    if (m_pOptions->bAutoZeroShift != 0) return m_Props.bAutoZeroShiftDefault != 0;
    return IsZeroShiftPermitted() && m_pOptions->bDoZeroShift != 0;
}

bool CFitOptionsInterface::IsForcePositiveEnabled() const {
    return m_Props.bCanForcePositive != 0 && m_Props.bAlwaysPositive == 0 && !IsMLEInEffect();
}

bool CFitOptionsInterface::IsForcePositiveInEffect() const {
    return m_Props.bCanForcePositive != 0 &&
           (m_pOptions->bForcePropsPositive != 0 || m_pOptions->bForceTausPositive != 0 ||
            m_Props.bAlwaysPositive != 0);
}

bool CFitOptionsInterface::IsFreeAndRefitEnabled() const {
    return !IsLineOrPolynomial() && !IsOneTermByChebyshev();
}

bool CFitOptionsInterface::IsAutoRefitEnabled() const {
    return !bChebyshevSelected && !IsLineOrPolynomial();
}

bool CFitOptionsInterface::IsChebyFilterForced() const {
    return m_pOptions->bAutoDefaultOptions != 0 && GetSearchMethod() == kSearchChebyshev &&
           m_Props.bNoChebyFilter != 0;
}

bool CFitOptionsInterface::IsChebyFilterWanted() const {
    return !IsChebyFilterForced() && m_pOptions->bDlgChebyFilter != 0;
}

bool CFitOptionsInterface::IsSeeded() const {
    if (IsCustomFunction()) return true;
    if (IsLineOrPolynomial()) return false;
    return GetSearchMethod() != kSearchChebyshev || GetFunction() == 14 || GetFunction() == 15;
}

// --- Checks --------------------------------------------------------------------------------------

bool CFitOptionsInterface::AreSeedsUsable(const double* pSeeds, const std::uint32_t* pFixed) const {
    const auto isZero = [](double d) { return d == 0.0 || !std::isfinite(d); };
    if (m_pOptions->uFitOrder == 0 || m_pOptions->uFitOrder > kMaxTerms) return false;
    if (IsCustomFunction()) {
        const std::uint32_t uCount = std::min(m_pOptions->nNumCustomParams, kMostParams);
        return std::none_of(pSeeds, pSeeds + uCount, isZero);
    }
    if (IsLineOrPolynomial()) return true;
    const std::uint32_t uCount = m_Props.uParamsPerTerm * m_pOptions->uFitOrder;
    if (uCount > kPlaces) return false;
    for (std::uint32_t i = 0; i < uCount; ++i) {
        if (i == m_Props.uZeroAllowedParam || !isZero(pSeeds[i])) continue;
        // Under Chebyshev only what is fixed needs a seed.
        if (GetSearchMethod() == kSearchChebyshev && pFixed[i] == 0) continue;
        return false;
    }
    return true;
}

EvenXFinding CFitOptionsInterface::IsXUniform() const {
    const bool bLikelihood = m_pOptions->eMinimMethod == kMinimML;
    const bool bChebyshev = GetSearchMethod() == kSearchChebyshev;
    if (IsLineOrPolynomial() || (!bLikelihood && !bChebyshev)) return {};
    const double* x = m_pData->GetXValues();
    if (x == nullptr) return {false, 0};
    const std::uint32_t uPoints = m_pData->GetFetchedXCount();
    for (std::uint32_t i = 1; i + 1 < uPoints; ++i) {
        const double dChange = (x[i + 1] - x[i]) - (x[i] - x[i - 1]);
        if (std::fabs(dChange) <= kEvenTolerance) continue;
        // The dialog offers another method itself.
        if (bChebyshev && m_pOptions->bOfferMethodChange != 0) return {false, 0};
        return {false, bLikelihood ? IDS_FIT_NOT_EVEN_LIKELIHOOD : IDS_FIT_NOT_EVEN_CHEBYSHEV};
    }
    return {};
}

bool CFitOptionsInterface::CheckExtrapolation() {
    if (!m_pData->IsSheetData()) return true;
    const bool bLeft = m_pOptions->bExtrapolateLeft != 0;
    const bool bRight = m_pOptions->bExtrapolateRight != 0;
    if (!bLeft && !bRight) return true;
    ReadProperties();
    if (m_Props.bSubstitutesZeroX == 0) return true;
    return !(bLeft && !(m_pOptions->dLeftExtrapolationValue > 0.0)) &&
           !(bRight && !(m_pOptions->dRightExtrapolationValue > 0.0));
}

void CFitOptionsInterface::Finalise(FitOptions& record, const double* pX,
                                    std::uint32_t uPoints) const {
    if (pX != nullptr && uPoints >= 2) record.dXInterval = pX[1] - pX[0];
    const bool bCustom = record.eFunctionType == kCustomFitFunction;
    if (bCustom && record.eSearchMethod == kSearchChebyshev) record.eSearchMethod = kSearchLM;
    const bool bDwellTimes = record.eFunctionType == 10 || record.eFunctionType == 12;
    if (record.eMinimMethod == kMinimML && (record.eSearchMethod == kSearchLM || !bDwellTimes))
        record.eMinimMethod = kMinimSS;
    if (record.eSearchMethod == kSearchSimplex) record.eWeightingType = kWeightNone;
    record.dFractError = record.bUseFractErrDefault != 0 ? 1e-7 : record.dUserFractError;
    record.dLMPrecision = record.bUseLMPrecisionDefault != 0 ? 1e-6 : record.dUserLMPrecision;
    record.dVMPrecision = record.bUseVMPrecisionDefault != 0 ? 0.0001 : record.dUserVMPrecision;
    // Never zero, and one for a function without a number of terms.
    record.uFitOrder = EffectiveTermCount();
    record.ePrevFunctionType = eLastPredefined;
    record.bUseChebyFilter = IsChebyFilterWanted() ? 1 : 0;
}

FitOptions CFitOptionsInterface::ScratchRecord() const {
    FitOptions record = *m_pOptions;
    Finalise(record, nullptr, 0);
    // A flag that the last OK left would shift the curve.
    record.bZeroShiftInEffect = IsZeroShiftInEffect() ? 1 : 0;
    return record;
}
