// A small dialog around pages of the analysis layer: an options page, and a data page of any
// template, over a record and a source of the test's. It stands in for the dialogs that build such
// pages.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "analysis/COptionsTabBase.h"
#include "analysis/CPairedDataTab.h"
#include "analysis/CParentDialogBase.h"
#include "analysis/CUnitaryDataTab.h"
#include "contract/CAnalysisOptionsInterfaceBase.h"
#include "fixtures/DialogScript.h"
#include "fixtures/TestDataSource.h"
#include "ids.h"
#include "widgets/Framework.h"

namespace analysis_test {

// What the pages tell each other.
class NotificationLog : public ADM_Wnd {
  public:
    void Notify(ADM_Wnd*, int, int nCode, int) override { codes.push_back(nCode); }
    std::vector<int> Take() { return std::exchange(codes, {}); }
    std::vector<int> codes;
};

class PageOptionsTab : public COptionsTabBase {
  public:
    using COptionsTabBase::COptionsTabBase;
    BOOL OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) override {
        const BOOL bResult = COptionsTabBase::OnInitDialog(hWnd, hFocus, lParam);
        m_bReady = true;
        return bResult;
    }
    void Disable(bool bDisabled) {
        SetDisabled(bDisabled);
        ApplyVisibility();
    }
};

class PageDialog : public CParentDialogBase {
  public:
    using MakeDataTab = std::function<std::unique_ptr<ADM_TabSubDialog>(CDataOptionsInterface*)>;

    PageDialog(ZXADLG_DataOptions* pData, ZXADLG_AnalysisCommon* pCommon,
               ZXADLG_CDlgDataSource* pSource, const ZXADLG_DlgParams* pParams,
               const ZXADLG_DataTabFlags& flags, ADM_Wnd* pObserver, const MakeDataTab& make)
        : CParentDialogBase(nullptr, pData, pSource, pParams, IDD_NORMALIZE, IDC_TABS) {
        *m_pFlags = flags;
        m_pDataOptions = std::make_unique<CDataOptionsInterface>(pData, pSource, m_pFlags.get());
        m_pDataOptions->AddObserver(pObserver);
        options = std::make_unique<CAnalysisOptionsInterfaceBase>(pCommon, pSource);
        optionsTab = std::make_unique<PageOptionsTab>(options.get(), pParams, IDD_NORMALIZE_OPTIONS,
                                                      IDS_TAB_OPTIONS);
        m_pDataTab = make(m_pDataOptions.get());
        if (dataFirst) AddPage(m_pDataTab.get());
        AddPage(optionsTab.get());
        if (!dataFirst && m_pDataTab != nullptr) AddPage(m_pDataTab.get());
    }

    BOOL OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) override {
        CParentDialogBase::OnInitDialog(hWnd, hFocus, lParam);
        if (failSetup) m_bInitFailed = true;
        if (m_bInitFailed) return FailInitialization();
        return FinishInitialization(lastTab);
    }
    void OnOK() override {
        lastTab = GetCurrentPageIndex();
        CParentDialogBase::OnOK();
    }
    CDataOptionsInterface& Model() { return *m_pDataOptions; }
    ADM_TabSubDialog* DataTab() { return m_pDataTab.get(); }

    static inline int lastTab = 0;
    static inline bool failSetup = false;
    static inline bool dataFirst = true;

    std::unique_ptr<CAnalysisOptionsInterfaceBase> options;
    std::unique_ptr<PageOptionsTab> optionsTab;
};

// Everything that a dialog needs, with sensible values.
struct PageSetup {
    PageSetup() {
        InitDialogFramework(GetModuleHandleA(nullptr));
        PageDialog::lastTab = 0;
        PageDialog::failSetup = false;
        PageDialog::dataFirst = true;
        params.bUseDataOptions = params.bShowGroupSelector = 1;
        params.bShowDestination = params.bShowDynamicLink = params.bShowWriteRegionInfo = 1;
    }

    int Show(test_support::DialogScript& script, const PageDialog::MakeDataTab& make) {
        PageDialog dialog(&record, &common, &source, &params, flags, &log, make);
        current = &dialog;
        const auto result = script.Run([&] { return static_cast<int>(dialog.DoModal()); });
        messages.clear();
        for (const auto& message : script.Messages()) messages.push_back(message.text);
        current = nullptr;
        return result;
    }
    int ShowUnitary(test_support::DialogScript& script, UINT uTemplate = IDD_UNITARY_DATA) {
        return Show(script, [&](CDataOptionsInterface* pData) {
            return std::make_unique<CUnitaryDataTab>(pData, uTemplate, params.bReadOnly != 0);
        });
    }
    int ShowPaired(test_support::DialogScript& script, UINT uTemplate) {
        source.Kind(2);
        return Show(script, [&](CDataOptionsInterface* pData) {
            pData->SetConstantCount(uTemplate == IDD_PAIRED_SIX_VARIABLES ? 6 : 1);
            for (std::uint32_t i = 0; i < 6; ++i)
                pData->SetConstantName(i, ("x" + std::to_string(i + 1)).c_str());
            pData->SetDependentName("y");
            auto tab = std::make_unique<CPairedDataTab>(
                pData, uTemplate, uTemplate != IDD_PAIRED_SIX_VARIABLES, params.bReadOnly != 0);
            paired = tab.get();
            return tab;
        });
    }

    test_support::TestDataSource source;
    ZXADLG_DataOptions record = {};
    ZXADLG_AnalysisCommon common = {};
    ZXADLG_DlgParams params = {};
    ZXADLG_DataTabFlags flags;
    NotificationLog log;
    PageDialog* current = nullptr;
    CPairedDataTab* paired = nullptr;
    std::vector<std::string> messages;
};

}  // namespace analysis_test
