#include "traceops/AdjustBaselineDialog.h"

#include "framework/ADM_DoubleText.h"
#include "ids.h"

namespace {

using Record = ZXADLG_AdjustBaselineOptions;

// The indices of the radio buttons are the modes.
enum AdjustMode { kMean = 0, kSlope = 1, kFixedValue = 2, kByHand = 3 };

constexpr LONG kRowUnits = 18;  // from the third method down to the fourth

class CAdjustBaselineOptionsTab : public COptionsTab<Record> {
  public:
    CAdjustBaselineOptionsTab(Options* pOptions, const ZXADLG_DlgParams* pParams,
                              CDataOptionsInterface* pData)
        : COptionsTab(pOptions, pParams, pData, IDD_ADJUST_BASELINE_OPTIONS) {
        Label(IDC_BASELINE_METHOD, m_grpMethod);
        BindRadios(
            {IDC_BASELINE_MEAN, IDC_BASELINE_SLOPE, IDC_BASELINE_FIXED_VALUE, IDC_BASELINE_BY_HAND},
            m_radMode, &Record::eAdjustMode);
        Bind(IDC_BASELINE_REGION, m_cmbRegion, &Record::eValueRegion).Corrects();
        Bind(IDC_BASELINE_VALUE, m_txtFixedValue, &Record::dFixedValue);
        m_txtFixedValue.SetSigDigits(5);
    }

    void UpdateControls() override {
        COptionsTab::UpdateControls();
        const int eMode = m_radMode.GetSelected();
        EnableControls({&m_txtFixedValue}, eMode == kFixedValue);
        EnableControls({&m_cmbRegion}, eMode == kMean || eMode == kSlope);
    }

  private:
    bool SetUp() override {
        m_cmbRegion.Fill(Source());
        if (m_pParams->bAdjustBaselineFourthMethod == 0) WithholdManualMethod();
        return true;
    }

    // A stored manual method stays, with no button to show it.
    void WithholdManualMethod() {
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

    ADM_Static m_grpMethod;
    ADM_RadioButtons m_radMode;
    CZxDlgRegionCombo m_cmbRegion;
    ADM_DoubleText m_txtFixedValue;
};

}  // namespace

CAdjustBaselineDialog::CAdjustBaselineDialog(HWND hwndParent,
                                             ZXADLG_AdjustBaselineOptions* pOptions,
                                             ZXADLG_DataOptions* pData,
                                             ZXADLG_CDlgDataSource* pSource,
                                             const ZXADLG_DlgParams* pParams)
    : CParentDialogBase(hwndParent, pData, pSource, pParams, IDD_ADJUST_BASELINE, IDC_TABS) {
    // The region is chosen on the options tab, so that the data tab offers none.
    BuildTabs<CAdjustBaselineOptionsTab>(
        pOptions, {.bAllowRegion = 0, .bShowGroups = pParams->bShowGroupSelector});
}
