// The program at one point, and what changes with the parameters only.
#include "parser/ParserProgram.h"

#include <array>
#include <utility>

#include "parser/ParserFunctions.h"

struct CParserProgram::Handlers {
    // Each ends in a call of the next one, which the compiler turns into a jump.
    static double Next(const Operation* p, double dBefore, const CZDCParser& parser) {
        return p->pHandler(p, dBefore, parser);
    }

    template <int eOpcode, bool bLeftBefore, bool bRightBefore>
    static double Run(const Operation* p, double dBefore, const CZDCParser& parser) {
        const double dLeft = bLeftBefore ? dBefore : *p->pLeft;
        if constexpr (eOpcode >= OPCODE_MULTIPLY && eOpcode <= OPCODE_SUBTRACT) {
            dBefore = Combine<eOpcode>(dLeft, bRightBefore ? dBefore : *p->pRight);
        } else {
            dBefore = parser.EvaluateFunction(eOpcode, dLeft, *p->pState);
        }
        *p->pResult = dBefore;
        return Next(p + 1, dBefore, parser);
    }

    template <int eOpcode>
    static double Combine(double dLeft, double dRight) {
        if constexpr (eOpcode == OPCODE_MULTIPLY) return dLeft * dRight;
        if constexpr (eOpcode == OPCODE_DIVIDE) return dLeft / dRight;
        if constexpr (eOpcode == OPCODE_REMAINDER) return std::fmod(dLeft, dRight);
        if constexpr (eOpcode == OPCODE_POWER) return Power(dLeft, dRight);
        if constexpr (eOpcode == OPCODE_ADD) return dLeft + dRight;
        return dLeft - dRight;
    }

    // Goes on through the terms behind it, which add to its sum.
    template <bool bSumBefore>
    static double Term(const Operation* p, double dBefore, const CZDCParser& parser) {
        double dSum = bSumBefore ? dBefore : *p[2].pLeft;
        do {
            const double dPower = Power(*p[0].pLeft, *p[0].pRight);
            const double dProduct = *p[1].pLeft * dPower;
            dSum = dSum + dProduct;
            *p[0].pResult = dPower;
            *p[1].pResult = dProduct;
            *p[2].pResult = dSum;
            p += 3;
        } while (p->pHandler == Term<true>);
        return Next(p, dSum, parser);
    }

    static double End(const Operation*, double dBefore, const CZDCParser&) { return dBefore; }

    template <int eOpcode>
    static constexpr std::array<Handler, 4> OfOpcode() {
        return {Run<eOpcode, false, false>, Run<eOpcode, true, false>, Run<eOpcode, false, true>,
                Run<eOpcode, true, true>};
    }
    template <int... nOffsets>
    static constexpr auto OfAllOpcodes(std::integer_sequence<int, nOffsets...>) {
        return std::array{OfOpcode<OPCODE_NEGATE + nOffsets>()...};
    }
};

CParserProgram::Handler CParserProgram::HandlerOf(int eOpcode, bool bLeftBefore,
                                                  bool bRightBefore) {
    static constexpr auto kHandlers =
        Handlers::OfAllOpcodes(std::make_integer_sequence<int, OPCODE_FACT - OPCODE_NEGATE + 1>());
    if (eOpcode == HANDLER_END) return Handlers::End;
    if (eOpcode == HANDLER_TERM) return bLeftBefore ? Handlers::Term<true> : Handlers::Term<false>;
    return kHandlers[eOpcode - OPCODE_NEGATE][(bLeftBefore ? 1 : 0) + (bRightBefore ? 2 : 0)];
}

void CParserProgram::RunParameters(const CZDCParser& parser) {
    Handlers::Next(m_Operations.data(), 0.0, parser);
    for (std::size_t i = 0; i < m_nParameterCopies; ++i) *m_Copies[i].pTo = *m_Copies[i].pFrom;
    m_bParametersChanged = false;
}

double CParserProgram::Run(const CZDCParser& parser) {
    if (m_bParametersChanged) RunParameters(parser);
    double* pValue = m_pMemory.get();
    double dBefore = 0.0;
    for (const Input& input : m_Inputs) {
        dBefore = *input.pValue;
        *pValue++ = dBefore;
    }
    double dValue = Handlers::Next(m_Operations.data() + m_nParameterOperations, dBefore, parser);
    if (!m_bRootIsOperation) dValue = *m_Root.pScalar;
    m_bCopiesDue = true;
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
