// Filter, Power Spectrum and Correlation against bare dialogs of the same templates with the same
// items in them.
#include "TabbedBench.h"
#include "entry/ShowSequence.h"
#include "fixtures/system.h"
#include "sigproc/FilterLimits.h"
#include "sigproc/SpectrumWindows.h"
#include "sigproc_ids.h"

// Crash reports of the test start-up name the running test; here there is none.
const char* test_support::RunningTestName() {
    return "benchmark";
}

namespace {

class Bench : TabbedBench {
  public:
    bool Filter() {
        const BareDialog bare = {
            IDD_FILTER, IDD_FILTER_OPTIONS, [this](const std::vector<HWND>& pages) {
                for (const int nString :
                     {IDS_FAMILY_BESSEL, IDS_FAMILY_BOXCAR, IDS_FAMILY_BUTTERWORTH,
                      IDS_FAMILY_CHEBYSHEV, IDS_FAMILY_GAUSSIAN, IDS_FAMILY_RC, IDS_FAMILY_RC8})
                    AddString(pages[0], IDC_LOWPASS_FAMILY, nString);
                AddString(pages[0], IDC_HIGHPASS_FAMILY, IDS_FAMILY_BESSEL);
                AddString(pages[0], IDC_HIGHPASS_FAMILY, IDS_FAMILY_RC);
                SetTexts(pages[0], {{IDC_HIGHPASS_CUTOFF, "10"},
                                    {IDC_HIGHPASS_RANGE, "Cutoff range = 1.0 to 1400.0 Hz"},
                                    {IDC_LOWPASS_CUTOFF, "1000"},
                                    {IDC_LOWPASS_RANGE, "Cutoff range = 1.0 to 1400.0 Hz"},
                                    {IDC_LOWPASS_COEFFICIENTS, "= 11 coefficients"},
                                    {IDC_HUM_HARMONICS, "10"},
                                    {IDC_HUM_CYCLES, "20"},
                                    {IDC_HUM_PERIOD, "= 200.00"},
                                    {IDC_HUM_BANDWIDTH, "= 1.50 Hz"},
                                    {IDC_NOTCH_CENTER, "60"},
                                    {IDC_NOTCH_WIDTH, "10"},
                                    {IDC_NOTCH_RANGE, "Center range = 10.0 to 3000.0 Hz"}});
                CheckDlgButton(pages[0], IDC_FILTER_LOWPASS, BST_CHECKED);
                CheckDlgButton(pages[0], IDC_DESTINATION_APPEND, BST_CHECKED);
                FillData(pages[1], m_source);
            }};
        const auto show = [this] {
            FilterOptions options = {};
            options.lowpass.m_eFilterFamily = kBessel;
            options.adaptive.m_uHarmonicNumberEnd = 10;
            options.adaptive.m_uAveragingCycles = 20;
            ZXADLG_DataOptions data = Selection();
            ZXADLG_ShowFilterDialog(m_timing.GetOwner(), &options, &data, &m_source, &m_params);
        };
        return Compare("Filter", show, bare);
    }

    bool Spectrum() {
        const BareDialog bare = {
            IDD_SPECTRUM, IDD_SPECTRUM_OPTIONS, [this](const std::vector<HWND>& pages) {
                for (const SpectralWindow& window : SpectralWindows())
                    AddString(pages[0], IDC_SPECTRUM_WINDOW, window.nString);
                SendMessageA(GetDlgItem(pages[0], IDC_SPECTRUM_WINDOW), CB_SETCURSEL, 6, 0);
                SetTexts(pages[0], {{IDC_SPECTRUM_KAISER, "2.00"},
                                    {IDC_SPECTRUM_POISSON, "2.00"},
                                    {IDC_SPECTRUM_LENGTH, "32"},
                                    {IDC_SPECTRUM_MAXIMUM_VALUE, "(64)"},
                                    {IDC_SPECTRUM_OUTPUT, "Output length = 16"},
                                    {IDC_SPECTRUM_RESOLUTION, "Spectral resolution = 312.50 Hz"},
                                    {IDC_SPECTRUM_EXCLUDE, "1"}});
                CheckDlgButton(pages[0], IDC_DESTINATION_APPEND, BST_CHECKED);
                FillData(pages[1], m_source);
            }};
        const auto show = [this] {
            SpectrumOptions options = {};
            options.eWindowType = 6;
            options.dKaiserAlpha = options.dPoissonAlpha = 2.0;
            options.uTransformLength = 32;
            options.uNumBinsToExclude = 1;
            ZXADLG_DataOptions data = Selection();
            ZXADLG_ShowPowerSpectrumDialog(m_timing.GetOwner(), &options, &data, &m_source,
                                           &m_params);
        };
        return Compare("Power Spectrum", show, bare);
    }

    bool Correlation() {
        const BareDialog bare = {
            IDD_CORRELATION, IDD_CORRELATION_OPTIONS, [this](const std::vector<HWND>& pages) {
                SetTexts(pages[0],
                         {{IDC_CORRELATION_STATUS, "The sampling frequency is fixed."},
                          {IDC_CORRELATION_FREQUENCY, "10000"},
                          {IDC_CORRELATION_INTERVAL, "Interval = 0.01 \xB5s"},
                          {IDC_CORRELATION_LAGS, "100"},
                          {IDC_CORRELATION_TIMES, " = 1000.00 ms (maximum = 20000.00 ms)"}});
                CheckDlgButton(pages[0], IDC_CORRELATION_AUTO, BST_CHECKED);
                CheckDlgButton(pages[0], IDC_DESTINATION_APPEND, BST_CHECKED);
                FillData(pages[1], m_source);
            }};
        const auto show = [this] {
            ZXADLG_CorrelationOptions options = {};
            options.uNumberOfLags = 100;
            ZXADLG_DataOptions data = Selection();
            ZXADLG_ShowCorrelationDialog(m_timing.GetOwner(), &options, &data, &m_source,
                                         &m_params);
        };
        return Compare("Correlation", show, bare);
    }
};

}  // namespace

int main() {
    // A desktop of its own: what a window manager takes to show a dialog would hide everything
    // else.
    test_support::StartSystem();
    PrepareLibrary();
    bool bGood;
    {
        Bench bench;
        bGood = bench.Filter();
        bGood = bench.Spectrum() && bGood;
        bGood = bench.Correlation() && bGood;
    }
    test_support::StopSystem();
    return bGood ? 0 : 1;
}
