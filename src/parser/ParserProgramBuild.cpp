// Derives the program from the steps of one equation.
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

    bool Build() {
        const int nSteps = m_nRoot - m_nFirst + 1;
        if (nSteps > MAX_STEPS || !NumberValues()) return false;
        FindLastUses();
        m_Program.m_Instructions.clear();
        m_Program.m_Copies.clear();
        m_Program.m_Inputs.clear();
        m_Program.m_States.clear();
        m_Program.m_Instructions.reserve(m_nInstructions);
        m_Program.m_Copies.reserve(nSteps);
        Write(true);
        m_Program.m_nParameterInstructions = m_Program.m_Instructions.size();
        m_Program.m_nParameterCopies = m_Program.m_Copies.size();
        Write(false);
        Finish();
        return true;
    }

  private:
    static constexpr int MAX_STEPS = PARSER_TEXT_LIMIT;
    static constexpr unsigned TABLE_SIZE = 512;

    // What is known of a step, by its place in the equation.
    struct Value {
        short nSame;      // the first step of the same value
        short nLastUse;   // the last step that reads that value
        short nRow;       // its row in a block
        bool bParameter;  // it depends on parameters and numbers only
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
        for (int i = m_nFirst; i <= m_nRoot; ++i) {
            const ParserStep& step = Step(i);
            Value& value = At(i);
            value.nSame = static_cast<short>(i - m_nFirst);
            if (step.eOpcode == OPCODE_VARIABLE) {
                if (step.nVariable >= m_Parser.FirstDependent()) return false;
                value.bParameter = step.nVariable >= m_Parser.m_nIndependent;
                ShareValue(i, step.eOpcode, step.nVariable, 0);
            } else if (step.eOpcode == OPCODE_NUMBER) {
                value.bParameter = true;
                const auto uBits = std::bit_cast<std::uint64_t>(step.dValue);
                ShareValue(i, step.eOpcode, static_cast<std::uint32_t>(uBits),
                           static_cast<std::uint32_t>(uBits >> 32));
            } else if (step.eOpcode == OPCODE_PARENTHESES) {
                value = At(step.nOperand1);
            } else {
                const bool bTwo = HasTwoOperands(step);
                const int nLeft = Same(step.nOperand1);
                const int nRight = bTwo ? Same(step.nOperand2) : 0;
                value.bParameter = At(nLeft).bParameter && (!bTwo || At(nRight).bParameter) &&
                                   !HasHistory(step) && !FollowsSettings(step);
                if (!HasHistory(step)) ShareValue(i, step.eOpcode, nLeft, nRight);
                if (Same(i) == i) ++m_nInstructions;
            }
        }
        return true;
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

    void FindLastUses() {
        for (int i = m_nFirst; i <= m_nRoot; ++i) {
            if (!IsInstruction(i)) continue;
            At(i).nLastUse = -1;
            const short nUse = static_cast<short>(i - m_nFirst);
            At(Same(Step(i).nOperand1)).nLastUse = nUse;
            if (HasTwoOperands(Step(i))) At(Same(Step(i).nOperand2)).nLastUse = nUse;
        }
    }

    Operand OperandOf(int nStep) {
        const int nSame = Same(nStep);
        ParserStep& step = Step(nSame);
        Operand operand;
        operand.pScalar = step.eOpcode == OPCODE_VARIABLE
                              ? &m_Parser.m_Variables[step.nVariable].dValue
                              : &step.dValue;
        if (At(nSame).bParameter) return operand;
        if (step.eOpcode == OPCODE_VARIABLE) {
            operand.ePlace = PLACE_INPUT;
            operand.nIndex = static_cast<short>(step.nVariable);
        } else {
            operand.ePlace = PLACE_ROW;
            operand.nIndex = At(nSame).nRow;
        }
        return operand;
    }

    // Writes the instructions and copies of one of the two halves, in the order of the steps.
    void Write(bool bParameter) {
        for (int i = m_nFirst; i <= m_nRoot; ++i) {
            if (At(i).bParameter != bParameter) continue;
            ParserStep& step = Step(i);
            if (!IsInstruction(i)) {
                const double* pFrom = OperandOf(i).pScalar;
                if (pFrom != &step.dValue) m_Program.m_Copies.push_back({pFrom, &step.dValue});
                if (step.eOpcode == OPCODE_VARIABLE && Same(i) == i && !bParameter) {
                    m_Program.m_Inputs.push_back(step.nVariable);
                }
                continue;
            }
            Instruction& instruction = m_Program.m_Instructions.emplace_back();
            instruction.eOpcode = static_cast<unsigned char>(step.eOpcode);
            instruction.left = OperandOf(step.nOperand1);
            if (HasTwoOperands(step)) instruction.right = OperandOf(step.nOperand2);
            instruction.pResult = &step.dValue;
            instruction.pState = &Step(step.nOperand1).dState;
            if (HasHistory(step)) m_Program.m_States.push_back(instruction.pState);
            if (!bParameter) AssignRow(i, instruction);
        }
    }

    // The result gets a row before the operands give theirs up: a loop never reads what it writes.
    void AssignRow(int nStep, Instruction& instruction) {
        const short nRow = m_nFree > 0 ? m_Free[--m_nFree] : m_nRows++;
        At(nStep).nRow = nRow;
        instruction.nResultRow = nRow;
        const short nHere = static_cast<short>(nStep - m_nFirst);
        const int nLeft = Same(Step(nStep).nOperand1);
        ReleaseRow(instruction.left, At(nLeft), nHere);
        if (!HasTwoOperands(Step(nStep))) return;
        const int nRight = Same(Step(nStep).nOperand2);
        if (nRight != nLeft) ReleaseRow(instruction.right, At(nRight), nHere);
    }
    void ReleaseRow(const Operand& operand, const Value& value, short nHere) {
        if (operand.ePlace == PLACE_ROW && value.nLastUse == nHere) {
            m_Free[m_nFree++] = operand.nIndex;
        }
    }

    void Finish() {
        m_Program.m_Root = OperandOf(m_nRoot);
        // The root's instruction is the last one, unless the root is a variable or a parameter's
        // value.
        if (m_Program.m_Root.ePlace == PLACE_ROW) {
            m_Program.m_Root.ePlace = PLACE_RESULT;
            m_Program.m_Instructions.back().eResultPlace = PLACE_RESULT;
        }
        m_Program.m_nSpreadRow = m_nRows;
        m_Program.m_pRows =
            std::make_unique_for_overwrite<double[]>(static_cast<std::size_t>(m_nRows + 1) * CHUNK);
        m_Program.m_SavedStates.resize(m_Program.m_States.size());
        ParserVariable& variable = m_Parser.m_Variables[m_nVariable];
        m_Program.m_pVariable = &variable.dValue;
        m_Program.m_pAssigned = &Step(variable.nStep).dValue;
        m_Program.m_bParametersChanged = true;
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
    int m_nInstructions = 0;
    short m_nRows = 0;
    short m_nFree = 0;
    Value m_Values[MAX_STEPS];
    Key m_Keys[MAX_STEPS];
    short m_Table[TABLE_SIZE];
    short m_Free[MAX_STEPS];
};

void CParserProgram::Build(CZDCParser& parser, int nVariable) {
    Clear();
    CBuilder(*this, parser, nVariable).Build();
}
