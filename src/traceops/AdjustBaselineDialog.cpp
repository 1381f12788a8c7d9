#include "traceops/AdjustBaselineDialog.h"

#include "ids.h"

namespace {

// The indices of the radio buttons are the modes.
enum AdjustMode { kMean = 0, kSlope = 1, kFixedValue = 2, kByHand = 3 };

constexpr LONG kRowUnits = 18;  // from the third method down to the fourth

}  // namespace

// --- Options tab: controls -------------------------------------------------------------------

CAdjustBaselineOptionsTab::CAdjustBaselineOptionsTab(CAdjustBaselineOptionsInterface* pOptions,
                                                     const ZXADLG_DlgParams* pParams,
                                                     CDataOptionsInterface* pData)
    : COptionsTabBase(pOptions, pParams, IDD_ADJUST_BASELINE_OPTIONS, IDS_TAB_OPTIONS),
      m_pAdjust(pOptions),
      m_pData(pData) {
    RegisterControl(IDC_BASELINE_METHOD, &m_grpMethod);
    m_radMode.Setup(this, IDC_BASELINE_MEAN, IDC_BASELINE_BY_HAND);
    RegisterControl(IDC_BASELINE_REGION, &m_cmbRegion);
    RegisterControl(IDC_BASELINE_VALUE, &m_txtFixedValue);
    m_txtFixedValue.SetSigDigits(5);

    On(&m_radMode, ADMN_CLICKED, [this] {
        m_pAdjust->SetMode(m_radMode.GetSelected());
        EnableFields();
    });
    On(&m_cmbRegion, ADMN_COMBOSELCHANGE,
       [this] { m_pAdjust->SetRegion(m_cmbRegion.GetRegionId()); });
    On(&m_txtFixedValue, ADMN_TEXTCHANGE,
       [this] { m_pAdjust->SetFixedValue(m_txtFixedValue.GetValue()); });
}

BOOL CAdjustBaselineOptionsTab::OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) {
    COptionsTabBase::OnInitDialog(hWnd, hFocus, lParam);
    m_cmbRegion.Fill(m_pData->GetDataSource());
    // A region that the data do not have becomes the one that is shown in its place.
    m_pAdjust->SetRegion(m_cmbRegion.SelectOffered(m_pAdjust->GetRegion()));
    if (m_pParams->bAdjustBaselineFourthMethod == 0) WithholdManualMethod();
    return FinishInitialization();
}

// --- Options tab: display --------------------------------------------------------------------

void CAdjustBaselineOptionsTab::ShowOptions() {
    SelectButton(m_radMode, m_pAdjust->GetMode());
    m_txtFixedValue.SetValue(m_pAdjust->GetFixedValue());
    m_cmbRegion.SelectById(m_pAdjust->GetRegion());
    EnableFields();
}

// A stored manual method stays, with no button to show it.
void CAdjustBaselineOptionsTab::WithholdManualMethod() {
    m_radMode.ShowButton(kByHand, SW_HIDE);
    // The frame ends below the last method that shows.
    RECT rcRow = {0, 0, 0, kRowUnits};
    MapDialogRect(m_hWnd, &rcRow);
    RECT rcFrame;
    m_grpMethod.GetWindowRect(&rcFrame);
    SetWindowPos(m_grpMethod.GetHandle(), nullptr, 0, 0, rcFrame.right - rcFrame.left,
                 rcFrame.bottom - rcFrame.top - rcRow.bottom,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

// --- Options tab: enabling -------------------------------------------------------------------

void CAdjustBaselineOptionsTab::EnableFields() {
    const int eMode = m_radMode.GetSelected();
    m_txtFixedValue.Enable(eMode == kFixedValue);
    m_cmbRegion.Enable(eMode == kMean || eMode == kSlope);
}

// --- Dialog ----------------------------------------------------------------------------------

CAdjustBaselineDialog::CAdjustBaselineDialog(HWND hwndParent,
                                             ZXADLG_AdjustBaselineOptions* pOptions,
                                             ZXADLG_DataOptions* pData,
                                             ZXADLG_CDlgDataSource* pSource,
                                             const ZXADLG_DlgParams* pParams)
    // The region is chosen on the options tab, so that the data tab offers none.
    : COptionsDialog(hwndParent, pOptions, pData, pSource, pParams, IDD_ADJUST_BASELINE,
                     {.bAllowRegion = 0, .bShowGroups = pParams->bShowGroupSelector}) {}
