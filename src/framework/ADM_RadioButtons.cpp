#include "framework/ADM_RadioButtons.h"

#include <algorithm>
#include <cstdarg>
#include <iterator>
#include <numeric>

#include "framework/ADM_Dialog.h"

ADM_RadioButtons::ADM_RadioButtons() {
    m_nControlId = kNoItem;
}

BOOL ADM_RadioButtons::Setup(ADM_Dialog* pDialog, int nFirstId, int nLastId) {
    return Setup(pDialog, nFirstId, nLastId, 0, nullptr);
}

BOOL ADM_RadioButtons::Setup(ADM_Dialog* pDialog, int nFirstId, int nLastId, int nValues,
                             const int* pnValues) {
    if (nLastId < nFirstId) return 0;
    std::vector<int> anIds(static_cast<std::size_t>(nLastId - nFirstId + 1));
    std::iota(anIds.begin(), anIds.end(), nFirstId);
    const BOOL bRegistered = SetupIds(pDialog, nLastId - nFirstId + 1, anIds.data(), nullptr);
    if (pnValues != nullptr) {
        m_anValues.assign(pnValues, pnValues + std::clamp(nValues, 0, m_nCount));
    }
    return bRegistered;
}

BOOL ADM_RadioButtons::SetupIds(ADM_Dialog* pDialog, int nButtons, const int* pnIds,
                                const int* pnValues) {
    if (pDialog == nullptr || nButtons < 1 || pnIds == nullptr) return 0;
    m_pDialog = pDialog;
    m_nCount = nButtons;
    m_pButtons = std::make_unique<Button[]>(static_cast<std::size_t>(m_nCount));
    for (int i = 0; i < m_nCount; ++i) m_pButtons[i].nId = pnIds[i];
    m_anValues.clear();
    if (pnValues != nullptr) m_anValues.assign(pnValues, pnValues + nButtons);
    m_bBound = FALSE;
    const BOOL bRegistered = pDialog->RegisterControl(kNoItem, this);
    if (pDialog->GetHandle() != nullptr) OnAttach();
    return bRegistered;
}

BOOL ADM_RadioButtons::SetupValues(ADM_Dialog* pDialog, int nFirstId, int nLastId, int nValues,
                                   ...) {
    std::vector<int> anValues;
    va_list args;
    va_start(args, nValues);
    for (int i = 0; i < nValues; ++i) anValues.push_back(va_arg(args, int));
    va_end(args);
    return Setup(pDialog, nFirstId, nLastId, nValues, anValues.data());
}

void ADM_RadioButtons::OnAttach() {
    if (m_hDialogWnd == nullptr) {
        m_bBound = FALSE;
        for (int i = 0; i < m_nCount; ++i) m_pButtons[i].hWnd = nullptr;
        return;
    }
    if (!m_bBound) FindButtons();
    CheckSelected();
}

void ADM_RadioButtons::FindButtons() {
    for (int i = 0; i < m_nCount; ++i) {
        m_pButtons[i].hWnd = ::GetDlgItem(m_pDialog->GetHandle(), m_pButtons[i].nId);
    }
    m_bBound = TRUE;
}

void ADM_RadioButtons::CheckSelected() {
    for (int i = 0; i < m_nCount; ++i) {
        const WPARAM uCheck = i == m_nSelected ? BST_CHECKED : BST_UNCHECKED;
        if (m_pButtons[i].hWnd != nullptr)
            ::SendMessageA(m_pButtons[i].hWnd, BM_SETCHECK, uCheck, 0);
    }
}

void ADM_RadioButtons::ReadControl() {
    for (int i = 0; i < m_nCount; ++i) {
        const HWND hWnd = m_pButtons[i].hWnd;
        if (hWnd == nullptr || ::SendMessageA(hWnd, BM_GETCHECK, 0, 0) != BST_CHECKED) continue;
        m_nSelected = i;
        return;
    }
}

void ADM_RadioButtons::SaveInitialValue() {
    ReadControl();
    m_nInitial = m_nSelected;
}

BOOL ADM_RadioButtons::HasChanged() {
    // Required: unlike the other controls, a set compares whether changes are tracked or not.
    ReadControl();
    return m_nSelected != m_nInitial;
}

BOOL ADM_RadioButtons::IsHandle(HWND hWnd) {
    if (hWnd == nullptr) return 0;
    return std::any_of(m_pButtons.get(), m_pButtons.get() + m_nCount,
                       [hWnd](const Button& button) { return button.hWnd == hWnd; });
}

void ADM_RadioButtons::OnCommand(HWND, int nId, HWND, int nCode) {
    // Indexed by the platform's BN_ codes.
    static constexpr int kNotifications[] = {ADMN_CLICKED,    ADMN_BTNPAINT,
                                             ADMN_BTNHILITE,  ADMN_BTNUNHILITE,
                                             ADMN_BTNDISABLE, ADMN_BTNDOUBLECLICK};
    if (nCode < 0 || nCode >= static_cast<int>(std::size(kNotifications))) return;
    if (kNotifications[nCode] == ADMN_CLICKED) ReadControl();
    Notify(this, nId, kNotifications[nCode], 0);
}

void ADM_RadioButtons::SetSelected(int nIndex) {
    if (nIndex < 0 || (m_nCount > 0 && nIndex >= m_nCount)) return;
    m_nSelected = nIndex;
    CheckSelected();
}

int ADM_RadioButtons::GetSelected() {
    ReadControl();
    return m_nSelected;
}

BOOL ADM_RadioButtons::SetValue(int nValue) {
    const auto it = std::find(m_anValues.begin(), m_anValues.end(), nValue);
    if (it == m_anValues.end()) return 0;
    SetSelected(static_cast<int>(it - m_anValues.begin()));
    return 1;
}

int ADM_RadioButtons::GetValue() {
    const std::size_t nIndex = static_cast<std::size_t>(GetSelected());
    return nIndex < m_anValues.size() ? m_anValues[nIndex] : 0;
}

HWND ADM_RadioButtons::ButtonWindow(int nIndex) const {
    return nIndex >= 0 && nIndex < m_nCount ? m_pButtons[nIndex].hWnd : nullptr;
}

void ADM_RadioButtons::EnableButton(int nIndex, BOOL bEnable) {
    for (int i = 0; i < m_nCount; ++i) {
        if ((nIndex == -1 || nIndex == i) && m_pButtons[i].hWnd != nullptr) {
            ::EnableWindow(m_pButtons[i].hWnd, bEnable);
        }
    }
}

void ADM_RadioButtons::ShowButton(int nIndex, int nCmdShow) {
    for (int i = 0; i < m_nCount; ++i) {
        if ((nIndex == -1 || nIndex == i) && m_pButtons[i].hWnd != nullptr) {
            ::ShowWindow(m_pButtons[i].hWnd, nCmdShow);
        }
    }
}

void ADM_RadioButtons::Enable(BOOL bEnable) {
    EnableButton(-1, bEnable);
}

void ADM_RadioButtons::Show(int nCmdShow) {
    ShowButton(-1, nCmdShow);
}

void ADM_RadioButtons::SetButtonText(int nIndex, LPCSTR szText) {
    const HWND hWnd = ButtonWindow(nIndex);
    if (hWnd != nullptr) ::SetWindowTextA(hWnd, szText);
}

int ADM_RadioButtons::GetButtonText(int nIndex, LPSTR szBuffer, int nSize) {
    if (szBuffer == nullptr || nSize <= 0) return 0;
    szBuffer[0] = '\0';
    const HWND hWnd = ButtonWindow(nIndex);
    return hWnd == nullptr ? 0 : ::GetWindowTextA(hWnd, szBuffer, nSize);
}
