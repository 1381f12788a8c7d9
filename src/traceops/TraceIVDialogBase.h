// What the two plots of one axis against another share: a waveform and a group for each axis, the
// invert check boxes, and the region information. The data record is the host's own, written
// directly.
#pragma once

#include "analysis/CUntabbedDialogBase.h"
#include "analysis/EditEvents.h"
#include "analysis/SelectionControls.h"

class CTraceIVDialogBase : public CUntabbedDialogBase {
  public:
    CTraceIVDialogBase(HWND hwndParent, UINT uTemplateId, ZXADLG_DataOptions* pData,
                       ZXADLG_CDlgDataSource* pSource, const ZXADLG_DlgParams* pParams);

    void Notify(ADM_Wnd* pSender, int nId, int nCode, int nData) override;
    BOOL OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) override;

  protected:
    // Shows the record in the dialog's own controls.
    virtual void ShowOptions() = 0;

    // Selects the group of an index, or the last one for an index beyond them; returns what is
    // selected.
    static std::uint32_t SelectGroup(CZxDlgGroupCombo& cmbGroup, std::uint32_t uGroup);
    static std::uint32_t SelectedGroup(CZxDlgGroupCombo& cmbGroup);
    // Binds a check box to a setter of the options.
    template <class Setter>
    void OnCheck(ADM_Button& chk, Setter set) {
        m_events.On(&chk, ADMN_CLICKED, [&chk, set] { set(chk.GetCheck() == BST_CHECKED); });
    }

    ZXADLG_DataTabFlags m_flags;
    EditEvents m_events;

    CZxDlgWaveformCombo m_cmbXWaveform;
    CZxDlgWaveformCombo m_cmbYWaveform;
    CZxDlgGroupCombo m_cmbXGroup;
    CZxDlgGroupCombo m_cmbYGroup;
    ADM_Button m_chkXInvert;
    ADM_Button m_chkYInvert;
    ADM_Button m_chkWriteRegionInfo;
};
