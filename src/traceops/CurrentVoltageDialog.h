// Current/Voltage: a plot whose x axis comes from the stimulus and whose y axis from the response.
// Applies to files with a stimulus waveform alone, except in deferred mode.
#pragma once

#include <memory>

#include "contract/CAnalysisOptionsInterfaceBase.h"
#include "framework/ADM_IntegerGaugeText.h"
#include "framework/ADM_Spinner.h"
#include "framework/ADM_StaticText.h"
#include "traceops/TraceIVDialogBase.h"
#include "zxadlg/CurrentVoltageOptions.h"

class CCurrentVoltageOptionsInterface : public CAnalysisOptionsInterfaceBase {
  public:
    CCurrentVoltageOptionsInterface(ZXADLG_CurrentVoltageOptions* pRecord,
                                    ZXADLG_CDlgDataSource* pSource)
        : CAnalysisOptionsInterfaceBase(&pRecord->common, pSource), m_pRecord(pRecord) {}

    int GetPeakRegion() const { return m_pRecord->ePeakRegion; }
    void SetPeakRegion(int nId) { m_pRecord->ePeakRegion = nId; }
    int GetPeakPolarity() const { return m_pRecord->ePeakPolarity; }
    void SetPeakPolarity(int e) { m_pRecord->ePeakPolarity = e; }
    int GetVoltageSource() const { return m_pRecord->eVoltageSource; }
    void SetVoltageSource(int e) { m_pRecord->eVoltageSource = e; }
    int GetCurrentSource() const { return m_pRecord->eCurrentSource; }
    void SetCurrentSource(int e) { m_pRecord->eCurrentSource = e; }
    int GetFixedEpoch() const { return m_pRecord->eFixedEpoch; }
    void SetFixedEpoch(int nCode) { m_pRecord->eFixedEpoch = nCode; }
    bool GetAllTraces() const { return m_pRecord->eSetSelectionMode == 1; }
    void SetAllTraces(bool b) { m_pRecord->eSetSelectionMode = b ? 1 : 0; }
    std::uint32_t GetWaveform() const { return m_pRecord->uWaveformIndex; }
    void SetWaveform(std::uint32_t u) { m_pRecord->uWaveformIndex = u; }
    std::uint32_t GetXGroup() const { return m_pRecord->uXDataGroupIndex; }
    void SetXGroup(std::uint32_t u) { m_pRecord->uXDataGroupIndex = u; }
    std::uint32_t GetYGroup() const { return m_pRecord->uYDataGroupIndex; }
    void SetYGroup(std::uint32_t u) { m_pRecord->uYDataGroupIndex = u; }
    std::uint32_t GetSmoothingPoints() const { return m_pRecord->uSmoothingPoints; }
    void SetSmoothingPoints(std::uint32_t u) { m_pRecord->uSmoothingPoints = u; }
    bool GetInvertX() const { return m_pRecord->bInvertX != 0; }
    void SetInvertX(bool b) { m_pRecord->bInvertX = b ? 1 : 0; }
    bool GetInvertY() const { return m_pRecord->bInvertY != 0; }
    void SetInvertY(bool b) { m_pRecord->bInvertY = b ? 1 : 0; }
    bool GetDoFilter() const { return m_pRecord->bDoFilter != 0; }
    void SetDoFilter(bool b) { m_pRecord->bDoFilter = b ? 1 : 0; }

  private:
    ZXADLG_CurrentVoltageOptions* m_pRecord;
};

class CCurrentVoltageDialog : public CTraceIVDialogBase {
  public:
    // Everything but hwndParent outlives the dialog; pData is the host's own record.
    CCurrentVoltageDialog(HWND hwndParent, ZXADLG_CurrentVoltageOptions* pOptions,
                          ZXADLG_DataOptions* pData, ZXADLG_CDlgDataSource* pSource,
                          const ZXADLG_DlgParams* pParams);

    BOOL OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) override;

  private:
    void BindEvents();
    void ShowOptions() override;
    void ShowLabels();
    void EnableX();
    void EnableY();
    void EnableSmoothing();

    ZXADLG_CurrentVoltageOptions* m_pRecord;
    std::unique_ptr<CCurrentVoltageOptionsInterface> m_pIV;

    ADM_RadioButtons m_radVoltage;
    CZxDlgFixedEpochCombo m_cmbEpoch;
    ADM_RadioButtons m_radTraces;
    ADM_Static m_lblGroup;
    ADM_RadioButtons m_radCurrent;
    ADM_RadioButtons m_radPolarity;
    ADM_StaticText m_lblRegion;
    CZxDlgRegionCombo m_cmbRegion;
    ADM_Button m_chkSmooth;
    ADM_IntegerGaugeText m_txtSmoothing;
    ADM_Spinner m_spnSmoothing;
};
