#include "arithmetic/CHistoryComboBox.h"

#include <algorithm>

#include "arithmetic_ids.h"
#include "widgets/FrameworkSetup.h"
#include "widgets/ModalRun.h"

namespace {

constexpr char kOldProcProp[] = "COB_OldWndProc";
constexpr char kBoxProp[] = "COB_Box";

// Posted to the edit: the list's choice has reached it and is to be taken back.
constexpr UINT kRestoreText = WM_APP + 1;

}  // namespace

CHistoryComboBox::~CHistoryComboBox() {
    if (m_hEdit != nullptr) UnhookEditPart(m_hEdit);
}

// --- The edit part ---------------------------------------------------------------------------

void CHistoryComboBox::OnAttach() {
    ADM_ComboBox::OnAttach();
    m_nKeptStart = m_nKeptEnd = -1;
    if (m_hEdit != nullptr) HookEditPart();
}

void CHistoryComboBox::HookEditPart() {
    if (::GetPropA(m_hEdit, kOldProcProp) != nullptr) return;
    if (!::SetPropA(m_hEdit, kBoxProp, this)) return;
    const auto pOld = reinterpret_cast<WNDPROC>(GetWindowLongPtrA(m_hEdit, GWLP_WNDPROC));
    if (!KeepOldProcedure(m_hEdit, pOld)) {
        ::RemovePropA(m_hEdit, kBoxProp);
        return;
    }
    SetWindowLongPtrA(m_hEdit, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&EditProc));
}

BOOL CHistoryComboBox::KeepOldProcedure(HWND hEdit, WNDPROC pOld) {
    return ::SetPropA(hEdit, kOldProcProp, reinterpret_cast<HANDLE>(pOld));
}

void CHistoryComboBox::UnhookEditPart(HWND hEdit) {
    const HANDLE pOld = ::GetPropA(hEdit, kOldProcProp);
    if (pOld == nullptr) return;
    SetWindowLongPtrA(hEdit, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(pOld));
    ::RemovePropA(hEdit, kOldProcProp);
    ::RemovePropA(hEdit, kBoxProp);
}

LRESULT CALLBACK CHistoryComboBox::EditProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam) {
    return CommonCtls::CallGuarded<LRESULT>(
        hWnd, 0, [=] { return OnEditMessage(hWnd, uMsg, wParam, lParam); });
}

LRESULT CHistoryComboBox::OnEditMessage(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam) {
    const auto pOld = reinterpret_cast<WNDPROC>(::GetPropA(hWnd, kOldProcProp));
    auto* const pBox = static_cast<CHistoryComboBox*>(::GetPropA(hWnd, kBoxProp));
    if (pOld == nullptr || pBox == nullptr) return DefWindowProcA(hWnd, uMsg, wParam, lParam);
    switch (uMsg) {
        case WM_DESTROY:
            UnhookEditPart(hWnd);
            break;
        case WM_KILLFOCUS:
            pBox->KeepSelection();
            break;
        case kRestoreText:
            pBox->SetText(pBox->m_sBeforeChoice);
            return 0;
        default:
            break;
    }
    return CallWindowProcA(pOld, hWnd, uMsg, wParam, lParam);
}

LRESULT CHistoryComboBox::SendEdit(UINT uMsg, WPARAM wParam, LPARAM lParam) const {
    return m_hEdit == nullptr ? 0 : SendMessageA(m_hEdit, uMsg, wParam, lParam);
}

// --- Text and selection ----------------------------------------------------------------------

std::string CHistoryComboBox::GetText() const {
    const int nLength = GetWindowTextLength();
    std::string sText(static_cast<std::size_t>(std::max(nLength, 0)) + 1, '\0');
    sText.resize(static_cast<std::size_t>(
        ADM_ComboBox::GetWindowText(sText.data(), static_cast<int>(sText.size()))));
    return sText;
}

void CHistoryComboBox::SetText(std::string_view sText) {
    if (m_hWnd == nullptr) return;
    ::SetWindowTextA(m_hWnd, std::string(sText).c_str());
    SetCaretToEnd();
}

void CHistoryComboBox::KeepSelection() {
    DWORD dwStart = 0, dwEnd = 0;
    SendEdit(EM_GETSEL, reinterpret_cast<WPARAM>(&dwStart), reinterpret_cast<LPARAM>(&dwEnd));
    m_nKeptStart = static_cast<int>(dwStart);
    m_nKeptEnd = static_cast<int>(dwEnd);
}

void CHistoryComboBox::GetSelection(int* pnStart, int* pnEnd) const {
    const int nLength = GetWindowTextLength();
    *pnStart = *pnEnd = nLength;
    if (m_hEdit != nullptr && GetFocus() == m_hEdit) {
        DWORD dwStart = 0, dwEnd = 0;
        SendEdit(EM_GETSEL, reinterpret_cast<WPARAM>(&dwStart), reinterpret_cast<LPARAM>(&dwEnd));
        *pnStart = static_cast<int>(dwStart);
        *pnEnd = static_cast<int>(dwEnd);
    } else if (m_nKeptStart >= 0) {
        *pnStart = std::min(m_nKeptStart, nLength);
        *pnEnd = std::min(m_nKeptEnd, nLength);
    }
}

void CHistoryComboBox::Select(int nStart, int nEnd) {
    SendEdit(EM_SETSEL, static_cast<WPARAM>(nStart), nEnd);
    // Without the focus, this is what it comes back to.
    m_nKeptStart = nStart;
    m_nKeptEnd = nEnd;
}

void CHistoryComboBox::SetCaretToEnd() {
    const int nLength = GetWindowTextLength();
    Select(nLength, nLength);
}

void CHistoryComboBox::FocusEdit() {
    if (m_hEdit == nullptr || GetFocus() == m_hEdit) return;
    int nStart, nEnd;
    GetSelection(&nStart, &nEnd);
    // The box selects all of its text when the focus comes.
    ::SetFocus(m_hEdit);
    Select(nStart, nEnd);
}

bool CHistoryComboBox::CanUndo() const {
    return SendEdit(EM_CANUNDO) != 0;
}

void CHistoryComboBox::Undo() {
    // With nothing to undo some edits move their caret all the same.
    if (CanUndo()) SendEdit(EM_UNDO);
}

// --- The list --------------------------------------------------------------------------------

void CHistoryComboBox::LoadList(const char* szProfile, HistoryKind eKind) {
    ResetContent();
    m_bNotAvailable = szProfile == nullptr;
    if (m_bNotAvailable) {
        AddResourceString(GetFrameworkInstance(), IDS_HISTORY_NOT_AVAILABLE);
        return;
    }
    for (const std::string& sLine : LoadHistory(szProfile, eKind)) AddString(sLine.c_str());
    if (GetCount() == 0) return;
    SetCurSel(0);
    SetCaretToEnd();
}

void CHistoryComboBox::PutOnTop(const std::string& sText) {
    if (m_bNotAvailable) return;
    const int nOld = FindStringExact(-1, sText.c_str());
    if (nOld >= 0) DeleteString(nOld);
    InsertString(0, sText.c_str());
    SetText(sText);
}

void CHistoryComboBox::SaveList(const char* szProfile, HistoryKind eKind) const {
    if (m_bNotAvailable) return;
    std::vector<std::string> vLines;
    for (int i = 0; i < std::min(GetCount(), kMostHistoryLines); ++i) {
        char szLine[kHistoryLineSize];
        GetLBText(i, szLine, kHistoryLineSize);
        vLines.emplace_back(szLine);
    }
    SaveHistory(szProfile, eKind, vLines);
}

// The choice reaches the edit behind this notification.
void CHistoryComboBox::OnCommand(HWND hWnd, int nId, HWND hWndCtl, int nCode) {
    if (nCode == CBN_SELCHANGE && m_bNotAvailable && m_hEdit != nullptr) {
        m_sBeforeChoice = GetText();
        PostMessageA(m_hEdit, kRestoreText, 0, 0);
    }
    ADM_ComboBox::OnCommand(hWnd, nId, hWndCtl, nCode);
}
