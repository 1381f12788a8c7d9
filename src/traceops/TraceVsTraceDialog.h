// Trace vs. Trace: a plot with a set of the data or a stimulus waveform on each axis. On data
// without a waveform only the sets are offered, whatever the record says.
#pragma once

#include "traceops/TraceIVDialogBase.h"
#include "zxadlg/TraceVsTraceOptions.h"

class CTraceVsTraceDialog : public CTraceIVDialogBase<ZXADLG_TraceVsTraceOptions> {
  public:
    CTraceVsTraceDialog(HWND hwndParent, ZXADLG_TraceVsTraceOptions* pOptions,
                        ZXADLG_DataOptions* pData, ZXADLG_CDlgDataSource* pSource,
                        const ZXADLG_DlgParams* pParams);

    void UpdateControls() override;

  private:
    using Record = ZXADLG_TraceVsTraceOptions;

    // The controls of one axis, and the fields of the record that they edit.
    struct Axis {
        ADM_RadioButtons& radSource;
        CZxDlgWaveformCombo& cmbWaveform;
        CZxDlgGroupCombo& cmbGroup;
        CZxDlgDataSetCombo& cmbSet;
        std::int32_t Record::*pSourceField;
        std::uint32_t Record::*pGroupField;
        std::uint32_t Record::*pSetField;
    };

    bool SetUp() override;
    void ShowOptions() override;
    void BindSource(const Axis& axis, std::initializer_list<int> ids);
    void ShowSets(const Axis& axis);
    void ShowLabels();
    void EnableAxis(const Axis& axis);
    bool HasWaveform() const;

    ADM_RadioButtons m_radXSource, m_radYSource;
    ADM_Static m_lblXSet, m_lblYSet;
    CZxDlgDataSetCombo m_cmbXSet, m_cmbYSet;
    CZxDlgRegionCombo m_cmbRegion;
    const Axis m_x = {m_radXSource,
                      m_cmbXWaveform,
                      m_cmbXGroup,
                      m_cmbXSet,
                      &Record::eXSource,
                      &Record::uXDataGroupIndex,
                      &Record::uXDataSetIndex};
    const Axis m_y = {m_radYSource,
                      m_cmbYWaveform,
                      m_cmbYGroup,
                      m_cmbYSet,
                      &Record::eYSource,
                      &Record::uYDataGroupIndex,
                      &Record::uYDataSetIndex};
};
