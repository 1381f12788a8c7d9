#include "parser/CustomFunction.h"

#include <cmath>
#include <cstring>
#include <limits>
#include <memory>
#include <string>

#include "parser/Parser.h"
#include "parser/ParserErrors.h"
#include "text/TextTemplate.h"

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

// Finds the names, and folds the letters of the text to theirs.
bool Analyze(char* pszText, CustomFunction& function) {
    return AnalyzeCustomFunction(pszText, function.aIndependents, &function.nIndependents,
                                 function.aParameters, &function.nParameters, function.aDependents,
                                 &function.nDependents) != 0;
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

// A parser that knows the names and the equation of a function; not compiled.
std::unique_ptr<CParser> ParserOf(const CustomFunction& function, const char* pszText) {
    auto pParser = std::make_unique<CParser>(function.nIndependents, function.nDependents,
                                             function.nParameters, 1);
    for (int i = 0; i < function.nIndependents; ++i) {
        pParser->SetIndependentName(i, function.szIndependents[i]);
    }
    for (int i = 0; i < function.nParameters; ++i) {
        pParser->SetParameterName(i, function.szParameters[i]);
    }
    for (int i = 0; i < function.nDependents; ++i) {
        pParser->SetDependentName(i, function.szDependents[i]);
    }
    pParser->SetEquation(0, pszText);
    return pParser;
}

int CompileError(const CustomFunction& function, const char* pszText) {
    const auto pParser = ParserOf(function, pszText);
    return pParser->Compile() ? 0 : pParser->GetError();
}

// Tells nobody.
class NoMessages final : public CustomFunctionMessages {
  public:
    void ShowString(int) override {}
    void ShowError(const char*) override {}
};

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
    if (!Analyze(szText, found)) return fail(CUSTOM_FUNCTION_NOT_INTERPRETED);
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

bool EvaluateCustomFunction(const char* pszText, const double* pParameters, int nParameters,
                            const double* pX, double* pY, int nPoints) {
    CustomFunction function;
    NoMessages noMessages;
    if (CheckCustomFunction(pszText, false, noMessages, function) != CUSTOM_FUNCTION_GOOD ||
        function.nParameters > nParameters)
        return false;
    char szText[kTextSize];
    BuildText(pszText, szText);
    // The parser gets the text as the check does: in the letters of the names.
    if (!Analyze(szText, function)) return false;
    for (int nDone = 0; nDone < nPoints;) {
        // A parser that met a result that is not finite answers nothing any more.
        const auto pParser = ParserOf(function, szText);
        if (!pParser->Compile()) return false;
        for (int i = 0; i < function.nParameters; ++i)
            pParser->SetParameterValue(i, pParameters[i]);
        const double* const pInput = pX + nDone;
        const ParserBlock block = {nPoints - nDone, &pInput, nullptr, nullptr};
        if (pParser->EvaluateBlock(function.szDependents[0], block, pY + nDone)) return true;
        while (nDone < nPoints && std::isfinite(pY[nDone])) ++nDone;
        if (nDone < nPoints) pY[nDone++] = std::numeric_limits<double>::quiet_NaN();
    }
    return true;
}
