// The curve-fit library called from the platform vendor's ABI, and what its file exports and
// imports.

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "fixtures/LoadedModule.h"
#include "fixtures/ModuleFile.h"
#include "platform/platform.h"
#include "zxadlg/CurveFit.h"

namespace {

using test_support::LoadedModule;

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

TEST(CurveFitFile, ExportsOneNameAndImportsFromTheSystemAlone) {
    const LoadedModule library("CURVEFIT.dll");
    ASSERT_NE(library.Get(), nullptr);
    const auto* base = reinterpret_cast<const char*>(library.Get());
    const auto* exports = test_support::ExportsOf(library.Get());
    ASSERT_EQ(exports->NumberOfNames, 1u);
    const auto* names = reinterpret_cast<const DWORD*>(base + exports->AddressOfNames);
    EXPECT_STREQ(base + names[0], "_CFIT_CreateCurveFit@4");
    EXPECT_EQ(test_support::ImportedBy(library.Get()),
              (std::set<std::string>{"KERNEL32.DLL", "MSVCRT.DLL"}));
}

}  // namespace
