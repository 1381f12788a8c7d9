#include "sigproc/SpectrumOptionsTab.h"

#include "ZXADLG.h"
#include "ids.h"
#include "sigproc/SamplingRate.h"
#include "sigproc/SpectrumWindows.h"
#include "sigproc_ids.h"

namespace {

using Record = SpectrumOptions;

constexpr double kAlphaStep = 0.1;
constexpr int kAlphaDecimals = 2;
constexpr int kFigureDecimals = 2;
constexpr int kTextDigits = 15;

}  // namespace

// --- Controls ------------------------------------------------------------------------------------

CSpectrumOptionsTab::CSpectrumOptionsTab(Options* pOptions, const ZXADLG_DlgParams* pParams,
                                         CDataOptionsInterface* pData)
    : COptionsTab(pOptions, pParams, pData, IDD_SPECTRUM_OPTIONS) {
    BindWindow();
    BindLength();
    BindAveraging();
    FollowData(pData, [this] { TakeSignal(); });
}

void CSpectrumOptionsTab::BindWindow() {
    Label(IDC_SPECTRUM_WINDOW_LABEL, m_lblWindow);
    Bind(IDC_SPECTRUM_WINDOW, m_cmbWindow, &Record::eWindowType);
    BindAlpha({IDC_SPECTRUM_KAISER_LABEL, IDC_SPECTRUM_KAISER, IDC_SPECTRUM_KAISER_SPIN}, m_kaiser,
              &Record::dKaiserAlpha);
    BindAlpha({IDC_SPECTRUM_POISSON_LABEL, IDC_SPECTRUM_POISSON, IDC_SPECTRUM_POISSON_SPIN},
              m_poisson, &Record::dPoissonAlpha);
    Labels({{IDC_SPECTRUM_SHAPE, &m_shape},
            {IDC_SPECTRUM_MAGNITUDE, &m_magnitude},
            {IDC_SPECTRUM_EQUATION, &m_equation}});
}

void CSpectrumOptionsTab::BindAlpha(const AlphaIds& ids, Alpha& alpha, double Record::*pValue) {
    Label(ids.nLabel, alpha.lbl);
    Bind(ids.nField, alpha.txt, pValue);
    Spinner(ids.nSpin, alpha.spn, alpha.txt);
    alpha.txt.SetDecimalPlaces(kAlphaDecimals);
    if (!IsReadOnly()) alpha.txt.SetRange(kLeastAlpha, kMostAlpha, kAlphaStep);
}

void CSpectrumOptionsTab::BindLength() {
    Label(IDC_SPECTRUM_LENGTH_LABEL, m_lblLength);
    Bind(
        IDC_SPECTRUM_LENGTH, m_txtLength, [this] { return ShownCount(m_uSpecified); },
        [this](std::int32_t n) { m_uSpecified = TypedCount(n); })
        .Then([this] { StoreLength(); });
    m_txtLength.SetStrict(TRUE);
    Spinner(IDC_SPECTRUM_LENGTH_SPIN, m_spnLength, m_txtLength);
    Bind(IDC_SPECTRUM_MAXIMUM, m_chkMaximum, &Record::bUseMaxSegment).Then([this] {
        StoreLength();
    });
    Labels({{IDC_SPECTRUM_MAXIMUM_VALUE, &m_lblMaximum},
            {IDC_SPECTRUM_OUTPUT, &m_lblOutput},
            {IDC_SPECTRUM_RESOLUTION, &m_lblResolution},
            {IDC_SPECTRUM_EXCLUDE_LABEL, &m_lblExclude}});
    Bind(
        IDC_SPECTRUM_EXCLUDE, m_txtExclude,
        [this] { return ShownCount(m_pRecord->uNumBinsToExclude); },
        [this](std::int32_t n) { m_pRecord->uNumBinsToExclude = TypedCount(n); });
    if (!IsReadOnly()) m_txtExclude.SetRange(kFewestExcluded, kMostExcluded);
    Label(IDC_SPECTRUM_EXCLUDE_UNIT, m_lblExcludeUnit);
}

void CSpectrumOptionsTab::BindAveraging() {
    Bind(IDC_SPECTRUM_SEGMENTS, m_chkSegments, &Record::bAverageSegments);
    Bind(IDC_SPECTRUM_OVERLAP, m_chkOverlap, &Record::bDoOverlap);
    Bind(IDC_SPECTRUM_TRACES, m_chkTraces, &Record::bDialogAverageTraces);
}

bool CSpectrumOptionsTab::SetUp() {
    for (const SpectralWindow& window : SpectralWindows()) {
        const Choice<std::int32_t> choice[] = {{window.eType, static_cast<UINT>(window.nString)}};
        m_cmbWindow.Append(choice);
    }
    const std::span<const std::int32_t> lengths = TransformLengths();
    m_txtLength.SetValueList(static_cast<std::uint32_t>(lengths.size()), lengths.data());
    m_uSpecified = m_pRecord->uTransformLength;
    return true;
}

// --- The data ------------------------------------------------------------------------------------

void CSpectrumOptionsTab::TakeSignal() {
    const double dFileRate = KnownRate(m_pData->GetSamplingFrequency());
    m_signal.dRate = dFileRate > 0.0 ? dFileRate : RateOfInterval(*m_pRecord);
    m_signal.uPoints = m_pData->GetAnalysisPointCount();
    m_signal.bPointsKnown = m_pParams->bDeferredRun == 0 || m_signal.uPoints > 0;
    m_signal.bSwept = m_pData->IsSegmented();
    m_signal.uWholePoints = m_pData->GetWholePointCount();
    m_signal.uTraces = m_pParams->bUseDataOptions != 0 ? m_pData->GetSelectedSetCount() : 1;
    if (IsReadOnly()) return;
    if (!m_bSignalTaken) {
        m_bSignalTaken = true;
        CompleteSpectrumRecord(*m_pRecord, m_signal);
        m_uSpecified = m_pRecord->uTransformLength;
        ShowRecord();
    }
    StoreLength();
}

// One length for the host: the one in use.
void CSpectrumOptionsTab::StoreLength() {
    m_pRecord->uTransformLength = m_uSpecified;
    m_pRecord->uTransformLength = EffectiveLength(*m_pRecord, m_signal);
}

// --- Rules ---------------------------------------------------------------------------------------

void CSpectrumOptionsTab::UpdateControls() {
    COptionsTab::UpdateControls();
    ShowWindowForm();
    ShowLengths();
    EnableLengths();
}

void CSpectrumOptionsTab::ShowWindowForm() {
    const SpectralWindow* pWindow = FindSpectralWindow(m_cmbWindow.GetValue());
    if (pWindow == nullptr) return;
    const bool bKaiser = pWindow->eType == kKaiserWindow;
    const bool bPoisson = pWindow->eType == kPoissonWindow;
    EnableControls({&m_kaiser.lbl, &m_kaiser.txt, &m_kaiser.spn}, bKaiser);
    EnableControls({&m_poisson.lbl, &m_poisson.txt, &m_poisson.spn}, bPoisson);
    const WindowPictures pictures =
        PicturesOf(pWindow->eType, m_pRecord->dKaiserAlpha, m_pRecord->dPoissonAlpha);
    m_shape.SetBitmap(m_hInstance, pictures.nShape, pictures.nShape + kLargerPicture);
    m_magnitude.SetBitmap(m_hInstance, pictures.nMagnitude, pictures.nMagnitude + kLargerPicture);
    if (pWindow->szEquation == m_szEquation) return;
    m_szEquation = pWindow->szEquation;
    m_equation.LoadMetafile(m_hInstance, m_szEquation, MM_ANISOTROPIC);
}

void CSpectrumOptionsTab::ShowLengths() {
    const std::uint32_t uLength = EffectiveLength(*m_pRecord, m_signal);
    m_lblMaximum.SetArgLong(0, static_cast<LONG>(MaximumLength(m_signal.uPoints)));
    m_lblOutput.SetArgLong(0, static_cast<LONG>(uLength / 2));
    m_lblResolution.SetArgDouble(0, SpectralResolution(uLength, m_signal.dRate), kFigureDecimals,
                                 kTextDigits);
    ShowControls({&m_lblMaximum}, m_signal.bPointsKnown);
}

void CSpectrumOptionsTab::EnableLengths() {
    const bool bEnough = HasEnoughPoints(m_signal);
    EnableControls({&m_lblLength, &m_txtLength, &m_spnLength},
                   bEnough && m_pRecord->bUseMaxSegment == 0);
    EnableControls({&m_chkMaximum, &m_lblMaximum, &m_lblOutput, &m_lblResolution, &m_lblExclude,
                    &m_txtExclude, &m_lblExcludeUnit},
                   bEnough);
    const SpectrumAveraging averaging = AveragingOf(*m_pRecord, m_signal);
    EnableControls({&m_chkSegments}, averaging.bSegmentsEnabled);
    EnableControls({&m_chkOverlap}, averaging.bOverlapEnabled);
    EnableControls({&m_chkTraces}, averaging.bTracesEnabled);
}

// --- OK ------------------------------------------------------------------------------------------

CheckResult CSpectrumOptionsTab::CheckLength() {
    return CheckTransformLength(*m_pRecord, m_signal, [this](std::uint32_t uLength) {
        m_uSpecified = uLength;
        StoreLength();
        ShowRecord();
    });
}

// Swept data have no traces to average.
void CSpectrumOptionsTab::StoreAveraging() {
    m_pRecord->bAverageTraces =
        !m_signal.bSwept && AveragingOf(*m_pRecord, m_signal).bTraces ? 1 : 0;
}
