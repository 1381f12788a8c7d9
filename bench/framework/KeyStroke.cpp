// One key stroke in a validated field: the character filter, the change, the reading of the value,
// the posted requests and one update of the dialog. The peer is the same template with a plain
// procedure that posts as many messages, so that what the window system itself costs shows beside
// it.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "AllocationCount.h"
#include "Benchmarks.h"
#include "framework/ADM_Button.h"
#include "framework/ADM_Dialog.h"
#include "framework/ADM_DoubleText.h"
#include "framework/PrivateMessages.h"
#include "key_stroke.rh"
#include "widgets/Framework.h"

namespace {

constexpr int kRounds = 11;
constexpr int kStrokes = 2000;  // in each round

class FieldDialog : public ADM_Dialog {
  public:
    FieldDialog() {
        m_field.SetFieldName("Cutoff");
        m_field.SetRange(0, 1e6);
        m_field.SetValue(1234.5);
        RegisterControl(IDC_KEY_FIELD, &m_field);
        RegisterControl(IDC_KEY_BUTTON, &m_button);
    }
    void UpdateControls() override {
        ++m_nUpdates;
        m_button.Enable(m_field.Validate(1, nullptr));
    }
    int m_nUpdates = 0;

  private:
    ADM_DoubleText m_field;
    ADM_Button m_button;
};

INT_PTR CALLBACK PlainProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM) {
    if (uMsg == WM_COMMAND && HIWORD(wParam) == EN_CHANGE) {
        PostMessageA(hWnd, ADMM_APPLY_LATER, 0, 0);
        PostMessageA(hWnd, ADMM_UPDATE_CONTROLS, 0, 0);
    }
    return uMsg == WM_INITDIALOG;
}

void Drain(HWND hDialog) {
    MSG msg;
    while (PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE)) {
        if (IsDialogMessageA(hDialog, &msg)) continue;
        TranslateMessage(&msg);
        DispatchMessageA(&msg);
    }
}

// A character and, next time, its deletion, so that the text stays as long as it is.
void Stroke(HWND hDialog, HWND hField, int nStroke) {
    SendMessageA(hField, WM_CHAR, nStroke % 2 == 0 ? '5' : '\b', 1);
    Drain(hDialog);
}

struct Figures {
    double dMicroseconds = 0;  // the median of one stroke
    double dAllocations = 0;   // of one stroke
};

Figures Measure(HWND hDialog) {
    const HWND hField = GetDlgItem(hDialog, IDC_KEY_FIELD);
    SetFocus(hField);
    SendMessageA(hField, EM_SETSEL, 32767, 32767);
    Drain(hDialog);
    for (int i = 0; i < kStrokes; ++i) Stroke(hDialog, hField, i);
    std::vector<double> times;
    const std::size_t nBefore = AllocationCount();
    std::size_t nOurs = 0;
    for (int nRound = 0; nRound < kRounds; ++nRound) {
        const auto start = std::chrono::steady_clock::now();
        for (int i = 0; i < kStrokes; ++i) Stroke(hDialog, hField, i);
        const std::chrono::duration<double, std::micro> spent =
            std::chrono::steady_clock::now() - start;
        nOurs = AllocationCount() - nBefore;
        times.push_back(spent.count() / kStrokes);
    }
    std::sort(times.begin(), times.end());
    // The list of times itself takes a few.
    return {times[times.size() / 2], static_cast<double>(nOurs) / (kRounds * kStrokes)};
}

bool PrintRow(const char* szWhat, double dFigure, double dTarget) {
    const bool bGood = dTarget < 0 || dFigure <= dTarget;
    std::printf("%-56s %8.3f", szWhat, dFigure);
    if (dTarget >= 0) std::printf(" %8.3f  %s", dTarget, bGood ? "ok" : "MISSED");
    std::printf("\n");
    return bGood;
}

}  // namespace

bool MeasureKeyStroke() {
    const HINSTANCE hInstance = GetModuleHandleA(nullptr);
    const LPCSTR szTemplate = MAKEINTRESOURCEA(IDD_KEY_STROKE);
    InitDialogFramework(hInstance);

    const HWND hPlain = CreateDialogParamA(hInstance, szTemplate, nullptr, PlainProc, 0);
    FieldDialog dialog;
    if (hPlain == nullptr || !dialog.CreateModeless(hInstance, szTemplate, nullptr)) {
        std::printf("the dialogs of the key stroke cannot be created\n");
        return false;
    }
    SetDlgItemTextA(hPlain, IDC_KEY_FIELD, "1234.5");
    const Figures plain = Measure(hPlain);
    DestroyWindow(hPlain);
    const Figures ours = Measure(dialog.GetHandle());
    const int nUpdates = dialog.m_nUpdates;
    dialog.Destroy();

#ifdef ZX_KEY_STROKE_TARGET_US
    const double dTarget = ZX_KEY_STROKE_TARGET_US;
#else
    const double dTarget = -1;
#endif
    std::printf("%-56s %8s %8s\n", "one key stroke", "is", "target");
    bool bGood = PrintRow("plain dialog, us", plain.dMicroseconds, -1);
    bGood = PrintRow("validated field with one update, us", ours.dMicroseconds, dTarget) && bGood;
    bGood = PrintRow("allocations beyond those of the plain dialog",
                     std::max(0.0, ours.dAllocations - plain.dAllocations), 0.001) &&
            bGood;
    bGood =
        PrintRow("updates", static_cast<double>(nUpdates) / ((kRounds + 1) * kStrokes), 1.001) &&
        bGood;
    return bGood;
}
