// The form of one compiled equation that evaluation runs on: the steps in a straight line, without
// the recursion, with every distinct operation once and with what depends on parameters and numbers
// only computed once per change of a parameter. It is derived from the steps after a compilation
// and changes no bit of a result: each operation is the one that the step walk does, on the same
// operands.
//
// An equation has a program when it names independent variables and parameters only. The program
// looks into the parser's steps and variables and writes the value of every step, as the walk does;
// it must be cleared when these move. It allocates in Build and nowhere else.
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
    void Clear() { m_nVariable = -1; }

    // The variable that the program evaluates, -1 without a program.
    int DependentVariable() const { return m_nVariable; }
    void ParametersChanged() { m_bParametersChanged = true; }

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

    // What an operand or a result is during a block.
    enum Place : unsigned char {
        PLACE_SCALAR,  // the same for all points
        PLACE_INPUT,   // an independent variable's array
        PLACE_ROW,     // a row of CHUNK values in the scratch memory
        PLACE_RESULT,  // the caller's results
    };
    struct Operand {
        const double* pScalar = nullptr;  // its value outside a block
        Place ePlace = PLACE_SCALAR;
        short nIndex = 0;  // of the input or the row
    };
    struct Instruction {
        Operand left;
        Operand right;
        double* pResult = nullptr;  // the step's value
        double* pState = nullptr;   // the history slot of the step's argument
        Place eResultPlace = PLACE_ROW;
        unsigned char eOpcode = 0;
        short nResultRow = 0;
    };
    // A step that has the value of a variable or of an equal step.
    struct Copy {
        const double* pFrom;
        double* pTo;
    };
    // One pass of a block.
    struct Chunk {
        const CZDCParser& parser;
        const ParserBlock& block;
        double* pResults;  // of its first point
        int nFirst;
        int nPoints;
    };

    void RunInstructions(const CZDCParser& parser, std::size_t nFirst, std::size_t nEnd);
    void RunParameters(const CZDCParser& parser);
    void RunChunk(const Chunk& chunk);
    void RunFunction(const Chunk& chunk, const Instruction& instruction, double* pResult);
    double* Row(int nRow) { return m_pRows.get() + static_cast<std::size_t>(nRow) * CHUNK; }
    // The array of an operand; one value is spread over the row kept for that.
    const double* Array(const Chunk& chunk, const Operand& operand);

    int m_nVariable = -1;
    bool m_bParametersChanged = true;
    // Instructions and copies: first those that depend on parameters and numbers only, up to the
    // counts.
    std::vector<Instruction> m_Instructions;
    std::size_t m_nParameterInstructions = 0;
    std::vector<Copy> m_Copies;
    std::size_t m_nParameterCopies = 0;
    Operand m_Root;
    double* m_pAssigned = nullptr;  // the value of the assignment step
    double* m_pVariable = nullptr;  // the value of the dependent variable
    std::vector<int> m_Inputs;      // the independent variables that the equation names
    std::vector<double*> m_States;  // the history slots in use
    std::vector<double> m_SavedStates;
    std::unique_ptr<double[]> m_pRows;
    int m_nSpreadRow = 0;
};
