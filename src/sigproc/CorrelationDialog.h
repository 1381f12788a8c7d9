// Correlation of one selection of data with itself, or of two with each other. The data tab has one
// selection or two, as the type needs it.
#pragma once

#include "analysis/CParentDialogBase.h"
#include "zxadlg/CorrelationOptions.h"

class CCorrelationOptionsTab;

class CCorrelationDialog : public CParentDialogBase {
  public:
    CCorrelationDialog(HWND hwndParent, ZXADLG_CorrelationOptions* pOptions,
                       ZXADLG_DataOptions* pData, ZXADLG_CDlgDataSource* pSource,
                       const ZXADLG_DlgParams* pParams);

  protected:
    // Its checks look at the record and the frequency's field.
    TypedValues GetTyped() const override { return {}; }

  private:
    void ShowDataTab();

    ZXADLG_CorrelationOptions* m_pRecord;
    UINT m_uDataTemplate = 0;        // of the data tab that stands
    CCorrelationOptionsTab* m_pTab;  // the base owns it
};
