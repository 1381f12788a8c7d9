// The program at one point, and what changes with the parameters only.
#include "parser/ParserProgram.h"

#include "parser/ParserFunctions.h"

void CParserProgram::RunInstructions(const CZDCParser& parser, std::size_t nFirst,
                                     std::size_t nEnd) {
    const Instruction* pEnd = m_Instructions.data() + nEnd;
    for (const Instruction* p = m_Instructions.data() + nFirst; p != pEnd; ++p) {
        const double dLeft = *p->left.pScalar;
        switch (p->eOpcode) {
            case OPCODE_MULTIPLY:
                *p->pResult = dLeft * *p->right.pScalar;
                break;
            case OPCODE_DIVIDE:
                *p->pResult = dLeft / *p->right.pScalar;
                break;
            case OPCODE_POWER:
                *p->pResult = std::pow(dLeft, *p->right.pScalar);
                break;
            case OPCODE_ADD:
                *p->pResult = dLeft + *p->right.pScalar;
                break;
            case OPCODE_SUBTRACT:
                *p->pResult = dLeft - *p->right.pScalar;
                break;
            default:
                *p->pResult = parser.EvaluateFunction(p->eOpcode, dLeft, *p->pState);
        }
    }
}

void CParserProgram::RunParameters(const CZDCParser& parser) {
    RunInstructions(parser, 0, m_nParameterInstructions);
    for (std::size_t i = 0; i < m_nParameterCopies; ++i) *m_Copies[i].pTo = *m_Copies[i].pFrom;
    m_bParametersChanged = false;
}

double CParserProgram::Run(const CZDCParser& parser) {
    if (m_bParametersChanged) RunParameters(parser);
    RunInstructions(parser, m_nParameterInstructions, m_Instructions.size());
    for (std::size_t i = m_nParameterCopies; i < m_Copies.size(); ++i) {
        *m_Copies[i].pTo = *m_Copies[i].pFrom;
    }
    const double dValue = *m_Root.pScalar;
    *m_pAssigned = dValue;
    *m_pVariable = dValue;
    return dValue;
}
