// Named values kept as text, in the registry or in a private profile file.
//
// A value is addressed by section, key and, as the last argument of every operation, `szApp`. In
// registry mode it is a string value of the key g_hRootKey \ "Software" \ g_szRegistryRoot \ szApp
// \ section; in profile mode `szApp` is the path of the file. Writes return whether they succeeded
// and have no other effect when they did not. Reads return whether the value was found and give the
// default otherwise. No message is ever shown, and no key or file stays open between calls: see
// StoreBatch.h for a scope that opens the store once for many values. For the user-interface thread
// only.
#pragma once

#include <cstddef>
#include <cstdint>

#include "platform/platform.h"

extern HKEY g_hRootKey;            // HKEY_CURRENT_USER at first
extern char g_szRegistryRoot[64];  // the branch under "Software"
extern bool g_bUseProfileFile;     // values go to a private profile file; false at first

// The environment variable that overrides the branch, for this process and those that it starts.
inline constexpr char kRegistryRootVariable[] = "ZDC_REGISTRY_ROOT";

// Sets the branch, cut to 63 characters, here and in the environment. Returns whether it fitted.
bool SetRegistryRoot(const char* szRoot);

// The branch, read anew from the environment if the variable is there. Null in profile mode.
const char* GetRegistryRoot();

// Returns the old value.
bool SetUseProfileFile(bool bUse);

// Makes `hKey` the root if "Software" can be opened under it, for writing too with `bWrite`.
bool SetRootKey(HKEY hKey, bool bWrite);

// Open the key of an application or of a section, with `bWrite` for writing and with missing keys
// created. The caller closes the key. Null on failure, and for an empty section name.
HKEY OpenApp(const char* szApp, bool bWrite);
HKEY OpenSection(const char* szSection, const char* szApp, bool bWrite);

// Reads a text into a buffer of `nSize` bytes, cut to it. The default may be the buffer itself; a
// null default is the empty text. A registry value of another type than text counts as missing.
bool ReadString(const char* szSection, const char* szKey, const char* szDefault, char* szBuffer,
                int nSize, const char* szApp);

// Writes a text. A null value deletes the key, a null key the section; all three null flush the
// store.
bool WriteString(const char* szSection, const char* szKey, const char* szValue, const char* szApp);

// Brings what the system holds back to the medium.
bool Flush(const char* szApp);

// Numbers. Booleans are written as "TRUE" and "FALSE"; float and double with six significant
// digits, so that a value with more comes back rounded, as the other modules that read the entries
// expect. Reads of unsigned and hexadecimal numbers take decimal, octal and "0x" forms.
bool WriteBool(const char* szSection, const char* szKey, std::int32_t bValue, const char* szApp);
bool WriteBool8(const char* szSection, const char* szKey, std::uint8_t bValue, const char* szApp);
bool WriteUInt32(const char* szSection, const char* szKey, std::uint32_t uValue, const char* szApp);
bool WriteUInt64(const char* szSection, const char* szKey, std::uint64_t uValue, const char* szApp);
bool WriteInt32(const char* szSection, const char* szKey, std::int32_t nValue, const char* szApp);
bool WriteInt16(const char* szSection, const char* szKey, std::int16_t nValue, const char* szApp);
bool WriteUInt16(const char* szSection, const char* szKey, std::uint16_t uValue, const char* szApp);
bool WriteHex32(const char* szSection, const char* szKey, std::uint32_t uValue, const char* szApp);
bool WriteFloat(const char* szSection, const char* szKey, float fValue, const char* szApp);
bool WriteDouble(const char* szSection, const char* szKey, double dValue, const char* szApp);

bool ReadBool(const char* szSection, const char* szKey, std::int32_t bDefault,
              std::int32_t* pbResult, const char* szApp);
bool ReadBool8(const char* szSection, const char* szKey, std::uint8_t bDefault,
               std::uint8_t* pbResult, const char* szApp);
bool ReadUInt32(const char* szSection, const char* szKey, std::uint32_t uDefault,
                std::uint32_t* puResult, const char* szApp);
bool ReadUInt64(const char* szSection, const char* szKey, std::uint64_t uDefault,
                std::uint64_t* puResult, const char* szApp);
bool ReadInt32(const char* szSection, const char* szKey, std::int32_t nDefault,
               std::int32_t* pnResult, const char* szApp);
bool ReadInt16(const char* szSection, const char* szKey, std::int16_t nDefault,
               std::int16_t* pnResult, const char* szApp);
bool ReadUInt16(const char* szSection, const char* szKey, std::uint16_t uDefault,
                std::uint16_t* puResult, const char* szApp);
bool ReadHex32(const char* szSection, const char* szKey, std::uint32_t uDefault,
               std::uint32_t* puResult, const char* szApp);
bool ReadFloat(const char* szSection, const char* szKey, float fDefault, float* pfResult,
               const char* szApp);
bool ReadDouble(const char* szSection, const char* szKey, double dDefault, double* pdResult,
                const char* szApp);

// Records. A default may be null: a missing or unreadable value then leaves the result as it is. A
// font whose text is short is left partly filled.
bool WriteRect(const char* szSection, const char* szKey, const RECT* pRect, const char* szApp);
bool WritePoint(const char* szSection, const char* szKey, const POINT* pPoint, const char* szApp);
bool WriteFont(const char* szSection, const char* szKey, const LOGFONTA* pFont, const char* szApp);
bool ReadRect(const char* szSection, const char* szKey, const RECT* pDefault, RECT* pResult,
              const char* szApp);
bool ReadPoint(const char* szSection, const char* szKey, const POINT* pDefault, POINT* pResult,
               const char* szApp);
bool ReadFont(const char* szSection, const char* szKey, const LOGFONTA* pDefault, LOGFONTA* pResult,
              const char* szApp);

// Bytes, in registry mode only. The read gives the size of the value through `pnSize` (may be
// null), and the value if the buffer is large enough; with a null buffer it gives the size alone.
bool WriteBinary(const char* szSection, const char* szKey, const void* pData, std::uint32_t nSize,
                 const char* szApp);
bool ReadBinary(const char* szSection, const char* szKey, void* pBuffer, std::uint32_t nBufferSize,
                std::uint32_t* pnSize, const char* szApp);

// Entries of a table, stored as what stands in it and read back as the index. `pnTable` ends with
// -1, `pszTable` with an empty text; a stored text has at most 31 characters and is compared
// exactly.
bool WriteIntIndex(const char* szSection, const char* szKey, const std::int32_t* pnTable,
                   int nIndex, const char* szApp);
bool WriteStringIndex(const char* szSection, const char* szKey, const char* const* pszTable,
                      int nIndex, const char* szApp);
bool ReadIntIndex(const char* szSection, const char* szKey, const std::int32_t* pnTable,
                  int nDefault, int* pnResult, const char* szApp);
bool ReadStringIndex(const char* szSection, const char* szKey, const char* const* pszTable,
                     int nDefault, int* pnResult, const char* szApp);

// Arrays: the element's index is added to the key. A write goes on after an element that failed. A
// read gives each element not found the one default, and returns whether all were found.
bool WriteInt32Array(const char* szSection, const char* szKey, const std::int32_t* pnValues,
                     int nCount, const char* szApp);
bool WriteBoolArray(const char* szSection, const char* szKey, const std::int32_t* pbValues,
                    int nCount, const char* szApp);
bool WriteBool8Array(const char* szSection, const char* szKey, const std::uint8_t* pbValues,
                     int nCount, const char* szApp);
bool WriteFloatArray(const char* szSection, const char* szKey, const float* pfValues, int nCount,
                     const char* szApp);
bool WriteDoubleArray(const char* szSection, const char* szKey, const double* pdValues, int nCount,
                      const char* szApp);
bool ReadInt32Array(const char* szSection, const char* szKey, std::int32_t nDefault,
                    std::int32_t* pnValues, int nCount, const char* szApp);
bool ReadBoolArray(const char* szSection, const char* szKey, std::int32_t bDefault,
                   std::int32_t* pbValues, int nCount, const char* szApp);
bool ReadBool8Array(const char* szSection, const char* szKey, std::uint8_t bDefault,
                    std::uint8_t* pbValues, int nCount, const char* szApp);
bool ReadFloatArray(const char* szSection, const char* szKey, float fDefault, float* pfValues,
                    int nCount, const char* szApp);
bool ReadDoubleArray(const char* szSection, const char* szKey, double dDefault, double* pdValues,
                     int nCount, const char* szApp);
