#include "fit/CFitAdvancedTab.h"

#include "ZXADLG.h"
#include "fit/FitChecks.h"
#include "fit/FitMessages.h"
#include "fit_control_ids.h"
#include "fit_ids.h"
#include "widgets/FrameworkSetup.h"

namespace {

constexpr int kMostIterations = 50000;
constexpr int kIterationStep = 50;
constexpr int kDataDecimals = 4;

struct CursorPair {
    const char* szName;
    std::uint32_t uFirst;  // of the two cursors
};
constexpr CursorPair kCursorPairs[] = {{"1..2", 1}, {"3..4", 3}};

}  // namespace

// --- Controls ------------------------------------------------------------------------------------

CFitAdvancedTab::CFitAdvancedTab(CFitOptionsInterface* pFit, const ZXADLG_DlgParams* pParams,
                                 bool bHasDataPage)
    : CRecordPage(&pFit->Options(), pFit, pParams, IDD_FIT_ADVANCED, IDS_FIT_TAB_ADVANCED),
      m_pFit(pFit),
      m_bHasDataPage(bHasDataPage) {
    BindMethods();
    BindPreprocessing();
    Label(IDC_FIT_STRATEGY_GROUP, m_grpStrategy);
    Bind(IDC_FIT_FREE_AND_REFIT, m_chkFreeAndRefit, &FitOptions::bFreeAndRefit).Then([this] {
        m_pFit->Notify(kNotifyFitRefitChanged);
    });
    Bind(IDC_FIT_REFIT_ON_FAILURE, m_chkRefitOnFailure, &FitOptions::bAutoAdjustOnFailure);
    Label(IDC_FIT_OUTPUT_GROUP, m_grpOutput);
    Bind(IDC_FIT_STATISTICS, m_chkStatistics, &FitOptions::bWriteStatistics);
    BindRange();
    Label(IDC_FIT_DIVISOR_LABEL, m_lblDivisor);
    Bind(IDC_FIT_DIVISOR, m_txtDivisor, &FitOptions::dSubstZeroLinearFactor);
    m_txtDivisor.SetRange(kFitDivisorRange.dLow, kFitDivisorRange.dHigh);

    for (const NotificationCode eCode :
         {kNotifyFitFunctionChanged, kNotifyFitMethodChanged, kNotifyFitMethodsLeft,
          kNotifyFitAutomaticChanged, kNotifyDataSelectionChanged, kNotifyPairingChanged,
          kNotifyRegionChanged, kNotifyRegionRecount}) {
        OnBroadcast(eCode, [this] { RequestUpdate(); });
    }
}

void CFitAdvancedTab::BindMethods() {
    Bind(
        IDC_FIT_AUTOMATIC, m_chkAutomatic, [this] { return m_pRecord->bAutoDefaultOptions != 0; },
        [this](bool b) { m_pFit->SetAutomatic(b); })
        .Then([this] {
            ChangeMethod();
            m_pFit->Notify(kNotifyFitAutomaticChanged);
        });
    Labels({{IDC_FIT_SEARCH_GROUP, &m_grpSearch},
            {IDC_FIT_PRECISION_LABEL, &m_lblPrecision},
            {IDC_FIT_MINIM_GROUP, &m_grpMinim},
            {IDC_FIT_WEIGHT_GROUP, &m_grpWeight}});
    constexpr int kSearch[] = {IDC_FIT_LM, IDC_FIT_VM, IDC_FIT_SIMPLEX, IDC_FIT_CHEBYSHEV};
    m_radSearch.SetupIds(this, 4, kSearch, nullptr);
    BindTo(
        m_radSearch, [this] { return m_pFit->GetSearchMethod(); },
        [this](int e) { m_pFit->SetSearchMethod(e); })
        .Then([this] { ChangeMethod(); });
    BindRadios({IDC_FIT_SQUARED_ERRORS, IDC_FIT_LIKELIHOOD, IDC_FIT_MINIMAX, IDC_FIT_MEAN_ABSOLUTE},
               m_radMinim, &FitOptions::eMinimMethod)
        .Then([this] { ChangeMethod(); });
    BindRadios({IDC_FIT_WEIGHT_NONE, IDC_FIT_WEIGHT_FUNCTION, IDC_FIT_WEIGHT_DATA,
                IDC_FIT_WEIGHT_BIN_WIDTH},
               m_radWeight, &FitOptions::eWeightingType)
        .Then([this] { ChangeMethod(); });
    BindPrecision(IDC_FIT_LM_PRECISION, IDC_FIT_LM_DEFAULT, m_lm, &FitOptions::dUserLMPrecision,
                  &FitOptions::bUseLMPrecisionDefault);
    BindPrecision(IDC_FIT_VM_PRECISION, IDC_FIT_VM_DEFAULT, m_vm, &FitOptions::dUserVMPrecision,
                  &FitOptions::bUseVMPrecisionDefault);
    BindPrecision(IDC_FIT_SIMPLEX_PRECISION, IDC_FIT_SIMPLEX_DEFAULT, m_simplex,
                  &FitOptions::dUserFractError, &FitOptions::bUseFractErrDefault);
    OnClick(IDC_FIT_SMOOTHING, m_chkSmoothing, [this] {
        m_pRecord->bDlgChebyFilter = ReadValue(m_chkSmoothing) ? 1 : 0;
        m_pFit->bSeedsValid = false;
        m_pFit->Notify(kNotifyFitRefitChanged);
    });
    Label(IDC_FIT_ITERATIONS_LABEL, m_lblIterations);
    Bind(
        IDC_FIT_ITERATIONS, m_txtIterations,
        [this] { return static_cast<std::int32_t>(m_pRecord->uMaxIterations); },
        [this](std::int32_t n) { m_pRecord->uMaxIterations = static_cast<std::uint32_t>(n); });
    Spinner(IDC_FIT_ITERATIONS_SPIN, m_spnIterations, m_txtIterations);
    m_txtIterations.SetRange(1, kMostIterations, kIterationStep);
}

void CFitAdvancedTab::BindPrecision(int nField, int nDefault, Precision& precision,
                                    double FitOptions::*pUser, std::int32_t FitOptions::*pDefault) {
    Bind(nField, precision.txt, pUser);
    precision.txt.SetRange(kFitPrecisionRange.dLow, kFitPrecisionRange.dHigh);
    Bind(nDefault, precision.chkDefault, pDefault).Then([this, &precision, pUser] {
        precision.txt.SetValue(m_pRecord->*pUser);
    });
}

void CFitAdvancedTab::BindPreprocessing() {
    Label(IDC_FIT_PREPROCESSING_GROUP, m_grpPreprocessing);
    const auto shift = [this](int nId, ADM_Button& chk, std::int32_t FitOptions::*pField) {
        Bind(
            nId, chk, [this, pField] { return m_pRecord->*pField != 0; },
            [this, pField](bool b) {
                const bool bBefore = m_pFit->IsZeroShiftInEffect();
                m_pRecord->*pField = b ? 1 : 0;
                ChangeZeroShift(bBefore);
            });
    };
    shift(IDC_FIT_ZERO_SHIFT, m_chkZeroShift, &FitOptions::bDoZeroShift);
    shift(IDC_FIT_ZERO_SHIFT_AUTO, m_chkZeroShiftAuto, &FitOptions::bAutoZeroShift);
    Label(IDC_FIT_ZERO_SHIFT_STATUS, m_lblStatus);
}

void CFitAdvancedTab::BindRange() {
    Label(IDC_FIT_RANGE, m_grpRange);
    Bind(IDC_FIT_FROM, m_chkFrom, &FitOptions::bExtrapolateLeft);
    Bind(IDC_FIT_FROM_VALUE, m_txtFrom, &FitOptions::dLeftExtrapolationValue);
    Label(IDC_FIT_FROM_DATA, m_lblFromData);
    Bind(IDC_FIT_TO, m_chkTo, &FitOptions::bExtrapolateRight);
    Bind(IDC_FIT_TO_VALUE, m_txtTo, &FitOptions::dRightExtrapolationValue);
    Label(IDC_FIT_TO_DATA, m_lblToData);
    Bind(
        IDC_FIT_CURSOR_PAIR_CHECK, m_chkCursorPair,
        [this] { return m_pFit->Data().GetExtrapolate(); },
        [this](bool b) { m_pFit->Data().SetExtrapolate(b); });
    Label(IDC_FIT_CURSOR_PAIR, m_cmbCursorPair);
    OnEvent(m_cmbCursorPair, ADMN_COMBOSELCHANGE, [this] {
        m_pFit->Data().SetExtrapolationCursor(
            static_cast<std::uint32_t>(m_cmbCursorPair.GetItemData(m_cmbCursorPair.GetCurSel())));
    });
}

bool CFitAdvancedTab::SetUp() {
    for (const CursorPair& pair : kCursorPairs)
        m_cmbCursorPair.SetItemData(m_cmbCursorPair.AddString(pair.szName),
                                    static_cast<LPARAM>(pair.uFirst));
    // A number that stands for neither pair shows the first.
    m_cmbCursorPair.SetCurSel(0);
    m_cmbCursorPair.SelectData(-1, static_cast<LPARAM>(m_pFit->Data().GetExtrapolationCursor()));
    return true;
}

void CFitAdvancedTab::StoreCursorPair() {
    if (!HasCursors() || !m_pFit->Data().GetExtrapolate()) return;
    m_pFit->Data().SetExtrapolationCursor(
        static_cast<std::uint32_t>(m_cmbCursorPair.GetItemData(m_cmbCursorPair.GetCurSel())));
}

bool CFitAdvancedTab::HasCursors() const {
    return m_bHasDataPage && m_pFit->Data().IsFileData();
}

// --- Rules ---------------------------------------------------------------------------------------

void CFitAdvancedTab::UpdateControls() {
    CRecordPage::UpdateControls();
    ShowMethods();
    ShowStatus();
    ShowRange();
    EnableControls({&m_chkRefitOnFailure}, m_pFit->IsAutoRefitEnabled());
    EnableControls({&m_chkFreeAndRefit}, m_pFit->IsFreeAndRefitEnabled());
    EnableControls({&m_grpStrategy},
                   m_pFit->IsAutoRefitEnabled() || m_pFit->IsFreeAndRefitEnabled());
    // The frame goes with its first check box, which the base shows.
    ShowControls({&m_grpOutput, &m_chkStatistics}, m_pParams->bShowWriteRegionInfo != 0);
    EnableControls({&m_grpOutput, &m_chkStatistics}, true);
    EnableControls({&m_lblDivisor, &m_txtDivisor}, m_pFit->Properties().bSubstitutesZeroX != 0);
}

void CFitAdvancedTab::ShowMethods() {
    ShowValue(m_chkAutomatic, m_pRecord->bAutoDefaultOptions != 0);
    EnableControls({&m_chkAutomatic}, true);
    const auto show = [this](ADM_RadioButtons& rad, std::int32_t eMethod, FitMethodGroup eGroup,
                             std::initializer_list<ADM_Wnd*> around) {
        ShowValue(rad, eMethod);
        for (int i = 0; i < kFitMethods; ++i) EnableButton(rad, i, m_pFit->IsOpen(eGroup, i));
        EnableControls(around, m_pFit->IsAnyOpen(eGroup));
    };
    show(m_radSearch, m_pFit->GetSearchMethod(), FitMethodGroup::kSearch,
         {&m_grpSearch, &m_lblPrecision});
    show(m_radMinim, m_pRecord->eMinimMethod, FitMethodGroup::kMinim, {&m_grpMinim});
    show(m_radWeight, m_pRecord->eWeightingType, FitMethodGroup::kWeighting, {&m_grpWeight});

    EnablePrecision(m_lm, kSearchLM, &FitOptions::bUseLMPrecisionDefault);
    EnablePrecision(m_vm, kSearchVM, &FitOptions::bUseVMPrecisionDefault);
    EnablePrecision(m_simplex, kSearchSimplex, &FitOptions::bUseFractErrDefault);
    ShowValue(m_chkSmoothing, m_pFit->IsChebyFilterWanted());
    EnableControls({&m_chkSmoothing},
                   m_pFit->IsChebyFilterEnabled() && !m_pFit->IsChebyFilterForced());
    const bool bIterates =
        m_pFit->GetSearchMethod() != kSearchChebyshev && !m_pFit->IsLineOrPolynomial();
    EnableControls({&m_lblIterations, &m_txtIterations, &m_spnIterations}, bIterates);
}

void CFitAdvancedTab::EnablePrecision(Precision& precision, std::int32_t eMethod,
                                      std::int32_t FitOptions::*pDefault) {
    const bool bUsed = m_pFit->GetSearchMethod() == eMethod && !m_pFit->IsLineOrPolynomial();
    EnableControls({&precision.chkDefault}, bUsed);
    EnableControls({&precision.txt}, bUsed && m_pRecord->*pDefault == 0);
}

void CFitAdvancedTab::ShowStatus() {
    const FitFunctionProps& props = m_pFit->Properties();
    UINT uString = 0;
    if (props.bZeroShiftMandatory != 0) {
        uString = m_pFit->GetSearchMethod() == kSearchChebyshev ? IDS_FIT_ZERO_SHIFT_CHEBYSHEV
                                                                : IDS_FIT_ZERO_SHIFT_FUNCTION;
    } else if (props.bZeroShiftAllowed == 0) {
        uString = IDS_FIT_ZERO_SHIFT_NOT_AVAILABLE;
    }
    if (uString == 0 || !m_lblStatus.LoadText(m_hInstance, uString)) m_lblStatus.SetWindowText("");
    EnableControls({&m_chkZeroShift},
                   m_pFit->IsZeroShiftPermitted() && m_pRecord->bAutoZeroShift == 0);
    EnableControls({&m_chkZeroShiftAuto, &m_grpPreprocessing}, true);
}

void CFitAdvancedTab::ShowRange() {
    CDataOptionsInterface& data = m_pFit->Data();
    const CurveRangeForm form =
        FormOfCurveRange(data, m_bHasDataPage, IsReadOnly(), m_pFit->bDeferred);
    if (form.nCaption != 0) m_grpRange.LoadText(m_hInstance, static_cast<UINT>(form.nCaption));
    EnableControls({&m_grpRange}, true);
    ShowControls({&m_chkCursorPair, &m_cmbCursorPair}, form.bCursorPair);
    ShowControls({&m_chkFrom, &m_chkTo}, form.bLimits);
    ShowControls({&m_txtFrom, &m_txtTo}, form.bLimitEdits);
    ShowControls({&m_lblFromData, &m_lblToData}, form.bDataTexts);
    EnableControls({&m_cmbCursorPair}, data.GetExtrapolate());
    EnableControls({&m_txtFrom}, m_pRecord->bExtrapolateLeft != 0);
    EnableControls({&m_txtTo}, m_pRecord->bExtrapolateRight != 0);
    if (!form.bDataTexts) return;
    double dFirst = 0.0;
    double dLast = 0.0;
    data.GetXRange(&dFirst, &dLast);
    m_lblFromData.SetArgDouble(0, dFirst, kDataDecimals, 0);
    m_lblToData.SetArgDouble(0, dLast, kDataDecimals, 0);
}

// --- Events --------------------------------------------------------------------------------------

void CFitAdvancedTab::ChangeMethod() {
    ApplyOrTell(*m_pFit, m_hWnd);
}

void CFitAdvancedTab::ChangeZeroShift(bool bBefore) {
    ChangeMethod();
    if (m_pFit->IsZeroShiftInEffect() == bBefore) return;
    m_pFit->bSeedsAutomatic = false;
    m_pFit->Notify(kNotifyFitZeroShiftChanged);
}

BOOL CFitAdvancedTab::CanLeavePage() {
    if (IsReady()) m_pFit->Notify(kNotifyFitMethodsLeft);
    return TRUE;
}
