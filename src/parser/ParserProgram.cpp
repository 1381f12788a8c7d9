// The program at one point, and what changes with the parameters only.
#include "parser/ParserProgram.h"

#include "parser/ParserFunctions.h"

// An operation mostly reads the value of the one before it. That value is handed on beside memory,
// which would take longer than the operation.
inline CParserProgram::Handed CParserProgram::RunOperations(const CZDCParser& parser,
                                                            const Operation* p,
                                                            const OperationRun* pRun,
                                                            const OperationRun* pEnd,
                                                            Handed handed) {
    const double* pBefore = handed.pFrom;
    double dBefore = handed.dValue;
    const auto read = [&](const double* pFrom) { return pFrom == pBefore ? dBefore : *pFrom; };
    const auto run = [&](const Operation* pLast, auto function) {
        for (; p != pLast; ++p) {
            dBefore = function(*p);
            pBefore = p->pResult;
            *p->pResult = dBefore;
        }
    };
    for (; pRun != pEnd; ++pRun) {
        const Operation* pLast = p + pRun->nCount;
        switch (pRun->eOpcode) {
            case OPCODE_MULTIPLY:
                run(pLast, [&](const Operation& o) { return read(o.pLeft) * read(o.pRight); });
                break;
            case OPCODE_DIVIDE:
                run(pLast, [&](const Operation& o) { return read(o.pLeft) / read(o.pRight); });
                break;
            case OPCODE_POWER:
                run(pLast,
                    [&](const Operation& o) { return std::pow(read(o.pLeft), read(o.pRight)); });
                break;
            case OPCODE_ADD:
                run(pLast, [&](const Operation& o) { return read(o.pLeft) + read(o.pRight); });
                break;
            case OPCODE_SUBTRACT:
                run(pLast, [&](const Operation& o) { return read(o.pLeft) - read(o.pRight); });
                break;
            case RUN_TERMS:
                for (; p != pLast; p += 3) {
                    const double dSum = read(p[2].pLeft);
                    const double dPower = std::pow(read(p[0].pLeft), read(p[0].pRight));
                    const double dProduct = read(p[1].pLeft) * dPower;
                    dBefore = dSum + dProduct;
                    pBefore = p[2].pResult;
                    *p[0].pResult = dPower;
                    *p[1].pResult = dProduct;
                    *p[2].pResult = dBefore;
                }
                break;
            default:
                run(pLast, [&](const Operation& o) {
                    return parser.EvaluateFunction(pRun->eOpcode, read(o.pLeft), *o.pState);
                });
        }
    }
    return {pBefore, dBefore};
}

void CParserProgram::RunParameters(const CZDCParser& parser) {
    RunOperations(parser, m_Operations.data(), m_Runs.data(), m_Runs.data() + m_nParameterRuns,
                  {nullptr, 0.0});
    for (std::size_t i = 0; i < m_nParameterCopies; ++i) *m_Copies[i].pTo = *m_Copies[i].pFrom;
    m_bParametersChanged = false;
}

double CParserProgram::Run(const CZDCParser& parser) {
    if (m_bParametersChanged) RunParameters(parser);
    Handed handed{nullptr, 0.0};
    double* pValue = m_pMemory.get();
    for (const Input& input : m_Inputs) {
        handed = {pValue, *input.pValue};
        *pValue++ = handed.dValue;
    }
    handed = RunOperations(parser, m_Operations.data() + m_nParameterOperations,
                           m_Runs.data() + m_nParameterRuns, m_Runs.data() + m_Runs.size(), handed);
    m_bCopiesDue = true;
    const double dValue = m_Root.pScalar == handed.pFrom ? handed.dValue : *m_Root.pScalar;
    *m_pAssigned = dValue;
    *m_pVariable = dValue;
    return dValue;
}

void CParserProgram::BringUpToDate() const {
    if (!m_bCopiesDue) return;
    for (std::size_t i = m_nParameterCopies; i < m_Copies.size(); ++i) {
        *m_Copies[i].pTo = *m_Copies[i].pFrom;
    }
    m_bCopiesDue = false;
}

void CParserProgram::Clear() {
    BringUpToDate();
    m_nVariable = -1;
}
