// Leak Subtraction: the waveform, the factor between units and the passive resistance from which
// the host computes a leak current.
#pragma once

#include "analysis/CParentDialogBase.h"
#include "zxadlg/LeakSubtractionOptions.h"

class CLeakSubtractionDialog : public CParentDialogBase {
  public:
    CLeakSubtractionDialog(HWND hwndParent, ZXADLG_LeakSubtractionOptions* pOptions,
                           ZXADLG_DataOptions* pData, ZXADLG_CDlgDataSource* pSource,
                           const ZXADLG_DlgParams* pParams);
};
