// The histogram dialog against a bare dialog of the same templates that shows the same.
#include "TabbedBench.h"
#include "entry/ShowSequence.h"
#include "fixtures/system.h"
#include "histogram_ids.h"

// Crash reports of the test start-up name the running test; here there is none.
const char* test_support::RunningTestName() {
    return "benchmark";
}

namespace {

class Bench : TabbedBench {
  public:
    bool Histogram() {
        const auto show = [this] {
            ZXADLG_HistogramOptions options = {};
            options.fBinWidth = 1.0f;
            options.nBinsPerDecade = 10;
            options.bBinAllData = 1;
            ZXADLG_DataOptions data = Selection();
            ZXADLG_ShowHistogramDialog(m_timing.GetOwner(), &options, &data, &m_source, &m_params);
        };
        return Compare("Histogram", show, IDD_HISTOGRAM, IDD_HISTOGRAM_OPTIONS);
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
        bGood = bench.Histogram();
    }
    test_support::StopSystem();
    return bGood ? 0 : 1;
}
