// The two evaluators of the benchmark behind the same four operations, each with its variables set
// up once.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "Equations.h"
#include "parser/Parser.h"

namespace mu {
class Parser;
}

// muParser. Function names are folded to lower case, which is what it knows.
class MuParserCompetitor {
  public:
    explicit MuParserCompetitor(const Equation& equation);
    ~MuParserCompetitor();
    void EvaluatePoints(const double* x, double* y, int n);
    void EvaluateBulk(const double* x, double* y, int n);
    // From nothing to the first value, with all variables defined.
    static double Compile(const Equation& equation);

  private:
    struct State;
    std::unique_ptr<State> m_pState;
};

class OurCompetitor {
  public:
    explicit OurCompetitor(const Equation& equation);
    void EvaluatePoints(const double* x, double* y, int n);
    void EvaluateBlock(const double* x, double* y, int n);
    static double Compile(const Equation& equation);

  private:
    CParser m_Parser;
};
