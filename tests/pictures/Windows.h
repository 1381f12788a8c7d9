// The spectral windows by their definitions: weights from the textbook, transforms by adding up.
#pragma once

#include <cmath>
#include <numbers>
#include <vector>

namespace window_test {

constexpr double kPi = std::numbers::pi;

struct Window {
    const char* szName;
    int eType;  // as the options have it
    double dAlpha;
};

// A window of the table and of each series, with the alpha that its picture is drawn for.
inline std::vector<Window> AllWindows() {
    std::vector<Window> all = {{"None (Rectangular)", 0, 0.0},
                               {"Bartlett (Triangular)", 1, 0.0},
                               {"Blackman", 2, 0.0},
                               {"Blackman-Harris 3", 3, 0.0},
                               {"Blackman-Harris 4", 4, 0.0},
                               {"Cosine", 5, 0.0},
                               {"Hamming", 6, 0.0},
                               {"Von Hann", 9, 0.0}};
    for (int i = 0; i <= 10; ++i) {
        all.push_back({"Kaiser", 7, i == 0 ? 0.5 : i});
        all.push_back({"Poisson", 8, i == 0 ? 0.5 : i});
    }
    return all;
}

inline double BesselI0(double x) {
    double dTerm = 1.0;
    double dSum = 1.0;
    for (int k = 1; dTerm > 1e-17 * dSum; ++k) {
        dTerm *= x / (2.0 * k) * (x / (2.0 * k));
        dSum += dTerm;
    }
    return dSum;
}

// `t` runs from 0 to 1 over the length.
inline double WeightOf(const Window& window, double t) {
    const double c1 = std::cos(2.0 * kPi * t);
    const double c2 = std::cos(4.0 * kPi * t);
    const double c3 = std::cos(6.0 * kPi * t);
    const double u = 2.0 * t - 1.0;
    switch (window.eType) {
        case 1:
            return 1.0 - std::fabs(u);
        case 2:
            return 0.42 - 0.5 * c1 + 0.08 * c2;
        case 3:
            return 0.42323 - 0.49755 * c1 + 0.07922 * c2;
        case 4:
            return 0.35875 - 0.48829 * c1 + 0.14128 * c2 - 0.01168 * c3;
        case 5:
            return std::sin(kPi * t);
        case 6:
            return 0.54 - 0.46 * c1;
        case 7:
            return BesselI0(kPi * window.dAlpha * std::sqrt(1.0 - u * u)) /
                   BesselI0(kPi * window.dAlpha);
        case 8:
            return std::exp(-window.dAlpha * std::fabs(u));
        case 9:
            return 0.5 - 0.5 * c1;
        default:
            return 1.0;
    }
}

// The transform of a window over its value in the middle, real and signed, on a grid of bins.
class Transform {
  public:
    static constexpr int kPerBin = 64;

    Transform(const Window& window, int nBins) : m_values(nBins * kPerBin + 1) {
        // Both end points of the length count by half.
        constexpr int kPoints = 1024;
        std::vector<double> weights(kPoints / 2 + 1);
        double dSum = 0.0;
        for (int n = 0; n <= kPoints / 2; ++n) {
            weights[n] = (n == kPoints / 2 ? 0.5 : 1.0) * (n == 0 ? 0.5 : 1.0) *
                         WeightOf(window, 0.5 + double(n) / kPoints);
            dSum += weights[n];
        }
        for (std::size_t i = 0; i < m_values.size(); ++i) {
            // cos(n angle) by its recurrence, which loses nothing over so few points.
            const double dAngle = 2.0 * kPi * double(i) / kPerBin / kPoints;
            const double dTwice = 2.0 * std::cos(dAngle);
            double dBefore = std::cos(dAngle);
            double dNow = 1.0;
            double dTotal = 0.0;
            for (const double dWeight : weights) {
                dTotal += dWeight * dNow;
                const double dNext = dTwice * dNow - dBefore;
                dBefore = dNow;
                dNow = dNext;
            }
            m_values[i] = dTotal / dSum;
        }
    }

    std::size_t Size() const { return m_values.size(); }
    double Value(std::size_t nPlace) const { return m_values[nPlace]; }
    double Decibel(std::size_t nPlace) const {
        return 20.0 * std::log10(std::fabs(m_values[nPlace]) + 1e-30);
    }

  private:
    std::vector<double> m_values;
};

}  // namespace window_test
