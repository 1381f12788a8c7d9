// The module as a host loads it: what it exports and imports, that it leaves nothing behind, and
// that a host of another compiler's ABI works against it.

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "ZXADLG.h"
#include "fixtures/DialogScript.h"
#include "fixtures/LoadedModule.h"
#include "fixtures/ModuleFile.h"
#include "fixtures/TestDataSource.h"
#include "fixtures/TestWindows.h"
#include "ids.h"
#include "platform/platform.h"

namespace {

using test_support::DialogScript;
using test_support::LoadedModule;

constexpr char kModule[] = "ZXANALYSISDIALOGS.dll";
using ShowNormalizeFunction = int32_t __cdecl(HWND, ZXADLG_NormalizeOptions*, ZXADLG_DataOptions*,
                                              ZXADLG_CDlgDataSource*, const ZXADLG_DlgParams*);

TEST(Module, ExportsItsFunctionsUndecoratedAndItsClassesForBothCompilers) {
    const LoadedModule module(kModule);
    ASSERT_NE(module.Get(), nullptr);
    EXPECT_NE(module.Function<void()>("ZXADLG_ShowNormalizeDialog"), nullptr);
#define EXPECT_EXPORT(name) EXPECT_NE(module.Function<void()>(name), nullptr) << name
    for (const std::string sClass : {"ZXADLG_CDlgDataSource", "ZXADLG_CDlgFileSource"}) {
        const bool b32 = sizeof(void*) == 4;
        const std::string q = b32 ? "QAE" : "QEAA";
        const std::string r = b32 ? "AB" : "AEB";
        EXPECT_EXPORT(("??0" + sClass + "@@" + q + "@XZ").c_str());
        EXPECT_EXPORT(("??0" + sClass + "@@" + q + "@" + r + "V0@@Z").c_str());
        EXPECT_EXPORT(("??1" + sClass + "@@" + (b32 ? "UAE" : "UEAA") + "@XZ").c_str());
        EXPECT_EXPORT(
            ("??4" + sClass + "@@" + q + (b32 ? "AAV0@" : "AEAV0@") + r + "V0@@Z").c_str());
        EXPECT_EXPORT(("??_7" + sClass + "@@6B@").c_str());
        const std::string z = "_ZN" + std::to_string(sClass.size()) + sClass;
        for (const char* szMember :
             {"C1Ev", "C2Ev", "C1ERKS_", "C2ERKS_", "D1Ev", "D2Ev", "aSERKS_"}) {
            EXPECT_EXPORT((z + szMember).c_str());
        }
    }
#undef EXPECT_EXPORT
}

TEST(Module, ExportedTablesAreThoseThatTheConstructorsStore) {
    const LoadedModule module(kModule);
    ASSERT_NE(module.Get(), nullptr);
    for (const std::string sClass : {"ZXADLG_CDlgDataSource", "ZXADLG_CDlgFileSource"}) {
        SCOPED_TRACE(sClass);
        const std::string z = "_ZN" + std::to_string(sClass.size()) + sClass;
        auto* pConstruct = module.Function<void* __thiscall(void**)>((z + "C1Ev").c_str());
        auto* pTable = module.Function<void>(("??_7" + sClass + "@@6B@").c_str());
        ASSERT_NE(pConstruct, nullptr);
        void* pObject = nullptr;
        EXPECT_EQ(pConstruct(&pObject), &pObject);
        ASSERT_NE(pObject, nullptr);
        EXPECT_EQ(reinterpret_cast<void*>(pTable), pObject);
        // The word in front holds no type information.
        EXPECT_EQ(static_cast<void**>(pObject)[-1], nullptr);
        EXPECT_NE(static_cast<void**>(pObject)[0], nullptr);
    }
}

TEST(Module, ImportsFromTheSystemAlone) {
    const LoadedModule module(kModule);
    ASSERT_NE(module.Get(), nullptr);
    const std::set<std::string> system = {"ADVAPI32.DLL", "COMCTL32.DLL", "GDI32.DLL",
                                          "KERNEL32.DLL", "MSVCRT.DLL",   "USER32.DLL",
                                          "UXTHEME.DLL",  "SHELL32.DLL",  "OLE32.DLL"};
    for (const std::string& sName : test_support::ImportedBy(module.Get()))
        EXPECT_EQ(system.count(sName), 1u) << sName;
}

TEST(Module, LeavesNothingBehindWhenItGoes) {
    for (int i = 0; i < 3; ++i) {
        SCOPED_TRACE(i);
        {
            const LoadedModule module(kModule);
            auto* pShow = module.Function<ShowNormalizeFunction>("ZXADLG_ShowNormalizeDialog");
            ASSERT_NE(pShow, nullptr);
            test_support::TestDataSource source;
            ZXADLG_NormalizeOptions options = {};
            ZXADLG_DataOptions data = {};
            ZXADLG_DlgParams params = {};
            params.bUseDataOptions = 1;
            WNDCLASSA wc;
            DialogScript script;
            script.Do([&] { EXPECT_TRUE(GetClassInfoA(module.Get(), "ZDC_SpinnerVert", &wc)); })
                .Click(IDCANCEL);
            EXPECT_EQ(script.Run([&] { return pShow(nullptr, &options, &data, &source, &params); }),
                      2);
        }
        EXPECT_EQ(GetModuleHandleA(kModule), nullptr);
        WNDCLASSA wc;
        for (const char* szClass : {"ZCC_ProgressBar", "ZDC_SpinnerHorz", "ZDC_SpinnerVert"}) {
            EXPECT_FALSE(GetClassInfoA(nullptr, szClass, &wc)) << szClass;
        }
        // A hook or a timer of the module that stayed would run into its freed code here.
        test_support::PumpMessages();
    }
}

// Calls every operation of both tables once, with the arguments that the host expects.
TEST(VendorAbi, EveryOperationArrivesWithItsArgumentsAndResults) {
    const LoadedModule host("zx_msvc_host.dll");
    ASSERT_NE(host.Get(), nullptr) << GetLastError();
    ZXADLG_CDlgDataSource* p = host.Function<ZXADLG_CDlgDataSource* __cdecl()>("MakeDataSource")();
    ZXADLG_DataRange range = {};
    range.uLastIndex = 3;
    EXPECT_EQ(p->GetProfileName(), nullptr);
    EXPECT_EQ(p->GetXValues(1, 2, &range, 0)[3], 3.5);
    range.bUseFullRange = 1;
    EXPECT_EQ(p->GetYValues(1, 2, &range, 0)[3], 8.0);
    EXPECT_EQ(p->GetPointCount(1, 2, nullptr, 0), 4u);
    EXPECT_EQ(p->GetGroupCount(), 2u);
    EXPECT_EQ(p->GetSetCount(1), 3u);
    EXPECT_EQ(p->GetGroupCode(1), 0xFFFFFFFEu);
    p->Reserved8();
    EXPECT_STREQ(p->GetGroupLabel(), "Signal");
    EXPECT_STREQ(p->GetSetLabel(), "Trace");
    EXPECT_STREQ(p->GetGroupName(1), "IN 1");
    EXPECT_STREQ(p->GetSetName(1, 2), "Trace 3");
    EXPECT_STREQ(p->GetUnits(1, -1), "pA");
    p->Reserved14();
    EXPECT_EQ(p->GetDataKind(), 0u);
    EXPECT_EQ(p->GetSamplingFrequency(), 20000.25);
    EXPECT_EQ(p->GetRegionCount(), 1u);
    EXPECT_EQ(p->GetEpochCount(), 1u);
    EXPECT_EQ(p->GetBlobSize(), 4u);
    EXPECT_EQ(p->GetActiveSet(1), 3u);
    EXPECT_EQ(p->GetActiveGroup(), 1u);
    EXPECT_STREQ(p->GetRegionName(0), "Whole trace");
    uint32_t uNumber = 0;
    EXPECT_STREQ(p->GetEpochName(0, &uNumber), "Cmd 0");
    EXPECT_EQ(uNumber, 5u);
    ZXADLG_RegionInfo info = {};
    EXPECT_TRUE(p->GetRegionInfo(0, &info, 1, 2));
    EXPECT_EQ(info.uLastPoint, 3u);
    EXPECT_EQ(info.dEnd, 3.5);
    EXPECT_TRUE(p->IsGroupVisible(1));
    EXPECT_FALSE(p->IsSetVisible(1, 2));
    unsigned char blob[4] = {};
    p->CopyBlob(blob, 4);
    EXPECT_EQ(blob[3], 0x5A);
    EXPECT_TRUE(p->IsSegmented());
    EXPECT_EQ(p->GetRegionId(0), -7);
    EXPECT_TRUE(p->HasUserList());
    EXPECT_EQ(p->GetCursor(1), -12345);
    p->SetCursor(2, -5);
    auto* pSeen = host.Function<unsigned long long __cdecl()>("SeenPlaces");
    EXPECT_EQ(pSeen(), 0x1FFFFFFFEull);  // places 1 to 32

    ZXADLG_CDlgFileSource* f = host.Function<ZXADLG_CDlgFileSource* __cdecl()>("MakeFileSource")();
    EXPECT_EQ(f->GetGroupCount(), -2);
    EXPECT_EQ(f->GetFileHandle(), 77u);
    EXPECT_STREQ(f->GetGroupName(3), "control");
    EXPECT_STREQ(f->GetTitle(nullptr, nullptr, -9), "title");
    EXPECT_STREQ(f->BrowseForFile(nullptr), "file");
    f->SelectFile(77);
    EXPECT_EQ(pSeen(), 0x7Eull);  // places 1 to 6
}

TEST(VendorAbi, CopiesAssignsAndDestroysThroughTheExportedMembers) {
    const LoadedModule host("zx_msvc_host.dll");
    ASSERT_NE(host.Get(), nullptr);
    EXPECT_EQ(host.Function<int __cdecl()>("CopyAssignDestroy")(), 1);
}

TEST(VendorAbi, HostShowsNormalizeAndGetsItsRecordBack) {
    const LoadedModule host("zx_msvc_host.dll");
    ASSERT_NE(host.Get(), nullptr);
    auto* pShow = host.Function<int __cdecl(HWND, ZXADLG_NormalizeOptions*, ZXADLG_DataOptions*,
                                            const ZXADLG_DlgParams*)>("ShowNormalize");
    ZXADLG_NormalizeOptions options = {};
    ZXADLG_DataOptions data = {};
    data.eDataSet1SelectionMode = 1;
    ZXADLG_DlgParams params = {};
    params.bUseDataOptions = 1;
    params.bShowGroupSelector = 1;
    DialogScript script;
    script.ExpectTitle("Normalize").Click(IDC_NORMALIZE_REGIONS).Click(IDOK);
    EXPECT_EQ(script.Run([&] { return pShow(nullptr, &options, &data, &params); }), 1);
    EXPECT_EQ(options.bUseAllPoints, 1);
    EXPECT_EQ(data.uGroupCount, 2u);
    EXPECT_EQ(data.dSamplingFrequency, 20000.25);
}

}  // namespace
