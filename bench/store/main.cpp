// Numbers, list text and the store, each against its peers in one run. One row per figure: name,
// value, target, ok or MISSED.
#include "Benchmarks.h"
#include "Timing.h"

int main() {
    MeasureNumbers();
    MeasureLists();
    MeasureStore();
    return AllTargetsMet() ? 0 : 1;
}
