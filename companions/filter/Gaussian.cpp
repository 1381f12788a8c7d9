#include "Gaussian.h"

#include <algorithm>
#include <cmath>

#include "Recursive.h"

namespace filter {

namespace {

std::vector<double> BellOf(double dDeviation, std::uint32_t uHalf) {
    std::vector<double> bell(uHalf + 1);
    const double dScale = -0.5 / (dDeviation * dDeviation);
    for (std::uint32_t k = 0; k <= uHalf; ++k)
        bell[k] = std::exp(dScale * (static_cast<double>(k) * k));
    return bell;
}

// From the small ones to the large ones.
double SumOf(const std::vector<double>& bell) {
    double dSum = 0.0;
    for (std::size_t k = bell.size() - 1; k > 0; --k) dSum += bell[k];
    return 2.0 * dSum + bell[0];
}

}  // namespace

double GaussianDeviation(double dFraction) {
    return 0.1325051817635 / dFraction;
}

std::uint32_t GaussianHalfLength(double dFraction) {
    return std::max<std::uint32_t>(2,
                                   static_cast<std::uint32_t>(4.0 * GaussianDeviation(dFraction)));
}

std::vector<double> GaussianWeights(double dFraction) {
    const std::uint32_t uHalf = GaussianHalfLength(dFraction);
    std::vector<double> cosines(uHalf + 1);
    for (std::uint32_t k = 0; k <= uHalf; ++k) cosines[k] = std::cos(2.0 * kPi * dFraction * k);
    // The gain at the cutoff less the wanted one; it falls as the bell widens.
    const auto error = [&](double dDeviation) {
        const std::vector<double> bell = BellOf(dDeviation, uHalf);
        double dSum = 0.0;
        for (std::size_t k = uHalf; k > 0; --k) dSum += bell[k] * cosines[k];
        return (2.0 * dSum + bell[0]) / SumOf(bell) - std::sqrt(0.5);
    };
    // The secant through a bracket, with the weight of the end that stays halved.
    const double dFirst = GaussianDeviation(dFraction);
    double dLow = 0.99 * dFirst;
    double dHigh = 1.01 * dFirst;
    double dLowError = error(dLow);
    double dHighError = error(dHigh);
    while (dHighError > 0.0 && dHigh < 2.0 * dFirst) {
        dLow = dHigh;
        dLowError = dHighError;
        dHigh += 0.1 * dFirst;
        dHighError = error(dHigh);
    }
    double dDeviation = dHigh;
    for (int i = 0, nSide = 0; i < 50; ++i) {
        const double dBefore = dDeviation;
        dDeviation = (dLow * dHighError - dHigh * dLowError) / (dHighError - dLowError);
        const double dError = error(dDeviation);
        if (dError == 0.0 || std::fabs(dDeviation - dBefore) < 1e-15 * dDeviation) break;
        if (dError > 0.0) {
            dLow = dDeviation;
            dLowError = dError;
            if (nSide > 0) dHighError *= 0.5;
            nSide = 1;
        } else {
            dHigh = dDeviation;
            dHighError = dError;
            if (nSide < 0) dLowError *= 0.5;
            nSide = -1;
        }
    }
    std::vector<double> weights = BellOf(dDeviation, uHalf);
    const double dSum = SumOf(weights);
    for (double& d : weights) d /= dSum;
    return weights;
}

}  // namespace filter
