#include "text/CaptionText.h"

#include "text/BoundedText.h"

void FormatCaption(char* szBuffer, int nSize, const char* szTemplate,
                   const std::vector<std::string>& vArguments, TemplatePlaces ePlaces) {
    BoundedWriter writer(szBuffer, nSize);
    if (szTemplate == nullptr) return;
    std::size_t nUsed = 0;
    ExpandTemplate(
        szTemplate, ePlaces, [&](char ch) { writer.Put(ch); },
        [&](char chMark) {
            const bool bNumber = ePlaces == TemplatePlaces::kNumbers;
            if (!bNumber && chMark != 's' && chMark != 'd') return;
            const std::size_t n = bNumber ? static_cast<std::size_t>(chMark - '0') : nUsed++;
            if (n < vArguments.size()) writer.Put(vArguments[n]);
        });
}

void FormatCaption(char* szBuffer, int nSize, const char* szTemplate, const char* szArgument) {
    FormatCaption(szBuffer, nSize, szTemplate,
                  std::vector<std::string>{szArgument != nullptr ? szArgument : ""});
}

void LowerNoun(char* szBuffer, int nSize, const char* szNoun) {
    const int nLength = CopyText(szBuffer, nSize, szNoun);
    // The letters of the code page, whatever locale the host has set.
    const auto isUpper = [](unsigned char ch) {
        return (ch >= 'A' && ch <= 'Z') || (ch >= 0xC0 && ch <= 0xDE && ch != 0xD7);
    };
    for (int i = 0; i < nLength; ++i) {
        const auto ch = static_cast<unsigned char>(szBuffer[i]);
        if (isUpper(ch)) szBuffer[i] = static_cast<char>(ch + 0x20);
    }
}
