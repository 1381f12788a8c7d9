#include "traceops/TraceVsTraceDialog.h"

#include "ZXADLG.h"
#include "ids.h"
#include "text/CaptionText.h"

namespace {

// Indices of the source radios.
constexpr int kFromWaveform = 0;
constexpr int kFromGroup = 1;

}  // namespace

CTraceVsTraceDialog::CTraceVsTraceDialog(HWND hwndParent, Record* pOptions,
                                         ZXADLG_DataOptions* pData, ZXADLG_CDlgDataSource* pSource,
                                         const ZXADLG_DlgParams* pParams)
    : CTraceIVDialogBase(hwndParent, IDD_TRACE_VS_TRACE, pOptions, pData, pSource, pParams) {
    BindSource(m_x, {IDC_TVT_X_FROM_WAVEFORM, IDC_TVT_X_FROM_GROUP});
    Bind(IDC_AXES_X_WAVEFORM, m_cmbXWaveform, &Record::uXWaveformIndex);
    Bind(IDC_AXES_X_GROUP, m_cmbXGroup, &Record::uXDataGroupIndex).Corrects().Then([this] {
        ShowSets(m_x);
    });
    Label(IDC_TVT_X_SET_LABEL, m_lblXSet);
    Bind(IDC_TVT_X_SET, m_cmbXSet, &Record::uXDataSetIndex);
    Bind(IDC_AXES_X_INVERT, m_chkXInvert, &Record::bInvertX);
    BindSource(m_y, {IDC_TVT_Y_FROM_WAVEFORM, IDC_TVT_Y_FROM_GROUP});
    Bind(IDC_AXES_Y_WAVEFORM, m_cmbYWaveform, &Record::uYWaveformIndex);
    Bind(IDC_AXES_Y_GROUP, m_cmbYGroup, &Record::uYDataGroupIndex).Corrects().Then([this] {
        ShowSets(m_y);
    });
    Label(IDC_TVT_Y_SET_LABEL, m_lblYSet);
    Bind(IDC_TVT_Y_SET, m_cmbYSet, &Record::uYDataSetIndex);
    Bind(IDC_AXES_Y_INVERT, m_chkYInvert, &Record::bInvertY);
    Bind(IDC_REGION, m_cmbRegion, &Record::eValueRegion).Corrects();
}

void CTraceVsTraceDialog::BindSource(const Axis& axis, std::initializer_list<int> ids) {
    axis.radSource.SetupIds(this, static_cast<int>(ids.size()), ids.begin(), nullptr);
    // Without a waveform the group is shown, and the record keeps what it says.
    BindTo(
        axis.radSource,
        [this, &axis] { return HasWaveform() ? m_pRecord->*axis.pSourceField : kFromGroup; },
        [this, &axis](int eSource) { m_pRecord->*axis.pSourceField = eSource; });
}

bool CTraceVsTraceDialog::SetUp() {
    OfferData(0);
    for (const Axis* pAxis : {&m_x, &m_y}) {
        pAxis->cmbWaveform.Fill(m_pSource);
        pAxis->cmbGroup.Fill(m_pSource, true);
    }
    m_cmbRegion.Fill(m_pSource);
    ShowLabels();
    return true;
}

bool CTraceVsTraceDialog::HasWaveform() const {
    return m_pSource->GetEpochCount() != 0;
}

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
    ShowSets(m_x);
    ShowSets(m_y);
}

void CTraceVsTraceDialog::ShowSets(const Axis& axis) {
    axis.cmbSet.Fill(m_pRecord->*axis.pGroupField, m_pSource);
    axis.cmbSet.SelectSet(m_pRecord->*axis.pSetField);
    m_pRecord->*axis.pSetField = axis.cmbSet.GetSet();
}

void CTraceVsTraceDialog::UpdateControls() {
    CTraceIVDialogBase::UpdateControls();
    EnableAxis(m_x);
    EnableAxis(m_y);
}

void CTraceVsTraceDialog::EnableAxis(const Axis& axis) {
    const int nSource = axis.radSource.GetSelected();
    EnableButton(axis.radSource, kFromWaveform, HasWaveform());
    EnableControls({&axis.cmbWaveform}, nSource == kFromWaveform && HasWaveform());
    EnableControls({&axis.cmbGroup}, nSource == kFromGroup);
}
