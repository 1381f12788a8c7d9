#include "arithmetic/LeftSide.h"

#include <algorithm>

TextEdit AssignToLeftSide(std::string_view sExpression, int nCaret, std::string_view sLeftSide,
                          bool bAddEquals) {
    const int nLength = static_cast<int>(sExpression.size());
    nCaret = std::clamp(nCaret, 0, nLength);
    if (!bAddEquals) return {nCaret, nCaret, std::string(sLeftSide)};
    const std::string sWithEquals = std::string(sLeftSide) + " = ";
    const auto behindBlanks = [&](std::size_t nFrom) {
        const std::size_t nNext = sExpression.find_first_not_of(' ', nFrom);
        return nNext == std::string_view::npos ? nLength : static_cast<int>(nNext);
    };
    const std::size_t nEquals = sExpression.find('=');
    if (nEquals == std::string_view::npos) return {0, behindBlanks(0), sWithEquals};
    if (nCaret <= static_cast<int>(nEquals)) return {0, behindBlanks(nEquals + 1), sWithEquals};
    return {nCaret, nCaret, std::string(sLeftSide)};
}

std::string_view RightSideOf(std::string_view sExpression) {
    const std::size_t nEquals = sExpression.find('=');
    return Trimmed(nEquals == std::string_view::npos ? sExpression
                                                     : sExpression.substr(nEquals + 1));
}

std::string_view Trimmed(std::string_view sText) {
    const std::size_t nFirst = sText.find_first_not_of(' ');
    if (nFirst == std::string_view::npos) return {};
    return sText.substr(nFirst, sText.find_last_not_of(' ') + 1 - nFirst);
}

bool EndsWithOperator(std::string_view sText) {
    return !sText.empty() && std::string_view("+-*/^").find(sText.back()) != std::string_view::npos;
}

int FindLastEquals(std::string_view sText) {
    const std::size_t nEquals = sText.rfind('=');
    return nEquals == std::string_view::npos ? -1 : static_cast<int>(nEquals);
}
