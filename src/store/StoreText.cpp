#include "store/StoreText.h"

#include <charconv>
#include <string_view>

#include "text/BoundedText.h"
#include "text/NumberParse.h"

namespace {

constexpr int kGuidTextSize = 64;

int HexDigit(char ch) {
    if (ch >= '0' && ch <= '9') return ch - '0';
    if (ch >= 'a' && ch <= 'f') return ch - 'a' + 10;
    if (ch >= 'A' && ch <= 'F') return ch - 'A' + 10;
    return -1;
}

// Takes what stands between a first mark and the next end mark behind it; the whole text without
// them.
std::string_view Between(std::string_view sText, char chOpen, char chClose) {
    const std::size_t nOpen = sText.find(chOpen);
    if (nOpen == std::string_view::npos) return sText;
    const std::size_t nClose = sText.find(chClose, nOpen + 1);
    if (nClose == std::string_view::npos) return sText;
    return sText.substr(nOpen + 1, nClose - nOpen - 1);
}

// Reads the digits of one group; false when one of them is none.
bool ReadHexGroup(std::string_view sDigits, std::uint64_t* puValue) {
    *puValue = 0;
    for (const char ch : sDigits) {
        const int nDigit = HexDigit(ch);
        if (nDigit < 0) return false;
        *puValue = *puValue << 4 | static_cast<unsigned>(nDigit);
    }
    return true;
}

void PutHex(BoundedWriter& writer, std::uint64_t uValue, int nDigits) {
    for (int nShift = 4 * (nDigits - 1); nShift >= 0; nShift -= 4) {
        writer.Put("0123456789ABCDEF"[uValue >> nShift & 15]);
    }
}

}  // namespace

bool ParseInts(const char* szText, std::int32_t* pnValues, int nCount) {
    if (szText == nullptr) return false;
    for (int i = 0; i < nCount; ++i) {
        const char* pEnd = szText;
        pnValues[i] = TextToInt(szText, &pEnd);
        if (i + 1 == nCount) break;
        if (*pEnd == '\0') return false;
        szText = pEnd + 1;
    }
    return true;
}

bool ParseFontDefinition(const char* szText, LOGFONTA* pFont) {
    if (szText == nullptr) return false;
    LONG* const apnLong[] = {&pFont->lfHeight, &pFont->lfWidth, &pFont->lfEscapement,
                             &pFont->lfOrientation, &pFont->lfWeight};
    BYTE* const apbByte[] = {&pFont->lfItalic,  &pFont->lfUnderline,     &pFont->lfStrikeOut,
                             &pFont->lfCharSet, &pFont->lfOutPrecision,  &pFont->lfClipPrecision,
                             &pFont->lfQuality, &pFont->lfPitchAndFamily};
    const auto next = [&szText](std::int32_t* pnValue) {
        const char* pEnd = szText;
        *pnValue = TextToInt(szText, &pEnd);
        if (*pEnd == '\0') return false;
        szText = pEnd + 1;
        return true;
    };
    std::int32_t nValue = 0;
    for (LONG* pnLong : apnLong) {
        if (!next(&nValue)) return false;
        *pnLong = nValue;
    }
    for (BYTE* pbByte : apbByte) {
        if (!next(&nValue)) return false;
        *pbByte = static_cast<BYTE>(nValue);
    }
    while (*szText == ' ') ++szText;
    CopyText(pFont->lfFaceName, szText);
    return true;
}

void FormatFontDefinition(const LOGFONTA& font, char* szBuffer, int nSize) {
    const long anValues[] = {font.lfHeight,        font.lfWidth,         font.lfEscapement,
                             font.lfOrientation,   font.lfWeight,        font.lfItalic,
                             font.lfUnderline,     font.lfStrikeOut,     font.lfCharSet,
                             font.lfOutPrecision,  font.lfClipPrecision, font.lfQuality,
                             font.lfPitchAndFamily};
    BoundedWriter writer(szBuffer, nSize);
    for (const long nValue : anValues) {
        char szNumber[24];
        const auto end = std::to_chars(szNumber, szNumber + sizeof szNumber, nValue);
        writer.Put(std::string_view(szNumber, static_cast<std::size_t>(end.ptr - szNumber)));
        writer.Put(", ");
    }
    const std::string_view sName(font.lfFaceName, sizeof font.lfFaceName);
    writer.Put(sName.substr(0, sName.find('\0')));
}

bool ReadRegistryGuid(const char* szText, GUID* pResult) {
    if (szText == nullptr) return false;
    char szCut[kGuidTextSize];
    CopyText(szCut, szText);
    std::string_view sText = Between(Between(szCut, '"', '"'), '{', '}');
    while (!sText.empty() && sText.front() == ' ') sText.remove_prefix(1);
    constexpr std::size_t kLength = 36;
    if (sText.size() < kLength) return false;
    static constexpr int kGroups[] = {8, 4, 4, 4, 12};
    std::uint64_t auValues[5];
    std::size_t nPlace = 0;
    for (int i = 0; i < 5; ++i) {
        const std::size_t nDigits = static_cast<std::size_t>(kGroups[i]);
        if (i != 0 && sText[nPlace++] != '-') return false;
        if (!ReadHexGroup(sText.substr(nPlace, nDigits), &auValues[i])) return false;
        nPlace += nDigits;
    }
    // A digit too many makes the last group another one.
    if (sText.size() > kLength && HexDigit(sText[kLength]) >= 0) return false;
    pResult->Data1 = static_cast<std::uint32_t>(auValues[0]);
    pResult->Data2 = static_cast<std::uint16_t>(auValues[1]);
    pResult->Data3 = static_cast<std::uint16_t>(auValues[2]);
    for (int i = 0; i < 2; ++i) {
        pResult->Data4[i] = static_cast<std::uint8_t>(auValues[3] >> (8 * (1 - i)));
    }
    for (int i = 0; i < 6; ++i) {
        pResult->Data4[2 + i] = static_cast<std::uint8_t>(auValues[4] >> (8 * (5 - i)));
    }
    return true;
}

void FormatRegistryGuid(const GUID& guid, char* szBuffer, int nSize) {
    BoundedWriter writer(szBuffer, nSize);
    PutHex(writer, guid.Data1, 8);
    writer.Put('-');
    PutHex(writer, guid.Data2, 4);
    writer.Put('-');
    PutHex(writer, guid.Data3, 4);
    writer.Put('-');
    for (int i = 0; i < 8; ++i) {
        if (i == 2) writer.Put('-');
        PutHex(writer, guid.Data4[i], 2);
    }
}
