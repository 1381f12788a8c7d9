// The tokeniser: one token at a time from m_szText, and the faults that can be told without a
// grammar.
#include <cstring>
#include <iterator>
#include <string_view>

#include "parser/CharacterClass.h"
#include "parser/ZDCParser.h"

namespace {

constexpr CharacterSet kDelimiters("+*-/%^=()");
constexpr CharacterSet kOperators("+*-/%^");
// What ends the word that decides between number and name. '%' and the space are not among them.
constexpr CharacterSet kNumberWordEnds("=+-*/^()");

constexpr CharacterSet kAfterNumber("+*-/%^)");
// What cannot stand behind an operator.
constexpr CharacterSet kNoOperands("*/%^=");

struct Keyword {
    std::string_view name;
    int eOpcode;
};

// In the order of the tests: the two longer names stand before NORM.
constexpr Keyword kKeywords[] = {
    {"RECT", OPCODE_RECT},     {"ARCOS", OPCODE_ARCOS},   {"ARSIN", OPCODE_ARSIN},
    {"ARTAN", OPCODE_ARTAN},   {"COS", OPCODE_COS},       {"SIN", OPCODE_SIN},
    {"TAN", OPCODE_TAN},       {"LOG", OPCODE_LOG},       {"LN", OPCODE_LN},
    {"EXP", OPCODE_EXP},       {"SQRT", OPCODE_SQRT},     {"RAMP", OPCODE_RAMP},
    {"INTG", OPCODE_INTG},     {"DIFF", OPCODE_DIFF},     {"INV", OPCODE_INV},
    {"NORMAX", OPCODE_NORMAX}, {"NORMIN", OPCODE_NORMIN}, {"NORM", OPCODE_NORM},
    {"FACT", OPCODE_FACT},
};

bool EqualsIgnoringCase(const char* pszText, std::string_view upper) {
    for (std::size_t i = 0; i < upper.size(); ++i) {
        if (ToUpper(pszText[i]) != upper[i]) return false;
    }
    return true;
}

}  // namespace

void CZDCParser::SetText(char* pszText, std::size_t nSize) {
    const std::size_t nLimit = nSize < PARSER_TEXT_LIMIT ? nSize : PARSER_TEXT_LIMIT;
    const std::size_t nLength = nLimit == 0 ? 0 : strnlen(pszText, nLimit);
    if (nLength == 0) {
        RaiseError(PARSER_EMPTY_TEXT);
        return;
    }
    if (nLength >= PARSER_TEXT_LIMIT) {
        RaiseError(PARSER_TEXT_TOO_LONG);
        return;
    }
    // The caller's own buffer is folded, which is required: it goes to Compile afterwards, and the
    // grammar compares names exactly.
    for (std::size_t i = 0; i < nLength; ++i) pszText[i] = ToUpper(pszText[i]);
    std::memcpy(m_szText, pszText, nLength);
    m_szText[nLength] = '\0';
    m_nTextLength = static_cast<int>(nLength);
    m_nPosition = 0;
    m_nLastGoodPosition = 0;
    m_nOpenParens = 0;
    m_nCloseParens = 0;
    m_eTokenKind = 0;
}

bool CZDCParser::AtEnd() const {
    return m_nPosition > m_nTextLength || m_szText[m_nPosition] == '\0';
}

void CZDCParser::SkipSpaces() {
    while (m_nPosition < m_nTextLength && m_szText[m_nPosition] == ' ') ++m_nPosition;
}

void CZDCParser::EndOfText() {
    m_eTokenKind = TOKEN_END;
    if (m_nCloseParens != m_nOpenParens) RaiseError(PARSER_PARENTHESES);
}

void CZDCParser::NextToken() {
    m_szToken[0] = '\0';
    if (!AtEnd()) SkipSpaces();
    if (AtEnd()) {
        EndOfText();
        return;
    }
    m_eTokenKind = TOKEN_UNKNOWN;
    const char c = m_szText[m_nPosition];
    if (IsLetter(c) || c == '_' || c == '$') {
        if (!ScanFunction()) ScanName();
    } else if (kDelimiters.Has(c)) {
        ScanDelimiter();
    } else if (IsDigit(c) || c == '.') {
        ScanNumber();
    } else {
        RaiseError(PARSER_UNKNOWN);
    }
    if (m_nError != PARSER_OK) return;
    SkipSpaces();
    m_nLastGoodPosition = m_nPosition;
}

// A keyword is a function only where no letter follows, so LOG10 is LOG without its parentheses.
bool CZDCParser::ScanFunction() {
    const char* pszWord = m_szText + m_nPosition;
    // Every keyword begins with two letters; most names do not.
    if (!IsLetter(pszWord[1])) return false;
    const int nRest = m_nTextLength - m_nPosition;
    for (const Keyword& keyword : kKeywords) {
        const int nLength = static_cast<int>(keyword.name.size());
        if (nLength > nRest || !EqualsIgnoringCase(pszWord, keyword.name) ||
            IsLetter(pszWord[nLength])) {
            continue;
        }
        m_eTokenKind = TOKEN_FUNCTION;
        m_szToken[0] = static_cast<char>(keyword.eOpcode);
        m_szToken[1] = '\0';
        m_nPosition += nLength;
        SkipSpaces();
        if (m_szText[m_nPosition] != '(') RaiseError(PARSER_FUNCTION_NEEDS_PARENTHESES);
        return true;
    }
    return false;
}

// Spaces and line ends are no delimiters: they belong to the name, trailing ones included.
void CZDCParser::ScanName() {
    m_eTokenKind = TOKEN_NAME;
    int n = 0;
    while (m_nPosition < m_nTextLength && !kDelimiters.Has(m_szText[m_nPosition])) {
        m_szToken[n++] = m_szText[m_nPosition++];
    }
    m_szToken[n] = '\0';
}

void CZDCParser::ScanNumber() {
    m_eTokenKind = TOKEN_NUMBER;
    int nEnd = m_nPosition;
    bool bName = false;
    while (nEnd < m_nTextLength && !kNumberWordEnds.Has(m_szText[nEnd])) {
        const char c = m_szText[nEnd++];
        if (!IsDigit(c) && c != '.' && c != ' ') bName = true;
    }
    int n = 0;
    if (bName) {
        // A word with anything else in it is a name, 1e5 and 3%2 included, which is required.
        m_eTokenKind = TOKEN_NAME;
        while (m_nPosition < nEnd) m_szToken[n++] = m_szText[m_nPosition++];
        m_szToken[n] = '\0';
        return;
    }
    bool bPoint = false;
    for (;;) {
        const char c = m_szText[m_nPosition];
        // A point that ends the text is not taken, so `2.` there lacks its operator.
        if (!IsDigit(c) && (c != '.' || m_nPosition + 1 == m_nTextLength)) break;
        if (c == '.') {
            if (bPoint) {
                RaiseError(PARSER_INVALID_NUMBER);
                return;
            }
            bPoint = true;
        }
        m_szToken[n++] = c;
        ++m_nPosition;
    }
    m_szToken[n] = '\0';
    if (ToUpper(m_szText[m_nPosition]) == 'E') {
        ScanExponent();
    } else {
        TestAfterNumber();
    }
}

// The exponent behind the digits of a number. The word test of ScanNumber takes every word that
// holds a letter for a name, so no equation arrives here: scientific notation is out of reach,
// which is required.
void CZDCParser::ScanExponent() {
    std::size_t n = std::strlen(m_szToken);
    const auto take = [&] { m_szToken[n++] = m_szText[m_nPosition++]; };
    take();
    if (m_szText[m_nPosition] == '+' || m_szText[m_nPosition] == '-') take();
    if (!IsDigit(m_szText[m_nPosition])) {
        RaiseError(PARSER_INVALID_NUMBER);
        return;
    }
    int nDigits = 0;
    for (; IsDigit(m_szText[m_nPosition]); ++nDigits) take();
    m_szToken[n] = '\0';
    if (nDigits >= 4) {
        RaiseError(PARSER_EXPONENT_TOO_LONG);
        return;
    }
    TestAfterNumber();
}

void CZDCParser::TestAfterNumber() {
    if (AtEnd()) return;
    SkipSpaces();
    if (m_nPosition < m_nTextLength && !kAfterNumber.Has(m_szText[m_nPosition])) {
        RaiseError(PARSER_MISSING_OPERATOR);
    }
}

void CZDCParser::ScanDelimiter() {
    m_eTokenKind = TOKEN_DELIMITER;
    const char c = m_szText[m_nPosition];
    const char next = m_szText[m_nPosition + 1];
    const bool bOperator = c == '=' || kOperators.Has(c);
    if (bOperator && (next == '\0' || kNoOperands.Has(next))) {
        RaiseError(PARSER_MISSING_OPERAND);
        return;
    }
    if (next == '\0' && c != ')') {
        RaiseError(PARSER_SYNTAX);
        return;
    }
    if (c == '(') ++m_nOpenParens;
    if (c == ')') ++m_nCloseParens;
    m_szToken[0] = c;
    m_szToken[1] = '\0';
    ++m_nPosition;
    if (m_nCloseParens > m_nOpenParens) RaiseError(PARSER_PARENTHESES);
}

void CZDCParser::GetBadWord(char* pszBuffer, int nSize) const {
    if (nSize < 1) return;
    const std::string_view text(m_szText, m_nTextLength);
    const std::size_t d = text.find_first_of("=+-*/^() ", m_nPosition);
    // The length less the place found, not the place, is the end of the word, which is required.
    const int nEnd =
        d == std::string_view::npos ? m_nTextLength : m_nTextLength - static_cast<int>(d);
    int n = nEnd - m_nLastGoodPosition;
    if (n > nSize - 1) n = nSize - 1;
    if (n < 1) n = 0;
    std::memcpy(pszBuffer, m_szText + m_nLastGoodPosition, static_cast<std::size_t>(n));
    pszBuffer[n] = '\0';
}
