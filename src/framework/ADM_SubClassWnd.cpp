#include "framework/ADM_SubClassWnd.h"

#include "framework/WindowMap.h"
#include "widgets/ModalRun.h"

namespace {

constexpr char kThisProp[] = "ADM_ThisProp";
constexpr char kOldProcProp[] = "ADM_OldWndProc";

// What the two properties of a hooked window hold.
struct Hook {
    ADM_SubClassWnd* pThis = nullptr;
    WNDPROC pOld = nullptr;
};

WindowMap<Hook>& Hooks() {
    static WindowMap<Hook> hooks;
    return hooks;
}

LRESULT CallOldProc(WNDPROC pOld, HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam) {
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
    if (Hook* const pHook = Hooks().Find(m_hWnd)) {
        // Hooked already; a chain that was left without an object takes this one.
        if (pHook->pThis == nullptr && ::SetPropA(m_hWnd, kThisProp, this)) pHook->pThis = this;
        return;
    }
    if (::GetPropA(m_hWnd, kOldProcProp) != nullptr) return;
    if (!::SetPropA(m_hWnd, kThisProp, this)) return;
    // The replacement may send messages already.
    Hooks().Set(m_hWnd,
                {this, reinterpret_cast<WNDPROC>(::GetWindowLongPtrA(m_hWnd, GWLP_WNDPROC))});
    const LONG_PTR nOld =
        ::SetWindowLongPtrA(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&HookProc));
    ::SetPropA(m_hWnd, kOldProcProp, reinterpret_cast<HANDLE>(nOld));
    Hooks().Set(m_hWnd, {this, reinterpret_cast<WNDPROC>(nOld)});
}

LRESULT ADM_SubClassWnd::SubclassProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam) {
    const Hook* const pHook = Hooks().Find(hWnd);
    return CallOldProc(pHook != nullptr ? pHook->pOld : nullptr, hWnd, uMsg, wParam, lParam);
}

LRESULT CALLBACK ADM_SubClassWnd::HookProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam) {
    return CommonCtls::CallGuarded<LRESULT>(
        hWnd, 0, [=] { return OnHookedMessage(hWnd, uMsg, wParam, lParam); });
}

LRESULT ADM_SubClassWnd::OnHookedMessage(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam) {
    const Hook* const pHook = Hooks().Find(hWnd);
    if (pHook == nullptr) return ::DefWindowProcA(hWnd, uMsg, wParam, lParam);
    if (uMsg != WM_NCDESTROY) {
        return pHook->pThis != nullptr ? pHook->pThis->SubclassProc(hWnd, uMsg, wParam, lParam)
                                       : CallOldProc(pHook->pOld, hWnd, uMsg, wParam, lParam);
    }
    const Hook hook = *pHook;
    Hooks().Erase(hWnd);
    if (hook.pOld != nullptr) {
        ::SetWindowLongPtrA(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(hook.pOld));
    }
    ::RemovePropA(hWnd, kThisProp);
    ::RemovePropA(hWnd, kOldProcProp);
    // The control's own procedure frees its state in this message.
    if (hook.pOld != nullptr) ::CallWindowProcA(hook.pOld, hWnd, uMsg, wParam, lParam);
    if (hook.pThis != nullptr && hook.pThis->m_hWnd == hWnd) hook.pThis->Attach(nullptr);
    return 0;
}

void ADM_SubClassWnd::Unhook() {
    Hook* const pHook = m_hWnd != nullptr ? Hooks().Find(m_hWnd) : nullptr;
    if (pHook == nullptr || pHook->pThis != this) return;
    pHook->pThis = nullptr;
    ::RemovePropA(m_hWnd, kThisProp);
    // When somebody else hooked the window after this object, the chain through HookProc stays
    // until the window goes; with no object it passes every message on.
    if (::GetWindowLongPtrA(m_hWnd, GWLP_WNDPROC) != reinterpret_cast<LONG_PTR>(&HookProc)) return;
    ::SetWindowLongPtrA(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(pHook->pOld));
    ::RemovePropA(m_hWnd, kOldProcProp);
    Hooks().Erase(m_hWnd);
}
