// Force Values: how a region of the traces is to be overwritten, with the value at a cursor, a
// mean, a straight line or a fixed value. Its data tab offers "Force excluded region to zero".
#pragma once

#include "analysis/COptionsTabBase.h"
#include "analysis/OptionsDialog.h"
#include "analysis/SelectionControls.h"
#include "contract/CAnalysisOptionsInterfaceBase.h"
#include "framework/ADM_DoubleText.h"
#include "zxadlg/ForceValuesOptions.h"

class CForceValuesOptionsInterface : public CAnalysisOptionsInterfaceBase {
  public:
    CForceValuesOptionsInterface(ZXADLG_ForceValuesOptions* pRecord, ZXADLG_CDlgDataSource* pSource)
        : CAnalysisOptionsInterfaceBase(&pRecord->common, pSource), m_pRecord(pRecord) {}

    // The index of the radio button.
    int GetMode() const { return m_pRecord->eForceValuesMode; }
    void SetMode(int eMode) { m_pRecord->eForceValuesMode = eMode; }
    // A region id.
    int GetRegion() const { return m_pRecord->eRegionToForce; }
    void SetRegion(int nId) { m_pRecord->eRegionToForce = nId; }
    // In the units of the data.
    double GetFixedValue() const { return m_pRecord->dFixedValue; }
    void SetFixedValue(double d) { m_pRecord->dFixedValue = d; }

  private:
    ZXADLG_ForceValuesOptions* m_pRecord;
};

class CForceValuesOptionsTab : public COptionsTabBase {
  public:
    CForceValuesOptionsTab(CForceValuesOptionsInterface* pOptions, const ZXADLG_DlgParams* pParams,
                           CDataOptionsInterface* pData);

    BOOL OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) override;
    void ShowOptions() override;

    // The caption of the fixed value names the units of the current group.
    void ShowUnits();

  private:
    void EnableFixedValue();

    CForceValuesOptionsInterface* m_pForce;
    CDataOptionsInterface* m_pData;
    CZxDlgRegionCombo m_cmbRegion;
    ADM_RadioButtons m_radMode;
    ADM_DoubleText m_txtFixedValue;
};

class CForceValuesDialog
    : public COptionsDialog<ZXADLG_ForceValuesOptions, CForceValuesOptionsInterface,
                            CForceValuesOptionsTab> {
  public:
    CForceValuesDialog(HWND hwndParent, ZXADLG_ForceValuesOptions* pOptions,
                       ZXADLG_DataOptions* pData, ZXADLG_CDlgDataSource* pSource,
                       const ZXADLG_DlgParams* pParams);

    // Follows the selection of data as an observer of the data interface.
    void Notify(ADM_Wnd* pSender, int nId, int nCode, int nData) override;
    BOOL OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) override;
};
