#include "AxisTicks.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace graph {
namespace {

// Twice this is still a number, so that the size of a range is one.
constexpr double kLargest = 8e307;
constexpr double kMargin = 0.05;
// Ranges smaller than this share of their values have no digits left to tell ticks apart.
constexpr double kSmallestShare = 1e-13;

// The power of ten of the leading digit.
int ExponentOf(double dValue) {
    return static_cast<int>(std::floor(std::log10(std::fabs(dValue))));
}

// 10 to an exponent; where that would leave the range of numbers, by its half.
double Times(double dValue, int nExponent) {
    const int nHalf = nExponent / 2;
    return dValue * std::pow(10.0, nHalf) * std::pow(10.0, nExponent - nHalf);
}

// 1, 2 or 5 times a power of ten, the next at or above a value.
struct Step {
    int nDigit;
    int nExponent;

    double Value() const { return Times(nDigit, nExponent); }
    // The value of the tick that stands `dCount` steps from zero. Division by a whole power of ten
    // gives the number that the digits read; multiplication by a tenth does not.
    double At(double dCount) const {
        if (nExponent < 0 && nExponent > -300) return dCount * nDigit / std::pow(10.0, -nExponent);
        return Times(dCount * nDigit, nExponent);
    }
};

Step StepFor(double dRoughly) {
    const int nExponent = ExponentOf(dRoughly);
    for (const int nDigit : {1, 2, 5}) {
        const Step step = {nDigit, nExponent};
        if (step.Value() >= dRoughly * (1.0 - 1e-9)) return step;
    }
    return {1, nExponent + 1};
}

// Drops the zeros at the end of a fraction, and the point behind which nothing is left.
std::string Trimmed(std::string sNumber) {
    if (sNumber.find('.') == std::string::npos) return sNumber;
    sNumber.erase(sNumber.find_last_not_of('0') + 1);
    if (sNumber.back() == '.') sNumber.pop_back();
    return sNumber;
}

}  // namespace

bool IsUsable(const Range& range) {
    if (!(std::fabs(range.dMin) <= kLargest) || !(std::fabs(range.dMax) <= kLargest)) return false;
    const double dLargest = std::max(std::fabs(range.dMin), std::fabs(range.dMax));
    return range.Size() >= std::max(dLargest * kSmallestShare, 1e-305);
}

Range WithMargin(double dMin, double dMax) {
    dMin = std::clamp(dMin, -kLargest / 2, kLargest / 2);
    dMax = std::clamp(dMax, -kLargest / 2, kLargest / 2);
    if (IsUsable({dMin, dMax})) {
        const double dMargin = (dMax - dMin) * kMargin;
        return {dMin - dMargin, dMax + dMargin};
    }
    const double dTenth = std::max(std::fabs(dMin), std::fabs(dMax)) / 10.0;
    const double dAside = dTenth < 1e-304 ? 1.0 : dTenth;
    return {std::min(dMin, dMax) - dAside, std::max(dMin, dMax) + dAside};
}

std::string NumberText(double dValue, double dStep) {
    char szText[64];
    const double dSize = std::max(std::fabs(dValue), std::fabs(dStep));
    const bool bFixed = dSize < 1e6 && std::fabs(dStep) >= 1e-4 * (1.0 - 1e-9);
    const int nStep = ExponentOf(dStep);
    std::to_chars_result end{};
    if (bFixed || dValue == 0.0) {
        // A zero that is a rounding error of a step away has no sign and no digits.
        if (std::fabs(dValue) < std::fabs(dStep) * 1e-6) return "0";
        end = std::to_chars(szText, szText + sizeof szText, dValue, std::chars_format::fixed,
                            std::clamp(-nStep, 0, 12));
        return Trimmed(std::string(szText, end.ptr));
    }
    const int nDigits = std::clamp(ExponentOf(dSize) - nStep, 0, 15);
    end = std::to_chars(szText, szText + sizeof szText, dValue, std::chars_format::scientific,
                        nDigits);
    const std::string sNumber(szText, end.ptr);
    const std::size_t uExponent = sNumber.find('e');
    const int nExponent = std::atoi(sNumber.c_str() + uExponent + 1);
    return Trimmed(sNumber.substr(0, uExponent)) + "e" + std::to_string(nExponent);
}

std::vector<Tick> TicksOf(const Range& range, int nMost) {
    std::vector<Tick> ticks;
    if (!IsUsable(range) || nMost < 2) return ticks;
    const Step step = StepFor(range.Size() / (nMost - 1));
    const double dStep = step.Value();
    // Limits that miss a tick by their last digits have it.
    const double dFirst = std::ceil(range.dMin / dStep - 1e-6);
    const double dLast = std::floor(range.dMax / dStep + 1e-6);
    for (int i = 0; i < nMost && dFirst + i <= dLast; ++i) {
        const double dValue = step.At(dFirst + i);
        std::string sText = NumberText(dValue, dStep);
        if (!ticks.empty() && ticks.back().sText == sText) continue;
        ticks.push_back({dValue, std::move(sText)});
    }
    return ticks;
}

}  // namespace graph
