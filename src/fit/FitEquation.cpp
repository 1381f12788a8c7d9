#include "fit/FitEquation.h"

#include <algorithm>
#include <cstring>
#include <type_traits>

#include "text/BoundedText.h"
#include "text/TextTests.h"

namespace {

constexpr const char* kExamples[] = {
    "p1+(p2-p1)/(1+(x1/p3)^(4*p3*p4/(p1-p2)))",
    "p1+(p2-p1)/(1+((10^p3)/x1)^p4)",
    "p1+(p2-p1)/(1+(10^((p3-x1)*p4)))",
    "p1+((p2-p1)/(1+(((p2-p5)/(p5-p1))*(x1/p3)^p4)))",
    "p1+((p2-p1)/((1+(x1/p3)^p4)^p5))",
    "p1/(1+(10^((p3-log(x1))*p2)))+(100-p1)/(1+(10^((p4-log(x1))*p2)))",
    "p1+(p2-p1)/(1+exp((p3-x1)/p4))",
    "p1*exp(-1*exp(p2-p3*x1))",
    "p1-(p2*exp((-1*p3)*(x1^p4)))",
};

}  // namespace

std::string WithoutBlanks(const char* szText) {
    std::string sText(szText);
    sText.erase(std::remove(sText.begin(), sText.end(), ' '), sText.end());
    return sText;
}

std::string RightSideOf(const char* szEquation) {
    const char* pEquals = std::strchr(szEquation, '=');
    return pEquals == nullptr ? std::string(szEquation) : WithoutBlanks(pEquals + 1);
}

bool IsShownEquation(const char* szEquation) {
    return szEquation[0] != '\0' && szEquation[1] != '\0';
}

void StoreExampleEquations(FitOptions& options) {
    for (const auto& szEquation : options.szCustomEquations) {
        if (szEquation[0] != '\0') return;
    }
    for (std::size_t i = 0; i < std::size(kExamples); ++i)
        CopyText(options.szCustomEquations[i], kExamples[i]);
}

void PutRecentEquation(FitOptions& options, const std::string& sRightSide) {
    auto& list = options.szCustomEquations;
    constexpr std::size_t kLast = std::extent_v<decltype(FitOptions::szCustomEquations)> - 1;
    std::size_t nPlace = 0;
    while (nPlace < kLast && !EqualNoCase(list[nPlace], sRightSide)) ++nPlace;
    const bool bThere = EqualNoCase(list[nPlace], sRightSide);
    const std::string sEntry = bThere ? std::string(list[nPlace]) : sRightSide;
    std::memmove(list[1], list[0], nPlace * sizeof list[0]);
    CopyText(list[0], sEntry);
}

bool CompileEquation(CFitOptionsInterface& fit, const char* szRightSide, bool bReport,
                     CustomFunctionMessages& messages) {
    fit.bCustomCompiled = false;
    CustomFunction function;
    if (CheckCustomFunction(szRightSide, bReport, messages, function) != CUSTOM_FUNCTION_GOOD)
        return false;
    FitOptions& record = fit.Options();
    record.nNumCustomParams = static_cast<std::uint32_t>(function.nParameters);
    record.nNumCustomIndepVars = static_cast<std::uint32_t>(function.nIndependents);
    CopyText(record.szEquation, function.szEquation);
    PutRecentEquation(record, RightSideOf(record.szEquation));
    fit.TakeEquation();
    return true;
}
