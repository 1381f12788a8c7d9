#include "traceops/SubtractControlDialog.h"

#include <algorithm>

#include "ZXADLG.h"
#include "ids.h"
#include "text/BoundedText.h"
#include "traceops/SubtractControlChecks.h"

using Record = ZXADLG_SubtractControlOptions;

CSubtractControlDialog::CSubtractControlDialog(HWND hwndParent, Record* pOptions,
                                               ZXADLG_CDlgDataSource*,
                                               ZXADLG_CDlgFileSource* pFileSource,
                                               const ZXADLG_DlgParams* pParams)
    : CRecordPage(pOptions, hwndParent, IDD_SUBTRACT_CONTROL, pParams->bReadOnly != 0),
      m_pFileSource(pFileSource) {
    Label(IDC_SUBTRACT_GROUP, m_grpControl);
    OnClick(IDC_SUBTRACT_SELECT_FILE, m_btnFile, [this] { SelectFile(); });
    Label(IDC_SUBTRACT_PATH, m_txtPath);
    Label(IDC_SUBTRACT_SIGNALS, m_lstSignals);
    OnEvent(m_lstSignals, ADMN_LISTSELCHANGE, [this] { StoreSignals(); });
    OnClick(IDC_SUBTRACT_SELECT_ALL, m_btnAll, [this] {
        m_lstSignals.SelectAll();
        StoreSignals();
    });
    Bind(IDC_SUBTRACT_USE_MULTIPLIER, m_chkMultiplier, &Record::bUseMultiplier);
    Bind(IDC_SUBTRACT_MULTIPLIER, m_txtMultiplier, &Record::dMultiplier);
    Bind(IDC_SUBTRACT_FIRST_ONLY, m_chkFirstOnly, &Record::bUseFirstTraceOnly);
    AddCheck([this](const TypedValues&) { return CheckMultiplier(*m_pRecord); });
}

BOOL CSubtractControlDialog::OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) {
    const char* szTitle = m_pFileSource->GetTitle(hWnd, hFocus, lParam);
    m_grpControl.SetArg(0, szTitle != nullptr ? szTitle : "");
    return CRecordPage::OnInitDialog(hWnd, hFocus, lParam);
}

void CSubtractControlDialog::ShowOptions() {
    FillSignals();
    if (m_pFileSource->GetGroupCount() > 0) m_txtPath.SetWindowText(m_pRecord->szSubtractFileName);
}

void CSubtractControlDialog::FillSignals() {
    m_pFileSource->SelectFile(static_cast<std::uint32_t>(m_pRecord->nFileID));
    m_lstSignals.Fill(m_pFileSource);
    const int nMost = std::clamp(m_pFileSource->GetGroupCount(), 0, kMaxSignals);
    m_pRecord->nNumGroups = std::min(m_pRecord->nNumGroups, nMost);
    if (m_pRecord->nNumGroups <= 0) {
        std::fill(std::begin(m_pRecord->anListEntry), std::end(m_pRecord->anListEntry), 0);
        m_pRecord->nNumGroups = 1;
        m_lstSignals.SelectItem(0);
        return;
    }
    m_lstSignals.SelectNone();
    for (int i = 0; i < m_pRecord->nNumGroups; ++i)
        m_lstSignals.SelectItem(m_pRecord->anListEntry[i]);
}

void CSubtractControlDialog::UpdateControls() {
    EnableControls({&m_txtMultiplier}, ReadValue(m_chkMultiplier));
}

void CSubtractControlDialog::StoreSignals() {
    const std::vector<std::int32_t> vSignals = m_lstSignals.GetSelection();
    m_pRecord->nNumGroups = std::min(static_cast<int>(vSignals.size()), kMaxSignals);
    std::fill(std::begin(m_pRecord->anListEntry), std::end(m_pRecord->anListEntry), 0);
    std::copy_n(vSignals.begin(), m_pRecord->nNumGroups, m_pRecord->anListEntry);
}

void CSubtractControlDialog::SelectFile() {
    const char* szPath = m_pFileSource->BrowseForFile(m_hWnd);
    if (szPath == nullptr) return;
    CopyText(m_pRecord->szSubtractFileName, szPath);
    m_txtPath.SetWindowText(m_pRecord->szSubtractFileName);
    m_pRecord->nFileID = static_cast<std::int32_t>(m_pFileSource->GetFileHandle());
    FillSignals();
}

bool CSubtractControlDialog::PrepareOK() {
    m_pRecord->nNumGroups =
        std::min(static_cast<int>(m_lstSignals.GetSelection().size()), kMaxSignals);
    return true;
}
