// How the measurements go out: what the axes of the graph show for the search that is shown, and
// whether the region is written beside the results.
//
// The order in which several measurements are appended has no controls on any page; its field is
// carried.
#pragma once

#include "analysis/COptionsTabBase.h"
#include "framework/ADM_ComboBox.h"
#include "framework/ADM_ListBox.h"
#include "measure/MeasurementOptionsInterface.h"
#include "measure/MeasurementOutputLists.h"

class CMeasurementOutputTab : public CRecordPage<ZXADLG_MeasurementSearch, COptionsTabBase> {
  public:
    CMeasurementOutputTab(CMeasurementOptionsInterface* pOptions, const ZXADLG_DlgParams* pParams);

    void UpdateControls() override;
    // The page is left.
    BOOL CanLeavePage() override;
    BOOL OnPageShow() override;
    // Fills the lists anew.
    void Refill();

  private:
    bool SetUp() override;
    void ShowOptions() override { Refill(); }
    ZXADLG_MeasurementSearch* GetRecord() override { return &m_pOptions->GetSearch(); }

    bool HasGraph() const { return m_pParams->bMeasurementOutputB != 0; }
    bool HasChoice() const { return m_pParams->bMeasurementOutputC != 0; }
    MeasurementOutputLists::Mode Mode() const;
    void ForceAutoGraph();
    void Follow();
    void ShowLists();

    CMeasurementOptionsInterface* m_pOptions;  // not owned
    MeasurementOutputLists m_lists;

    ADM_Static m_grpGraph, m_lblX, m_lblY, m_grpOutput;
    ADM_Button m_chkAutoGraph;
    ADM_ComboBox m_cmbX;
    ADM_ListBox m_lstY;
};
