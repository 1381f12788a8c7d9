// The curve-fit library called from the platform vendor's ABI, and what its file exports and
// imports.

#include <gtest/gtest.h>

#include <cctype>
#include <set>
#include <string>

#include "platform/platform.h"
#include "zxadlg/CurveFit.h"

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

  private:
    HMODULE m_hModule;
};

TEST(VendorAbi, EveryPlaceArrivesWithItsArgumentsAndResults) {
    const LoadedModule library("CURVEFIT.dll");
    const LoadedModule caller("zx_msvc_caller.dll");
    ASSERT_NE(library.Get(), nullptr);
    ASSERT_NE(caller.Get(), nullptr) << GetLastError();
    void* pCreate = library.Find(ZXADLG_CURVEFIT_CREATE);
    ASSERT_NE(pCreate, nullptr);
    auto* pCall = reinterpret_cast<unsigned long long __cdecl (*)(void*, const FitOptions*)>(
        caller.Find("CallEveryPlace"));
    ASSERT_NE(pCall, nullptr);
    FitOptions options = {};
    options.eFunctionType = 35;
    options.uFitOrder = 1;
    unsigned long long uExpected = 0;
    for (const int nPlace : {1, 7, 11, 17, 18, 30, 40, 44, 45, 46, 47, 48, 58, 59})
        uExpected |= 1ull << nPlace;
    for (int i = 0; i < 100; ++i) ASSERT_EQ(pCall(pCreate, &options), uExpected) << std::hex << i;
    options.eFunctionType = 99;
    EXPECT_EQ(pCall(pCreate, &options), 0u);
}

template <class Directory>
const Directory* DirectoryOf(HMODULE hModule, unsigned uIndex) {
    const auto* base = reinterpret_cast<const BYTE*>(hModule);
    const auto* dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    const auto* nt = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
    return reinterpret_cast<const Directory*>(
        base + nt->OptionalHeader.DataDirectory[uIndex].VirtualAddress);
}

TEST(CurveFitFile, ExportsOneNameAndImportsFromTheSystemAlone) {
    const LoadedModule library("CURVEFIT.dll");
    ASSERT_NE(library.Get(), nullptr);
    const auto* base = reinterpret_cast<const char*>(library.Get());
    const auto* exports =
        DirectoryOf<IMAGE_EXPORT_DIRECTORY>(library.Get(), IMAGE_DIRECTORY_ENTRY_EXPORT);
    ASSERT_EQ(exports->NumberOfNames, 1u);
    const auto* names = reinterpret_cast<const DWORD*>(base + exports->AddressOfNames);
    EXPECT_STREQ(base + names[0], "_CFIT_CreateCurveFit@4");
    std::set<std::string> imported;
    for (const auto* import =
             DirectoryOf<IMAGE_IMPORT_DESCRIPTOR>(library.Get(), IMAGE_DIRECTORY_ENTRY_IMPORT);
         import->Name != 0; ++import) {
        std::string sName = base + import->Name;
        for (char& ch : sName) ch = static_cast<char>(std::toupper(static_cast<unsigned char>(ch)));
        imported.insert(sName);
    }
    EXPECT_EQ(imported, (std::set<std::string>{"KERNEL32.DLL", "MSVCRT.DLL"}));
}

}  // namespace
