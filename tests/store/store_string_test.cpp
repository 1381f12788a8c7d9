// Texts of the store, its addresses, and what it does when a store can't be used.
#include <cstring>

#include "store_test.h"

namespace {

TEST_F(StoreTest, DefaultsOfTheProcess) {
    EXPECT_EQ(g_hRootKey, HKEY_CURRENT_USER);
    EXPECT_FALSE(g_bUseProfileFile);
    EXPECT_EQ(sizeof g_szRegistryRoot, 64u);
}

TEST_F(StoreTest, StringSurvivesAWriteAndARead) {
    InBothMedia([](const char* szApp) {
        EXPECT_TRUE(WriteString("Section", "Key", "some text = with; signs", szApp));
        EXPECT_EQ(Text("Section", "Key", szApp), "some text = with; signs");
        EXPECT_EQ(Text("SECTION", "key", szApp), "some text = with; signs");
        EXPECT_TRUE(WriteString("Section", "Key", "\xB5\xC4", szApp));
        EXPECT_EQ(Text("Section", "Key", szApp), "\xB5\xC4");
    });
}

TEST_F(StoreTest, MissingStringGivesTheDefault) {
    InBothMedia([](const char* szApp) {
        char szText[8] = "xxxxxxx";
        EXPECT_FALSE(ReadString("Section", "Key", "default text", szText, sizeof szText, szApp));
        EXPECT_STREQ(szText, "default");
        EXPECT_FALSE(ReadString("Section", "Key", nullptr, szText, sizeof szText, szApp));
        EXPECT_STREQ(szText, "");
        EXPECT_TRUE(WriteString("Section", "Other", "1", szApp));
        EXPECT_FALSE(ReadString("Section", "Key", "d", szText, sizeof szText, szApp));
        EXPECT_STREQ(szText, "d");
    });
}

TEST_F(StoreTest, BufferMayBeItsOwnDefault) {
    InBothMedia([](const char* szApp) {
        char szText[16] = "kept";
        EXPECT_FALSE(ReadString("Section", "Key", szText, szText, sizeof szText, szApp));
        EXPECT_STREQ(szText, "kept");
        WriteString("Section", "Key", "stored", szApp);
        EXPECT_TRUE(ReadString("Section", "Key", szText, szText, sizeof szText, szApp));
        EXPECT_STREQ(szText, "stored");
    });
}

TEST_F(StoreTest, EmptyStringIsFound) {
    InBothMedia([](const char* szApp) {
        EXPECT_TRUE(WriteString("Section", "Key", "", szApp));
        char szText[16] = "xxx";
        EXPECT_TRUE(ReadString("Section", "Key", "default", szText, sizeof szText, szApp));
        EXPECT_STREQ(szText, "");
    });
}

TEST_F(StoreTest, ReadIsCutToTheBuffer) {
    InBothMedia([](const char* szApp) {
        WriteString("Section", "Key", "0123456789", szApp);
        char szText[8];
        std::memset(szText, 'x', sizeof szText);
        EXPECT_TRUE(ReadString("Section", "Key", nullptr, szText, 5, szApp));
        EXPECT_STREQ(szText, "0123");
        EXPECT_EQ(szText[5], 'x');
        EXPECT_TRUE(ReadString("Section", "Key", nullptr, szText, 1, szApp));
        EXPECT_STREQ(szText, "");
        EXPECT_FALSE(ReadString("Section", "Key", nullptr, szText, 0, szApp));
        EXPECT_FALSE(ReadString("Section", "Key", nullptr, nullptr, 5, szApp));
    });
}

TEST_F(StoreTest, LongTextsAreKeptWhole) {
    InBothMedia([](const char* szApp) {
        const std::string sLong(1500, 'q');
        EXPECT_TRUE(WriteString("Section", "Key", sLong.c_str(), szApp));
        EXPECT_EQ(Text("Section", "Key", szApp), sLong);
    });
}

TEST_F(StoreTest, NullValueDeletesTheKeyAndNullKeyTheSection) {
    InBothMedia([](const char* szApp) {
        WriteString("Section", "One", "1", szApp);
        WriteString("Section", "Two", "2", szApp);
        WriteString("Other", "Three", "3", szApp);
        EXPECT_TRUE(WriteString("Section", "One", nullptr, szApp));
        EXPECT_EQ(Text("Section", "One", szApp), "(missing)");
        EXPECT_EQ(Text("Section", "Two", szApp), "2");
        EXPECT_TRUE(WriteString("Section", nullptr, nullptr, szApp));
        EXPECT_EQ(Text("Section", "Two", szApp), "(missing)");
        EXPECT_EQ(Text("Other", "Three", szApp), "3");
    });
}

TEST_F(StoreTest, NullAddressesFindNothingAndWriteNothing) {
    InBothMedia([](const char* szApp) {
        char szText[16];
        EXPECT_FALSE(ReadString(nullptr, "Key", "d", szText, sizeof szText, szApp));
        EXPECT_STREQ(szText, "d");
        EXPECT_FALSE(ReadString("Section", nullptr, "d", szText, sizeof szText, szApp));
        EXPECT_FALSE(ReadString("Section", "Key", "d", szText, sizeof szText, nullptr));
        EXPECT_FALSE(WriteString("Section", "Key", "v", nullptr));
        EXPECT_FALSE(WriteString(nullptr, "Key", "v", szApp));
        EXPECT_FALSE(WriteInt32("Section", nullptr, 1, szApp));
    });
}

TEST_F(StoreTest, FlushReachesTheStore) {
    SetUseProfileFile(false);
    WriteString("Section", "Key", "1", "App");
    EXPECT_TRUE(Flush("App"));
    const char* szApp = UseProfile();
    WriteString("Section", "Key", "1", szApp);
    Flush(szApp);
    EXPECT_NE(m_scratch.ReadFile().find("Key=1"), std::string::npos);
}

TEST_F(StoreTest, RegistryAddressIsRootBranchAppAndSection) {
    WriteString("Section", "Key", "value", "App");
    HKEY hKey = nullptr;
    const std::string sPath = "Software\\" + Branch() + "\\App\\Section";
    ASSERT_EQ(RegOpenKeyExA(HKEY_CURRENT_USER, sPath.c_str(), 0, KEY_READ, &hKey), ERROR_SUCCESS);
    char szValue[16] = "";
    DWORD uType = 0;
    DWORD uSize = sizeof szValue;
    EXPECT_EQ(
        RegQueryValueExA(hKey, "Key", nullptr, &uType, reinterpret_cast<BYTE*>(szValue), &uSize),
        ERROR_SUCCESS);
    EXPECT_EQ(uType, static_cast<DWORD>(REG_SZ));
    EXPECT_EQ(uSize, 6u);  // with its final zero
    EXPECT_STREQ(szValue, "value");
    RegCloseKey(hKey);
}

TEST_F(StoreTest, OnlyTextsInTheRegistryCount) {
    const HKEY hKey = OpenSection("Section", "App", true);
    ASSERT_NE(hKey, nullptr);
    const DWORD uNumber = 5;
    RegSetValueExA(hKey, "Number", 0, REG_DWORD, reinterpret_cast<const BYTE*>(&uNumber),
                   sizeof uNumber);
    RegSetValueExA(hKey, "Expand", 0, REG_EXPAND_SZ, reinterpret_cast<const BYTE*>("%x%"), 4);
    RegSetValueExA(hKey, "Open", 0, REG_SZ, reinterpret_cast<const BYTE*>("open"), 4);
    RegCloseKey(hKey);
    EXPECT_EQ(Text("Section", "Number", "App"), "(missing)");
    EXPECT_EQ(Text("Section", "Expand", "App"), "%x%");
    EXPECT_EQ(Text("Section", "Open", "App"), "open");
}

TEST_F(StoreTest, EmptySectionNameOpensNothing) {
    EXPECT_EQ(OpenSection("", "App", true), nullptr);
    EXPECT_EQ(OpenSection(nullptr, "App", true), nullptr);
    EXPECT_EQ(OpenApp("", true), nullptr);
    EXPECT_FALSE(WriteString("", "Key", "v", "App"));
    EXPECT_EQ(OpenSection("Section", "App", false), nullptr) << "reading must not create";
    const HKEY hKey = OpenSection("Section", "App", true);
    EXPECT_NE(hKey, nullptr);
    RegCloseKey(hKey);
}

TEST_F(StoreTest, BranchIsCutToSixtyThreeCharacters) {
    EXPECT_TRUE(SetRegistryRoot(std::string(63, 'a').c_str()));
    EXPECT_EQ(std::string(g_szRegistryRoot), std::string(63, 'a'));
    EXPECT_FALSE(SetRegistryRoot(std::string(64, 'b').c_str()));
    EXPECT_EQ(std::string(g_szRegistryRoot), std::string(63, 'b'));
    char szValue[100] = "";
    GetEnvironmentVariableA("ZDC_REGISTRY_ROOT", szValue, sizeof szValue);
    EXPECT_EQ(std::string(szValue), std::string(63, 'b'));
    EXPECT_FALSE(SetRegistryRoot(nullptr));
}

TEST_F(StoreTest, EnvironmentOverridesTheBranchEachTime) {
    SetEnvironmentVariableA("ZDC_REGISTRY_ROOT", "from outside");
    EXPECT_STREQ(GetRegistryRoot(), "from outside");
    EXPECT_STREQ(g_szRegistryRoot, "from outside");
    SetEnvironmentVariableA("ZDC_REGISTRY_ROOT", nullptr);
    EXPECT_STREQ(GetRegistryRoot(), "from outside");
    SetEnvironmentVariableA("ZDC_REGISTRY_ROOT", std::string(300, 'z').c_str());
    EXPECT_EQ(std::string(GetRegistryRoot()), std::string(63, 'z'));
}

TEST_F(StoreTest, ProfileModeHasNoBranch) {
    EXPECT_FALSE(SetUseProfileFile(true));
    EXPECT_EQ(GetRegistryRoot(), nullptr);
    EXPECT_TRUE(SetUseProfileFile(false));
}

TEST_F(StoreTest, RootKeyNeedsSoftwareBelowIt) {
    EXPECT_FALSE(SetRootKey(nullptr, false));
    HKEY hBranch = nullptr;
    ASSERT_EQ(RegCreateKeyExA(HKEY_CURRENT_USER, m_scratch.RegistryBranch().c_str(), 0, nullptr, 0,
                              KEY_ALL_ACCESS, nullptr, &hBranch, nullptr),
              ERROR_SUCCESS);
    EXPECT_FALSE(SetRootKey(hBranch, false));
    EXPECT_EQ(g_hRootKey, HKEY_CURRENT_USER);
    HKEY hSoftware = nullptr;
    ASSERT_EQ(RegCreateKeyExA(hBranch, "Software", 0, nullptr, 0, KEY_ALL_ACCESS, nullptr,
                              &hSoftware, nullptr),
              ERROR_SUCCESS);
    RegCloseKey(hSoftware);
    EXPECT_TRUE(SetRootKey(hBranch, true));
    EXPECT_EQ(g_hRootKey, hBranch);
    EXPECT_TRUE(WriteString("Section", "Key", "below", "App"));
    EXPECT_EQ(Text("Section", "Key", "App"), "below");
    EXPECT_TRUE(SetRootKey(HKEY_CURRENT_USER, true));
    EXPECT_EQ(Text("Section", "Key", "App"), "(missing)");
    RegCloseKey(hBranch);
}

TEST_F(StoreTest, StoreThatCanNotBeOpenedReadsAsMissing) {
    SetUseProfileFile(true);
    const std::string sNowhere = m_scratch.File("no folder") + "/settings.ini";
    EXPECT_FALSE(WriteString("Section", "Key", "v", sNowhere.c_str()));
    EXPECT_EQ(Text("Section", "Key", sNowhere.c_str()), "(missing)");
    EXPECT_FALSE(WriteString("Section", "Key", "v", m_scratch.Folder().c_str()));
    EXPECT_EQ(Text("Section", "Key", m_scratch.Folder().c_str()), "(missing)");
}

TEST_F(StoreTest, ProfileCutInTheMiddleOfALineLosesNothingElse) {
    const char* szApp = UseProfile();
    m_scratch.WriteFile("[Section]\r\nOne=1\r\nTwo=2\r\nThr");
    EXPECT_EQ(Text("Section", "One", szApp), "1");
    EXPECT_EQ(Text("Section", "Thr", szApp), "(missing)");
    EXPECT_TRUE(WriteString("Section", "Four", "4", szApp));
    EXPECT_EQ(Text("Section", "One", szApp), "1");
    EXPECT_EQ(Text("Section", "Two", szApp), "2");
    EXPECT_EQ(Text("Section", "Four", szApp), "4");
    m_scratch.WriteFile("[Sect");
    EXPECT_EQ(Text("Sect", "One", szApp), "(missing)");
}

TEST_F(StoreTest, ProfileOfAnyBytesIsRead) {
    const char* szApp = UseProfile();
    std::string sBytes;
    for (int i = 1; i < 256; ++i) sBytes += static_cast<char>(i);
    m_scratch.WriteFile(sBytes + "\r\n[Section]\r\nKey=\xFF\xFE\r\n");
    EXPECT_EQ(Text("Section", "Key", szApp), "\xFF\xFE");
}

}  // namespace
