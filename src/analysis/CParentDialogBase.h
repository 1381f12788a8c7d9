// The base of the tabbed analysis dialogs: options tabs, a data tab, and the model of the data
// selection.
//
// A subclass's constructor creates the model (OfferData), its options interface and its options
// tabs, and, with bUseDataOptions, the data tab; it adds them in that order, and adds its
// checks. One whose set-up fails raises m_bInitFailed: the dialog then
// says so and ends with 2.
//
// At OK the checks run first, in order; then the description of the data is rebuilt; then all pages
// are validated; and only then anything is applied and the tab remembered. In read-only mode
// nothing can be changed: every event runs the check of the data and gives the focus to the Cancel
// button, whose caption is then "Close". Record, source and parameters outlive the dialog.
#pragma once

#include <memory>
#include <vector>

#include "analysis/CCheckedDialog.h"
#include "analysis/CDataTabBase.h"
#include "analysis/COptionsTabBase.h"
#include "contract/CDataOptionsInterface.h"
#include "framework/ADM_TabbedDialog.h"
#include "zxadlg/DlgParams.h"

class CParentDialogBase : public CCheckedDialog<ADM_TabbedDialog> {
  public:
    CParentDialogBase(HWND hwndParent, ZXADLG_DataOptions* pData, ZXADLG_CDlgDataSource* pSource,
                      const ZXADLG_DlgParams* pParams, UINT uTemplateId, UINT uTabControlId);
    ~CParentDialogBase() override;

    // The page of the last OK comes up when the dialog is ready, unless the first one has a fault.
    BOOL OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) override;
    void OnOK() override;
    void OnCancel() override;

    // The tab of the last successful OK of the dialogs of this template; 0 before. Lives as long as
    // the process.
    static int& LastTab(UINT uTemplateId);
    // Forgets them all, as a new process has.
    static void ForgetTabs();

  protected:
    // Creates the model of the data selection, which offers what the flags say.
    void OfferData(const ZXADLG_DataTabFlags& flags);
    // Adds a tab behind those that are there.
    void AddOptionsTab(std::unique_ptr<ADM_TabSubDialog> pTab);
    // Makes a tab the data tab, behind the options tabs. In an open dialog it takes the place of
    // the one before.
    void SetDataTab(std::unique_ptr<CDataTabBase> pTab);

    // How the data tab offers the columns of a sheet: as it offers other sets, or as a list of
    // columns with a range of rows.
    enum class SheetData { kAsSets, kListed };

    // The usual dialog: one options tab, and the data tab of one family of sets. Tab::Options is
    // built with (record, source), and Tab with (options, parameters, model).
    template <class Tab, class Record>
    Tab* BuildTabs(Record* pOptions, const ZXADLG_DataTabFlags& flags,
                   SheetData eSheet = SheetData::kAsSets) {
        OfferData(flags);
        auto pInterface = std::make_unique<typename Tab::Options>(pOptions, m_pSource);
        auto pTab = std::make_unique<Tab>(pInterface.get(), m_pParams, m_pDataOptions.get());
        Tab* pResult = pTab.get();
        m_pOptions = std::move(pInterface);
        AddOptionsTab(std::move(pTab));
        AddUsualDataTab(eSheet);
        return pResult;
    }
    // Adds the data tab of one selection of sets, or where the dialog takes them, of the columns of
    // a sheet. None without bUseDataOptions.
    void AddUsualDataTab(SheetData eSheet = SheetData::kAsSets);

    bool SetUp() override;
    TypedValues GetTyped() const override;
    const ADM_Dialog& BringUp(int nPage) override;
    // Adds the check that some data are selected, where there is a data tab.
    void AddSelectionCheck();
    // Checks the data.
    void Undo() override;
    // What the dialog writes when everything has passed, before it ends.
    virtual void OnAccepted() {}
    // Whether checks that need live data run.
    bool HasLiveData() const { return m_pParams->bDeferredRun == 0; }

    std::unique_ptr<CDataOptionsInterface> m_pDataOptions;
    std::unique_ptr<COptionsInterfaceBase> m_pOptions;
    std::vector<std::unique_ptr<ADM_TabSubDialog>> m_vOptionsTabs;
    std::unique_ptr<CDataTabBase> m_pDataTab;  // null when the dialog has none
    ZXADLG_DataOptions* m_pDataRecord;
    std::unique_ptr<ZXADLG_DataTabFlags> m_pFlags;
    ZXADLG_CDlgDataSource* m_pSource;
    const ZXADLG_DlgParams* m_pParams;
    bool m_bInitFailed = false;  // the failed set-up mark
    bool m_bUseDataOptions;

  private:
    void CheckData();

    int& m_nLastTab;
};
