// The form of one compiled equation that evaluation runs on: the steps in a straight line, without
// the recursion, with every distinct operation once, with what depends on parameters and numbers
// only computed once per change of a parameter, and with equal operations side by side. It is
// derived from the steps after a compilation and changes no bit of a result: each operation is the
// one that the step walk does, on the same operands.
//
// An equation has a program when it names independent variables and parameters only. The program
// looks into the parser's steps and variables and must be cleared when these move. It leaves the
// value of every step as the walk does, once BringUpToDate has been called. It allocates in Build
// and nowhere else.
#pragma once

#include <cstddef>
#include <memory>
#include <vector>

class CZDCParser;
struct ParserBlock;

class CParserProgram {
  public:
    // Derives the program of a dependent variable's equation, or leaves none when it needs the
    // walk.
    void Build(CZDCParser& parser, int nVariable);
    void Clear();

    // The variable that the program evaluates, -1 without a program.
    int DependentVariable() const { return m_nVariable; }
    void ParametersChanged() { m_bParametersChanged = true; }
    // Gives the steps that only repeat another value theirs.
    void BringUpToDate() const;

    // Evaluates at the present values of the variables.
    double Run(const CZDCParser& parser);
    // Whether the block has an array for every independent variable that the equation names.
    bool HasInputs(const ParserBlock& block) const;
    // Evaluates points nFirst to nFirst + nPoints - 1 into pResults, at the same indices, and stops
    // before the first point whose result is not finite. Returns the number of points done; the
    // history of INTG and DIFF has gone over just these.
    int RunBlock(const CZDCParser& parser, const ParserBlock& block, int nFirst, int nPoints,
                 double* pResults);

    // The points that one pass of a block takes.
    static constexpr int CHUNK = 256;

  private:
    class CBuilder;

    // An operation at one point. Its handler goes on with the operation behind it, and so to the
    // end of the line. It mostly reads the value that the one before it computed, which is handed
    // on beside memory: a trip through memory takes longer than the operation.
    struct Operation;
    using Handler = double (*)(const Operation* p, double dBefore, const CZDCParser& parser);
    struct Operation {
        Handler pHandler;
        double* pResult;  // the step's value
        const double* pLeft;
        const double* pRight;
        double* pState;  // the history slot of the step's argument
    };
    struct Handlers;
    // The handler of an opcode. An operand that is the value before needs no reading.
    static Handler HandlerOf(int eOpcode, bool bLeftBefore, bool bRightBefore);
    // The opcodes of two handlers beside those of the steps: a term of a polynomial (a power, the
    // product on it and the sum on that, three operations) and the end of the line.
    static constexpr int HANDLER_TERM = 36;
    static constexpr int HANDLER_END = 37;

    // What an operand or a result is during a block.
    enum Place : unsigned char {
        PLACE_SCALAR,  // the same for all points
        PLACE_INPUT,   // an independent variable's array
        PLACE_ROW,     // a row of CHUNK values in the memory
        PLACE_RESULT,  // the caller's results
    };
    struct Operand {
        const double* pScalar = nullptr;  // its value outside a block
        Place ePlace = PLACE_SCALAR;
        short nIndex = 0;  // of the input or the row
    };
    // An operation at all points of a chunk. An exponential does the light operations around it as
    // well: offset + scale * exp((-)left (*|/) inner).
    struct Instruction {
        Operand left;
        Operand right;
        double* pState = nullptr;
        const double* pInner = nullptr;
        const double* pScale = nullptr;
        const double* pOffset = nullptr;
        Place eResultPlace = PLACE_ROW;
        unsigned char eOpcode = 0;
        unsigned char eInner = 0;
        bool bNegate = false;
        short nResultRow = 0;
    };
    // A step that has the value of a variable or of an equal step.
    struct Copy {
        const double* pFrom;
        double* pTo;
    };
    // An independent variable that the equation names.
    struct Input {
        int nVariable;
        const double* pValue;
    };
    // One pass of a block.
    struct Chunk {
        const CZDCParser& parser;
        const ParserBlock& block;
        double* pResults;  // of its first point
        int nFirst;
        int nPoints;
    };

    void RunParameters(const CZDCParser& parser);
    void RunChunk(const Chunk& chunk);
    static void RunExponential(const Instruction& instruction, const double* pArgument,
                               double* pResult, int n);
    void RunFunction(const Chunk& chunk, const Instruction& instruction, double* pResult);
    double* Row(int nRow) { return m_pRows + static_cast<std::size_t>(nRow) * CHUNK; }
    // The array of an operand; one value is spread over the row kept for that.
    const double* Array(const Chunk& chunk, const Operand& operand);

    int m_nVariable = -1;
    bool m_bParametersChanged = true;
    mutable bool m_bCopiesDue = false;
    // Operations and copies: first those that depend on parameters and numbers only, up to the
    // counts. Both lines of operations have an end.
    std::vector<Operation> m_Operations;
    std::vector<Copy> m_Copies;
    std::size_t m_nParameterOperations = 0;
    std::size_t m_nParameterCopies = 0;
    std::vector<Instruction> m_Instructions;
    Operand m_Root;
    bool m_bRootIsOperation = false;  // and so the last one of its line
    double* m_pAssigned = nullptr;    // the value of the assignment step
    double* m_pVariable = nullptr;    // the value of the dependent variable
    std::vector<Input> m_Inputs;
    std::vector<double*> m_States;  // the history slots in use
    // The values of the inputs, a copy of the history, and the rows.
    std::unique_ptr<double[]> m_pMemory;
    double* m_pSavedStates = nullptr;
    double* m_pRows = nullptr;
    int m_nSpreadRow = 0;
};
