// The system's part of a test program on Windows, real or under Wine.
#include <malloc.h>
#include <signal.h>
#include <stdlib.h>

#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include "platform/platform.h"
#include "support/KnownGap.h"
#include "support/system.h"

namespace test_support {
namespace {

constexpr int kExitCrashed = 3;
constexpr DWORD kDesktopTimeout = 10000;  // ms
const char kDesktopsKey[] = "Software\\Wine\\Explorer\\Desktops";
char desktopName[64] = "";

bool RunsUnderWine() {
    HMODULE ntdll = GetModuleHandleA("ntdll.dll");
    return ntdll && GetProcAddress(ntdll, "wine_get_version");
}

LONG WINAPI ReportCrash(EXCEPTION_POINTERS* info) {
    const EXCEPTION_RECORD& record = *info->ExceptionRecord;
    std::printf("\nCRASH in %s: code 0x%08lX at %p (image base %p)\n", RunningTestName(),
                record.ExceptionCode, record.ExceptionAddress,
                static_cast<void*>(GetModuleHandleA(nullptr)));
    std::fflush(stdout);
    TerminateProcess(GetCurrentProcess(), kExitCrashed);
    return EXCEPTION_EXECUTE_HANDLER;
}

void ReportAbort(int) {
    std::printf("\nABORT in %s\n", RunningTestName());
    std::fflush(stdout);
    TerminateProcess(GetCurrentProcess(), kExitCrashed);
}

// Under Wine without a window manager each top-level window waits two seconds to be mapped. In a
// desktop of its own, a window tree inside one X window, it does not.
void EnterOwnDesktop() {
    std::snprintf(desktopName, sizeof desktopName, "ZxTests%lu", GetCurrentProcessId());
    HKEY key = nullptr;
    const char size[] = "1024x768";
    if (RegCreateKeyExA(HKEY_CURRENT_USER, kDesktopsKey, 0, nullptr, 0, KEY_SET_VALUE, nullptr,
                        &key, nullptr) != ERROR_SUCCESS)
        return;
    RegSetValueExA(key, desktopName, 0, REG_SZ, reinterpret_cast<const BYTE*>(size), sizeof size);
    RegCloseKey(key);
    HDESK desktop = CreateDesktopA(desktopName, nullptr, nullptr, 0, GENERIC_ALL, nullptr);
    if (!desktop || !SetThreadDesktop(desktop)) {
        std::printf("No desktop of our own: error %lu\n", GetLastError());
        return;
    }
    HWND first = CreateWindowExA(WS_EX_TOOLWINDOW, "Static", "", WS_POPUP | WS_VISIBLE, 0, 0, 8, 8,
                                 nullptr, nullptr, nullptr, nullptr);
    SetForegroundWindow(first);
    const DWORD start = GetTickCount();
    while (GetTickCount() - start < kDesktopTimeout) {
        MSG msg;
        while (PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE)) DispatchMessageA(&msg);
        if (IsWindowVisible(first) && GetForegroundWindow() == first) break;
        Sleep(5);
    }
    DestroyWindow(first);
}

void LeaveOwnDesktop() {
    HKEY key = nullptr;
    if (!desktopName[0] ||
        RegOpenKeyExA(HKEY_CURRENT_USER, kDesktopsKey, 0, KEY_SET_VALUE, &key) != ERROR_SUCCESS)
        return;
    RegDeleteValueA(key, desktopName);
    RegCloseKey(key);
}

}  // namespace

void StartSystem() {
    SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX | SEM_NOOPENFILEERRORBOX);
    SetUnhandledExceptionFilter(ReportCrash);
    signal(SIGABRT, ReportAbort);
    // Text must not be lost in a buffer when the process ends by a crash.
    setvbuf(stdout, nullptr, _IONBF, 0);
    if (RunsUnderWine()) EnterOwnDesktop();
}

void StopSystem() {
    LeaveOwnDesktop();
}

std::vector<std::string> TakeSystemFaults() {
    std::vector<std::string> faults;
    const int heap = _heapchk();
    if (heap != _HEAPOK && heap != _HEAPEMPTY)
        faults.push_back("The heap is damaged: _heapchk gives " + std::to_string(heap));
    return faults;
}

TestSystem CurrentSystem() {
    return RunsUnderWine() ? TestSystem::kWine : TestSystem::kWindows;
}

bool IsSystemWindowClass(const char* className) {
    return std::strcmp(className, "IME") == 0 || std::strcmp(className, "MSCTFIME UI") == 0 ||
           std::strcmp(className, "__wine_clipboard_manager") == 0;
}

}  // namespace test_support
