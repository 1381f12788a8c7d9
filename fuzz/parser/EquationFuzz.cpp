#include "EquationFuzz.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "ParserInspector.h"
#include "parser/CustomFunction.h"
#include "parser/NameScan.h"
#include "parser/ParserErrors.h"
#include "text/FormatExpander.h"

namespace {

void Require(bool bHolds, const char* pszWhat) {
    if (bHolds) return;
    std::fprintf(stderr, "violated: %s\n", pszWhat);
    std::abort();
}

bool SameBits(double a, double b) {
    return std::memcmp(&a, &b, sizeof a) == 0 || (std::isnan(a) && std::isnan(b));
}

// The text in a buffer of just its size, so that a reader beyond it is caught. Terminated when
// asked.
std::vector<char> Exact(const std::string& strText, bool bTerminated) {
    std::vector<char> buffer(strText.begin(), strText.end());
    if (bTerminated) buffer.push_back('\0');
    return buffer;
}

void Scan(const std::string& strText) {
    std::vector<char> buffer = Exact(strText, false);
    CZDCParser scanner(0, 0, 0, 0);
    scanner.SetText(buffer.data(), buffer.size());
    for (int nTokens = 0; scanner.GetError() == 0; ++nTokens) {
        scanner.NextToken();
        if (scanner.GetTokenKind() == TOKEN_END) break;
        Require(nTokens <= PARSER_TEXT_LIMIT, "a token takes a character");
    }
    for (int nSize : {1, 2, 17, 260}) {
        std::vector<char> word(static_cast<std::size_t>(nSize));
        scanner.GetBadWord(word.data(), nSize);
        Require(strnlen(word.data(), word.size()) < word.size(), "a bad word is terminated");
    }
    Require(ParserErrorText(scanner.GetError()) != nullptr, "an error has a text");
}

class Silent final : public CustomFunctionMessages {
  public:
    void ShowString(int) override { ++m_nShown; }
    void ShowError(const char* pszText) override {
        Require(pszText[0] != '\0', "a message says something");
        ++m_nShown;
    }
    int m_nShown = 0;
};

void Analyze(const std::string& strText) {
    std::vector<char> buffer = Exact(strText, true);
    std::vector<std::string> names(NAME_TABLE_SIZE);
    int nNames = 0;
    const int nCollected = CollectVariableNames(buffer.data(), names.data(), &nNames);
    Require(nNames <= NAME_TABLE_SIZE, "the table of names is large enough");

    std::vector<char> other = Exact(strText, true);
    std::vector<char[NAME_SLOT_SIZE]> slots(NAME_TABLE_SIZE);
    int nSlots = 0;
    Require(CollectExpressionNames(other.data(), slots.data(), &nSlots) == nCollected,
            "both collectors see the same faults");

    std::vector<char> third = Exact(strText, true);
    int independent[6], parameters[24], dependent[2];
    int nIndependent = 0, nParameters = 0, nDependent = 0;
    AnalyzeCustomFunction(third.data(), independent, &nIndependent, parameters, &nParameters,
                          dependent, &nDependent);
    Require(nIndependent <= 6 && nParameters <= 24 && nDependent <= 2, "the lists are long enough");

    const std::vector<char> box = Exact(strText, true);
    Silent shown, hidden;
    CustomFunction first, second;
    const CustomFunctionFault eFault = CheckCustomFunction(box.data(), true, shown, first);
    Require(CheckCustomFunction(box.data(), false, hidden, second) == eFault,
            "a silent check takes the same steps");
    Require(shown.m_nShown == (eFault == CUSTOM_FUNCTION_GOOD ? 0 : 1), "one fault, one message");
    Require(hidden.m_nShown == 0, "a silent check shows nothing");

    const std::string strExpanded = ExpandWithoutArguments(strText);
    Require(strExpanded.size() <= strText.size(), "an expansion adds nothing");
}

void Evaluate(const std::string& strText, unsigned uChoice) {
    Names names = {{"X1", "X2"}, {"P1", "P2"}, {"Y1"}};
    if (uChoice & 1) names.dependent.push_back("Y2");
    const std::size_t nBreak = strText.find('\n');
    std::vector<std::string> equations = {strText.substr(0, nBreak)};
    if (nBreak != std::string::npos) equations.push_back(strText.substr(nBreak + 1));

    auto points = MakeParser(equations, names);
    auto walk = MakeParser(equations, names);
    auto block = MakeParser(equations, names);
    const int nCompiled = points->Compile();
    walk->Compile();
    block->Compile();
    Require(walk->GetError() == points->GetError(), "a compilation can be repeated");
    Require(nCompiled == (points->GetError() == 0 ? 1 : 0), "a failure has an error");
    if (!nCompiled) return;
    ParserInspector::DropProgram(*walk);

    constexpr int nPoints = 300;
    std::vector<double> x1(nPoints), x2(nPoints), results(nPoints);
    for (int i = 0; i < nPoints; ++i) {
        x1[i] = (static_cast<int>(uChoice) - i) * 0.125;
        x2[i] = i % 7;
    }
    for (CZDCParser* pParser : {points.get(), walk.get(), block.get()}) {
        pParser->SetNextTime(uChoice & 2 ? 0.5 : 0.0);
        pParser->SetMaxTime(uChoice & 4 ? 3.0 : 0.0);
        pParser->SetMaximum(uChoice & 8 ? 3.0 : 0.0);
        for (int i = 0; i < 2; ++i) pParser->SetParameterValue(i, 1.5 + i);
    }
    const double* inputs[] = {x1.data(), x2.data()};
    ParserBlock call;
    call.nPoints = nPoints;
    call.ppIndependent = inputs;
    const int nBlock = block->EvaluateBlock("Y1", call, results.data());
    int nAll = 1;
    for (int i = 0; i < nPoints; ++i) {
        double dPoint = 0.0, dWalk = 0.0;
        for (CZDCParser* pParser : {points.get(), walk.get()}) {
            pParser->SetIndependentValue(0, x1[i]);
            pParser->SetIndependentValue(1, x2[i]);
        }
        const int nPoint = points->Evaluate("Y1", &dPoint);
        Require(walk->Evaluate("Y1", &dWalk) == nPoint, "program and walk agree on a failure");
        Require(SameBits(dPoint, dWalk), "program and walk give the same bits");
        Require(SameBits(dPoint, results[i]), "block and points give the same bits");
        if (!nPoint) nAll = 0;
    }
    Require(nBlock == nAll, "block and points agree on a failure");
    Require(block->GetError() == points->GetError(), "block and points leave the same error");
    for (int i = 0; i < static_cast<int>(points->GetSteps().size()); ++i) points->GetStepValue(i);
}

}  // namespace

void FuzzEquation(const std::uint8_t* pData, std::size_t nSize) {
    if (nSize == 0) return;
    const std::string strText(reinterpret_cast<const char*>(pData) + 1, nSize - 1);
    Scan(strText);
    Analyze(strText);
    Evaluate(strText, pData[0]);
    // Most texts get further as the right side of an equation.
    Evaluate("Y1=" + strText, pData[0]);
    SetBadWord("");
}
