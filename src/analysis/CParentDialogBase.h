// The base of the tabbed analysis dialogs: options tabs, a data tab, and the model of the data
// selection.
//
// A subclass's constructor sets the flags, creates the data interface (m_pDataOptions), its options
// interface, its options tab and, with bUseDataOptions, the data tab (m_pDataTab), and adds the
// tabs in that order. Its initialisation calls the base, gives up with FailInitialization when the
// mark of a failed set-up is raised, and ends with FinishInitialization.
//
// In read-only mode nothing can be changed: every event runs the check of the data and gives the
// focus to the Cancel button, whose caption is then "Close". Record, source and parameters outlive
// the dialog.
#pragma once

#include <memory>

#include "contract/CDataOptionsInterface.h"
#include "framework/ADM_TabbedDialog.h"
#include "zxadlg/DlgParams.h"

class CParentDialogBase : public ADM_TabbedDialog {
  public:
    CParentDialogBase(HWND hwndParent, ZXADLG_DataOptions* pData, ZXADLG_CDlgDataSource* pSource,
                      const ZXADLG_DlgParams* pParams, UINT uTemplateId, UINT uTabControlId);
    ~CParentDialogBase() override;

    BOOL OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) override;
    void Notify(ADM_Wnd* pSender, int nId, int nCode, int nData) override;
    // Describes the data in the record, validates everything and ends with 1.
    void OnOK() override;
    void OnCancel() override;

  protected:
    // For the end of a subclass's initialisation: nLastTab is the tab of its last OK.
    BOOL FinishInitialization(int nLastTab);
    // For its beginning: ends a dialog whose set-up failed. Answers false.
    BOOL FailInitialization();

    std::unique_ptr<CDataOptionsInterface> m_pDataOptions;
    std::unique_ptr<ADM_TabSubDialog> m_pDataTab;  // null when the dialog has none
    ZXADLG_DataOptions* m_pDataRecord;
    std::unique_ptr<ZXADLG_DataTabFlags> m_pFlags;
    ZXADLG_CDlgDataSource* m_pSource;
    const ZXADLG_DlgParams* m_pParams;
    bool m_bReady = false;       // set at the end of the subclass's initialisation
    bool m_bInitFailed = false;  // the failed set-up mark
    bool m_bUseDataOptions;
    bool m_bReadOnly;
    BOOL m_bInDataCheck = 0;

  private:
    void CheckData();
    bool CheckGroup(std::uint32_t uGroup, std::uint32_t uMinSets);
};
