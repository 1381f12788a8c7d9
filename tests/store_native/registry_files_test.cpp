// The text files behind the headless registry: what they hold, and what happens when they are
// damaged or can't be written.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "fixtures/ScratchStore.h"
#include "platform/headless/registry_store.h"
#include "platform/platform.h"
#include "store/ProfileStore.h"
#include "store/StoreBatch.h"

namespace {

class RegistryFiles : public testing::Test {
  protected:
    RegistryFiles()
        : m_home("ZX_HEADLESS_HOME", m_scratch.Folder().c_str()),
          m_branch(kRegistryRootVariable, "Branch") {}

    std::string Path(const std::string& sFile) const {
        return m_scratch.Folder() + "/registry/" + sFile;
    }
    std::string AppFile() const { return Path("hkcu%5csoftware%5cbranch%5capp.txt"); }

    static std::string Read(const std::string& sPath) {
        std::ifstream in(sPath, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    }
    static void Write(const std::string& sPath, const std::string& sText) {
        // A new name in the folder is what tells the registry that something changed.
        std::ofstream(sPath + ".new", std::ios::binary) << sText;
        std::filesystem::rename(sPath + ".new", sPath);
    }
    static std::string Value(const char* szKey) {
        char szText[100];
        ReadString("Section", szKey, "(missing)", szText, sizeof szText, "App");
        return szText;
    }

    test_support::ScratchStore m_scratch;
    test_support::ScopedEnvironment m_home;
    test_support::ScopedEnvironment m_branch;
};

TEST_F(RegistryFiles, ApplicationHasOneReadableFile) {
    WriteString("Section", "Key", "a \"text\"\\\n", "App");
    WriteBinary("Section", "Bytes", "\0\xFF", 2, "App");
    WriteString("Other", "Key", "1", "App");
    EXPECT_EQ(Read(AppFile()),
              "ZX registry 1\n"
              "[HKCU\\Software\\Branch\\App]\n"
              "[HKCU\\Software\\Branch\\App\\Other]\n"
              "1 \"Key\" \"1\"\n"
              "[HKCU\\Software\\Branch\\App\\Section]\n"
              "1 \"Key\" \"a \\22text\\22\\5c\\0a\"\n"
              "3 \"Bytes\" x00ff\n"
              "end\n");
}

TEST_F(RegistryFiles, NothingIsLeftBesideTheFiles) {
    WriteString("Section", "Key", "1", "App");
    for (const auto& entry : std::filesystem::directory_iterator(Path(""))) {
        EXPECT_EQ(entry.path().extension(), ".txt") << entry.path();
    }
}

TEST_F(RegistryFiles, ChangeOfAnotherProcessIsSeen) {
    WriteString("Section", "Key", "1", "App");
    std::string sText = Read(AppFile());
    sText.replace(sText.find("\"1\""), 3, "\"2\"");
    Write(AppFile(), sText);
    EXPECT_EQ(Value("Key"), "2");
}

TEST_F(RegistryFiles, DamagedFileFailsEveryCallAndStaysAsItIs) {
    WriteString("Section", "Key", "1", "App");
    WriteString("Section", "Key", "2", "Second");
    const std::string sWhole = Read(AppFile());
    for (std::size_t nCut = 0; nCut < sWhole.size(); ++nCut) {
        SCOPED_TRACE(nCut);
        Write(AppFile(), sWhole.substr(0, nCut));
        ASSERT_EQ(Value("Key"), "(missing)");
        ASSERT_FALSE(WriteString("Section", "New", "3", "App"));
        ASSERT_EQ(Read(AppFile()), sWhole.substr(0, nCut));
        char szText[10];
        ASSERT_TRUE(ReadString("Section", "Key", nullptr, szText, sizeof szText, "Second"));
    }
    Write(AppFile(), sWhole);
    EXPECT_EQ(Value("Key"), "1");
}

TEST_F(RegistryFiles, RubbishIsRefused) {
    std::vector<headless::RegistryFileKey> keys;
    for (const char* szText :
         {"", "end\n", "ZX registry 2\nend\n", "ZX registry 1\n1 \"a\" \"b\"\nend\n",
          "ZX registry 1\n[k]\n1 a \"b\"\nend\n", "ZX registry 1\n[k]\n1 \"a\" x0\nend\n",
          "ZX registry 1\n[k]\n1 \"a\" \"b\nend\n", "ZX registry 1\n[k]\nend\nmore\n",
          "ZX registry 1\n[k]\n99999999999 \"a\" \"b\"\nend\n",
          "ZX registry 1\n[k]\n1 \"a\\zz\" \"b\"\nend\n",
          "ZX registry 1\n[k]\n1 \"a\" \"b\"\nend"}) {
        EXPECT_FALSE(headless::ParseRegistryFile(szText, &keys)) << szText;
    }
    EXPECT_TRUE(headless::ParseRegistryFile("ZX registry 1\nend\n", &keys));
}

TEST_F(RegistryFiles, HomeThatCanNotBeMadeFailsEveryWrite) {
    std::ofstream(m_scratch.File("file")) << "not a folder";
    SetEnvironmentVariableA("ZX_HEADLESS_HOME", m_scratch.File("file").c_str());
    EXPECT_FALSE(WriteString("Section", "Key", "1", "App"));
    EXPECT_EQ(Value("Key"), "(missing)");
    StoreBatch batch("App");
    EXPECT_FALSE(WriteString("Section", "Key", "1", "App"));
}

TEST_F(RegistryFiles, DeletedKeysLeaveTheFile) {
    WriteString("Section", "Key", "1", "App");
    HKEY hSoftware = nullptr;
    ASSERT_EQ(RegOpenKeyExA(HKEY_CURRENT_USER, "Software", 0, KEY_ALL_ACCESS, &hSoftware),
              ERROR_SUCCESS);
    EXPECT_EQ(RegDeleteTreeA(hSoftware, "Branch"), ERROR_SUCCESS);
    RegCloseKey(hSoftware);
    EXPECT_FALSE(std::filesystem::exists(AppFile()));
    EXPECT_EQ(Value("Key"), "(missing)");
}

TEST_F(RegistryFiles, ReadOnlyProfileIsNotReplaced) {
    m_scratch.WriteFile("[S]\r\nk=1\r\n");
    const char* szFile = m_scratch.ProfileFile().c_str();
    chmod(szFile, 0444);
    EXPECT_FALSE(WritePrivateProfileStringA("S", "k", "2", szFile));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_ACCESS_DENIED));
    EXPECT_EQ(m_scratch.ReadFile(), "[S]\r\nk=1\r\n");
}

TEST_F(RegistryFiles, ReplacedProfileKeepsItsPermissions) {
    m_scratch.WriteFile("[S]\r\nk=1\r\n");
    const char* szFile = m_scratch.ProfileFile().c_str();
    chmod(szFile, 0600);
    EXPECT_TRUE(WritePrivateProfileStringA("S", "k", "2", szFile));
    struct stat state = {};
    ASSERT_EQ(stat(szFile, &state), 0);
    EXPECT_EQ(state.st_mode & 0777, 0600u);
}

TEST_F(RegistryFiles, DrivesAndSharesAreFoldersOfTheHome) {
    const auto write = [](const char* szPath) {
        const HANDLE hFile = CreateFileA(szPath, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                         FILE_ATTRIBUTE_NORMAL, nullptr);
        ASSERT_NE(hFile, INVALID_HANDLE_VALUE) << szPath;
        CloseHandle(hFile);
    };
    write("C:\\a.txt");
    EXPECT_TRUE(std::filesystem::exists(m_scratch.Folder() + "/drive_c/a.txt"));
    std::filesystem::create_directories(m_scratch.Folder() + "/unc/server/share");
    write("\\\\server\\share\\b.txt");
    EXPECT_TRUE(std::filesystem::exists(m_scratch.Folder() + "/unc/server/share/b.txt"));
    std::string sRoot = "Z:" + m_scratch.Folder() + "/c.txt";
    for (char& ch : sRoot) {
        if (ch == '/') ch = '\\';
    }
    write(sRoot.c_str());
    EXPECT_TRUE(std::filesystem::exists(m_scratch.File("c.txt")));
}

}  // namespace
