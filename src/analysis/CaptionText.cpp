#include "analysis/CaptionText.h"

#include "text/BoundedText.h"

void FormatCaption(char* szBuffer, int nSize, const char* szTemplate, const char* szArgument) {
    BoundedWriter writer(szBuffer, nSize);
    if (szTemplate == nullptr) return;
    bool bUsed = false;
    for (const char* p = szTemplate; *p != '\0'; ++p) {
        if (*p != '%') {
            writer.Put(*p);
            continue;
        }
        ++p;
        if (*p == '\0') return;
        if (*p == '%') {
            writer.Put('%');
        } else if ((*p == 's' || *p == 'd') && !bUsed) {
            bUsed = true;
            if (szArgument != nullptr) writer.Put(szArgument);
        }
    }
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
