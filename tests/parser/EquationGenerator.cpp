#include "EquationGenerator.h"

#include <cctype>

std::string EquationGenerator::RightSide() {
    for (;;) {
        std::string strText = Spaces() + Sum(0);
        if (strText.size() > 240) continue;
        const bool bEndsInName = std::isdigit(static_cast<unsigned char>(strText.back())) == 0;
        // A percent sign ends an equation; behind a number it would make a name of both.
        if (bEndsInName && Below(10) == 0) strText += "%2+#(";
        if (strText.ends_with("PI") && Below(3) == 0) strText += "(3)";
        return strText;
    }
}

double EquationGenerator::Value() {
    static constexpr double kSpecial[] = {0.0, 1.0, -1.0, 2.0, 0.5, -0.0, 1e6, 1e-9, -3.0, 170.0};
    if (Below(5) == 0) return kSpecial[Below(10)];
    const double dUnit = static_cast<double>(Next() >> 11) * 0x1p-53;
    return (dUnit - 0.3) * 10.0;
}

std::string EquationGenerator::Sum(int nDepth) {
    std::string strText = Product(nDepth);
    while (Below(3) == 0) {
        strText += Below(2) == 0 ? "+" : "-";
        strText += Spaces() + Product(nDepth + 1);
    }
    return strText;
}

std::string EquationGenerator::Product(int nDepth) {
    std::string strText = Signed(nDepth);
    while (Below(3) == 0) {
        strText += Below(2) == 0 ? "*" : "/";
        strText += Spaces();
        // A sign here takes the whole sum behind it.
        strText += Below(8) == 0 && nDepth < 6 ? (Below(2) == 0 ? "-" : "+") + Sum(nDepth + 1)
                                               : Power(nDepth + 1);
    }
    return strText;
}

std::string EquationGenerator::Signed(int nDepth) {
    const int n = Below(8);
    return (n == 0 ? "-" + Spaces() : n == 1 ? "+" : "") + Power(nDepth);
}

std::string EquationGenerator::Power(int nDepth) {
    std::string strText = Call(nDepth);
    if (Below(5) == 0) strText += "^" + Spaces() + Signed(nDepth + 1);
    return strText;
}

std::string EquationGenerator::Call(int nDepth) {
    static const char* const kNames[] = {
        "RECT", "ARCOS", "ARSIN", "ARTAN", "COS", "sin",  "Tan",    "LOG",    "LN",  "EXP",
        "SQRT", "RAMP",  "INTG",  "DIFF",  "INV", "NORM", "NORMAX", "normin", "FACT"};
    if (nDepth > 5 || Below(3) != 0) return Primary(nDepth);
    std::string strText = kNames[Below(19)] + Spaces() + "(" + Sum(nDepth + 1) + ")";
    if (Below(8) == 0) strText += "^" + Signed(nDepth + 2);
    return strText;
}

std::string EquationGenerator::Primary(int nDepth) {
    if (nDepth < 6 && Below(3) == 0) return "(" + Spaces() + Sum(nDepth + 1) + ")" + Spaces();
    return Atom();
}

std::string EquationGenerator::Atom() {
    switch (Below(8)) {
        case 0:
        case 1:
        case 2:
            return "X" + std::to_string(1 + Below(3));
        case 3:
        case 4:
            return "P" + std::to_string(1 + Below(4));
        case 5:
            return "PI";
        case 6:
            return std::to_string(Below(20));
        default:
            return (Below(2) == 0 ? std::to_string(Below(100)) : "") + "." +
                   std::to_string(Below(1000));
    }
}
