// A tabbed dialog from the Show call to its first idle moment, and from OK to the return, against a
// bare dialog of the same templates with the same items in them.
#pragma once

#include <chrono>
#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include "PairedTiming.h"
#include "ids.h"
#include "platform/platform.h"
#include "widgets/FrameworkSetup.h"

namespace opening {

struct BarePage {
    int nTemplate;
    const char* szTitle;
};

struct BareDialog {
    int nTemplate;
    std::vector<BarePage> pages;
    std::function<void(const std::vector<HWND>&)> fill;
};

using Clock = std::chrono::steady_clock;

// The dialog under measurement: the owner is told when its loop has nothing to do, and OK is
// pressed.
struct State {
    Clock::time_point idle;
    bool bIdle = false;
    const BareDialog* pBare = nullptr;
};

inline State& Current() {
    static State s_state;
    return s_state;
}

inline LRESULT CALLBACK OwnerProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam) {
    if (uMsg == WM_ENTERIDLE && !Current().bIdle) {
        Current().bIdle = true;
        Current().idle = Clock::now();
        const auto hDialog = reinterpret_cast<HWND>(lParam);
        PostMessageA(hDialog, WM_COMMAND, IDOK,
                     reinterpret_cast<LPARAM>(GetDlgItem(hDialog, IDOK)));
    }
    return DefWindowProcA(hWnd, uMsg, wParam, lParam);
}

inline HWND CreateOwner() {
    WNDCLASSA wc = {};
    wc.lpfnWndProc = OwnerProc;
    wc.hInstance = GetModuleHandleA(nullptr);
    wc.lpszClassName = "ZxBenchTabbedOwner";
    RegisterClassA(&wc);
    return CreateWindowExA(0, wc.lpszClassName, "", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 640,
                           480, nullptr, nullptr, wc.hInstance, nullptr);
}

inline INT_PTR CALLBACK BarePageProc(HWND, UINT uMsg, WPARAM, LPARAM) {
    return uMsg == WM_INITDIALOG;
}

inline INT_PTR CALLBACK BareProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM) {
    if (uMsg == WM_COMMAND && LOWORD(wParam) == IDOK) return EndDialog(hWnd, IDOK), TRUE;
    if (uMsg != WM_INITDIALOG) return FALSE;
    const BareDialog& bare = *Current().pBare;
    const HWND hTab = GetDlgItem(hWnd, IDC_TABS);
    std::vector<HWND> vPages;
    for (const BarePage& page : bare.pages) {
        std::string sTitle = page.szTitle;
        TCITEMA item = {};
        item.mask = TCIF_TEXT;
        item.pszText = sTitle.data();
        SendMessageA(hTab, TCM_INSERTITEMA, vPages.size(), reinterpret_cast<LPARAM>(&item));
        vPages.push_back(nullptr);
    }
    for (std::size_t i = 0; i < vPages.size(); ++i) {
        vPages[i] =
            CreateDialogParamA(GetFrameworkInstance(), MAKEINTRESOURCEA(bare.pages[i].nTemplate),
                               hTab, BarePageProc, 0);
        RECT rc;
        GetClientRect(hTab, &rc);
        SendMessageA(hTab, TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&rc));
        MoveWindow(vPages[i], rc.left, rc.top, rc.right - rc.left, rc.bottom - rc.top, TRUE);
    }
    bare.fill(vPages);
    ShowWindow(vPages[0], SW_SHOW);
    return TRUE;
}

struct Times {
    double dShow;
    double dEnd;
};

inline Times Measure(const std::function<void()>& show) {
    Current().bIdle = false;
    const auto start = Clock::now();
    show();
    const auto end = Clock::now();
    const auto ms = [](auto d) { return std::chrono::duration<double, std::milli>(d).count(); };
    return {ms(Current().idle - start), ms(end - Current().idle)};
}

inline double Median(std::vector<double> v) {
    std::sort(v.begin(), v.end());
    return v[v.size() / 2];
}

// Prints both figures; whether they met their targets.
inline bool MeasureOpening(const std::string& sName, const std::function<void(HWND)>& show,
                           const BareDialog& bare, double dShowTarget, double dEndTarget) {
    constexpr int kRounds = 15;
    const HWND hOwner = CreateOwner();
    Current().pBare = &bare;
    const auto peer = [&] {
        DialogBoxParamA(GetFrameworkInstance(), MAKEINTRESOURCEA(bare.nTemplate), hOwner, BareProc,
                        0);
    };
    std::vector<double> vShow[2], vEnd[2], vShowRatio, vEndRatio;
    for (int i = 0; i < kRounds + 2; ++i) {
        const Times theirs = Measure(peer);
        const Times ours = Measure([&] { show(hOwner); });
        if (i < 2) continue;  // the first of each makes what the others find
        vShow[0].push_back(ours.dShow);
        vShow[1].push_back(theirs.dShow);
        vShowRatio.push_back(ours.dShow / theirs.dShow);
        vEnd[0].push_back(ours.dEnd);
        vEnd[1].push_back(theirs.dEnd);
        vEndRatio.push_back(ours.dEnd / theirs.dEnd);
    }
    DestroyWindow(hOwner);
    const bool bShow =
        PrintTiming((sName + " from Show to its first idle moment").c_str(),
                    {Median(vShow[0]), Median(vShow[1]), Median(vShowRatio)}, dShowTarget);
    return PrintTiming((sName + " from OK to the return").c_str(),
                       {Median(vEnd[0]), Median(vEnd[1]), Median(vEndRatio)}, dEndTarget) &&
           bShow;
}

inline void AddItem(HWND hPage, int nId, UINT uMsg, const char* szText) {
    SendMessageA(GetDlgItem(hPage, nId), uMsg, 0, reinterpret_cast<LPARAM>(szText));
}

}  // namespace opening
