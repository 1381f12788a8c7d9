// A tabbed dialog of one options tab and, with bUseDataOptions, the data tab behind it: all but the
// largest analyses. A subclass names its template and what its data tab offers.
//
//     class CNormalizeDialog : public COptionsDialog<ZXADLG_NormalizeOptions,
//                                                    CNormalizeOptionsInterface,
//                                                    CNormalizeOptionsTab> { ... };
//
// Options is built with (record, source), and Tab with (options, parameters, data interface). Each
// dialog class remembers the tab of its last OK on its own. Everything but hwndParent outlives the
// dialog.
#pragma once

#include <memory>

#include "analysis/CParentDialogBase.h"
#include "analysis/CUnitaryDataTab.h"
#include "ids.h"

template <class Record, class Options, class Tab>
class COptionsDialog : public CParentDialogBase {
  public:
    COptionsDialog(HWND hwndParent, Record* pOptions, ZXADLG_DataOptions* pData,
                   ZXADLG_CDlgDataSource* pSource, const ZXADLG_DlgParams* pParams,
                   UINT uTemplateId, const ZXADLG_DataTabFlags& flags)
        : CParentDialogBase(hwndParent, pData, pSource, pParams, uTemplateId, IDC_TABS) {
        *m_pFlags = flags;
        m_pDataOptions = std::make_unique<CDataOptionsInterface>(pData, pSource, m_pFlags.get());
        m_pOptions = std::make_unique<Options>(pOptions, pSource);
        m_pOptionsTab = std::make_unique<Tab>(m_pOptions.get(), pParams, m_pDataOptions.get());
        AddPage(m_pOptionsTab.get());
        if (!m_bUseDataOptions) return;
        m_pDataTab =
            std::make_unique<CUnitaryDataTab>(m_pDataOptions.get(), IDD_UNITARY_DATA, m_bReadOnly);
        AddPage(m_pDataTab.get());
    }

    // The tabs show their contents when the base creates them.
    BOOL OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) override {
        CParentDialogBase::OnInitDialog(hWnd, hFocus, lParam);
        if (m_bInitFailed) return FailInitialization();
        return FinishInitialization(s_nLastTab);
    }

    void OnOK() override {
        s_nLastTab = GetCurrentPageIndex();
        CParentDialogBase::OnOK();
    }

  protected:
    std::unique_ptr<Options> m_pOptions;
    std::unique_ptr<Tab> m_pOptionsTab;

  private:
    static inline int s_nLastTab = 0;  // the tab of the last OK
};
