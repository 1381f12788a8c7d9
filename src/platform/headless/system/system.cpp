// The small calls: threads, processes, errors.
#include <sys/syscall.h>
#include <unistd.h>

#include "zxadlg/headless/functions.h"

namespace {

thread_local DWORD lastError = 0;

}  // namespace

DWORD GetLastError() {
    return lastError;
}

void SetLastError(DWORD error) {
    lastError = error;
}

DWORD GetCurrentThreadId() {
    static thread_local const auto id = static_cast<DWORD>(syscall(SYS_gettid));
    return id;
}

DWORD GetCurrentProcessId() {
    return static_cast<DWORD>(getpid());
}

HANDLE GetCurrentProcess() {
    return reinterpret_cast<HANDLE>(static_cast<LONG_PTR>(-1));
}
