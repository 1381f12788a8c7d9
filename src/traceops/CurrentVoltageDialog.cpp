#include "traceops/CurrentVoltageDialog.h"

#include <limits>

#include "ZXADLG.h"
#include "ids.h"
#include "text/CaptionText.h"

namespace {

using Record = ZXADLG_CurrentVoltageOptions;

// Indices of the voltage radios that have a combo box of their own.
constexpr int kVoltageFromGroup = 2;
constexpr int kVoltageFromEpoch = 3;
// Indices of the current radios.
constexpr int kCurrentMean = 1;
constexpr int kCurrentPeak = 2;

}  // namespace

CCurrentVoltageDialog::CCurrentVoltageDialog(HWND hwndParent, Record* pOptions,
                                             ZXADLG_DataOptions* pData,
                                             ZXADLG_CDlgDataSource* pSource,
                                             const ZXADLG_DlgParams* pParams)
    : CTraceIVDialogBase(hwndParent, IDD_CURRENT_VOLTAGE, pOptions, pData, pSource, pParams) {
    BindRadios({IDC_IV_WAVEFORM_AT_1, IDC_IV_WAVEFORM_AT_3, IDC_IV_GROUP_AT_3, IDC_IV_FROM_EPOCH},
               m_radVoltage, &Record::eVoltageSource);
    Bind(IDC_AXES_X_GROUP, m_cmbXGroup, &Record::uXDataGroupIndex).Corrects();
    Bind(IDC_IV_EPOCH, m_cmbEpoch, &Record::eFixedEpoch);
    Bind(IDC_AXES_X_WAVEFORM, m_cmbXWaveform, &Record::uWaveformIndex).Corrects();
    Label(IDC_AXES_Y_WAVEFORM, m_cmbYWaveform);
    Bind(IDC_AXES_X_INVERT, m_chkXInvert, &Record::bInvertX);
    BindRadios({IDC_IV_ALL_TRACES, IDC_IV_VISIBLE_TRACES}, {1, 0}, m_radTraces,
               &Record::eSetSelectionMode);
    Label(IDC_IV_GROUP_LABEL, m_lblGroup);
    Bind(IDC_AXES_Y_GROUP, m_cmbYGroup, &Record::uYDataGroupIndex).Corrects();
    BindRadios({IDC_IV_VALUE_AT_1, IDC_IV_MEAN, IDC_IV_PEAK}, m_radCurrent,
               &Record::eCurrentSource);
    BindRadios({IDC_IV_POSITIVE, IDC_IV_NEGATIVE, IDC_IV_ABSOLUTE}, m_radPolarity,
               &Record::ePeakPolarity);
    Label(IDC_IV_REGION_LABEL, m_lblRegion);
    Bind(IDC_REGION, m_cmbRegion, &Record::ePeakRegion).Corrects();
    Bind(IDC_IV_SMOOTH, m_chkSmooth, &Record::bDoFilter);
    Bind(IDC_IV_SMOOTHING, m_txtSmoothing, &Record::uSmoothingPoints);
    Spinner(IDC_IV_SMOOTHING_SPIN, m_spnSmoothing, m_txtSmoothing);
    m_txtSmoothing.SetRange(1, std::numeric_limits<std::int32_t>::max(), 1);
    Bind(IDC_AXES_Y_INVERT, m_chkYInvert, &Record::bInvertY);
}

bool CCurrentVoltageDialog::SetUp() {
    OfferData(m_pParams->bDeferredRun);
    if (m_pSource->GetEpochCount() == 0 && m_pParams->bDeferredRun == 0) {
        ShowFinding(m_hWnd, {.nStringId = IDS_NO_WAVEFORM_FILE});
        OnCancel();
        return false;
    }
    m_cmbEpoch.Fill(m_pSource);
    m_cmbRegion.Fill(m_pSource);
    m_cmbXWaveform.Fill(m_pSource);
    m_cmbXGroup.Fill(m_pSource, true);
    m_cmbYGroup.Fill(m_pSource, true);
    ShowLabels();
    return true;
}

void CCurrentVoltageDialog::ShowLabels() {
    const char* szGroup = m_pSource->GetGroupLabel();
    char szCaption[128];
    FormatCaption(szCaption, szGroup != nullptr ? "&%s:" : "Data &Group:", szGroup);
    m_lblGroup.SetWindowText(szCaption);
    FormatCaption(szCaption,
                  szGroup != nullptr ? "%s at c&ursor 3:" : "Data group at c&ursor 3:", szGroup);
    m_radVoltage.SetButtonText(kVoltageFromGroup, szCaption);
}

void CCurrentVoltageDialog::UpdateControls() {
    CTraceIVDialogBase::UpdateControls();
    const int nVoltage = m_radVoltage.GetSelected();
    const int nCurrent = m_radCurrent.GetSelected();
    EnableControls({&m_cmbXGroup}, nVoltage == kVoltageFromGroup);
    EnableControls({&m_cmbEpoch}, nVoltage == kVoltageFromEpoch);
    EnableControls({&m_radPolarity}, nCurrent == kCurrentPeak);
    EnableControls({&m_lblRegion, &m_cmbRegion},
                   nCurrent == kCurrentMean || nCurrent == kCurrentPeak);
    // The label ends with a colon of its own, so that none of the three texts has one.
    m_lblRegion.SetArg(0, nCurrent == kCurrentPeak   ? "Peak r&egion"
                          : nCurrent == kCurrentMean ? "Mean r&egion"
                                                     : "Mean/peak region");
    EnableControls({&m_txtSmoothing, &m_spnSmoothing}, ReadValue(m_chkSmooth));
}
