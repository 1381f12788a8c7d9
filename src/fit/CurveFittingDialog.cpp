#include "fit/CurveFittingDialog.h"

#include <algorithm>

#include "ZXADLG.h"
#include "analysis/CPairedDataTab.h"
#include "analysis/CUnitaryDataTab.h"
#include "fit/CFitAdvancedTab.h"
#include "fit/CFitFunctionTab.h"
#include "fit/CFitSeedTab.h"
#include "fit/FitChecks.h"
#include "fit/FitEquation.h"
#include "fit/FitMemory.h"
#include "fit/FitMessages.h"
#include "fit/FitSeedRules.h"
#include "fit_control_ids.h"
#include "fit_ids.h"
#include "ids.h"
#include "widgets/FrameworkSetup.h"

// --- Building ------------------------------------------------------------------------------------

CFitDialog::CFitDialog(HWND hwndParent, FitOptions* pOptions, ZXADLG_DataOptions* pData,
                       ZXADLG_CDlgDataSource* pSource, const ZXADLG_DlgParams* pParams,
                       const char* szLibrary, const char* szGraphLibrary)
    : CParentDialogBase(hwndParent, pData, pSource, pParams, IDD_FIT, IDC_TABS),
      m_library(GetFrameworkInstance(), szLibrary),
      m_szGraphLibrary(szGraphLibrary),
      m_pRecord(pOptions) {
    OfferData({.bAllowExtrapolate = 1,
               .bAllowForceToZero = 0,
               .bAllowRegion = 1,
               .bShowGroups = pParams->bShowGroupSelector,
               .bShowSetTools = 1,
               .bUseStoredInfo = pParams->bDeferredRun});
    auto pFit = std::make_unique<CFitOptionsInterface>(pOptions, m_pDataOptions.get(), &m_library);
    m_pFit = pFit.get();
    m_pOptions = std::move(pFit);
    m_pSeeds = std::make_unique<CFitSeedInterface>(m_pFit, m_pDataOptions.get());
    OpenRecord();
    m_bRefused = !OpenFunction();
    if (m_bRefused) return;
    BindEvents();
    AddPages();
    for (const CheckStep step : Checks())
        AddCheck([this, step](const TypedValues&) { return (this->*step)(); });
}

void CFitDialog::OpenRecord() {
    m_pFit->bGhkAvailable = m_bUseDataOptions && m_pDataOptions->IsSheetData();
    m_pFit->bKeepsSeeds = m_pParams->bFitKeepSeeds != 0;
    m_pFit->bDeferred = !HasLiveData();
    m_pFit->onSeedsDropped = [this] { m_pSeeds->dSeeds.fill(0.0); };
    m_pRecord->bOfferMethodChange = m_pParams->bFitOptionByte;
    m_pRecord->bWriteFittedData = 1;
    if (!m_pFit->bGhkAvailable && NeedsColumns(m_pRecord->eFunctionType)) {
        m_pRecord->eFunctionType = kStandardExponential;
        // They are another function's.
        std::fill(std::begin(m_pRecord->dParameters), std::end(m_pRecord->dParameters), 0.0);
        std::fill(std::begin(m_pRecord->uConstraints), std::end(m_pRecord->uConstraints), 0u);
        std::fill(std::begin(m_pRecord->uDlgConstraints), std::end(m_pRecord->uDlgConstraints), 0u);
    }
    m_pFit->Open();
    if (!m_pFit->bGhkAvailable && NeedsColumns(m_pFit->eLastPredefined))
        m_pFit->eLastPredefined = kStandardExponential;
}

// False where the library is missing or refuses.
bool CFitDialog::OpenFunction() {
    bool bRead = false;
    if (m_pFit->IsCustomFunction()) {
        EquationMessages silent(nullptr);
        const std::string sText = RightSideOf(m_pRecord->szEquation);
        if (CompileEquation(*m_pFit, sText.c_str(), false, silent)) {
            bRead = m_pFit->ReadProperties() == 0;
        } else {
            m_pFit->DropProperties();
            if (!IsReadOnly()) m_pRecord->szEquation[0] = '\0';
            // Whether there is a library is to be known all the same.
            m_library.Use(m_pFit->ScratchRecord());
            bRead = m_library.IsLoaded();
        }
    } else {
        bRead = m_pFit->ReadProperties() == 0;
    }
    m_pFit->BeginSettled();
    return bRead;
}

void CFitDialog::AddPages() {
    auto pFunction = std::make_unique<CFitFunctionTab>(m_pFit, m_pParams);
    auto pAdvanced = std::make_unique<CFitAdvancedTab>(m_pFit, m_pParams, m_bUseDataOptions);
    auto pSeedPage = std::make_unique<CFitSeedTab>(m_pFit, m_pSeeds.get(), m_pParams,
                                                   m_bUseDataOptions, m_szGraphLibrary);
    m_pFunctionTab = pFunction.get();
    m_pAdvancedTab = pAdvanced.get();
    m_pSeedTab = pSeedPage.get();
    AddOptionsTab(std::move(pFunction));
    AddOptionsTab(std::move(pAdvanced));
    AddOptionsTab(std::move(pSeedPage));
    ShowDataPage();
    // The dialog first.
    m_pFit->AddObserver(this);
    for (const auto& pPage : m_vOptionsTabs) m_pFit->AddObserver(pPage.get());
    m_pDataOptions->AddObserver(this);

    RegisterControl(IDC_FIT_NAME, &m_lblName);
    RegisterControl(IDC_FIT_HELP, &m_lblHelp);
    RegisterControl(IDC_FIT_PICTURE, &m_picture);
}

CFitDialog::DataForm CFitDialog::FormOfDataPage() const {
    if (!m_bUseDataOptions) return DataForm::kNone;
    if (!m_pDataOptions->IsSheetData()) return DataForm::kSets;
    const bool bOne = m_pFit->IsCustomFunction() || m_pDataOptions->GetConstantCount() == 1;
    return bOne ? DataForm::kOneVariable : DataForm::kSeveralVariables;
}

// Several variables need another data page than one.
void CFitDialog::ShowDataPage() {
    const DataForm eForm = FormOfDataPage();
    if (eForm == m_eDataForm) return;
    m_eDataForm = eForm;
    if (eForm == DataForm::kSets) {
        AddUsualDataTab();
    } else if (eForm == DataForm::kOneVariable) {
        SetDataTab(std::make_unique<CPairedDataTab>(m_pDataOptions.get(), IDD_PAIRED_ONE_VARIABLE,
                                                    true, IsReadOnly()));
    } else if (eForm == DataForm::kSeveralVariables) {
        SetDataTab(std::make_unique<CPairedDataTab>(m_pDataOptions.get(), IDD_PAIRED_SIX_VARIABLES,
                                                    false, IsReadOnly()));
    }
}

INT_PTR CFitDialog::DoModal() {
    if (!m_bRefused) return CParentDialogBase::DoModal();
    ShowFinding(m_hParentWnd, LibraryFailure());
    return ZXADLG_CANCEL;
}

// --- Set-up --------------------------------------------------------------------------------------

bool CFitDialog::SetUp() {
    if (!CParentDialogBase::SetUp()) return false;
    char szHelp[256] = "";
    LoadStringA(GetFrameworkInstance(), IDS_FIT_CUSTOM_HELP, szHelp, sizeof szHelp);
    m_lblHelp.SetWindowText(szHelp);
    SetUpSeeds();
    m_sSelectedData = SelectedData();
    ShowName();
    ShowPicture();
    return true;
}

void CFitDialog::SetUpSeeds() {
    m_pFit->bSeedsValid = false;
    m_pFit->bSeedsStale = true;
    const FitMemory& memory = RememberedFit();
    const bool bSameKind = memory.bLastNotColumnSource == !m_pDataOptions->IsSheetData();
    const bool bAgain = m_pFit->bKeepsSeeds && memory.bOpenedBefore;
    const bool bAsStored = IsReadOnly() || !HasLiveData();
    if (bAsStored || m_pFit->IsCustomFunction() || (bAgain && bSameKind)) {
        RestoreStoredSeeds(*m_pRecord, *m_pSeeds);
        RestoreStoredFlags(*m_pRecord, *m_pSeeds);
        const bool bUsable = !m_pFit->IsCustomFunction() || m_pFit->bCustomCompiled;
        m_pFit->bSeedsValid = bAsStored || (bUsable && AreSeedsUsable(*m_pFit, *m_pSeeds));
        m_pFit->bSeedsStale = !m_pFit->bSeedsValid;
        m_pFit->bSeedsAutomatic = false;
        if (!m_pFit->bSeedsValid) m_pSeedTab->AutoEstimate(false);
    } else {
        m_pSeedTab->AutoEstimate(false);
        // The kept seeds of other data are dropped whole.
        if (!bAgain) RestoreStoredFlags(*m_pRecord, *m_pSeeds);
    }
    m_pSeedTab->KeepForTerms();
    m_pSeedTab->ShowSeeds();
}

// --- Events --------------------------------------------------------------------------------------

void CFitDialog::BindEvents() {
    const auto settle = [this] { Settle(); };
    const auto showName = [this] { RequestUpdate(); };
    OnBroadcast(kNotifyFitFunctionChanged, [this] {
        m_pFit->bSeedsStale = true;
        Settle();
    });
    OnBroadcast(kNotifyFitCustomText, [this] { m_pFunctionTab->Compile(true); });
    OnBroadcast(kNotifyFitMethodChanged, settle);
    OnBroadcast(kNotifyFitCompareChanged, showName);
    OnBroadcast(kNotifyFitSeedsChanged, settle);
    OnBroadcast(kNotifyFitZeroShiftChanged, settle);
    OnBroadcast(kNotifyFitForcePositiveChanged, settle);
    OnBroadcast(kNotifyFitRefitChanged, showName);
    OnBroadcast(kNotifyFitShowDataPage, [this] {
        m_bDataPageWanted = true;
        RequestUpdate();
    });
    OnBroadcast(kNotifyFitMethodsLeft, settle);
    OnBroadcast(kNotifyFitAutomaticChanged, settle);
    for (const NotificationCode eCode :
         {kNotifyDataSelectionChanged, kNotifyPairingChanged, kNotifyRegionChanged}) {
        OnBroadcast(eCode, [this, eCode] { ChangeData(eCode); });
    }
    OnBroadcast(kNotifyRegionRecount, [this] { HandToPages(kNotifyRegionRecount); });
}

void CFitDialog::Settle() {
    m_pFit->Apply();
    RequestUpdate();
}

// The data page tells of a selection when it is shown, too: then nothing is another one.
void CFitDialog::ChangeData(NotificationCode eCode) {
    std::string sSelected = SelectedData();
    if (sSelected == m_sSelectedData) return;
    m_sSelectedData = std::move(sSelected);
    if (m_pFit->bSeedsAutomatic) m_pFit->bSeedsStale = true;
    HandToPages(eCode);
    RequestUpdate();
}

// The bytes of the record that say which points are fitted.
std::string CFitDialog::SelectedData() const {
    ZXADLG_DataOptions record = *m_pDataRecord;
    record.bExtrapolate = 0;
    record.uExtrapolationCursor = 0;
    const auto* pBytes = reinterpret_cast<const char*>(&record);
    return {pBytes + offsetof(ZXADLG_DataOptions, eDataGroup1SelectionMode),
            pBytes + sizeof record};
}

// What the data page tells its own observers, for the other pages.
void CFitDialog::HandToPages(int nCode) {
    for (const auto& pPage : m_vOptionsTabs) pPage->Notify(nullptr, 0, nCode, 0);
}

void CFitDialog::UpdateControls() {
    ShowName();
    ShowPicture();
    // Pages are exchanged and shown here alone: not while another one is being shown.
    ShowDataPage();
    CParentDialogBase::UpdateControls();
    if (!m_bDataPageWanted) return;
    m_bDataPageWanted = false;
    if (m_eDataForm != DataForm::kNone) SelectPage(kFitDataPage);
}

void CFitDialog::ShowName() {
    const auto fields = FitNameLine(*m_pFit, *m_pSeeds);
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (fields[i] == m_name[i]) continue;
        m_name[i] = fields[i];
        m_lblName.SetArg(static_cast<int>(i), fields[i].c_str());
    }
}

void CFitDialog::ShowPicture() {
    const bool bCustom = m_pFit->IsCustomFunction();
    ShowControls({&m_picture}, !bCustom);
    ShowControls({&m_lblHelp}, bCustom);
    const std::string sPicture = m_pFit->PictureName();
    if (sPicture == m_sPicture) return;
    m_sPicture = sPicture;
    m_picture.LoadMetafile(GetFrameworkInstance(), sPicture.c_str(), MM_ANISOTROPIC);
}
