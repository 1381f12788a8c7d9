// The platform does not tell of its beeps, so the program's import of MessageBeep is led here.
#include <windows.h>

#include <cstring>

#include "support/Beeps.h"

namespace test_support {
namespace {

int beeps = 0;

BOOL WINAPI CountBeep(UINT) {
    ++beeps;
    return TRUE;
}

template <class T>
T* At(BYTE* base, DWORD offset) {
    return reinterpret_cast<T*>(base + offset);
}

// The place where this program keeps the address of a function that it imports, or null.
ULONG_PTR* ImportSlot(const char* name) {
    auto* base = reinterpret_cast<BYTE*>(GetModuleHandleA(nullptr));
    const auto* dos = At<IMAGE_DOS_HEADER>(base, 0);
    const auto* headers = At<IMAGE_NT_HEADERS>(base, static_cast<DWORD>(dos->e_lfanew));
    const IMAGE_DATA_DIRECTORY& directory =
        headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    for (auto* library = At<IMAGE_IMPORT_DESCRIPTOR>(base, directory.VirtualAddress);
         library->Name != 0; ++library) {
        const auto* names = At<IMAGE_THUNK_DATA>(base, library->OriginalFirstThunk);
        auto* slots = At<IMAGE_THUNK_DATA>(base, library->FirstThunk);
        for (; names->u1.AddressOfData != 0; ++names, ++slots) {
            if (IMAGE_SNAP_BY_ORDINAL(names->u1.Ordinal)) continue;
            const auto* import =
                At<IMAGE_IMPORT_BY_NAME>(base, static_cast<DWORD>(names->u1.AddressOfData));
            if (std::strcmp(reinterpret_cast<const char*>(import->Name), name) == 0) {
                return reinterpret_cast<ULONG_PTR*>(&slots->u1.Function);
            }
        }
    }
    return nullptr;
}

void LeadBeepsHere() {
    ULONG_PTR* slot = ImportSlot("MessageBeep");
    if (slot == nullptr || *slot == reinterpret_cast<ULONG_PTR>(&CountBeep)) return;
    DWORD before = 0;
    VirtualProtect(slot, sizeof *slot, PAGE_READWRITE, &before);
    *slot = reinterpret_cast<ULONG_PTR>(&CountBeep);
    VirtualProtect(slot, sizeof *slot, before, &before);
}

}  // namespace

int TakeBeeps() {
    LeadBeepsHere();
    const int count = beeps;
    beeps = 0;
    return count;
}

}  // namespace test_support
