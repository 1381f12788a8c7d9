#include "Competitors.h"

#include <muParser.h>

#include <cctype>

namespace {

std::string ParameterName(int i) {
    return "P" + std::to_string(i + 1);
}

std::string Lower(const char* pszText) {
    std::string strText = pszText;
    for (std::size_t i = 0; i < strText.size(); ++i) {
        // The names of variables keep their letters.
        if (i + 1 < strText.size() && std::isdigit(static_cast<unsigned char>(strText[i + 1]))) {
            continue;
        }
        strText[i] = static_cast<char>(std::tolower(static_cast<unsigned char>(strText[i])));
    }
    return strText;
}

void SetUp(CParser& parser, const Equation& equation) {
    parser.SetIndependentName(0, "X1");
    for (int i = 0; i < kParameterCount; ++i) {
        char szName[4] = {'P'};
        if (i < 9) {
            szName[1] = static_cast<char>('1' + i);
        } else {
            szName[1] = static_cast<char>('0' + (i + 1) / 10);
            szName[2] = static_cast<char>('0' + (i + 1) % 10);
        }
        parser.SetParameterName(i, szName);
    }
    parser.SetDependentName(0, "Y1");
    char szText[PARSER_TEXT_LIMIT] = "Y1=";
    std::size_t n = 3;
    for (const char* p = equation.pszText; *p; ++p) szText[n++] = *p;
    parser.SetEquation(0, szText);
    parser.Compile();
    const Parameters parameters = BenchmarkParameters();
    for (int i = 0; i < kParameterCount; ++i) parser.SetParameterValue(i, parameters[i]);
}

}  // namespace

struct MuParserCompetitor::State {
    mu::Parser parser;
    Parameters parameters = BenchmarkParameters();
    std::vector<double> bulk[kParameterCount];
    std::string strText;
    double x = 1.0;
};

MuParserCompetitor::MuParserCompetitor(const Equation& equation)
    : m_pState(std::make_unique<State>()) {
    for (int i = 0; i < kParameterCount; ++i) {
        m_pState->parser.DefineVar(ParameterName(i), &m_pState->parameters[i]);
    }
    m_pState->parser.DefineVar("X1", &m_pState->x);
    m_pState->strText = Lower(equation.pszText);
    m_pState->parser.SetExpr(m_pState->strText);
    m_pState->parser.Eval();
}

MuParserCompetitor::~MuParserCompetitor() = default;

void MuParserCompetitor::EvaluatePoints(const double* x, double* y, int n) {
    State& state = *m_pState;
    for (int i = 0; i < n; ++i) {
        state.x = x[i];
        y[i] = state.parser.Eval();
    }
}

void MuParserCompetitor::EvaluateBulk(const double* x, double* y, int n) {
    State& state = *m_pState;
    // In its bulk mode every variable is an array.
    if (state.bulk[0].empty()) {
        for (int i = 0; i < kParameterCount; ++i) {
            state.bulk[i].assign(static_cast<std::size_t>(n), state.parameters[i]);
            state.parser.DefineVar(ParameterName(i), state.bulk[i].data());
        }
        state.parser.DefineVar("X1", const_cast<double*>(x));
        state.parser.SetExpr(state.strText);
    }
    state.parser.Eval(y, n);
}

double MuParserCompetitor::Compile(const Equation& equation) {
    return MuParserCompetitor(equation).m_pState->parser.Eval();
}

OurCompetitor::OurCompetitor(const Equation& equation) : m_Parser(1, 1, kParameterCount, 1) {
    SetUp(m_Parser, equation);
}

void OurCompetitor::EvaluatePoints(const double* x, double* y, int n) {
    for (int i = 0; i < n; ++i) {
        m_Parser.SetIndependentValue(0, x[i]);
        m_Parser.Evaluate("Y1", &y[i]);
    }
}

void OurCompetitor::EvaluateBlock(const double* x, double* y, int n) {
    ParserBlock block;
    block.nPoints = n;
    block.ppIndependent = &x;
    m_Parser.EvaluateBlock("Y1", block, y);
}

double OurCompetitor::Compile(const Equation& equation) {
    double dResult = 0.0;
    OurCompetitor competitor(equation);
    competitor.m_Parser.SetIndependentValue(0, 1.0);
    competitor.m_Parser.Evaluate("Y1", &dResult);
    return dResult;
}
