#include "traceops/SubtractControlDialog.h"

#include <algorithm>

#include "ZXADLG.h"
#include "ids.h"
#include "text/BoundedText.h"
#include "widgets/Framework.h"
#include "widgets/MessageDialog.h"

// --- Record ----------------------------------------------------------------------------------

void CSubtractControlOptionsInterface::SetFileName(const char* szPath) {
    CopyText(m_pRecord->szSubtractFileName, szPath);
}

std::int32_t CSubtractControlOptionsInterface::GetSignal(int nPlace) const {
    return nPlace >= 0 && nPlace < kMaxSignals ? m_pRecord->anListEntry[nPlace] : 0;
}

void CSubtractControlOptionsInterface::SetSignals(const std::vector<std::int32_t>& vSignals) {
    const int nCount = std::min(static_cast<int>(vSignals.size()), kMaxSignals);
    std::fill(std::begin(m_pRecord->anListEntry), std::end(m_pRecord->anListEntry), 0);
    std::copy_n(vSignals.begin(), nCount, m_pRecord->anListEntry);
    SetSignalCount(nCount);
}

// --- Controls --------------------------------------------------------------------------------

CSubtractControlDialog::CSubtractControlDialog(HWND hwndParent,
                                               ZXADLG_SubtractControlOptions* pOptions,
                                               ZXADLG_CDlgDataSource* pSource,
                                               ZXADLG_CDlgFileSource* pFileSource,
                                               const ZXADLG_DlgParams* pParams)
    : m_options(pOptions),
      m_pSource(pSource),
      m_pFileSource(pFileSource),
      m_bReadOnly(pParams->bReadOnly != 0),
      m_events(m_bReadOnly, [this] { ShowOptions(); }) {
    m_hInstance = GetFrameworkInstance();
    m_hParentWnd = hwndParent;
    SetTemplate(MAKEINTRESOURCEA(IDD_SUBTRACT_CONTROL));
    RegisterControl(IDC_SUBTRACT_GROUP, &m_grpControl);
    RegisterControl(IDC_SUBTRACT_SELECT_FILE, &m_btnFile);
    RegisterControl(IDC_SUBTRACT_PATH, &m_txtPath);
    RegisterControl(IDC_SUBTRACT_SIGNALS, &m_lstSignals);
    RegisterControl(IDC_SUBTRACT_SELECT_ALL, &m_btnAll);
    RegisterControl(IDC_SUBTRACT_USE_MULTIPLIER, &m_chkMultiplier);
    RegisterControl(IDC_SUBTRACT_MULTIPLIER, &m_txtMultiplier);
    RegisterControl(IDC_SUBTRACT_FIRST_ONLY, &m_chkFirstOnly);

    m_events.On(&m_btnFile, ADMN_CLICKED, [this] { SelectFile(); });
    m_events.On(&m_chkMultiplier, ADMN_CLICKED, [this] {
        m_options.SetUseMultiplier(m_chkMultiplier.GetCheck() == BST_CHECKED);
        EnableMultiplier();
    });
    m_events.On(&m_btnAll, ADMN_CLICKED, [this] {
        m_lstSignals.SelectAll();
        StoreSignals();
    });
    m_events.On(&m_chkFirstOnly, ADMN_CLICKED, [this] {
        m_options.SetUseFirstTraceOnly(m_chkFirstOnly.GetCheck() == BST_CHECKED);
    });
    m_events.On(&m_txtMultiplier, ADMN_TEXTCHANGE,
                [this] { m_options.SetMultiplier(m_txtMultiplier.GetValue()); });
    m_events.On(&m_lstSignals, ADMN_LISTSELCHANGE, [this] { StoreSignals(); });
}

BOOL CSubtractControlDialog::OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) {
    const BOOL bResult = ADM_Dialog::OnInitDialog(hWnd, hFocus, lParam);
    if (m_bReadOnly) DressReadOnly(hWnd);
    const char* szTitle = m_pFileSource->GetTitle(hWnd, hFocus, lParam);
    m_grpControl.SetArg(0, szTitle != nullptr ? szTitle : "");
    m_events.Show();
    m_events.SetReady();
    return bResult;
}

// --- Display ---------------------------------------------------------------------------------

void CSubtractControlDialog::ShowOptions() {
    m_chkMultiplier.SetCheck(m_options.GetUseMultiplier() ? BST_CHECKED : BST_UNCHECKED);
    m_txtMultiplier.SetValue(m_options.GetMultiplier());
    EnableMultiplier();
    FillSignals();
    m_chkFirstOnly.SetCheck(m_options.GetUseFirstTraceOnly() ? BST_CHECKED : BST_UNCHECKED);
    if (m_pFileSource->GetGroupCount() > 0) m_txtPath.SetWindowText(m_options.GetFileName());
}

void CSubtractControlDialog::FillSignals() {
    m_pFileSource->SelectFile(m_options.GetFileId());
    m_lstSignals.Fill(m_pFileSource);
    ShowSignals();
}

void CSubtractControlDialog::ShowSignals() {
    const int nGroups = m_pFileSource->GetGroupCount();
    const int nMost = std::min(nGroups, CSubtractControlOptionsInterface::kMaxSignals);
    if (m_options.GetSignalCount() > nMost) m_options.SetSignalCount(std::max(nMost, 0));
    const int nCount = m_options.GetSignalCount();
    if (nCount <= 0) {
        m_options.SetSignals({0});
        m_lstSignals.SelectItem(0);
        return;
    }
    m_lstSignals.SelectNone();
    for (int i = 0; i < nCount; ++i) m_lstSignals.SelectItem(m_options.GetSignal(i));
}

// --- Enabling --------------------------------------------------------------------------------

void CSubtractControlDialog::EnableMultiplier() {
    m_txtMultiplier.Enable(m_chkMultiplier.GetCheck() == BST_CHECKED);
}

// --- Storing ---------------------------------------------------------------------------------

void CSubtractControlDialog::StoreSignals() {
    m_options.SetSignals(m_lstSignals.GetSelection());
}

void CSubtractControlDialog::SelectFile() {
    const char* szPath = m_pFileSource->BrowseForFile(m_hWnd);
    if (szPath == nullptr) return;
    m_options.SetFileName(szPath);
    m_txtPath.SetWindowText(m_options.GetFileName());
    m_options.SetFileId(m_pFileSource->GetFileHandle());
    FillSignals();
}

// --- Events ----------------------------------------------------------------------------------

void CSubtractControlDialog::Notify(ADM_Wnd* pSender, int nId, int nCode, int nData) {
    ADM_Dialog::Notify(pSender, nId, nCode, nData);
    m_events.Serve(m_hWnd, pSender, nCode);
}

void CSubtractControlDialog::OnOK() {
    if (m_options.GetUseMultiplier() && m_options.GetMultiplier() == 0.0) {
        CommonCtls::ShowMessage(m_hWnd, "The multiplier value cannot be zero.", MB_ICONASTERISK);
        m_txtMultiplier.SetFocus();
        return;
    }
    m_options.SetSignalCount(std::min(static_cast<int>(m_lstSignals.GetSelection().size()),
                                      CSubtractControlOptionsInterface::kMaxSignals));
    ADM_Dialog::OnOK();
}
