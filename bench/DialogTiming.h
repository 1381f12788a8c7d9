// A modal dialog timed from outside: from the call that shows it to its first idle moment, and from
// the OK that is then pressed to the return of the call. Its peer is a bare dialog of the same
// templates.
#pragma once

#include <chrono>
#include <cstring>
#include <functional>
#include <vector>

#include "PairedTiming.h"
#include "platform/platform.h"

class DialogTiming {
  public:
    struct Ratios {
        PairedTiming show;
        PairedTiming end;
    };

    // Makes the window that owns the dialogs: it is told when a dialog has nothing to do.
    DialogTiming() {
        WNDCLASSA wc = {};
        wc.lpfnWndProc = OwnerProc;
        wc.hInstance = GetModuleHandleA(nullptr);
        wc.lpszClassName = "ZxBenchOwner";
        RegisterClassA(&wc);
        m_hOwner = CreateWindowExA(0, wc.lpszClassName, "", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0,
                                   640, 480, nullptr, nullptr, wc.hInstance, nullptr);
        SetWindowLongPtrA(m_hOwner, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    }
    ~DialogTiming() { DestroyWindow(m_hOwner); }
    DialogTiming(const DialogTiming&) = delete;
    DialogTiming& operator=(const DialogTiming&) = delete;

    HWND GetOwner() const { return m_hOwner; }

    // What is to be done at the first idle moment of the next dialog, once.
    void AtIdle(std::function<void(HWND)> work) { m_atIdle = std::move(work); }
    static void Press(HWND hDialog, int nId) {
        PostMessageA(hDialog, WM_COMMAND, static_cast<WPARAM>(nId),
                     reinterpret_cast<LPARAM>(GetDlgItem(hDialog, nId)));
    }

    // Each callable shows its dialog and returns when it has closed. The first of each makes what
    // the others find, and does not count.
    Ratios TimeInTurn(int nRounds, const std::function<void()>& ours,
                      const std::function<void()>& peer) {
        std::vector<double> vShow[3], vEnd[3];
        for (int i = -2; i < nRounds; ++i) {
            const Times bare = Time(peer);
            const Times whole = Time(ours);
            if (i < 0) continue;
            vShow[0].push_back(whole.dShow);
            vShow[1].push_back(bare.dShow);
            vShow[2].push_back(whole.dShow / bare.dShow);
            vEnd[0].push_back(whole.dEnd);
            vEnd[1].push_back(bare.dEnd);
            vEnd[2].push_back(whole.dEnd / bare.dEnd);
        }
        const auto medians = [](std::vector<double>(&v)[3]) -> PairedTiming {
            return {Median(v[0]), Median(v[1]), Median(v[2])};
        };
        return {medians(vShow), medians(vEnd)};
    }

  private:
    struct Times {
        double dShow;
        double dEnd;
    };

    Times Time(const std::function<void()>& show) {
        using Clock = std::chrono::steady_clock;
        Clock::time_point idle;
        AtIdle([&](HWND hDialog) {
            idle = Clock::now();
            Press(hDialog, IDOK);
        });
        const auto start = Clock::now();
        show();
        const auto end = Clock::now();
        const auto ms = [](auto d) { return std::chrono::duration<double, std::milli>(d).count(); };
        return {ms(idle - start), ms(end - idle)};
    }

    static LRESULT CALLBACK OwnerProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam) {
        auto* pThis = reinterpret_cast<DialogTiming*>(GetWindowLongPtrA(hWnd, GWLP_USERDATA));
        if (uMsg == WM_ENTERIDLE && pThis != nullptr && pThis->m_atIdle) {
            const auto atIdle = std::move(pThis->m_atIdle);
            pThis->m_atIdle = nullptr;
            atIdle(reinterpret_cast<HWND>(lParam));
        }
        return DefWindowProcA(hWnd, uMsg, wParam, lParam);
    }

    HWND m_hOwner;
    std::function<void(HWND)> m_atIdle;
};

// --- The pages of a bare dialog.

struct BarePage {
    const char* szTitle;
    int nTemplate;
};

inline INT_PTR CALLBACK BarePageProc(HWND, UINT uMsg, WPARAM, LPARAM) {
    return uMsg == WM_INITDIALOG;
}

// A tab and a page for each; none is shown yet.
inline std::vector<HWND> CreateBarePages(HINSTANCE hInstance, HWND hTab,
                                         const std::vector<BarePage>& pages) {
    std::vector<HWND> windows;
    for (const BarePage& page : pages) {
        char szTitle[32];
        std::strcpy(szTitle, page.szTitle);
        TCITEMA item = {};
        item.mask = TCIF_TEXT;
        item.pszText = szTitle;
        SendMessageA(hTab, TCM_INSERTITEMA, windows.size(), reinterpret_cast<LPARAM>(&item));
        windows.push_back(
            CreateDialogParamA(hInstance, MAKEINTRESOURCEA(page.nTemplate), hTab, BarePageProc, 0));
    }
    RECT rc;
    GetClientRect(hTab, &rc);
    SendMessageA(hTab, TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&rc));
    for (const HWND hPage : windows)
        MoveWindow(hPage, rc.left, rc.top, rc.right - rc.left, rc.bottom - rc.top, TRUE);
    return windows;
}

// Ends a bare dialog at its OK. TRUE where that was the message.
inline BOOL EndBareAtOk(HWND hWnd, UINT uMsg, WPARAM wParam) {
    return uMsg == WM_COMMAND && LOWORD(wParam) == IDOK ? EndDialog(hWnd, IDOK) : FALSE;
}
