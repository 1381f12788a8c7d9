#include "fit/CFitFunctionTab.h"

#include <algorithm>

#include "fit/FitEquation.h"
#include "fit/FitMessages.h"
#include "fit_control_ids.h"
#include "fit_ids.h"
#include "widgets/FrameworkSetup.h"

namespace {

constexpr std::int32_t kTermList[] = {1, 2, 3, 4, 5, 6};
constexpr std::int32_t kEndTermList[] = {2, 3, 4, 5, 6};
constexpr std::int32_t kValenceList[] = {-4, -3, -2, -1, 1, 2, 3, 4};
constexpr double kColdest = -273.0;  // degrees Celsius
constexpr double kHottest = 100.0;
// Single-precision values: the limits of a field that was one.
constexpr double kLeastConfidence = 0.01f;
constexpr double kMostConfidence = 0.999f;
// Room for "y1=" before what is typed.
constexpr int kEquationLimit = 252;

std::uint32_t InTerms(std::int32_t nValue, std::int32_t nLeast = 1) {
    return static_cast<std::uint32_t>(std::clamp<std::int32_t>(
        nValue, nLeast, static_cast<std::int32_t>(CFitOptionsInterface::kMaxTerms)));
}

}  // namespace

// --- Controls ------------------------------------------------------------------------------------

CFitFunctionTab::CFitFunctionTab(CFitOptionsInterface* pFit, const ZXADLG_DlgParams* pParams)
    : CRecordPage(&pFit->Options(), pParams->bReadOnly != 0, GetFrameworkInstance(),
                  MAKEINTRESOURCEA(IDD_FIT_FUNCTION), MAKEINTRESOURCEA(IDS_FIT_TAB_FUNCTION)),
      m_pFit(pFit) {
    BindFunction();
    BindNumbers();
    BindComparison();

    const auto update = [this] { RequestUpdate(); };
    OnBroadcast(kNotifyFitFunctionChanged, [this] {
        ShowNumbers();
        RequestUpdate();
    });
    OnBroadcast(kNotifyFitMethodChanged, update);
    OnBroadcast(kNotifyFitCompareChanged, update);
    OnBroadcast(kNotifyFitMethodsLeft, [this] {
        ShowNumbers();
        Settle();
    });
    for (const NotificationCode eCode :
         {kNotifyDataSelectionChanged, kNotifyPairingChanged, kNotifyRegionChanged}) {
        OnBroadcast(eCode, [this] { Settle(); });
    }
}

void CFitFunctionTab::BindFunction() {
    constexpr int kKinds[] = {IDC_FIT_PREDEFINED, IDC_FIT_CUSTOM};
    m_radKind.SetupIds(this, 2, kKinds, nullptr);
    OnEvent(m_radKind, ADMN_CLICKED, [this] { ChangeKind(); });
    Label(IDC_FIT_GROUP_LABEL, m_lblGroup);
    Label(IDC_FIT_GROUP, m_cmbGroup);
    OnEvent(m_cmbGroup, ADMN_COMBOSELCHANGE, [this] { ChangeGroup(); });
    Label(IDC_FIT_FUNCTIONS, m_lstFunctions);
    OnEvent(m_lstFunctions, ADMN_LISTSELCHANGE, [this] { ChangeFunction(SelectedFunction()); });
    Label(IDC_FIT_EQUATION_LABEL, m_lblEquation);
    Label(IDC_FIT_EQUATION, m_cmbEquation);
    OnEvent(m_cmbEquation, ADMN_COMBOEDITCHANGE, [this] { ChangeEquation(TypedEquation()); });
    OnEvent(m_cmbEquation, ADMN_COMBOSELCHANGE, [this] {
        // The edit part does not show the entry yet.
        char szText[256] = "";
        m_cmbEquation.GetLBText(m_cmbEquation.GetCurSel(), szText, sizeof szText);
        ChangeEquation(szText);
    });
}

// A number is stored as it is typed, pulled into its range; the text follows when it is left.
void CFitFunctionTab::BindNumber(int nLabel, int nField, int nSpin, Number& number, Get get,
                                 Set set) {
    number.get = get;
    Label(nLabel, number.lbl);
    Bind(nField, number.txt, get, set).ShowsWhenLeft();
    Spinner(nSpin, number.spn, number.txt);
}

void CFitFunctionTab::BindNumbers() {
    BindNumber(
        IDC_FIT_TERMS_LABEL, IDC_FIT_TERMS, IDC_FIT_TERMS_SPIN, m_terms,
        [this] { return static_cast<std::int32_t>(m_pFit->GetDlgOrder()); },
        [this](std::int32_t n) { ChangeOrder(InTerms(n)); });
    BindNumber(
        IDC_FIT_POWER_A_LABEL, IDC_FIT_POWER_A, IDC_FIT_POWER_A_SPIN, m_powerA,
        [this] { return static_cast<std::int32_t>(m_pFit->GetPowerA()); },
        [this](std::int32_t n) {
            m_pFit->SetPowerA(InTerms(n));
            ChangeNumber();
        });
    BindNumber(
        IDC_FIT_POWER_B_LABEL, IDC_FIT_POWER_B, IDC_FIT_POWER_B_SPIN, m_powerB,
        [this] { return static_cast<std::int32_t>(m_pFit->GetPowerB()); },
        [this](std::int32_t n) {
            m_pFit->SetPowerB(InTerms(n));
            ChangeNumber();
        });
    Label(IDC_FIT_TEMPERATURE_LABEL, m_lblTemperature);
    Bind(
        IDC_FIT_TEMPERATURE, m_txtTemperature, [this] { return m_pFit->GetTemperature(); },
        [this](double d) { m_pFit->SetTemperature(d); })
        .Then([this] { ChangeNumber(); });
    Spinner(IDC_FIT_TEMPERATURE_SPIN, m_spnTemperature, m_txtTemperature);
    m_txtTemperature.SetRange(kColdest, kHottest, 1.0);
    Label(IDC_FIT_CELSIUS, m_lblCelsius);
    BindNumber(
        IDC_FIT_VALENCE_LABEL, IDC_FIT_VALENCE, IDC_FIT_VALENCE_SPIN, m_valence,
        [this] { return m_pFit->GetValence(); },
        [this](std::int32_t n) {
            m_pFit->SetValence(n == 0 ? 1 : std::clamp<std::int32_t>(n, -4, 4));
            ChangeNumber();
        });
}

void CFitFunctionTab::BindComparison() {
    const auto changed = [this] { ChangeComparison(); };
    Bind(IDC_FIT_COMPARE, m_chkCompare, &FitOptions::bCompareModels).Then(changed);
    Label(IDC_FIT_COMPARE_NOTE, m_lblCompareNote);
    Bind(IDC_FIT_AUTO_COMPARE, m_chkAutoCompare, &FitOptions::bAutoCompare).Then(changed);
    BindNumber(
        IDC_FIT_START_TERM_LABEL, IDC_FIT_START_TERM, IDC_FIT_START_TERM_SPIN, m_start,
        [this] { return static_cast<std::int32_t>(m_pRecord->uStartCompare); },
        [this](std::int32_t n) {
            m_pRecord->uStartCompare = InTerms(n);
            ChangeComparison();
        });
    BindNumber(
        IDC_FIT_END_TERM_LABEL, IDC_FIT_END_TERM, IDC_FIT_END_TERM_SPIN, m_end,
        [this] { return static_cast<std::int32_t>(m_pRecord->uEndCompare); },
        [this](std::int32_t n) {
            m_pRecord->uEndCompare = InTerms(n, 2);
            ChangeComparison();
        });
    Label(IDC_FIT_CONFIDENCE_LABEL, m_lblConfidence);
    Bind(IDC_FIT_CONFIDENCE, m_txtConfidence, &FitOptions::dTolerance).Then(changed);
    Spinner(IDC_FIT_CONFIDENCE_SPIN, m_spnConfidence, m_txtConfidence);
    m_txtConfidence.SetRange(kLeastConfidence, kMostConfidence, 0.01);
}

bool CFitFunctionTab::SetUp() {
    m_eListedGroup = -1;
    for (Number* pNumber : {&m_terms, &m_powerA, &m_powerB, &m_start})
        pNumber->txt.SetValueList(std::size(kTermList), kTermList);
    m_end.txt.SetValueList(std::size(kEndTermList), kEndTermList);
    m_valence.txt.SetValueList(std::size(kValenceList), kValenceList);
    for (const FitGroupEntry& group : FitGroups())
        m_cmbGroup.SetItemData(m_cmbGroup.AddString(group.szCaption), group.eGroup);
    m_cmbEquation.LimitText(kEquationLimit);
    StoreExampleEquations(*m_pRecord);
    if (!IsReadOnly()) ApplyOrTell(*m_pFit, m_hWnd);
    return true;
}

// --- Showing -------------------------------------------------------------------------------------

void CFitFunctionTab::ShowOptions() {
    ShowFunction();
    m_cmbEquation.SetWindowText(RightSideOf(m_pRecord->szEquation).c_str());
    FillEquations();
    m_pFit->bCustomTextPresent = !TypedEquation().empty();
}

// The function as it stands, in a group that has it.
void CFitFunctionTab::ShowFunction() {
    m_radKind.SetSelected(m_pFit->IsCustomFunction() ? 1 : 0);
    if (!IsListed(m_pFit->eLastPredefined)) m_pRecord->eFunctionGroupID = kAllFunctions;
    m_cmbGroup.SelectData(-1, m_pRecord->eFunctionGroupID);
    // A list that is filled anew would lose its place.
    if (m_eListedGroup != m_pRecord->eFunctionGroupID) FillList();
    if (SelectedFunction() != m_pFit->eLastPredefined) SelectListed(m_pFit->eLastPredefined);
}

void CFitFunctionTab::ShowNumbers() {
    const UpdateScope updating(m_bUpdating);
    ShowFunction();
    ShowStoredNumbers();
    m_txtTemperature.SetValue(m_pFit->GetTemperature());
}

// What was typed out of its range has been stored within it.
void CFitFunctionTab::ShowStoredNumbers() {
    for (Number* pNumber : {&m_terms, &m_powerA, &m_powerB, &m_valence, &m_start, &m_end})
        pNumber->txt.SetValue(pNumber->get());
}

// In the group chosen, and offered at all.
bool CFitFunctionTab::IsListed(std::int32_t eFunction) const {
    if (NeedsColumns(eFunction) && !m_pFit->bGhkAvailable) return false;
    const FitFunctionEntry* pEntry = FindFitFunction(eFunction);
    return pEntry != nullptr && (m_pRecord->eFunctionGroupID == kAllFunctions ||
                                 m_pRecord->eFunctionGroupID == pEntry->eGroup);
}

void CFitFunctionTab::FillList() {
    m_eListedGroup = m_pRecord->eFunctionGroupID;
    m_lstFunctions.SetRedraw(FALSE);
    m_lstFunctions.ResetContent();
    for (const FitFunctionEntry& entry : FitFunctions()) {
        if (!IsListed(entry.eFunction)) continue;
        const int nItem = m_lstFunctions.AddResourceString(GetFrameworkInstance(),
                                                           static_cast<UINT>(entry.nCaptionString));
        m_lstFunctions.SetItemData(nItem, entry.eFunction);
    }
    m_lstFunctions.SetRedraw(TRUE);
    m_lstFunctions.Invalidate(TRUE);
}

bool CFitFunctionTab::SelectListed(std::int32_t eFunction) {
    return m_lstFunctions.SelectData(-1, eFunction) >= 0;
}

std::int32_t CFitFunctionTab::SelectedFunction() {
    return static_cast<std::int32_t>(m_lstFunctions.GetItemData(m_lstFunctions.GetCurSel()));
}

void CFitFunctionTab::FillEquations() {
    const std::string sTyped = TypedEquation();
    m_cmbEquation.ResetContent();
    for (const auto& szEquation : m_pRecord->szCustomEquations) {
        if (IsShownEquation(szEquation)) m_cmbEquation.AddString(szEquation);
    }
    m_cmbEquation.SetWindowText(sTyped.c_str());
}

std::string CFitFunctionTab::TypedEquation() const {
    char szText[256] = "";
    m_cmbEquation.GetWindowText(szText, sizeof szText);
    return szText;
}

// --- Rules ---------------------------------------------------------------------------------------

void CFitFunctionTab::UpdateControls() {
    const bool bCustom = m_pFit->IsCustomFunction();
    const FitFunctionProps& props = m_pFit->Properties();
    EnableControls({&m_lblGroup, &m_cmbGroup}, !bCustom);
    // The list stays alive in read-only mode, to be scrolled.
    m_lstFunctions.Enable(!bCustom && !IsDisabled());
    EnableControls({&m_lblEquation, &m_cmbEquation}, bCustom);
    // A change of the terms can lead away from Chebyshev.
    const bool bAwayFromChebyshev = m_pFit->GetSearchMethod() == kSearchChebyshev &&
                                    m_pRecord->bAutoDefaultOptions != 0 &&
                                    m_pFit->GetFunction() == 11;
    const auto enable = [this](Number& number, bool bEnable) {
        EnableControls({&number.lbl, &number.txt, &number.spn}, bEnable);
    };
    enable(m_terms, !bCustom && (props.bMultiTerm != 0 || bAwayFromChebyshev));
    enable(m_powerA, props.bUsesPowerA != 0);
    enable(m_powerB, props.bUsesPowerB != 0);
    EnableControls({&m_lblTemperature, &m_txtTemperature, &m_spnTemperature, &m_lblCelsius},
                   props.bUsesTemperature != 0);
    enable(m_valence, props.bUsesValence != 0);

    const bool bMayCompare = !bCustom && m_pFit->IsCompareEnabled();
    const bool bCompares = bMayCompare && m_pRecord->bCompareModels != 0;
    ShowValue(m_chkCompare, m_pRecord->bCompareModels != 0);
    EnableControls({&m_chkCompare, &m_lblCompareNote}, bMayCompare);
    EnableControls({&m_chkAutoCompare, &m_lblConfidence, &m_txtConfidence, &m_spnConfidence},
                   bCompares);
    enable(m_start, bCompares && m_pRecord->bAutoCompare == 0);
    enable(m_end, bCompares && m_pRecord->bAutoCompare == 0);
    m_terms.lbl.LoadText(GetFrameworkInstance(), m_pFit->IsComparing() ? IDS_FIT_COMPARING_MODELS
                                                                       : IDS_FIT_NUMBER_OF_TERMS);
}

BOOL CFitFunctionTab::OnPageShow() {
    m_bAskedToStop = false;
    return CRecordPage::OnPageShow();
}

// --- Events --------------------------------------------------------------------------------------

void CFitFunctionTab::Settle() {
    if (ApplyOrTell(*m_pFit, m_hWnd)) return;
    ShowNumbers();
    RequestUpdate();
}

void CFitFunctionTab::ChangeGroup() {
    m_pRecord->eFunctionGroupID =
        static_cast<std::int32_t>(m_cmbGroup.GetItemData(m_cmbGroup.GetCurSel()));
    FillList();
    if (SelectListed(m_pFit->eLastPredefined)) return;
    m_lstFunctions.SetCurSel(0);
    const std::int32_t eFirst = SelectedFunction();
    if (m_pFit->IsCustomFunction()) {
        m_pFit->eLastPredefined = eFirst;
    } else {
        ChangeFunction(eFirst);
    }
}

void CFitFunctionTab::ChangeFunction(std::int32_t eFunction) {
    if (eFunction == m_pFit->GetFunction()) return;
    m_pFit->SetFunction(eFunction);
    Settle();
}

void CFitFunctionTab::ChangeKind() {
    const bool bCustom = m_radKind.GetSelected() == 1;
    if (bCustom == m_pFit->IsCustomFunction()) return;
    ChangeFunction(bCustom ? kCustomFitFunction : m_pFit->eLastPredefined);
}

void CFitFunctionTab::ChangeEquation(const std::string& sText) {
    m_pFit->bCustomTextPresent = !sText.empty();
    m_pFit->bCustomCompiled = m_pFit->bCustomCompiled &&
                              WithoutBlanks(sText.c_str()) == RightSideOf(m_pRecord->szEquation);
    m_pFit->Notify(kNotifyFitRefitChanged);
}

void CFitFunctionTab::ChangeOrder(std::uint32_t uOrder) {
    const std::uint32_t uBefore = m_pFit->GetDlgOrder();
    if (uOrder == uBefore) return;
    if (m_pFit->IsComparing()) {
        m_terms.txt.SetValue(static_cast<std::int32_t>(uBefore));
        if (m_bAskedToStop) return;
        m_bAskedToStop = true;
        if (ShowFinding(m_hWnd, {.nStringId = IDS_FIT_STOP_COMPARING,
                                 .uFlags = MB_ICONQUESTION | MB_OKCANCEL}) != IDOK) {
            return;
        }
        m_pRecord->bCompareModels = 0;
        m_pFit->bSeedsValid = false;
        m_terms.txt.SetValue(static_cast<std::int32_t>(uOrder));
        m_pFit->SetDlgOrder(uOrder);
        m_pFit->Notify(kNotifyFitCompareChanged);
    } else {
        m_pFit->SetDlgOrder(uOrder);
    }
    Settle();
}

void CFitFunctionTab::ChangeComparison() {
    Settle();
    m_pFit->Notify(kNotifyFitCompareChanged);
}

// Another power, temperature or valence: the library would estimate other seeds.
void CFitFunctionTab::ChangeNumber() {
    m_pFit->bSeedsAutomatic = false;
    Settle();
}

// --- The custom function -------------------------------------------------------------------------

bool CFitFunctionTab::Compile(bool bReport) {
    const std::string sText = TypedEquation();
    if (m_pFit->bCustomCompiled &&
        WithoutBlanks(sText.c_str()) == RightSideOf(m_pRecord->szEquation)) {
        return true;
    }
    EquationMessages messages(m_hWnd);
    if (!CompileEquation(*m_pFit, sText.c_str(), bReport, messages)) return false;
    {
        const UpdateScope updating(m_bUpdating);
        FillEquations();
        m_cmbEquation.SetWindowText(RightSideOf(m_pRecord->szEquation).c_str());
    }
    if (m_pFit->Apply()) return true;
    m_pFit->bCustomCompiled = false;
    if (bReport) ShowFinding(m_hWnd, LibraryFailure());
    return false;
}

// --- Checking ------------------------------------------------------------------------------------

BOOL CFitFunctionTab::Validate(BOOL bSilent, ADM_Wnd** ppFailed) {
    if (!IsReadOnly()) {
        const UpdateScope updating(m_bUpdating);
        ShowStoredNumbers();
    }
    const auto fail = [ppFailed](ADM_Wnd* pControl) {
        if (ppFailed != nullptr) *ppFailed = pControl;
        return FALSE;
    };
    const bool bEquation = m_pFit->IsCustomFunction() && m_pFit->bCustomTextPresent;
    if (!IsReadOnly() && bEquation && !Compile(!bSilent)) return fail(&m_cmbEquation);
    if (m_pFit->IsComparing() && m_pRecord->uEndCompare <= m_pRecord->uStartCompare) {
        if (!bSilent) ShowFinding(m_hWnd, {.nStringId = IDS_FIT_COMPARE_ORDER});
        return fail(&m_end.txt);
    }
    return CRecordPage::Validate(bSilent, ppFailed);
}
