// The base of the tabs that carry a dialog's options, with the controls that most analyses share.
//
// A subclass lists its rows in its constructor, fills its own controls in SetUp, and states its
// rules in UpdateControls, which calls that of this class.
#pragma once

#include "analysis/CEditPage.h"
#include "analysis/ResultControls.h"
#include "contract/CDataOptionsInterface.h"
#include "framework/ADM_TabSubDialog.h"
#include "ids.h"

class COptionsTabBase : public CEditPage<ADM_TabSubDialog> {
  public:
    // Neither is owned; both outlive the tab.
    COptionsTabBase(CAnalysisOptionsInterfaceBase* pOptions, const ZXADLG_DlgParams* pParams,
                    UINT uTemplateId, UINT uCaptionStringId);

    void UpdateControls() override;
    BOOL CanLeavePage() override { return TRUE; }
    BOOL OnPageShow() override;
    // Runs what FollowData was given. The checks of its dialog call it first.
    void TakeData();

  protected:
    // For a tab whose texts and limits follow the selected data. `take` runs each time that this
    // tab comes up, the first time when the dialog has set up all of its tabs, and when the
    // selection, the region or the data tab's state changed. Then the rules run.
    void FollowData(CDataOptionsInterface* pData, Step take);

    const ZXADLG_DlgParams* m_pParams;

  private:
    ResultControls m_results;
    Step m_takeData;
};

// An options tab over the record of one analysis.
template <class Record>
class COptionsTab : public CRecordPage<Record, COptionsTabBase> {
  public:
    using Options = CRecordOptionsInterface<Record>;

    COptionsTab(Options* pOptions, const ZXADLG_DlgParams* pParams, CDataOptionsInterface* pData,
                UINT uTemplateId, UINT uCaptionStringId = IDS_TAB_OPTIONS)
        : CRecordPage<Record, COptionsTabBase>(pOptions->GetRecord(), pOptions, pParams,
                                               uTemplateId, uCaptionStringId),
          m_pData(pData) {}

  protected:
    ZXADLG_CDlgDataSource* Source() const { return m_pData->GetDataSource(); }

    CDataOptionsInterface* m_pData;  // not owned
};
