// An evaluator of its own for the tests: it reads an equation character by character and computes
// while it reads, without tokens, steps or tables of the parser. It takes right sides that compile.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

class ReferenceEvaluator {
  public:
    explicit ReferenceEvaluator(std::string strRightSide) : m_strText(std::move(strRightSide)) {}

    std::map<std::string, double, std::less<>> variables;
    double dTime = 0.0;
    double dNextTime = 0.0;
    double dMaxTime = 0.0;
    double dRange = 0.0;
    double dMinimum = 0.0;
    double dMaximum = 0.0;

    // The value at the present variables; the history of INTG and DIFF goes on from call to call.
    double Evaluate();

  private:
    double Sum();
    double Product();
    double Signed();
    double Power();
    double Call();
    double Primary();
    double Atom();
    double Apply(std::string_view function, double x, double& h);

    char Peek();
    bool Take(char c);
    bool TakeFunction(std::string_view& function);

    std::string m_strText;
    std::size_t m_nPosition = 0;
    std::map<std::size_t, double> m_History;  // by the place of the keyword
};
