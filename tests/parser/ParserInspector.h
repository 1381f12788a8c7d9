// What the tests see of a parser beyond its public operations, and short ways to make one.
#pragma once

#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "parser/ZDCParser.h"

struct ParserInspector {
    static std::vector<ParserStep>& Steps(CZDCParser& parser) { return parser.m_Steps; }
    static std::vector<ParserVariable>& Variables(CZDCParser& parser) { return parser.m_Variables; }
    static int ValuesChanged(const CZDCParser& parser) { return parser.m_bValuesChanged; }
    static int Position(const CZDCParser& parser) { return parser.m_nPosition; }
    static int LastGoodPosition(const CZDCParser& parser) { return parser.m_nLastGoodPosition; }
    static const std::string& LeftName(const CZDCParser& parser) { return parser.m_strLeftName; }
    static bool HasProgram(const CZDCParser& parser) {
        return parser.m_Program.DependentVariable() >= 0;
    }
    // Leaves evaluation to the walk over the steps.
    static void DropProgram(CZDCParser& parser) { parser.m_Program.Clear(); }

    // Scans digits and then the exponent behind them.
    static void ScanExponent(CZDCParser& parser, const char* pszText, int nDigits) {
        std::strcpy(parser.m_szText, pszText);
        parser.m_nTextLength = static_cast<int>(std::strlen(pszText));
        parser.m_nPosition = nDigits;
        std::memcpy(parser.m_szToken, pszText, static_cast<std::size_t>(nDigits));
        parser.m_szToken[nDigits] = '\0';
        parser.ScanExponent();
    }
};

// The names of a parser's variables.
struct Names {
    std::vector<std::string> independent = {"X1"};
    std::vector<std::string> parameters = {"P1"};
    std::vector<std::string> dependent = {"Y1"};
};

inline std::unique_ptr<CZDCParser> MakeParser(const std::vector<std::string>& equations,
                                              const Names& names = {}) {
    const auto count = [](const auto& list) { return static_cast<int>(list.size()); };
    auto parser = std::make_unique<CZDCParser>(count(names.independent), count(names.dependent),
                                               count(names.parameters), count(equations));
    for (int i = 0; i < count(names.independent); ++i) {
        parser->SetIndependentName(i, names.independent[i].c_str());
    }
    for (int i = 0; i < count(names.parameters); ++i) {
        parser->SetParameterName(i, names.parameters[i].c_str());
    }
    for (int i = 0; i < count(names.dependent); ++i) {
        parser->SetDependentName(i, names.dependent[i].c_str());
    }
    for (int i = 0; i < count(equations); ++i) parser->SetEquation(i, equations[i].c_str());
    return parser;
}

// The error of compiling equations of X1, P1 and Y1.
inline int CompileError(const std::string& equation, const Names& names = {}) {
    auto parser = MakeParser({equation}, names);
    const int nResult = parser->Compile();
    return nResult == 1 ? 0 : parser->GetError();
}

// The value of Y1 at X1 = x and P1 = p.
inline double ValueOf(const std::string& equation, double x = 0.0, double p = 0.0) {
    auto parser = MakeParser({equation});
    if (!parser->Compile()) return -12345.0;
    parser->SetIndependentValue(0, x);
    parser->SetParameterValue(0, p);
    double dResult = -54321.0;
    parser->Evaluate("Y1", &dResult);
    return dResult;
}
