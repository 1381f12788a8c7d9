// Adjust Baseline: how a baseline is to be taken out of the traces, by the mean or the slope of a
// region, by a fixed value, or by hand.
#pragma once

#include "analysis/COptionsTabBase.h"
#include "analysis/OptionsDialog.h"
#include "analysis/SelectionControls.h"
#include "contract/CAnalysisOptionsInterfaceBase.h"
#include "framework/ADM_DoubleText.h"
#include "zxadlg/AdjustBaselineOptions.h"

class CAdjustBaselineOptionsInterface : public CAnalysisOptionsInterfaceBase {
  public:
    CAdjustBaselineOptionsInterface(ZXADLG_AdjustBaselineOptions* pRecord,
                                    ZXADLG_CDlgDataSource* pSource)
        : CAnalysisOptionsInterfaceBase(&pRecord->common, pSource), m_pRecord(pRecord) {}

    // The index of the radio button.
    int GetMode() const { return m_pRecord->eAdjustMode; }
    void SetMode(int eMode) { m_pRecord->eAdjustMode = eMode; }
    // A region id.
    int GetRegion() const { return m_pRecord->eValueRegion; }
    void SetRegion(int nId) { m_pRecord->eValueRegion = nId; }
    // In the units of the data.
    double GetFixedValue() const { return m_pRecord->dFixedValue; }
    void SetFixedValue(double d) { m_pRecord->dFixedValue = d; }

  private:
    ZXADLG_AdjustBaselineOptions* m_pRecord;
};

class CAdjustBaselineOptionsTab : public COptionsTabBase {
  public:
    CAdjustBaselineOptionsTab(CAdjustBaselineOptionsInterface* pOptions,
                              const ZXADLG_DlgParams* pParams, CDataOptionsInterface* pData);

    BOOL OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) override;
    void ShowOptions() override;

  private:
    void WithholdManualMethod();
    void EnableFields();

    CAdjustBaselineOptionsInterface* m_pAdjust;
    CDataOptionsInterface* m_pData;
    ADM_Static m_grpMethod;
    ADM_RadioButtons m_radMode;
    CZxDlgRegionCombo m_cmbRegion;
    ADM_DoubleText m_txtFixedValue;
};

class CAdjustBaselineDialog
    : public COptionsDialog<ZXADLG_AdjustBaselineOptions, CAdjustBaselineOptionsInterface,
                            CAdjustBaselineOptionsTab> {
  public:
    CAdjustBaselineDialog(HWND hwndParent, ZXADLG_AdjustBaselineOptions* pOptions,
                          ZXADLG_DataOptions* pData, ZXADLG_CDlgDataSource* pSource,
                          const ZXADLG_DlgParams* pParams);
};
