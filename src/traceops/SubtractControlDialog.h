// Subtract Control: a second data file, the control file, and which of its signals are to be
// subtracted from the data. The only dialog that talks to a file source; a single page with no data
// tab.
#pragma once

#include "analysis/EditEvents.h"
#include "analysis/SelectionControls.h"
#include "framework/ADM_Button.h"
#include "framework/ADM_Dialog.h"
#include "framework/ADM_DoubleText.h"
#include "framework/ADM_PathText.h"
#include "framework/ADM_StaticText.h"
#include "zxadlg/DlgParams.h"
#include "zxadlg/SubtractControlOptions.h"

class CSubtractControlOptionsInterface {
  public:
    static constexpr int kMaxSignals = 16;

    explicit CSubtractControlOptionsInterface(ZXADLG_SubtractControlOptions* pRecord)
        : m_pRecord(pRecord) {}

    const char* GetFileName() const { return m_pRecord->szSubtractFileName; }
    void SetFileName(const char* szPath);
    std::uint32_t GetFileId() const { return static_cast<std::uint32_t>(m_pRecord->nFileID); }
    void SetFileId(std::uint32_t uId) { m_pRecord->nFileID = static_cast<std::int32_t>(uId); }
    double GetMultiplier() const { return m_pRecord->dMultiplier; }
    void SetMultiplier(double d) { m_pRecord->dMultiplier = d; }
    bool GetUseMultiplier() const { return m_pRecord->bUseMultiplier != 0; }
    void SetUseMultiplier(bool b) { m_pRecord->bUseMultiplier = b ? 1 : 0; }
    bool GetUseFirstTraceOnly() const { return m_pRecord->bUseFirstTraceOnly != 0; }
    void SetUseFirstTraceOnly(bool b) { m_pRecord->bUseFirstTraceOnly = b ? 1 : 0; }
    // How many entries of the list of signals are in use.
    int GetSignalCount() const { return m_pRecord->nNumGroups; }
    void SetSignalCount(int nCount) { m_pRecord->nNumGroups = nCount; }
    // The entry at a place of the list; 0 beyond it.
    std::int32_t GetSignal(int nPlace) const;
    // Stores the indices, as many as the list has places for, and zeroes the others.
    void SetSignals(const std::vector<std::int32_t>& vSignals);

  private:
    ZXADLG_SubtractControlOptions* m_pRecord;
};

class CSubtractControlDialog : public ADM_Dialog {
  public:
    // Everything but hwndParent outlives the dialog.
    CSubtractControlDialog(HWND hwndParent, ZXADLG_SubtractControlOptions* pOptions,
                           ZXADLG_CDlgDataSource* pSource, ZXADLG_CDlgFileSource* pFileSource,
                           const ZXADLG_DlgParams* pParams);

    void Notify(ADM_Wnd* pSender, int nId, int nCode, int nData) override;
    BOOL OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) override;
    void OnOK() override;

  private:
    void ShowOptions();
    void ShowSignals();
    void FillSignals();
    void EnableMultiplier();
    void StoreSignals();
    void SelectFile();

    CSubtractControlOptionsInterface m_options;
    ZXADLG_CDlgDataSource* m_pSource;
    ZXADLG_CDlgFileSource* m_pFileSource;
    bool m_bReadOnly;
    EditEvents m_events;

    ADM_StaticText m_grpControl;
    ADM_Button m_btnFile;
    ADM_PathText m_txtPath;
    CZxDlgGroupListBox m_lstSignals;
    ADM_Button m_btnAll;
    ADM_Button m_chkMultiplier;
    ADM_DoubleText m_txtMultiplier;
    ADM_Button m_chkFirstOnly;
};
