// The filter library called from the platform vendor's ABI, and what its file exports and imports.

#include <gtest/gtest.h>

#include <cctype>
#include <set>
#include <string>

#include "platform/platform.h"
#include "zxadlg/Filter.h"

namespace {

class LoadedModule {
  public:
    explicit LoadedModule(const char* szName) : m_hModule(LoadLibraryA(szName)) {}
    ~LoadedModule() {
        if (m_hModule != nullptr) FreeLibrary(m_hModule);
    }
    LoadedModule(const LoadedModule&) = delete;
    HMODULE Get() const { return m_hModule; }
    void* Find(const char* szName) const {
        return reinterpret_cast<void*>(GetProcAddress(m_hModule, szName));
    }
    template <class Directory>
    const Directory* DirectoryOf(unsigned uIndex) const {
        const auto* base = reinterpret_cast<const BYTE*>(m_hModule);
        const auto* dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
        const auto* nt = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
        return reinterpret_cast<const Directory*>(
            base + nt->OptionalHeader.DataDirectory[uIndex].VirtualAddress);
    }

  private:
    HMODULE m_hModule;
};

TEST(FilterVendorAbi, EveryPlaceArrivesWithItsArgumentsAndResults) {
    const LoadedModule library("FILTER.dll");
    const LoadedModule caller("zx_msvc_filter_caller.dll");
    ASSERT_NE(library.Get(), nullptr);
    ASSERT_NE(caller.Get(), nullptr) << GetLastError();
    void* pCreate = library.Find(MAKEINTRESOURCEA(ZXADLG_FILTER_CREATE));
    void* pRelease = library.Find(MAKEINTRESOURCEA(ZXADLG_FILTER_RELEASE));
    ASSERT_NE(pCreate, nullptr);
    ASSERT_NE(pRelease, nullptr);
    auto* pCall = reinterpret_cast<unsigned(__cdecl*)(void*, void*, const FilterOptions*)>(
        caller.Find("CallEveryPlace"));
    ASSERT_NE(pCall, nullptr);
    FilterOptions options = {};
    options.lowpass.m_bIsSelected = 1;
    options.lowpass.m_eFilterFamily = 3;
    options.lowpass.m_uNumAveragePoints = 5;
    for (int i = 0; i < 100; ++i) ASSERT_EQ(pCall(pCreate, pRelease, &options), 0x1E1u) << i;
    EXPECT_EQ(pCall(pCreate, pRelease, nullptr), 0u);
}

TEST(FilterFile, ExportsTwoNumbersWithoutNamesAndImportsFromTheSystemAlone) {
    const LoadedModule library("FILTER.dll");
    ASSERT_NE(library.Get(), nullptr);
    const auto* exports = library.DirectoryOf<IMAGE_EXPORT_DIRECTORY>(IMAGE_DIRECTORY_ENTRY_EXPORT);
    EXPECT_EQ(exports->NumberOfNames, 0u);
    EXPECT_EQ(exports->NumberOfFunctions, 2u);
    EXPECT_EQ(exports->Base, 1000u);
    std::set<std::string> imported;
    for (const auto* import =
             library.DirectoryOf<IMAGE_IMPORT_DESCRIPTOR>(IMAGE_DIRECTORY_ENTRY_IMPORT);
         import->Name != 0; ++import) {
        std::string sName = reinterpret_cast<const char*>(library.Get()) + import->Name;
        for (char& ch : sName) ch = static_cast<char>(std::toupper(static_cast<unsigned char>(ch)));
        imported.insert(sName);
    }
    EXPECT_EQ(imported, (std::set<std::string>{"KERNEL32.DLL", "MSVCRT.DLL"}));
}

}  // namespace
