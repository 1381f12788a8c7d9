// A host built with clang in the platform vendor's ABI, against the public header alone, with no
// runtime: its objects have the vendor's tables and call the constructors that the library exports
// under the vendor's decorated names. Every operation checks its arguments and answers with a known
// result.

#include "ZXADLG.h"

// What the vendor's runtime would supply.
extern "C" int _fltused = 0x9875;
extern "C" void* memset(void* dest, int value, size_t count) {
    for (size_t i = 0; i < count; ++i)
        static_cast<volatile char*>(dest)[i] = static_cast<char>(value);
    return dest;
}
extern "C" int __cdecl _purecall() {
    return 0;
}
void operator delete(void*) noexcept {}
void operator delete(void*, size_t) noexcept {}
void* operator new(size_t, void* place) {
    return place;
}

namespace {

// Bit n is set when the operation at place n of a table was called with the arguments it expects.
unsigned long long seen;

void Mark(int place, bool asExpected) {
    if (asExpected) seen |= 1ull << place;
}

const double xValues[] = {0.5, 1.5, 2.5, 3.5};
const double yValues[] = {-1.0, 4.0, 2.0, 8.0};

class DataSource final : public ZXADLG_CDlgDataSource {
  public:
    const char* GetProfileName() override { return Mark(1, true), nullptr; }
    const double* GetXValues(uint32_t g, uint32_t s, const ZXADLG_DataRange* r,
                             uint32_t z) override {
        return Mark(2, g == 1 && s == 2 && r && r->uLastIndex == 3 && z == 0), xValues;
    }
    const double* GetYValues(uint32_t g, uint32_t s, const ZXADLG_DataRange* r,
                             uint32_t z) override {
        return Mark(3, g == 1 && s == 2 && r && r->bUseFullRange && z == 0), yValues;
    }
    uint32_t GetPointCount(uint32_t g, uint32_t s, const ZXADLG_DataRange* r, uint32_t z) override {
        return Mark(4, g == 1 && s == 2 && r == nullptr && z == 0), 4;
    }
    uint32_t GetGroupCount() override { return Mark(5, true), 2; }
    uint32_t GetSetCount(uint32_t g) override { return Mark(6, g == 1), 3; }
    uint32_t GetGroupCode(uint32_t g) override { return Mark(7, g == 1), 0xFFFFFFFEu; }
    void Reserved8() override { Mark(8, true); }
    const char* GetGroupLabel() override { return Mark(9, true), "Signal"; }
    const char* GetSetLabel() override { return Mark(10, true), "Trace"; }
    const char* GetGroupName(uint32_t g) override { return Mark(11, g == 1), "IN 1"; }
    const char* GetSetName(uint32_t g, uint32_t s) override {
        return Mark(12, g == 1 && s == 2), "Trace 3";
    }
    const char* GetUnits(uint32_t g, int32_t i) override {
        return Mark(13, g == 1 && i == -1), "pA";
    }
    void Reserved14() override { Mark(14, true); }
    uint32_t GetDataKind() override { return Mark(15, true), 0; }
    double GetSamplingFrequency() override { return Mark(16, true), 20000.25; }
    uint32_t GetRegionCount() override { return Mark(17, true), 1; }
    uint32_t GetEpochCount() override { return Mark(18, true), 1; }
    uint32_t GetBlobSize() override { return Mark(19, true), 4; }
    uint32_t GetActiveSet(uint32_t g) override { return Mark(20, g == 1), 3; }
    uint32_t GetActiveGroup() override { return Mark(21, true), 1; }
    const char* GetRegionName(uint32_t p) override { return Mark(22, p == 0), "Whole trace"; }
    const char* GetEpochName(uint32_t p, uint32_t* value) override {
        *value = 5;
        return Mark(23, p == 0), "Cmd 0";
    }
    bool GetRegionInfo(uint32_t p, ZXADLG_RegionInfo* info, uint32_t g, uint32_t s) override {
        info->uLastPoint = 3;
        info->dEnd = 3.5;
        return Mark(24, p == 0 && g == 1 && s == 2), true;
    }
    bool IsGroupVisible(uint32_t g) override { return Mark(25, g == 1), true; }
    bool IsSetVisible(uint32_t g, uint32_t s) override { return Mark(26, g == 1 && s == 2), false; }
    void CopyBlob(void* dest, uint32_t size) override {
        memset(dest, 0x5A, size);
        Mark(27, size == 4);
    }
    bool IsSegmented() override { return Mark(28, true), true; }
    int32_t GetRegionId(uint32_t p) override { return Mark(29, p == 0), -7; }
    bool HasUserList() override { return Mark(30, true), true; }
    int32_t GetCursor(uint32_t c) override { return Mark(31, c == 1), -12345; }
    void SetCursor(uint32_t c, int32_t position) override { Mark(32, c == 2 && position == -5); }
};

class FileSource final : public ZXADLG_CDlgFileSource {
  public:
    int32_t GetGroupCount() override { return Mark(1, true), -2; }
    uint32_t GetFileHandle() override { return Mark(2, true), 77; }
    const char* GetGroupName(uint32_t g) override { return Mark(3, g == 3), "control"; }
    const char* GetTitle(HWND__* d, HWND__* f, intptr_t p) override {
        return Mark(4, d == nullptr && f == nullptr && p == -9), "title";
    }
    const char* BrowseForFile(HWND__* owner) override { return Mark(5, owner == nullptr), "file"; }
    void SelectFile(uint32_t file) override { Mark(6, file == 77); }
};

alignas(8) unsigned char dataPlace[sizeof(DataSource)];
alignas(8) unsigned char filePlace[sizeof(FileSource)];

}  // namespace

#define EXPORT extern "C" __declspec(dllexport)

EXPORT ZXADLG_CDlgDataSource* __cdecl MakeDataSource() {
    seen = 0;
    return new (dataPlace) DataSource;
}

EXPORT ZXADLG_CDlgFileSource* __cdecl MakeFileSource() {
    seen = 0;
    return new (filePlace) FileSource;
}

// Copies and assigns through the library's members, then destroys; the table must stay the host's.
EXPORT int __cdecl CopyAssignDestroy() {
    alignas(8) unsigned char place[sizeof(DataSource)];
    DataSource first;
    DataSource* second = new (place) DataSource(first);
    *second = first;
    const bool works = second->GetGroupCount() == 2;
    second->~DataSource();
    return works ? 1 : 0;
}

EXPORT unsigned long long __cdecl SeenPlaces() {
    return seen;
}

// Calls the library as a host does.
EXPORT int __cdecl ShowNormalize(HWND__* owner, ZXADLG_NormalizeOptions* options,
                                 ZXADLG_DataOptions* data, const ZXADLG_DlgParams* params) {
    return ZXADLG_ShowNormalizeDialog(owner, options, data, MakeDataSource(), params);
}
