// Adjust Baseline: how a baseline is to be taken out of the traces, by the mean or the slope of a
// region, by a fixed value, or by hand.
#pragma once

#include "analysis/CParentDialogBase.h"
#include "zxadlg/AdjustBaselineOptions.h"

class CAdjustBaselineDialog : public CParentDialogBase {
  public:
    CAdjustBaselineDialog(HWND hwndParent, ZXADLG_AdjustBaselineOptions* pOptions,
                          ZXADLG_DataOptions* pData, ZXADLG_CDlgDataSource* pSource,
                          const ZXADLG_DlgParams* pParams);
};
