// The histogram dialog against a bare dialog of the same templates with the same items in it.
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
        const BareDialog bare = {
            IDD_HISTOGRAM, IDD_HISTOGRAM_OPTIONS, [this](const std::vector<HWND>& pages) {
                SetTexts(pages[0], {{IDC_HISTOGRAM_WIDTH, "1"},
                                    {IDC_HISTOGRAM_BINS, "1"},
                                    {IDC_HISTOGRAM_DECADES, "10"},
                                    {IDC_HISTOGRAM_DECADES_COUNT, "Max number of bins = 11"},
                                    {IDC_HISTOGRAM_LOWER, "1"},
                                    {IDC_HISTOGRAM_UPPER, "1"},
                                    {IDC_HISTOGRAM_RANGE, "Data Range = 1.000 to 1.000"}});
                CheckDlgButton(pages[0], IDC_HISTOGRAM_CONVENTIONAL, BST_CHECKED);
                CheckDlgButton(pages[0], IDC_HISTOGRAM_ALL, BST_CHECKED);
                CheckDlgButton(pages[0], IDC_DESTINATION_APPEND, BST_CHECKED);
                FillData(pages[1], m_source);
            }};
        const auto show = [this] {
            ZXADLG_HistogramOptions options = {};
            options.fBinWidth = 1.0f;
            options.nBinsPerDecade = 10;
            options.bBinAllData = 1;
            ZXADLG_DataOptions data = Selection();
            ZXADLG_ShowHistogramDialog(m_timing.GetOwner(), &options, &data, &m_source, &m_params);
        };
        return Compare("Histogram", show, bare);
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
