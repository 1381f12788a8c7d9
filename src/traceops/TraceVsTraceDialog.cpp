#include "traceops/TraceVsTraceDialog.h"

#include "ZXADLG.h"
#include "ids.h"
#include "text/CaptionText.h"

namespace {

// Indices of the source radios.
constexpr int kFromWaveform = 0;
constexpr int kFromGroup = 1;

}  // namespace

// --- Controls --------------------------------------------------------------------------------

CTraceVsTraceDialog::CTraceVsTraceDialog(HWND hwndParent, ZXADLG_TraceVsTraceOptions* pOptions,
                                         ZXADLG_DataOptions* pData, ZXADLG_CDlgDataSource* pSource,
                                         const ZXADLG_DlgParams* pParams)
    : CTraceIVDialogBase(hwndParent, IDD_TRACE_VS_TRACE, pData, pSource, pParams),
      m_pRecord(pOptions) {
    m_radXSource.Setup(this, IDC_TVT_X_FROM_WAVEFORM, IDC_TVT_X_FROM_GROUP);
    m_radYSource.Setup(this, IDC_TVT_Y_FROM_WAVEFORM, IDC_TVT_Y_FROM_GROUP);
    RegisterControl(IDC_TVT_X_SET_LABEL, &m_lblXSet);
    RegisterControl(IDC_TVT_Y_SET_LABEL, &m_lblYSet);
    RegisterControl(IDC_TVT_X_SET, &m_cmbXSet);
    RegisterControl(IDC_TVT_Y_SET, &m_cmbYSet);
    RegisterControl(IDC_REGION, &m_cmbRegion);
    BindEvents();
}

CTraceVsTraceDialog::AxisControls CTraceVsTraceDialog::XControls() {
    return {CTraceVsTraceOptionsInterface::kX,
            m_radXSource,
            m_cmbXWaveform,
            m_cmbXGroup,
            m_cmbXSet,
            m_chkXInvert};
}

CTraceVsTraceDialog::AxisControls CTraceVsTraceDialog::YControls() {
    return {CTraceVsTraceOptionsInterface::kY,
            m_radYSource,
            m_cmbYWaveform,
            m_cmbYGroup,
            m_cmbYSet,
            m_chkYInvert};
}

BOOL CTraceVsTraceDialog::OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) {
    m_pDataOptionsObject =
        std::make_unique<CDataOptionsInterface>(m_pDataRecord, m_pSource, &m_flags);
    m_pTraces = std::make_unique<CTraceVsTraceOptionsInterface>(m_pRecord, m_pSource);
    SetOptionsInterface(m_pTraces.get());
    const BOOL bResult = CTraceIVDialogBase::OnInitDialog(hWnd, hFocus, lParam);
    FillAxis(XControls());
    FillAxis(YControls());
    m_cmbRegion.Fill(m_pSource);
    ShowLabels();
    m_events.Show();
    m_bReady = true;
    m_events.SetReady();
    return bResult;
}

void CTraceVsTraceDialog::FillAxis(const AxisControls& controls) {
    controls.cmbWaveform.Fill(m_pSource);
    controls.cmbGroup.Fill(m_pSource, true);
}

// --- Display ---------------------------------------------------------------------------------

void CTraceVsTraceDialog::ShowLabels() {
    const char* szGroup = m_pSource->GetGroupLabel();
    const char* szSet = m_pSource->GetSetLabel();
    char szCaption[128];
    FormatCaption(szCaption, szGroup != nullptr ? "%s:" : "Data &Group:", szGroup);
    m_radXSource.SetButtonText(kFromGroup, szCaption);
    FormatCaption(szCaption, szGroup != nullptr ? "%s:" : "Data Gro&up:", szGroup);
    m_radYSource.SetButtonText(kFromGroup, szCaption);
    FormatCaption(szCaption, szSet != nullptr ? "%s:" : "&Data Set:", szSet);
    m_lblXSet.SetWindowText(szCaption);
    FormatCaption(szCaption, szSet != nullptr ? "%s:" : "Data &Set:", szSet);
    m_lblYSet.SetWindowText(szCaption);
}

void CTraceVsTraceDialog::ShowOptions() {
    m_bHasWaveform = m_pSource->GetEpochCount() != 0;
    ShowAxis(XControls());
    ShowAxis(YControls());
    m_cmbRegion.SelectById(m_pTraces->GetRegion());
    m_pTraces->SetRegion(m_cmbRegion.GetRegionId());
    m_chkWriteRegionInfo.SetCheck(m_pTraces->GetWriteRegionInfo() ? BST_CHECKED : BST_UNCHECKED);
}

void CTraceVsTraceDialog::ShowAxis(const AxisControls& controls) {
    // Without a waveform the group is shown, and the record keeps what it says.
    const bool bGroup = !m_bHasWaveform || m_pTraces->GetSource(controls.axis) == kFromGroup;
    controls.radSource.SetSelected(bGroup ? kFromGroup : kFromWaveform);
    controls.radSource.EnableButton(kFromWaveform, m_bHasWaveform);
    controls.cmbWaveform.SelectByValue(m_pTraces->GetWaveform(controls.axis));
    m_pTraces->SetGroup(controls.axis,
                        SelectGroup(controls.cmbGroup, m_pTraces->GetGroup(controls.axis)));
    ShowSets(controls);
    controls.chkInvert.SetCheck(m_pTraces->GetInvert(controls.axis) ? BST_CHECKED : BST_UNCHECKED);
    EnableAxis(controls);
}

void CTraceVsTraceDialog::ShowSets(const AxisControls& controls) {
    const std::uint32_t uGroup = m_pTraces->GetGroup(controls.axis);
    controls.cmbSet.Fill(uGroup, m_pSource);
    const int nCount = controls.cmbSet.GetCount();
    const std::uint32_t uSet = m_pTraces->GetSet(controls.axis);
    const bool bInside = nCount > 0 && uSet < static_cast<std::uint32_t>(nCount);
    controls.cmbSet.SetSelection(bInside ? static_cast<int>(uSet) : 0);
    if (!bInside) m_pTraces->SetSet(controls.axis, 0);
}

// --- Enabling --------------------------------------------------------------------------------

void CTraceVsTraceDialog::EnableAxis(const AxisControls& controls) {
    const int nSource = controls.radSource.GetSelected();
    controls.cmbWaveform.Enable(nSource == kFromWaveform && m_bHasWaveform);
    controls.cmbGroup.Enable(nSource == kFromGroup);
}

// --- Events ----------------------------------------------------------------------------------

void CTraceVsTraceDialog::BindEvents() {
    BindAxis(XControls());
    BindAxis(YControls());
    m_events.On(&m_cmbRegion, ADMN_COMBOSELCHANGE,
                [this] { m_pTraces->SetRegion(m_cmbRegion.GetRegionId()); });
}

void CTraceVsTraceDialog::BindAxis(const AxisControls& controls) {
    m_events.On(&controls.radSource, ADMN_CLICKED, [this, controls] {
        m_pTraces->SetSource(controls.axis, controls.radSource.GetSelected());
        EnableAxis(controls);
    });
    m_events.On(&controls.cmbWaveform, ADMN_COMBOSELCHANGE, [this, controls] {
        m_pTraces->SetWaveform(controls.axis, controls.cmbWaveform.GetWaveform());
    });
    m_events.On(&controls.cmbGroup, ADMN_COMBOSELCHANGE, [this, controls] {
        m_pTraces->SetGroup(controls.axis, SelectedGroup(controls.cmbGroup));
        ShowSets(controls);
    });
    m_events.On(&controls.cmbSet, ADMN_COMBOSELCHANGE, [this, controls] {
        const int nSet = controls.cmbSet.GetCurSel();
        if (nSet >= 0) m_pTraces->SetSet(controls.axis, static_cast<std::uint32_t>(nSet));
    });
    OnCheck(controls.chkInvert,
            [this, axis = controls.axis](bool b) { m_pTraces->SetInvert(axis, b); });
}
