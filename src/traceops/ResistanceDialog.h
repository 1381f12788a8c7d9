// Resistance: the clamp mode of the experiment, the waveform and the factor between units from
// which the host computes a resistance, between a control region and a response region.
#pragma once

#include "analysis/COptionsTabBase.h"
#include "analysis/OptionsDialog.h"
#include "analysis/SelectionControls.h"
#include "contract/CAnalysisOptionsInterfaceBase.h"
#include "zxadlg/ResistanceOptions.h"

class CResistanceOptionsInterface : public CAnalysisOptionsInterfaceBase {
  public:
    CResistanceOptionsInterface(ZXADLG_ResistanceOptions* pRecord, ZXADLG_CDlgDataSource* pSource)
        : CAnalysisOptionsInterfaceBase(&pRecord->common, pSource), m_pRecord(pRecord) {}

    // 0 voltage clamp, 1 current clamp.
    std::uint32_t GetExperimentType() const { return m_pRecord->uExperimentType; }
    void SetExperimentType(std::uint32_t uType) { m_pRecord->uExperimentType = uType; }
    // The number of a waveform.
    std::uint32_t GetWaveformIndex() const { return m_pRecord->uWaveformIndex; }
    void SetWaveformIndex(std::uint32_t u) { m_pRecord->uWaveformIndex = u; }
    // Stored as it stands, unlike that of Leak Subtraction.
    double GetConversionFactor() const { return m_pRecord->dConversionFactor; }
    void SetConversionFactor(double d) { m_pRecord->dConversionFactor = d; }

  private:
    ZXADLG_ResistanceOptions* m_pRecord;
};

class CResistanceOptionsTab : public COptionsTabBase {
  public:
    CResistanceOptionsTab(CResistanceOptionsInterface* pOptions, const ZXADLG_DlgParams* pParams,
                          CDataOptionsInterface* pData);

    BOOL OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) override;
    void ShowOptions() override;

  private:
    void AddExperimentType(UINT uStringId, std::uint32_t uType);

    CResistanceOptionsInterface* m_pResistance;
    CDataOptionsInterface* m_pData;
    ADM_ComboBox m_cmbExperimentType;
    CZxDlgWaveformCombo m_cmbWaveform;
    CZxDlgConversionFactorCombo m_cmbFactor;
};

class CResistanceDialog
    : public COptionsDialog<ZXADLG_ResistanceOptions, CResistanceOptionsInterface,
                            CResistanceOptionsTab> {
  public:
    CResistanceDialog(HWND hwndParent, ZXADLG_ResistanceOptions* pOptions,
                      ZXADLG_DataOptions* pData, ZXADLG_CDlgDataSource* pSource,
                      const ZXADLG_DlgParams* pParams);
};
