// Normalize: how traces are to be normalised, over all their points or between a baseline region
// and a peak region. The smallest whole dialog, and the model of its family.
#pragma once

#include "analysis/CParentDialogBase.h"
#include "zxadlg/NormalizeOptions.h"

class CNormalizeDialog : public CParentDialogBase {
  public:
    CNormalizeDialog(HWND hwndParent, ZXADLG_NormalizeOptions* pOptions, ZXADLG_DataOptions* pData,
                     ZXADLG_CDlgDataSource* pSource, const ZXADLG_DlgParams* pParams);
};
