// Filters on a million points, called as a host calls them, against a loop by hand of the same
// structure; the long Gaussian against its direct convolution.

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include "CreateFilter.h"
#include "Gaussian.h"
#include "PairedTiming.h"
#include "ParallelLowpass.h"
#include "RcFilters.h"
#include "SecondOrder.h"

namespace {

constexpr std::size_t kPoints = 1000000;
constexpr int kRounds = 25;
constexpr double kLoopTarget = 1.5;
constexpr double kTransformTarget = 1.0 / 20.0;
constexpr double kSamplingFrequency = 10000.0;
constexpr double kCutoff = 0.02;

using Loop = std::function<void(double* y, std::size_t n)>;

// --- The loops, which begin at zero.

void PolePairs(const filter::ParallelDesign& d, double* y, std::size_t n) {
    double re[4] = {};
    double im[4] = {};
    for (std::size_t i = 0; i < n; ++i) {
        const double x = y[i];
        double sum = 0.0;
        for (int k = 0; k < 4; ++k) {
            const double before = re[k];
            re[k] += d.eReal[k] * before - d.eImaginary[k] * im[k] + d.rReal[k] * x;
            im[k] += d.eReal[k] * im[k] + d.eImaginary[k] * before + d.rImaginary[k] * x;
            sum += re[k];
        }
        y[i] = sum;
    }
}

void FourSections(const filter::BesselHighpassDesign& d, double* y, std::size_t n) {
    double v[4] = {};
    double w[4] = {};
    for (std::size_t i = 0; i < n; ++i) {
        double x = d.dGain * y[i];
        for (int k = 0; k < 4; ++k) {
            x = (x - w[k]) - d.sections[k].r * v[k];
            w[k] += d.sections[k].k * v[k];
            v[k] += d.sections[k].k * x;
        }
        y[i] = x;
    }
}

void OneNotch(const filter::NotchDesign& d, double* y, std::size_t n) {
    double v = 0.0;
    double w = 0.0;
    for (std::size_t i = 0; i < n; ++i) {
        const double x = y[i];
        const double a = (x - w) - d.r * v;
        y[i] = x - d.dDepth * (a + d.dSlope * v);
        w += d.k * v;
        v += d.k * a;
    }
}

void OnePole(double d, double* y, std::size_t n) {
    double s = 0.0;
    for (std::size_t i = 0; i < n; ++i) {
        s += d * (y[i] - s);
        y[i] = s;
    }
}

void OnePoleHighpass(double a, double* y, std::size_t n) {
    const double gain = std::sqrt(a);
    double s = 0.0;
    double before = 0.0;
    for (std::size_t i = 0; i < n; ++i) {
        s = a * s + gain * (y[i] - before);
        before = y[i];
        y[i] = s;
    }
}

void EightPoles(const filter::Rc8Design& d, double* y, std::size_t n) {
    double past[7] = {};
    double stages[8] = {};
    for (std::size_t i = 0; i < n; ++i) {
        double v = 0.0;
        for (int k = 0; k < 7; ++k) v += d.taps[k] * past[k];
        for (int k = 6; k > 0; --k) past[k] = past[k - 1];
        past[0] = y[i];
        for (int k = 0; k < 8; ++k) {
            stages[k] += d.dStep * (v - stages[k]);
            v = stages[k];
        }
        y[i] = v;
    }
}

// Out of `padded`, which has the points beyond both ends.
void Convolve(const std::vector<double>& weights, std::vector<double>& padded, double* y,
              std::size_t n) {
    const std::size_t side = weights.size() - 1;
    padded.assign(n + 2 * side, 0.0);
    std::copy(y, y + n, padded.begin() + static_cast<std::ptrdiff_t>(side));
    for (std::size_t i = 0; i < n; ++i) {
        const double* center = padded.data() + side + i;
        double sum = weights[0] * center[0];
        for (std::size_t k = 1; k <= side; ++k) sum += weights[k] * (center[k] + *(center - k));
        y[i] = sum;
    }
}

// --- The records.

FilterOptions Record() {
    FilterOptions options = {};
    options.dSampleInterval = 1e6 / kSamplingFrequency;
    return options;
}

FilterOptions Lowpass(int32_t eFamily, double dFraction) {
    FilterOptions options = Record();
    options.lowpass.m_bIsSelected = 1;
    options.lowpass.m_eFilterFamily = eFamily;
    options.lowpass.m_uNumAveragePoints = 21;
    options.lowpass.m_dCornerFreq = dFraction * kSamplingFrequency;
    return options;
}

FilterOptions Highpass(int32_t eFamily) {
    FilterOptions options = Record();
    options.highpass.m_bIsSelected = 1;
    options.highpass.m_eFilterFamily = eFamily;
    options.highpass.m_dCornerFreq = kCutoff * kSamplingFrequency;
    return options;
}

FilterOptions Notch() {
    FilterOptions options = Record();
    options.notch.m_bIsSelected = 1;
    options.notch.m_dCornerFreq = kCutoff * kSamplingFrequency;
    options.notch.m_d3dbWidth = 0.01 * kSamplingFrequency;
    return options;
}

bool Measure(const char* szName, const FilterOptions& options, const Loop& loop, double dTarget,
             int nRounds) {
    std::mt19937 random(5);
    std::normal_distribution<double> noise;
    std::vector<double> source(kPoints);
    for (double& d : source) d = noise(random);
    // Both ways begin at zero. The end of a recursive filter's trace is no matter, and a silent one
    // would cost the loop by hand its speed.
    std::fill_n(source.begin(), 20000, 0.0);
    if (options.lowpass.m_eFilterFamily == 3 || options.lowpass.m_eFilterFamily == 6)
        std::fill_n(source.end() - 20000, 20000, 0.0);
    std::vector<double> ours(kPoints);
    std::vector<double> peers(kPoints);
    ZXADLG_CFilter* pFilter = filter::CreateFilter(&options);
    bool bFiltered = true;
    const PairedTiming timing = TimeInTurn(
        nRounds,
        [&] {
            std::copy(source.begin(), source.end(), ours.begin());
            bFiltered &= pFilter->FilterArray(ours.data(), kPoints) != 0;
        },
        [&] {
            std::copy(source.begin(), source.end(), peers.begin());
            loop(peers.data(), kPoints);
        });
    filter::ReleaseFilter(pFilter);
    bool bGood = PrintTiming(szName, timing, dTarget);
    for (std::size_t i = 0; i < kPoints; ++i) {
        if (!bFiltered || std::fabs(ours[i] - peers[i]) > 1e-9) {
            std::printf("the results differ at %u: %g and %g\n", static_cast<unsigned>(i), ours[i],
                        peers[i]);
            return false;
        }
    }
    return bGood;
}

}  // namespace

int main() {
    using namespace filter;
    bool bGood = true;
    const auto measure = [&](const char* szName, const FilterOptions& options, const Loop& loop) {
        bGood &= Measure(szName, options, loop, kLoopTarget, kRounds);
    };
    const ParallelDesign bessel = DesignParallel(kBesselPrototype, kCutoff);
    measure("filter / loop, Bessel", Lowpass(2, kCutoff),
            [&](double* y, std::size_t n) { PolePairs(bessel, y, n); });
    const ParallelDesign chebyshev = DesignParallel(kChebyshevPrototype, kCutoff);
    measure("filter / loop, Chebyshev", Lowpass(5, kCutoff),
            [&](double* y, std::size_t n) { PolePairs(chebyshev, y, n); });
    measure("filter / loop, RC", Lowpass(7, kCutoff),
            [&](double* y, std::size_t n) { OnePole(RcStep(kCutoff), y, n); });
    const Rc8Design rc8 = DesignRc8(kCutoff);
    measure("filter / loop, RC of eight poles", Lowpass(8, kCutoff),
            [&](double* y, std::size_t n) { EightPoles(rc8, y, n); });
    const BesselHighpassDesign highpass = DesignBesselHighpass(kCutoff);
    measure("filter / loop, Bessel highpass", Highpass(2),
            [&](double* y, std::size_t n) { FourSections(highpass, y, n); });
    measure("filter / loop, RC highpass", Highpass(7),
            [&](double* y, std::size_t n) { OnePoleHighpass(1.0 - RcStep(kCutoff), y, n); });
    const NotchDesign notch = DesignNotch(kCutoff, 0.01);
    measure("filter / loop, notch", Notch(),
            [&](double* y, std::size_t n) { OneNotch(notch, y, n); });
    std::vector<double> padded;
    const std::vector<double> boxcar(11, 1.0 / 21.0);
    measure("filter / loop, boxcar of 21 points", Lowpass(3, 0.0),
            [&](double* y, std::size_t n) { Convolve(boxcar, padded, y, n); });
    const std::vector<double> gaussian = GaussianWeights(kCutoff);
    measure("filter / loop, Gaussian of 53 points", Lowpass(6, kCutoff),
            [&](double* y, std::size_t n) { Convolve(gaussian, padded, y, n); });
    const double dLong = 0.1325051817635 / 1023.8;
    const std::vector<double> longGaussian = GaussianWeights(dLong);
    std::printf("the long Gaussian has %u points\n",
                static_cast<unsigned>(2 * longGaussian.size() - 1));
    bGood &= Measure(
        "filter / direct convolution, Gaussian of 8191 points", Lowpass(6, dLong),
        [&](double* y, std::size_t n) { Convolve(longGaussian, padded, y, n); }, kTransformTarget,
        1);
    return bGood ? 0 : 1;
}
