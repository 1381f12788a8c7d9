// Time Shift: how traces are to be moved in time, by a fixed or a measured interval, or so that
// their peaks stand under each other.
#pragma once

#include "analysis/COptionsTabBase.h"
#include "analysis/OptionsDialog.h"
#include "analysis/SelectionControls.h"
#include "contract/CAnalysisOptionsInterfaceBase.h"
#include "framework/ADM_DoubleText.h"
#include "framework/ADM_StaticText.h"
#include "zxadlg/TimeShiftOptions.h"

class CTimeShiftOptionsInterface : public CAnalysisOptionsInterfaceBase {
  public:
    CTimeShiftOptionsInterface(ZXADLG_TimeShiftOptions* pRecord, ZXADLG_CDlgDataSource* pSource)
        : CAnalysisOptionsInterfaceBase(&pRecord->common, pSource), m_pRecord(pRecord) {}

    // Each mode is the index of its radio button.
    int GetAlignmentMode() const { return m_pRecord->eAlignmentMode; }
    void SetAlignmentMode(int eMode) { m_pRecord->eAlignmentMode = eMode; }
    int GetDirection() const { return m_pRecord->eDirection; }
    void SetDirection(int eDirection) { m_pRecord->eDirection = eDirection; }
    int GetValueMode() const { return m_pRecord->eValueMode; }
    void SetValueMode(int eMode) { m_pRecord->eValueMode = eMode; }
    int GetAdjustMode() const { return m_pRecord->eAdjustMode; }
    void SetAdjustMode(int eMode) { m_pRecord->eAdjustMode = eMode; }
    int GetPeakPolarity() const { return m_pRecord->ePeakPolarity; }
    void SetPeakPolarity(int ePolarity) { m_pRecord->ePeakPolarity = ePolarity; }
    // Region ids.
    int GetValueRegion() const { return m_pRecord->eValueRegion; }
    void SetValueRegion(int nId) { m_pRecord->eValueRegion = nId; }
    int GetSearchRegion() const { return m_pRecord->eSearchRegion; }
    void SetSearchRegion(int nId) { m_pRecord->eSearchRegion = nId; }
    // The group whose peaks are searched.
    std::uint32_t GetDataGroupIndex() const { return m_pRecord->uDataGroupIndex; }
    void SetDataGroupIndex(std::uint32_t u) { m_pRecord->uDataGroupIndex = u; }
    // ms
    double GetShiftValue() const { return m_pRecord->dShiftValue; }
    void SetShiftValue(double d) { m_pRecord->dShiftValue = d; }

  private:
    ZXADLG_TimeShiftOptions* m_pRecord;
};

class CTimeShiftOptionsTab : public COptionsTabBase {
  public:
    CTimeShiftOptionsTab(CTimeShiftOptionsInterface* pOptions, const ZXADLG_DlgParams* pParams,
                         CDataOptionsInterface* pData);

    BOOL OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) override;
    void ShowOptions() override;

  private:
    void ShowGroup();
    void CaptionGroup();
    void EnableByAlignment();
    void EnableByValue();
    bool ShiftsByInterval() { return m_radAlignment.GetSelected() == 0; }

    CTimeShiftOptionsInterface* m_pShift;
    CDataOptionsInterface* m_pData;
    ADM_RadioButtons m_radAlignment;
    ADM_Static m_grpDirection;
    ADM_RadioButtons m_radDirection;
    ADM_Static m_grpValue;
    ADM_RadioButtons m_radValue;
    ADM_DoubleText m_txtValue;
    CZxDlgRegionCombo m_cmbValueRegion;
    ADM_StaticText m_lblGroup;
    CZxDlgGroupCombo m_cmbGroup;
    ADM_Static m_lblSearchRegion;
    CZxDlgRegionCombo m_cmbSearchRegion;
    ADM_Static m_lblNote;
    ADM_Static m_grpPolarity;
    ADM_RadioButtons m_radPolarity;
    ADM_RadioButtons m_radAdjust;
};

class CTimeShiftDialog : public COptionsDialog<ZXADLG_TimeShiftOptions, CTimeShiftOptionsInterface,
                                               CTimeShiftOptionsTab> {
  public:
    CTimeShiftDialog(HWND hwndParent, ZXADLG_TimeShiftOptions* pOptions, ZXADLG_DataOptions* pData,
                     ZXADLG_CDlgDataSource* pSource, const ZXADLG_DlgParams* pParams);
};
