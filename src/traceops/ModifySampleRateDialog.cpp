#include "traceops/ModifySampleRateDialog.h"

#include <algorithm>

#include "ZXADLG.h"
#include "ids.h"

namespace {

using Record = ZXADLG_ModifySampleRateOptions;

constexpr int kMinMax = 2;
constexpr char kMicroseconds[] = "\xB5s";  // code page 1252
constexpr int kNoteDecimals = 2;
constexpr int kNoteDigits = 15;

}  // namespace

CModifySampleRateDialog::CModifySampleRateDialog(HWND hwndParent, Record* pOptions,
                                                 ZXADLG_CDlgDataSource* pSource, bool bReadOnly)
    : CRecordPage(pOptions, hwndParent, IDD_MODIFY_SAMPLE_RATE, bReadOnly), m_pSource(pSource) {
    BindRadios({IDC_RATE_REDUCTION, IDC_RATE_INTERPOLATION}, m_radConversion,
               &Record::eRateConversionType)
        .Then([this] { ShowNote(); });
    // Required as it stands: a change of the method does not refresh the note.
    BindRadios({IDC_RATE_DECIMATE, IDC_RATE_AVERAGE, IDC_RATE_MIN_MAX}, m_radReduction,
               &Record::eReductionMethod);
    Label(IDC_RATE_REDUCE_LABEL, m_lblReduceFactor);
    Bind(IDC_RATE_REDUCE_FACTOR, m_txtReduceFactor, &Record::nReduceFactor).Then([this] {
        ShowNote();
    });
    Spinner(IDC_RATE_REDUCE_SPIN, m_spnReduceFactor, m_txtReduceFactor);
    m_txtReduceFactor.SetRange(2, 1000, 1);
    BindRadios({IDC_RATE_STRAIGHT, IDC_RATE_SPLINE}, m_radInterpolation,
               &Record::eInterpolationMethod);
    Label(IDC_RATE_INTERPOLATE_LABEL, m_lblInterpolFactor);
    Bind(IDC_RATE_INTERPOLATE_FACTOR, m_txtInterpolFactor, &Record::nInterpolFactor).Then([this] {
        ShowNote();
    });
    Spinner(IDC_RATE_INTERPOLATE_SPIN, m_spnInterpolFactor, m_txtInterpolFactor);
    m_txtInterpolFactor.SetRange(1, 100, 1);
    Label(IDC_RATE_NOTE, m_lblNote);
}

void CModifySampleRateDialog::ShowNote() {
    const double dFrequency = m_pSource->GetSamplingFrequency();
    const UINT nNote = dFrequency > 0.0 ? IDS_SAMPLING_NOTE : IDS_NO_SAMPLING_INTERVAL;
    char szNote[256];
    if (LoadStringA(m_hInstance, nNote, szNote, sizeof szNote) <= 0) return;
    m_lblNote.SetFormat(szNote);
    if (nNote == IDS_NO_SAMPLING_INTERVAL) return;
    const double dInterval = 1000000.0 / dFrequency;
    double dNewInterval;
    UINT nWord;
    if (IsReduction()) {
        double dFactor = std::max<double>(m_txtReduceFactor.GetValue(), 2.0);
        if (m_radReduction.GetSelected() == kMinMax) dFactor /= 2.0;
        dNewInterval = dInterval * dFactor;
        nWord = IDS_REDUCTION;
    } else {
        dNewInterval = dInterval / std::max<double>(m_txtInterpolFactor.GetValue(), 1.0);
        nWord = IDS_INTERPOLATION;
    }
    m_lblNote.SetArgDouble(0, dInterval, kNoteDecimals, kNoteDigits);
    m_lblNote.SetArg(1, kMicroseconds);
    m_lblNote.SetArgString(2, m_hInstance, nWord);
    m_lblNote.SetArgDouble(3, dNewInterval, kNoteDecimals, kNoteDigits);
    m_lblNote.SetArg(4, kMicroseconds);
}

void CModifySampleRateDialog::UpdateControls() {
    EnableControls({&m_lblReduceFactor, &m_txtReduceFactor, &m_spnReduceFactor, &m_radReduction},
                   IsReduction());
    EnableControls(
        {&m_lblInterpolFactor, &m_txtInterpolFactor, &m_spnInterpolFactor, &m_radInterpolation},
        !IsReduction());
}
