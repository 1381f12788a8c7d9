// The program at many points: each instruction runs over a chunk of them before the next one does.
#include <cmath>
#include <cstdint>
#include <cstring>

#include "parser/ParserFunctions.h"
#include "parser/ParserProgram.h"

namespace {

template <class Function>
void Map(const double* pArgument, double* __restrict pResult, int n, Function function) {
    for (int i = 0; i < n; ++i) pResult[i] = function(pArgument[i]);
}

// At most one of the operands is the same for all points.
template <class Function>
void Combine(const double* pLeft, bool bLeftScalar, const double* pRight, bool bRightScalar,
             double* __restrict pResult, int n, Function function) {
    if (bLeftScalar) {
        const double dLeft = *pLeft;
        for (int i = 0; i < n; ++i) pResult[i] = function(dLeft, pRight[i]);
    } else if (bRightScalar) {
        const double dRight = *pRight;
        for (int i = 0; i < n; ++i) pResult[i] = function(pLeft[i], dRight);
    } else {
        for (int i = 0; i < n; ++i) pResult[i] = function(pLeft[i], pRight[i]);
    }
}

// Whether a value among them is a NaN or an infinity: an exponent of all ones carries into the
// sign.
bool HasNonFinite(const double* p, int n) {
    std::uint64_t uCarry = 0;
    for (int i = 0; i < n; ++i) {
        std::uint64_t uBits;
        std::memcpy(&uBits, &p[i], sizeof uBits);
        uCarry |= (uBits & 0x7FF0000000000000u) + 0x0010000000000000u;
    }
    return (uCarry >> 63) != 0;
}

}  // namespace

bool CParserProgram::HasInputs(const ParserBlock& block) const {
    for (const Input& input : m_Inputs) {
        if (!block.ppIndependent || !block.ppIndependent[input.nVariable]) return false;
    }
    return true;
}

const double* CParserProgram::Array(const Chunk& chunk, const Operand& operand) {
    switch (operand.ePlace) {
        case PLACE_INPUT:
            return chunk.block.ppIndependent[operand.nIndex] + chunk.nFirst;
        case PLACE_ROW:
            return Row(operand.nIndex);
        case PLACE_RESULT:
            return chunk.pResults;
        default:
            break;
    }
    double* pSpread = Row(m_nSpreadRow);
    for (int i = 0; i < chunk.nPoints; ++i) pSpread[i] = *operand.pScalar;
    return pSpread;
}

void CParserProgram::RunExponential(const Instruction& instruction, const double* pArgument,
                                    double* pResult, int n) {
    const double dInner = instruction.pInner ? *instruction.pInner : 0.0;
    const double dScale = instruction.pScale ? *instruction.pScale : 0.0;
    const double dOffset = instruction.pOffset ? *instruction.pOffset : 0.0;
    // One loop for each form: what is done before, then what is done behind.
    const auto mapBehind = [&](auto before) {
        if (instruction.pOffset) {
            Map(pArgument, pResult, n,
                [=](double x) { return dScale * std::exp(before(x)) + dOffset; });
        } else if (instruction.pScale) {
            Map(pArgument, pResult, n, [=](double x) { return dScale * std::exp(before(x)); });
        } else {
            Map(pArgument, pResult, n, [=](double x) { return std::exp(before(x)); });
        }
    };
    const auto mapInner = [&](auto sign) {
        if (instruction.eInner == OPCODE_DIVIDE) {
            mapBehind([=](double x) { return sign(x) / dInner; });
        } else if (instruction.eInner == OPCODE_MULTIPLY) {
            mapBehind([=](double x) { return sign(x) * dInner; });
        } else {
            mapBehind(sign);
        }
    };
    if (instruction.bNegate) {
        mapInner([](double x) { return -x; });
    } else {
        mapInner([](double x) { return x; });
    }
}

void CParserProgram::RunFunction(const Chunk& chunk, const Instruction& instruction,
                                 double* pResult) {
    const double* pArgument = Array(chunk, instruction.left);
    const int n = chunk.nPoints;
    const CZDCParser& parser = chunk.parser;
    const auto timeAt = [&](int i) {
        return chunk.block.pTime ? chunk.block.pTime[chunk.nFirst + i] : parser.m_dTime;
    };
    const auto intervalAt = [&](int i) {
        const double dNext =
            chunk.block.pNextTime ? chunk.block.pNextTime[chunk.nFirst + i] : parser.m_dNextTime;
        return dNext - timeAt(i);
    };
    switch (instruction.eOpcode) {
        case OPCODE_NEGATE:
            return Map(pArgument, pResult, n, [](double x) { return -x; });
        case OPCODE_RECT:
            return Map(pArgument, pResult, n, [](double x) { return std::fabs(x); });
        case OPCODE_COS:
            return Map(pArgument, pResult, n, [](double x) { return Cosine(x); });
        case OPCODE_EXP:
            return RunExponential(instruction, pArgument, pResult, n);
        case OPCODE_LN:
            return Map(pArgument, pResult, n, [](double x) { return std::log(x); });
        case OPCODE_LOG:
            return Map(pArgument, pResult, n, [](double x) { return std::log10(x); });
        case OPCODE_SIN:
            return Map(pArgument, pResult, n, [](double x) { return Sine(x); });
        case OPCODE_SQRT:
            return Map(pArgument, pResult, n, [](double x) { return std::sqrt(x); });
        case OPCODE_INV:
            return Map(pArgument, pResult, n, [](double x) { return Inverse(x); });
        case OPCODE_RAMP:
            for (int i = 0; i < n; ++i) {
                pResult[i] = Ramp(pArgument[i], timeAt(i), parser.m_dMaxTime);
            }
            return;
        case OPCODE_INTG:
            for (int i = 0; i < n; ++i) {
                pResult[i] = Integrate(pArgument[i], intervalAt(i), *instruction.pState);
            }
            return;
        case OPCODE_DIFF:
            for (int i = 0; i < n; ++i) {
                pResult[i] = Differentiate(pArgument[i], intervalAt(i), *instruction.pState);
            }
            return;
        default:
            return Map(pArgument, pResult, n, [&](double x) {
                return parser.EvaluateFunction(instruction.eOpcode, x, *instruction.pState);
            });
    }
}

void CParserProgram::RunChunk(const Chunk& chunk) {
    const int n = chunk.nPoints;
    for (const Instruction& instruction : m_Instructions) {
        double* pResult =
            instruction.eResultPlace == PLACE_RESULT ? chunk.pResults : Row(instruction.nResultRow);
        if (instruction.eOpcode < OPCODE_MULTIPLY || instruction.eOpcode > OPCODE_SUBTRACT) {
            RunFunction(chunk, instruction, pResult);
            continue;
        }
        const bool bLeftScalar = instruction.left.ePlace == PLACE_SCALAR;
        const bool bRightScalar = instruction.right.ePlace == PLACE_SCALAR;
        const double* pLeft =
            bLeftScalar ? instruction.left.pScalar : Array(chunk, instruction.left);
        const double* pRight =
            bRightScalar ? instruction.right.pScalar : Array(chunk, instruction.right);
        const auto combine = [&](auto function) {
            Combine(pLeft, bLeftScalar, pRight, bRightScalar, pResult, n, function);
        };
        switch (instruction.eOpcode) {
            case OPCODE_MULTIPLY:
                combine([](double a, double b) { return a * b; });
                break;
            case OPCODE_DIVIDE:
                combine([](double a, double b) { return a / b; });
                break;
            case OPCODE_POWER:
                combine([](double a, double b) { return Power(a, b); });
                break;
            case OPCODE_ADD:
                combine([](double a, double b) { return a + b; });
                break;
            default:
                combine([](double a, double b) { return a - b; });
        }
    }
    if (m_Root.ePlace != PLACE_RESULT) {
        std::memcpy(chunk.pResults, Array(chunk, m_Root), sizeof(double) * n);
    }
}

int CParserProgram::RunBlock(const CZDCParser& parser, const ParserBlock& block, int nFirst,
                             int nPoints, double* pResults) {
    if (m_bParametersChanged) RunParameters(parser);
    for (int nDone = 0; nDone < nPoints; nDone += CHUNK) {
        const int nRest = nPoints - nDone;
        Chunk chunk{parser, block, pResults + nFirst + nDone, nFirst + nDone,
                    nRest < CHUNK ? nRest : CHUNK};
        for (std::size_t i = 0; i < m_States.size(); ++i) m_pSavedStates[i] = *m_States[i];
        RunChunk(chunk);
        if (!HasNonFinite(chunk.pResults, chunk.nPoints)) continue;
        // Stop before the bad point, with the history as it stood there.
        int nGood = 0;
        while (std::isfinite(chunk.pResults[nGood])) ++nGood;
        for (std::size_t i = 0; i < m_States.size(); ++i) *m_States[i] = m_pSavedStates[i];
        chunk.nPoints = nGood;
        RunChunk(chunk);
        return nDone + nGood;
    }
    return nPoints;
}
