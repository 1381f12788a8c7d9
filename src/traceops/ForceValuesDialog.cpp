#include "traceops/ForceValuesDialog.h"

#include "ZXADLG.h"
#include "framework/ADM_DoubleText.h"
#include "ids.h"
#include "widgets/TextFormat.h"

namespace {

using Record = ZXADLG_ForceValuesOptions;

constexpr int kFixedValue = 4;  // the index of its radio button

class CForceValuesOptionsTab : public COptionsTab<Record> {
  public:
    CForceValuesOptionsTab(Options* pOptions, const ZXADLG_DlgParams* pParams,
                           CDataOptionsInterface* pData)
        : COptionsTab(pOptions, pParams, pData, IDD_FORCE_VALUES_OPTIONS) {
        Bind(IDC_FORCE_REGION, m_cmbRegion, &Record::eRegionToForce);
        BindRadios({IDC_FORCE_CURSOR_VALUE, IDC_FORCE_MEAN_1_2, IDC_FORCE_MEAN_3_4, IDC_FORCE_LINE,
                    IDC_FORCE_FIXED_VALUE},
                   m_radMode, &Record::eForceValuesMode);
        Bind(IDC_FORCE_VALUE, m_txtFixedValue, &Record::dFixedValue);
        m_txtFixedValue.SetSigDigits(5);
        // The units are those of the selected data.
        pData->AddObserver(this);
        OnBroadcast(kNotifyDataSelectionChanged, [this] { RequestUpdate(); });
    }

    void UpdateControls() override {
        COptionsTab::UpdateControls();
        EnableControls({&m_txtFixedValue}, m_radMode.GetSelected() == kFixedValue);
        const auto nSet = static_cast<std::int32_t>(m_pData->GetSelectedDataSet() - 1);
        const char* szUnits = Source()->GetUnits(m_pData->GetGroup(), nSet);
        char szCaption[256];
        FormatArgs(m_hInstance, szCaption, MAKEINTRESOURCEA(IDS_FIXED_VALUE), &szUnits);
        m_radMode.SetButtonText(kFixedValue, szCaption);
    }

  private:
    bool SetUp() override {
        m_cmbRegion.Fill(Source());
        return true;
    }

    CZxDlgRegionCombo m_cmbRegion;
    ADM_RadioButtons m_radMode;
    ADM_DoubleText m_txtFixedValue;
};

}  // namespace

CForceValuesDialog::CForceValuesDialog(HWND hwndParent, ZXADLG_ForceValuesOptions* pOptions,
                                       ZXADLG_DataOptions* pData, ZXADLG_CDlgDataSource* pSource,
                                       const ZXADLG_DlgParams* pParams)
    : CParentDialogBase(hwndParent, pData, pSource, pParams, IDD_FORCE_VALUES, IDC_TABS) {
    // The region is chosen on the options tab, so that the data tab offers none.
    BuildTabs<CForceValuesOptionsTab>(
        pOptions,
        {.bAllowForceToZero = 1, .bAllowRegion = 0, .bShowGroups = pParams->bShowGroupSelector});
}
