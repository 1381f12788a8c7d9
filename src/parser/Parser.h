// CParser is what a dialog holds: a thin owner of one CZDCParser, to which every operation goes.
// The contract of each operation stands in ZDCParser.h.
//
// A CParser lives for one check: construct, name the variables, SetEquation, Compile, read the
// error, destroy. After a failed Compile it is only good for reading the error.
#pragma once

#include <memory>

#include "parser/ZDCParser.h"

class CParser {
  public:
    CParser(int nIndependent, int nDependent, int nParameters, int nEquations)
        : m_pParser(
              std::make_unique<CZDCParser>(nIndependent, nDependent, nParameters, nEquations)) {}
    virtual ~CParser() { m_pParser.reset(); }
    CParser(const CParser&) = delete;
    CParser& operator=(const CParser&) = delete;

    void SetTime(double dTime) { m_pParser->SetTime(dTime); }
    void SetStartTime(double dStartTime) { m_pParser->SetStartTime(dStartTime); }
    void SetNextTime(double dNextTime) { m_pParser->SetNextTime(dNextTime); }
    void SetMaxTime(double dMaxTime) { m_pParser->SetMaxTime(dMaxTime); }
    void SetRange(double dRange) { m_pParser->SetRange(dRange); }
    void SetMinimum(double dMinimum) { m_pParser->SetMinimum(dMinimum); }
    void SetMaximum(double dMaximum) { m_pParser->SetMaximum(dMaximum); }
    int GetError() const { return m_pParser->GetError(); }
    const char* GetErrorText(int nError) const { return m_pParser->GetErrorText(nError); }
    void ResetHistory() { m_pParser->ResetHistory(); }
    void SetEquation(int nIndex, const char* pszText) { m_pParser->SetEquation(nIndex, pszText); }
    void SetIndependentValue(int nIndex, double dValue) {
        m_pParser->SetIndependentValue(nIndex, dValue);
    }
    void SetParameterValue(int nIndex, double dValue) {
        m_pParser->SetParameterValue(nIndex, dValue);
    }
    void SetVariableValue(int nIndex, double dValue) {
        m_pParser->SetVariableValue(nIndex, dValue);
    }
    int HasSpecialOperator() const { return m_pParser->HasSpecialOperator(); }
    double GetStepValue(int nStep) { return m_pParser->GetStepValue(nStep); }
    int Evaluate(const char* pszName, double* pResult) {
        return m_pParser->Evaluate(pszName, pResult);
    }
    int GetDependentStep(const char* pszName) { return m_pParser->GetDependentStep(pszName); }
    void SetIndependentName(int nIndex, const char* pszName) {
        m_pParser->SetIndependentName(nIndex, pszName);
    }
    void SetDependentName(int nIndex, const char* pszName) {
        m_pParser->SetDependentName(nIndex, pszName);
    }
    void SetParameterName(int nIndex, const char* pszName) {
        m_pParser->SetParameterName(nIndex, pszName);
    }
    int Compile() { return m_pParser->Compile(); }
    int EvaluateBlock(const char* pszName, const ParserBlock& block, double* pResults) {
        return m_pParser->EvaluateBlock(pszName, block, pResults);
    }

  private:
    std::unique_ptr<CZDCParser> m_pParser;
};
