// Filter, Power Spectrum and Correlation against bare dialogs of the same templates that show the
// same.
#include "TabbedBench.h"
#include "entry/ShowSequence.h"
#include "fixtures/system.h"
#include "sigproc/FilterLimits.h"
#include "sigproc_ids.h"

// Crash reports of the test start-up name the running test; here there is none.
const char* test_support::RunningTestName() {
    return "benchmark";
}

namespace {

class Bench : TabbedBench {
  public:
    bool Filter() {
        const auto show = [this] {
            FilterOptions options = {};
            options.lowpass.m_eFilterFamily = kBessel;
            options.adaptive.m_uHarmonicNumberEnd = 10;
            options.adaptive.m_uAveragingCycles = 20;
            ZXADLG_DataOptions data = Selection();
            ZXADLG_ShowFilterDialog(m_timing.GetOwner(), &options, &data, &m_source, &m_params);
        };
        return Compare("Filter", show, IDD_FILTER, IDD_FILTER_OPTIONS);
    }

    bool Spectrum() {
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
        return Compare("Power Spectrum", show, IDD_SPECTRUM, IDD_SPECTRUM_OPTIONS);
    }

    bool Correlation() {
        const auto show = [this] {
            ZXADLG_CorrelationOptions options = {};
            options.uNumberOfLags = 100;
            ZXADLG_DataOptions data = Selection();
            ZXADLG_ShowCorrelationDialog(m_timing.GetOwner(), &options, &data, &m_source,
                                         &m_params);
        };
        return Compare("Correlation", show, IDD_CORRELATION, IDD_CORRELATION_OPTIONS);
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
