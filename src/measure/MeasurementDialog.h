// Measurements: up to 24 searches for peaks, slopes and other figures of traces, each with a
// region, a baseline, a polarity and a smoothing window, and how the results go out.
//
// The host measures. OK tells it where the regions of the searches are, in the data record.
#pragma once

#include "analysis/CParentDialogBase.h"
#include "zxadlg/MeasurementOptions.h"

class CMeasurementOptionsInterface;
class CMeasurementOptionsTab;
class CMeasurementOutputTab;

class CMeasurementDialog : public CParentDialogBase {
  public:
    // pHost is the record before anything was restored. pContext is the host's own business: it is
    // never read and may be null.
    CMeasurementDialog(HWND hwndParent, ZXADLG_MeasurementOptions* pOptions,
                       const ZXADLG_MeasurementOptions* pHost, void* pContext,
                       ZXADLG_DataOptions* pData, ZXADLG_CDlgDataSource* pSource,
                       const ZXADLG_DlgParams* pParams);

  protected:
    void OnAccepted() override;
    // Its checks look at the record, which holds what is typed.
    TypedValues GetTyped() const override { return {}; }

  private:
    void AddChecks();
    void RepairOutput();

    ZXADLG_MeasurementOptions* m_pRecord;
    CMeasurementOptionsInterface* m_pInterface;  // the base owns these
    CMeasurementOptionsTab* m_pTab;
    CMeasurementOutputTab* m_pOutput = nullptr;  // null: none is shown
};
