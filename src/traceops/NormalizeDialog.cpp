#include "traceops/NormalizeDialog.h"

#include "analysis/CUnitaryDataTab.h"
#include "analysis/DialogMessages.h"
#include "framework/UpdateScope.h"
#include "ids.h"

// --- Options tab: controls
// ------------------------------------------------------------------------

CNormalizeOptionsTab::CNormalizeOptionsTab(CNormalizeOptionsInterface* pOptions,
                                           const ZXADLG_DlgParams* pParams,
                                           CDataOptionsInterface* pData)
    : COptionsTabBase(pOptions, pParams, IDD_NORMALIZE_OPTIONS, IDS_TAB_OPTIONS),
      m_pNormalize(pOptions),
      m_pData(pData) {
    // Required as it stands, against the sense of the captions: the stored value is the index of
    // the button, so that a stored "use all points" shows as "Use specified regions", the second
    // one.
    constexpr int kUseAllPoints[] = {1, 0};
    m_radMethod.Setup(this, IDC_NORMALIZE_REGIONS, IDC_NORMALIZE_ALL_POINTS, 2, kUseAllPoints);
    RegisterControl(IDC_NORMALIZE_BASELINE_LABEL, &m_lblBaseline);
    RegisterControl(IDC_NORMALIZE_BASELINE, &m_cmbBaseline);
    RegisterControl(IDC_NORMALIZE_BASELINE_COUNT, &m_lblBaselineCount);
    RegisterControl(IDC_NORMALIZE_PEAK_LABEL, &m_lblPeak);
    RegisterControl(IDC_NORMALIZE_PEAK, &m_cmbPeak);
    RegisterControl(IDC_NORMALIZE_PEAK_COUNT, &m_lblPeakCount);
}

BOOL CNormalizeOptionsTab::OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) {
    const BOOL bResult = COptionsTabBase::OnInitDialog(hWnd, hFocus, lParam);
    m_cmbBaseline.Fill(m_pData->GetDataSource());
    m_cmbPeak.Fill(m_pData->GetDataSource());
    // A region that the data do not have becomes the one that is shown in its place.
    m_cmbBaseline.SelectById(m_pNormalize->GetBaselineRegion());
    m_cmbPeak.SelectById(m_pNormalize->GetPeakRegion());
    m_pNormalize->SetBaselineRegion(m_cmbBaseline.GetRegionId());
    m_pNormalize->SetPeakRegion(m_cmbPeak.GetRegionId());
    ShowOptions();
    m_bReady = true;
    return bResult;
}

// --- Options tab: display
// -------------------------------------------------------------------------

void CNormalizeOptionsTab::ShowOptions() {
    const UpdateScope updating(m_bUpdating);
    m_cmbBaseline.SelectById(m_pNormalize->GetBaselineRegion());
    m_cmbPeak.SelectById(m_pNormalize->GetPeakRegion());
    ShowCounts();
    m_radMethod.SetValue(m_pNormalize->GetUseAllPoints() ? 1 : 0);
    EnableRegions();
}

void CNormalizeOptionsTab::ShowCounts() {
    const auto count = [this](int nRegionId) {
        return static_cast<LONG>(m_pData->GetPointCountInRegion(nRegionId));
    };
    m_lblBaselineCount.SetArgLong(0, count(m_pNormalize->GetBaselineRegion()));
    m_lblPeakCount.SetArgLong(0, count(m_pNormalize->GetPeakRegion()));
}

BOOL CNormalizeOptionsTab::OnPageShow() {
    // The selection of data may have changed on the other tab.
    ShowCounts();
    return COptionsTabBase::OnPageShow();
}

// --- Options tab: enabling
// ------------------------------------------------------------------------

void CNormalizeOptionsTab::EnableRegions() {
    const BOOL bRegions = m_radMethod.GetValue() != 0;
    for (ADM_Wnd* pControl :
         {static_cast<ADM_Wnd*>(&m_lblBaseline), static_cast<ADM_Wnd*>(&m_cmbBaseline),
          static_cast<ADM_Wnd*>(&m_lblBaselineCount), static_cast<ADM_Wnd*>(&m_lblPeak),
          static_cast<ADM_Wnd*>(&m_cmbPeak), static_cast<ADM_Wnd*>(&m_lblPeakCount)}) {
        pControl->Enable(bRegions);
    }
}

// --- Options tab: events
// --------------------------------------------------------------------------

void CNormalizeOptionsTab::Notify(ADM_Wnd* pSender, int nId, int nCode, int nData) {
    if (m_bReady && m_bReadOnly && m_bUpdating == 0) ShowOptions();
    COptionsTabBase::Notify(pSender, nId, nCode, nData);
    if (IgnoresEvents() || m_bUpdating != 0) return;
    if (pSender == &m_radMethod && nCode == ADMN_CLICKED) {
        EnableRegions();
        m_pNormalize->SetUseAllPoints(m_radMethod.GetValue() != 0);
    } else if (pSender == &m_cmbBaseline && nCode == ADMN_COMBOSELCHANGE) {
        m_pNormalize->SetBaselineRegion(m_cmbBaseline.GetRegionId());
        ShowCounts();
    } else if (pSender == &m_cmbPeak && nCode == ADMN_COMBOSELCHANGE) {
        m_pNormalize->SetPeakRegion(m_cmbPeak.GetRegionId());
        ShowCounts();
    }
}

// --- Dialog
// ---------------------------------------------------------------------------------------

int CNormalizeDialog::s_nLastTab = 0;

CNormalizeDialog::CNormalizeDialog(HWND hwndParent, ZXADLG_NormalizeOptions* pOptions,
                                   ZXADLG_DataOptions* pData, ZXADLG_CDlgDataSource* pSource,
                                   const ZXADLG_DlgParams* pParams)
    : CParentDialogBase(hwndParent, pData, pSource, pParams, IDD_NORMALIZE, IDC_TABS) {
    // The regions are chosen on the options tab, so that the data tab offers none.
    *m_pFlags = {.bAllowRegion = 0, .bShowGroups = pParams->bShowGroupSelector};
    m_pDataOptions = std::make_unique<CDataOptionsInterface>(pData, pSource, m_pFlags.get());
    m_pOptions = std::make_unique<CNormalizeOptionsInterface>(pOptions, pSource);
    m_pOptionsTab =
        std::make_unique<CNormalizeOptionsTab>(m_pOptions.get(), pParams, m_pDataOptions.get());
    AddPage(m_pOptionsTab.get());
    if (m_bUseDataOptions) {
        m_pDataTab =
            std::make_unique<CUnitaryDataTab>(m_pDataOptions.get(), IDD_UNITARY_DATA, m_bReadOnly);
        AddPage(m_pDataTab.get());
    }
}

CNormalizeDialog::~CNormalizeDialog() = default;

BOOL CNormalizeDialog::OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) {
    CParentDialogBase::OnInitDialog(hWnd, hFocus, lParam);
    if (m_bInitFailed) return FailInitialization();
    m_pOptionsTab->ShowOptions();
    return FinishInitialization(s_nLastTab);
}

void CNormalizeDialog::OnOK() {
    s_nLastTab = GetCurrentPageIndex();
    CParentDialogBase::OnOK();
}
