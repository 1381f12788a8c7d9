// Resistance: the clamp mode of the experiment, the waveform and the factor between units from
// which the host computes a resistance, between a control region and a response region.
#pragma once

#include "analysis/CParentDialogBase.h"
#include "zxadlg/ResistanceOptions.h"

class CResistanceDialog : public CParentDialogBase {
  public:
    CResistanceDialog(HWND hwndParent, ZXADLG_ResistanceOptions* pOptions,
                      ZXADLG_DataOptions* pData, ZXADLG_CDlgDataSource* pSource,
                      const ZXADLG_DlgParams* pParams);
};
