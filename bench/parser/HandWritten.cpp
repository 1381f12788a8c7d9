#include <cmath>

#include "Equations.h"

namespace {

void Exponential(const Parameters& p, const double* x, double* y, std::size_t n) {
    for (std::size_t i = 0; i < n; ++i) y[i] = p[0] * std::exp(-x[i] / p[1]) + p[2];
}

void Hill(const Parameters& p, const double* x, double* y, std::size_t n) {
    for (std::size_t i = 0; i < n; ++i) {
        y[i] = p[0] * std::pow(x[i], p[1]) / (std::pow(p[2], p[1]) + std::pow(x[i], p[1]));
    }
}

void SineCosineSquared(const Parameters& p, const double* x, double* y, std::size_t n) {
    for (std::size_t i = 0; i < n; ++i) {
        y[i] = p[0] * std::pow(std::sin(p[1] * x[i]), 2.0) +
               p[2] * std::pow(std::cos(p[1] * x[i]), 2.0);
    }
}

void Polynomial(const Parameters& p, const double* x, double* y, std::size_t n) {
    for (std::size_t i = 0; i < n; ++i) {
        const double v = x[i];
        y[i] = p[0] + p[1] * v + p[2] * std::pow(v, 2.0) + p[3] * std::pow(v, 3.0) +
               p[4] * std::pow(v, 4.0) + p[5] * std::pow(v, 5.0) + p[6] * std::pow(v, 6.0) +
               p[7] * std::pow(v, 7.0) + p[8] * std::pow(v, 8.0) + p[9] * std::pow(v, 9.0) +
               p[10] * std::pow(v, 10.0) + p[11] * std::pow(v, 11.0) + p[12] * std::pow(v, 12.0) +
               p[13] * std::pow(v, 13.0) + p[14] * std::pow(v, 14.0) + p[15] * std::pow(v, 15.0) +
               p[16] * std::pow(v, 16.0) + p[17] * std::pow(v, 17.0) + p[18] * std::pow(v, 18.0) +
               p[19] * std::pow(v, 19.0);
    }
}

void TwoSiteCompetition(const Parameters& p, const double* x, double* y, std::size_t n) {
    for (std::size_t i = 0; i < n; ++i) {
        y[i] = p[0] + p[1] * (p[2] / (1.0 + std::pow(10.0, x[i] - p[3])) +
                              (1.0 - p[2]) / (1.0 + std::pow(10.0, x[i] - p[4])));
    }
}

}  // namespace

const std::array<Equation, 5> kEquations = {{
    {"exponential with offset", "P1*EXP(-X1/P2)+P3", Exponential, true},
    {"Hill", "P1*X1^P2/(P3^P2+X1^P2)", Hill, true},
    {"sine and cosine squared", "P1*(SIN(P2*X1))^2+P3*(COS(P2*X1))^2", SineCosineSquared, false},
    {"polynomial of 20 terms",
     "P1+P2*X1+P3*X1^2+P4*X1^3+P5*X1^4+P6*X1^5+P7*X1^6+P8*X1^7+P9*X1^8+P10*X1^9+P11*X1^10"
     "+P12*X1^11+P13*X1^12+P14*X1^13+P15*X1^14+P16*X1^15+P17*X1^16+P18*X1^17+P19*X1^18+P20*X1^19",
     Polynomial, false},
    {"two-site competition", "P1+P2*(P3/(1+10^(X1-P4))+(1-P3)/(1+10^(X1-P5)))", TwoSiteCompetition,
     false},
}};

Parameters BenchmarkParameters() {
    Parameters parameters;
    for (int i = 0; i < kParameterCount; ++i) parameters[i] = 0.5 + 0.1 * i;
    return parameters;
}
