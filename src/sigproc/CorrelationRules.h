// What the correlation dialog shows and refuses. Plain functions, no window.
//
// Required as it stands: a lag counts as its number times the sampling frequency, which is
// multiplied and not inverted, wherever a time is shown or compared.
#pragma once

#include <cstdint>
#include <functional>
#include <span>

#include "contract/Finding.h"

// The values of eType.
enum CorrelationType : std::int32_t { kAutocorrelation = 0, kCrossCorrelation = 1 };

// The numbers of lags that the arrows step through, ascending.
std::span<const std::int32_t> LagNumbers();

// The figures of the texts: ms of the lags and of the data, and the interval in microseconds.
struct CorrelationTimes {
    double dLags;
    double dMaximum;
    double dInterval;
};
CorrelationTimes TimesOf(double dFrequency, std::uint32_t uLags, std::uint32_t uPoints);

// What OK refuses, in this order. `dFrequency` is that of the field.
struct CorrelationCheck {
    double dFrequency = 0.0;
    std::uint32_t uLags = 0;
    std::uint32_t uPoints = 0;
    bool bDeferred = false;  // what is not known is not checked
    // Stores and shows another number of lags.
    std::function<void(std::uint32_t)> setLags;
};
CheckResult CheckLags(const CorrelationCheck& check);
CheckResult CheckFrequency(const CorrelationCheck& check);
