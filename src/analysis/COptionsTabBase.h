// The base of the tabs that carry a dialog's options, with the controls that most analyses share:
// where the results go, the link to the analysis window, the region information.
//
// A subclass binds its controls' events in its constructor. Its initialisation calls the base,
// fills its own controls and ends with FinishInitialization, which shows the record (ShowOptions)
// and sets m_bReady. Events before that are dropped. In read-only mode every event shows the record
// again and gives the focus away.
#pragma once

#include "analysis/EditEvents.h"
#include "analysis/SelectionControls.h"
#include "framework/ADM_Button.h"
#include "framework/ADM_RadioButtons.h"
#include "framework/ADM_Static.h"
#include "framework/ADM_TabSubDialog.h"
#include "zxadlg/DlgParams.h"

class CAnalysisOptionsInterfaceBase;

class COptionsTabBase : public ADM_TabSubDialog {
  public:
    COptionsTabBase(CAnalysisOptionsInterfaceBase* pOptions, const ZXADLG_DlgParams* pParams,
                    UINT uTemplateId, UINT uCaptionStringId);

    void Notify(ADM_Wnd* pSender, int nId, int nCode, int nData) override;
    BOOL OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) override;
    BOOL OnPageShow() override;
    BOOL CanLeavePage() override;

    // Greys the shared controls; ApplyVisibility shows it.
    void SetDisabled(bool bDisabled) { m_bDisabled = bDisabled; }

    // Shows the record in the tab's own controls; called with m_bUpdating set.
    virtual void ShowOptions() {}

  protected:
    // For the end of a subclass's initialisation: shows the record and takes events from now on.
    BOOL FinishInitialization();
    // Shows the record in all controls of the tab.
    void RefreshOptions();
    // What the user's event nCode of a control does. Nothing is called before the tab is ready,
    // while it shows values, or in read-only mode.
    void On(ADM_Wnd* pControl, int nCode, EventTable::Step step);
    // Shows the record in the shared controls.
    void ShowSharedOptions();
    // Shows or hides the shared controls as the parameters say.
    void ApplyVisibility();

    const ZXADLG_DlgParams* m_pParams;
    bool m_bDisabled = false;
    bool m_bReadOnly;
    BOOL m_bUpdating = 0;  // the tab shows values: no event is the user's
    BOOL m_bInEvent = 0;
    CAnalysisOptionsInterfaceBase* m_pOptions;
    bool m_bReady = false;

  private:
    EventTable m_events;
    ADM_Static m_grpDestination;
    ADM_RadioButtons m_radDestination;
    ADM_Button m_chkDynamicLink;
    ADM_Button m_chkWriteRegionInfo;
};
