// Force Values: how a region of the traces is to be overwritten, with a value at a cursor, a mean,
// a straight line or a fixed value.
#pragma once

#include "analysis/CParentDialogBase.h"
#include "zxadlg/ForceValuesOptions.h"

class CForceValuesDialog : public CParentDialogBase {
  public:
    CForceValuesDialog(HWND hwndParent, ZXADLG_ForceValuesOptions* pOptions,
                       ZXADLG_DataOptions* pData, ZXADLG_CDlgDataSource* pSource,
                       const ZXADLG_DlgParams* pParams);
};
