// The typed forms of the store: each is a text form over ReadString and WriteString.
#include <charconv>
#include <cstring>
#include <string_view>

#include "store/ProfileStore.h"
#include "store/StoreText.h"
#include "text/BoundedText.h"
#include "text/NumberParse.h"
#include "text/TextTests.h"

namespace {

constexpr int kValueSize = 256;     // the longest text of a number or record
constexpr int kKeySize = 260;       // the key of an array's element
constexpr int kTableTextSize = 32;  // a text of an enumeration

template <typename Integer>
bool WriteInteger(const char* szSection, const char* szKey, Integer nValue, const char* szApp) {
    char szText[24];
    *std::to_chars(szText, szText + sizeof szText - 1, nValue).ptr = '\0';
    return szKey != nullptr && WriteString(szSection, szKey, szText, szApp);
}

bool ToBool(const char* szText) {
    if (EqualNoCase(szText, "TRUE")) return true;
    if (EqualNoCase(szText, "FALSE")) return false;
    return TextToInt(szText) != 0;
}

// Reads a text and converts it; the default when there is none.
template <typename Value, typename Convert>
bool ReadValue(const char* szSection, const char* szKey, Value defaultValue, Value* pResult,
               const char* szApp, Convert convert) {
    char szText[kValueSize];
    const bool bFound = ReadString(szSection, szKey, nullptr, szText, kValueSize, szApp);
    *pResult = bFound ? static_cast<Value>(convert(szText)) : defaultValue;
    return bFound;
}

std::int32_t ToInt32(const char* szText) {
    return TextToInt(szText);
}

// Writes numbers with ", " between them.
void WriteInts(BoundedWriter& writer, const std::int32_t* pnValues, int nCount) {
    for (int i = 0; i < nCount; ++i) {
        char szNumber[12];
        const auto end = std::to_chars(szNumber, szNumber + sizeof szNumber, pnValues[i]);
        if (i != 0) writer.Put(", ");
        writer.Put(std::string_view(szNumber, static_cast<std::size_t>(end.ptr - szNumber)));
    }
}

bool WriteIntsText(const char* szSection, const char* szKey, const std::int32_t* pnValues,
                   int nCount, const char* szApp) {
    char szText[kValueSize];
    BoundedWriter writer(szText, kValueSize);
    WriteInts(writer, pnValues, nCount);
    return szKey != nullptr && WriteString(szSection, szKey, szText, szApp);
}

bool ReadIntsText(const char* szSection, const char* szKey, std::int32_t* pnValues, int nCount,
                  const char* szApp) {
    char szText[kValueSize];
    return ReadString(szSection, szKey, nullptr, szText, kValueSize, szApp) &&
           ParseInts(szText, pnValues, nCount);
}

// The key of an array's element, in a buffer of fixed size.
class ElementKey {
  public:
    ElementKey(const char* szKey, int nIndex) {
        BoundedWriter writer(m_szKey, kKeySize);
        if (szKey != nullptr) writer.Put(std::string_view(szKey));
        char szIndex[12];
        const auto end = std::to_chars(szIndex, szIndex + sizeof szIndex, nIndex);
        writer.Put(std::string_view(szIndex, static_cast<std::size_t>(end.ptr - szIndex)));
    }
    const char* Get() const { return m_szKey; }

  private:
    char m_szKey[kKeySize];
};

template <typename Value, typename Write>
bool WriteArray(const char* szSection, const char* szKey, const Value* pValues, int nCount,
                const char* szApp, Write write) {
    bool bAll = true;
    for (int i = 0; i < nCount; ++i) {
        bAll = write(szSection, ElementKey(szKey, i).Get(), pValues[i], szApp) && bAll;
    }
    return bAll;
}

template <typename Value, typename Read>
bool ReadArray(const char* szSection, const char* szKey, Value defaultValue, Value* pValues,
               int nCount, const char* szApp, Read read) {
    bool bAll = true;
    for (int i = 0; i < nCount; ++i) {
        bAll =
            read(szSection, ElementKey(szKey, i).Get(), defaultValue, &pValues[i], szApp) && bAll;
    }
    return bAll;
}

}  // namespace

bool WriteBool(const char* szSection, const char* szKey, std::int32_t bValue, const char* szApp) {
    return szKey != nullptr && WriteString(szSection, szKey, bValue != 0 ? "TRUE" : "FALSE", szApp);
}

bool WriteBool8(const char* szSection, const char* szKey, std::uint8_t bValue, const char* szApp) {
    return WriteBool(szSection, szKey, bValue, szApp);
}

bool WriteUInt32(const char* szSection, const char* szKey, std::uint32_t uValue,
                 const char* szApp) {
    return WriteInteger(szSection, szKey, uValue, szApp);
}

bool WriteUInt64(const char* szSection, const char* szKey, std::uint64_t uValue,
                 const char* szApp) {
    return WriteInteger(szSection, szKey, uValue, szApp);
}

bool WriteInt32(const char* szSection, const char* szKey, std::int32_t nValue, const char* szApp) {
    return WriteInteger(szSection, szKey, nValue, szApp);
}

bool WriteInt16(const char* szSection, const char* szKey, std::int16_t nValue, const char* szApp) {
    return WriteInt32(szSection, szKey, nValue, szApp);
}

bool WriteUInt16(const char* szSection, const char* szKey, std::uint16_t uValue,
                 const char* szApp) {
    return WriteInt32(szSection, szKey, uValue, szApp);
}

bool WriteHex32(const char* szSection, const char* szKey, std::uint32_t uValue, const char* szApp) {
    char szText[12] = "0x";
    char* pEnd = std::to_chars(szText + 2, szText + sizeof szText - 1, uValue, 16).ptr;
    *pEnd = '\0';
    for (char* p = szText + 2; p != pEnd; ++p) {
        if (*p >= 'a') *p = static_cast<char>(*p - 'a' + 'A');
    }
    return szKey != nullptr && WriteString(szSection, szKey, szText, szApp);
}

bool WriteFloat(const char* szSection, const char* szKey, float fValue, const char* szApp) {
    return WriteDouble(szSection, szKey, fValue, szApp);
}

bool WriteDouble(const char* szSection, const char* szKey, double dValue, const char* szApp) {
    char szText[32];
    WriteGeneral(dValue, szText);
    return szKey != nullptr && WriteString(szSection, szKey, szText, szApp);
}

bool ReadBool(const char* szSection, const char* szKey, std::int32_t bDefault,
              std::int32_t* pbResult, const char* szApp) {
    return ReadValue(szSection, szKey, bDefault, pbResult, szApp, ToBool);
}

bool ReadBool8(const char* szSection, const char* szKey, std::uint8_t bDefault,
               std::uint8_t* pbResult, const char* szApp) {
    return ReadValue(szSection, szKey, bDefault, pbResult, szApp, ToBool);
}

bool ReadUInt32(const char* szSection, const char* szKey, std::uint32_t uDefault,
                std::uint32_t* puResult, const char* szApp) {
    return ReadValue(szSection, szKey, uDefault, puResult, szApp, TextToUInt32);
}

bool ReadUInt64(const char* szSection, const char* szKey, std::uint64_t uDefault,
                std::uint64_t* puResult, const char* szApp) {
    return ReadValue(szSection, szKey, uDefault, puResult, szApp, TextToUInt64);
}

bool ReadInt32(const char* szSection, const char* szKey, std::int32_t nDefault,
               std::int32_t* pnResult, const char* szApp) {
    return ReadValue(szSection, szKey, nDefault, pnResult, szApp, ToInt32);
}

bool ReadInt16(const char* szSection, const char* szKey, std::int16_t nDefault,
               std::int16_t* pnResult, const char* szApp) {
    return ReadValue(szSection, szKey, nDefault, pnResult, szApp, ToInt32);
}

bool ReadUInt16(const char* szSection, const char* szKey, std::uint16_t uDefault,
                std::uint16_t* puResult, const char* szApp) {
    return ReadValue(szSection, szKey, uDefault, puResult, szApp, ToInt32);
}

bool ReadHex32(const char* szSection, const char* szKey, std::uint32_t uDefault,
               std::uint32_t* puResult, const char* szApp) {
    return ReadUInt32(szSection, szKey, uDefault, puResult, szApp);
}

bool ReadFloat(const char* szSection, const char* szKey, float fDefault, float* pfResult,
               const char* szApp) {
    return ReadValue(szSection, szKey, fDefault, pfResult, szApp, TextToDouble);
}

bool ReadDouble(const char* szSection, const char* szKey, double dDefault, double* pdResult,
                const char* szApp) {
    return ReadValue(szSection, szKey, dDefault, pdResult, szApp, TextToDouble);
}

bool WriteRect(const char* szSection, const char* szKey, const RECT* pRect, const char* szApp) {
    if (pRect == nullptr) return false;
    const std::int32_t anSides[] = {
        static_cast<std::int32_t>(pRect->left), static_cast<std::int32_t>(pRect->top),
        static_cast<std::int32_t>(pRect->right), static_cast<std::int32_t>(pRect->bottom)};
    return WriteIntsText(szSection, szKey, anSides, 4, szApp);
}

bool WritePoint(const char* szSection, const char* szKey, const POINT* pPoint, const char* szApp) {
    if (pPoint == nullptr) return false;
    const std::int32_t anPlace[] = {static_cast<std::int32_t>(pPoint->x),
                                    static_cast<std::int32_t>(pPoint->y)};
    return WriteIntsText(szSection, szKey, anPlace, 2, szApp);
}

bool WriteFont(const char* szSection, const char* szKey, const LOGFONTA* pFont, const char* szApp) {
    if (pFont == nullptr || szKey == nullptr) return false;
    char szText[kValueSize];
    FormatFontDefinition(*pFont, szText, kValueSize);
    return WriteString(szSection, szKey, szText, szApp);
}

bool ReadRect(const char* szSection, const char* szKey, const RECT* pDefault, RECT* pResult,
              const char* szApp) {
    std::int32_t anSides[4];
    if (ReadIntsText(szSection, szKey, anSides, 4, szApp)) {
        *pResult = {anSides[0], anSides[1], anSides[2], anSides[3]};
        return true;
    }
    if (pDefault != nullptr) *pResult = *pDefault;
    return false;
}

bool ReadPoint(const char* szSection, const char* szKey, const POINT* pDefault, POINT* pResult,
               const char* szApp) {
    std::int32_t anPlace[2];
    if (ReadIntsText(szSection, szKey, anPlace, 2, szApp)) {
        *pResult = {anPlace[0], anPlace[1]};
        return true;
    }
    if (pDefault != nullptr) *pResult = *pDefault;
    return false;
}

bool ReadFont(const char* szSection, const char* szKey, const LOGFONTA* pDefault, LOGFONTA* pResult,
              const char* szApp) {
    char szText[kValueSize];
    if (ReadString(szSection, szKey, nullptr, szText, kValueSize, szApp)) {
        return ParseFontDefinition(szText, pResult);
    }
    if (pDefault != nullptr) *pResult = *pDefault;
    return false;
}

bool WriteIntIndex(const char* szSection, const char* szKey, const std::int32_t* pnTable,
                   int nIndex, const char* szApp) {
    int nCount = 0;
    while (pnTable[nCount] != -1) ++nCount;
    return nIndex >= 0 && nIndex < nCount && WriteInt32(szSection, szKey, pnTable[nIndex], szApp);
}

bool WriteStringIndex(const char* szSection, const char* szKey, const char* const* pszTable,
                      int nIndex, const char* szApp) {
    int nCount = 0;
    while (*pszTable[nCount] != '\0') ++nCount;
    return nIndex >= 0 && nIndex < nCount && szKey != nullptr &&
           WriteString(szSection, szKey, pszTable[nIndex], szApp);
}

bool ReadIntIndex(const char* szSection, const char* szKey, const std::int32_t* pnTable,
                  int nDefault, int* pnResult, const char* szApp) {
    *pnResult = nDefault;
    std::int32_t nValue = 0;
    if (!ReadInt32(szSection, szKey, 0, &nValue, szApp)) return false;
    for (int i = 0; pnTable[i] != -1; ++i) {
        if (pnTable[i] == nValue) {
            *pnResult = i;
            return true;
        }
    }
    return false;
}

bool ReadStringIndex(const char* szSection, const char* szKey, const char* const* pszTable,
                     int nDefault, int* pnResult, const char* szApp) {
    *pnResult = nDefault;
    char szText[kTableTextSize];
    if (!ReadString(szSection, szKey, nullptr, szText, kTableTextSize, szApp)) return false;
    for (int i = 0; *pszTable[i] != '\0'; ++i) {
        if (std::strcmp(pszTable[i], szText) == 0) {
            *pnResult = i;
            return true;
        }
    }
    return false;
}

bool WriteInt32Array(const char* szSection, const char* szKey, const std::int32_t* pnValues,
                     int nCount, const char* szApp) {
    return WriteArray(szSection, szKey, pnValues, nCount, szApp, WriteInt32);
}

bool WriteBoolArray(const char* szSection, const char* szKey, const std::int32_t* pbValues,
                    int nCount, const char* szApp) {
    return WriteArray(szSection, szKey, pbValues, nCount, szApp, WriteBool);
}

bool WriteBool8Array(const char* szSection, const char* szKey, const std::uint8_t* pbValues,
                     int nCount, const char* szApp) {
    return WriteArray(szSection, szKey, pbValues, nCount, szApp, WriteBool8);
}

bool WriteFloatArray(const char* szSection, const char* szKey, const float* pfValues, int nCount,
                     const char* szApp) {
    return WriteArray(szSection, szKey, pfValues, nCount, szApp, WriteFloat);
}

bool WriteDoubleArray(const char* szSection, const char* szKey, const double* pdValues, int nCount,
                      const char* szApp) {
    return WriteArray(szSection, szKey, pdValues, nCount, szApp, WriteDouble);
}

bool ReadInt32Array(const char* szSection, const char* szKey, std::int32_t nDefault,
                    std::int32_t* pnValues, int nCount, const char* szApp) {
    return ReadArray(szSection, szKey, nDefault, pnValues, nCount, szApp, ReadInt32);
}

bool ReadBoolArray(const char* szSection, const char* szKey, std::int32_t bDefault,
                   std::int32_t* pbValues, int nCount, const char* szApp) {
    return ReadArray(szSection, szKey, bDefault, pbValues, nCount, szApp, ReadBool);
}

bool ReadBool8Array(const char* szSection, const char* szKey, std::uint8_t bDefault,
                    std::uint8_t* pbValues, int nCount, const char* szApp) {
    return ReadArray(szSection, szKey, bDefault, pbValues, nCount, szApp, ReadBool8);
}

bool ReadFloatArray(const char* szSection, const char* szKey, float fDefault, float* pfValues,
                    int nCount, const char* szApp) {
    return ReadArray(szSection, szKey, fDefault, pfValues, nCount, szApp, ReadFloat);
}

bool ReadDoubleArray(const char* szSection, const char* szKey, double dDefault, double* pdValues,
                     int nCount, const char* szApp) {
    return ReadArray(szSection, szKey, dDefault, pdValues, nCount, szApp, ReadDouble);
}
