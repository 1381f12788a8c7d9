// Leak Subtraction: the waveform, the factor between units and the passive resistance from which
// the host computes a leak current.
#pragma once

#include "analysis/COptionsTabBase.h"
#include "analysis/OptionsDialog.h"
#include "analysis/SelectionControls.h"
#include "contract/CAnalysisOptionsInterfaceBase.h"
#include "framework/ADM_DoubleText.h"
#include "zxadlg/LeakSubtractionOptions.h"

class CLeakSubtractOptionsInterface : public CAnalysisOptionsInterfaceBase {
  public:
    CLeakSubtractOptionsInterface(ZXADLG_LeakSubtractionOptions* pRecord,
                                  ZXADLG_CDlgDataSource* pSource)
        : CAnalysisOptionsInterfaceBase(&pRecord->common, pSource), m_pRecord(pRecord) {}

    // Megohms.
    double GetPassiveResistance() const { return m_pRecord->dPassiveResistance; }
    void SetPassiveResistance(double d) { m_pRecord->dPassiveResistance = d; }
    double GetConversionFactor() const { return m_pRecord->dConversionFactor; }
    // Required: the factor goes through single precision, so that 0.001 comes back as another
    // number, which is none of the offered factors.
    void SetConversionFactor(double d) { m_pRecord->dConversionFactor = static_cast<float>(d); }
    // The number of a waveform.
    std::uint32_t GetWaveformIndex() const { return m_pRecord->uWaveformIndex; }
    void SetWaveformIndex(std::uint32_t u) { m_pRecord->uWaveformIndex = u; }

  private:
    ZXADLG_LeakSubtractionOptions* m_pRecord;
};

class CLeakSubtractionOptionsTab : public COptionsTabBase {
  public:
    CLeakSubtractionOptionsTab(CLeakSubtractOptionsInterface* pOptions,
                               const ZXADLG_DlgParams* pParams, CDataOptionsInterface* pData);

    BOOL OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) override;
    void ShowOptions() override;

  private:
    CLeakSubtractOptionsInterface* m_pLeak;
    CDataOptionsInterface* m_pData;
    CZxDlgWaveformCombo m_cmbWaveform;
    CZxDlgConversionFactorCombo m_cmbFactor;
    ADM_DoubleText m_txtResistance;
};

class CLeakSubtractionDialog
    : public COptionsDialog<ZXADLG_LeakSubtractionOptions, CLeakSubtractOptionsInterface,
                            CLeakSubtractionOptionsTab> {
  public:
    CLeakSubtractionDialog(HWND hwndParent, ZXADLG_LeakSubtractionOptions* pOptions,
                           ZXADLG_DataOptions* pData, ZXADLG_CDlgDataSource* pSource,
                           const ZXADLG_DlgParams* pParams);
};
