// Power Spectrum: the spectral window, the length of the transforms, their overlap and averaging.
#pragma once

#include "analysis/CParentDialogBase.h"
#include "zxadlg/SignalProcessingOptions.h"

class CSpectrumOptionsTab;

class CSpectrumDialog : public CParentDialogBase {
  public:
    CSpectrumDialog(HWND hwndParent, SpectrumOptions* pOptions, ZXADLG_DataOptions* pData,
                    ZXADLG_CDlgDataSource* pSource, const ZXADLG_DlgParams* pParams);

  protected:
    void OnAccepted() override;
    // Its checks look at the record, which holds what is typed.
    TypedValues GetTyped() const override { return {}; }

  private:
    CSpectrumOptionsTab* m_pTab;  // the base owns it
};
