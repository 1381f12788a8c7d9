// The values of the functions of one argument, each in one place for the step walk, the program of
// one point and the program of a block, so that all three give the same bits. `h` is the history
// slot of the function's argument. The mathematical functions are the standard library's, without
// domain checks.
#pragma once

#include <cmath>

#include "ParserMath.h"
#include "parser/ZDCParser.h"

// The constant PI of the equations.
inline double ParserPi() {
    static const double dPi = 4.0 * std::atan(1.0);
    return dPi;
}

inline double Ramp(double x, double dTime, double dMaxTime) {
    return dMaxTime == 0.0 ? 0.0 * x : x * (dTime / dMaxTime);
}

// A running rectangular integral.
inline double Integrate(double x, double dInterval, double& h) {
    h = h + x * dInterval;
    return h;
}

// The difference quotient to the value before; an interval of 0 leaves the history alone.
inline double Differentiate(double x, double dInterval, double& h) {
    if (dInterval == 0.0) return 0.0;
    const double dResult = (x - h) / dInterval;
    h = x;
    return dResult;
}

inline double Inverse(double x) {
    return x == 0.0 ? 0.0 : 1.0 / x;
}

inline double NormalizeToRange(double x, double dMinimum, double dRange) {
    if (dRange != 0.0) return (x - dMinimum) / dRange;
    return x == 0.0 ? 0.0 : 1.0;
}

inline double NormalizeTo(double x, double dLimit) {
    if (dLimit != 0.0) return x / dLimit;
    return x == 0.0 ? 0.0 : 1.0;
}

// The factorial of a whole number from 1 to 170; 0 gives 0, which is required, and a fraction takes
// the same loop without rounding.
inline double Factorial(double x) {
    if (!(x > 0.0)) return 0.0;
    double t = x > 170.0 ? 170.0 : x;
    double dProduct = std::trunc(t);
    while (t > 1.0) {
        t -= 1.0;
        dProduct *= t;
    }
    return dProduct;
}

inline double CZDCParser::EvaluateFunction(int eOpcode, double x, double& h) const {
    switch (eOpcode) {
        case OPCODE_NEGATE:
            return -x;
        case OPCODE_PARENTHESES:
            return x;
        case OPCODE_RECT:
            return std::fabs(x);
        case OPCODE_ARCOS:
            return std::acos(x);
        case OPCODE_ARSIN:
            return std::asin(x);
        case OPCODE_ARTAN:
            return std::atan(x);
        case OPCODE_COS:
            return Cosine(x);
        case OPCODE_EXP:
            return std::exp(x);
        case OPCODE_LN:
            return std::log(x);
        case OPCODE_LOG:
            return std::log10(x);
        case OPCODE_SIN:
            return Sine(x);
        case OPCODE_SQRT:
            return std::sqrt(x);
        case OPCODE_TAN:
            return std::tan(x);
        case OPCODE_RAMP:
            return Ramp(x, m_dTime, m_dMaxTime);
        case OPCODE_INTG:
            return Integrate(x, m_dNextTime - m_dTime, h);
        case OPCODE_DIFF:
            return Differentiate(x, m_dNextTime - m_dTime, h);
        case OPCODE_INV:
            return Inverse(x);
        case OPCODE_NORM:
            return NormalizeToRange(x, m_dMinimum, m_dRange);
        case OPCODE_NORMAX:
            return NormalizeTo(x, m_dMaximum);
        case OPCODE_NORMIN:
            return NormalizeTo(x, m_dMinimum);
        default:
            return Factorial(x);
    }
}
