#include "store/StoreBatch.h"

#include <utility>

#include "store/ProfileStore.h"

namespace {

StoreBatch* s_pInnermost = nullptr;

// A name without a folder stands in the system's own folder, as for the platform's profile
// functions.
std::string PathOfProfile(const std::string& sApp) {
    if (sApp.find_first_of("\\/:") != std::string::npos) return sApp;
    char szFolder[MAX_PATH];
    const UINT nLength = GetWindowsDirectoryA(szFolder, MAX_PATH);
    if (nLength == 0 || nLength >= MAX_PATH) return sApp;
    return std::string(szFolder, nLength) + "\\" + sApp;
}

std::string FolderOf(const std::string& sPath) {
    const std::size_t nEnd = sPath.find_last_of("\\/:");
    if (nEnd == std::string::npos) return ".";
    const bool bKeepEnd = sPath[nEnd] == ':' || nEnd == 0;
    return sPath.substr(0, bKeepEnd ? nEnd + 1 : nEnd);
}

enum class FileState { kRead, kMissing, kUnreadable };

FileState ReadWholeFile(const std::string& sPath, std::string* psText) {
    const HANDLE hFile =
        CreateFileA(sPath.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (hFile == INVALID_HANDLE_VALUE) {
        const DWORD uError = GetLastError();
        const bool bMissing = uError == ERROR_FILE_NOT_FOUND || uError == ERROR_PATH_NOT_FOUND;
        return bMissing ? FileState::kMissing : FileState::kUnreadable;
    }
    constexpr DWORD kBlock = 65536;
    const DWORD uSize = GetFileSize(hFile, nullptr);
    psText->reserve(uSize);
    FileState eState = FileState::kRead;
    for (;;) {
        const std::size_t nOld = psText->size();
        const DWORD uBlock = uSize > nOld ? static_cast<DWORD>(uSize - nOld) : kBlock;
        psText->resize(nOld + uBlock);
        DWORD uDone = 0;
        const bool bRead = ReadFile(hFile, psText->data() + nOld, uBlock, &uDone, nullptr) != 0;
        psText->resize(nOld + (bRead ? uDone : 0));
        if (!bRead) eState = FileState::kUnreadable;
        if (!bRead || uDone == 0 || psText->size() == uSize) break;
    }
    CloseHandle(hFile);
    return eState;
}

bool WriteWholeFile(const char* szPath, std::string_view sText) {
    const HANDLE hFile = CreateFileA(szPath, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                     FILE_ATTRIBUTE_NORMAL, nullptr);
    if (hFile == INVALID_HANDLE_VALUE) return false;
    const DWORD uSize = static_cast<DWORD>(sText.size());
    DWORD uDone = 0;
    bool bWritten = WriteFile(hFile, sText.data(), uSize, &uDone, nullptr) && uDone == uSize;
    // The bytes must be there before the new file takes the old one's name.
    bWritten = FlushFileBuffers(hFile) && bWritten;
    return CloseHandle(hFile) && bWritten;
}

}  // namespace

StoreBatch::StoreBatch(const char* szApp)
    : m_sApp(szApp == nullptr ? "" : szApp),
      m_bProfile(g_bUseProfileFile),
      m_bJoined(szApp == nullptr || Find(szApp) != nullptr),
      m_pOuter(s_pInnermost) {
    s_pInnermost = this;
}

StoreBatch::~StoreBatch() {
    Commit();
    s_pInnermost = m_pOuter;
}

StoreBatch* StoreBatch::Find(const char* szApp) {
    if (szApp == nullptr) return nullptr;
    for (StoreBatch* pBatch = s_pInnermost; pBatch != nullptr; pBatch = pBatch->m_pOuter) {
        if (!pBatch->m_bJoined && pBatch->m_bProfile == g_bUseProfileFile &&
            pBatch->m_sApp == szApp) {
            return pBatch;
        }
    }
    return nullptr;
}

HKEY StoreBatch::SectionKey(const char* szSection, bool bWrite) {
    if (m_hKey != nullptr && m_sSection == szSection && (m_bKeyWrites || !bWrite)) return m_hKey;
    CloseKey();
    m_hKey = OpenSection(szSection, m_sApp.c_str(), bWrite);
    if (m_hKey != nullptr) {
        m_bKeyWrites = bWrite;
        m_sSection = szSection;
    }
    return m_hKey;
}

void StoreBatch::CloseKey() {
    if (m_hKey != nullptr) RegCloseKey(m_hKey);
    m_hKey = nullptr;
}

void StoreBatch::CloseAllKeys() {
    for (StoreBatch* pBatch = s_pInnermost; pBatch != nullptr; pBatch = pBatch->m_pOuter) {
        pBatch->CloseKey();
    }
}

ProfileText* StoreBatch::Profile() {
    if (m_bLoaded) return m_pText.get();
    m_bLoaded = true;
    m_sPath = PathOfProfile(m_sApp);
    std::string sText;
    const FileState eState = ReadWholeFile(m_sPath, &sText);
    if (eState != FileState::kUnreadable && !ProfileText::IsUnicode(sText)) {
        m_pText = std::make_unique<ProfileText>(std::move(sText));
    }
    return m_pText.get();
}

bool StoreBatch::SaveProfile() {
    const DWORD uAttributes = GetFileAttributesA(m_sPath.c_str());
    if (uAttributes != INVALID_FILE_ATTRIBUTES &&
        (uAttributes & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY)) != 0) {
        return false;
    }
    char szNew[MAX_PATH];
    if (GetTempFileNameA(FolderOf(m_sPath).c_str(), "zxp", 0, szNew) == 0) return false;
    if (WriteWholeFile(szNew, m_pText->Text()) &&
        MoveFileExA(szNew, m_sPath.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) {
        return true;
    }
    DeleteFileA(szNew);
    return false;
}

bool StoreBatch::Commit() {
    CloseKey();
    const bool bSaved = m_pText == nullptr || !m_pText->IsChanged() || SaveProfile();
    m_pText.reset();
    m_bLoaded = false;
    return bSaved;
}
