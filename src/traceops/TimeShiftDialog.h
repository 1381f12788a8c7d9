// Time Shift: how traces are to be moved in time, by a fixed or a measured interval, or so that
// their peaks stand under each other.
#pragma once

#include "analysis/CParentDialogBase.h"
#include "zxadlg/TimeShiftOptions.h"

class CTimeShiftDialog : public CParentDialogBase {
  public:
    CTimeShiftDialog(HWND hwndParent, ZXADLG_TimeShiftOptions* pOptions, ZXADLG_DataOptions* pData,
                     ZXADLG_CDlgDataSource* pSource, const ZXADLG_DlgParams* pParams);
};
