// Lengths, segments and figures of a power spectrum by the points of the data. Plain functions, no
// window.
//
// A length is a number of points of one transform, a power of two from 16 to 524288.
#pragma once

#include <cstdint>
#include <span>

#include "zxadlg/SignalProcessingOptions.h"

constexpr std::uint32_t kShortestTransform = 16;
constexpr std::uint32_t kLongestTransform = 524288;
// More segments than this are not displayed.
constexpr std::int64_t kMostSegments = 3499;

// All lengths, ascending.
std::span<const std::int32_t> TransformLengths();

// The longest one that does not exceed the points; 16 where none does.
std::uint32_t MaximumLength(std::uint32_t uPoints);
// What stands for a stored length of 0: 1024, or the longest one that does not exceed the points.
std::uint32_t UsualLength(std::uint32_t uPoints);

// The data that a spectrum is made of.
struct SpectrumSignal {
    double dRate = 0.0;  // Hz; 0: not known
    std::uint32_t uPoints = 0;
    bool bPointsKnown = true;
    bool bSwept = false;             // no single continuous length
    std::uint32_t uWholePoints = 0;  // of a sweep
    std::uint32_t uTraces = 1;       // selected
};

// Whether a length fits at all; what is not known is not in the way.
bool HasEnoughPoints(const SpectrumSignal& signal);
// The length in use: of a record that takes the maximum, the one that the data have.
std::uint32_t EffectiveLength(const SpectrumOptions& options, const SpectrumSignal& signal);
// Which averaging and overlap a length has room for, and whether they are on.
struct SpectrumAveraging {
    bool bSegmentsEnabled;
    bool bOverlapEnabled;
    bool bTracesEnabled;
    bool bSegments;
    bool bOverlap;
    bool bTraces;
};
SpectrumAveraging AveragingOf(const SpectrumOptions& options, const SpectrumSignal& signal);
// How many segments the spectra show; 0 for a length of 0.
std::int64_t SegmentCount(const SpectrumOptions& options, const SpectrumSignal& signal);
// In Hz; 0 for a length of 0.
double SpectralResolution(std::uint32_t uLength, double dRate);

// Makes a record that the dialog can show out of any: what lies outside its range goes to the
// nearer end, and a length of 0 becomes the usual one.
void CompleteSpectrumRecord(SpectrumOptions& options, const SpectrumSignal& signal);
