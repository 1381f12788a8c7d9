// The controls that most analyses share: where the results go, the link to the analysis window, the
// region information. Each shows when the parameters of the dialog say so.
#pragma once

#include "framework/ADM_Button.h"
#include "framework/ADM_Dialog.h"
#include "framework/ADM_RadioButtons.h"
#include "framework/ADM_Static.h"
#include "ids.h"
#include "zxadlg/AnalysisCommon.h"
#include "zxadlg/DlgParams.h"

struct ResultControls {
    ADM_Static grpDestination;
    ADM_RadioButtons radDestination;
    ADM_Button chkDynamicLink;
    ADM_Button chkWriteRegionInfo;

    // Registers the controls with their dialog, in the order of the tab chain.
    void Register(ADM_Dialog* pDialog) {
        // The id between the two buttons belongs to another page.
        constexpr int kDestinations[] = {IDC_DESTINATION_APPEND, IDC_DESTINATION_REPLACE};
        pDialog->RegisterControl(IDC_DESTINATION_GROUP, &grpDestination);
        radDestination.SetupIds(pDialog, 2, kDestinations, nullptr);
        pDialog->RegisterControl(IDC_DYNAMIC_LINK, &chkDynamicLink);
        pDialog->RegisterControl(IDC_WRITE_REGION_INFO, &chkWriteRegionInfo);
    }

    void ShowWhere(const ZXADLG_DlgParams& params) {
        const auto command = [](std::uint8_t bShow) { return bShow != 0 ? SW_SHOW : SW_HIDE; };
        grpDestination.Show(command(params.bShowDestination));
        radDestination.Show(command(params.bShowDestination));
        chkDynamicLink.Show(command(params.bShowDynamicLink));
        chkWriteRegionInfo.Show(command(params.bShowWriteRegionInfo));
    }
};
