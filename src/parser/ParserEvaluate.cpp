// Evaluation: the recursion over the steps, and the choice between it and the program.
#include <cmath>

#include "parser/ParserFunctions.h"
#include "parser/ZDCParser.h"

namespace {

// Names have a few characters: quicker than a call.
bool IsName(const std::string& name, const char* pszName) {
    const char* p = name.c_str();
    while (*p != '\0' && *p == *pszName) {
        ++p;
        ++pszName;
    }
    return *p == *pszName;
}

}  // namespace

double CZDCParser::EvaluateStep(int nStep) {
    // With an error set, 1.0 is how a failed evaluation is told apart from a true result.
    if (m_nError != PARSER_OK) return 1.0;
    ParserStep& step = m_Steps[nStep];
    double dLeft = 0.0;
    double dRight = 0.0;
    switch (step.eOpcode) {
        case OPCODE_VARIABLE: {
            ParserVariable& variable = m_Variables[step.nVariable];
            if (variable.nStep != 0 && variable.bComputed == 0) {
                // Marked before it is known, so that an equation that names itself comes to an end.
                variable.bComputed = 1;
                step.dValue = EvaluateStep(variable.nStep);
            } else {
                step.dValue = variable.dValue;
            }
            return step.dValue;
        }
        case OPCODE_NUMBER:
            return step.dValue;
        case OPCODE_ASSIGN: {
            step.dValue = EvaluateStep(step.nOperand2);
            ParserVariable& variable = m_Variables[step.nVariable];
            if (variable.nStep != 0) variable.dValue = step.dValue;
            return step.dValue;
        }
        case OPCODE_MULTIPLY:
        case OPCODE_ADD:
            dRight = EvaluateStep(step.nOperand2);
            dLeft = EvaluateStep(step.nOperand1);
            step.dValue = step.eOpcode == OPCODE_ADD ? dLeft + dRight : dLeft * dRight;
            return step.dValue;
        case OPCODE_DIVIDE:
        case OPCODE_REMAINDER:
        case OPCODE_POWER:
        case OPCODE_SUBTRACT:
            dLeft = EvaluateStep(step.nOperand1);
            dRight = EvaluateStep(step.nOperand2);
            if (step.eOpcode == OPCODE_DIVIDE) {
                step.dValue = dLeft / dRight;
            } else if (step.eOpcode == OPCODE_REMAINDER) {
                step.dValue = std::fmod(dLeft, dRight);
            } else if (step.eOpcode == OPCODE_POWER) {
                step.dValue = Power(dLeft, dRight);
            } else {
                step.dValue = dLeft - dRight;
            }
            return step.dValue;
        default:
            break;
    }
    if (step.eOpcode != OPCODE_NEGATE && step.eOpcode != OPCODE_PARENTHESES &&
        (step.eOpcode < OPCODE_RECT || step.eOpcode > OPCODE_FACT)) {
        RaiseError(PARSER_UNKNOWN);
        return 1.0;
    }
    const double x = EvaluateStep(step.nOperand1);
    step.dValue = EvaluateFunction(step.eOpcode, x, m_Steps[step.nOperand1].dState);
    return step.dValue;
}

double CZDCParser::GetStepValue(int nStep) {
    if (nStep < 0 || static_cast<std::size_t>(nStep) >= m_Steps.size()) {
        RaiseError(PARSER_UNKNOWN);
        return 1.0;
    }
    const PrecisionScope precision;
    m_Program.BringUpToDate();
    const ParserVariable& variable = m_Variables[m_Steps[nStep].nVariable];
    return variable.bComputed == 1 ? variable.dValue : EvaluateStep(nStep);
}

int CZDCParser::Evaluate(const char* pszName, double* pResult) {
    const PrecisionScope precision;
    if (m_bValuesChanged) {
        for (ParserVariable& variable : m_Variables) variable.bComputed = 0;
        m_bValuesChanged = 0;
    }
    const int nProgram = m_Program.DependentVariable();
    int nResult = 1;
    if (nProgram >= 0 && m_nError == PARSER_OK && m_Variables[nProgram].bComputed != 1 &&
        IsName(m_Variables[nProgram].strName, pszName)) {
        *pResult = m_Program.Run(*this);
    } else {
        const int nVariable = FindVariable(pszName);
        if (nVariable >= static_cast<int>(m_Variables.size())) return 1;
        const int nStep = m_Variables[nVariable].nStep;
        if (static_cast<std::size_t>(nStep) >= m_Steps.size()) {
            RaiseError(PARSER_INVALID_NUMBER);
            return 0;
        }
        *pResult = GetStepValue(nStep);
        if (*pResult == 1.0 && m_nError != PARSER_OK) nResult = 0;
    }
    // The one test for mathematical faults: values on the way are not tested.
    if (!std::isfinite(*pResult)) {
        RaiseError(PARSER_MATH);
        nResult = 0;
    }
    return nResult;
}

bool CZDCParser::CanRunBlock(const char* pszName, const ParserBlock& block) const {
    const int nVariable = m_Program.DependentVariable();
    return nVariable >= 0 && m_nError == PARSER_OK && m_Variables[nVariable].strName == pszName &&
           m_Variables[nVariable].bComputed != 1 && m_Program.HasInputs(block);
}

int CZDCParser::EvaluateBlock(const char* pszName, const ParserBlock& block, double* pResults) {
    const PrecisionScope precision;
    int nResult = 1;
    const auto evaluatePoint = [&](int i) {
        if (block.pTime) SetTime(block.pTime[i]);
        if (block.pNextTime) SetNextTime(block.pNextTime[i]);
        for (int v = 0; block.ppIndependent && v < m_nIndependent; ++v) {
            if (block.ppIndependent[v]) SetIndependentValue(v, block.ppIndependent[v][i]);
        }
        if (!Evaluate(pszName, &pResults[i])) nResult = 0;
    };
    // The first and the last point go the usual way and leave the flags and the steps as it does.
    // The program takes what lies between, up to a point whose result is not finite: that one goes
    // the usual way as well, which raises its error.
    int i = 0;
    if (block.nPoints > 2) {
        evaluatePoint(i++);
        if (CanRunBlock(pszName, block)) {
            i += m_Program.RunBlock(*this, block, i, block.nPoints - 1 - i, pResults);
        }
    }
    for (; i < block.nPoints; ++i) evaluatePoint(i);
    return nResult;
}
