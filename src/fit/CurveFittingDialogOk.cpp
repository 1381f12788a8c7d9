// What the curve fit dialog does at OK: the checks, one behind the other, and the record that the
// host gets.
#include <algorithm>

#include "ZXADLG.h"
#include "fit/CFitAdvancedTab.h"
#include "fit/CFitFunctionTab.h"
#include "fit/CFitSeedTab.h"
#include "fit/CurveFittingDialog.h"
#include "fit/FitChecks.h"
#include "fit/FitMemory.h"
#include "fit/FitSeedRules.h"
#include "ids.h"
#include "text/BoundedText.h"

std::span<const CFitDialog::CheckStep> CFitDialog::Checks() {
    static constexpr CheckStep kChecks[] = {
        &CFitDialog::CheckDataPage,  // something is selected, and the data page agrees
        &CFitDialog::CheckCustomFunction,
        &CFitDialog::CheckColumns,  // x and y differ
        &CFitDialog::CheckData,     // constants, points, values
        &CFitDialog::CheckSpacing,  // even x, where the method needs it
        &CFitDialog::CheckNegatives,
        &CFitDialog::CheckLengths,  // of several y columns
        &CFitDialog::CheckSeedValues,
        &CFitDialog::CheckEstimated,  // that the user asked for in the step before
        &CFitDialog::CheckComparison,     &CFitDialog::CheckFixed,
        &CFitDialog::CheckRange,  // of the fitted curve
    };
    return kChecks;
}

void CFitDialog::OnOK() {
    if (!IsReadOnly() && GetCurrentPage() == m_pSeedTab) m_pSeedTab->TakeTyped();
    // A page that has not been shown since would be validated with controls as they were.
    for (const auto& pPage : m_vOptionsTabs) pPage->RunUpdate();
    CParentDialogBase::OnOK();
}

// --- Checks --------------------------------------------------------------------------------------

CheckResult CFitDialog::CheckDataPage() {
    if (m_pDataTab == nullptr) return {};
    if (m_pDataTab->GetSelectedCountSafe() == 0)
        return Finding{.nStringId = IDS_NO_DATA_SELECTED, .nPage = kFitDataPage};
    if (m_pDataTab->Validate(TRUE, nullptr)) return {};
    // The page tells of its fault itself.
    ADM_Wnd* pFailed = nullptr;
    BringUpPage(kFitDataPage);
    m_pDataTab->Validate(FALSE, &pFailed);
    return Finding{.nPage = kFitDataPage,
                   .nControl = pFailed != nullptr ? pFailed->GetControlId() : 0};
}

CheckResult CFitDialog::CheckCustomFunction() {
    if (!m_pFit->IsCustomFunction()) return {};
    if (!IsReadOnly() && m_pFit->bCustomTextPresent && !m_pFunctionTab->Compile(true))
        return Finding{.nPage = kFitFunctionPage};
    // The function may need another data page by now.
    ShowDataPage();
    return CheckCustomDefined(*m_pFit);
}

CheckResult CFitDialog::CheckColumns() {
    return ReadsData() ? CheckColumnsDiffer(*m_pDataOptions) : CheckResult{};
}

CheckResult CFitDialog::CheckData() {
    return ReadsData() ? CheckDataForFit(*m_pFit, FitDataUse::kFit) : CheckResult{};
}

CheckResult CFitDialog::CheckSpacing() {
    if (!ReadsData()) return {};
    return CheckEvenX(*m_pFit, [this] {
        m_pFit->SetSearchMethod(kSearchLM);
        Settle();
    });
}

CheckResult CFitDialog::CheckNegatives() {
    return ReadsData() ? CheckNegativeData(*m_pFit) : CheckResult{};
}

CheckResult CFitDialog::CheckLengths() {
    return ReadsData() ? CheckColumnLengths(*m_pDataOptions) : CheckResult{};
}

CheckResult CFitDialog::CheckSeedValues() {
    if (!IsReadOnly() && AreSeedsOutOfDate(*m_pFit)) {
        // While models are compared nothing is fixed, and what was chosen waits.
        const CFitSeedInterface::Flags flags = m_pSeeds->uFixed;
        m_pSeedTab->ClearSeeds();
        if (m_pFit->IsComparing()) m_pSeeds->uFixed = flags;
    }
    return CheckSeeds(*m_pFit, *m_pSeeds,
                      {.bReadOnly = IsReadOnly(),
                       .bDeferred = !HasLiveData(),
                       .estimate = [this] { return m_pSeedTab->AutoEstimate(true); },
                       .keep = [this] { m_pSeedTab->KeepForTerms(); }});
}

CheckResult CFitDialog::CheckEstimated() {
    if (!ReadsData()) return {};
    return CheckEstimate(*m_pFit, *m_pSeeds);
}

CheckResult CFitDialog::CheckComparison() {
    return CheckComparisonOrder(*m_pFit);
}

CheckResult CFitDialog::CheckFixed() {
    return CheckAnyFree(*m_pFit, *m_pSeeds);
}

CheckResult CFitDialog::CheckRange() {
    return CheckCurveRange(*m_pFit);
}

// --- The record ----------------------------------------------------------------------------------

void CFitDialog::OnAccepted() {
    if (IsReadOnly()) return;
    FitOptions& record = *m_pRecord;
    for (std::uint32_t i = 0; i < CDataOptionsInterface::kMaxConstants; ++i) {
        record.bIsConstantVar[i] = m_pDataOptions->GetIsConstant(i) ? 1 : 0;
        record.dConstantVar[i] = m_pDataOptions->GetConstant(i);
    }
    m_pAdvancedTab->StoreCursorPair();
    record.bDlgCompareModels = record.bCompareModels;
    const bool bTerms = m_pFit->IsTermCapable();
    if (!bTerms) record.bCompareModels = 0;
    record.uTermsToFit = bTerms ? m_pFit->EffectiveTermCount() : 1;

    const FitFunctionProps& props = m_pFit->Properties();
    if (props.bFractionalProportions != 0 && props.bProportionsSumToOne != 0) {
        MakeProportionsSumToOne(*m_pFit, *m_pSeeds);
    } else if (m_pFit->bSeedsNormalized) {
        NormalizeProportions(*m_pFit, *m_pSeeds);
        RestoreProportions(*m_pFit, *m_pSeeds);
    }
    StoreSeeds(*m_pFit, *m_pSeeds, record);

    const double* pX = HasLiveData() ? m_pDataOptions->GetXValues() : nullptr;
    m_pFit->Finalise(record, pX, pX != nullptr ? m_pDataOptions->GetFetchedXCount() : 0);
    CopyText(record.szFunctionName, m_pFit->GetFunctionText());
    record.bZeroShiftInEffect =
        m_pFit->IsZeroShiftInEffect() || props.bZeroShiftMandatory != 0 ? 1 : 0;
    if (m_pDataTab != nullptr) {
        record.uFirstPoint = m_pDataOptions->GetFirstDataIndex() + 1;
        record.uLastPoint = m_pDataOptions->GetLastDataIndex() + 1;
        record.bFullRange = m_pDataOptions->GetUseFullDataRange() ? 1 : 0;
    }
    if (!HasLiveData()) return;
    RememberedFit() = {.bOpenedBefore = true,
                       .bLastNotColumnSource = !m_pDataOptions->IsSheetData()};
}
