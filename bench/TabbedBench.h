// Dialogs of an options tab and a data tab against bare dialogs of the same templates with the same
// items in them.
#pragma once

#include <string>

#include "DialogTiming.h"
#include "ZXADLG.h"
#include "analysis/Benchmarks.h"
#include "ids.h"
#include "widgets/FrameworkSetup.h"

// A bare dialog of these templates, and what fills its pages.
struct BareDialog {
    int nTemplate;
    int nOptionsTemplate;
    std::function<void(const std::vector<HWND>&)> fill;
};
inline const BareDialog* g_pBare;

inline INT_PTR CALLBACK BareProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM) {
    if (uMsg != WM_INITDIALOG) return EndBareAtOk(hWnd, uMsg, wParam);
    const std::vector<HWND> pages =
        CreateBarePages(GetFrameworkInstance(), GetDlgItem(hWnd, IDC_TABS),
                        {{"Options", g_pBare->nOptionsTemplate}, {"Data", IDD_UNITARY_DATA}});
    g_pBare->fill(pages);
    ShowWindow(pages[0], SW_SHOW);
    return TRUE;
}

inline void AddItem(HWND hPage, int nId, UINT uMsg, const char* szText) {
    SendMessageA(GetDlgItem(hPage, nId), uMsg, 0, reinterpret_cast<LPARAM>(szText));
}

inline void AddString(HWND hPage, int nId, int nString) {
    char szText[128] = "";
    LoadStringA(GetFrameworkInstance(), static_cast<UINT>(nString), szText, sizeof szText);
    AddItem(hPage, nId, CB_ADDSTRING, szText);
}

inline void FillData(HWND hPage, const NamedSource& source) {
    for (const std::string& sName : source.names)
        AddItem(hPage, IDC_SET_LIST, LB_ADDSTRING, sName.c_str());
    for (const char* szName : NamedSource::kGroupNames)
        AddItem(hPage, IDC_GROUP, CB_ADDSTRING, szName);
    for (const char* szName : NamedSource::kRegionNames)
        AddItem(hPage, IDC_REGION, CB_ADDSTRING, szName);
    SendMessageA(GetDlgItem(hPage, IDC_GROUP), CB_SETCURSEL, 0, 0);
    SendMessageA(GetDlgItem(hPage, IDC_REGION), CB_SETCURSEL, 0, 0);
    SendMessageA(GetDlgItem(hPage, IDC_SET_LIST), LB_SETSEL, TRUE, -1);
    CheckDlgButton(hPage, IDC_SETS_ALL, BST_CHECKED);
    CheckDlgButton(hPage, IDC_GROUPS_ONE, BST_CHECKED);
}

inline void SetTexts(HWND hPage, std::initializer_list<std::pair<int, const char*>> texts) {
    for (const auto& [nId, szText] : texts) SetDlgItemTextA(hPage, nId, szText);
}

class TabbedBench {
  protected:
    static constexpr int kRounds = 15;

    TabbedBench() {
        m_params.bUseDataOptions = m_params.bShowGroupSelector = m_params.bShowDestination = 1;
        m_params.bShowDynamicLink = m_params.bShowWriteRegionInfo = 1;
    }

    bool Compare(const std::string& sName, const std::function<void()>& show,
                 const BareDialog& bare) {
        g_pBare = &bare;
        const DialogTiming::Ratios ratios = m_timing.TimeInTurn(kRounds, show, [&] {
            DialogBoxParamA(GetFrameworkInstance(), MAKEINTRESOURCEA(bare.nTemplate),
                            m_timing.GetOwner(), BareProc, 0);
        });
        const bool bShow =
            PrintTiming((sName + " from Show to its first idle moment").c_str(), ratios.show, 1.2);
        return PrintTiming((sName + " from OK to the return").c_str(), ratios.end, 1.3) && bShow;
    }
    static ZXADLG_DataOptions Selection() {
        ZXADLG_DataOptions data = {};
        data.eDataSet1SelectionMode = data.eDataGroup1SelectionMode = 1;
        return data;
    }

    DialogTiming m_timing;
    NamedSource m_source{12};
    ZXADLG_DlgParams m_params = {};
};
