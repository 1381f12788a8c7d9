#include "framework/ADM_ComboBox.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "framework/NumberItem.h"
#include "framework/PrivateMessages.h"
#include "text/BoundedText.h"
#include "widgets/ModalRun.h"

namespace {

// Names beyond these are like those before; a list of ten thousand sets opens at once.
constexpr int kMostItemsMeasured = 1000;
constexpr char kOldProcProp[] = "ADM_OldWndProc";

// Offers each character typed to the dialog, which answers 0 to drop it. It knows the windows only,
// so that it outlives the control object safely.
LRESULT OnEditPartMessage(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam) {
    const auto pOld = reinterpret_cast<WNDPROC>(::GetPropA(hWnd, kOldProcProp));
    if (pOld == nullptr) return ::DefWindowProcA(hWnd, uMsg, wParam, lParam);
    if (uMsg == WM_DESTROY) {
        ::SetWindowLongPtrA(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(pOld));
        ::RemovePropA(hWnd, kOldProcProp);
    } else if (uMsg == WM_CHAR) {
        const HWND hCombo = ::GetParent(hWnd);
        const LPARAM nComboId = ::GetDlgCtrlID(hCombo);
        if (::SendMessageA(::GetParent(hCombo), ADMM_CHAR, wParam, nComboId) == 0) return 0;
    }
    return ::CallWindowProcA(pOld, hWnd, uMsg, wParam, lParam);
}

LRESULT CALLBACK EditPartProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam) {
    return CommonCtls::CallGuarded<LRESULT>(
        hWnd, 0, [=] { return OnEditPartMessage(hWnd, uMsg, wParam, lParam); });
}

HWND FindEditPart(HWND hCombo) {
    for (HWND hWnd = ::GetWindow(hCombo, GW_CHILD); hWnd != nullptr;
         hWnd = ::GetWindow(hWnd, GW_HWNDNEXT)) {
        char szClass[32] = {};
        ::GetClassNameA(hWnd, szClass, sizeof szClass);
        if (std::string_view(szClass) == "Edit") return hWnd;
    }
    return nullptr;
}

enum class ReadFirst { kNothing, kReadControl, kListChanged };

struct CommandRow {
    int nNotification;
    ReadFirst eRead;
};

// What each of the platform's CBN_ codes becomes, from CBN_ERRSPACE (-1) on; there is no code 0.
constexpr CommandRow kCommands[] = {
    {ADMN_COMBOERRSPACE, ReadFirst::kNothing},          // -1
    {0, ReadFirst::kNothing},                           // 0
    {ADMN_COMBOSELCHANGE, ReadFirst::kListChanged},     // 1
    {ADMN_COMBODBLCLK, ReadFirst::kReadControl},        // 2
    {ADMN_SETFOCUS, ReadFirst::kReadControl},           // 3
    {ADMN_KILLFOCUS, ReadFirst::kReadControl},          // 4
    {ADMN_COMBOEDITCHANGE, ReadFirst::kReadControl},    // 5
    {ADMN_COMBOEDITUPDATE, ReadFirst::kReadControl},    // 6
    {ADMN_COMBODROPDOWN, ReadFirst::kListChanged},      // 7
    {ADMN_COMBOCLOSEUP, ReadFirst::kListChanged},       // 8
    {ADMN_COMBOSELENDOK, ReadFirst::kListChanged},      // 9
    {ADMN_COMBOSELENDCANCEL, ReadFirst::kListChanged},  // 10
};

}  // namespace

void ADM_ComboBox::OnAttach() {
    if (m_hWnd == nullptr) {
        m_bEditHooked = FALSE;
        m_hEdit = nullptr;
        return;
    }
    if (!m_bEditHooked) HookEdit();
    Send(CB_SETCURSEL, static_cast<WPARAM>(m_nSelected));
}

void ADM_ComboBox::HookEdit() {
    m_hEdit = FindEditPart(m_hWnd);
    m_bEditHooked = TRUE;
    if (m_hEdit == nullptr || ::GetPropA(m_hEdit, kOldProcProp) != nullptr) return;
    const LONG_PTR nOld =
        ::SetWindowLongPtrA(m_hEdit, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&EditPartProc));
    ::SetPropA(m_hEdit, kOldProcProp, reinterpret_cast<HANDLE>(nOld));
}

void ADM_ComboBox::ReadControl() {
    if (m_hWnd != nullptr) m_nSelected = Send(CB_GETCURSEL);
}

void ADM_ComboBox::SaveInitialValue() {
    ReadControl();
    m_nInitial = m_nSelected;
}

BOOL ADM_ComboBox::HasChanged() {
    return m_bTrackChanges && m_nSelected != m_nInitial;
}

void ADM_ComboBox::OnListChanged() {
    ReadControl();
}

void ADM_ComboBox::OnCommand(HWND, int nId, HWND, int nCode) {
    if (nCode < CBN_ERRSPACE || nCode > CBN_SELENDCANCEL || nCode == 0) return;
    const CommandRow& row = kCommands[nCode - CBN_ERRSPACE];
    if (row.eRead == ReadFirst::kReadControl) ReadControl();
    if (row.eRead == ReadFirst::kListChanged) OnListChanged();
    if (nCode == CBN_DROPDOWN && m_hWnd != nullptr) FitDroppedList();
    Notify(this, nId, row.nNotification, 0);
}

// The list opens as wide as its widest item, and at least as wide as the field.
void ADM_ComboBox::FitDroppedList() const {
    const LONG_PTR nStyle = ::GetWindowLongPtrA(m_hWnd, GWL_STYLE);
    if ((nStyle & (CBS_OWNERDRAWFIXED | CBS_OWNERDRAWVARIABLE)) != 0) return;
    const int nItems = std::min(GetCount(), kMostItemsMeasured);
    const HDC hDC = ::GetDC(m_hWnd);
    const HGDIOBJ hOld =
        ::SelectObject(hDC, reinterpret_cast<HGDIOBJ>(::SendMessageA(m_hWnd, WM_GETFONT, 0, 0)));
    LONG nWidest = 0;
    for (int i = 0; i < nItems; ++i) {
        char szText[256];
        const int nLength = GetLBText(i, szText, sizeof szText);
        SIZE size = {};
        if (nLength > 0 && ::GetTextExtentPoint32A(hDC, szText, nLength, &size))
            nWidest = std::max(nWidest, size.cx);
    }
    ::SelectObject(hDC, hOld);
    ::ReleaseDC(m_hWnd, hDC);
    RECT rc;
    ::GetWindowRect(m_hWnd, &rc);
    const LONG nFrame = ::GetSystemMetrics(SM_CXVSCROLL) + 4 * ::GetSystemMetrics(SM_CXEDGE);
    Send(CB_SETDROPPEDWIDTH, static_cast<WPARAM>(std::max(nWidest + nFrame, rc.right - rc.left)));
}

int ADM_ComboBox::Send(UINT uMsg, WPARAM wParam, LPARAM lParam) const {
    return m_hWnd == nullptr ? 0 : static_cast<int>(::SendMessageA(m_hWnd, uMsg, wParam, lParam));
}

void ADM_ComboBox::SetCurSel(int nIndex) {
    m_nSelected = nIndex;
    Send(CB_SETCURSEL, static_cast<WPARAM>(nIndex));
}

int ADM_ComboBox::GetCurSel() {
    ReadControl();
    return m_nSelected;
}

int ADM_ComboBox::GetCount() const {
    return Send(CB_GETCOUNT);
}

int ADM_ComboBox::ResetContent() {
    return Send(CB_RESETCONTENT);
}

int ADM_ComboBox::AddString(LPCSTR szText) {
    return Send(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(szText));
}

int ADM_ComboBox::InsertString(int nIndex, LPCSTR szText) {
    return Send(CB_INSERTSTRING, static_cast<WPARAM>(nIndex), reinterpret_cast<LPARAM>(szText));
}

int ADM_ComboBox::DeleteString(int nIndex) {
    return Send(CB_DELETESTRING, static_cast<WPARAM>(nIndex));
}

LPARAM ADM_ComboBox::GetItemData(int nIndex) const {
    if (m_hWnd == nullptr) return 0;
    return ::SendMessageA(m_hWnd, CB_GETITEMDATA, static_cast<WPARAM>(nIndex), 0);
}

int ADM_ComboBox::SetItemData(int nIndex, LPARAM nData) {
    return Send(CB_SETITEMDATA, static_cast<WPARAM>(nIndex), nData);
}

int ADM_ComboBox::GetLBText(int nIndex, LPSTR szBuffer, int nSize) const {
    if (m_hWnd == nullptr || szBuffer == nullptr || nSize <= 0) return 0;
    szBuffer[0] = '\0';
    const int nLength = Send(CB_GETLBTEXTLEN, static_cast<WPARAM>(nIndex));
    if (nLength < 0) return CB_ERR;
    std::string sText(static_cast<std::size_t>(nLength) + 1, '\0');
    Send(CB_GETLBTEXT, static_cast<WPARAM>(nIndex), reinterpret_cast<LPARAM>(sText.data()));
    return CopyText(szBuffer, nSize, sText.c_str());
}

int ADM_ComboBox::FindString(int nStart, LPCSTR szText) const {
    return Send(CB_FINDSTRING, static_cast<WPARAM>(nStart), reinterpret_cast<LPARAM>(szText));
}

int ADM_ComboBox::FindStringExact(int nStart, LPCSTR szText) const {
    return Send(CB_FINDSTRINGEXACT, static_cast<WPARAM>(nStart), reinterpret_cast<LPARAM>(szText));
}

int ADM_ComboBox::SelectString(int nStart, LPCSTR szText) {
    const int nIndex =
        Send(CB_SELECTSTRING, static_cast<WPARAM>(nStart), reinterpret_cast<LPARAM>(szText));
    ReadControl();
    return nIndex;
}

int ADM_ComboBox::ShowDropDown(BOOL bShow) {
    return Send(CB_SHOWDROPDOWN, static_cast<WPARAM>(bShow));
}

BOOL ADM_ComboBox::GetDroppedState() const {
    return Send(CB_GETDROPPEDSTATE);
}

int ADM_ComboBox::SetEditSel(int nStart, int nEnd) {
    return Send(CB_SETEDITSEL, 0, MAKELPARAM(nStart, nEnd));
}

int ADM_ComboBox::LimitText(int nLimit) {
    return Send(CB_LIMITTEXT, static_cast<WPARAM>(nLimit));
}

int ADM_ComboBox::SetExtendedUI(BOOL bExtended) {
    return Send(CB_SETEXTENDEDUI, static_cast<WPARAM>(bExtended));
}

BOOL ADM_ComboBox::GetExtendedUI() const {
    return Send(CB_GETEXTENDEDUI);
}

int ADM_ComboBox::SetItemHeight(int nIndex, int nHeight) {
    return Send(CB_SETITEMHEIGHT, static_cast<WPARAM>(nIndex), nHeight);
}

int ADM_ComboBox::GetItemHeight(int nIndex) const {
    return Send(CB_GETITEMHEIGHT, static_cast<WPARAM>(nIndex));
}

int ADM_ComboBox::FindData(int nStart, LPARAM nData) const {
    if (m_hWnd == nullptr) return 0;
    const int nCount = GetCount();
    for (int i = nStart < -1 ? 0 : nStart + 1; i < nCount; ++i) {
        if (GetItemData(i) == nData) return i;
    }
    return -1;
}

int ADM_ComboBox::SelectData(int nStart, LPARAM nData) {
    if (m_hWnd == nullptr) return 0;
    const int nIndex = FindData(nStart < 0 ? -1 : nStart - 1, nData);
    if (nIndex >= 0) SetCurSel(nIndex);
    return nIndex;
}

int ADM_ComboBox::AddInt(int nValue) {
    return AddString(NumberItem(nValue).szText);
}

int ADM_ComboBox::AddLong(LONG nValue) {
    return AddString(NumberItem(static_cast<int>(nValue)).szText);
}

int ADM_ComboBox::AddFloat(float fValue, int nDecimals, UINT nSigDigits) {
    return AddString(NumberItem(fValue, nDecimals, nSigDigits).szText);
}

int ADM_ComboBox::AddDouble(double dValue, int nDecimals, UINT nSigDigits) {
    return AddString(NumberItem(dValue, nDecimals, nSigDigits).szText);
}

int ADM_ComboBox::AddResourceString(HINSTANCE hInstance, UINT nId) {
    if (m_hWnd == nullptr) return 0;
    char szText[255] = {};
    if (::LoadStringA(hInstance, nId, szText, sizeof szText) <= 0) return CB_ERR;
    return AddString(szText);
}
