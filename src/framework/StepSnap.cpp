#include "framework/StepSnap.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace {

// Decades between value and step; with one of them zero, the decade of the other alone.
template <class Value>
Value LogRatio(Value value, Value step) {
    const auto decade = [](Value x) { return static_cast<Value>(std::log10(std::fabs(x))); };
    if (value != 0 && step != 0) return decade(value) - decade(step);
    if (value != 0) return decade(value);
    if (step != 0) return decade(step);
    return 0;
}

template <class Value>
std::int32_t Snap(Value* pValue, Value step) {
    if (step == 0 || LogRatio(*pValue, step) > 6) return 0;
    const Value quotient = std::fabs(*pValue / step);
    Value steps = std::trunc(quotient);
    const Value rest = quotient - steps;
    if (rest == 0) return 1;
    if (rest >= Value{0.5}) steps += 1;
    const Value magnitude = std::fabs(step) * steps;
    *pValue = (*pValue < 0) != (step < 0) ? -magnitude : magnitude;
    return 1;
}

}  // namespace

std::int32_t SnapToStep(double* pdValue, double dStep) {
    return Snap(pdValue, dStep);
}

std::int32_t SnapToStepFloat(float* pfValue, float fStep) {
    return Snap(pfValue, fStep);
}

std::int32_t SnapToStepInt(std::int32_t* pnValue, std::int32_t nStep) {
    if (nStep == 0) return 0;
    const std::int64_t nMagnitude = std::abs(std::int64_t{*pnValue});
    const std::int64_t nGrid = std::abs(std::int64_t{nStep});
    const std::int64_t nRest = nMagnitude % nGrid;
    if (nRest == 0) return 1;
    std::int64_t nSnapped = nMagnitude - nRest + (2 * nRest >= nGrid ? nGrid : 0);
    if ((*pnValue < 0) != (nStep < 0)) nSnapped = -nSnapped;
    *pnValue = static_cast<std::int32_t>(
        std::clamp<std::int64_t>(nSnapped, std::numeric_limits<std::int32_t>::min(),
                                 std::numeric_limits<std::int32_t>::max()));
    return 1;
}
