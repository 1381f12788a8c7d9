// How the record of curve fitting comes to rest behind a change: the choice of methods, the
// properties that depend on them, and what the observers are told.
#include <algorithm>

#include "contract/NotificationCodes.h"
#include "fit/CFitOptionsInterface.h"

namespace {

constexpr std::int32_t kConstrainedExponential = 17;

// Under Chebyshev these have another form.
bool ChangesWithChebyshev(std::int32_t eFunction) {
    return eFunction == 3 || eFunction == 11 || eFunction == 12 || eFunction == 14;
}

}  // namespace

void CFitOptionsInterface::SetFunction(std::int32_t eFunction) {
    const std::int32_t eBefore = GetFunction();
    if (m_pOptions->bAutoDefaultOptions == 0 && eFunction != eBefore) {
        if (eFunction == kConstrainedExponential) {
            m_eSearchBefore17 = GetSearchMethod();
            SetSearchMethod(kSearchVM);
        } else if (eBefore == kConstrainedExponential && m_eSearchBefore17) {
            SetSearchMethod(*m_eSearchBefore17);
            m_eSearchBefore17.reset();
        }
    }
    if (eFunction != kCustomFitFunction) eLastPredefined = eFunction;
    m_pOptions->eFunctionType = eFunction;
}

void CFitOptionsInterface::SetAutomatic(bool bAutomatic) {
    m_pOptions->bAutoDefaultOptions = bAutomatic ? 1 : 0;
    m_lastAutomatic.reset();
    m_eSearchBefore17.reset();
}

void CFitOptionsInterface::TakeEquation() {
    bCustomCompiled = true;
    m_settled.bCompiled = m_read.bCompiled = false;
}

CFitOptionsInterface::Settled CFitOptionsInterface::Now() const {
    return {GetFunction(),
            eLastPredefined,
            GetSearchMethod(),
            m_pOptions->eMinimMethod,
            m_pOptions->eWeightingType,
            EffectiveTermCount(),
            IsCustomFunction() && bCustomCompiled};
}

void CFitOptionsInterface::BeginSettled() {
    m_pOptions->uFitOrder = EffectiveTermCount();
    m_settled = m_read = Now();
}

// --- The automatic choice ------------------------------------------------------------------------

bool CFitOptionsInterface::IsFirstXZero() const {
    // No other function asks, and none whose zero-shift answers already.
    const bool bAsks = (GetFunction() == 14 || GetFunction() == 15) &&
                       m_pOptions->bAutoZeroShift == 0 && m_pOptions->bDoZeroShift == 0;
    if (!bAsks || bDeferred) return false;
    const double* x = m_pData->GetXValues();
    return x != nullptr && x[0] == 0.0;
}

// Whether a method changed.
bool CFitOptionsInterface::ChooseAutomatically() {
    FitOptions& record = *m_pOptions;
    const AutomaticInput input = {GetFunction(),
                                  GetDlgOrder(),
                                  IsComparing(),
                                  record.bForcePropsPositive,
                                  record.bForceTausPositive,
                                  record.bAutoZeroShift,
                                  record.bDoZeroShift,
                                  IsFirstXZero()};
    if (m_lastAutomatic == input) return false;
    m_lastAutomatic = input;
    const Settled before = Now();
    ApplyAutomaticMethods(record, {.uTerms = input.uOrder,
                                   .bComparing = input.bComparing,
                                   .bFirstXIsZero = input.bFirstXIsZero});
    SetSearchMethod(record.eSearchMethod);
    return Now() != before;
}

// --- Moving a selection by hand ------------------------------------------------------------------

bool CFitOptionsInterface::MoveSearch() {
    const std::int32_t eBefore = GetSearchMethod();
    const auto enabled = [this](std::int32_t eMethod) {
        switch (eMethod) {
            case kSearchLM:
                return IsSearchLMEnabled();
            case kSearchVM:
                return IsSearchVMEnabled();
            case kSearchSimplex:
                return IsSearchSimplexEnabled();
            default:
                return IsSearchChebyshevEnabled();
        }
    };
    const auto any = [&enabled] {
        return enabled(kSearchLM) || enabled(kSearchVM) || enabled(kSearchSimplex) ||
               enabled(kSearchChebyshev);
    };
    if (!any()) return false;
    std::int32_t eMethod = eBefore;
    for (int i = 0; i < 4 && !enabled(eMethod); ++i) {
        const bool bConstrained = GetFunction() == kConstrainedExponential;
        eMethod = eMethod == kSearchChebyshev || (eMethod == kSearchSimplex && bConstrained)
                      ? kSearchLM
                      : eMethod + 1;
    }
    if (eMethod == kSearchChebyshev && GetFunction() != 15 && GetFunction() != 14 &&
        GetFunction() != 3 && GetFunction() != 11) {
        // The traits are those of the function under another method.
        SetSearchMethod(kSearchLM);
        ReadFor(Now());
        eMethod = m_Props.bSubstitutesZeroX != 0 ? kSearchSimplex : kSearchLM;
    }
    SetSearchMethod(eMethod);
    return eMethod != eBefore;
}

bool CFitOptionsInterface::MoveWeighting() {
    const std::int32_t eBefore = m_pOptions->eWeightingType;
    const auto enabled = [this](std::int32_t eWeighting) {
        return eWeighting == kWeightBinWidth ? IsWeightBinWidthEnabled()
                                             : IsWeightEnabled(eWeighting);
    };
    const auto any = [&enabled] {
        return enabled(kWeightNone) || enabled(kWeightFunction) || enabled(kWeightData) ||
               enabled(kWeightBinWidth);
    };
    if (!any()) return false;
    std::int32_t e = eBefore;
    for (int i = 0; i < 4 && !enabled(e); ++i) e = (e + 1) % 4;
    m_pOptions->eWeightingType = e;
    return e != eBefore;
}

bool CFitOptionsInterface::MoveMinim() {
    const std::int32_t eBefore = m_pOptions->eMinimMethod;
    const auto enabled = [this](std::int32_t eMinim) {
        switch (eMinim) {
            case kMinimSS:
                return IsMinimSSEnabled();
            case kMinimML:
                return IsMinimMLEnabled();
            case kMinimMinimax:
                return IsMinimMinimaxEnabled();
            default:
                return IsMinimMeanAbsEnabled();
        }
    };
    const auto any = [&enabled] {
        return enabled(kMinimSS) || enabled(kMinimML) || enabled(kMinimMinimax) ||
               enabled(kMinimMeanAbs);
    };
    if (!any()) return false;
    std::int32_t e = eBefore;
    for (int i = 0; i < 4 && !enabled(e); ++i) {
        switch (e) {
            case kMinimSS:
                e = kMinimML;
                break;
            case kMinimML:
                e = enabled(kMinimSS) ? kMinimSS : kMinimMinimax;
                break;
            case kMinimMinimax:
                e = kMinimMeanAbs;
                break;
            default:
                e = kMinimSS;
                break;
        }
    }
    m_pOptions->eMinimMethod = e;
    return e != eBefore;
}

bool CFitOptionsInterface::MoveSelections() {
    const bool bSearch = MoveSearch();
    const bool bWeighting = MoveWeighting();
    const bool bMinim = MoveMinim();
    return bSearch || bWeighting || bMinim;
}

// --- Coming to rest ------------------------------------------------------------------------------

// Reads the properties unless they were read for this. False where the library refused.
bool CFitOptionsInterface::ReadFor(const Settled& now) {
    if (now == m_read) return true;
    if (IsCustomFunction() && !bCustomCompiled) {
        DropProperties();
    } else if (ReadProperties() != 0) {
        return false;
    }
    m_read = now;
    return true;
}

FitChanges CFitOptionsInterface::Settle() {
    const Settled before = m_settled;
    const std::optional<std::int32_t> eBefore17 = m_eSearchBefore17;
    const bool bAutomatic = m_pOptions->bAutoDefaultOptions != 0;
    FitChanges changes;
    // Each choice can open or close another; none is made more than a few times.
    for (int i = 0; i < 4; ++i) {
        if (bAutomatic) ChooseAutomatically();
        if (!ReadFor(Now())) {
            changes.bFailed = true;
            m_pOptions->eFunctionType = before.eFunction;
            eLastPredefined = before.eLast;
            SetSearchMethod(before.eSearch);
            m_pOptions->eMinimMethod = before.eMinim;
            m_pOptions->eWeightingType = before.eWeighting;
            m_eSearchBefore17 = eBefore17;
            m_lastAutomatic.reset();
            // The properties of before still stand.
            m_read = Now();
            break;
        }
        if (bAutomatic || !MoveSelections()) break;
    }
    m_pOptions->uFitOrder = EffectiveTermCount();
    const Settled now = Now();
    const bool bStep = (before.eSearch == kSearchChebyshev) != (now.eSearch == kSearchChebyshev);
    changes.bFunction = now.eFunction != before.eFunction || now.bCompiled != before.bCompiled ||
                        (bStep && ChangesWithChebyshev(now.eFunction));
    changes.bMethods = now.eSearch != before.eSearch || now.eMinim != before.eMinim ||
                       now.eWeighting != before.eWeighting;
    changes.bOrder = now.uTerms != before.uTerms;
    m_settled = now;
    return changes;
}

bool CFitOptionsInterface::Apply() {
    const FitChanges changes = Settle();
    if (changes.bFunction || changes.bOrder) bSeedsValid = false;
    if (changes.bFunction) {
        bSeedsStale = true;
        if (bKeepsSeeds && onSeedsDropped) onSeedsDropped();
    }
    if (changes.bMethods || changes.bOrder) Notify(kNotifyFitMethodChanged);
    if ((changes.bFunction || changes.bOrder) && !bSeedsValid) Notify(kNotifyFitRefitChanged);
    if (changes.bFunction) Notify(kNotifyFitFunctionChanged);
    return !changes.bFailed;
}
