#include "widgets/Framework.h"

#include <iterator>

#include "widgets/ProgressBar.h"
#include "widgets/Spinner.h"

namespace {

struct ClassRow {
    LPCSTR szName;
    WNDPROC pProc;
};

constexpr ClassRow kClasses[] = {
    {CommonCtls::kProgressBarClass, &CommonCtls::ProgressBarProc},
    {CommonCtls::kHorizontalSpinnerClass, &CommonCtls::HorizontalSpinnerProc},
    {CommonCtls::kVerticalSpinnerClass, &CommonCtls::VerticalSpinnerProc},
};

HINSTANCE g_hInstance = nullptr;
bool g_bReady = false;

bool RegisterOne(const ClassRow& row) {
    WNDCLASSA wc = {};
    if (::GetClassInfoA(g_hInstance, row.szName, &wc)) return true;
    wc = {};
    wc.style = CS_HREDRAW | CS_VREDRAW | CS_GLOBALCLASS;
    wc.lpfnWndProc = row.pProc;
    wc.cbWndExtra = static_cast<int>(sizeof(LONG_PTR));  // the object
    wc.hInstance = g_hInstance;
    wc.hCursor = ::LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_ARROW));
    wc.lpszClassName = row.szName;
    return ::RegisterClassA(&wc) != 0;
}

}  // namespace

BOOL InitDialogFramework(HINSTANCE hInstance) {
    g_hInstance = hInstance;
    bool bAll = true;
    for (const ClassRow& row : kClasses) bAll = RegisterOne(row) && bAll;
    ::InitCommonControls();
    g_bReady = true;
    return bAll;
}

BOOL IsDialogFrameworkReady() {
    return g_bReady;
}

HINSTANCE GetFrameworkInstance() {
    return g_hInstance;
}

void ShutDownDialogFramework() {
    if (!g_bReady) return;
    for (auto row = std::rbegin(kClasses); row != std::rend(kClasses); ++row) {
        ::UnregisterClassA(row->szName, g_hInstance);
    }
    g_bReady = false;
}
