// Filter: one of five arrangements of filters, with their cutoffs inside of what the sampling
// frequency and the number of points allow. The dialog filters nothing: OK hands a record back.
#pragma once

#include "analysis/CParentDialogBase.h"
#include "sigproc/FilterLibrary.h"

class CFilterOptionsTab;

class CFilterDialog : public CParentDialogBase {
  public:
    // szLibrary is the file of the filter library beside the module.
    CFilterDialog(HWND hwndParent, FilterOptions* pOptions, ZXADLG_DataOptions* pData,
                  ZXADLG_CDlgDataSource* pSource, const ZXADLG_DlgParams* pParams,
                  const char* szLibrary = "FILTER.dll");

  protected:
    void OnAccepted() override;
    // Its checks look at the record, which holds what is typed.
    TypedValues GetTyped() const override { return {}; }

  private:
    CheckResult CheckOptions();

    FilterOptions* m_pRecord;
    FilterLibrary m_library;
    CFilterOptionsTab* m_pTab;  // the base owns it
};
