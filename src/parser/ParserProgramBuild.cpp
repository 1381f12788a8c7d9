// Derives the program from the steps of one equation.
#include <algorithm>
#include <bit>
#include <cstdint>

#include "parser/ParserProgram.h"
#include "parser/ZDCParser.h"

// Numbers the distinct values of an equation, then writes the instructions that compute them. An
// equation has at most 255 characters and so fewer steps than that.
class CParserProgram::CBuilder {
  public:
    CBuilder(CParserProgram& program, CZDCParser& parser, int nVariable)
        : m_Program(program), m_Parser(parser), m_nVariable(nVariable) {
        const int nAssignment = parser.m_Variables[nVariable].nStep;
        m_nRoot = parser.m_Steps[nAssignment].nOperand2;
        m_nFirst = m_nRoot;
        while (HasOperand(Step(m_nFirst))) m_nFirst = Step(m_nFirst).nOperand1;
    }

    void Build() {
        m_nSteps = m_nRoot - m_nFirst + 1;
        if (m_nSteps > MAX_STEPS || !NumberValues()) return;
        FindUses();
        FuseTerms();
        FuseExponentials();
        PlaceMemory();
        m_Program.m_Copies.clear();
        m_Program.m_Copies.reserve(static_cast<std::size_t>(m_nSteps));
        m_Program.m_Operations.clear();
        m_Program.m_Operations.reserve(static_cast<std::size_t>(m_nInstructions) + 2);
        WriteCopies(true);
        WriteOperations(true);
        m_Program.m_nParameterCopies = m_Program.m_Copies.size();
        m_Program.m_nParameterOperations = m_Program.m_Operations.size();
        // The last input is at hand when the line begins.
        const std::size_t nInputs = m_Program.m_Inputs.size();
        m_pBefore = nInputs == 0 ? nullptr : m_Program.m_pMemory.get() + nInputs - 1;
        WriteCopies(false);
        WriteOperations(false);
        WriteInstructions();
        Finish();
    }

  private:
    static constexpr int MAX_STEPS = PARSER_TEXT_LIMIT;
    static constexpr unsigned TABLE_SIZE = 512;

    // What is known of a step, by its place in the equation.
    struct Value {
        short nSame;          // the first step of the same value
        short nLastUse;       // the last operation that reads that value
        short nUses;          // how many do
        short nRow;           // its row in a block, or the place of its input
        short nLevel;         // 0 for an operand, else one more than its operands have
        short nNext;          // the next operation of the level
        bool bParameter;      // it depends on parameters and numbers only
        bool bTerm;           // a sum that does the product and the power on its right as well
        bool bInTerm;         // one of these two
        bool bInExponential;  // done in the block by the operation that m_Fused tells
        short nFused;         // the place in m_Fused, -1 for none
    };

    // An exponential with the operations around it, in the order in which they are done.
    struct Fused {
        int nArgument;
        bool bNegate;
        int eInner;  // OPCODE_DIVIDE or OPCODE_MULTIPLY by the inner value, or 0
        int nInner;
        bool bScale;
        int nScale;
        bool bOffset;
        int nOffset;
    };

    static bool HasOperand(const ParserStep& step) {
        return step.eOpcode != OPCODE_VARIABLE && step.eOpcode != OPCODE_NUMBER;
    }
    static bool HasTwoOperands(const ParserStep& step) {
        return step.eOpcode >= OPCODE_MULTIPLY && step.eOpcode <= OPCODE_SUBTRACT;
    }
    static bool HasHistory(const ParserStep& step) {
        return step.eOpcode == OPCODE_INTG || step.eOpcode == OPCODE_DIFF;
    }
    // Its value follows what the parser is told of time and data, between any two points.
    static bool FollowsSettings(const ParserStep& step) {
        return step.eOpcode == OPCODE_RAMP || step.eOpcode == OPCODE_NORM ||
               step.eOpcode == OPCODE_NORMAX || step.eOpcode == OPCODE_NORMIN;
    }

    ParserStep& Step(int nStep) { return m_Parser.m_Steps[nStep]; }
    Value& At(int nStep) { return m_Values[nStep - m_nFirst]; }
    int Same(int nStep) { return At(nStep).nSame + m_nFirst; }
    bool IsInstruction(int nStep) {
        return HasOperand(Step(nStep)) && Step(nStep).eOpcode != OPCODE_PARENTHESES &&
               Same(nStep) == nStep;
    }

    // Gives every step the first step of the same value; false when the equation needs the walk.
    bool NumberValues() {
        for (short& n : m_Table) n = -1;
        m_Program.m_Inputs.clear();
        m_Program.m_States.clear();
        for (int i = m_nFirst; i <= m_nRoot; ++i) {
            ParserStep& step = Step(i);
            Value& value = At(i);
            value = {};
            value.nSame = static_cast<short>(i - m_nFirst);
            value.nFused = -1;
            if (step.eOpcode == OPCODE_VARIABLE) {
                if (step.nVariable >= m_Parser.FirstDependent()) return false;
                value.bParameter = step.nVariable >= m_Parser.m_nIndependent;
                ShareValue(i, step.eOpcode, step.nVariable, 0);
                if (!value.bParameter && Same(i) == i) {
                    value.nRow = static_cast<short>(m_Program.m_Inputs.size());
                    m_Program.m_Inputs.push_back(
                        {step.nVariable, &m_Parser.m_Variables[step.nVariable].dValue});
                }
            } else if (step.eOpcode == OPCODE_NUMBER) {
                value.bParameter = true;
                const auto uBits = std::bit_cast<std::uint64_t>(step.dValue);
                ShareValue(i, step.eOpcode, static_cast<std::uint32_t>(uBits),
                           static_cast<std::uint32_t>(uBits >> 32));
            } else if (step.eOpcode == OPCODE_PARENTHESES) {
                value = At(step.nOperand1);
            } else {
                NumberOperation(i, step, value);
            }
        }
        return true;
    }

    void NumberOperation(int nStep, const ParserStep& step, Value& value) {
        const bool bTwo = HasTwoOperands(step);
        const int nLeft = Same(step.nOperand1);
        const int nRight = bTwo ? Same(step.nOperand2) : nLeft;
        value.bParameter = At(nLeft).bParameter && At(nRight).bParameter && !HasHistory(step) &&
                           !FollowsSettings(step);
        if (HasHistory(step)) {
            m_Program.m_States.push_back(&Step(step.nOperand1).dState);
        } else {
            ShareValue(nStep, step.eOpcode, nLeft, nRight);
        }
        if (Same(nStep) == nStep) ++m_nInstructions;
    }

    // Looks an operation on given operands up among the earlier ones.
    void ShareValue(int nStep, int eOpcode, std::uint32_t uLeft, std::uint32_t uRight) {
        Key& key = m_Keys[nStep - m_nFirst];
        key = {uLeft, uRight, static_cast<std::uint32_t>(eOpcode)};
        std::uint32_t u = uLeft * 0x9E3779B1u ^ uRight * 0x85EBCA77u ^ key.uOpcode * 0xC2B2AE3Du;
        for (u ^= u >> 15;; ++u) {
            short& n = m_Table[u % TABLE_SIZE];
            if (n < 0) {
                n = static_cast<short>(nStep - m_nFirst);
                return;
            }
            if (m_Keys[n] == key) {
                At(nStep).nSame = n;
                return;
            }
        }
    }

    void FindUses() {
        for (int i = m_nFirst; i <= m_nRoot; ++i) {
            if (!IsInstruction(i)) continue;
            Use(Same(Step(i).nOperand1), i);
            if (HasTwoOperands(Step(i))) Use(Same(Step(i).nOperand2), i);
        }
    }
    void Use(int nStep, int nUser) {
        Value& value = At(nStep);
        value.nLastUse = static_cast<short>(nUser - m_nFirst);
        ++value.nUses;
    }

    // An operation on something variable that only one other reads, and that does no other's work.
    bool IsPassed(int nStep, int eOpcode) {
        return Step(nStep).eOpcode == eOpcode && At(nStep).nUses == 1 && !At(nStep).bParameter &&
               At(nStep).nFused < 0;
    }
    int Left(int nStep) { return Same(Step(nStep).nOperand1); }
    int Right(int nStep) { return Same(Step(nStep).nOperand2); }
    short LevelOf(int nStep) { return At(nStep).nLevel; }

    // Finds the terms of polynomials, sum + factor * base ^ exponent, and gives all operations
    // their level.
    void FuseTerms() {
        for (int i = m_nFirst; i <= m_nRoot; ++i) {
            if (!IsInstruction(i)) continue;
            Value& value = At(i);
            value.nLevel = LevelOf(Left(i));
            if (!HasTwoOperands(Step(i))) {
                ++value.nLevel;
                continue;
            }
            const int nRight = Right(i);
            if (Step(i).eOpcode == OPCODE_ADD && IsPassed(nRight, OPCODE_MULTIPLY) &&
                IsPassed(Right(nRight), OPCODE_POWER)) {
                const int nPower = Right(nRight);
                value.bTerm = true;
                At(nRight).bInTerm = true;
                At(nPower).bInTerm = true;
                value.nLevel = std::max({value.nLevel, LevelOf(Left(nRight)), LevelOf(Left(nPower)),
                                         LevelOf(Right(nPower))});
            } else {
                value.nLevel = std::max(value.nLevel, LevelOf(nRight));
            }
            ++value.nLevel;
        }
    }

    // Finds the exponentials of scaled arguments, with a scale and an offset behind them: in a
    // block their light operations cost nothing beside the heavy one.
    void FuseExponentials() {
        for (int i = m_nFirst; i <= m_nRoot; ++i) {
            if (!IsInstruction(i) || At(i).bParameter || Step(i).eOpcode != OPCODE_EXP) continue;
            Fused fused{};
            int nArgument = Left(i);
            const auto absorb = [&](int nStep) { At(nStep).bInExponential = true; };
            for (int eOpcode : {OPCODE_DIVIDE, OPCODE_MULTIPLY}) {
                if (!IsPassed(nArgument, eOpcode) || !At(Right(nArgument)).bParameter) continue;
                fused.eInner = eOpcode;
                fused.nInner = Right(nArgument);
                absorb(nArgument);
                nArgument = Left(nArgument);
                break;
            }
            if (IsPassed(nArgument, OPCODE_NEGATE)) {
                fused.bNegate = true;
                absorb(nArgument);
                nArgument = Left(nArgument);
            }
            fused.nArgument = nArgument;
            int nHead = i;
            if (const int nUser = UserWithParameter(nHead, OPCODE_MULTIPLY, fused.nScale)) {
                absorb(nHead);
                nHead = nUser;
                fused.bScale = true;
                if (const int nSum = UserWithParameter(nHead, OPCODE_ADD, fused.nOffset)) {
                    absorb(nHead);
                    nHead = nSum;
                    fused.bOffset = true;
                }
            }
            Value& argument = At(nArgument);
            argument.nLastUse = std::max(argument.nLastUse, static_cast<short>(nHead - m_nFirst));
            At(nHead).nFused = m_nFused;
            m_Fused[m_nFused++] = fused;
        }
    }

    // The only reader of a step, if it has this opcode and a parameter's value on its other side;
    // else 0.
    int UserWithParameter(int nStep, int eOpcode, int& nOther) {
        if (At(nStep).nUses != 1) return 0;
        const int nUser = At(nStep).nLastUse + m_nFirst;
        if (Step(nUser).eOpcode != eOpcode) return 0;
        nOther = Left(nUser) == nStep ? Right(nUser) : Left(nUser);
        return At(nOther).bParameter ? nUser : 0;
    }

    // One piece of memory: the inputs, the copy of the history, the rows.
    void PlaceMemory() {
        const std::size_t nInputs = m_Program.m_Inputs.size();
        const std::size_t nStates = m_Program.m_States.size();
        const std::size_t nRows = CountRows() + 1;
        m_Program.m_pMemory =
            std::make_unique_for_overwrite<double[]>(nInputs + nStates + nRows * CHUNK);
        m_Program.m_pSavedStates = m_Program.m_pMemory.get() + nInputs;
        m_Program.m_pRows = m_Program.m_pSavedStates + nStates;
        m_Program.m_nSpreadRow = static_cast<int>(nRows) - 1;
    }

    // The value of a step outside a block.
    const double* ValueOf(int nStep) {
        const int nSame = Same(nStep);
        ParserStep& step = Step(nSame);
        if (step.eOpcode != OPCODE_VARIABLE) return &step.dValue;
        if (At(nSame).bParameter) return &m_Parser.m_Variables[step.nVariable].dValue;
        return m_Program.m_pMemory.get() + At(nSame).nRow;
    }

    Operand OperandOf(int nStep) {
        const int nSame = Same(nStep);
        Operand operand;
        operand.pScalar = ValueOf(nStep);
        if (At(nSame).bParameter) return operand;
        if (Step(nSame).eOpcode == OPCODE_VARIABLE) {
            operand.ePlace = PLACE_INPUT;
            operand.nIndex = static_cast<short>(Step(nSame).nVariable);
        } else {
            operand.ePlace = PLACE_ROW;
            operand.nIndex = At(nSame).nRow;
        }
        return operand;
    }

    void WriteCopies(bool bParameter) {
        for (int i = m_nFirst; i <= m_nRoot; ++i) {
            if (At(i).bParameter != bParameter || IsInstruction(i)) continue;
            const double* pFrom = ValueOf(i);
            if (pFrom != &Step(i).dValue) m_Program.m_Copies.push_back({pFrom, &Step(i).dValue});
        }
    }

    // Writes the line of operations of one of the two halves, level after level and in each level
    // equal opcodes together: the processor works on the independent ones at the same time.
    void WriteOperations(bool bParameter) {
        short nLevels = 1;
        for (int i = m_nRoot; i >= m_nFirst; --i) {
            Value& value = At(i);
            if (value.bParameter != bParameter || value.bInTerm || !IsInstruction(i)) continue;
            for (; nLevels <= value.nLevel; ++nLevels) m_Levels[nLevels] = -1;
            value.nNext = m_Levels[value.nLevel];
            m_Levels[value.nLevel] = static_cast<short>(i - m_nFirst);
        }
        for (short nLevel = 1; nLevel < nLevels; ++nLevel) {
            short& nHead = m_Levels[nLevel];
            while (nHead >= 0) WriteEqual(nHead, HandlerOpcode(nHead + m_nFirst));
        }
        m_Program.m_Operations.push_back(
            {HandlerOf(HANDLER_END, false, false), nullptr, nullptr, nullptr, nullptr});
    }
    int HandlerOpcode(int nStep) { return At(nStep).bTerm ? HANDLER_TERM : Step(nStep).eOpcode; }

    // Takes the operations of an opcode out of a level's list.
    void WriteEqual(short& nHead, int eOpcode) {
        for (short* pLink = &nHead; *pLink >= 0;) {
            const int nStep = *pLink + m_nFirst;
            if (HandlerOpcode(nStep) != eOpcode) {
                pLink = &At(nStep).nNext;
                continue;
            }
            if (eOpcode == HANDLER_TERM) {
                const bool bSumBefore = IsBefore(Left(nStep));
                const Handler pHandler = HandlerOf(HANDLER_TERM, bSumBefore, false);
                WriteOperation(Right(Right(nStep)), pHandler);
                WriteOperation(Right(nStep), pHandler);
                WriteOperation(nStep, pHandler);
            } else {
                WriteOperation(nStep, HandlerOf(eOpcode, IsBefore(Step(nStep).nOperand1),
                                                HasTwoOperands(Step(nStep)) &&
                                                    IsBefore(Step(nStep).nOperand2)));
            }
            *pLink = At(nStep).nNext;
        }
    }
    bool IsBefore(int nStep) { return ValueOf(nStep) == m_pBefore; }

    void WriteOperation(int nStep, Handler pHandler) {
        ParserStep& step = Step(nStep);
        m_Program.m_Operations.push_back({pHandler, &step.dValue, ValueOf(step.nOperand1),
                                          HasTwoOperands(step) ? ValueOf(step.nOperand2) : nullptr,
                                          &Step(step.nOperand1).dState});
        m_pBefore = &step.dValue;
    }

    void WriteInstructions() {
        m_Program.m_Instructions.clear();
        m_Program.m_Instructions.reserve(static_cast<std::size_t>(m_nInstructions));
        for (int i = m_nFirst; i <= m_nRoot; ++i) {
            if (At(i).bParameter || At(i).bInExponential || !IsInstruction(i)) continue;
            const ParserStep& step = Step(i);
            Instruction& instruction = m_Program.m_Instructions.emplace_back();
            instruction.eOpcode = static_cast<unsigned char>(step.eOpcode);
            instruction.left = OperandOf(step.nOperand1);
            if (HasTwoOperands(step)) instruction.right = OperandOf(step.nOperand2);
            instruction.pState = &Step(step.nOperand1).dState;
            instruction.eResultPlace = PLACE_ROW;
            instruction.nResultRow = At(i).nRow;
            if (At(i).nFused >= 0) WriteExponential(instruction, m_Fused[At(i).nFused]);
        }
    }

    void WriteExponential(Instruction& instruction, const Fused& fused) {
        instruction.eOpcode = OPCODE_EXP;
        instruction.left = OperandOf(fused.nArgument);
        instruction.bNegate = fused.bNegate;
        instruction.eInner = static_cast<unsigned char>(fused.eInner);
        if (fused.eInner != 0) instruction.pInner = ValueOf(fused.nInner);
        if (fused.bScale) instruction.pScale = ValueOf(fused.nScale);
        if (fused.bOffset) instruction.pOffset = ValueOf(fused.nOffset);
    }

    // Gives every operation a row. A result gets its row before the operands give theirs up, so
    // that no loop reads what it writes.
    std::size_t CountRows() {
        short nRows = 0;
        short nFree = 0;
        const auto release = [&](int nOperand, int nStep) {
            const Value& value = At(nOperand);
            if (!value.bParameter && value.nLevel > 0 && value.nLastUse == nStep - m_nFirst) {
                m_Free[nFree++] = value.nRow;
            }
        };
        for (int i = m_nFirst; i <= m_nRoot; ++i) {
            if (At(i).bParameter || At(i).bInExponential || !IsInstruction(i)) continue;
            At(i).nRow = nFree > 0 ? m_Free[--nFree] : nRows++;
            if (At(i).nFused >= 0) {
                release(m_Fused[At(i).nFused].nArgument, i);
                continue;
            }
            release(Left(i), i);
            if (HasTwoOperands(Step(i)) && Right(i) != Left(i)) release(Right(i), i);
        }
        return static_cast<std::size_t>(nRows);
    }

    void Finish() {
        m_Program.m_Root = OperandOf(m_nRoot);
        m_Program.m_bRootIsOperation = m_Program.m_Root.ePlace == PLACE_ROW;
        // The root's instruction is the last one, unless the root is a variable or a parameter's
        // value.
        if (m_Program.m_Root.ePlace == PLACE_ROW) {
            m_Program.m_Root.ePlace = PLACE_RESULT;
            m_Program.m_Instructions.back().eResultPlace = PLACE_RESULT;
        }
        ParserVariable& variable = m_Parser.m_Variables[m_nVariable];
        m_Program.m_pVariable = &variable.dValue;
        m_Program.m_pAssigned = &Step(variable.nStep).dValue;
        m_Program.m_bParametersChanged = true;
        m_Program.m_bCopiesDue = false;
        m_Program.m_nVariable = m_nVariable;
    }

    struct Key {
        std::uint32_t uLeft;
        std::uint32_t uRight;
        std::uint32_t uOpcode;
        bool operator==(const Key&) const = default;
    };

    CParserProgram& m_Program;
    CZDCParser& m_Parser;
    int m_nVariable;
    int m_nRoot;
    int m_nFirst;
    int m_nSteps = 0;
    int m_nInstructions = 0;
    Value m_Values[MAX_STEPS];
    Key m_Keys[MAX_STEPS];
    short m_Table[TABLE_SIZE];
    short m_Levels[MAX_STEPS + 1];
    Fused m_Fused[MAX_STEPS / 4];  // an exponential has at least a name and two parentheses
    short m_nFused = 0;
    const double* m_pBefore = nullptr;  // the value that is at hand behind the last operation
    short m_Free[MAX_STEPS];
};

void CParserProgram::Build(CZDCParser& parser, int nVariable) {
    Clear();
    CBuilder(*this, parser, nVariable).Build();
}
