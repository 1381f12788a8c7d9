#include "parser/ZDCParser.h"

#include <algorithm>
#include <cstring>

#include "parser/ParserErrors.h"

// A negative count declares nothing.
CZDCParser::CZDCParser(int nIndependent, int nDependent, int nParameters, int nEquations)
    : m_nIndependent(std::max(nIndependent, 0)),
      m_nDependent(std::max(nDependent, 0)),
      m_nParameters(std::max(nParameters, 0)),
      m_Equations(static_cast<std::size_t>(std::max(nEquations, 0))) {
    const long long nVariables = FirstDependent() + m_nDependent;
    m_Variables.reserve(static_cast<std::size_t>(std::min(nVariables, 64LL)));
}

const char* CZDCParser::GetErrorText(int nError) const {
    return ParserErrorText(nError);
}

void CZDCParser::ResetHistory() {
    for (ParserStep& step : m_Steps) {
        step.bReset = 1;
        step.dState = 0.0;
        step.dState2 = 0.0;
        step.dState3 = 0.0;
    }
}

void CZDCParser::SetEquation(int nIndex, const char* pszText) {
    if (nIndex < 0 || static_cast<std::size_t>(nIndex) >= m_Equations.size()) {
        RaiseError(PARSER_EQUATION_INDEX);
        return;
    }
    auto& slot = m_Equations[nIndex];
    const std::size_t nLength = strnlen(pszText, slot.size() - 1);
    std::memcpy(slot.data(), pszText, nLength);
    slot[nLength] = '\0';
}

void CZDCParser::SetParameterValue(int nIndex, double dValue) {
    const long long nVariable = static_cast<long long>(m_nIndependent) + nIndex;
    if (nIndex < 0 || nIndex >= m_nParameters ||
        nVariable >= static_cast<long long>(m_Variables.size())) {
        RaiseError(PARSER_PARAMETER_INDEX);
        return;
    }
    m_Variables[static_cast<std::size_t>(nVariable)].dValue = dValue;
    m_Program.ParametersChanged();
}

void CZDCParser::SetVariableValue(int nIndex, double dValue) {
    m_bValuesChanged = 1;
    if (nIndex < 0 || nIndex >= m_nVariables) {
        RaiseError(PARSER_VARIABLE_INDEX);
        return;
    }
    m_Variables[nIndex].dValue = dValue;
    m_Program.ParametersChanged();
}

int CZDCParser::HasSpecialOperator() const {
    return std::any_of(m_Steps.begin(), m_Steps.end(), [](const ParserStep& step) {
        return step.eOpcode == OPCODE_POWER || step.eOpcode == OPCODE_EXP ||
               step.eOpcode == OPCODE_SQRT || step.eOpcode == OPCODE_INTG ||
               step.eOpcode == OPCODE_DIFF;
    });
}

int CZDCParser::GetDependentStep(const char* pszName) {
    const int nVariable = FindVariable(pszName);
    if (nVariable >= static_cast<int>(m_Variables.size())) {
        RaiseError(PARSER_UNKNOWN_NAME);
        return 0;
    }
    return m_Variables[nVariable].nStep;
}

void CZDCParser::Append(std::string_view name, int bComputed) {
    ParserVariable& variable = m_Variables.emplace_back();
    variable.bComputed = bComputed;
    variable.strName = name;
    // The table may have moved, and with it what the program looks at.
    m_Program.Clear();
}

void CZDCParser::SetIndependentName(int nIndex, const char* pszName) {
    if (nIndex < 0 || nIndex >= m_nIndependent) return RaiseError(PARSER_INDEPENDENT_INDEX);
    Append(pszName, 0);
}

void CZDCParser::SetDependentName(int nIndex, const char* pszName) {
    if (nIndex < 0 || nIndex >= m_nDependent) return RaiseError(PARSER_DEPENDENT_INDEX);
    Append(pszName, 0);
}

void CZDCParser::SetParameterName(int nIndex, const char* pszName) {
    if (nIndex < 0 || nIndex >= m_nParameters) return RaiseError(PARSER_PARAMETER_INDEX);
    Append(pszName, 0);
}

int CZDCParser::Compile() {
    m_Program.Clear();
    if (m_nDependent == 0) {
        RaiseError(PARSER_NO_DEPENDENT);
        return 0;
    }
    m_nVariables = static_cast<int>(m_Variables.size());
    const long long nFirst = FirstDependent();
    if (m_nVariables != nFirst + m_nDependent) {
        RaiseError(PARSER_VARIABLE_COUNT);
        return 0;
    }
    std::size_t nSteps = m_Steps.size();
    for (const auto& equation : m_Equations) nSteps += strnlen(equation.data(), PARSER_TEXT_LIMIT);
    m_Steps.reserve(nSteps);
    for (const auto& equation : m_Equations) {
        m_strLeftName.clear();
        if (!ParseEquation(equation.data())) return 0;
    }
    for (int i = 0; i < m_nDependent; ++i) {
        if (m_Variables[static_cast<std::size_t>(nFirst) + i].nStep == 0) {
            RaiseError(PARSER_UNKNOWN_NAME);
            return 0;
        }
    }
    if (m_nDependent == 1) m_Program.Build(*this, static_cast<int>(nFirst));
    return 1;
}
