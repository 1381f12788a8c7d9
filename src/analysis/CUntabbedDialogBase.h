// The base of the single-page analysis dialogs. A subclass creates its options interface, hands it
// to SetOptionsInterface, may create a data interface (m_pDataOptionsObject), and sets m_bReady at
// the end of its initialisation.
//
// Record, source and parameters outlive the dialog. In read-only mode every event shows the record
// again and gives the focus to the Cancel button, whose caption is then "Close".
#pragma once

#include <memory>

#include "contract/CDataOptionsInterface.h"
#include "framework/ADM_Button.h"
#include "framework/ADM_Dialog.h"
#include "framework/ADM_RadioButtons.h"
#include "framework/ADM_Static.h"
#include "zxadlg/DlgParams.h"

class CAnalysisOptionsInterfaceBase;

class CUntabbedDialogBase : public ADM_Dialog {
  public:
    CUntabbedDialogBase(HWND hwndParent, UINT uTemplateId, ZXADLG_CDlgDataSource* pSource,
                        const ZXADLG_DlgParams* pParams, ZXADLG_DataOptions* pData);

    void Notify(ADM_Wnd* pSender, int nId, int nCode, int nData) override;
    BOOL OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) override;
    // Describes the data in the record, reads and validates, applies, and ends with 1.
    void OnOK() override;

  protected:
    // Not owned.
    void SetOptionsInterface(CAnalysisOptionsInterfaceBase* pOptions) { m_pOptions = pOptions; }
    void ShowSharedOptions();

    CAnalysisOptionsInterfaceBase* m_pOptions = nullptr;
    ZXADLG_CDlgDataSource* m_pSource;
    const ZXADLG_DlgParams* m_pParams;
    std::unique_ptr<CDataOptionsInterface> m_pDataOptionsObject;
    ZXADLG_DataOptions* m_pDataRecord;
    BOOL m_bUpdating = 0;
    bool m_bReadOnly;
    bool m_bReady = false;

  private:
    ADM_Static m_grpDestination;
    ADM_RadioButtons m_radDestination;
    ADM_Button m_chkDynamicLink;
};
