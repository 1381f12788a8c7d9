// Compiled resources: any bytes are read, registered and asked for texts, icons and dialogs.
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "platform/headless/system/resources.h"
#include "platform/platform.h"
#include "zxadlg/headless/diagnostics.h"
#include "zxadlg/headless/modules.h"

namespace {

void Require(bool holds, const char* what) {
    if (holds) return;
    std::fprintf(stderr, "violated: %s\n", what);
    std::abort();
}

BOOL CALLBACK LoadOne(HMODULE module, LPCSTR type, LPSTR name, LONG_PTR) {
    HRSRC found = FindResourceA(module, name, type);
    Require(found != nullptr, "what is listed is found");
    const DWORD size = SizeofResource(module, found);
    const auto* bytes =
        static_cast<const volatile std::uint8_t*>(LockResource(LoadResource(module, found)));
    for (DWORD i = 0; i < size; ++i) static_cast<void>(bytes[i]);
    return TRUE;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    // A buffer of just this size, so that a reader beyond it is caught.
    const std::vector<std::uint8_t> bytes(data, data + size);
    const headless::ResourceList list = headless::ReadResources(bytes.data(), bytes.size());
    for (const headless::ResourceEntry& entry : list.entries) {
        Require(entry.data >= bytes.data() && entry.data + entry.size <= bytes.data() + size,
                "an entry lies in the bytes");
        std::string text;
        for (unsigned id = 0; id < 16; ++id)
            headless::StringInBlock(entry.data, entry.size, id, text);
    }
    HMODULE module = headless::RegisterModule(bytes.data(), bytes.data() + bytes.size());
    Require((module != nullptr) == (list.complete && !bytes.empty()) || bytes.empty(),
            "just whole resources become a module");
    if (module != nullptr) {
        char text[32];
        for (UINT id = 0; id < 64; ++id) {
            const int length = LoadStringA(module, id, text, sizeof text);
            Require(length >= 0 && length < static_cast<int>(sizeof text), "a text fits");
        }
        for (WORD type = 1; type < 20; ++type)
            EnumResourceNamesA(module, MAKEINTRESOURCEA(type), LoadOne, 0);
    }
    headless::UnregisterModule(bytes.data());
    headless::TakeUnsupported();
    return 0;
}
