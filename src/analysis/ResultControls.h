// The controls that most analyses share: where the results go, the link to the analysis window, the
// region information. Each shows when the parameters of the dialog say so.
#pragma once

#include "framework/ADM_Button.h"
#include "framework/ADM_Dialog.h"
#include "framework/ADM_RadioButtons.h"
#include "framework/ADM_Static.h"
#include "zxadlg/AnalysisCommon.h"
#include "zxadlg/DlgParams.h"

struct ResultControls {
    ADM_Static grpDestination;
    ADM_RadioButtons radDestination;
    ADM_Button chkDynamicLink;
    ADM_Button chkWriteRegionInfo;

    // Registers the controls with their dialog, in the order of the tab chain.
    void Register(ADM_Dialog* pDialog);
    // Shows what the parameters offer. The first time that a page runs it, the gaps close that the
    // others would leave: the rest moves up, and a frame with nothing in it goes.
    void ShowWhere(const ZXADLG_DlgParams& params);

  private:
    void CloseGaps(const ZXADLG_DlgParams& params) const;

    HWND m_hArranged = nullptr;  // the page whose gaps are closed
};
