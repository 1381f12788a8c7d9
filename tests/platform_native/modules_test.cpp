// Modules: the program, libraries loaded at run time, their functions and resources.
#include <gtest/gtest.h>

#include <string>

#include "platform/platform.h"

namespace {

using Function = int (*)(int);
using Address = const void* (*)();

class Plugin : public testing::Test {
  protected:
    void SetUp() override { module_ = LoadLibraryA("zx_test_plugin.dll"); }
    void TearDown() override {
        if (module_ != nullptr) FreeLibrary(module_);
    }
    HMODULE module_ = nullptr;
};

TEST_F(Plugin, IsFoundBesideTheProgramByItsPlatformName) {
    ASSERT_NE(nullptr, module_);
    EXPECT_NE(GetModuleHandleA(nullptr), module_);
    EXPECT_EQ(module_, GetModuleHandleA("zx_test_plugin.dll"));
    char path[1024];
    ASSERT_GT(GetModuleFileNameA(module_, path, sizeof path), 0u);
    EXPECT_TRUE(std::string(path).ends_with("/libzx_test_plugin.so")) << path;
}

TEST_F(Plugin, GivesFunctionsByNameAndByNumber) {
    ASSERT_NE(nullptr, module_);
    const auto add = reinterpret_cast<Function>(GetProcAddress(module_, "AddThree"));
    ASSERT_NE(nullptr, add);
    EXPECT_EQ(8, add(5));
    const auto twelve = reinterpret_cast<Function>(GetProcAddress(module_, MAKEINTRESOURCEA(12)));
    ASSERT_NE(nullptr, twelve);
    EXPECT_EQ(24, twelve(2));
    EXPECT_EQ(nullptr, GetProcAddress(module_, "NoSuchFunction"));
    EXPECT_EQ(static_cast<DWORD>(ERROR_PROC_NOT_FOUND), GetLastError());
    EXPECT_EQ(nullptr, GetProcAddress(module_, MAKEINTRESOURCEA(13)));
}

TEST_F(Plugin, HasResourcesOfItsOwnWithoutAnyRegistration) {
    ASSERT_NE(nullptr, module_);
    char text[64];
    EXPECT_EQ(22, LoadStringA(module_, 40, text, sizeof text));
    EXPECT_STREQ(
        "from the plug-in: 5 \xB5"
        "A",
        text);
    EXPECT_EQ(0, LoadStringA(GetModuleHandleA(nullptr), 40, text, sizeof text));
    HRSRC bytes = FindResourceA(module_, MAKEINTRESOURCEA(7), RT_RCDATA);
    ASSERT_NE(nullptr, bytes);
    EXPECT_EQ(5u, SizeofResource(module_, bytes));
    EXPECT_EQ("bytes",
              std::string(static_cast<const char*>(LockResource(LoadResource(module_, bytes))), 5));
}

TEST_F(Plugin, IsFoundByAnAddressWithin) {
    ASSERT_NE(nullptr, module_);
    const auto address = reinterpret_cast<Address>(GetProcAddress(module_, "PluginAddress"));
    ASSERT_NE(nullptr, address);
    HMODULE found = nullptr;
    EXPECT_TRUE(GetModuleHandleExA(
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
        static_cast<LPCSTR>(address()), &found));
    EXPECT_EQ(module_, found);
    EXPECT_TRUE(GetModuleHandleExA(
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
        reinterpret_cast<LPCSTR>(+[] {}), &found));
    EXPECT_EQ(GetModuleHandleA(nullptr), found) << "a function of this program";
    EXPECT_TRUE(GetModuleHandleExA(
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
        reinterpret_cast<LPCSTR>(&LoadStringA), &found));
    EXPECT_EQ(GetModuleHandleA("libZXHEADLESS.so"), found) << "one of the window system";
}

TEST_F(Plugin, IsGoneAfterTheLastFree) {
    ASSERT_NE(nullptr, module_);
    EXPECT_EQ(module_, LoadLibraryA("zx_test_plugin"));
    EXPECT_TRUE(FreeLibrary(module_));
    EXPECT_NE(nullptr, GetProcAddress(module_, "AddThree"));
    EXPECT_TRUE(FreeLibrary(module_));
    EXPECT_EQ(nullptr, GetProcAddress(module_, "AddThree"));
    EXPECT_EQ(nullptr, GetModuleHandleA("zx_test_plugin.dll"));
    EXPECT_FALSE(FreeLibrary(module_));
    char text[64];
    EXPECT_EQ(0, LoadStringA(module_, 40, text, sizeof text));
    module_ = nullptr;
}

TEST(Modules, AMissingLibraryIsRefused) {
    EXPECT_EQ(nullptr, LoadLibraryA("no_such_library.dll"));
    EXPECT_EQ(static_cast<DWORD>(ERROR_MOD_NOT_FOUND), GetLastError());
    EXPECT_EQ(nullptr, LoadLibraryA(""));
    EXPECT_EQ(nullptr, LoadLibraryA(nullptr));
}

TEST(Modules, ANameThatDoesNotFitIsCut) {
    char path[8] = "";
    EXPECT_EQ(8u, GetModuleFileNameA(nullptr, path, sizeof path));
    EXPECT_EQ(7u, std::string(path).size());
    EXPECT_EQ(static_cast<DWORD>(ERROR_INSUFFICIENT_BUFFER), GetLastError());
}

}  // namespace
