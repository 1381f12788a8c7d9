#include "SymmetricFir.h"

#include <algorithm>

#include "Fft.h"

namespace filter {

namespace {

// Weights to each side from which the transform is faster.
constexpr std::size_t kDirectWeights = 64;
// Points that are added up together: they stay in the fastest cache.
constexpr std::size_t kBlock = 512;

// A copy of the trace with what is beyond its ends.
std::vector<double> Extended(const EndLevels& levels, std::size_t nBeyond, const double* values,
                             std::size_t nPoints) {
    std::vector<double> trace;
    trace.reserve(nPoints + 2 * nBeyond);
    trace.assign(nBeyond, levels.dBefore);
    trace.insert(trace.end(), values, values + nPoints);
    trace.insert(trace.end(), nBeyond, levels.dAfter);
    return trace;
}

void AddWeighted(double* __restrict sums, const double* __restrict before,
                 const double* __restrict after, double dWeight, std::size_t nPoints) {
    for (std::size_t i = 0; i < nPoints; ++i) sums[i] += dWeight * (before[i] + after[i]);
}

}  // namespace

void RunFirDirectly(const std::vector<double>& weights, const EndLevels& levels, double* values,
                    std::size_t nPoints) {
    const std::size_t nSide = weights.size() - 1;
    const std::vector<double> trace = Extended(levels, nSide, values, nPoints);
    for (std::size_t nStart = 0; nStart < nPoints; nStart += kBlock) {
        const std::size_t nCount = std::min(kBlock, nPoints - nStart);
        const double* center = trace.data() + nSide + nStart;
        double* sums = values + nStart;
        for (std::size_t i = 0; i < nCount; ++i) sums[i] = weights[0] * center[i];
        for (std::size_t k = 1; k <= nSide; ++k)
            AddWeighted(sums, center - k, center + k, weights[k], nCount);
    }
}

void RunFirByFft(const std::vector<double>& weights, const EndLevels& levels, double* values,
                 std::size_t nPoints) {
    const std::size_t nSide = weights.size() - 1;
    const std::vector<double> trace = Extended(levels, nSide, values, nPoints);
    // A span of the transform gives all its points but nSide at each end.
    std::size_t nSize = 256;
    while (nSize < 8 * nSide && nSize < trace.size()) nSize *= 2;
    const std::size_t nStep = nSize - 2 * nSide;
    const Fft fft(nSize);

    // The weights around place 0 have a real spectrum.
    std::vector<double> spectrum(nSize, 0.0);
    std::vector<double> im(nSize, 0.0);
    const double dScale = 1.0 / static_cast<double>(nSize);
    spectrum[0] = weights[0] * dScale;
    for (std::size_t k = 1; k <= nSide; ++k)
        spectrum[k] = spectrum[nSize - k] = weights[k] * dScale;
    fft.Forward(spectrum.data(), im.data());

    // Real weights leave real and imaginary part apart: two spans go through one transform.
    std::vector<double> re(nSize);
    const auto load = [&](std::vector<double>& part, std::size_t nStart) {
        const std::size_t nLeft = nStart < trace.size() ? trace.size() - nStart : 0;
        const std::size_t nCount = std::min(nSize, nLeft);
        std::copy_n(trace.begin() + static_cast<std::ptrdiff_t>(trace.size() - nLeft), nCount,
                    part.begin());
        std::fill(part.begin() + static_cast<std::ptrdiff_t>(nCount), part.end(), levels.dAfter);
    };
    const auto store = [&](const std::vector<double>& part, std::size_t nStart) {
        if (nStart >= nPoints) return;
        std::copy_n(part.begin() + static_cast<std::ptrdiff_t>(nSide),
                    std::min(nStep, nPoints - nStart), values + nStart);
    };
    for (std::size_t nStart = 0; nStart < nPoints; nStart += 2 * nStep) {
        load(re, nStart);
        load(im, nStart + nStep);
        fft.Forward(re.data(), im.data());
        for (std::size_t k = 0; k < nSize; ++k) {
            re[k] *= spectrum[k];
            im[k] *= spectrum[k];
        }
        fft.Backward(re.data(), im.data());
        store(re, nStart);
        store(im, nStart + nStep);
    }
}

void RunSymmetricFir(const std::vector<double>& weights, const EndLevels& levels, double* values,
                     std::size_t nPoints) {
    if (weights.size() <= kDirectWeights) {
        RunFirDirectly(weights, levels, values, nPoints);
    } else {
        RunFirByFft(weights, levels, values, nPoints);
    }
}

void RunBoxcar(std::size_t nAverage, const EndLevels& levels, double* values, std::size_t nPoints) {
    const std::vector<double> weights(nAverage / 2 + 1, 1.0);
    RunFirDirectly(weights, levels, values, nPoints);
    const double dCount = static_cast<double>(nAverage);
    for (std::size_t i = 0; i < nPoints; ++i) values[i] /= dCount;
}

}  // namespace filter
