#include "framework/ADM_PictureWnd.h"

#include "widgets/ModalRun.h"

namespace {

constexpr char kClassName[] = "ZXO_ADM_PictureWndCl32";

// The windows that use the class, of all objects of the process.
int g_nClassUses = 0;

}  // namespace

ADM_PictureWnd::~ADM_PictureWnd() {
    LeaveWindow();
}

void ADM_PictureWnd::LeaveWindow() {
    if (m_hWnd == nullptr || GetWindowLongPtrA(m_hWnd, 0) != reinterpret_cast<LONG_PTR>(this))
        return;
    SetWindowLongPtrA(m_hWnd, 0, 0);
    UnregisterClass(reinterpret_cast<HINSTANCE>(GetWindowLongPtrA(m_hWnd, GWLP_HINSTANCE)));
}

LPCSTR ADM_PictureWnd::GetClassName() const {
    return kClassName;
}

BOOL ADM_PictureWnd::RegisterClass(HINSTANCE hInstance) {
    return AddClassUse(hInstance, kClassName, g_nClassUses);
}

void ADM_PictureWnd::UnregisterClass(HINSTANCE hInstance) {
    DropClassUse(hInstance, kClassName, g_nClassUses);
}

BOOL ADM_PictureWnd::AddClassUse(HINSTANCE hInstance, LPCSTR szName, int& nUses) {
    if (nUses++ > 0) return 1;
    // A class left by an earlier life of this module would call code that is gone.
    ::UnregisterClassA(szName, hInstance);
    WNDCLASSA wc = {};
    wc.style = CS_GLOBALCLASS | CS_HREDRAW | CS_VREDRAW | CS_DBLCLKS;
    wc.lpfnWndProc = WindowProc;
    wc.cbWndExtra = sizeof(LONG_PTR);
    wc.hInstance = hInstance;
    wc.hCursor = LoadCursorA(nullptr, IDC_ARROW);
    wc.lpszClassName = szName;
    // It is there already when its last window is still on its way out.
    return ::RegisterClassA(&wc) != 0 || GetLastError() == ERROR_CLASS_ALREADY_EXISTS;
}

void ADM_PictureWnd::DropClassUse(HINSTANCE hInstance, LPCSTR szName, int& nUses) {
    if (nUses > 0 && --nUses == 0) ::UnregisterClassA(szName, hInstance);
}

BOOL ADM_PictureWnd::Create(HINSTANCE hInstance, LPCSTR szText, DWORD dwStyle, DWORD dwExStyle,
                            int nX, int nY, int nWidth, int nHeight, HWND hParent, int nId) {
    if (RegisterClass(hInstance)) {
        const HMENU hId = reinterpret_cast<HMENU>(static_cast<LONG_PTR>(nId));
        m_hWnd = CreateWindowExA(dwExStyle, GetClassName(), szText, dwStyle, nX, nY, nWidth,
                                 nHeight, hParent, hId, hInstance, this);
    }
    m_hWndCreating = nullptr;
    if (m_hWnd == nullptr) {
        UnregisterClass(hInstance);
        return 0;
    }
    m_nControlId = nId;
    return 1;
}

LRESULT CALLBACK ADM_PictureWnd::WindowProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam) {
    if (uMsg == WM_NCCREATE) {
        const auto* pCreate = reinterpret_cast<const CREATESTRUCTA*>(lParam);
        SetWindowLongPtrA(hWnd, 0, reinterpret_cast<LONG_PTR>(pCreate->lpCreateParams));
    }
    auto* const pThis = reinterpret_cast<ADM_PictureWnd*>(GetWindowLongPtrA(hWnd, 0));
    if (pThis == nullptr) return DefWindowProcA(hWnd, uMsg, wParam, lParam);
    return pThis->Dispatch(hWnd, uMsg, wParam, lParam);
}

LRESULT ADM_PictureWnd::Dispatch(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam) {
    // A handler may send messages that come here again.
    const Message outer = m_message;
    m_message = {hWnd, wParam, lParam};
    const LRESULT nResult = CommonCtls::CallGuarded<LRESULT>(
        hWnd, 0, [=, this] { return Handle(uMsg, wParam, lParam); });
    m_message = outer;
    return nResult;
}

LRESULT ADM_PictureWnd::Handle(UINT uMsg, WPARAM wParam, LPARAM lParam) {
    switch (uMsg) {
        case WM_NCCREATE:
            return OnNcCreate(GetOwnWindow());
        case WM_CREATE:
            return OnCreate() ? 0 : -1;
        case WM_SIZE:
            return OnSize(), 0;
        case WM_SETTEXT:
            return OnSetText();
        case WM_SETFONT:
            return SetFont(reinterpret_cast<HFONT>(wParam), LOWORD(lParam) != 0), 0;
        case WM_GETFONT:
            return reinterpret_cast<LRESULT>(GetFont());
        case WM_PAINT:
            return OnPaint(), 0;
        case WM_NCDESTROY:
            return OnNcDestroy(), 0;
        default:
            return DefaultProc(uMsg, wParam, lParam);
    }
}

BOOL ADM_PictureWnd::OnNcCreate(HWND hWnd) {
    m_hWndCreating = hWnd;
    return static_cast<BOOL>(DefaultProc(WM_NCCREATE, m_message.wParam, m_message.lParam));
}

BOOL ADM_PictureWnd::OnCreate() {
    OnSize();
    return 1;
}

void ADM_PictureWnd::OnSize() {
    ::GetClientRect(GetOwnWindow(), &m_rcClient);
}

LRESULT ADM_PictureWnd::OnSetText() {
    return DefaultProc(WM_SETTEXT, m_message.wParam, m_message.lParam);
}

void ADM_PictureWnd::SetFont(HFONT hFont, BOOL bRedraw) {
    m_hFont = hFont;
    if (bRedraw) Invalidate(TRUE);
}

HFONT ADM_PictureWnd::GetFont() {
    return m_hFont != nullptr ? m_hFont : static_cast<HFONT>(GetStockObject(SYSTEM_FONT));
}

void ADM_PictureWnd::OnPaint() {
    PAINTSTRUCT paint;
    const HDC hDC = BeginPaint(GetOwnWindow(), &paint);
    if (hDC == nullptr) return;
    const HGDIOBJ hOld = SelectObject(hDC, GetFont());
    Draw(hDC);
    SelectObject(hDC, hOld);
    EndPaint(GetOwnWindow(), &paint);
}

void ADM_PictureWnd::Draw(HDC hDC) {
    const HWND hWnd = GetOwnWindow();
    auto hBrush = reinterpret_cast<HBRUSH>(SendMessageA(::GetParent(hWnd), WM_CTLCOLORSTATIC,
                                                        reinterpret_cast<WPARAM>(hDC),
                                                        reinterpret_cast<LPARAM>(hWnd)));
    if (hBrush == nullptr) hBrush = GetSysColorBrush(COLOR_3DFACE);
    FillRect(hDC, &m_rcClient, hBrush);
}

void ADM_PictureWnd::OnNcDestroy() {
    const HWND hWnd = GetOwnWindow();
    // The system frees the window's text in this message.
    DefaultProc(WM_NCDESTROY, m_message.wParam, m_message.lParam);
    SetWindowLongPtrA(hWnd, 0, 0);
    UnregisterClass(reinterpret_cast<HINSTANCE>(GetWindowLongPtrA(hWnd, GWLP_HINSTANCE)));
    if (m_hWnd == hWnd) m_hWnd = nullptr;
    m_hWndCreating = nullptr;
}

HWND ADM_PictureWnd::GetOwnWindow() const {
    if (m_message.hWnd != nullptr) return m_message.hWnd;
    return m_hWnd != nullptr ? m_hWnd : m_hWndCreating;
}

LRESULT ADM_PictureWnd::DefaultProc(UINT uMsg, WPARAM wParam, LPARAM lParam) {
    return DefWindowProcA(GetOwnWindow(), uMsg, wParam, lParam);
}

void ADM_PictureWnd::OnAttach() {
    if (m_hWnd == nullptr) {
        m_bAttached = FALSE;
        return;
    }
    if (m_bAttached) return;
    ReplaceTemplateItem(::GetParent(m_hWnd));
    m_bAttached = TRUE;
}

void ADM_PictureWnd::ReplaceTemplateItem(HWND hParent) {
    const HWND hItem = m_hWnd;
    char szText[256] = {};
    ::GetWindowTextA(hItem, szText, sizeof szText);
    const auto hItemFont = reinterpret_cast<HFONT>(SendMessageA(hItem, WM_GETFONT, 0, 0));
    RECT rc;
    ::GetWindowRect(hItem, &rc);
    MapWindowPoints(nullptr, hParent, reinterpret_cast<POINT*>(&rc), 2);
    const DWORD dwStyle = static_cast<DWORD>(GetWindowLongPtrA(hItem, GWL_STYLE));
    const DWORD dwExStyle = static_cast<DWORD>(GetWindowLongPtrA(hItem, GWL_EXSTYLE));
    const auto hInstance = reinterpret_cast<HINSTANCE>(GetWindowLongPtrA(hParent, GWLP_HINSTANCE));
    m_hWnd = nullptr;
    if (!Create(hInstance, szText, dwStyle | WS_CHILD | WS_VISIBLE, dwExStyle, rc.left, rc.top,
                rc.right - rc.left, rc.bottom - rc.top, hParent, GetDlgCtrlID(hItem))) {
        return;
    }
    SetWindowPos(m_hWnd, hItem, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    DestroyWindow(hItem);
    SetFont(hItemFont, TRUE);
}
