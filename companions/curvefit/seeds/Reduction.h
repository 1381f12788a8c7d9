// A record reduced to a few hundred points: sorted, freed of a single outlier, averaged in bins.
#pragma once

#include <cstddef>
#include <vector>

namespace curvefit {

struct ReductionRules {
    bool bFineOnset = false;        // finer bins at the start: functions of time, spectra
    bool bGuardOutliers = true;     // not for distributions on whole numbers
    bool bOnlyNonNegative = false;  // points at x below 0 are left out
    double dSubstitute = 0.0;       // takes the place of an x not above it, where bConcentration
    bool bConcentration = false;
    double dOrigin = 0.0;  // subtracted from x
    std::size_t nBins = 256;
};

// Scaled by powers of two, so that no product of data overflows.
struct ReducedData {
    std::vector<double> x;       // (data - origin) / dScaleX, ascending
    std::vector<double> y;       // data / dScaleY
    std::vector<double> weight;  // number of points behind each
    double dScaleX = 1.0;
    double dScaleY = 1.0;
    double dSmallestStep = 0.0;  // of the points, scaled; the span where all x are equal
    std::size_t nPoints = 0;     // before the binning
    std::size_t nDistinct = 0;   // different x among the reduced points

    std::size_t Size() const { return x.size(); }
    double First() const { return x.front(); }
    double Last() const { return x.back(); }
    double Span() const { return x.back() - x.front(); }
    double RangeY() const;
};

ReducedData Reduce(const double* x, const double* y, std::size_t n, const ReductionRules& rules);

}  // namespace curvefit
