#include "fit/CFitSeedTab.h"

#include <algorithm>

#include "fit/FitChecks.h"
#include "fit/FitSeedRules.h"
#include "fit/FitVariables.h"
#include "fit/GraphicalSeeding.h"
#include "fit_control_ids.h"
#include "fit_ids.h"
#include "text/CaptionText.h"
#include "widgets/FrameworkSetup.h"

// --- Controls ------------------------------------------------------------------------------------

CFitSeedTab::CFitSeedTab(CFitOptionsInterface* pFit, CFitSeedInterface* pSeeds,
                         const ZXADLG_DlgParams* pParams, bool bHasDataPage,
                         const char* szGraphLibrary)
    : CRecordPage(&pFit->Options(), pParams->bReadOnly != 0, GetFrameworkInstance(),
                  MAKEINTRESOURCEA(IDD_FIT_SEEDS), MAKEINTRESOURCEA(IDS_FIT_TAB_SEEDS)),
      m_pFit(pFit),
      m_pSeeds(pSeeds),
      m_bHasDataPage(bHasDataPage),
      m_szGraphLibrary(szGraphLibrary) {
    BindPlaces();
    BindForcing();
    OnClick(IDC_FIT_ESTIMATE, m_btnEstimate, [this] {
        EnableControls({&m_btnEstimate, &m_btnFreeAll, &m_btnGraphical}, false);
        AutoEstimate(true);
        m_pFit->Notify(kNotifyFitSeedsChanged);
    });
    OnClick(IDC_FIT_FREE_ALL, m_btnFreeAll, [this] {
        m_pSeeds->uFixed.fill(0);
        ShowSeeds();
        m_pFit->Notify(kNotifyFitRefitChanged);
    });
    OnClick(IDC_FIT_GRAPHICAL, m_btnGraphical, [this] { SeedGraphically(); });
    Label(IDC_FIT_MULTIPLE_GROUP, m_grpMultiple);
    BindRadios({IDC_FIT_SEED_EACH_FIT, IDC_FIT_SEED_LAST_FIT}, {1, 0}, m_radMultiple,
               &FitOptions::bForceAutoSeed);

    for (const NotificationCode eCode :
         {kNotifyFitFunctionChanged, kNotifyFitMethodChanged, kNotifyFitCompareChanged,
          kNotifyFitSeedsChanged, kNotifyFitZeroShiftChanged, kNotifyFitForcePositiveChanged}) {
        OnBroadcast(eCode, [this] { RequestUpdate(); });
    }
}

void CFitSeedTab::BindPlaces() {
    constexpr int kSigDigits = 6;
    for (std::uint32_t i = 0; i < kPlaces; ++i) {
        m_atxtSeed[i].SetSigDigits(kSigDigits);
        Bind(
            IDC_FIT_SEED_FIRST + static_cast<int>(i), m_atxtSeed[i],
            [this, i] { return m_pSeeds->dSeeds[i]; },
            [this, i](double d) { m_pSeeds->dSeeds[i] = d; })
            .Then([this] {
                m_bTyped = true;
                m_pFit->bSeedsAutomatic = false;
            });
        Bind(
            IDC_FIT_FIX_FIRST + static_cast<int>(i), m_achkFix[i],
            [this, i] { return m_pSeeds->uFixed[i] != 0; },
            [this, i](bool b) { m_pSeeds->uFixed[i] = b ? 1 : 0; })
            .Then([this] { m_pFit->Notify(kNotifyFitRefitChanged); });
    }
    for (std::size_t i = 0; i < m_albRow.size(); ++i)
        Label(IDC_FIT_ROW_FIRST + static_cast<int>(i), m_albRow[i]);
    for (std::size_t i = 0; i < m_albColumn.size(); ++i)
        Label(IDC_FIT_COLUMN_FIRST + static_cast<int>(i), m_albColumn[i]);
    Labels({{IDC_FIT_OFFSET_LABEL, &m_lblOffset},
            {IDC_FIT_SLOPE_LABEL, &m_lblSlope},
            {IDC_FIT_SEED_NOTE, &m_lblNote},
            {IDC_FIT_NO_SEEDS_NOTE, &m_lblNotice},
            {IDC_FIT_FORCE_NOTE, &m_lblForce}});
}

void CFitSeedTab::BindForcing() {
    const auto forced = [this] {
        MendSigns(*m_pFit, *m_pSeeds);
        ShowSeeds();
        m_pFit->Apply();
        m_pFit->Notify(kNotifyFitForcePositiveChanged);
    };
    Bind(IDC_FIT_FORCE_PROPORTIONS, m_chkForceProportions, &FitOptions::bForcePropsPositive)
        .Then(forced);
    Bind(IDC_FIT_FORCE_TIME_CONSTANTS, m_chkForceTimeConstants, &FitOptions::bForceTausPositive)
        .Then(forced);
    constexpr int kIds[] = {IDC_FIT_ABSOLUTE, IDC_FIT_NORMALIZED};
    m_radProportions.SetupIds(this, 2, kIds, nullptr);
    BindTo(
        m_radProportions, [this] { return m_pFit->bSeedsNormalized ? 1 : 0; },
        [this](int nIndex) {
            if ((nIndex == 1) == m_pFit->bSeedsNormalized) return;
            nIndex == 1 ? Normalize() : Restore();
            ShowSeeds();
        });
}

bool CFitSeedTab::SetUp() {
    if (!IsReadOnly() && !m_pFit->bDeferred) m_dDataScale = ProportionScaleOfData(m_pFit->Data());
    m_pFit->dProportionScale = m_dDataScale;
    return true;
}

void CFitSeedTab::ShowOptions() {
    m_radProportions.SetSelected(m_pFit->bSeedsNormalized ? 1 : 0);
}

void CFitSeedTab::ShowSeeds() {
    ShowRecord();
    RequestUpdate();
}

void CFitSeedTab::ClearSeeds() {
    m_pSeeds->dSeeds.fill(0.0);
    m_pSeeds->uFixed.fill(0);
    m_bTyped = false;
    ShowSeeds();
}

void CFitSeedTab::KeepForTerms() {
    m_uActivatedTerms = m_pFit->EffectiveTermCount();
}

// --- Showing the page ----------------------------------------------------------------------------

BOOL CFitSeedTab::OnPageShow() {
    const BOOL bResult = CRecordPage::OnPageShow();
    if (IsReady() && !IsReadOnly()) Activate();
    return bResult;
}

void CFitSeedTab::Activate() {
    if (m_pFit->IsCustomFunction() && !m_pFit->bCustomCompiled) {
        m_pRecord->nNumCustomParams = 0;
        if (m_pFit->bCustomTextPresent) m_pFit->Notify(kNotifyFitCustomText);
    }
    if (m_pFit->bSeedsStale) {
        ClearSeeds();
        m_pFit->bSeedsValid = false;
        m_pFit->bSeedsStale = false;
        m_pFit->bSeedsAutomatic = false;
        m_pFit->bSeedsNormalized = !m_pFit->IsCustomFunction() &&
                                   m_pFit->Properties().bNormalizeWhenForced != 0 &&
                                   m_pFit->IsForcePositiveInEffect();
    }
    m_pFit->Notify(kNotifyFitCompareChanged);
    const bool bOtherTerms = m_uActivatedTerms != m_pFit->EffectiveTermCount();
    const bool bWanted = CanEstimate() && !m_pFit->bDeferred &&
                         (!m_pFit->bSeedsValid || bOtherTerms) && !CheckConstants(*m_pFit);
    KeepForTerms();
    // An attempt that has just failed has been told of.
    if (m_pFit->bAutoSeedDeclined) {
        m_pFit->bAutoSeedDeclined = false;
    } else if (bWanted) {
        AutoEstimate(true);
    }
    ShowSeeds();
}

BOOL CFitSeedTab::CanLeavePage() {
    if (!CRecordPage::CanLeavePage()) return FALSE;
    if (!IsReadOnly()) TakeTyped();
    return TRUE;
}

// --- Estimating ----------------------------------------------------------------------------------

bool CFitSeedTab::CanEstimate() const {
    return m_pFit->IsSeeded() && !m_pFit->IsCustomFunction();
}

bool CFitSeedTab::AutoEstimate(bool bReport) {
    if (!CanEstimate() || m_pFit->bDeferred || IsReadOnly()) return false;
    if (m_pFit->bKeepsSeeds) bReport = false;
    m_pFit->bSeedsValid = false;
    const CheckResult fault = CheckDataForFit(*m_pFit, FitDataUse::kEstimate);
    if (fault.has_value() && bReport) {
        ShowFinding(m_hWnd, *fault);
        if (fault->nStringId == IDS_FIT_CONSTANTS_POSITIVE) m_pFit->Notify(kNotifyFitShowDataPage);
    }
    const bool bDone = !fault.has_value() && !m_pFit->bAutoSeedDeclined && Compute();
    if (bDone) {
        MendSigns(*m_pFit, *m_pSeeds);
        TakeProportionScale(*m_pFit, *m_pSeeds, m_dDataScale);
        if (m_pFit->bSeedsNormalized) NormalizeProportions(*m_pFit, *m_pSeeds);
    } else {
        const bool bTell = bReport && !fault.has_value() && !m_pFit->bAutoSeedDeclined;
        m_pFit->bAutoSeedDeclined = false;
        if (bTell)
            ShowFinding(m_hWnd, {.nStringId = IDS_FIT_ESTIMATE_FAILED, .uFlags = MB_ICONASTERISK});
    }
    m_bTyped = false;
    m_pFit->bSeedsValid = bDone;
    m_pFit->bSeedsAutomatic = bDone;
    if (bDone) m_pFit->bSeedsStale = false;
    ShowSeeds();
    return bDone;
}

bool CFitSeedTab::Compute() {
    CDataOptionsInterface& data = m_pFit->Data();
    const double* x = data.GetXValues();
    const double* y = data.GetYValues();
    if (x == nullptr || y == nullptr) return false;
    const std::uint32_t uPoints = std::min(data.GetFetchedXCount(), data.GetFetchedYCount());
    FitVariables variables(data, x, uPoints);
    variables.Append(y);
    return m_pSeeds->ComputeSeeds(variables.Arrays(), variables.Count(), uPoints);
}

// --- What was typed ------------------------------------------------------------------------------

void CFitSeedTab::TakeTyped() {
    if (!m_bTyped) return;
    m_bTyped = false;
    if (FindMissingSeed(*m_pFit, *m_pSeeds)) return;
    const bool bChebyshev = m_pFit->GetSearchMethod() == kSearchChebyshev;
    if (!m_pFit->IsCustomFunction() && (!bChebyshev || m_pFit->bSeedsValid)) {
        m_pFit->bSeedsValid = AreSeedsUsable(*m_pFit, *m_pSeeds);
        m_pFit->bSeedsStale = !m_pFit->bSeedsValid;
    }
    const bool bExempt = m_pFit->GetFunction() == 16 || m_pFit->GetFunction() == 17;
    const MendedSeeds mended = bExempt ? MendedSeeds{} : MendSigns(*m_pFit, *m_pSeeds);
    if ((mended.bProportions || mended.bOthers) && IsEstimateOffered())
        TellOfMended(mended.bProportions, mended.bOthers);
    ShowSeeds();
    m_pFit->Notify(kNotifyFitSeedsChanged);
}

void CFitSeedTab::TellOfMended(bool bProportions, bool bOthers) {
    const auto tell = [this](UINT uString) {
        ShowSeeds();
        ShowFinding(m_hWnd, {.nStringId = uString, .uFlags = MB_ICONASTERISK});
    };
    if (m_pFit->IsMLEInEffect()) return tell(IDS_FIT_MENDED_LIKELIHOOD);
    if (m_pFit->Properties().bAlwaysPositive != 0) return tell(IDS_FIT_MENDED_ALWAYS_POSITIVE);
    if (m_pFit->bSeedsNormalized) Restore();
    const auto release = [&](std::int32_t FitOptions::*pForce, UINT uString) {
        tell(uString);
        m_pRecord->*pForce = 0;
        ShowRecord();
        m_pFit->Apply();
        m_pFit->Notify(kNotifyFitForcePositiveChanged);
    };
    if (bProportions) release(&FitOptions::bForcePropsPositive, IDS_FIT_MENDED_PROPORTIONS);
    if (bOthers) release(&FitOptions::bForceTausPositive, IDS_FIT_MENDED_TIME_CONSTANTS);
}

void CFitSeedTab::Normalize() {
    TakeProportionScale(*m_pFit, *m_pSeeds, m_dDataScale);
    NormalizeProportions(*m_pFit, *m_pSeeds);
    m_pFit->bSeedsNormalized = true;
}

void CFitSeedTab::Restore() {
    RestoreProportions(*m_pFit, *m_pSeeds);
    m_pFit->bSeedsNormalized = false;
}

// --- The graph -----------------------------------------------------------------------------------

void CFitSeedTab::SeedGraphically() {
    if (const CheckResult notNeeded = CheckGraphNeeded(*m_pFit, *m_pSeeds)) {
        ShowFinding(m_hWnd, *notNeeded);
        return;
    }
    GraphLibrary library(GetFrameworkInstance(), m_szGraphLibrary);
    if (!library.IsComplete()) {
        ShowFinding(m_hWnd, {.nStringId = IDS_FIT_GRAPH_LIBRARY, .uFlags = MB_ICONASTERISK});
        return;
    }
    const CFitSeedInterface::Values before = m_pSeeds->dSeeds;
    const bool bNormalized = m_pFit->bSeedsNormalized;
    if (bNormalized) {
        ShowFinding(m_hWnd, {.nStringId = IDS_FIT_GRAPH_ABSOLUTE, .uFlags = MB_ICONASTERISK});
        Restore();
        ShowSeeds();
    }
    m_pSeeds->dWork = m_pSeeds->dSeeds;
    CGraphicalSeedDialog dialog(GetDialogWnd(), *m_pFit, *m_pSeeds, library,
                                m_pFit->Data().GetSource()->GetProfileName());
    if (dialog.DoModal() == ZXADLG_OK) {
        m_pSeeds->dSeeds = m_pSeeds->dWork;
        MendSigns(*m_pFit, *m_pSeeds);
        m_pFit->bSeedsAutomatic = false;
        if (bNormalized) Normalize();
        m_pFit->bSeedsValid = AreSeedsUsable(*m_pFit, *m_pSeeds);
    } else {
        m_pSeeds->dSeeds = before;
        m_pFit->bSeedsNormalized = bNormalized;
    }
    m_bTyped = false;
    ShowSeeds();
    m_pFit->Notify(kNotifyFitSeedsChanged);
}
