#include "parser/ParserErrors.h"

#include <cstdio>
#include <cstring>
#include <iterator>
#include <string>

#include "parser/ParserTypes.h"

namespace {

char g_szBadWord[260];
char g_szUnknownName[260];
char g_szUnknownCode[80];

// Indexed by the code. The spelling is the one that users know.
constexpr const char* kTexts[] = {
    nullptr,
    "You must enter an equation to be used.",
    "There has been a problem processing some of the values involved in the equation.",
    "There is a parenthesis in the open equation, but no corresponding close parenthesis.",
    "After a function (i.e., sin, cos) there must be a set of parenthesis.",
    "Missing operator.",
    "Illegal assignment.",
    "Missing independent variables.",
    "Missing dependent variables.",
    "The equation must have an equals sign to separate the dependent variable from the indepdent "
    "variable.",
    "There are too many variables in the equation.",
    "You can only have one dependent variable in the equation.",
    "There are too many independent variables in the equation.",
    "Too many parameter variables.",
    "Too many equations.",
    "Parser storage overflow.",
    "A variable was expected in the equation but none was found.",
    "Missing operand.",
    "The equation you have entered has no variables.",
    "Invalid numeric value.",
    "Out of memory.",
    "Variable out of range.",
    "Equation string too long.",
    "Empty model.",
    "There has been a problem parsing the equation.  Please re-check the syntax of the equation.",
    "A basic math error (divide by zero, log of a negative number, etc.) has occurred.",
    "Unknown Error.",
};

}  // namespace

const char* ParserErrorText(int nError) {
    if (nError == PARSER_UNKNOWN_NAME && g_szBadWord[0] != '\0') {
        const std::string strText = std::string("The variable '") + g_szBadWord + "' is not known.";
        g_szUnknownName[strText.copy(g_szUnknownName, sizeof g_szUnknownName - 1)] = '\0';
        return g_szUnknownName;
    }
    if (nError > 0 && nError < static_cast<int>(std::size(kTexts))) return kTexts[nError];
    std::snprintf(g_szUnknownCode, sizeof g_szUnknownCode, "Unknown error code: 0x%X.",
                  static_cast<unsigned>(nError));
    return g_szUnknownCode;
}

void SetBadWord(const char* pszText) {
    const std::size_t nLength = strnlen(pszText, sizeof g_szBadWord - 1);
    std::memcpy(g_szBadWord, pszText, nLength);
    g_szBadWord[nLength] = '\0';
}
