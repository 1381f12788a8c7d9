// Subtract Control: a second data file, the control file, and which of its signals are to be
// subtracted from the data. The only dialog that talks to a file source; a single page with no data
// tab.
#pragma once

#include "analysis/CUntabbedDialogBase.h"
#include "framework/ADM_DoubleText.h"
#include "framework/ADM_PathText.h"
#include "framework/ADM_StaticText.h"
#include "zxadlg/SubtractControlOptions.h"

class CSubtractControlDialog : public CRecordPage<ZXADLG_SubtractControlOptions, CSinglePage> {
  public:
    // At most so many signals are kept.
    static constexpr int kMaxSignals = 16;

    CSubtractControlDialog(HWND hwndParent, ZXADLG_SubtractControlOptions* pOptions,
                           ZXADLG_CDlgDataSource* pSource, ZXADLG_CDlgFileSource* pFileSource,
                           const ZXADLG_DlgParams* pParams);

    BOOL OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) override;
    void UpdateControls() override;

  private:
    void ShowOptions() override;
    bool PrepareOK() override;
    void FillSignals();
    void StoreSignals();
    void SelectFile();

    ZXADLG_CDlgFileSource* m_pFileSource;
    ADM_StaticText m_grpControl;
    ADM_Button m_btnFile, m_btnAll, m_chkMultiplier, m_chkFirstOnly;
    ADM_PathText m_txtPath;
    CZxDlgGroupListBox m_lstSignals;
    ADM_DoubleText m_txtMultiplier;
};
