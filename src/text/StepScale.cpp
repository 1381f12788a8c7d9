#include "text/StepScale.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>

#include "text/DecimalDigits.h"

namespace {

constexpr std::int32_t kMostPositions = 10000000;

float NearInteger(float x) {
    const float i = std::trunc(x);
    if (std::fabs(x - i) < 0.001f) return i;
    if (std::fabs(i + 1 - x) < 0.001f) return i + 1;
    return x;
}

float Grid(float x, float s, float d) {
    x = NearInteger(x);
    const float g = std::trunc(x / s) * s;
    if (std::fabs(g - x) < 0.01f) return NearInteger(x + d);
    return d < 0 ? NearInteger(g) : NearInteger(g + s);
}

float Step(float x, float s, float d) {
    if (s < 1) {
        const float k = 1 / s;
        return Grid(k * x, k * s, k * d) / k;
    }
    return Grid(x, s, d);
}

std::int32_t CountSteps(double dRange, double dStep) {
    const double dCount = std::trunc(dRange / dStep + 0.5);
    if (!(dCount > 1)) return 1;
    return dCount > 2147483647.0 ? 2147483647 : static_cast<std::int32_t>(dCount);
}

}  // namespace

double RoundOneTwoFive(double x) {
    const DecimalDigits digits = ToDecimalDigits(x, 2);
    const char chFirst = digits.szDigits[0];
    char szText[16] = {chFirst >= '5' ? '5' : chFirst >= '2' ? '2' : '1', 'e'};
    const auto end = std::to_chars(szText + 2, szText + sizeof szText, digits.nPoint - 1);
    double dRounded{};
    std::from_chars(szText, end.ptr, dRounded);
    return std::copysign(dRounded, x);
}

float StepValue(double dValue, double dDelta) {
    const float fValue = static_cast<float>(dValue);
    const float fDelta = static_cast<float>(dDelta);
    const float s = std::fabs(fDelta);
    if (s == 0) return fValue;
    if (fValue < 0) return -(Step(s + std::fabs(fValue), s, -fDelta) - s);
    return Step(fValue, s, fDelta);
}

std::int32_t ComputeGaugeScale(double dLow, double dHigh, double dStep, std::int32_t* pnPositions,
                               double* pdStep, double* pdOrigin) {
    *pnPositions = 1;
    *pdStep = dStep;
    *pdOrigin = dLow;
    if (dLow == dHigh || dStep == 0) return 0;
    const double dRange = std::fabs(dHigh - dLow);
    dLow = std::min(dLow, dHigh);
    std::int32_t nCount = CountSteps(dRange, dStep);
    while (nCount > kMostPositions) {
        // Among the smallest numbers rounding can undo the growth.
        const double dNext = RoundOneTwoFive(dStep * 2.6);
        dStep = dNext > dStep ? dNext : dStep * 2.6;
        nCount = CountSteps(dRange, dStep);
    }
    double dOrigin = std::trunc(std::floor(dLow / dStep + 0.5)) * dStep;
    if (dOrigin < dLow - dStep * 0.5) dOrigin += dStep;
    *pnPositions = nCount;
    *pdStep = dStep;
    *pdOrigin = dOrigin;
    return 1;
}
