#include "text/CaptionText.h"

#include "text/BoundedText.h"
#include "text/TextTemplate.h"

void FormatCaption(char* szBuffer, int nSize, const char* szTemplate,
                   const std::vector<std::string>& vArguments) {
    BoundedWriter writer(szBuffer, nSize);
    if (szTemplate == nullptr) return;
    std::size_t nUsed = 0;
    ExpandTemplate(
        szTemplate, TemplatePlaces::kConversions, [&](char ch) { writer.Put(ch); },
        [&](char chLetter) {
            const bool bText = chLetter == 's' || chLetter == 'd';
            if (bText && nUsed < vArguments.size()) writer.Put(vArguments[nUsed++]);
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
