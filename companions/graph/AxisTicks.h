// Where an axis has its ticks, and how their values read.
#pragma once

#include <string>
#include <vector>

namespace graph {

// The part of an axis that is shown.
struct Range {
    double dMin = 0.0;
    double dMax = 1.0;

    double Size() const { return dMax - dMin; }
    bool operator==(const Range&) const = default;
};

// Both limits finite, the second one above the first by more than their digits can be told apart.
bool IsUsable(const Range& range);

// Widens a range so that what stands at its ends is not on the frame. A range of a single value
// gets a tenth of the value on each side, 1 for zero. The result is always usable.
Range WithMargin(double dMin, double dMax);

struct Tick {
    double dValue;
    std::string sText;
};

// At most `nMost` round values (1, 2 or 5 times a power of ten apart) within the range, with as
// many digits as tell them apart; numbers from a million up and below a ten thousandth have an
// exponent. Empty for a range that is not usable or no room for two.
std::vector<Tick> TicksOf(const Range& range, int nMost);

// A value for reading, with the digits that a step of `dStep` needs.
std::string NumberText(double dValue, double dStep);

}  // namespace graph
