#include "LineFrequency.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "Fft.h"
#include "Recursive.h"

namespace filter {

namespace {

constexpr double kLines[] = {50.0, 60.0};  // Hz
constexpr double kWander = 0.5;            // Hz to both sides
constexpr double kHighestLine = kLines[1] + kWander;
constexpr double kFewestPeriods = 5.0;
// Points of the spectrum for each that the trace has: in between it is interpolated.
constexpr std::size_t kPadding = 4;
// Longer traces are transformed in pieces whose powers are added up.
constexpr std::size_t kLongestPiece = std::size_t{1} << 18;

// The power spectrum of equal pieces of a trace under a Hann window, added up.
class Spectrum {
  public:
    Spectrum(const std::vector<double>& trace, double dSamplingFrequency) {
        const std::size_t nPieces = (trace.size() + kLongestPiece - 1) / kLongestPiece;
        const std::size_t nPiece = trace.size() / nPieces;
        std::size_t nSize = 4;
        while (nSize < kPadding * nPiece) nSize *= 2;
        m_dDuration = static_cast<double>(nPiece) / dSamplingFrequency;
        m_dSpacing = dSamplingFrequency / static_cast<double>(nSize);
        m_power.assign(nSize / 2 + 1, 0.0);
        const Fft fft(nSize);
        std::vector<double> re(nSize);
        std::vector<double> im(nSize);
        for (std::size_t i = 0; i < nPieces; ++i) {
            const double* piece = trace.data() + i * nPiece;
            double dMean = 0.0;
            for (std::size_t k = 0; k < nPiece; ++k) dMean += piece[k];
            dMean /= static_cast<double>(nPiece);
            std::fill(re.begin(), re.end(), 0.0);
            std::fill(im.begin(), im.end(), 0.0);
            for (std::size_t k = 0; k < nPiece; ++k) {
                const double dPlace = (static_cast<double>(k) + 0.5) / static_cast<double>(nPiece);
                re[k] = (0.5 - 0.5 * std::cos(2.0 * kPi * dPlace)) * (piece[k] - dMean);
            }
            fft.Forward(re.data(), im.data());
            for (std::size_t k = 0; k < m_power.size(); ++k) {
                const std::size_t nPlace = fft.PlaceOf(k);
                m_power[k] += re[nPlace] * re[nPlace] + im[nPlace] * im[nPlace];
            }
        }
    }

    double Duration() const { return m_dDuration; }

    // Between the points of the spectrum, by the cubic through the four nearest ones.
    double PowerAt(double dFrequency) const {
        const double dPlace = dFrequency / m_dSpacing;
        const auto k = static_cast<std::size_t>(dPlace);
        if (k < 1 || k + 2 >= m_power.size()) return 0.0;
        const double t = dPlace - static_cast<double>(k);
        const double* p = &m_power[k - 1];
        return -t * (t - 1.0) * (t - 2.0) / 6.0 * p[0] +
               (t + 1.0) * (t - 1.0) * (t - 2.0) / 2.0 * p[1] -
               (t + 1.0) * t * (t - 2.0) / 2.0 * p[2] + (t + 1.0) * t * (t - 1.0) / 6.0 * p[3];
    }

  private:
    double m_dDuration;  // s, of a piece
    double m_dSpacing;   // Hz
    std::vector<double> m_power;
};

// Means of nStep points each: only the harmonics are of interest.
std::vector<double> Reduced(const double* values, std::size_t nPoints, std::size_t nStep) {
    std::vector<double> means(nPoints / nStep);
    for (std::size_t i = 0; i < means.size(); ++i) {
        double dSum = 0.0;
        for (std::size_t k = 0; k < nStep; ++k) dSum += values[i * nStep + k];
        means[i] = dSum / static_cast<double>(nStep);
    }
    return means;
}

struct Peak {
    double dFrequency, dPower;
};

Peak PeakNear(const Spectrum& spectrum, double dLine, std::uint32_t uFirst, std::uint32_t uLast) {
    const auto power = [&](double dFrequency) {
        double dSum = 0.0;
        for (std::uint32_t l = uFirst; l <= uLast; ++l) dSum += spectrum.PowerAt(l * dFrequency);
        return dSum;
    };
    const double dStep = 0.25 / (spectrum.Duration() * uLast);
    const int nSteps = static_cast<int>(std::ceil(kWander / dStep));
    Peak peak = {dLine, -1.0};
    for (int i = -nSteps; i <= nSteps; ++i) {
        const double dFrequency = dLine + i * dStep;
        const double dPower = power(dFrequency);
        if (dPower > peak.dPower) peak = {dFrequency, dPower};
    }
    // The vertex of the parabola through the highest point and its neighbours.
    const double dLeft = power(peak.dFrequency - dStep);
    const double dRight = power(peak.dFrequency + dStep);
    const double dBend = dLeft - 2.0 * peak.dPower + dRight;
    if (dBend < 0.0) peak.dFrequency += dStep * 0.5 * (dLeft - dRight) / dBend;
    peak.dFrequency = std::clamp(peak.dFrequency, dLine - kWander, dLine + kWander);
    return peak;
}

}  // namespace

double FindLineFrequency(const double* values, std::size_t nPoints, double dSamplingFrequency,
                         std::uint32_t uFirst, std::uint32_t uLast) {
    const double dPeriods = static_cast<double>(nPoints) / dSamplingFrequency * kLines[0];
    if (!(dPeriods >= kFewestPeriods)) return kLines[0];
    const double dMostHarmonics = 0.49 * dSamplingFrequency / kHighestLine;
    const auto uHarmonics =
        static_cast<std::uint32_t>(std::min<double>(uLast, std::floor(dMostHarmonics)));
    if (uHarmonics < uFirst) return kLines[0];
    const double dReduction = dSamplingFrequency / (4.0 * kHighestLine * uHarmonics);
    const auto nStep = static_cast<std::size_t>(std::max(1.0, dReduction));
    const Spectrum spectrum(Reduced(values, nPoints, nStep),
                            dSamplingFrequency / static_cast<double>(nStep));
    const Peak low = PeakNear(spectrum, kLines[0], uFirst, uHarmonics);
    const Peak high = PeakNear(spectrum, kLines[1], uFirst, uHarmonics);
    return high.dPower > low.dPower ? high.dFrequency : low.dFrequency;
}

}  // namespace filter
