#include "traceops/ModifySampleRateDialog.h"

#include <algorithm>

#include "ZXADLG.h"
#include "analysis/SelectionControls.h"
#include "ids.h"
#include "widgets/Framework.h"

namespace {

constexpr int kMinMax = 2;
constexpr char kMicroseconds[] = "\xB5s";  // code page 1252
constexpr int kNoteDecimals = 2;
constexpr int kNoteDigits = 15;

}  // namespace

// --- Controls --------------------------------------------------------------------------------

CModifySampleRateDialog::CModifySampleRateDialog(HWND hwndParent,
                                                 ZXADLG_ModifySampleRateOptions* pOptions,
                                                 ZXADLG_CDlgDataSource* pSource, bool bReadOnly)
    : m_pRecord(pOptions),
      m_pSource(pSource),
      m_bReadOnly(bReadOnly),
      m_events(bReadOnly, [this] { ShowOptions(); }) {
    m_hInstance = GetFrameworkInstance();
    m_hParentWnd = hwndParent;
    SetTemplate(MAKEINTRESOURCEA(IDD_MODIFY_SAMPLE_RATE));
    m_radConversion.Setup(this, IDC_RATE_REDUCTION, IDC_RATE_INTERPOLATION);
    m_radReduction.Setup(this, IDC_RATE_DECIMATE, IDC_RATE_MIN_MAX);
    RegisterControl(IDC_RATE_REDUCE_LABEL, &m_lblReduceFactor);
    RegisterControl(IDC_RATE_REDUCE_FACTOR, &m_txtReduceFactor);
    RegisterControl(IDC_RATE_REDUCE_SPIN, &m_spnReduceFactor);
    m_radInterpolation.Setup(this, IDC_RATE_STRAIGHT, IDC_RATE_SPLINE);
    RegisterControl(IDC_RATE_INTERPOLATE_LABEL, &m_lblInterpolFactor);
    RegisterControl(IDC_RATE_INTERPOLATE_FACTOR, &m_txtInterpolFactor);
    RegisterControl(IDC_RATE_INTERPOLATE_SPIN, &m_spnInterpolFactor);
    RegisterControl(IDC_RATE_NOTE, &m_lblNote);
    m_txtReduceFactor.SetGauge(&m_spnReduceFactor);
    m_txtInterpolFactor.SetGauge(&m_spnInterpolFactor);

    m_events.On(&m_radConversion, ADMN_CLICKED, [this] {
        m_pOptions->SetConversion(m_radConversion.GetSelected());
        EnableMethods();
        ShowNote();
    });
    // Required as it stands: a change of the method does not refresh the note.
    m_events.On(&m_radReduction, ADMN_CLICKED,
                [this] { m_pOptions->SetReductionMethod(m_radReduction.GetSelected()); });
    m_events.On(&m_radInterpolation, ADMN_CLICKED,
                [this] { m_pOptions->SetInterpolationMethod(m_radInterpolation.GetSelected()); });
    m_events.On(&m_txtReduceFactor, ADMN_TEXTCHANGE, [this] {
        m_pOptions->SetReduceFactor(m_txtReduceFactor.GetValue());
        ShowNote();
    });
    m_events.On(&m_txtInterpolFactor, ADMN_TEXTCHANGE, [this] {
        m_pOptions->SetInterpolFactor(m_txtInterpolFactor.GetValue());
        ShowNote();
    });
}

BOOL CModifySampleRateDialog::OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) {
    const BOOL bResult = ADM_Dialog::OnInitDialog(hWnd, hFocus, lParam);
    if (m_bReadOnly) DressReadOnly(hWnd);
    m_pOptions = std::make_unique<CModifySampleRateOptionsInterface>(m_pRecord, m_pSource);
    m_txtReduceFactor.SetRange(2, 1000, 1);
    m_txtInterpolFactor.SetRange(1, 100, 1);
    m_events.Show();
    m_events.SetReady();
    return bResult;
}

// --- Display ---------------------------------------------------------------------------------

void CModifySampleRateDialog::ShowOptions() {
    m_txtReduceFactor.SetValue(m_pOptions->GetReduceFactor());
    SelectButton(m_radReduction, m_pOptions->GetReductionMethod());
    m_txtInterpolFactor.SetValue(m_pOptions->GetInterpolFactor());
    SelectButton(m_radInterpolation, m_pOptions->GetInterpolationMethod());
    SelectButton(m_radConversion, m_pOptions->GetConversion());
    EnableMethods();
    ShowNote();
}

void CModifySampleRateDialog::ShowNote() {
    const double dInterval = 1000000.0 / m_pSource->GetSamplingFrequency();
    double dNewInterval;
    UINT nWord;
    if (IsReduction()) {
        double dFactor = std::max<double>(m_txtReduceFactor.GetValue(), 2.0);
        if (m_radReduction.GetSelected() == kMinMax) dFactor /= 2.0;
        dNewInterval = dInterval * dFactor;
        nWord = IDS_REDUCTION;
    } else {
        const double dFactor = std::max<double>(m_txtInterpolFactor.GetValue(), 1.0);
        dNewInterval = dInterval / dFactor;
        nWord = IDS_INTERPOLATION;
    }
    char szNote[256];
    if (LoadStringA(m_hInstance, IDS_SAMPLING_NOTE, szNote, sizeof szNote) <= 0) return;
    m_lblNote.SetFormat(szNote);
    m_lblNote.SetArgDouble(0, dInterval, kNoteDecimals, kNoteDigits);
    m_lblNote.SetArg(1, kMicroseconds);
    m_lblNote.SetArgString(2, m_hInstance, nWord);
    m_lblNote.SetArgDouble(3, dNewInterval, kNoteDecimals, kNoteDigits);
    m_lblNote.SetArg(4, kMicroseconds);
}

// --- Enabling --------------------------------------------------------------------------------

void CModifySampleRateDialog::EnableMethods() {
    const BOOL bReduction = IsReduction();
    m_lblReduceFactor.Enable(bReduction);
    m_txtReduceFactor.Enable(bReduction);
    m_spnReduceFactor.Enable(bReduction);
    m_radReduction.Enable(bReduction);
    m_lblInterpolFactor.Enable(!bReduction);
    m_txtInterpolFactor.Enable(!bReduction);
    m_spnInterpolFactor.Enable(!bReduction);
    m_radInterpolation.Enable(!bReduction);
}

// --- Events ----------------------------------------------------------------------------------

void CModifySampleRateDialog::Notify(ADM_Wnd* pSender, int nId, int nCode, int nData) {
    ADM_Dialog::Notify(pSender, nId, nCode, nData);
    m_events.Serve(m_hWnd, pSender, nCode);
}
