// The registry functions on a branch of the current user.
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "fixtures/ScratchStore.h"
#include "platform/platform.h"

namespace {

using test_support::ScratchStore;

class Registry : public testing::Test {
  protected:
    void SetUp() override {
        DWORD disposition = 0;
        ASSERT_EQ(ERROR_SUCCESS, RegCreateKeyExA(HKEY_CURRENT_USER, store_.RegistryBranch().c_str(),
                                                 0, nullptr, REG_OPTION_NON_VOLATILE,
                                                 KEY_ALL_ACCESS, nullptr, &key_, &disposition));
        EXPECT_EQ(static_cast<DWORD>(REG_CREATED_NEW_KEY), disposition);
    }
    void TearDown() override { RegCloseKey(key_); }

    LSTATUS SetText(const char* name, const std::string& text) {
        return RegSetValueExA(key_, name, 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                              static_cast<DWORD>(text.size() + 1));
    }
    std::string GetText(const char* name) {
        char text[512] = "";
        DWORD size = sizeof text, type = 0;
        if (RegQueryValueExA(key_, name, nullptr, &type, reinterpret_cast<BYTE*>(text), &size) !=
            ERROR_SUCCESS)
            return "?";
        EXPECT_EQ(static_cast<DWORD>(REG_SZ), type);
        EXPECT_EQ(std::strlen(text) + 1, size);
        return text;
    }

    ScratchStore store_;
    HKEY key_ = nullptr;
};

TEST_F(Registry, KeepsTextNumbersAndBytes) {
    EXPECT_EQ(ERROR_SUCCESS, SetText("Text", "12.5 \xB5s"));
    EXPECT_EQ("12.5 \xB5s", GetText("Text"));
    const DWORD number = 0xDEADBEEF;
    EXPECT_EQ(ERROR_SUCCESS, RegSetValueExA(key_, "Number", 0, REG_DWORD,
                                            reinterpret_cast<const BYTE*>(&number), sizeof number));
    DWORD back = 0, size = sizeof back, type = 0;
    EXPECT_EQ(ERROR_SUCCESS, RegQueryValueExA(key_, "Number", nullptr, &type,
                                              reinterpret_cast<BYTE*>(&back), &size));
    EXPECT_EQ(number, back);
    EXPECT_EQ(static_cast<DWORD>(REG_DWORD), type);
    EXPECT_EQ(4u, size);
    const BYTE bytes[] = {0, 1, 255, 0, 13, 10, 0};
    EXPECT_EQ(ERROR_SUCCESS, RegSetValueExA(key_, "Bytes", 0, REG_BINARY, bytes, sizeof bytes));
    BYTE read[16] = {};
    size = sizeof read;
    EXPECT_EQ(ERROR_SUCCESS, RegQueryValueExA(key_, "Bytes", nullptr, &type, read, &size));
    EXPECT_EQ(sizeof bytes, size);
    EXPECT_EQ(static_cast<DWORD>(REG_BINARY), type);
    EXPECT_EQ(0, std::memcmp(bytes, read, sizeof bytes));
}

TEST_F(Registry, NamesHaveNoCaseAndMayBeEmpty) {
    SetText("Name", "1");
    EXPECT_EQ("1", GetText("NAME"));
    SetText("nAME", "2");
    EXPECT_EQ("2", GetText("Name"));
    SetText(nullptr, "default");
    EXPECT_EQ("default", GetText(""));
    EXPECT_EQ("default", GetText(nullptr));
}

TEST_F(Registry, TellsTheSizeThatABufferNeeds) {
    SetText("Text", "abcdef");
    DWORD size = 0, type = 0;
    EXPECT_EQ(ERROR_SUCCESS, RegQueryValueExA(key_, "Text", nullptr, &type, nullptr, &size));
    EXPECT_EQ(7u, size);
    char small[4] = "";
    size = sizeof small;
    EXPECT_EQ(ERROR_MORE_DATA, RegQueryValueExA(key_, "Text", nullptr, &type,
                                                reinterpret_cast<BYTE*>(small), &size));
    EXPECT_EQ(7u, size);
    EXPECT_EQ(ERROR_SUCCESS, RegQueryValueExA(key_, "Text", nullptr, nullptr, nullptr, nullptr));
}

TEST_F(Registry, GivesATextItsZeroWhenThereIsRoom) {
    RegSetValueExA(key_, "Raw", 0, REG_SZ, reinterpret_cast<const BYTE*>("abc"), 3);
    char text[8];
    std::memset(text, 'x', sizeof text);
    DWORD size = sizeof text;
    EXPECT_EQ(ERROR_SUCCESS, RegQueryValueExA(key_, "Raw", nullptr, nullptr,
                                              reinterpret_cast<BYTE*>(text), &size));
    EXPECT_STREQ("abc", text);
}

TEST_F(Registry, AMissingValueOrKeyIsNotFound) {
    DWORD size = 0;
    EXPECT_EQ(ERROR_FILE_NOT_FOUND,
              RegQueryValueExA(key_, "None", nullptr, nullptr, nullptr, &size));
    EXPECT_EQ(ERROR_FILE_NOT_FOUND, RegDeleteValueA(key_, "None"));
    HKEY sub = nullptr;
    EXPECT_EQ(ERROR_FILE_NOT_FOUND, RegOpenKeyExA(key_, "None", 0, KEY_READ, &sub));
    EXPECT_EQ(ERROR_FILE_NOT_FOUND, RegDeleteKeyA(key_, "None"));
}

TEST_F(Registry, CreatesAWholePathAndOpensItAgain) {
    HKEY deep = nullptr;
    DWORD disposition = 0;
    ASSERT_EQ(ERROR_SUCCESS, RegCreateKeyExA(key_, "one\\two\\three", 0, nullptr, 0, KEY_ALL_ACCESS,
                                             nullptr, &deep, &disposition));
    EXPECT_EQ(static_cast<DWORD>(REG_CREATED_NEW_KEY), disposition);
    RegCloseKey(deep);
    ASSERT_EQ(ERROR_SUCCESS, RegCreateKeyExA(key_, "ONE\\Two\\three", 0, nullptr, 0, KEY_ALL_ACCESS,
                                             nullptr, &deep, &disposition));
    EXPECT_EQ(static_cast<DWORD>(REG_OPENED_EXISTING_KEY), disposition);
    RegCloseKey(deep);
    ASSERT_EQ(ERROR_SUCCESS, RegOpenKeyExA(key_, "one\\two", 0, KEY_READ, &deep));
    RegCloseKey(deep);
}

TEST_F(Registry, EnumeratesKeysAndValues) {
    HKEY sub = nullptr;
    for (const char* name : {"beta", "alpha"}) {
        RegCreateKeyExA(key_, name, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &sub, nullptr);
        RegCloseKey(sub);
    }
    std::vector<std::string> keys;
    char name[64];
    DWORD size = sizeof name;
    for (DWORD i = 0;
         RegEnumKeyExA(key_, i, name, &size, nullptr, nullptr, nullptr, nullptr) == ERROR_SUCCESS;
         ++i, size = sizeof name) {
        EXPECT_EQ(std::strlen(name), size);
        keys.push_back(name);
    }
    EXPECT_EQ((std::vector<std::string>{"alpha", "beta"}), keys);
    EXPECT_EQ(ERROR_NO_MORE_ITEMS,
              RegEnumKeyExA(key_, 2, name, &size, nullptr, nullptr, nullptr, nullptr));

    SetText("first", "1");
    SetText("second", "22");
    char data[16];
    DWORD dataSize = sizeof data, type = 0;
    size = sizeof name;
    std::vector<std::string> values;
    for (DWORD i = 0; RegEnumValueA(key_, i, name, &size, nullptr, &type,
                                    reinterpret_cast<BYTE*>(data), &dataSize) == ERROR_SUCCESS;
         ++i, size = sizeof name, dataSize = sizeof data) {
        EXPECT_EQ(std::strlen(data) + 1, dataSize);
        values.push_back(std::string(name) + "=" + data);
    }
    EXPECT_EQ((std::vector<std::string>{"first=1", "second=22"}), values);
}

TEST_F(Registry, EnumeratingIntoASmallBufferAsksForMore) {
    SetText("long name of a value", "1");
    char name[4];
    DWORD size = sizeof name;
    EXPECT_EQ(ERROR_MORE_DATA,
              RegEnumValueA(key_, 0, name, &size, nullptr, nullptr, nullptr, nullptr));
}

TEST_F(Registry, DeletesValuesKeysAndTrees) {
    SetText("Text", "1");
    EXPECT_EQ(ERROR_SUCCESS, RegDeleteValueA(key_, "TEXT"));
    EXPECT_EQ("?", GetText("Text"));
    HKEY deep = nullptr;
    RegCreateKeyExA(key_, "one\\two", 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &deep, nullptr);
    RegCloseKey(deep);
    EXPECT_EQ(ERROR_ACCESS_DENIED, RegDeleteKeyA(key_, "one"));
    EXPECT_EQ(ERROR_SUCCESS, RegDeleteKeyA(key_, "one\\two"));
    EXPECT_EQ(ERROR_SUCCESS, RegDeleteKeyA(key_, "one"));
    RegCreateKeyExA(key_, "one\\two\\three", 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &deep,
                    nullptr);
    RegCloseKey(deep);
    EXPECT_EQ(ERROR_SUCCESS, RegDeleteTreeA(key_, "one"));
    EXPECT_EQ(ERROR_FILE_NOT_FOUND, RegOpenKeyExA(key_, "one", 0, KEY_READ, &deep));
}

TEST_F(Registry, TwoHandlesSeeTheSameKey) {
    HKEY second = nullptr;
    ASSERT_EQ(ERROR_SUCCESS, RegOpenKeyExA(HKEY_CURRENT_USER, store_.RegistryBranch().c_str(), 0,
                                           KEY_ALL_ACCESS, &second));
    SetText("Text", "seen");
    char text[16] = "";
    DWORD size = sizeof text;
    EXPECT_EQ(ERROR_SUCCESS, RegQueryValueExA(second, "Text", nullptr, nullptr,
                                              reinterpret_cast<BYTE*>(text), &size));
    EXPECT_STREQ("seen", text);
    EXPECT_EQ(ERROR_SUCCESS, RegFlushKey(second));
    EXPECT_EQ(ERROR_SUCCESS, RegCloseKey(second));
}

TEST_F(Registry, AnOpenKeyThatWasDeletedTellsSo) {
    HKEY sub = nullptr;
    RegCreateKeyExA(key_, "gone", 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &sub, nullptr);
    EXPECT_EQ(ERROR_SUCCESS, RegDeleteKeyA(key_, "gone"));
    EXPECT_EQ(ERROR_KEY_DELETED,
              RegSetValueExA(sub, "x", 0, REG_SZ, reinterpret_cast<const BYTE*>("1"), 2));
    RegCloseKey(sub);
}

TEST_F(Registry, NoKeyIsAnInvalidHandle) {
    DWORD size = 0;
    EXPECT_EQ(ERROR_INVALID_HANDLE,
              RegQueryValueExA(nullptr, "x", nullptr, nullptr, nullptr, &size));
    EXPECT_EQ(ERROR_INVALID_HANDLE,
              RegSetValueExA(nullptr, "x", 0, REG_SZ, reinterpret_cast<const BYTE*>(""), 1));
    EXPECT_EQ(ERROR_INVALID_HANDLE, RegCloseKey(nullptr));
}

TEST_F(Registry, KeepsLongTexts) {
    const std::string text(5000, 'r');
    SetText("Long", text);
    std::vector<char> back(6000);
    auto size = static_cast<DWORD>(back.size());
    EXPECT_EQ(ERROR_SUCCESS, RegQueryValueExA(key_, "Long", nullptr, nullptr,
                                              reinterpret_cast<BYTE*>(back.data()), &size));
    EXPECT_EQ(5001u, size);
    EXPECT_EQ(text, back.data());
}

}  // namespace
