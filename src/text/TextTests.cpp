#include "text/TextTests.h"

#include <cstring>

namespace {

bool IsPrintable(int ch) {
    return ch >= 0x20 && ch <= 0x7E;
}

char ToLower(char ch) {
    return ch >= 'A' && ch <= 'Z' ? static_cast<char>(ch + ('a' - 'A')) : ch;
}

bool IsLetter(char ch) {
    return ToLower(ch) >= 'a' && ToLower(ch) <= 'z';
}

template <typename Test>
bool All(const char* szText, Test test) {
    if (szText == nullptr) return true;
    for (; *szText != '\0'; ++szText) {
        if (!test(*szText)) return false;
    }
    return true;
}

}  // namespace

bool IsBlank(const char* szText) {
    return All(szText, [](char ch) { return ch == ' ' || (ch >= '\t' && ch <= '\r'); });
}

bool IsAllPrintable(const char* szText) {
    return All(szText, [](char ch) { return IsPrintable(static_cast<unsigned char>(ch)); });
}

bool IsAllAlpha(const char* szText) {
    return All(szText, IsLetter);
}

bool HasControlChars(const char* szText) {
    return !All(szText, [](char ch) { return static_cast<unsigned char>(ch) >= 31; });
}

bool HasEdgeSpaces(const char* szText) {
    if (szText == nullptr || *szText == '\0') return false;
    return szText[0] == ' ' || szText[std::strlen(szText) - 1] == ' ';
}

bool IsCharInSet(int ch, const char* szSet) {
    if (!IsPrintable(ch)) return true;
    return szSet != nullptr && std::strchr(szSet, ch) != nullptr;
}

bool IsNumberText(const char* szText) {
    return All(szText, [](char ch) {
        return (ch >= '0' && ch <= '9') || ch == '.' || ch == '+' || ch == '-' || ch == 'e' ||
               ch == 'E';
    });
}

bool IsInList(const char* szText, const char* const* pszList, int nCount, bool bMatchCase) {
    const std::string_view sText = szText == nullptr ? "" : szText;
    for (int i = 0; pszList != nullptr && i < nCount; ++i) {
        if (pszList[i] == nullptr) continue;
        const std::string_view sEntry = pszList[i];
        if (bMatchCase ? sText == sEntry : EqualNoCase(sText, sEntry)) return true;
    }
    return false;
}

bool EqualNoCase(std::string_view sLeft, std::string_view sRight) {
    if (sLeft.size() != sRight.size()) return false;
    for (std::size_t i = 0; i < sLeft.size(); ++i) {
        if (ToLower(sLeft[i]) != ToLower(sRight[i])) return false;
    }
    return true;
}
