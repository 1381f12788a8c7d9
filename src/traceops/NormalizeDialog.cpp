#include "traceops/NormalizeDialog.h"

#include "framework/ADM_StaticText.h"
#include "ids.h"

namespace {

using Record = ZXADLG_NormalizeOptions;

class CNormalizeOptionsTab : public COptionsTab<Record> {
  public:
    CNormalizeOptionsTab(Options* pOptions, const ZXADLG_DlgParams* pParams,
                         CDataOptionsInterface* pData)
        : COptionsTab(pOptions, pParams, pData, IDD_NORMALIZE_OPTIONS) {
        // Required as it stands, against the sense of the captions: the stored value is the index
        // of the button, so that a stored "use all points" shows as "Use specified regions".
        BindRadios({IDC_NORMALIZE_ALL_POINTS, IDC_NORMALIZE_REGIONS}, m_radMethod,
                   &Record::bUseAllPoints);
        Label(IDC_NORMALIZE_BASELINE_LABEL, m_lblBaseline);
        Bind(IDC_NORMALIZE_BASELINE, m_cmbBaseline, &Record::eBaselineRegion).Corrects();
        Label(IDC_NORMALIZE_BASELINE_COUNT, m_lblBaselineCount);
        Label(IDC_NORMALIZE_PEAK_LABEL, m_lblPeak);
        Bind(IDC_NORMALIZE_PEAK, m_cmbPeak, &Record::ePeakRegion).Corrects();
        Label(IDC_NORMALIZE_PEAK_COUNT, m_lblPeakCount);
    }

    void UpdateControls() override {
        COptionsTab::UpdateControls();
        ShowCount(m_lblBaselineCount, m_pRecord->eBaselineRegion);
        ShowCount(m_lblPeakCount, m_pRecord->ePeakRegion);
        EnableControls({&m_lblBaseline, &m_cmbBaseline, &m_lblBaselineCount, &m_lblPeak, &m_cmbPeak,
                        &m_lblPeakCount},
                       m_radMethod.GetSelected() == 1);
    }

  private:
    bool SetUp() override {
        m_cmbBaseline.Fill(Source());
        m_cmbPeak.Fill(Source());
        return true;
    }
    void ShowCount(ADM_StaticText& lbl, std::uint32_t uRegionId) {
        const auto nRegionId = static_cast<int>(uRegionId);
        lbl.SetArgLong(0, static_cast<LONG>(m_pData->GetPointCountInRegion(nRegionId)));
    }

    ADM_RadioButtons m_radMethod;
    ADM_Static m_lblBaseline, m_lblPeak;
    CZxDlgRegionCombo m_cmbBaseline, m_cmbPeak;
    ADM_StaticText m_lblBaselineCount, m_lblPeakCount;
};

}  // namespace

CNormalizeDialog::CNormalizeDialog(HWND hwndParent, ZXADLG_NormalizeOptions* pOptions,
                                   ZXADLG_DataOptions* pData, ZXADLG_CDlgDataSource* pSource,
                                   const ZXADLG_DlgParams* pParams)
    : CParentDialogBase(hwndParent, pData, pSource, pParams, IDD_NORMALIZE, IDC_TABS) {
    // The regions are chosen on the options tab, so that the data tab offers none.
    BuildTabs<CNormalizeOptionsTab>(
        pOptions, {.bAllowRegion = 0, .bShowGroups = pParams->bShowGroupSelector});
}
