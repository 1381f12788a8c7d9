#include "parser/CustomFunction.h"

#include <cstring>
#include <string>

#include "parser/Parser.h"
#include "parser/ParserErrors.h"
#include "text/FormatExpander.h"

namespace {

constexpr std::size_t kTextSize = 256;

// The left side and the text without its spaces, cut to the buffer. The parser keeps spaces inside
// names.
void BuildText(const char* pszText, char (&szText)[kTextSize]) {
    std::string strText = "y1=";
    const std::size_t nLength = strnlen(pszText, kTextSize - 1);
    for (std::size_t i = 0; i < nLength; ++i) {
        if (pszText[i] != ' ') strText += pszText[i];
    }
    szText[strText.copy(szText, kTextSize - 1)] = '\0';
}

void FormatNames(CustomFunction& function) {
    for (int i = 0; i < function.nIndependents; ++i) {
        FormatIndependentName(function.szIndependents[i], function.aIndependents, i);
    }
    for (int i = 0; i < function.nParameters; ++i) {
        FormatParameterName(function.szParameters[i], function.aParameters, i);
    }
    for (int i = 0; i < function.nDependents; ++i) {
        FormatDependentName(function.szDependents[i], function.aDependents, i);
    }
}

int CompileError(const CustomFunction& function, const char* pszText) {
    CParser parser(function.nIndependents, function.nDependents, function.nParameters, 1);
    for (int i = 0; i < function.nIndependents; ++i) {
        parser.SetIndependentName(i, function.szIndependents[i]);
    }
    for (int i = 0; i < function.nParameters; ++i) {
        parser.SetParameterName(i, function.szParameters[i]);
    }
    for (int i = 0; i < function.nDependents; ++i) {
        parser.SetDependentName(i, function.szDependents[i]);
    }
    parser.SetEquation(0, pszText);
    return parser.Compile() ? 0 : parser.GetError();
}

}  // namespace

CustomFunctionFault CheckCustomFunction(const char* pszText, bool bShowMessages,
                                        CustomFunctionMessages& messages,
                                        CustomFunction& function) {
    const auto fail = [&](CustomFunctionFault eFault) {
        if (bShowMessages) messages.ShowString(eFault);
        return eFault;
    };
    char szText[kTextSize];
    BuildText(pszText, szText);
    // The equation that is kept was its own format string, which is required, and has not been
    // folded.
    ExpandWithoutArguments(szText, function.szEquation, sizeof function.szEquation);
    function.nError = 0;

    CustomFunction found = function;
    if (!AnalyzeCustomFunction(szText, found.aIndependents, &found.nIndependents, found.aParameters,
                               &found.nParameters, found.aDependents, &found.nDependents)) {
        return fail(CUSTOM_FUNCTION_NOT_INTERPRETED);
    }
    if (found.nIndependents > 1) return fail(CUSTOM_FUNCTION_MANY_INDEPENDENTS);
    if (found.nParameters == 0) return fail(CUSTOM_FUNCTION_NO_PARAMETERS);
    FormatNames(found);
    function.nError = CompileError(found, szText);
    if (function.nError != 0) {
        if (bShowMessages) messages.ShowError(ParserErrorText(function.nError));
        return CUSTOM_FUNCTION_NOT_COMPILED;
    }
    function = found;
    return CUSTOM_FUNCTION_GOOD;
}
