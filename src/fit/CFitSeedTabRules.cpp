// What the seed page shows and enables.
#include <algorithm>

#include "fit/CFitSeedTab.h"
#include "fit/FitSeedRules.h"
#include "fit_control_ids.h"
#include "fit_ids.h"
#include "text/CaptionText.h"
#include "widgets/FrameworkSetup.h"

namespace {

constexpr std::uint32_t kColumns = CFitSeedInterface::kColumns;
constexpr std::uint32_t kRows = 6;

std::string Text(UINT uString) {
    char szText[256] = "";
    LoadStringA(GetFrameworkInstance(), uString, szText, sizeof szText);
    return szText;
}

}  // namespace

// A place that the current function has.
bool CFitSeedTab::IsShownPlace(std::uint32_t uPlace) const {
    if (NoticeString() != 0) return false;
    const FitFunctionProps& props = m_pFit->Properties();
    if (uPlace == CFitOptionsInterface::kOffsetPlace)
        return !m_pFit->IsCustomFunction() && props.bHasOffset != 0;
    if (uPlace == CFitOptionsInterface::kSlopePlace)
        return !m_pFit->IsCustomFunction() && props.bHasSlope != 0;
    for (std::uint32_t i = 0; i < m_pSeeds->GridCount(); ++i) {
        if (m_pSeeds->PlaceOfFlat(i) == uPlace) return true;
    }
    return false;
}

// Why no seeds are entered; 0 where they are.
int CFitSeedTab::NoticeString() const {
    if (m_pFit->IsSeeded()) return 0;
    if (m_pFit->Properties().bStraightLine != 0) return IDS_FIT_NO_SEEDS_LINE;
    if (m_pFit->Properties().bPolynomial != 0) return IDS_FIT_NO_SEEDS_POLYNOMIAL;
    if (m_pFit->GetFunction() == 3) return IDS_FIT_NO_SEEDS_SHIFTED_BOLTZMANN;
    if (m_pFit->GetFunction() == 11) return IDS_FIT_NO_SEEDS_POWER_EXPONENTIAL;
    return IDS_FIT_NO_NOTICE;
}

int CFitSeedTab::NoteString() const {
    if (m_pFit->IsCustomFunction()) return IDS_FIT_SEEDS_CUSTOM;
    if (m_pFit->GetSearchMethod() == kSearchChebyshev) {
        if (m_pFit->GetFunction() == 14) return IDS_FIT_SEEDS_SLOPING_FIXED_ONLY;
        if (m_pFit->GetFunction() == 15) return IDS_FIT_SEEDS_STANDARD_FIXED_ONLY;
    }
    return m_pFit->IsComparing() ? IDS_FIT_SEEDS_COMPARING : IDS_FIT_SEEDS_ENTER_OR_ESTIMATE;
}

// What is forced positive, or why nothing is; the first that applies.
int CFitSeedTab::ForceString() const {
    const FitFunctionProps& props = m_pFit->Properties();
    const bool bChebyshev =
        m_pFit->GetSearchMethod() == kSearchChebyshev && IsFittedByChebyshev(m_pFit->GetFunction());
    if (props.bAlwaysPositive != 0)
        return props.bHasOffset != 0 ? IDS_FIT_FORCED_ALL_BUT_OFFSET : IDS_FIT_FORCED_ALL;
    if (m_pFit->IsLineOrPolynomial()) return IDS_FIT_FORCE_NOT_REGRESSION;
    if (bChebyshev) return IDS_FIT_FORCE_NOT_CHEBYSHEV;
    if (m_pFit->IsMLEInEffect()) return IDS_FIT_FORCE_NOT_LIKELIHOOD;
    if (props.bCanForcePositive == 0) return IDS_FIT_FORCE_NOT_FUNCTION;
    if (props.bOnlyProportionsForced != 0) return IDS_FIT_FORCE_PROPORTIONS_ONLY;
    const bool bProportions = m_pRecord->bForcePropsPositive != 0;
    const bool bTimeConstants = m_pRecord->bForceTausPositive != 0;
    if (bProportions && bTimeConstants) return IDS_FIT_FORCED_BOTH;
    if (bProportions) return IDS_FIT_FORCED_PROPORTIONS;
    return bTimeConstants ? IDS_FIT_FORCED_TIME_CONSTANTS : 0;
}

void CFitSeedTab::ShowTexts() {
    const int nNotice = NoticeString();
    ShowControls({&m_lblNotice}, nNotice != 0);
    ShowControls({&m_lblNote}, nNotice == 0);
    m_lblNotice.SetWindowText(Text(static_cast<UINT>(nNotice)).c_str());
    m_lblNote.SetWindowText(Text(static_cast<UINT>(NoteString())).c_str());
    m_lblForce.SetWindowText(Text(static_cast<UINT>(ForceString())).c_str());
}

void CFitSeedTab::ShowColumnLabels(bool bShown) {
    constexpr UINT kFrom[] = {IDS_FIT_PARAMETERS_FROM_1, IDS_FIT_PARAMETERS_FROM_7,
                              IDS_FIT_PARAMETERS_FROM_13, IDS_FIT_PARAMETERS_FROM_19};
    const std::uint32_t uParams = m_pFit->GridParameterCount();
    for (std::uint32_t c = 0; c < kColumns; ++c) {
        std::string sText = m_pFit->GetParamName(c);
        bool bColumn = c < m_pFit->Properties().uParamsPerTerm;
        if (m_pFit->IsCustomFunction()) {
            const std::uint32_t uFirst = c * kRows + 1;
            const std::uint32_t uLast = std::min(uParams, uFirst + kRows - 1);
            bColumn = uParams >= uFirst;
            char szText[64];
            FormatCaption(szText, Text(uLast == uFirst ? IDS_FIT_ONE_PARAMETER : kFrom[c]).c_str(),
                          std::to_string(uLast).c_str());
            sText = szText;
        }
        ShowControls({&m_albColumn[c]}, bShown && bColumn);
        m_albColumn[c].SetWindowText(sText.c_str());
    }
}

void CFitSeedTab::ShowGrid() {
    const bool bShown = NoticeString() == 0;
    const bool bChebyshev = m_pFit->GetSearchMethod() == kSearchChebyshev;
    ShowColumnLabels(bShown);
    const std::uint32_t uRows = bShown && !m_pFit->IsCustomFunction() ? m_pSeeds->VisibleRows() : 0;
    for (std::uint32_t r = 0; r < kRows; ++r) {
        ShowControls({&m_albRow[r]}, r < uRows);
        m_albRow[r].SetWindowText(Text(IDS_FIT_TERM_1 + r).c_str());
    }
    ShowControls({&m_lblOffset}, IsShownPlace(CFitOptionsInterface::kOffsetPlace));
    ShowControls({&m_lblSlope}, IsShownPlace(CFitOptionsInterface::kSlopePlace));
    m_lblOffset.SetWindowText(m_pFit->GetOffsetName());
    m_lblSlope.SetWindowText(m_pFit->GetSlopeName());
    for (std::uint32_t i = 0; i < kPlaces; ++i) {
        const bool bPlace = IsShownPlace(i);
        ShowControls({&m_atxtSeed[i], &m_achkFix[i]}, bPlace);
        EnableControls({&m_achkFix[i]}, true);
        // Under Chebyshev only what is fixed needs a seed.
        EnableControls({&m_atxtSeed[i]}, bPlace && (!bChebyshev || m_pSeeds->uFixed[i] != 0));
    }
}

bool CFitSeedTab::IsEstimateOffered() const {
    return CanEstimate() && !m_pFit->bSeedsAutomatic && !m_pFit->bDeferred &&
           (!m_pFit->bKeepsSeeds || m_pFit->Data().IsFileData());
}

void CFitSeedTab::UpdateControls() {
    // Fields are shown by events alone: one may be half typed.
    ShowValue(m_chkForceProportions, m_pRecord->bForcePropsPositive != 0);
    ShowValue(m_chkForceTimeConstants, m_pRecord->bForceTausPositive != 0);
    ShowOptions();
    ShowTexts();
    ShowGrid();
    bool bAnyFixed = false;
    for (std::uint32_t i = 0; i < kPlaces; ++i)
        bAnyFixed = bAnyFixed || (m_pSeeds->uFixed[i] != 0 && IsShownPlace(i));
    EnableControls({&m_btnEstimate}, IsEstimateOffered());
    EnableControls({&m_btnFreeAll}, bAnyFixed);
    EnableControls({&m_btnGraphical}, false);
    EnableControls({&m_chkForceProportions}, m_pFit->IsForcePositiveEnabled());
    EnableControls(
        {&m_chkForceTimeConstants},
        m_pFit->IsForcePositiveEnabled() && m_pFit->Properties().bOnlyProportionsForced == 0);
    EnableControls({&m_radProportions}, m_pFit->Properties().bCanNormalizeProportions != 0 &&
                                            !m_pFit->IsCustomFunction());
    EnableControls({&m_grpMultiple, &m_radMultiple},
                   !m_pFit->IsComparing() && !m_pFit->IsCustomFunction() &&
                       (!m_bHasDataPage || TakesSeveralDataSets(m_pFit->Data())));
}
