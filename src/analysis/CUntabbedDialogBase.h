// The bases of the single-page analysis dialogs.
//
// CSinglePage is a page and a dialog in one. Its checks run at OK, in order, before anything else.
// CUntabbedDialogBase adds the options that most analyses share, and the model of the data where
// the dialog has one: it is rebuilt at OK, outside read-only and deferred mode. A subclass creates
// its options interface in its constructor and hands it to SetOptionsInterface.
//
// Record, source and parameters outlive the dialog.
#pragma once

#include <memory>

#include "analysis/CCheckedDialog.h"
#include "contract/CDataOptionsInterface.h"
#include "framework/ADM_Dialog.h"
#include "zxadlg/DlgParams.h"

class CSinglePage : public CCheckedDialog<ADM_Dialog> {
  public:
    CSinglePage(HWND hwndParent, UINT uTemplateId, bool bReadOnly);

    BOOL OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) override;
    // Walks the checks, reads and validates, applies, and ends with 1.
    void OnOK() override;

  protected:
    // What has to be done between the checks and the validation. False keeps the dialog open.
    virtual bool PrepareOK() { return true; }
    // What the page writes when everything has passed, before it ends. Not in read-only mode.
    virtual void OnAccepted() {}
    void EndDialogWith(INT_PTR nResult) override;
};

class CUntabbedDialogBase : public CSinglePage {
  public:
    CUntabbedDialogBase(HWND hwndParent, UINT uTemplateId, ZXADLG_CDlgDataSource* pSource,
                        const ZXADLG_DlgParams* pParams, ZXADLG_DataOptions* pData);

    void UpdateControls() override;

  protected:
    // Not owned. Binds the shared options to it.
    void SetOptionsInterface(CAnalysisOptionsInterfaceBase* pOptions);
    bool PrepareOK() override;

    CAnalysisOptionsInterfaceBase* m_pOptions = nullptr;
    ZXADLG_CDlgDataSource* m_pSource;
    const ZXADLG_DlgParams* m_pParams;
    std::unique_ptr<CDataOptionsInterface> m_pDataOptionsObject;
    ZXADLG_DataOptions* m_pDataRecord;

  private:
    ResultControls m_results;
};
