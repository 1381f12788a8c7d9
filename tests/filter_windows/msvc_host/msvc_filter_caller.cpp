// A caller of the filter library in the platform vendor's ABI: the table is declared once more, as
// a class of that compiler, and each place is called with its arguments.

#include "zxadlg/Filter.h"

extern "C" int _fltused = 0;
extern "C" void _purecall() {
    __builtin_trap();
}

namespace {

class VendorTable {
  public:
    virtual int Unused0() = 0;
    virtual int Unused1() = 0;
    virtual int Unused2() = 0;
    virtual int Unused3() = 0;
    virtual int Unused4() = 0;
    virtual int Unused5() = 0;
    virtual unsigned SmallestNumberOfPoints() = 0;
    virtual int Filter(double* values, unsigned n) = 0;
    virtual int ErrorText(char* text, unsigned size) = 0;
};

using Create = VendorTable*(__stdcall*)(const FilterOptions*);
using Release = void(__stdcall*)(VendorTable*);

bool Same(const char* a, const char* b) {
    while (*a != '\0' && *a == *b) ++a, ++b;
    return *a == *b;
}

// The bits of what arrived as it should.
unsigned Called(VendorTable* p) {
    unsigned seen = 0;
    const auto mark = [&](int place, bool right) {
        if (right) seen |= 1u << place;
    };
    mark(0, p->Unused0() == 0);
    mark(5, p->Unused5() == 0);
    mark(6, p->SmallestNumberOfPoints() == 5);
    double values[7] = {0.0, 0.0, 0.0, 10.0, 0.0, 0.0, 0.0};
    mark(7, p->Filter(values, 7) != 0 && values[0] == 0.0 && values[1] == 2.0 && values[5] == 2.0);
    char text[64] = "?";
    p->Filter(values, 4);
    mark(8, p->ErrorText(text, sizeof text) != 0 &&
                Same(text, "The data have fewer points than the filter needs."));
    return seen;
}

}  // namespace

extern "C" __declspec(dllexport) unsigned __cdecl CallEveryPlace(void* create, void* release,
                                                                 const FilterOptions* options) {
    VendorTable* p = reinterpret_cast<Create>(create)(options);
    if (p == nullptr) return 0;
    const unsigned seen = Called(p);
    reinterpret_cast<Release>(release)(p);
    return seen;
}
