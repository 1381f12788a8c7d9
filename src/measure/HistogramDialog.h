// Histogram: its kind, the layout of its bins and the limits of its data, which follow the range of
// the selection. The dialog bins nothing: OK hands a record back.
#pragma once

#include "analysis/CParentDialogBase.h"
#include "zxadlg/HistogramOptions.h"

class CHistogramOptionsTab;

class CHistogramDialog : public CParentDialogBase {
  public:
    CHistogramDialog(HWND hwndParent, ZXADLG_HistogramOptions* pOptions, ZXADLG_DataOptions* pData,
                     ZXADLG_CDlgDataSource* pSource, const ZXADLG_DlgParams* pParams);

  protected:
    void OnAccepted() override;
    // Its checks ask the page for what its fields show.
    TypedValues GetTyped() const override { return {}; }

  private:
    CheckResult CheckColumns();

    ZXADLG_HistogramOptions* m_pRecord;
    CHistogramOptionsTab* m_pTab;  // the base owns it
};
