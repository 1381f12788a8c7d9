#include "traceops/NormalizeDialog.h"

#include "ids.h"

// --- Options tab: controls -------------------------------------------------------------------

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

    On(&m_radMethod, ADMN_CLICKED, [this] {
        EnableRegions();
        m_pNormalize->SetUseAllPoints(m_radMethod.GetValue() != 0);
    });
    On(&m_cmbBaseline, ADMN_COMBOSELCHANGE, [this] {
        m_pNormalize->SetBaselineRegion(m_cmbBaseline.GetRegionId());
        ShowCounts();
    });
    On(&m_cmbPeak, ADMN_COMBOSELCHANGE, [this] {
        m_pNormalize->SetPeakRegion(m_cmbPeak.GetRegionId());
        ShowCounts();
    });
}

BOOL CNormalizeOptionsTab::OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) {
    COptionsTabBase::OnInitDialog(hWnd, hFocus, lParam);
    m_cmbBaseline.Fill(m_pData->GetDataSource());
    m_cmbPeak.Fill(m_pData->GetDataSource());
    // A region that the data do not have becomes the one that is shown in its place.
    m_pNormalize->SetBaselineRegion(m_cmbBaseline.SelectOffered(m_pNormalize->GetBaselineRegion()));
    m_pNormalize->SetPeakRegion(m_cmbPeak.SelectOffered(m_pNormalize->GetPeakRegion()));
    return FinishInitialization();
}

// --- Options tab: display --------------------------------------------------------------------

void CNormalizeOptionsTab::ShowOptions() {
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

// --- Options tab: enabling -------------------------------------------------------------------

void CNormalizeOptionsTab::EnableRegions() {
    const BOOL bRegions = m_radMethod.GetValue() != 0;
    for (ADM_Wnd* pControl :
         {static_cast<ADM_Wnd*>(&m_lblBaseline), static_cast<ADM_Wnd*>(&m_cmbBaseline),
          static_cast<ADM_Wnd*>(&m_lblBaselineCount), static_cast<ADM_Wnd*>(&m_lblPeak),
          static_cast<ADM_Wnd*>(&m_cmbPeak), static_cast<ADM_Wnd*>(&m_lblPeakCount)}) {
        pControl->Enable(bRegions);
    }
}

// --- Dialog ----------------------------------------------------------------------------------

CNormalizeDialog::CNormalizeDialog(HWND hwndParent, ZXADLG_NormalizeOptions* pOptions,
                                   ZXADLG_DataOptions* pData, ZXADLG_CDlgDataSource* pSource,
                                   const ZXADLG_DlgParams* pParams)
    // The regions are chosen on the options tab, so that the data tab offers none.
    : COptionsDialog(hwndParent, pOptions, pData, pSource, pParams, IDD_NORMALIZE,
                     {.bAllowRegion = 0, .bShowGroups = pParams->bShowGroupSelector}) {}
