// Removes the harmonics of the mains. To every window of a number of whole periods the constant and
// all harmonics up to the last are fitted by least squares; the value of the unwanted ones at the
// middle of the window is subtracted. What is left of the trace has its constant and the harmonics
// below the first exactly, whatever the length of a period in points.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "SymmetricFir.h"

namespace filter {

constexpr std::uint32_t kMostHarmonics = 1000;

// The fit of harmonics 0 to nLast of a period of dPeriod points to 2 nSide + 1 points.
class HarmonicFit {
  public:
    // `nLast` is at most nSide and below half the period.
    HarmonicFit(double dPeriod, std::size_t nSide, std::size_t nLast);

    // Weights of the middle and of one side that give the sum of harmonics nFirst to nLast in the
    // middle of a window.
    std::vector<double> Weights(std::size_t nFirst) const;

    // Writes the sum of harmonics nFirst to nLast, as fitted to the window, at `nPoints` points
    // from the window's point nFrom on.
    void Continue(const double* window, std::size_t nFirst, std::size_t nFrom, double* harmonics,
                  std::size_t nPoints) const;

  private:
    struct Phase {
        double dCosine, dSine;
    };
    // Of the fundamental, `nPoints` points from the middle.
    Phase PhaseAt(std::ptrdiff_t nPoints) const;

    double m_dPeriod;
    std::size_t m_nSide;
    std::size_t m_nLast;
    // Triangular factors of the normal equations, row by row: of the cosines from 0 on, and of the
    // sines from 1 on.
    std::vector<double> m_cosines, m_sines;
};

struct InterferenceDesign {
    double dPeriod = 0.0;    // points
    std::size_t nSide = 0;   // points of the window to each side
    std::size_t nFirst = 1;  // harmonics
    std::size_t nLast = 0;   // below the first: nothing is to be removed
};

// `nPoints`, the length of the trace, bounds the window. `uLast` is cut where the sampling
// frequency ends.
InterferenceDesign DesignInterference(double dSamplingFrequency, double dLineFrequency,
                                      std::uint32_t uFirst, std::uint32_t uLast,
                                      std::uint32_t uCycles, std::size_t nPoints);

// With `bCompensateEnds` the harmonics of the first and last window go on to the ends; else the
// trace beyond its ends is taken for the levels.
void RunInterference(const InterferenceDesign& design, bool bCompensateEnds,
                     const EndLevels& levels, double* values, std::size_t nPoints);

}  // namespace filter
