#include "seeds/Reduction.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace curvefit {

namespace {

constexpr std::size_t kGuardFrom = 16;
constexpr std::size_t kGuardTo = 8191;  // longer records are guarded behind the bins
constexpr std::size_t kTrimFrom = 8;

// The points in ascending order of x; a copy is made for a record that is in no order.
class OrderedPoints {
  public:
    OrderedPoints(const double* x, const double* y, std::size_t n) : m_x(x), m_y(y), m_n(n) {
        if (std::is_sorted(x, x + n)) return;
        m_bBackwards = std::is_sorted(std::reverse_iterator(x + n), std::reverse_iterator(x));
        if (m_bBackwards) return;
        m_sorted.reserve(n);
        for (std::size_t i = 0; i < n; ++i) m_sorted.emplace_back(x[i], y[i]);
        std::stable_sort(m_sorted.begin(), m_sorted.end(),
                         [](const auto& a, const auto& b) { return a.first < b.first; });
    }
    std::size_t Size() const { return m_n; }
    std::pair<double, double> At(std::size_t i) const {
        if (!m_sorted.empty()) return m_sorted[i];
        const std::size_t k = m_bBackwards ? m_n - 1 - i : i;
        return {m_x[k], m_y[k]};
    }

  private:
    const double* m_x;
    const double* m_y;
    std::size_t m_n;
    bool m_bBackwards = false;
    std::vector<std::pair<double, double>> m_sorted;
};

// A power of two near the largest size, 1 for nothing but zeros.
double ScaleOf(double dLargest) {
    if (dLargest == 0.0) return 1.0;
    int nExponent = 0;
    std::frexp(dLargest, &nExponent);
    return std::ldexp(1.0, std::clamp(nExponent, -1021, 1022));
}

double MedianOfThree(double a, double b, double c) {
    return std::max(std::min(a, b), std::min(std::max(a, b), c));
}

// Noise is told by second differences, which a smooth signal hardly has. Many points that stand out
// are signal.
void GuardOutliers(std::vector<double>& y) {
    const std::size_t n = y.size();
    if (n < kGuardFrom) return;
    std::vector<double> sizes;
    sizes.reserve(n);
    for (std::size_t k = 1; k + 1 < n; ++k)
        sizes.push_back(std::fabs(y[k - 1] - 2.0 * y[k] + y[k + 1]));
    std::nth_element(sizes.begin(), sizes.begin() + static_cast<std::ptrdiff_t>(sizes.size() / 2),
                     sizes.end());
    const double dNoise = 1.4826 * sizes[sizes.size() / 2] / std::sqrt(6.0);
    std::vector<std::pair<std::size_t, double>> changes;
    const std::size_t nMost = std::max<std::size_t>(1, n / 100);
    for (std::size_t k = 1; k + 1 < n; ++k) {
        const double dMedian = MedianOfThree(y[k - 1], y[k], y[k + 1]);
        if (!(std::fabs(y[k] - dMedian) > 8.0 * dNoise)) continue;
        if (changes.size() == nMost) return;
        changes.emplace_back(k, dMedian);
    }
    for (const auto& [k, dMedian] : changes) y[k] = dMedian;
}

// One bin: its mean, without the smallest and the largest value where there are enough.
void AddBin(const std::vector<double>& x, const std::vector<double>& y, ReducedData& data) {
    const auto n = static_cast<double>(x.size());
    double dSumX = 0.0;
    double dSumY = 0.0;
    for (std::size_t i = 0; i < x.size(); ++i) {
        dSumX += x[i];
        dSumY += y[i];
    }
    double dCount = n;
    if (x.size() >= kTrimFrom) {
        const auto [low, high] = std::minmax_element(y.begin(), y.end());
        dSumY -= *low + *high;
        dCount -= 2.0;
    }
    data.x.push_back(dSumX / n);
    data.y.push_back(dSumY / dCount);
    data.weight.push_back(n);
}

}  // namespace

double ReducedData::RangeY() const {
    const auto [low, high] = std::minmax_element(y.begin(), y.end());
    return *high - *low;
}

ReducedData Reduce(const double* x, const double* y, std::size_t n, const ReductionRules& rules) {
    ReducedData data;
    const OrderedPoints points(x, y, n);
    const auto place = [&](double dX) {
        if (rules.bConcentration && dX <= 0.0) dX = rules.dSubstitute;
        return dX - rules.dOrigin;
    };
    std::size_t nFirst = 0;
    double dLargestX = 0.0;
    double dLargestY = 0.0;
    for (std::size_t i = 0; i < n; ++i) {
        const auto [dX, dY] = points.At(i);
        const double t = place(dX);
        if (rules.bOnlyNonNegative && t < 0.0) {
            nFirst = i + 1;
            continue;
        }
        dLargestX = std::max(dLargestX, std::fabs(t));
        dLargestY = std::max(dLargestY, std::fabs(dY));
    }
    data.dScaleX = ScaleOf(dLargestX);
    data.dScaleY = ScaleOf(dLargestY);
    data.nPoints = n - nFirst;
    const std::size_t nLeft = data.nPoints;
    const bool bBins = nLeft > rules.nBins;
    const double dPower = rules.bFineOnset ? 2.0 : 1.0;
    const bool bGuardPoints = rules.bGuardOutliers && nLeft <= kGuardTo;

    std::vector<double> guarded;
    if (bGuardPoints) {
        guarded.reserve(nLeft);
        for (std::size_t i = nFirst; i < n; ++i)
            guarded.push_back(points.At(i).second / data.dScaleY);
        GuardOutliers(guarded);
    }
    std::vector<double> binX;
    std::vector<double> binY;
    double dBefore = 0.0;
    double dStep = 0.0;
    std::size_t nBin = 1;
    const auto edge = [&](std::size_t k) {
        const double dShare = static_cast<double>(k) / static_cast<double>(rules.nBins);
        return static_cast<std::size_t>(
            std::lround(static_cast<double>(nLeft) * std::pow(dShare, dPower)));
    };
    std::size_t nEnd = bBins ? edge(nBin) : 1;
    for (std::size_t i = 0; i < nLeft; ++i) {
        const auto [dX, dY] = points.At(nFirst + i);
        const double t = place(dX) / data.dScaleX;
        if (i > 0 && t > dBefore && (dStep == 0.0 || t - dBefore < dStep)) dStep = t - dBefore;
        dBefore = t;
        while (bBins && nEnd <= i) {
            if (!binX.empty()) AddBin(binX, binY, data);
            binX.clear();
            binY.clear();
            nEnd = edge(++nBin);
        }
        binX.push_back(t);
        binY.push_back(bGuardPoints ? guarded[i] : dY / data.dScaleY);
        if (!bBins) {
            AddBin(binX, binY, data);
            binX.clear();
            binY.clear();
        }
    }
    if (!binX.empty()) AddBin(binX, binY, data);
    if (rules.bGuardOutliers && !bGuardPoints) GuardOutliers(data.y);
    for (std::size_t i = 0; i < data.Size(); ++i)
        data.nDistinct += i == 0 || data.x[i] > data.x[i - 1];
    data.dSmallestStep = dStep > 0.0 ? dStep : 1.0;
    return data;
}

}  // namespace curvefit
