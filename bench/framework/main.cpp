#include "Benchmarks.h"

int main() {
    return MeasureKeyStroke() ? 0 : 1;
}
