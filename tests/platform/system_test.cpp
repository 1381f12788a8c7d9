// Environment, files, modules, memory and the figures of the system.
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "fixtures/ScratchStore.h"
#include "platform/platform.h"

namespace {

using test_support::ScopedEnvironment;
using test_support::ScratchStore;

constexpr char kName[] = "ZX_TEST_VARIABLE";

TEST(Environment, SetsReadsAndRemoves) {
    ScopedEnvironment scope(kName, "value");
    char text[16] = "";
    EXPECT_EQ(5u, GetEnvironmentVariableA(kName, text, sizeof text));
    EXPECT_STREQ("value", text);
    EXPECT_TRUE(SetEnvironmentVariableA(kName, nullptr));
    EXPECT_EQ(0u, GetEnvironmentVariableA(kName, text, sizeof text));
    EXPECT_EQ(static_cast<DWORD>(ERROR_ENVVAR_NOT_FOUND), GetLastError());
}

TEST(Environment, TellsTheSizeThatABufferNeeds) {
    ScopedEnvironment scope(kName, "value");
    char text[3] = "z";
    EXPECT_EQ(6u, GetEnvironmentVariableA(kName, text, sizeof text));
    EXPECT_EQ(6u, GetEnvironmentVariableA(kName, nullptr, 0));
    char fits[6] = "";
    EXPECT_EQ(5u, GetEnvironmentVariableA(kName, fits, sizeof fits));
}

TEST(Environment, NamesHaveNoCase) {
    ScopedEnvironment scope(kName, "value");
    char text[16] = "";
    EXPECT_EQ(5u, GetEnvironmentVariableA("zx_Test_Variable", text, sizeof text));
}

TEST(Files, WriteReadMoveAndDelete) {
    ScratchStore store;
    const std::string first = store.File("first.bin"), second = store.File("second.bin");
    HANDLE file = CreateFileA(first.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                              FILE_ATTRIBUTE_NORMAL, nullptr);
    ASSERT_NE(INVALID_HANDLE_VALUE, file);
    DWORD done = 0;
    EXPECT_TRUE(WriteFile(file, "abc", 3, &done, nullptr));
    EXPECT_EQ(3u, done);
    EXPECT_TRUE(FlushFileBuffers(file));
    EXPECT_TRUE(CloseHandle(file));
    EXPECT_EQ(INVALID_HANDLE_VALUE, CreateFileA(first.c_str(), GENERIC_WRITE, 0, nullptr,
                                                CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr));
    EXPECT_TRUE(MoveFileExA(first.c_str(), second.c_str(), MOVEFILE_REPLACE_EXISTING));
    EXPECT_EQ(INVALID_FILE_ATTRIBUTES, GetFileAttributesA(first.c_str()));
    file = CreateFileA(second.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                       FILE_ATTRIBUTE_NORMAL, nullptr);
    ASSERT_NE(INVALID_HANDLE_VALUE, file);
    EXPECT_EQ(3u, GetFileSize(file, nullptr));
    char text[8] = "";
    EXPECT_TRUE(ReadFile(file, text, sizeof text, &done, nullptr));
    EXPECT_EQ(3u, done);
    EXPECT_TRUE(ReadFile(file, text, sizeof text, &done, nullptr));
    EXPECT_EQ(0u, done);
    EXPECT_TRUE(CloseHandle(file));
    EXPECT_TRUE(DeleteFileA(second.c_str()));
    EXPECT_FALSE(DeleteFileA(second.c_str()));
    EXPECT_EQ(static_cast<DWORD>(ERROR_FILE_NOT_FOUND), GetLastError());
}

TEST(Files, FoldersAreMadeAndRemoved) {
    ScratchStore store;
    const std::string folder = store.File("sub");
    EXPECT_TRUE(CreateDirectoryA(folder.c_str(), nullptr));
    EXPECT_FALSE(CreateDirectoryA(folder.c_str(), nullptr));
    EXPECT_EQ(static_cast<DWORD>(ERROR_ALREADY_EXISTS), GetLastError());
    EXPECT_NE(0u, GetFileAttributesA(folder.c_str()) & FILE_ATTRIBUTE_DIRECTORY);
    EXPECT_TRUE(RemoveDirectoryA(folder.c_str()));
    EXPECT_FALSE(RemoveDirectoryA(folder.c_str()));
}

TEST(Files, OpeningWhatIsNotThereFails) {
    ScratchStore store;
    EXPECT_EQ(INVALID_HANDLE_VALUE,
              CreateFileA(store.File("none").c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                          OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    EXPECT_EQ(static_cast<DWORD>(ERROR_FILE_NOT_FOUND), GetLastError());
}

TEST(Files, TheTemporaryFolderExistsAndEndsInASeparator) {
    char path[MAX_PATH] = "";
    const DWORD length = GetTempPathA(sizeof path, path);
    ASSERT_GT(length, 1u);
    EXPECT_TRUE(path[length - 1] == '\\' || path[length - 1] == '/');
    EXPECT_NE(INVALID_FILE_ATTRIBUTES, GetFileAttributesA(path));
}

TEST(Modules, TheProgramIsOne) {
    HMODULE self = GetModuleHandleA(nullptr);
    EXPECT_NE(nullptr, self);
    char path[MAX_PATH] = "";
    EXPECT_NE(0u, GetModuleFileNameA(self, path, sizeof path));
    EXPECT_NE(nullptr, std::strstr(path, "zx_platform_tests"));
    HMODULE found = nullptr;
    EXPECT_TRUE(GetModuleHandleExA(
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
        reinterpret_cast<LPCSTR>(&kName), &found));
    EXPECT_EQ(self, found);
}

TEST(Modules, OneThatIsMissingDoesNotLoad) {
    EXPECT_EQ(nullptr, LoadLibraryA("zx_no_such_library.dll"));
    EXPECT_NE(0u, GetLastError());
    EXPECT_EQ(nullptr, GetModuleHandleA("zx_no_such_library.dll"));
}

TEST(GlobalMemory, IsMovedByLocking) {
    HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, 100);
    ASSERT_NE(nullptr, memory);
    EXPECT_GE(GlobalSize(memory), 100u);
    auto* bytes = static_cast<char*>(GlobalLock(memory));
    ASSERT_NE(nullptr, bytes);
    EXPECT_EQ(0, bytes[99]);
    GlobalUnlock(memory);
    EXPECT_EQ(nullptr, GlobalFree(memory));
}

TEST(Clipboard, KeepsAText) {
    ASSERT_TRUE(OpenClipboard(nullptr));
    EXPECT_TRUE(EmptyClipboard());
    EXPECT_FALSE(IsClipboardFormatAvailable(CF_TEXT));
    CloseClipboard();
}

TEST(SystemMetrics, AreThoseOfAScreenAt96Dpi) {
    EXPECT_GE(GetSystemMetrics(SM_CXSCREEN), 640);
    EXPECT_GE(GetSystemMetrics(SM_CYSCREEN), 480);
    EXPECT_EQ(2, GetSystemMetrics(SM_CXEDGE));
    EXPECT_EQ(2, GetSystemMetrics(SM_CYEDGE));
    EXPECT_EQ(1, GetSystemMetrics(SM_CXBORDER));
    EXPECT_EQ(32, GetSystemMetrics(SM_CXICON));
    EXPECT_EQ(16, GetSystemMetrics(SM_CXSMICON));
    EXPECT_GT(GetSystemMetrics(SM_CYCAPTION), 10);
    EXPECT_GE(GetSystemMetrics(SM_CXVSCROLL), 10);
    EXPECT_EQ(0, GetSystemMetrics(9999));
}

TEST(SystemMetrics, TheWorkAreaLiesOnTheMonitor) {
    RECT work = {};
    ASSERT_TRUE(SystemParametersInfoA(SPI_GETWORKAREA, 0, &work, 0));
    EXPECT_FALSE(IsRectEmpty(&work));
    HMONITOR monitor = MonitorFromPoint({0, 0}, MONITOR_DEFAULTTOPRIMARY);
    MONITORINFO info = {};
    info.cbSize = sizeof info;
    ASSERT_TRUE(GetMonitorInfoA(monitor, &info));
    EXPECT_EQ(static_cast<DWORD>(MONITORINFOF_PRIMARY), info.dwFlags);
    EXPECT_EQ(GetSystemMetrics(SM_CXSCREEN), info.rcMonitor.right);
    EXPECT_LE(info.rcWork.bottom, info.rcMonitor.bottom);
    info.cbSize = 3;
    EXPECT_FALSE(GetMonitorInfoA(monitor, &info));
}

TEST(Arithmetic, MulDivRoundsHalvesAway) {
    EXPECT_EQ(8, MulDiv(3, 5, 2));
    EXPECT_EQ(-8, MulDiv(-3, 5, 2));
    EXPECT_EQ(21, MulDiv(13, 13, 8));
    EXPECT_EQ(1000000000, MulDiv(1000000000, 1000000, 1000000));
    EXPECT_EQ(-1, MulDiv(1, 1, 0));
    EXPECT_EQ(-1, MulDiv(2000000000, 2, 1));
}

TEST(Rectangles, Combine) {
    RECT a = {}, b = {}, result = {};
    SetRect(&a, 0, 0, 10, 10);
    SetRect(&b, 5, 5, 20, 20);
    EXPECT_TRUE(IntersectRect(&result, &a, &b));
    EXPECT_EQ(5, result.left);
    EXPECT_EQ(10, result.bottom);
    EXPECT_TRUE(UnionRect(&result, &a, &b));
    EXPECT_EQ(0, result.left);
    EXPECT_EQ(20, result.right);
    OffsetRect(&b, 100, 0);
    EXPECT_FALSE(IntersectRect(&result, &a, &b));
    EXPECT_TRUE(IsRectEmpty(&result));
    InflateRect(&a, -2, 3);
    EXPECT_EQ(2, a.left);
    EXPECT_EQ(-3, a.top);
    EXPECT_TRUE(PtInRect(&a, {2, -3}));
    EXPECT_FALSE(PtInRect(&a, {8, 0}));
}

TEST(Clock, TicksForward) {
    const DWORD start = GetTickCount();
    Sleep(30);
    const DWORD passed = GetTickCount() - start;
    EXPECT_GE(passed, 15u);
    EXPECT_LT(passed, 5000u);
}

}  // namespace
