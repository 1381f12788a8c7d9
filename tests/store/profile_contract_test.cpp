// What the platform's profile, registry, environment and path functions do, as the store relies on
// it.
#include <cstring>
#include <string>

#include "store_test.h"

namespace {

class PlatformStore : public StoreTest {
  protected:
    // The bytes that a call put into a buffer, with its zeros, as "text|..." and its result.
    struct Answer {
        DWORD uResult;
        std::string sBytes;
    };
    Answer Get(const char* szSection, const char* szKey, const char* szDefault, DWORD uSize) const {
        std::string sBuffer(600, '#');
        const DWORD uResult = GetPrivateProfileStringA(szSection, szKey, szDefault, sBuffer.data(),
                                                       uSize, m_scratch.ProfileFile().c_str());
        return {uResult, sBuffer.substr(0, uResult + 1)};
    }
};

const std::string kZero(1, '\0');

TEST_F(PlatformStore, DefaultLosesTheBlanksAtItsEnd) {
    EXPECT_EQ(Get("S", "k", "def  ", 100).sBytes, "def" + kZero);
    EXPECT_EQ(Get("S", "k", " def", 100).sBytes, " def" + kZero);
    EXPECT_EQ(Get("S", "k", nullptr, 100).uResult, 0u);
}

TEST_F(PlatformStore, TextTooLongForTheBufferIsCut) {
    m_scratch.WriteFile("[S]\r\nk=abcdef\r\n");
    EXPECT_EQ(Get("S", "k", "", 4).uResult, 3u);
    EXPECT_EQ(Get("S", "k", "", 4).sBytes, "abc" + kZero);
    EXPECT_EQ(Get("S", "k", "", 1).uResult, 0u);
    EXPECT_EQ(Get("S", "none", "uvwxyz", 4).sBytes, "uvw" + kZero);
}

TEST_F(PlatformStore, KeysAndSectionsAreListed) {
    m_scratch.WriteFile("[One]\r\na=1\r\n;c=2\r\nnoeq\r\n b = 2\r\n[Two]\r\n");
    EXPECT_EQ(Get("one", nullptr, "", 100).uResult, 4u);
    EXPECT_EQ(Get("one", nullptr, "", 100).sBytes, "a" + kZero + "b" + kZero + kZero);
    EXPECT_EQ(Get(nullptr, nullptr, "", 100).uResult, 8u);
    EXPECT_EQ(Get(nullptr, nullptr, "", 100).sBytes, "One" + kZero + "Two" + kZero + kZero);
    EXPECT_EQ(Get("Nope", nullptr, "dflt", 100).sBytes, "dflt" + kZero);
}

TEST_F(PlatformStore, ListTooLongForTheBufferIsTheSizeLessTwo) {
    m_scratch.WriteFile("[One]\r\nfirst=1\r\nsecond=2\r\n");
    EXPECT_EQ(Get("One", nullptr, "", 9).uResult, 7u);
    EXPECT_EQ(Get("One", nullptr, "", 9).sBytes.substr(0, 7), "first" + kZero + "s");
    char szBuffer[64];
    EXPECT_EQ(GetPrivateProfileSectionNamesA(szBuffer, 4, m_scratch.ProfileFile().c_str()), 2u);
}

TEST_F(PlatformStore, SectionIsListedWithItsValues) {
    m_scratch.WriteFile("[One]\r\na = 1 \r\n; c\r\nb=\"q\"\r\n");
    char szBuffer[64];
    ASSERT_EQ(GetPrivateProfileSectionA("ONE", szBuffer, sizeof szBuffer,
                                        m_scratch.ProfileFile().c_str()),
              10u);
    EXPECT_EQ(std::string(szBuffer, 11), "a=1" + kZero + "b=\"q\"" + kZero + kZero);
    EXPECT_EQ(GetPrivateProfileSectionA("One", szBuffer, 6, m_scratch.ProfileFile().c_str()), 4u);
    EXPECT_EQ(GetPrivateProfileSectionA("Nope", szBuffer, sizeof szBuffer,
                                        m_scratch.ProfileFile().c_str()),
              0u);
}

TEST_F(PlatformStore, SectionIsReplacedWhole) {
    const char* szFile = m_scratch.ProfileFile().c_str();
    m_scratch.WriteFile("[One]\r\na=1\r\nb=2\r\n[Two]\r\nc=3\r\n");
    EXPECT_TRUE(WritePrivateProfileSectionA("One", "x=9\0", szFile));
    EXPECT_EQ(Get("One", "a", "-", 50).sBytes, "-" + kZero);
    EXPECT_EQ(Get("One", "x", "-", 50).sBytes, "9" + kZero);
    EXPECT_EQ(Get("Two", "c", "-", 50).sBytes, "3" + kZero);
    EXPECT_TRUE(WritePrivateProfileSectionA("One", nullptr, szFile));
    EXPECT_EQ(Get(nullptr, nullptr, "", 50).sBytes, "Two" + kZero + kZero);
}

TEST_F(PlatformStore, NumbersAreReadFromTheFrontOfTheText) {
    m_scratch.WriteFile("[S]\r\na=12x\r\nb=-3\r\nc=rubbish\r\nd=0x1F\r\ne=\r\n");
    const char* szFile = m_scratch.ProfileFile().c_str();
    EXPECT_EQ(GetPrivateProfileIntA("S", "a", 9, szFile), 12u);
    EXPECT_EQ(static_cast<int>(GetPrivateProfileIntA("S", "b", 9, szFile)), -3);
    EXPECT_EQ(GetPrivateProfileIntA("S", "c", 9, szFile), 0u);
    EXPECT_EQ(GetPrivateProfileIntA("S", "d", 9, szFile), 31u);
    EXPECT_EQ(GetPrivateProfileIntA("S", "none", 9, szFile), 9u);
}

TEST_F(PlatformStore, DeletingWhatIsNotThereSucceeds) {
    const char* szFile = m_scratch.ProfileFile().c_str();
    EXPECT_TRUE(WritePrivateProfileStringA("S", "k", nullptr, szFile));
    EXPECT_TRUE(WritePrivateProfileStringA("S", nullptr, nullptr, szFile));
    EXPECT_EQ(GetFileAttributesA(szFile), INVALID_FILE_ATTRIBUTES);
    EXPECT_FALSE(WritePrivateProfileStringA(nullptr, nullptr, nullptr, szFile));
    EXPECT_FALSE(WritePrivateProfileStringA(nullptr, "k", "v", szFile));
}

TEST_F(PlatformStore, RegistryAnswersWithTheSizeItNeeds) {
    const HKEY hKey = OpenSection("Section", "App", true);
    ASSERT_NE(hKey, nullptr);
    const auto bytes = [](const char* sz) { return reinterpret_cast<const BYTE*>(sz); };
    EXPECT_EQ(RegSetValueExA(hKey, "V", 0, REG_SZ, bytes("hello"), 6), ERROR_SUCCESS);
    DWORD uType = 0;
    DWORD uSize = 0;
    EXPECT_EQ(RegQueryValueExA(hKey, "v", nullptr, &uType, nullptr, &uSize), ERROR_SUCCESS);
    EXPECT_EQ(uSize, 6u);
    EXPECT_EQ(uType, static_cast<DWORD>(REG_SZ));
    char szValue[8] = "#######";
    uSize = 3;
    EXPECT_EQ(
        RegQueryValueExA(hKey, "V", nullptr, nullptr, reinterpret_cast<BYTE*>(szValue), &uSize),
        ERROR_MORE_DATA);
    EXPECT_EQ(uSize, 6u);
    EXPECT_EQ(szValue[0], '#');
    EXPECT_EQ(RegQueryValueExA(hKey, "none", nullptr, nullptr, nullptr, &uSize),
              ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(RegDeleteValueA(hKey, "none"), ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(RegDeleteValueA(hKey, "v"), ERROR_SUCCESS);
    EXPECT_EQ(RegQueryValueExA(hKey, "V", nullptr, nullptr, nullptr, &uSize), ERROR_FILE_NOT_FOUND);
    RegCloseKey(hKey);
}

TEST_F(PlatformStore, RegistryKeysAreListedAndDeleted) {
    WriteString("One", "k", "1", "App");
    WriteString("Two", "k", "1", "App");
    const HKEY hApp = OpenApp("App", true);
    char szName[32];
    DWORD uName = sizeof szName;
    EXPECT_EQ(RegEnumKeyExA(hApp, 1, szName, &uName, nullptr, nullptr, nullptr, nullptr),
              ERROR_SUCCESS);
    EXPECT_STREQ(szName, "Two");
    EXPECT_EQ(uName, 3u);
    uName = sizeof szName;
    EXPECT_EQ(RegEnumKeyExA(hApp, 2, szName, &uName, nullptr, nullptr, nullptr, nullptr),
              ERROR_NO_MORE_ITEMS);
    uName = 3;
    EXPECT_EQ(RegEnumKeyExA(hApp, 1, szName, &uName, nullptr, nullptr, nullptr, nullptr),
              ERROR_MORE_DATA);
    const HKEY hOne = OpenSection("One", "App", true);
    uName = sizeof szName;
    char szData[8];
    DWORD uData = sizeof szData;
    EXPECT_EQ(RegEnumValueA(hOne, 0, szName, &uName, nullptr, nullptr,
                            reinterpret_cast<BYTE*>(szData), &uData),
              ERROR_SUCCESS);
    EXPECT_STREQ(szName, "k");
    EXPECT_STREQ(szData, "1");
    EXPECT_EQ(RegDeleteKeyA(hApp, "one"), ERROR_SUCCESS);
    EXPECT_EQ(RegDeleteKeyA(hApp, "one"), ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(RegSetValueExA(hOne, "k", 0, REG_SZ, reinterpret_cast<const BYTE*>("2"), 2),
              ERROR_KEY_DELETED);
    RegCloseKey(hOne);
    RegCloseKey(hApp);
    HKEY hBranch = nullptr;
    ASSERT_EQ(
        RegOpenKeyExA(HKEY_CURRENT_USER, m_scratch.RegistryBranch().c_str(), 0, KEY_READ, &hBranch),
        ERROR_SUCCESS);
    EXPECT_EQ(RegDeleteKeyA(hBranch, "App"), ERROR_ACCESS_DENIED)
        << "a key with keys below it stays";
    HKEY hNone = nullptr;
    EXPECT_EQ(RegOpenKeyExA(hBranch, "none", 0, KEY_READ, &hNone), ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(RegSetValueExA(hBranch, "v", 0, REG_SZ, reinterpret_cast<const BYTE*>("2"), 2),
              ERROR_ACCESS_DENIED)
        << "opened for reading";
    RegCloseKey(hBranch);
}

TEST_F(PlatformStore, CreationTellsWhetherTheKeyIsNew) {
    HKEY hKey = nullptr;
    DWORD uDisposition = 0;
    const std::string sPath = m_scratch.RegistryBranch() + "\\a\\b";
    EXPECT_EQ(RegCreateKeyExA(HKEY_CURRENT_USER, sPath.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS,
                              nullptr, &hKey, &uDisposition),
              ERROR_SUCCESS);
    EXPECT_EQ(uDisposition, static_cast<DWORD>(REG_CREATED_NEW_KEY));
    RegCloseKey(hKey);
    EXPECT_EQ(RegCreateKeyExA(HKEY_CURRENT_USER, sPath.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS,
                              nullptr, &hKey, &uDisposition),
              ERROR_SUCCESS);
    EXPECT_EQ(uDisposition, static_cast<DWORD>(REG_OPENED_EXISTING_KEY));
    RegCloseKey(hKey);
}

TEST_F(PlatformStore, VariablesAnswerWithTheSizeTheyNeed) {
    const test_support::ScopedEnvironment variable("ZX_TEST_VARIABLE", "abc");
    char szValue[8] = "#";
    EXPECT_EQ(GetEnvironmentVariableA("zx_test_variable", szValue, 3), 4u);
    EXPECT_EQ(GetEnvironmentVariableA("zx_test_variable", szValue, 4), 3u);
    EXPECT_STREQ(szValue, "abc");
    SetEnvironmentVariableA("ZX_TEST_VARIABLE", nullptr);
    EXPECT_EQ(GetEnvironmentVariableA("ZX_TEST_VARIABLE", szValue, 8), 0u);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_ENVVAR_NOT_FOUND));
}

TEST_F(PlatformStore, FullPathsHaveNoDotsAndNoSlashes) {
    struct Row {
        const char* szPath;
        const char* szFull;
        const char* szFile;
    };
    static constexpr Row kRows[] = {{"C:\\", "C:\\", nullptr},
                                    {"C:\\a\\..\\b\\.\\c", "C:\\b\\c", "c"},
                                    {"\\\\srv\\share\\x\\y", "\\\\srv\\share\\x\\y", "y"},
                                    {"\\\\srv\\share", "\\\\srv\\share", "share"},
                                    {"C:/x/y", "C:\\x\\y", "y"},
                                    {"C:\\a\\b\\", "C:\\a\\b\\", nullptr},
                                    {"C:\\a\\b.", "C:\\a\\b", "b"},
                                    {"C:\\..\\..\\a", "C:\\a", "a"}};
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.szPath);
        char szFull[300];
        char* pFile = szFull;
        EXPECT_EQ(GetFullPathNameA(row.szPath, sizeof szFull, szFull, &pFile),
                  std::strlen(row.szFull));
        EXPECT_STREQ(szFull, row.szFull);
        if (row.szFile == nullptr) {
            EXPECT_EQ(pFile, nullptr);
        } else {
            EXPECT_STREQ(pFile, row.szFile);
        }
    }
    char szSmall[4] = "#";
    EXPECT_EQ(GetFullPathNameA("C:\\abc", 4, szSmall, nullptr), 7u);
    EXPECT_EQ(GetFullPathNameA("", 4, szSmall, nullptr), 0u);
    char szRelative[600];
    char szCurrent[600];
    GetFullPathNameA("a\\b", sizeof szRelative, szRelative, nullptr);
    GetCurrentDirectoryA(sizeof szCurrent, szCurrent);
    EXPECT_EQ(std::string(szRelative), std::string(szCurrent) + "\\a\\b");
}

TEST_F(PlatformStore, FilesAreReplacedInOneStep) {
    const std::string sFrom = m_scratch.File("from.txt");
    const std::string sTo = m_scratch.File("to.txt");
    const auto write = [](const std::string& sPath, const char* szText) {
        const HANDLE hFile = CreateFileA(sPath.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                         FILE_ATTRIBUTE_NORMAL, nullptr);
        ASSERT_NE(hFile, INVALID_HANDLE_VALUE);
        DWORD uDone = 0;
        EXPECT_TRUE(
            WriteFile(hFile, szText, static_cast<DWORD>(std::strlen(szText)), &uDone, nullptr));
        EXPECT_EQ(uDone, std::strlen(szText));
        EXPECT_TRUE(FlushFileBuffers(hFile));
        EXPECT_TRUE(CloseHandle(hFile));
    };
    write(sFrom, "new text");
    write(sTo, "old");
    EXPECT_FALSE(MoveFileExA(sFrom.c_str(), sTo.c_str(), 0));
    EXPECT_TRUE(MoveFileExA(sFrom.c_str(), sTo.c_str(), MOVEFILE_REPLACE_EXISTING));
    EXPECT_EQ(GetFileAttributesA(sFrom.c_str()), INVALID_FILE_ATTRIBUTES);
    const HANDLE hFile = CreateFileA(sTo.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                     OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    ASSERT_NE(hFile, INVALID_HANDLE_VALUE);
    EXPECT_EQ(GetFileSize(hFile, nullptr), 8u);
    char szText[16] = "";
    DWORD uDone = 0;
    EXPECT_TRUE(ReadFile(hFile, szText, 15, &uDone, nullptr));
    EXPECT_EQ(std::string(szText, uDone), "new text");
    EXPECT_TRUE(CloseHandle(hFile));
    EXPECT_TRUE(DeleteFileA(sTo.c_str()));
    EXPECT_FALSE(DeleteFileA(sTo.c_str()));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_FILE_NOT_FOUND));
    EXPECT_EQ(CreateFileA(sTo.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr),
              INVALID_HANDLE_VALUE);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_FILE_NOT_FOUND));
}

TEST_F(PlatformStore, TemporaryNamesAreNewFiles) {
    char szFirst[MAX_PATH];
    char szSecond[MAX_PATH];
    ASSERT_NE(GetTempFileNameA(m_scratch.Folder().c_str(), "zxt", 0, szFirst), 0u);
    ASSERT_NE(GetTempFileNameA(m_scratch.Folder().c_str(), "zxt", 0, szSecond), 0u);
    EXPECT_STRNE(szFirst, szSecond);
    EXPECT_NE(GetFileAttributesA(szFirst), INVALID_FILE_ATTRIBUTES);
    EXPECT_EQ(GetTempFileNameA(m_scratch.File("none").c_str(), "zxt", 0, szFirst), 0u);
}

}  // namespace
