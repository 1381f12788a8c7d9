#include "measure/MeasurementOutputTab.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include "ids.h"

CMeasurementOutputTab::CMeasurementOutputTab(CMeasurementOptionsInterface* pOptions,
                                             const ZXADLG_DlgParams* pParams)
    : CRecordPage(&pOptions->GetSearch(), pOptions, pParams, IDD_MEASUREMENT_OUTPUT,
                  IDS_TAB_OUTPUT),
      m_pOptions(pOptions) {
    Label(IDC_OUTPUT_GRAPH_GROUP, m_grpGraph);
    Bind(IDC_OUTPUT_AUTO_GRAPH, m_chkAutoGraph, &ZXADLG_MeasurementSearch::bDoAutoGraph);
    Label(IDC_OUTPUT_X_LABEL, m_lblX);
    RegisterControl(IDC_OUTPUT_X, &m_cmbX);
    OnEvent(m_cmbX, ADMN_COMBOSELCHANGE,
            [this] { m_lists.SelectX(*GetRecord(), m_cmbX.GetCurSel()); });
    Label(IDC_OUTPUT_Y_LABEL, m_lblY);
    RegisterControl(IDC_OUTPUT_Y, &m_lstY);
    OnEvent(m_lstY, ADMN_LISTSELCHANGE, [this] {
        int items[std::size(kOutputRows)];
        const int nItems = m_lstY.GetSelItems(static_cast<int>(std::size(items)), items);
        m_lists.SelectY(*GetRecord(), std::vector<int>(items, items + std::max(nItems, 0)));
    });
    Label(IDC_OUTPUT_OPTIONS_GROUP, m_grpOutput);

    pOptions->AddObserver(this);
    OnBroadcast(kNotifyMeasurementSwitched, [this] { Follow(); });
    for (const NotificationCode eCode : {kNotifySearchChanged, kNotifySearchRegionChanged})
        OnBroadcast(eCode, [this] { ShowRecord(); });
    for (const NotificationCode eCode : {kNotifySearchChanged, kNotifyImportChanged})
        OnBroadcast(eCode, [this] { RunUpdate(); });
}

bool CMeasurementOutputTab::SetUp() {
    if (!HasChoice()) {
        char szCaption[64] = "";
        LoadStringA(m_hInstance, IDS_OUTPUT_GRAPH, szCaption, sizeof szCaption);
        m_grpGraph.SetWindowText(szCaption);
    }
    return true;
}

// --- The lists -----------------------------------------------------------------------------------

MeasurementOutputLists::Mode CMeasurementOutputTab::Mode() const {
    return {.bPreselects = m_pParams->bDeferredRun == 0 && !IsReadOnly(), .bStores = !IsReadOnly()};
}

void CMeasurementOutputTab::Refill() {
    if (!IsReadOnly()) ForceAutoGraph();
    if (!HasGraph()) return;
    m_lists.Fill(*GetRecord(), Mode());
    ShowLists();
}

// Where the user has no choice, the graph is drawn as it is there or not.
void CMeasurementOutputTab::ForceAutoGraph() {
    if (!HasGraph() || !HasChoice()) GetRecord()->bDoAutoGraph = HasGraph() ? 1 : 0;
}

void CMeasurementOutputTab::Follow() {
    if (!HasGraph()) return;
    m_lists.Follow(*GetRecord(), Mode());
    ShowLists();
}

void CMeasurementOutputTab::ShowLists() {
    const UpdateScope updating(m_bUpdating);
    const auto add = [this](auto& control, const OutputRow& row) {
        control.SetItemData(control.AddResourceString(m_hInstance, static_cast<UINT>(row.nString)),
                            row.nId);
    };
    m_cmbX.ResetContent();
    for (const OutputRow* pRow : m_lists.GetX()) add(m_cmbX, *pRow);
    m_cmbX.SetCurSel(m_lists.GetSelectedX());
    m_lstY.SetRedraw(FALSE);
    m_lstY.ResetContent();
    for (const auto& item : m_lists.GetY()) add(m_lstY, *item.pRow);
    int nItem = 0;
    for (const auto& item : m_lists.GetY()) m_lstY.SetSel(nItem++, item.bSelected);
    m_lstY.SetTopIndex(0);
    m_lstY.SetRedraw(TRUE);
    m_lstY.Invalidate(TRUE);
}

BOOL CMeasurementOutputTab::CanLeavePage() {
    if (IsReady()) ShowRecord();
    return TRUE;
}

// Broadcasts do not reach a page that only displays.
BOOL CMeasurementOutputTab::OnPageShow() {
    const BOOL bResult = CRecordPage::OnPageShow();
    if (IsReady() && IsReadOnly()) ShowRecord();
    return bResult;
}

// --- Rules ---------------------------------------------------------------------------------------

void CMeasurementOutputTab::UpdateControls() {
    CRecordPage::UpdateControls();
    ShowControls({&m_grpGraph, &m_lblX, &m_cmbX, &m_lblY, &m_lstY}, HasGraph());
    ShowControls({&m_chkAutoGraph}, HasGraph() && HasChoice());
    ShowControls({&m_grpOutput}, m_pParams->bShowWriteRegionInfo != 0);
    const bool bGraph =
        HasChoice() ? m_chkAutoGraph.GetCheck() == BST_CHECKED : m_pOptions->IsSearchOn();
    EnableControls({&m_lblX, &m_cmbX, &m_lblY, &m_lstY}, bGraph);
    EnableControls({&m_grpGraph, &m_chkAutoGraph, &m_grpOutput}, true);
}
