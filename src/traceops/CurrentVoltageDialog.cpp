#include "traceops/CurrentVoltageDialog.h"

#include "ZXADLG.h"
#include "analysis/SelectionControls.h"
#include "ids.h"
#include "text/CaptionText.h"

namespace {

// Indices of the voltage radios that have a combo box of their own.
constexpr int kVoltageFromGroup = 2;
constexpr int kVoltageFromEpoch = 3;
// Indices of the current radios.
constexpr int kCurrentMean = 1;
constexpr int kCurrentPeak = 2;

}  // namespace

// --- Controls --------------------------------------------------------------------------------

CCurrentVoltageDialog::CCurrentVoltageDialog(HWND hwndParent,
                                             ZXADLG_CurrentVoltageOptions* pOptions,
                                             ZXADLG_DataOptions* pData,
                                             ZXADLG_CDlgDataSource* pSource,
                                             const ZXADLG_DlgParams* pParams)
    : CTraceIVDialogBase(hwndParent, IDD_CURRENT_VOLTAGE, pData, pSource, pParams),
      m_pRecord(pOptions) {
    constexpr int kTraces[] = {IDC_IV_ALL_TRACES, IDC_IV_VISIBLE_TRACES};
    m_radVoltage.Setup(this, IDC_IV_WAVEFORM_AT_1, IDC_IV_FROM_EPOCH);
    RegisterControl(IDC_IV_EPOCH, &m_cmbEpoch);
    m_radTraces.SetupIds(this, 2, kTraces, nullptr);
    RegisterControl(IDC_IV_GROUP_LABEL, &m_lblGroup);
    m_radCurrent.Setup(this, IDC_IV_VALUE_AT_1, IDC_IV_PEAK);
    m_radPolarity.Setup(this, IDC_IV_POSITIVE, IDC_IV_ABSOLUTE);
    RegisterControl(IDC_IV_REGION_LABEL, &m_lblRegion);
    RegisterControl(IDC_REGION, &m_cmbRegion);
    RegisterControl(IDC_IV_SMOOTH, &m_chkSmooth);
    RegisterControl(IDC_IV_SMOOTHING, &m_txtSmoothing);
    RegisterControl(IDC_IV_SMOOTHING_SPIN, &m_spnSmoothing);
    m_txtSmoothing.SetGauge(&m_spnSmoothing);
    BindEvents();
}

BOOL CCurrentVoltageDialog::OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) {
    m_flags.bUseStoredInfo = m_pParams->bDeferredRun;
    m_pDataOptionsObject =
        std::make_unique<CDataOptionsInterface>(m_pDataRecord, m_pSource, &m_flags);
    m_pIV = std::make_unique<CCurrentVoltageOptionsInterface>(m_pRecord, m_pSource);
    SetOptionsInterface(m_pIV.get());
    const BOOL bResult = CTraceIVDialogBase::OnInitDialog(hWnd, hFocus, lParam);
    if (m_pSource->GetEpochCount() == 0 && m_pParams->bDeferredRun == 0) {
        ShowErrorString(hWnd, IDS_NO_WAVEFORM_FILE);
        OnCancel();
        return bResult;
    }
    m_cmbEpoch.Fill(m_pSource);
    m_cmbRegion.Fill(m_pSource);
    m_cmbXWaveform.Fill(m_pSource);
    m_cmbXGroup.Fill(m_pSource, true);
    m_cmbYGroup.Fill(m_pSource, true);
    ShowLabels();
    m_events.Show();
    m_bReady = true;
    m_events.SetReady();
    return bResult;
}

// --- Display ---------------------------------------------------------------------------------

void CCurrentVoltageDialog::ShowLabels() {
    const char* szGroup = m_pSource->GetGroupLabel();
    char szCaption[128];
    FormatCaption(szCaption, szGroup != nullptr ? "&%s:" : "Data &Group:", szGroup);
    m_lblGroup.SetWindowText(szCaption);
    FormatCaption(szCaption,
                  szGroup != nullptr ? "%s at c&ursor 3:" : "Data group at c&ursor 3:", szGroup);
    m_radVoltage.SetButtonText(kVoltageFromGroup, szCaption);
}

void CCurrentVoltageDialog::ShowOptions() {
    SelectButton(m_radVoltage, m_pIV->GetVoltageSource());
    m_cmbEpoch.SelectByCode(m_pIV->GetFixedEpoch());
    m_cmbXWaveform.SelectByValue(m_pIV->GetWaveform());
    m_pIV->SetWaveform(m_cmbXWaveform.GetWaveform());
    m_pIV->SetXGroup(SelectGroup(m_cmbXGroup, m_pIV->GetXGroup()));
    m_pIV->SetYGroup(SelectGroup(m_cmbYGroup, m_pIV->GetYGroup()));
    m_radTraces.SetSelected(m_pIV->GetAllTraces() ? 0 : 1);
    SelectButton(m_radCurrent, m_pIV->GetCurrentSource());
    SelectButton(m_radPolarity, m_pIV->GetPeakPolarity());
    m_cmbRegion.SelectById(m_pIV->GetPeakRegion());
    m_pIV->SetPeakRegion(m_cmbRegion.GetRegionId());
    m_chkXInvert.SetCheck(m_pIV->GetInvertX() ? BST_CHECKED : BST_UNCHECKED);
    m_chkYInvert.SetCheck(m_pIV->GetInvertY() ? BST_CHECKED : BST_UNCHECKED);
    m_chkSmooth.SetCheck(m_pIV->GetDoFilter() ? BST_CHECKED : BST_UNCHECKED);
    m_txtSmoothing.SetValue(static_cast<int>(m_pIV->GetSmoothingPoints()));
    m_chkWriteRegionInfo.SetCheck(m_pIV->GetWriteRegionInfo() ? BST_CHECKED : BST_UNCHECKED);
    EnableX();
    EnableY();
    EnableSmoothing();
}

// --- Enabling --------------------------------------------------------------------------------

void CCurrentVoltageDialog::EnableX() {
    m_cmbXGroup.Enable(m_radVoltage.GetSelected() == kVoltageFromGroup);
    m_cmbEpoch.Enable(m_radVoltage.GetSelected() == kVoltageFromEpoch);
}

void CCurrentVoltageDialog::EnableY() {
    const int nCurrent = m_radCurrent.GetSelected();
    m_radPolarity.Enable(nCurrent == kCurrentPeak);
    const BOOL bRegion = nCurrent == kCurrentMean || nCurrent == kCurrentPeak;
    m_cmbRegion.Enable(bRegion);
    m_lblRegion.Enable(bRegion);
    m_lblRegion.SetArg(0, nCurrent == kCurrentPeak   ? "Peak r&egion"
                          : nCurrent == kCurrentMean ? "Mean r&egion"
                                                     : "Mean/peak region");
}

void CCurrentVoltageDialog::EnableSmoothing() {
    const BOOL bSmooth = m_chkSmooth.GetCheck() == BST_CHECKED;
    m_txtSmoothing.Enable(bSmooth);
    m_spnSmoothing.Enable(bSmooth);
}

// --- Events ----------------------------------------------------------------------------------

void CCurrentVoltageDialog::BindEvents() {
    m_events.On(&m_radVoltage, ADMN_CLICKED, [this] {
        m_pIV->SetVoltageSource(m_radVoltage.GetSelected());
        EnableX();
    });
    m_events.On(&m_cmbEpoch, ADMN_COMBOSELCHANGE,
                [this] { m_pIV->SetFixedEpoch(m_cmbEpoch.GetCode()); });
    m_events.On(&m_cmbXWaveform, ADMN_COMBOSELCHANGE,
                [this] { m_pIV->SetWaveform(m_cmbXWaveform.GetWaveform()); });
    m_events.On(&m_cmbXGroup, ADMN_COMBOSELCHANGE,
                [this] { m_pIV->SetXGroup(SelectedGroup(m_cmbXGroup)); });
    m_events.On(&m_cmbYGroup, ADMN_COMBOSELCHANGE,
                [this] { m_pIV->SetYGroup(SelectedGroup(m_cmbYGroup)); });
    m_events.On(&m_radTraces, ADMN_CLICKED,
                [this] { m_pIV->SetAllTraces(m_radTraces.GetSelected() == 0); });
    m_events.On(&m_radCurrent, ADMN_CLICKED, [this] {
        m_pIV->SetCurrentSource(m_radCurrent.GetSelected());
        EnableY();
    });
    m_events.On(&m_radPolarity, ADMN_CLICKED,
                [this] { m_pIV->SetPeakPolarity(m_radPolarity.GetSelected()); });
    m_events.On(&m_cmbRegion, ADMN_COMBOSELCHANGE,
                [this] { m_pIV->SetPeakRegion(m_cmbRegion.GetRegionId()); });
    m_events.On(&m_txtSmoothing, ADMN_TEXTCHANGE, [this] {
        m_pIV->SetSmoothingPoints(static_cast<std::uint32_t>(m_txtSmoothing.GetValue()));
    });
    m_events.On(&m_chkSmooth, ADMN_CLICKED, [this] {
        m_pIV->SetDoFilter(m_chkSmooth.GetCheck() == BST_CHECKED);
        EnableSmoothing();
    });
    OnCheck(m_chkXInvert, [this](bool b) { m_pIV->SetInvertX(b); });
    OnCheck(m_chkYInvert, [this](bool b) { m_pIV->SetInvertY(b); });
}
