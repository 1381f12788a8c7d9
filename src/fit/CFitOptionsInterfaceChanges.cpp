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

// The method, moved on until one that is open is found. Where none is, it stays.
template <class Next>
std::int32_t CFitOptionsInterface::MoveOn(FitMethodGroup eGroup, std::int32_t eMethod,
                                          Next next) const {
    if (!IsAnyOpen(eGroup)) return eMethod;
    for (int i = 0; i < kFitMethods && !IsOpen(eGroup, eMethod); ++i) eMethod = next(eMethod);
    return eMethod;
}

std::int32_t CFitOptionsInterface::MovedSearch() {
    if (!IsAnyOpen(FitMethodGroup::kSearch)) return GetSearchMethod();
    const bool bConstrained = GetFunction() == kConstrainedExponential;
    const std::int32_t eMethod =
        MoveOn(FitMethodGroup::kSearch, GetSearchMethod(), [bConstrained](std::int32_t e) {
            const bool bLast = e == kSearchChebyshev || (e == kSearchSimplex && bConstrained);
            return bLast ? kSearchLM : e + 1;
        });
    if (eMethod != kSearchChebyshev || IsFittedByChebyshev(GetFunction())) return eMethod;
    // The traits are those of the function under another method.
    SetSearchMethod(kSearchLM);
    ReadFor(Now());
    return m_Props.bSubstitutesZeroX != 0 ? kSearchSimplex : kSearchLM;
}

std::int32_t CFitOptionsInterface::MovedWeighting() const {
    return MoveOn(FitMethodGroup::kWeighting, m_pOptions->eWeightingType,
                  [](std::int32_t e) { return (e + 1) % kFitMethods; });
}

std::int32_t CFitOptionsInterface::MovedMinim() const {
    return MoveOn(FitMethodGroup::kMinim, m_pOptions->eMinimMethod, [this](std::int32_t e) {
        if (e == kMinimML && !IsMinimSSEnabled()) return kMinimMinimax;
        constexpr FitMinimMethod kNext[] = {kMinimML, kMinimSS, kMinimMeanAbs, kMinimSS};
        return kNext[e];
    });
}

bool CFitOptionsInterface::MoveSelections() {
    const Settled before = Now();
    SetSearchMethod(MovedSearch());
    m_pOptions->eWeightingType = MovedWeighting();
    m_pOptions->eMinimMethod = MovedMinim();
    return Now() != before;
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
