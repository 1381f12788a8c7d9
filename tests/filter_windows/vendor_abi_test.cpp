// The filter library called from the platform vendor's ABI, and what its file exports and imports.

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "fixtures/LoadedModule.h"
#include "fixtures/ModuleFile.h"
#include "platform/platform.h"
#include "zxadlg/Filter.h"

namespace {

using test_support::LoadedModule;

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
    const auto* exports = test_support::ExportsOf(library.Get());
    EXPECT_EQ(exports->NumberOfNames, 0u);
    EXPECT_EQ(exports->NumberOfFunctions, 2u);
    EXPECT_EQ(exports->Base, 1000u);
    EXPECT_EQ(test_support::ImportedBy(library.Get()),
              (std::set<std::string>{"KERNEL32.DLL", "MSVCRT.DLL"}));
}

}  // namespace
