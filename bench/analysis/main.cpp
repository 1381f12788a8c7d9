#include "Benchmarks.h"
#include "entry/ShowSequence.h"
#include "fixtures/system.h"

// Crash reports of the test start-up name the running test; here there is none.
const char* test_support::RunningTestName() {
    return "benchmark";
}

int main() {
    // A desktop of its own: what a window manager takes to show a dialog would hide everything
    // else.
    test_support::StartSystem();
    PrepareLibrary();
    bool bGood = MeasureDataTab();
    bGood = MeasureNormalize() && bGood;
    test_support::StopSystem();
    return bGood ? 0 : 1;
}
