#include "widgets/ModalRun.h"

#include <exception>

namespace CommonCtls {

namespace {

ModalRun* s_pInnermost = nullptr;

// What was thrown last, for those that have to throw it on.
std::exception_ptr s_pThrown;

}  // namespace

ModalRun::ModalRun() : m_pOuter(s_pInnermost) {
    s_pInnermost = this;
}

ModalRun::~ModalRun() {
    s_pInnermost = m_pOuter;
    if (m_pOuter == nullptr) s_pThrown = nullptr;
}

void ModalRun::SetWindow(HWND hDialog) {
    m_hDialog = hDialog;
    if (m_bFailed) EndDialog(hDialog, -1);
}

INT_PTR ModalRun::Result(INT_PTR nResult) const {
    for (const ModalRun* pOuter = m_pOuter; pOuter != nullptr; pOuter = pOuter->m_pOuter) {
        if (pOuter->m_bFailed) std::rethrow_exception(s_pThrown);
    }
    return m_bFailed ? -1 : nResult;
}

ModalRun* ModalRun::RunOf(HWND hWnd) {
    // A dialog whose items are being made is not known to them yet.
    if (s_pInnermost == nullptr || s_pInnermost->m_hDialog == nullptr) return s_pInnermost;
    for (; hWnd != nullptr; hWnd = GetParent(hWnd)) {
        for (ModalRun* pRun = s_pInnermost; pRun != nullptr; pRun = pRun->m_pOuter) {
            if (pRun->m_hDialog == hWnd) return pRun;
        }
    }
    return s_pInnermost;
}

void ModalRun::Fail(HWND hWnd) noexcept {
    const std::exception_ptr pThrown = std::current_exception();
    ModalRun* const pFailed = RunOf(hWnd);
    if (pFailed == nullptr) return;
    s_pThrown = pThrown;
    pFailed->m_bFailed = true;
    for (ModalRun* pRun = s_pInnermost; pRun != pFailed->m_pOuter; pRun = pRun->m_pOuter) {
        if (pRun->m_hDialog != nullptr) EndDialog(pRun->m_hDialog, -1);
    }
}

}  // namespace CommonCtls
