#include "framework/ADM_Window_Position.h"

#include "store/ProfileStore.h"
#include "text/BoundedText.h"

namespace {

constexpr char kInitialized[] = "Initialized";
constexpr char kXPosition[] = "XPosition";
constexpr char kYPosition[] = "YPosition";

// The height that must be on a monitor: that of the title bar, or of a window without one.
int HeightThatCounts(HWND hWnd, const RECT& rcWindow) {
    const LONG_PTR nStyle = GetWindowLongPtrA(hWnd, GWL_STYLE);
    if ((nStyle & WS_CAPTION) != WS_CAPTION) return rcWindow.bottom - rcWindow.top;
    return GetSystemMetrics(SM_CYCAPTION) +
           GetSystemMetrics((nStyle & WS_THICKFRAME) != 0 ? SM_CYFRAME : SM_CYBORDER);
}

}  // namespace

BOOL ADM_Window_Position::Restore(HWND hWnd) {
    if (!m_bInitialized) return 0;
    RECT rcWindow;
    GetWindowRect(hWnd, &rcWindow);
    RECT rcThere;
    SetRect(&rcThere, m_nX, m_nY, m_nX + (rcWindow.right - rcWindow.left),
            m_nY + HeightThatCounts(hWnd, rcWindow));
    if (MonitorFromRect(&rcThere, MONITOR_DEFAULTTONULL) != nullptr) {
        SetWindowPos(hWnd, nullptr, m_nX, m_nY, 0, 0,
                     SWP_NOSIZE | SWP_NOZORDER | SWP_NOREDRAW | SWP_NOACTIVATE | SWP_NOOWNERZORDER);
    }
    return 1;
}

void ADM_Window_Position::Save(HWND hWnd) {
    RECT rc;
    if (!GetWindowRect(hWnd, &rc)) return;
    m_nX = rc.left;
    m_nY = rc.top;
    m_bInitialized = TRUE;
    if (!m_bPersistent) return;
    WriteBool(m_szSection, kInitialized, TRUE, m_szApp);
    WriteInt32(m_szSection, kXPosition, m_nX, m_szApp);
    WriteInt32(m_szSection, kYPosition, m_nY, m_szApp);
}

void ADM_Window_Position::Load(LPCSTR szSection, LPCSTR szApp) {
    m_bPersistent = TRUE;
    CopyText(m_szSection, szSection);
    CopyText(m_szApp, szApp);
    ReadBool(m_szSection, kInitialized, FALSE, &m_bInitialized, m_szApp);
    ReadInt32(m_szSection, kXPosition, 0, &m_nX, m_szApp);
    ReadInt32(m_szSection, kYPosition, 0, &m_nY, m_szApp);
}
