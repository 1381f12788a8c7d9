// The bins of a histogram and the limits of its data, by the range of the selected data. Plain
// functions, no window.
//
// Widths and limits are those of the record, with single precision; the range is the data's own.
#pragma once

#include <cstdint>

#include "zxadlg/HistogramOptions.h"

// The values of eHistoType.
enum HistogramKind : std::int32_t {
    kConventionalHistogram = 0,
    kCumulativeHistogram = 1,
    kLogarithmicHistogram = 2,
    kVariableWidthHistogram = 3,
};

// No count of bins is larger, in a field or in the record.
constexpr std::int32_t kMostBins = 10000000;

// The smallest and the largest of the selected data; both 0 where none were found.
struct HistogramRange {
    double dMin = 0.0;
    double dMax = 0.0;
    bool bFound = false;

    bool operator==(const HistogramRange&) const = default;
    double Span() const { return dMax - dMin; }
};

// Whether a kind takes bins per decade in the place of a width.
bool HasDecades(std::int32_t eKind);

// Makes a record good that was stored or passed: the kind is one of the four, the width above 0,
// the counts are within what their fields take.
void CompleteHistogramRecord(ZXADLG_HistogramOptions& options);

// A number as the record's fields of single precision keep it.
float SingleValue(double dValue);

// --- Counts.
enum class BinCountState {
    kCounted,   // there is a number
    kNegative,  // data that are not all above 0 have no logarithm
    kNoWidth,   // the width is not above 0
};
struct BinCount {
    BinCountState eState;
    std::int32_t nCount;  // 0 unless counted; never above kMostBins
};
BinCount CountLinearBins(const HistogramRange& range, float fWidth);
BinCount CountLogarithmicBins(const HistogramRange& range, float fWidth,
                              std::int32_t nBinsPerDecade);

// The width that divides the range into so many bins.
float WidthOfBins(const HistogramRange& range, std::int32_t nBins);
// The largest width that the field takes, and by how much the arrows beside it move.
double MostWidth(const HistogramRange& range, float fWidth);
double WidthStep(const HistogramRange& range);

// --- The limits of the data.
struct HistogramLimits {
    float fLower;
    float fUpper;

    bool operator==(const HistogramLimits&) const = default;
};
// A limit outside of the range goes to the range's end: the lower one to the minimum, the upper one
// to the maximum, on whichever side it is. What reads like an end with single precision is inside.
float ClampLower(float fLimit, const HistogramRange& range);
float ClampUpper(float fLimit, const HistogramRange& range);
// What becomes of the limits when the data have another range. `first` are those that the dialog
// opened with: where these were set and the present ones are lost, whole multiples of the width
// within the range take their place.
HistogramLimits FollowRange(const HistogramLimits& limits, const HistogramLimits& first,
                            const HistogramRange& range, float fWidth);
