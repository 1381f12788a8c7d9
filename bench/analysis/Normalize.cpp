// Normalize from the Show call to its first idle moment, and from OK to the return, against bare
// dialogs of the same templates with the same items in them.
#include <algorithm>
#include <chrono>
#include <cstring>

#include "Benchmarks.h"
#include "PairedTiming.h"
#include "ids.h"
#include "widgets/FrameworkSetup.h"

namespace {

using Clock = std::chrono::steady_clock;
constexpr int kRounds = 15;

// The owner is told when the dialog's loop has nothing to do: the time is taken, and OK pressed.
Clock::time_point g_idle;
bool g_bIdle;

LRESULT CALLBACK OwnerProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam) {
    if (uMsg == WM_ENTERIDLE && !g_bIdle) {
        g_bIdle = true;
        g_idle = Clock::now();
        const auto hDialog = reinterpret_cast<HWND>(lParam);
        PostMessageA(hDialog, WM_COMMAND, IDOK,
                     reinterpret_cast<LPARAM>(GetDlgItem(hDialog, IDOK)));
    }
    return DefWindowProcA(hWnd, uMsg, wParam, lParam);
}

HWND CreateOwner() {
    WNDCLASSA wc = {};
    wc.lpfnWndProc = OwnerProc;
    wc.hInstance = GetModuleHandleA(nullptr);
    wc.lpszClassName = "ZxBenchOwner";
    RegisterClassA(&wc);
    return CreateWindowExA(0, wc.lpszClassName, "", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 640,
                           480, nullptr, nullptr, wc.hInstance, nullptr);
}

struct Times {
    double dShow;
    double dEnd;
};

template <class Show>
Times Measure(Show show) {
    g_bIdle = false;
    const auto start = Clock::now();
    show();
    const auto end = Clock::now();
    const auto ms = [](auto d) { return std::chrono::duration<double, std::milli>(d).count(); };
    return {ms(g_idle - start), ms(end - g_idle)};
}

// --- The bare dialogs

struct BareDialog {
    NamedSource* pSource;
    HWND hPages[2];
};
BareDialog g_bare;

INT_PTR CALLBACK BarePageProc(HWND, UINT uMsg, WPARAM, LPARAM) {
    return uMsg == WM_INITDIALOG;
}

void AddItem(HWND hPage, int nId, UINT uMsg, const char* szText) {
    SendMessageA(GetDlgItem(hPage, nId), uMsg, 0, reinterpret_cast<LPARAM>(szText));
}

void FillBarePages() {
    for (const char* szName : NamedSource::kRegionNames) {
        AddItem(g_bare.hPages[0], IDC_NORMALIZE_BASELINE, CB_ADDSTRING, szName);
        AddItem(g_bare.hPages[0], IDC_NORMALIZE_PEAK, CB_ADDSTRING, szName);
    }
    for (const std::string& sName : g_bare.pSource->names)
        AddItem(g_bare.hPages[1], IDC_SET_LIST, LB_ADDSTRING, sName.c_str());
    for (const char* szName : NamedSource::kGroupNames)
        AddItem(g_bare.hPages[1], IDC_GROUP, CB_ADDSTRING, szName);
    for (const int nId : {IDC_NORMALIZE_BASELINE, IDC_NORMALIZE_PEAK})
        SendMessageA(GetDlgItem(g_bare.hPages[0], nId), CB_SETCURSEL, 0, 0);
    SendMessageA(GetDlgItem(g_bare.hPages[1], IDC_GROUP), CB_SETCURSEL, 0, 0);
    SendMessageA(GetDlgItem(g_bare.hPages[1], IDC_SET_LIST), LB_SETSEL, TRUE, -1);
    CheckDlgButton(g_bare.hPages[0], IDC_NORMALIZE_REGIONS, BST_CHECKED);
    CheckDlgButton(g_bare.hPages[0], IDC_DESTINATION_APPEND, BST_CHECKED);
    CheckDlgButton(g_bare.hPages[1], IDC_SETS_ALL, BST_CHECKED);
    CheckDlgButton(g_bare.hPages[1], IDC_GROUPS_ONE, BST_CHECKED);
}

INT_PTR CALLBACK BareProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM) {
    if (uMsg == WM_COMMAND && LOWORD(wParam) == IDOK) {
        EndDialog(hWnd, IDOK);
        return TRUE;
    }
    if (uMsg != WM_INITDIALOG) return FALSE;
    const HWND hTab = GetDlgItem(hWnd, IDC_TABS);
    const char* szTitles[] = {"Options", "Data"};
    const int nTemplates[] = {IDD_NORMALIZE_OPTIONS, IDD_UNITARY_DATA};
    RECT rc;
    for (int i = 0; i < 2; ++i) {
        TCITEMA item = {};
        item.mask = TCIF_TEXT;
        char szTitle[16];
        std::strcpy(szTitle, szTitles[i]);
        item.pszText = szTitle;
        SendMessageA(hTab, TCM_INSERTITEMA, static_cast<WPARAM>(i),
                     reinterpret_cast<LPARAM>(&item));
    }
    for (int i = 0; i < 2; ++i) {
        g_bare.hPages[i] = CreateDialogParamA(
            GetFrameworkInstance(), MAKEINTRESOURCEA(nTemplates[i]), hTab, BarePageProc, 0);
        GetClientRect(hTab, &rc);
        SendMessageA(hTab, TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&rc));
        MoveWindow(g_bare.hPages[i], rc.left, rc.top, rc.right - rc.left, rc.bottom - rc.top, TRUE);
    }
    FillBarePages();
    ShowWindow(g_bare.hPages[0], SW_SHOW);
    return TRUE;
}

double Median(std::vector<double> v) {
    std::sort(v.begin(), v.end());
    return v[v.size() / 2];
}

}  // namespace

bool MeasureNormalize() {
    const HWND hOwner = CreateOwner();
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
        ZXADLG_ShowNormalizeDialog(hOwner, &options, &data, &source, &params);
    };
    const auto peer = [&] {
        DialogBoxParamA(GetFrameworkInstance(), MAKEINTRESOURCEA(IDD_NORMALIZE), hOwner, BareProc,
                        0);
    };
    std::vector<double> vShow[2], vEnd[2], vShowRatio, vEndRatio;
    for (int i = 0; i < kRounds + 2; ++i) {
        const Times bare = Measure(peer);
        const Times whole = Measure(ours);
        if (i < 2) continue;  // the first of each makes what the others find
        vShow[0].push_back(whole.dShow);
        vShow[1].push_back(bare.dShow);
        vShowRatio.push_back(whole.dShow / bare.dShow);
        vEnd[0].push_back(whole.dEnd);
        vEnd[1].push_back(bare.dEnd);
        vEndRatio.push_back(whole.dEnd / bare.dEnd);
    }
    DestroyWindow(hOwner);
    const bool bShow = PrintTiming("Normalize from Show to its first idle moment",
                                   {Median(vShow[0]), Median(vShow[1]), Median(vShowRatio)}, 1.2);
    return PrintTiming("Normalize from OK to the return",
                       {Median(vEnd[0]), Median(vEnd[1]), Median(vEndRatio)}, 1.3) &&
           bShow;
}
