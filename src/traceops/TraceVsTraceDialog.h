// Trace vs. Trace: a plot with a set of the data or a stimulus waveform on each axis. On data
// without a waveform only the sets are offered, whatever the record says.
#pragma once

#include <memory>

#include "contract/CAnalysisOptionsInterfaceBase.h"
#include "traceops/TraceIVDialogBase.h"
#include "zxadlg/TraceVsTraceOptions.h"

class CTraceVsTraceOptionsInterface : public CAnalysisOptionsInterfaceBase {
  public:
    enum Axis { kX = 0, kY = 1 };

    CTraceVsTraceOptionsInterface(ZXADLG_TraceVsTraceOptions* pRecord,
                                  ZXADLG_CDlgDataSource* pSource)
        : CAnalysisOptionsInterfaceBase(&pRecord->common, pSource), m_pRecord(pRecord) {}

    // 0 waveform, 1 data group.
    int GetSource(Axis a) const { return a == kX ? m_pRecord->eXSource : m_pRecord->eYSource; }
    void SetSource(Axis a, int e) { (a == kX ? m_pRecord->eXSource : m_pRecord->eYSource) = e; }
    std::uint32_t GetWaveform(Axis a) const {
        return a == kX ? m_pRecord->uXWaveformIndex : m_pRecord->uYWaveformIndex;
    }
    void SetWaveform(Axis a, std::uint32_t u) {
        (a == kX ? m_pRecord->uXWaveformIndex : m_pRecord->uYWaveformIndex) = u;
    }
    std::uint32_t GetGroup(Axis a) const {
        return a == kX ? m_pRecord->uXDataGroupIndex : m_pRecord->uYDataGroupIndex;
    }
    void SetGroup(Axis a, std::uint32_t u) {
        (a == kX ? m_pRecord->uXDataGroupIndex : m_pRecord->uYDataGroupIndex) = u;
    }
    std::uint32_t GetSet(Axis a) const {
        return a == kX ? m_pRecord->uXDataSetIndex : m_pRecord->uYDataSetIndex;
    }
    void SetSet(Axis a, std::uint32_t u) {
        (a == kX ? m_pRecord->uXDataSetIndex : m_pRecord->uYDataSetIndex) = u;
    }
    bool GetInvert(Axis a) const {
        return (a == kX ? m_pRecord->bInvertX : m_pRecord->bInvertY) != 0;
    }
    void SetInvert(Axis a, bool b) {
        (a == kX ? m_pRecord->bInvertX : m_pRecord->bInvertY) = b ? 1 : 0;
    }
    int GetRegion() const { return m_pRecord->eValueRegion; }
    void SetRegion(int nId) { m_pRecord->eValueRegion = nId; }

  private:
    ZXADLG_TraceVsTraceOptions* m_pRecord;
};

class CTraceVsTraceDialog : public CTraceIVDialogBase {
  public:
    // Everything but hwndParent outlives the dialog; pData is the host's own record.
    CTraceVsTraceDialog(HWND hwndParent, ZXADLG_TraceVsTraceOptions* pOptions,
                        ZXADLG_DataOptions* pData, ZXADLG_CDlgDataSource* pSource,
                        const ZXADLG_DlgParams* pParams);

    BOOL OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) override;

  private:
    using Axis = CTraceVsTraceOptionsInterface::Axis;

    // The controls of one axis.
    struct AxisControls {
        Axis axis;
        ADM_RadioButtons& radSource;
        CZxDlgWaveformCombo& cmbWaveform;
        CZxDlgGroupCombo& cmbGroup;
        CZxDlgDataSetCombo& cmbSet;
        ADM_Button& chkInvert;
    };
    AxisControls XControls();
    AxisControls YControls();

    void BindEvents();
    void BindAxis(const AxisControls& controls);
    void FillAxis(const AxisControls& controls);
    void ShowOptions() override;
    void ShowAxis(const AxisControls& controls);
    void ShowSets(const AxisControls& controls);
    void ShowLabels();
    void EnableAxis(const AxisControls& controls);

    ZXADLG_TraceVsTraceOptions* m_pRecord;
    std::unique_ptr<CTraceVsTraceOptionsInterface> m_pTraces;
    bool m_bHasWaveform = true;

    ADM_RadioButtons m_radXSource;
    ADM_RadioButtons m_radYSource;
    ADM_Static m_lblXSet;
    ADM_Static m_lblYSet;
    CZxDlgDataSetCombo m_cmbXSet;
    CZxDlgDataSetCombo m_cmbYSet;
    CZxDlgRegionCombo m_cmbRegion;
};
