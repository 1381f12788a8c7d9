// Normalize from the Show call to its first idle moment, and from OK to the return, against bare
// dialogs of the same templates with the same items in them.
#include "Benchmarks.h"
#include "DialogTiming.h"
#include "ids.h"
#include "widgets/FrameworkSetup.h"

namespace {

constexpr int kRounds = 15;

// --- The bare dialogs

struct BareDialog {
    NamedSource* pSource;
    std::vector<HWND> pages;
};
BareDialog g_bare;

void AddItem(HWND hPage, int nId, UINT uMsg, const char* szText) {
    SendMessageA(GetDlgItem(hPage, nId), uMsg, 0, reinterpret_cast<LPARAM>(szText));
}

void FillBarePages() {
    for (const char* szName : NamedSource::kRegionNames) {
        AddItem(g_bare.pages[0], IDC_NORMALIZE_BASELINE, CB_ADDSTRING, szName);
        AddItem(g_bare.pages[0], IDC_NORMALIZE_PEAK, CB_ADDSTRING, szName);
    }
    for (const std::string& sName : g_bare.pSource->names)
        AddItem(g_bare.pages[1], IDC_SET_LIST, LB_ADDSTRING, sName.c_str());
    for (const char* szName : NamedSource::kGroupNames)
        AddItem(g_bare.pages[1], IDC_GROUP, CB_ADDSTRING, szName);
    for (const int nId : {IDC_NORMALIZE_BASELINE, IDC_NORMALIZE_PEAK})
        SendMessageA(GetDlgItem(g_bare.pages[0], nId), CB_SETCURSEL, 0, 0);
    SendMessageA(GetDlgItem(g_bare.pages[1], IDC_GROUP), CB_SETCURSEL, 0, 0);
    SendMessageA(GetDlgItem(g_bare.pages[1], IDC_SET_LIST), LB_SETSEL, TRUE, -1);
    CheckDlgButton(g_bare.pages[0], IDC_NORMALIZE_REGIONS, BST_CHECKED);
    CheckDlgButton(g_bare.pages[0], IDC_DESTINATION_APPEND, BST_CHECKED);
    CheckDlgButton(g_bare.pages[1], IDC_SETS_ALL, BST_CHECKED);
    CheckDlgButton(g_bare.pages[1], IDC_GROUPS_ONE, BST_CHECKED);
}

INT_PTR CALLBACK BareProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM) {
    if (uMsg != WM_INITDIALOG) return EndBareAtOk(hWnd, uMsg, wParam);
    g_bare.pages =
        CreateBarePages(GetFrameworkInstance(), GetDlgItem(hWnd, IDC_TABS),
                        {{"Options", IDD_NORMALIZE_OPTIONS}, {"Data", IDD_UNITARY_DATA}});
    FillBarePages();
    ShowWindow(g_bare.pages[0], SW_SHOW);
    return TRUE;
}

}  // namespace

bool MeasureNormalize() {
    DialogTiming timing;
    NamedSource source(12);
    g_bare.pSource = &source;
    ZXADLG_DlgParams params = {};
    params.bUseDataOptions = params.bShowGroupSelector = params.bShowDestination = 1;
    params.bShowDynamicLink = params.bShowWriteRegionInfo = 1;
    const auto ours = [&] {
        ZXADLG_NormalizeOptions options = {};
        options.bUseAllPoints = 1;
        ZXADLG_DataOptions data = {};
        data.eDataSet1SelectionMode = data.eDataGroup1SelectionMode = 1;
        ZXADLG_ShowNormalizeDialog(timing.GetOwner(), &options, &data, &source, &params);
    };
    const auto peer = [&] {
        DialogBoxParamA(GetFrameworkInstance(), MAKEINTRESOURCEA(IDD_NORMALIZE), timing.GetOwner(),
                        BareProc, 0);
    };
    const DialogTiming::Ratios ratios = timing.TimeInTurn(kRounds, ours, peer);
    const bool bShow =
        PrintTiming("Normalize from Show to its first idle moment", ratios.show, 1.2);
    return PrintTiming("Normalize from OK to the return", ratios.end, 1.3) && bShow;
}
