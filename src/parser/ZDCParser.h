// CZDCParser turns the text of equations into a flat list of evaluation steps over named
// double-precision variables, and evaluates them. It is the only place that knows the equation
// syntax.
//
// Order of calls: construct, name all variables (independent, parameters, dependent: the table
// keeps the order of the calls), SetEquation for every slot, Compile; to evaluate, the setters,
// ResetHistory, the values, Evaluate. No text handed in is kept, none is read beyond its terminator
// or the limit that the operation states, and it is never changed but by SetText. Nothing throws: a
// fault is a number in GetError (ParserError), and only the start of a compilation clears it. Texts
// are single bytes; bytes above 127 are neither letters nor digits. Not for use by several threads
// at once.
//
// The tokeniser (NextToken) also serves on its own to scan a text for names; see NameScan.h.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "parser/ParserProgram.h"
#include "parser/ParserTypes.h"

class CZDCParser {
  public:
    CZDCParser(int nIndependent, int nDependent, int nParameters, int nEquations);
    virtual ~CZDCParser() = default;
    CZDCParser(const CZDCParser&) = delete;
    CZDCParser& operator=(const CZDCParser&) = delete;

    void SetTime(double dTime) { m_dTime = dTime; }
    void SetStartTime(double dStartTime) { m_dStartTime = dStartTime; }
    void SetNextTime(double dNextTime) { m_dNextTime = dNextTime; }
    void SetMaxTime(double dMaxTime) { m_dMaxTime = dMaxTime; }
    void SetRange(double dRange) { m_dRange = dRange; }
    void SetMinimum(double dMinimum) { m_dMinimum = dMinimum; }
    void SetMaximum(double dMaximum) { m_dMaximum = dMaximum; }

    // The last error, 0 for none.
    int GetError() const { return m_nError; }
    // The message of an error code, internal text.
    const char* GetErrorText(int nError) const;
    // Zeroes the history of INTG and DIFF; call it before a new run.
    void ResetHistory();

    // Copies at most 999 characters of the text into a slot. A bad index raises error 14.
    void SetEquation(int nIndex, const char* pszText);

    // Write a value. A bad index raises error 12, 13 or 10. Of the three only SetVariableValue
    // marks the values as changed, which is required: a dependent variable that another one pulled
    // in keeps its value until then.
    void SetIndependentValue(int nIndex, double dValue) {
        if (static_cast<unsigned>(nIndex) >= static_cast<unsigned>(m_nIndependent) ||
            static_cast<std::size_t>(nIndex) >= m_Variables.size()) {
            RaiseError(PARSER_INDEPENDENT_INDEX);
            return;
        }
        m_Variables[nIndex].dValue = dValue;
    }
    void SetParameterValue(int nIndex, double dValue);
    void SetVariableValue(int nIndex, double dValue);

    // 1 when a step is a power, EXP, SQRT, INTG or DIFF.
    int HasSpecialOperator() const;
    // The value of the step's variable when that is known, else of the step. An index of no step
    // raises error 26 and gives 1.0.
    double GetStepValue(int nStep);
    // Evaluates a dependent variable. 0 on an error: a result that is not finite is written and
    // raises error 25; a parser that already has an error gives 1.0. An unknown name gives 1 and no
    // result.
    int Evaluate(const char* pszName, double* pResult);
    // Evaluates a dependent variable at many points: the same results to the bit, the same errors
    // and the same state afterwards as setting the values and calling Evaluate for one point after
    // the other. pResults receives nPoints values and overlaps no input. 1 when every point gave 1.
    int EvaluateBlock(const char* pszName, const ParserBlock& block, double* pResults);

    // The index of the variable's assignment in the steps; an unknown name raises error 16 and
    // gives 0.
    int GetDependentStep(const char* pszName);

    // Append a variable. Only the index is tested, against the declared count (errors 12, 11, 13).
    void SetIndependentName(int nIndex, const char* pszName);
    void SetDependentName(int nIndex, const char* pszName);
    void SetParameterName(int nIndex, const char* pszName);

    // Compiles all slots; 0 on an error. Compile a parser once: the steps are not cleared.
    int Compile();

    // Sets up scanning of a text in a modifiable buffer of nSize characters, terminated unless it
    // is full, and folds it to upper case in that buffer. Raises error 1 for an empty text and 22
    // for a text of 256 characters or more.
    void SetText(char* pszText, std::size_t nSize = PARSER_TEXT_LIMIT);
    // Reads the next token. A fault raises an error; GetTokenKind and GetToken then tell what was
    // read.
    void NextToken();
    // Writes the word at the last fault, at most nSize - 1 characters, terminated.
    void GetBadWord(char* pszBuffer, int nSize) const;

    int GetTokenKind() const { return m_eTokenKind; }
    const char* GetToken() const { return m_szToken; }
    const std::vector<ParserStep>& GetSteps() const {
        m_Program.BringUpToDate();
        return m_Steps;
    }
    const std::vector<ParserVariable>& GetVariables() const { return m_Variables; }

  private:
    friend class CParserProgram;
    friend struct ParserInspector;  // the tests' view

    void RaiseError(int nError) { m_nError = nError; }

    // Tokeniser
    bool AtEnd() const;
    void SkipSpaces();
    void ScanName();
    bool ScanFunction();
    void ScanNumber();
    void ScanExponent();
    void TestAfterNumber();
    void ScanDelimiter();
    void EndOfText();
    bool IsDelimiter(char c) const { return m_eTokenKind == TOKEN_DELIMITER && m_szToken[0] == c; }

    // Grammar: each rule gives false when an error stands.
    bool Next();
    bool Fail(int nError);
    bool ParseEquation(const char* pszText);
    bool ParseSum();
    bool ParseProduct();
    bool ParseSigned();
    bool ParsePower();
    bool ParseCall();
    bool ParsePrimary();
    bool ParseAtom();
    int LastStep() const { return static_cast<int>(m_Steps.size()) - 1; }
    ParserStep& Emit(int eOpcode, int nOperand1 = 0, int nOperand2 = 0);
    int FindOrAdd(const char* pszName);
    int Lookup(const char* pszName);
    int FindVariable(std::string_view name) const;
    void Append(std::string_view name, int bComputed);
    long long FirstDependent() const {
        return static_cast<long long>(m_nIndependent) + m_nParameters;
    }

    // Evaluation
    double EvaluateStep(int nStep);
    double EvaluateFunction(int eOpcode, double x, double& h) const;
    bool CanRunBlock(const char* pszName, const ParserBlock& block) const;

    std::vector<ParserStep> m_Steps;
    std::vector<ParserVariable> m_Variables;
    int m_nIndependent;
    int m_nDependent;
    int m_nParameters;
    std::vector<std::array<char, 1000>> m_Equations;
    int m_eTokenKind = 0;
    int m_nOpenParens = 0;
    int m_nCloseParens = 0;
    int m_nPosition = 0;          // the next unread character of m_szText
    int m_nLastGoodPosition = 0;  // the position after the last token that raised no error
    int m_nTextLength = 0;
    int m_nVariables = 0;         // size of m_Variables at the last Compile or left-side append
    int m_nCurrentDependent = 0;  // the variable on the left of the equation now being parsed
    int m_bValuesChanged = 1;
    std::string m_strLeftName;
    char m_szText[PARSER_TEXT_LIMIT + 1] = {};
    char m_szToken[260] = {};
    double m_dTime = 0.0;
    double m_dNextTime = 0.0;
    double m_dMaxTime = 0.0;
    double m_dRange = 0.0;
    double m_dMinimum = 0.0;
    double m_dMaximum = 0.0;
    double m_dStartTime = 0.0;  // accepted for INTG, which ignores it
    int m_nError = PARSER_OK;

    // What evaluation runs on when the one equation allows it, derived from the steps by Compile.
    CParserProgram m_Program;
};
