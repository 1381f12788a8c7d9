#include "store/ProfileStore.h"

#include <string>
#include <string_view>

#include "store/StoreBatch.h"
#include "text/BoundedText.h"

HKEY g_hRootKey = HKEY_CURRENT_USER;
char g_szRegistryRoot[64] = "Velantis";
bool g_bUseProfileFile = false;

namespace {

constexpr REGSAM kReadAccess = KEY_READ;
constexpr REGSAM kWriteAccess = KEY_READ | KEY_SET_VALUE | KEY_CREATE_SUB_KEY;

bool IsEmpty(const char* szText) {
    return szText == nullptr || *szText == '\0';
}

HKEY OpenPath(const std::string& sPath, bool bWrite) {
    HKEY hKey = nullptr;
    const LSTATUS nStatus =
        bWrite ? RegCreateKeyExA(g_hRootKey, sPath.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                                 kWriteAccess, nullptr, &hKey, nullptr)
               : RegOpenKeyExA(g_hRootKey, sPath.c_str(), 0, kReadAccess, &hKey);
    return nStatus == ERROR_SUCCESS ? hKey : nullptr;
}

std::string PathOfApp(const char* szApp) {
    const char* szRoot = GetRegistryRoot();
    if (IsEmpty(szRoot) || IsEmpty(szApp)) return {};
    std::string sPath = "Software\\";
    sPath += szRoot;
    sPath += '\\';
    sPath += szApp;
    return sPath;
}

// The key of a section for one operation: the open one of a batch, or one of its own.
class SectionKey {
  public:
    SectionKey(const char* szSection, const char* szApp, bool bWrite) {
        if (StoreBatch* pBatch = StoreBatch::Find(szApp)) {
            m_hKey = IsEmpty(szSection) ? nullptr : pBatch->SectionKey(szSection, bWrite);
        } else {
            m_hKey = OpenSection(szSection, szApp, bWrite);
            m_bOwned = true;
        }
    }
    ~SectionKey() {
        if (m_bOwned && m_hKey != nullptr) RegCloseKey(m_hKey);
    }
    SectionKey(const SectionKey&) = delete;
    SectionKey& operator=(const SectionKey&) = delete;

    HKEY Get() const { return m_hKey; }

  private:
    HKEY m_hKey = nullptr;
    bool m_bOwned = false;
};

// Cuts a registry text at its zero, which is not always stored.
std::string_view StoredText(const char* pData, DWORD uSize) {
    const std::string_view sData(pData, uSize);
    return sData.substr(0, sData.find('\0'));
}

bool ReadRegistryString(const char* szSection, const char* szKey, char* szBuffer, int nSize,
                        const char* szApp) {
    const SectionKey key(szSection, szApp, false);
    if (key.Get() == nullptr) return false;
    char szShort[512];
    DWORD uType = REG_NONE;
    DWORD uSize = sizeof szShort;
    LSTATUS nStatus = RegQueryValueExA(key.Get(), szKey, nullptr, &uType,
                                       reinterpret_cast<BYTE*>(szShort), &uSize);
    if (nStatus != ERROR_SUCCESS && nStatus != ERROR_MORE_DATA) return false;
    if (uType != REG_SZ && uType != REG_EXPAND_SZ) return false;
    if (nStatus == ERROR_SUCCESS) {
        CopyText(szBuffer, nSize, StoredText(szShort, uSize));
        return true;
    }
    std::string sLong(uSize, '\0');
    nStatus = RegQueryValueExA(key.Get(), szKey, nullptr, &uType,
                               reinterpret_cast<BYTE*>(sLong.data()), &uSize);
    if (nStatus != ERROR_SUCCESS) return false;
    CopyText(szBuffer, nSize, StoredText(sLong.data(), uSize));
    return true;
}

bool ReadProfileString(const char* szSection, const char* szKey, char* szBuffer, int nSize,
                       const char* szApp) {
    StoreBatch* pBatch = StoreBatch::Find(szApp);
    if (ProfileText* pText = pBatch != nullptr ? pBatch->Profile() : nullptr) {
        std::string_view sValue;
        if (!pText->Find(szSection, szKey, &sValue)) return false;
        CopyText(szBuffer, nSize, ProfileText::Unquoted(sValue));
        return true;
    }
    if (GetPrivateProfileStringA(szSection, szKey, "", szBuffer, static_cast<DWORD>(nSize), szApp) >
        0) {
        return true;
    }
    // An entry that is there, but empty, never gives the default.
    char szProbe[4];
    const DWORD uProbe =
        GetPrivateProfileStringA(szSection, szKey, "~", szProbe, sizeof szProbe, szApp);
    return uProbe != 1 || szProbe[0] != '~';
}

bool WriteProfileString(const char* szSection, const char* szKey, const char* szValue,
                        const char* szApp) {
    StoreBatch* pBatch = StoreBatch::Find(szApp);
    if (ProfileText* pText = pBatch != nullptr ? pBatch->Profile() : nullptr) {
        if (szSection == nullptr) return szKey == nullptr && pBatch->Commit();
        if (szKey == nullptr) {
            pText->RemoveSection(szSection);
        } else if (szValue == nullptr) {
            pText->RemoveKey(szSection, szKey);
        } else {
            pText->Set(szSection, szKey, szValue);
        }
        return true;
    }
    return WritePrivateProfileStringA(szSection, szKey, szValue, szApp) != 0;
}

bool DeleteRegistrySection(const char* szSection, const char* szApp) {
    if (IsEmpty(szSection)) return false;
    if (StoreBatch* pBatch = StoreBatch::Find(szApp)) pBatch->CloseKey();
    const HKEY hApp = OpenApp(szApp, true);
    if (hApp == nullptr) return false;
    const bool bDeleted = RegDeleteKeyA(hApp, szSection) == ERROR_SUCCESS;
    RegCloseKey(hApp);
    return bDeleted;
}

bool FlushRegistry(const char* szApp) {
    const HKEY hApp = OpenApp(szApp, true);
    if (hApp == nullptr) return false;
    const bool bFlushed = RegFlushKey(hApp) == ERROR_SUCCESS;
    RegCloseKey(hApp);
    return bFlushed;
}

bool WriteRegistryString(const char* szSection, const char* szKey, const char* szValue,
                         const char* szApp) {
    if (szSection == nullptr) {
        return szKey == nullptr && szValue == nullptr && FlushRegistry(szApp);
    }
    if (szKey == nullptr) return DeleteRegistrySection(szSection, szApp);
    const SectionKey key(szSection, szApp, true);
    if (key.Get() == nullptr) return false;
    if (szValue == nullptr) return RegDeleteValueA(key.Get(), szKey) == ERROR_SUCCESS;
    const DWORD uSize = static_cast<DWORD>(std::string_view(szValue).size()) + 1;
    return RegSetValueExA(key.Get(), szKey, 0, REG_SZ, reinterpret_cast<const BYTE*>(szValue),
                          uSize) == ERROR_SUCCESS;
}

}  // namespace

bool SetRegistryRoot(const char* szRoot) {
    if (szRoot == nullptr) return false;
    StoreBatch::CloseAllKeys();
    const int nCopied = CopyText(g_szRegistryRoot, szRoot);
    SetEnvironmentVariableA(kRegistryRootVariable, g_szRegistryRoot);
    return szRoot[nCopied] == '\0';
}

const char* GetRegistryRoot() {
    if (g_bUseProfileFile) return nullptr;
    char szValue[256];
    const DWORD uNeeded = GetEnvironmentVariableA(kRegistryRootVariable, szValue, sizeof szValue);
    if (uNeeded > 0 && uNeeded < sizeof szValue) {
        CopyText(g_szRegistryRoot, szValue);
    } else if (uNeeded > 0) {
        std::string sLong(uNeeded, '\0');
        GetEnvironmentVariableA(kRegistryRootVariable, sLong.data(), uNeeded);
        CopyText(g_szRegistryRoot, sLong.c_str());
    }
    return g_szRegistryRoot;
}

bool SetUseProfileFile(bool bUse) {
    const bool bOld = g_bUseProfileFile;
    g_bUseProfileFile = bUse;
    return bOld;
}

bool SetRootKey(HKEY hKey, bool bWrite) {
    if (hKey == nullptr) return false;
    HKEY hSoftware = nullptr;
    if (RegOpenKeyExA(hKey, "Software", 0, bWrite ? kWriteAccess : kReadAccess, &hSoftware) !=
        ERROR_SUCCESS) {
        return false;
    }
    RegCloseKey(hSoftware);
    StoreBatch::CloseAllKeys();
    g_hRootKey = hKey;
    return true;
}

HKEY OpenApp(const char* szApp, bool bWrite) {
    const std::string sPath = PathOfApp(szApp);
    return sPath.empty() ? nullptr : OpenPath(sPath, bWrite);
}

HKEY OpenSection(const char* szSection, const char* szApp, bool bWrite) {
    if (IsEmpty(szSection)) return nullptr;
    std::string sPath = PathOfApp(szApp);
    if (sPath.empty()) return nullptr;
    sPath += '\\';
    sPath += szSection;
    return OpenPath(sPath, bWrite);
}

bool ReadString(const char* szSection, const char* szKey, const char* szDefault, char* szBuffer,
                int nSize, const char* szApp) {
    if (szBuffer == nullptr || nSize <= 0) return false;
    // A load passes the field's present value as its default, and the system's functions write into
    // the buffer even when they find nothing.
    std::string sSaved;
    if (szDefault == szBuffer) {
        szBuffer[nSize - 1] = '\0';
        sSaved = szBuffer;
        szDefault = sSaved.c_str();
    }
    szBuffer[0] = '\0';
    const bool bAddressed = szSection != nullptr && szKey != nullptr && szApp != nullptr;
    const bool bFound =
        bAddressed &&
        (g_bUseProfileFile ? ReadProfileString(szSection, szKey, szBuffer, nSize, szApp)
                           : ReadRegistryString(szSection, szKey, szBuffer, nSize, szApp));
    if (!bFound) CopyText(szBuffer, nSize, szDefault);
    return bFound;
}

bool WriteString(const char* szSection, const char* szKey, const char* szValue, const char* szApp) {
    if (szApp == nullptr) return false;
    return g_bUseProfileFile ? WriteProfileString(szSection, szKey, szValue, szApp)
                             : WriteRegistryString(szSection, szKey, szValue, szApp);
}

bool Flush(const char* szApp) {
    return WriteString(nullptr, nullptr, nullptr, szApp);
}

bool WriteBinary(const char* szSection, const char* szKey, const void* pData, std::uint32_t nSize,
                 const char* szApp) {
    if (g_bUseProfileFile || szKey == nullptr || (pData == nullptr && nSize != 0)) return false;
    const SectionKey key(szSection, szApp, true);
    return key.Get() != nullptr &&
           RegSetValueExA(key.Get(), szKey, 0, REG_BINARY, static_cast<const BYTE*>(pData),
                          nSize) == ERROR_SUCCESS;
}

bool ReadBinary(const char* szSection, const char* szKey, void* pBuffer, std::uint32_t nBufferSize,
                std::uint32_t* pnSize, const char* szApp) {
    if (pnSize != nullptr) *pnSize = 0;
    if (g_bUseProfileFile || szKey == nullptr) return false;
    const SectionKey key(szSection, szApp, false);
    if (key.Get() == nullptr) return false;
    DWORD uType = REG_NONE;
    DWORD uSize = 0;
    if (RegQueryValueExA(key.Get(), szKey, nullptr, &uType, nullptr, &uSize) != ERROR_SUCCESS ||
        uType != REG_BINARY) {
        return false;
    }
    if (pnSize != nullptr) *pnSize = uSize;
    if (pBuffer == nullptr) return true;
    return uSize <= nBufferSize &&
           RegQueryValueExA(key.Get(), szKey, nullptr, &uType, static_cast<BYTE*>(pBuffer),
                            &uSize) == ERROR_SUCCESS;
}
