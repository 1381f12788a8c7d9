// Normalize: how traces are to be normalised, over all their points or between a baseline region
// and a peak region. The smallest whole dialog, and the model of its family.
#pragma once

#include "analysis/COptionsTabBase.h"
#include "analysis/OptionsDialog.h"
#include "analysis/SelectionControls.h"
#include "contract/CAnalysisOptionsInterfaceBase.h"
#include "framework/ADM_StaticText.h"
#include "zxadlg/NormalizeOptions.h"

class CNormalizeOptionsInterface : public CAnalysisOptionsInterfaceBase {
  public:
    CNormalizeOptionsInterface(ZXADLG_NormalizeOptions* pRecord, ZXADLG_CDlgDataSource* pSource)
        : CAnalysisOptionsInterfaceBase(&pRecord->common, pSource), m_pRecord(pRecord) {}

    bool GetUseAllPoints() const { return m_pRecord->bUseAllPoints != 0; }
    void SetUseAllPoints(bool b) { m_pRecord->bUseAllPoints = b ? 1 : 0; }
    // Region ids.
    int GetBaselineRegion() const { return static_cast<int>(m_pRecord->eBaselineRegion); }
    void SetBaselineRegion(int nId) {
        m_pRecord->eBaselineRegion = static_cast<std::uint32_t>(nId);
    }
    int GetPeakRegion() const { return static_cast<int>(m_pRecord->ePeakRegion); }
    void SetPeakRegion(int nId) { m_pRecord->ePeakRegion = static_cast<std::uint32_t>(nId); }

  private:
    ZXADLG_NormalizeOptions* m_pRecord;
};

class CNormalizeOptionsTab : public COptionsTabBase {
  public:
    CNormalizeOptionsTab(CNormalizeOptionsInterface* pOptions, const ZXADLG_DlgParams* pParams,
                         CDataOptionsInterface* pData);

    BOOL OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) override;
    BOOL OnPageShow() override;
    void ShowOptions() override;

  private:
    void ShowCounts();
    void EnableRegions();

    CNormalizeOptionsInterface* m_pNormalize;
    CDataOptionsInterface* m_pData;
    ADM_RadioButtons m_radMethod;
    ADM_Static m_lblBaseline;
    CZxDlgRegionCombo m_cmbBaseline;
    ADM_StaticText m_lblBaselineCount;
    ADM_Static m_lblPeak;
    CZxDlgRegionCombo m_cmbPeak;
    ADM_StaticText m_lblPeakCount;
};

class CNormalizeDialog : public COptionsDialog<ZXADLG_NormalizeOptions, CNormalizeOptionsInterface,
                                               CNormalizeOptionsTab> {
  public:
    CNormalizeDialog(HWND hwndParent, ZXADLG_NormalizeOptions* pOptions, ZXADLG_DataOptions* pData,
                     ZXADLG_CDlgDataSource* pSource, const ZXADLG_DlgParams* pParams);
};
