#include "framework/ADM_SubClassWnd.h"

namespace {

constexpr char kThisProp[] = "ADM_ThisProp";
constexpr char kOldProcProp[] = "ADM_OldWndProc";

WNDPROC OldProc(HWND hWnd) {
    return reinterpret_cast<WNDPROC>(::GetPropA(hWnd, kOldProcProp));
}

LRESULT CallOldProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam) {
    const WNDPROC pOld = OldProc(hWnd);
    return pOld != nullptr ? ::CallWindowProcA(pOld, hWnd, uMsg, wParam, lParam)
                           : ::DefWindowProcA(hWnd, uMsg, wParam, lParam);
}

}  // namespace

ADM_SubClassWnd::~ADM_SubClassWnd() {
    Unhook();
}

void ADM_SubClassWnd::Attach(HWND hWnd) {
    if (hWnd != m_hWnd) Unhook();
    ADM_Wnd::Attach(hWnd);
}

void ADM_SubClassWnd::OnAttach() {
    if (m_hWnd == nullptr) return;
    if (OldProc(m_hWnd) != nullptr) {
        // Hooked already; a chain that was left without an object takes this one.
        if (::GetPropA(m_hWnd, kThisProp) == nullptr) ::SetPropA(m_hWnd, kThisProp, this);
        return;
    }
    if (!::SetPropA(m_hWnd, kThisProp, this)) return;
    const LONG_PTR nOld =
        ::SetWindowLongPtrA(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&HookProc));
    ::SetPropA(m_hWnd, kOldProcProp, reinterpret_cast<HANDLE>(nOld));
}

LRESULT ADM_SubClassWnd::SubclassProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam) {
    return CallOldProc(hWnd, uMsg, wParam, lParam);
}

LRESULT CALLBACK ADM_SubClassWnd::HookProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam) {
    auto* const pThis = static_cast<ADM_SubClassWnd*>(::GetPropA(hWnd, kThisProp));
    if (uMsg == WM_NCDESTROY) {
        const WNDPROC pOld = OldProc(hWnd);
        if (pOld != nullptr) {
            ::SetWindowLongPtrA(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(pOld));
        }
        ::RemovePropA(hWnd, kThisProp);
        ::RemovePropA(hWnd, kOldProcProp);
        // The control's own procedure frees its state in this message.
        if (pOld != nullptr) ::CallWindowProcA(pOld, hWnd, uMsg, wParam, lParam);
        if (pThis != nullptr && pThis->m_hWnd == hWnd) pThis->Attach(nullptr);
        return 0;
    }
    return pThis != nullptr ? pThis->SubclassProc(hWnd, uMsg, wParam, lParam)
                            : CallOldProc(hWnd, uMsg, wParam, lParam);
}

void ADM_SubClassWnd::Unhook() {
    if (m_hWnd == nullptr || ::GetPropA(m_hWnd, kThisProp) != this) return;
    ::RemovePropA(m_hWnd, kThisProp);
    // When somebody else hooked the window after this object, the chain through HookProc stays
    // until the window goes; with no object it passes every message on.
    if (::GetWindowLongPtrA(m_hWnd, GWLP_WNDPROC) != reinterpret_cast<LONG_PTR>(&HookProc)) return;
    ::SetWindowLongPtrA(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(OldProc(m_hWnd)));
    ::RemovePropA(m_hWnd, kOldProcProp);
}
