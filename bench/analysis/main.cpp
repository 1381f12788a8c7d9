#include "Benchmarks.h"
#include "entry/ShowSequence.h"

int main() {
    PrepareLibrary();
    const bool bTab = MeasureDataTab();
    return MeasureNormalize() && bTab ? 0 : 1;
}
