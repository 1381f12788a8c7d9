// The grammar: a recursive descent that emits steps as it returns.
//
//   equation  left name, '=', sum; what follows is not tested
//   sum       product { (+|-) product }
//   product   signed { (*|/) power }
//   signed    [+|-] power
//   power     call [ ^ signed ]
//   call      function signed | primary
//   primary   ( sum ) | a whole sum at a sign | atom
//   atom      PI | name | number
//
// It follows that a sign applies to a whole power (-2^2 is -4), that ^ goes to the right, that
// a*-b+c is a*(-b+c), that SIN(X)^2 is the sine of a square, and that % ends the equation. All that
// is required.
#include <charconv>
#include <cstring>

#include "parser/CharacterClass.h"
#include "parser/ParserFunctions.h"
#include "parser/ZDCParser.h"

namespace {

constexpr CharacterSet kAfterParentheses(" +-*/%^)");

double ReadNumber(const char* pszNumber) {
    double dValue = 0.0;
    std::from_chars(pszNumber, pszNumber + std::strlen(pszNumber), dValue);
    return dValue;
}

}  // namespace

bool CZDCParser::Next() {
    NextToken();
    return m_nError == PARSER_OK;
}

bool CZDCParser::Fail(int nError) {
    RaiseError(nError);
    return false;
}

ParserStep& CZDCParser::Emit(int eOpcode, int nOperand1, int nOperand2) {
    ParserStep& step = m_Steps.emplace_back();
    step.eOpcode = eOpcode;
    step.nOperand1 = nOperand1;
    step.nOperand2 = nOperand2;
    return step;
}

bool CZDCParser::ParseEquation(const char* pszText) {
    // One of each is counted ahead: only their difference matters.
    m_nOpenParens = 1;
    m_nCloseParens = 1;
    m_nError = PARSER_OK;
    m_nPosition = 0;
    const std::size_t nLength = strnlen(pszText, PARSER_TEXT_LIMIT);
    if (nLength >= PARSER_TEXT_LIMIT) return Fail(PARSER_TEXT_TOO_LONG);
    std::memcpy(m_szText, pszText, nLength);
    m_szText[nLength] = '\0';
    m_nTextLength = static_cast<int>(nLength);
    if (!Next()) return false;
    if (m_szToken[0] == '\0') return Fail(PARSER_EMPTY_TEXT);

    const int nVariable = FindOrAdd(m_szToken);
    m_strLeftName = m_szToken;
    if (m_eTokenKind != TOKEN_NAME || nVariable < FirstDependent()) {
        return Fail(PARSER_ILLEGAL_ASSIGNMENT);
    }
    if (!Next()) return false;
    if (!IsDelimiter('=')) return Fail(PARSER_NO_EQUALS_SIGN);
    if (!Next() || !ParseSum()) return false;

    m_Variables[nVariable].nStep = static_cast<int>(m_Steps.size());
    const int nRoot = LastStep();
    Emit(OPCODE_ASSIGN, nVariable, nRoot).nVariable = nVariable;
    return true;
}

bool CZDCParser::ParseSum() {
    if (!ParseProduct()) return false;
    while (IsDelimiter('+') || IsDelimiter('-')) {
        const int eOpcode = m_szToken[0] == '+' ? OPCODE_ADD : OPCODE_SUBTRACT;
        const int nLeft = LastStep();
        if (!Next() || !ParseProduct()) return false;
        const int nRight = LastStep();
        Emit(eOpcode, nLeft, nRight);
    }
    return true;
}

bool CZDCParser::ParseProduct() {
    if (!ParseSigned()) return false;
    while (IsDelimiter('*') || IsDelimiter('/')) {
        const int eOpcode = m_szToken[0] == '*' ? OPCODE_MULTIPLY : OPCODE_DIVIDE;
        const int nLeft = LastStep();
        if (!Next() || !ParsePower()) return false;
        const int nRight = LastStep();
        Emit(eOpcode, nLeft, nRight);
    }
    return true;
}

bool CZDCParser::ParseSigned() {
    const bool bMinus = IsDelimiter('-');
    if ((bMinus || IsDelimiter('+')) && !Next()) return false;
    if (!ParsePower()) return false;
    if (bMinus) Emit(OPCODE_NEGATE, LastStep());
    return true;
}

bool CZDCParser::ParsePower() {
    if (!ParseCall()) return false;
    if (!IsDelimiter('^')) return true;
    const int nLeft = LastStep();
    if (!Next() || !ParseSigned()) return false;
    const int nRight = LastStep();
    Emit(OPCODE_POWER, nLeft, nRight);
    return true;
}

bool CZDCParser::ParseCall() {
    if (m_eTokenKind != TOKEN_FUNCTION) return ParsePrimary();
    const int eOpcode = static_cast<unsigned char>(m_szToken[0]);
    if (!Next() || !ParseSigned()) return false;
    Emit(eOpcode, LastStep());
    return true;
}

bool CZDCParser::ParsePrimary() {
    // A sign after * or / takes the whole sum behind it, which is required.
    if (IsDelimiter('+') || IsDelimiter('-')) return ParseSum();
    if (IsDelimiter(')')) return Fail(PARSER_PARENTHESES);
    if (!IsDelimiter('(')) return ParseAtom();
    if (!Next() || !ParseSum()) return false;
    if (!IsDelimiter(')')) return Fail(PARSER_PARENTHESES);
    const int nInner = LastStep();
    const double dValue = m_Steps[nInner].dValue;
    Emit(OPCODE_PARENTHESES, nInner).dValue = dValue;
    if (!Next()) return false;
    // The space among them is no delimiter, but it is the token of NORM, whose opcode has its code.
    if (m_szToken[0] != '\0' && !kAfterParentheses.Has(m_szToken[0])) {
        return Fail(PARSER_MISSING_OPERATOR);
    }
    return true;
}

bool CZDCParser::ParseAtom() {
    if (m_eTokenKind == TOKEN_NAME && std::strcmp(m_szToken, "PI") == 0) {
        // What follows PI is not tested, which is required: Y1=PI(3) is Y1=PI.
        Emit(OPCODE_NUMBER).dValue = ParserPi();
        return Next();
    }
    if (m_eTokenKind == TOKEN_NAME) {
        const int nVariable = Lookup(m_szToken);
        if (m_nError != PARSER_OK) return false;
        if (nVariable >= m_nVariables) return Fail(PARSER_UNKNOWN_NAME);
        Emit(OPCODE_VARIABLE).nVariable = nVariable;
        if (!Next()) return false;
        const bool bEnds = m_eTokenKind == TOKEN_END || m_eTokenKind == TOKEN_DELIMITER;
        if (!bEnds || IsDelimiter('(') || IsDelimiter('=')) return Fail(PARSER_MISSING_OPERATOR);
        return true;
    }
    if (m_eTokenKind == TOKEN_NUMBER) {
        Emit(OPCODE_NUMBER).dValue = ReadNumber(m_szToken);
        return Next();
    }
    return Fail(PARSER_UNKNOWN);
}

int CZDCParser::FindVariable(std::string_view name) const {
    const int n = static_cast<int>(m_Variables.size());
    for (int i = 0; i < n; ++i) {
        if (m_Variables[i].strName == name) return i;
    }
    return n;
}

int CZDCParser::FindOrAdd(const char* pszName) {
    const int nVariable = FindVariable(pszName);
    if (nVariable < static_cast<int>(m_Variables.size())) {
        m_Variables[nVariable].bComputed = 1;
    } else {
        Append(pszName, 1);
        m_nVariables = static_cast<int>(m_Variables.size());
    }
    m_nCurrentDependent = nVariable;
    return nVariable;
}

int CZDCParser::Lookup(const char* pszName) {
    const int i = FindVariable(pszName);
    if (i >= static_cast<int>(m_Variables.size())) return m_nVariables;
    const long long nFirst = FirstDependent();
    // The first dependent variable is outside the bound, which is required: Y1=Y1+X1 passes.
    if (i > nFirst && i <= nFirst + m_nDependent &&
        (m_Variables[i].bComputed == 0 || i == m_nCurrentDependent)) {
        RaiseError(PARSER_DEPENDENT_UNDEFINED);
    }
    return i;
}
