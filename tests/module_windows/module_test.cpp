// The module as a host loads it: what it exports and imports, that it leaves nothing behind, and
// that a host of another compiler's ABI works against it.

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "ZXADLG.h"
#include "fixtures/DialogScript.h"
#include "fixtures/TestDataSource.h"
#include "fixtures/TestWindows.h"
#include "ids.h"
#include "platform/platform.h"

namespace {

using test_support::DialogScript;

class LoadedModule {
  public:
    explicit LoadedModule(const char* szName) : m_hModule(LoadLibraryA(szName)) {}
    ~LoadedModule() {
        if (m_hModule != nullptr) FreeLibrary(m_hModule);
    }
    LoadedModule(const LoadedModule&) = delete;
    LoadedModule& operator=(const LoadedModule&) = delete;

    HMODULE Get() const { return m_hModule; }
    template <class F>
    F* Function(const char* szName) const {
        return reinterpret_cast<F*>(reinterpret_cast<void*>(GetProcAddress(m_hModule, szName)));
    }

  private:
    HMODULE m_hModule;
};

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

// Names of the modules that an image imports from, in capitals.
std::set<std::string> ImportsOf(HMODULE hModule) {
    const auto* base = reinterpret_cast<const BYTE*>(hModule);
    const auto* dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    const auto* nt = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
    const IMAGE_DATA_DIRECTORY& directory =
        nt->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    std::set<std::string> names;
    const auto* import =
        reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(base + directory.VirtualAddress);
    for (; import->Name != 0; ++import) {
        std::string sName = reinterpret_cast<const char*>(base + import->Name);
        for (char& ch : sName) ch = static_cast<char>(toupper(static_cast<unsigned char>(ch)));
        names.insert(sName);
    }
    return names;
}

TEST(Module, ImportsFromTheSystemAlone) {
    const LoadedModule module(kModule);
    ASSERT_NE(module.Get(), nullptr);
    const std::set<std::string> system = {"ADVAPI32.DLL", "COMCTL32.DLL", "GDI32.DLL",
                                          "KERNEL32.DLL", "MSVCRT.DLL",   "USER32.DLL",
                                          "UXTHEME.DLL",  "SHELL32.DLL",  "OLE32.DLL"};
    for (const std::string& sName : ImportsOf(module.Get()))
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
