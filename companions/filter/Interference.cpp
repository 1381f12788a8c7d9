#include "Interference.h"

#include <algorithm>
#include <cmath>

#include "Recursive.h"

namespace filter {

namespace {

// Harmonics closer to half the sampling frequency than this are not told apart from their images.
constexpr double kHighestHarmonic = 0.49;

// The factor of Cholesky in place of the lower triangle of a symmetric matrix.
void Factor(std::vector<double>& matrix, std::size_t n) {
    for (std::size_t i = 0; i < n; ++i) {
        double* row = &matrix[i * n];
        for (std::size_t j = 0; j <= i; ++j) {
            const double* other = &matrix[j * n];
            double d = row[j];
            for (std::size_t k = 0; k < j; ++k) d -= row[k] * other[k];
            row[j] = j < i ? d / other[j] : std::sqrt(d);
        }
    }
}

void Solve(const std::vector<double>& factor, std::size_t n, double* right) {
    for (std::size_t i = 0; i < n; ++i) {
        for (std::size_t k = 0; k < i; ++k) right[i] -= factor[i * n + k] * right[k];
        right[i] /= factor[i * n + i];
    }
    for (std::size_t i = n; i-- > 0;) {
        for (std::size_t k = i + 1; k < n; ++k) right[i] -= factor[k * n + i] * right[k];
        right[i] /= factor[i * n + i];
    }
}

}  // namespace

HarmonicFit::HarmonicFit(double dPeriod, std::size_t nSide, std::size_t nLast)
    : m_dPeriod(dPeriod), m_nSide(nSide), m_nLast(nLast) {
    // Sums of cosines of whole multiples over the window.
    std::vector<double> sums(2 * nLast + 1);
    sums[0] = static_cast<double>(2 * nSide + 1);
    for (std::size_t j = 1; j <= 2 * nLast; ++j) {
        const double dHalf = kPi * static_cast<double>(j) / dPeriod;
        sums[j] = std::sin(dHalf * sums[0]) / std::sin(dHalf);
    }
    const std::size_t n = nLast + 1;
    m_cosines.assign(n * n, 0.0);
    m_sines.assign(nLast * nLast, 0.0);
    for (std::size_t l = 0; l <= nLast; ++l) {
        for (std::size_t k = 0; k <= l; ++k) {
            m_cosines[l * n + k] = 0.5 * (sums[l - k] + sums[l + k]);
            if (k > 0) m_sines[(l - 1) * nLast + k - 1] = 0.5 * (sums[l - k] - sums[l + k]);
        }
    }
    Factor(m_cosines, n);
    Factor(m_sines, nLast);
}

HarmonicFit::Phase HarmonicFit::PhaseAt(std::ptrdiff_t nPoints) const {
    const double dAngle =
        2.0 * kPi * (std::remainder(static_cast<double>(nPoints), m_dPeriod) / m_dPeriod);
    return {std::cos(dAngle), std::sin(dAngle)};
}

std::vector<double> HarmonicFit::Weights(std::size_t nFirst) const {
    std::vector<double> amplitudes(m_nLast + 1, 0.0);
    std::fill(amplitudes.begin() + static_cast<std::ptrdiff_t>(nFirst), amplitudes.end(), 1.0);
    Solve(m_cosines, m_nLast + 1, amplitudes.data());
    std::vector<double> weights(m_nSide + 1);
    for (std::size_t m = 0; m <= m_nSide; ++m) {
        const Phase step = PhaseAt(static_cast<std::ptrdiff_t>(m));
        Phase now = {1.0, 0.0};
        double dSum = 0.0;
        for (const double dAmplitude : amplitudes) {
            dSum += dAmplitude * now.dCosine;
            now = {now.dCosine * step.dCosine - now.dSine * step.dSine,
                   now.dCosine * step.dSine + now.dSine * step.dCosine};
        }
        weights[m] = dSum;
    }
    return weights;
}

void HarmonicFit::Continue(const double* window, std::size_t nFirst, std::size_t nFrom,
                           double* harmonics, std::size_t nPoints) const {
    std::vector<double> cosines(m_nLast + 1, 0.0);
    std::vector<double> sines(m_nLast + 1, 0.0);
    const auto nMiddle = static_cast<std::ptrdiff_t>(m_nSide);
    for (std::size_t i = 0; i < 2 * m_nSide + 1; ++i) {
        const Phase step = PhaseAt(static_cast<std::ptrdiff_t>(i) - nMiddle);
        Phase now = {window[i], 0.0};
        for (std::size_t l = 0; l <= m_nLast; ++l) {
            cosines[l] += now.dCosine;
            sines[l] += now.dSine;
            now = {now.dCosine * step.dCosine - now.dSine * step.dSine,
                   now.dCosine * step.dSine + now.dSine * step.dCosine};
        }
    }
    Solve(m_cosines, m_nLast + 1, cosines.data());
    Solve(m_sines, m_nLast, sines.data() + 1);
    for (std::size_t i = 0; i < nPoints; ++i) {
        const Phase step = PhaseAt(static_cast<std::ptrdiff_t>(nFrom + i) - nMiddle);
        Phase now = {1.0, 0.0};
        double dSum = 0.0;
        for (std::size_t l = 0; l <= m_nLast; ++l) {
            if (l >= nFirst) dSum += cosines[l] * now.dCosine + sines[l] * now.dSine;
            now = {now.dCosine * step.dCosine - now.dSine * step.dSine,
                   now.dCosine * step.dSine + now.dSine * step.dCosine};
        }
        harmonics[i] = dSum;
    }
}

InterferenceDesign DesignInterference(double dSamplingFrequency, double dLineFrequency,
                                      std::uint32_t uFirst, std::uint32_t uLast,
                                      std::uint32_t uCycles, std::size_t nPoints) {
    InterferenceDesign design;
    design.dPeriod = dSamplingFrequency / dLineFrequency;
    const double dMostSide = 0.5 * (static_cast<double>(nPoints) - 1.0);
    const double dSide = std::min(0.5 * (uCycles * design.dPeriod - 1.0), dMostSide);
    if (!(dSide >= 0.0)) return design;
    design.nSide = static_cast<std::size_t>(dSide);
    design.nFirst = uFirst;
    design.nLast = static_cast<std::size_t>(
        std::min({static_cast<double>(uLast), std::floor(kHighestHarmonic * design.dPeriod),
                  static_cast<double>(design.nSide)}));
    return design;
}

void RunInterference(const InterferenceDesign& design, bool bCompensateEnds,
                     const EndLevels& levels, double* values, std::size_t nPoints) {
    if (design.nLast < design.nFirst) return;
    const HarmonicFit fit(design.dPeriod, design.nSide, design.nLast);
    const std::size_t nWindow = 2 * design.nSide + 1;
    std::vector<double> before;
    std::vector<double> after;
    if (bCompensateEnds) {
        before.resize(design.nSide);
        after.resize(design.nSide);
        fit.Continue(values, design.nFirst, 0, before.data(), design.nSide);
        fit.Continue(values + nPoints - nWindow, design.nFirst, design.nSide + 1, after.data(),
                     design.nSide);
        for (std::size_t i = 0; i < design.nSide; ++i) {
            before[i] = values[i] - before[i];
            after[i] = values[nPoints - design.nSide + i] - after[i];
        }
    }
    std::vector<double> weights = fit.Weights(design.nFirst);
    for (double& d : weights) d = -d;
    weights[0] += 1.0;
    RunSymmetricFir(weights, levels, values, nPoints);
    std::copy(before.begin(), before.end(), values);
    std::copy(after.begin(), after.end(), values + (nPoints - after.size()));
}

}  // namespace filter
