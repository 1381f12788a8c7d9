#include "sigproc/CorrelationOptionsTab.h"

#include <cstring>
#include <limits>

#include "ZXADLG.h"
#include "ids.h"
#include "sigproc_ids.h"

namespace {

using Record = ZXADLG_CorrelationOptions;

constexpr int kFrequencyDigits = 5;
constexpr int kTimeDecimals = 2;
constexpr int kTextDigits = 15;

}  // namespace

// --- Controls ------------------------------------------------------------------------------------

CCorrelationOptionsTab::CCorrelationOptionsTab(Options* pOptions, const ZXADLG_DlgParams* pParams,
                                               CDataOptionsInterface* pData)
    : COptionsTab(pOptions, pParams, pData, IDD_CORRELATION_OPTIONS) {
    BindRadios({IDC_CORRELATION_AUTO, IDC_CORRELATION_CROSS}, m_radType, &Record::eType)
        .Then([pOptions] { pOptions->Notify(kNotifyCorrelationChanged); });
    Label(IDC_CORRELATION_STATUS, m_lblStatus);
    Label(IDC_CORRELATION_FREQUENCY_LABEL, m_lblFrequency);
    Label(IDC_CORRELATION_FREQUENCY, m_txtFrequency);
    m_txtFrequency.SetSigDigits(kFrequencyDigits);
    OnEvent(m_txtFrequency, ADMN_TEXTCHANGE,
            [this] { m_pRecord->dSamplingFrequency = m_txtFrequency.GetTypedValue(); });
    Labels({{IDC_CORRELATION_UNIT, &m_lblUnit},
            {IDC_CORRELATION_INTERVAL, &m_lblInterval},
            {IDC_CORRELATION_LAGS_LABEL, &m_lblLags}});
    Bind(
        IDC_CORRELATION_LAGS, m_txtLags, [this] { return ShownCount(m_pRecord->uNumberOfLags); },
        [this](std::int32_t n) {
            // What begins as a number below 0 is not stored, from its sign on; OK refuses it.
            char szText[16] = "";
            m_txtLags.GetWindowText(szText, sizeof szText);
            if (std::strchr(szText, '-') == nullptr) m_pRecord->uNumberOfLags = TypedCount(n);
        });
    Spinner(IDC_CORRELATION_LAGS_SPIN, m_spnLags, m_txtLags);
    Label(IDC_CORRELATION_TIMES, m_lblTimes);
    FollowData(pData, [this] { TakeSignal(); });
}

bool CCorrelationOptionsTab::SetUp() {
    const std::span<const std::int32_t> lags = LagNumbers();
    m_txtLags.SetValueList(static_cast<std::uint32_t>(lags.size()), lags.data());
    if (!IsReadOnly()) m_txtLags.SetRange(0, std::numeric_limits<std::int32_t>::max());
    return true;
}

// --- The data ------------------------------------------------------------------------------------

void CCorrelationOptionsTab::TakeSignal() {
    const double dBefore = m_dFileFrequency;
    m_dFileFrequency = m_pData->GetSamplingFrequency();
    m_uPoints = m_pData->GetAnalysisPointCount();
    if (m_dFileFrequency != dBefore) ShowOptions();
}

// The frequency of a file overrides the record's in the display and nowhere else: the host has it.
void CCorrelationOptionsTab::ShowOptions() {
    m_txtFrequency.SetValue(m_dFileFrequency > 0.0 ? m_dFileFrequency
                                                   : m_pRecord->dSamplingFrequency);
}

// --- Rules ---------------------------------------------------------------------------------------

void CCorrelationOptionsTab::UpdateControls() {
    COptionsTab::UpdateControls();
    const bool bFixed = m_dFileFrequency > 0.0;
    m_lblStatus.SetArgString(
        0, m_hInstance,
        bFixed ? IDS_CORRELATION_FREQUENCY_FIXED : IDS_CORRELATION_FREQUENCY_WANTED);
    EnableControls({&m_lblFrequency, &m_txtFrequency, &m_lblUnit},
                   !bFixed && !m_pData->IsSheetData());
    EnableControls({&m_lblLags, &m_txtLags, &m_spnLags, &m_lblTimes},
                   m_txtFrequency.GetTypedValue() > 0.0);
    ShowTimes();
}

void CCorrelationOptionsTab::ShowTimes() {
    const double dFrequency = m_txtFrequency.GetTypedValue();
    ShowControls({&m_lblTimes, &m_lblInterval}, dFrequency != 0.0);
    const CorrelationTimes times = TimesOf(dFrequency, m_pRecord->uNumberOfLags, m_uPoints);
    m_lblTimes.SetArgDouble(0, times.dLags, kTimeDecimals, kTextDigits);
    m_lblTimes.SetArgDouble(1, times.dMaximum, kTimeDecimals, kTextDigits);
    m_lblInterval.SetArgDouble(0, times.dInterval, kTimeDecimals, kTextDigits);
}

// --- OK ------------------------------------------------------------------------------------------

CorrelationCheck CCorrelationOptionsTab::Typed() {
    TakeData();
    return {.dFrequency = m_txtFrequency.GetTypedValue(),
            .uLags = m_pRecord->uNumberOfLags,
            .uPoints = m_uPoints,
            .bDeferred = m_pParams->bDeferredRun != 0,
            .setLags = [this](std::uint32_t uLags) { SetLags(uLags); }};
}

void CCorrelationOptionsTab::SetLags(std::uint32_t uLags) {
    m_pRecord->uNumberOfLags = uLags;
    {
        const UpdateScope updating(m_bUpdating);
        m_txtLags.SetValue(ShownCount(uLags));
    }
    RunUpdate();
}
