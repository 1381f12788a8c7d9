#include "traceops/ForceValuesDialog.h"

#include "ZXADLG.h"
#include "contract/NotificationCodes.h"
#include "ids.h"
#include "widgets/TextFormat.h"

namespace {

// The indices of the radio buttons are the modes.
constexpr int kFixedValue = 4;

}  // namespace

// --- Options tab: controls -------------------------------------------------------------------

CForceValuesOptionsTab::CForceValuesOptionsTab(CForceValuesOptionsInterface* pOptions,
                                               const ZXADLG_DlgParams* pParams,
                                               CDataOptionsInterface* pData)
    : COptionsTabBase(pOptions, pParams, IDD_FORCE_VALUES_OPTIONS, IDS_TAB_OPTIONS),
      m_pForce(pOptions),
      m_pData(pData) {
    RegisterControl(IDC_FORCE_REGION, &m_cmbRegion);
    m_radMode.Setup(this, IDC_FORCE_CURSOR_VALUE, IDC_FORCE_FIXED_VALUE);
    RegisterControl(IDC_FORCE_VALUE, &m_txtFixedValue);
    m_txtFixedValue.SetSigDigits(5);

    On(&m_radMode, ADMN_CLICKED, [this] {
        m_pForce->SetMode(m_radMode.GetSelected());
        EnableFixedValue();
    });
    On(&m_cmbRegion, ADMN_COMBOSELCHANGE,
       [this] { m_pForce->SetRegion(m_cmbRegion.GetRegionId()); });
    On(&m_txtFixedValue, ADMN_TEXTCHANGE,
       [this] { m_pForce->SetFixedValue(m_txtFixedValue.GetValue()); });
}

BOOL CForceValuesOptionsTab::OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) {
    COptionsTabBase::OnInitDialog(hWnd, hFocus, lParam);
    m_cmbRegion.Fill(m_pData->GetDataSource());
    return FinishInitialization();
}

// --- Options tab: display --------------------------------------------------------------------

void CForceValuesOptionsTab::ShowOptions() {
    m_cmbRegion.SelectById(m_pForce->GetRegion());
    SelectButton(m_radMode, m_pForce->GetMode());
    m_txtFixedValue.SetValue(m_pForce->GetFixedValue());
    EnableFixedValue();
    ShowUnits();
}

void CForceValuesOptionsTab::ShowUnits() {
    const auto nSet = static_cast<std::int32_t>(m_pData->GetSelectedDataSet() - 1);
    const char* szUnits = m_pData->GetDataSource()->GetUnits(m_pData->GetGroup(), nSet);
    char szCaption[256];
    FormatArgs(m_hInstance, szCaption, MAKEINTRESOURCEA(IDS_FIXED_VALUE), &szUnits);
    m_radMode.SetButtonText(kFixedValue, szCaption);
}

// --- Options tab: enabling -------------------------------------------------------------------

void CForceValuesOptionsTab::EnableFixedValue() {
    m_txtFixedValue.Enable(m_radMode.GetSelected() == kFixedValue);
}

// --- Dialog ----------------------------------------------------------------------------------

CForceValuesDialog::CForceValuesDialog(HWND hwndParent, ZXADLG_ForceValuesOptions* pOptions,
                                       ZXADLG_DataOptions* pData, ZXADLG_CDlgDataSource* pSource,
                                       const ZXADLG_DlgParams* pParams)
    // The region is chosen on the options tab, so that the data tab offers none.
    : COptionsDialog(
          hwndParent, pOptions, pData, pSource, pParams, IDD_FORCE_VALUES,
          {.bAllowForceToZero = 1, .bAllowRegion = 0, .bShowGroups = pParams->bShowGroupSelector}) {
    m_pDataOptions->AddObserver(this);
}

BOOL CForceValuesDialog::OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) {
    const BOOL bResult = COptionsDialog::OnInitDialog(hWnd, hFocus, lParam);
    // The data tab may have put its group in force after the options tab was shown.
    m_pOptionsTab->ShowUnits();
    return bResult;
}

void CForceValuesDialog::Notify(ADM_Wnd* pSender, int nId, int nCode, int nData) {
    COptionsDialog::Notify(pSender, nId, nCode, nData);
    if (m_bReady && nCode == kNotifyDataSelectionChanged) m_pOptionsTab->ShowUnits();
}
