#include "entry/ShowSequence.h"

#include "platform/platform.h"
#include "widgets/Framework.h"

namespace {

// The module that this code is part of: the library, or the program that it is linked into.
HINSTANCE OwnModule() {
    HMODULE hModule = nullptr;
    const auto pAddress = reinterpret_cast<LPCSTR>(&PrepareLibrary);
    GetModuleHandleExA(
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
        pAddress, &hModule);
    return hModule;
}

}  // namespace

void PrepareLibrary() {
    InitDialogFramework(OwnModule());
}
