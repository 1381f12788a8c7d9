#include "ReferenceEvaluator.h"

#include <cctype>
#include <cmath>
#include <cstdlib>

#include "ParserMath.h"

double ReferenceEvaluator::Evaluate() {
    m_nPosition = 0;
    return Sum();
}

char ReferenceEvaluator::Peek() {
    while (m_nPosition < m_strText.size() && m_strText[m_nPosition] == ' ') ++m_nPosition;
    return m_nPosition < m_strText.size() ? m_strText[m_nPosition] : '\0';
}

bool ReferenceEvaluator::Take(char c) {
    if (Peek() != c) return false;
    ++m_nPosition;
    return true;
}

double ReferenceEvaluator::Sum() {
    double dValue = Product();
    for (;;) {
        if (Take('+')) {
            const double dRight = Product();
            dValue = dValue + dRight;
        } else if (Take('-')) {
            const double dRight = Product();
            dValue = dValue - dRight;
        } else {
            return dValue;
        }
    }
}

double ReferenceEvaluator::Product() {
    double dValue = Signed();
    for (;;) {
        if (Take('*')) {
            const double dRight = Power();
            dValue = dValue * dRight;
        } else if (Take('/')) {
            const double dRight = Power();
            dValue = dValue / dRight;
        } else {
            return dValue;
        }
    }
}

double ReferenceEvaluator::Signed() {
    if (Take('-')) return -Power();
    Take('+');
    return Power();
}

double ReferenceEvaluator::Power() {
    const double dValue = Call();
    if (!Take('^')) return dValue;
    const double dExponent = Signed();
    return ::Power(dValue, dExponent);
}

bool ReferenceEvaluator::TakeFunction(std::string_view& function) {
    static constexpr std::string_view kNames[] = {
        "NORMAX", "NORMIN", "ARCOS", "ARSIN", "ARTAN", "NORM", "RECT", "SQRT", "RAMP", "INTG",
        "DIFF",   "FACT",   "COS",   "SIN",   "TAN",   "LOG",  "EXP",  "INV",  "LN"};
    Peek();
    for (std::string_view name : kNames) {
        std::size_t n = 0;
        while (n < name.size() && m_nPosition + n < m_strText.size() &&
               std::toupper(static_cast<unsigned char>(m_strText[m_nPosition + n])) == name[n]) {
            ++n;
        }
        if (n < name.size()) continue;
        const std::size_t nBehind = m_strText.find_first_not_of(' ', m_nPosition + n);
        if (nBehind == std::string::npos || m_strText[nBehind] != '(') continue;
        m_nPosition += n;
        function = name;
        return true;
    }
    return false;
}

double ReferenceEvaluator::Call() {
    std::string_view function;
    Peek();
    const std::size_t nPlace = m_nPosition;
    if (!TakeFunction(function)) return Primary();
    const double dArgument = Signed();
    return Apply(function, dArgument, m_History[nPlace]);
}

double ReferenceEvaluator::Primary() {
    if (Peek() == '+' || Peek() == '-') return Sum();
    if (!Take('(')) return Atom();
    const double dValue = Sum();
    Take(')');
    return dValue;
}

double ReferenceEvaluator::Atom() {
    const char c = Peek();
    const std::size_t nStart = m_nPosition;
    if (std::isalpha(static_cast<unsigned char>(c))) {
        m_nPosition = m_strText.find_first_of("+-*/%^=()", nStart);
        if (m_nPosition == std::string::npos) m_nPosition = m_strText.size();
        const std::string strName = m_strText.substr(nStart, m_nPosition - nStart);
        return strName == "PI" ? 4.0 * std::atan(1.0) : variables[strName];
    }
    m_nPosition = m_strText.find_first_not_of("0123456789.", nStart);
    if (m_nPosition == std::string::npos) m_nPosition = m_strText.size();
    return std::strtod(m_strText.substr(nStart, m_nPosition - nStart).c_str(), nullptr);
}

double ReferenceEvaluator::Apply(std::string_view function, double x, double& h) {
    const auto normalized = [](double dAbove, double dBelow, double dPlain) {
        if (dBelow != 0.0) return dAbove / dBelow;
        return dPlain == 0.0 ? 0.0 : 1.0;
    };
    if (function == "RECT") return x < 0.0 || std::signbit(x) ? -x : x;
    if (function == "ARCOS") return std::acos(x);
    if (function == "ARSIN") return std::asin(x);
    if (function == "ARTAN") return std::atan(x);
    if (function == "COS") return Cosine(x);
    if (function == "SIN") return Sine(x);
    if (function == "TAN") return std::tan(x);
    if (function == "EXP") return std::exp(x);
    if (function == "LN") return std::log(x);
    if (function == "LOG") return std::log10(x);
    if (function == "SQRT") return std::sqrt(x);
    if (function == "RAMP") {
        if (dMaxTime == 0.0) return 0.0 * x;
        const double dPart = dTime / dMaxTime;
        return x * dPart;
    }
    if (function == "INTG") {
        const double dPiece = x * (dNextTime - dTime);
        return h += dPiece;
    }
    if (function == "DIFF") {
        const double d = dNextTime - dTime;
        if (d == 0.0) return 0.0;
        const double dBefore = h;
        h = x;
        return (x - dBefore) / d;
    }
    if (function == "INV") return x == 0.0 ? 0.0 : 1.0 / x;
    if (function == "NORM") return normalized(x - dMinimum, dRange, x);
    if (function == "NORMAX") return normalized(x, dMaximum, x);
    if (function == "NORMIN") return normalized(x, dMinimum, x);
    // FACT
    if (!(x > 0.0)) return 0.0;
    if (x > 170.0) x = 170.0;
    double dProduct = static_cast<double>(static_cast<int>(x));
    for (double t = x; t > 1.0;) {
        t = t - 1.0;
        dProduct = dProduct * t;
    }
    return dProduct;
}
