// A caller of the curve-fit library in the platform vendor's ABI: the table is declared once more,
// as a class of that compiler with a destructor, and each place is called with its arguments.

#include "zxadlg/CurveFit.h"

extern "C" int _fltused = 0;
extern "C" void _purecall() {
    __builtin_trap();
}

// Destroying goes through place 0, which frees in the library.
void operator delete(void*, decltype(sizeof 0)) noexcept {}
void operator delete(void*) noexcept {}

namespace {

#define UNUSED(n) virtual int Unused##n() = 0

class VendorTable {
  public:
    virtual ~VendorTable() {}
    UNUSED(1);
    UNUSED(2);
    UNUSED(3);
    UNUSED(4);
    UNUSED(5);
    UNUSED(6);
    virtual int Seeds(const double* const* arrays, double* seeds, unsigned a, unsigned n) = 0;
    UNUSED(8);
    UNUSED(9);
    UNUSED(10);
    virtual int ErrorText(char* text, unsigned size) = 0;
    UNUSED(12);
    UNUSED(13);
    UNUSED(14);
    UNUSED(15);
    UNUSED(16);
    virtual int Evaluate(const double* const* x, double* y, unsigned n) = 0;
    virtual unsigned Variables() = 0;
    UNUSED(19);
    UNUSED(20);
    UNUSED(21);
    UNUSED(22);
    UNUSED(23);
    UNUSED(24);
    UNUSED(25);
    UNUSED(26);
    UNUSED(27);
    UNUSED(28);
    UNUSED(29);
    virtual const char* FunctionText() = 0;
    UNUSED(31);
    UNUSED(32);
    UNUSED(33);
    UNUSED(34);
    UNUSED(35);
    UNUSED(36);
    UNUSED(37);
    UNUSED(38);
    UNUSED(39);
    virtual int Properties(FitFunctionProps* props) = 0;
    UNUSED(41);
    UNUSED(42);
    UNUSED(43);
    virtual const char* VariableLabel(unsigned a, unsigned b) = 0;
    virtual const char* DependentLabel() = 0;
    virtual const char* ParameterName(unsigned a, unsigned b) = 0;
    virtual const char* OffsetName() = 0;
    virtual const char* SlopeName() = 0;
    UNUSED(49);
    UNUSED(50);
    UNUSED(51);
    UNUSED(52);
    UNUSED(53);
    UNUSED(54);
    UNUSED(55);
    UNUSED(56);
    UNUSED(57);
    UNUSED(58);
    virtual int SetUp(const FitDataStats* stats, const double* seeds) = 0;
};

#undef UNUSED

using Create = VendorTable*(__stdcall*)(const FitOptions*);

bool Same(const char* a, const char* b) {
    while (*a != '\0' && *a == *b) ++a, ++b;
    return *a == *b;
}

bool Near(double a, double b) {
    const double d = a - b;
    return d < 1e-9 && d > -1e-9;
}

// The bits of what arrived as it should.
unsigned long long Called(VendorTable* p) {
    unsigned long long seen = 0;
    const auto mark = [&](int place, bool right) {
        if (right) seen |= 1ull << place;
    };
    double x[5] = {0.0, 1.0, 2.0, 3.0, 4.0};
    const double y[5] = {5.0, 7.0, 9.0, 11.0, 13.0};
    const double* arrays[2] = {x, y};
    double seeds[3] = {-1.0, -1.0, -1.0};
    mark(7, p->Seeds(arrays, seeds, 2, 5) != 0 && Near(seeds[0], 2.0) && Near(seeds[1], 5.0) &&
                seeds[2] == -1.0);
    double none[3];
    char text[64] = "?";
    p->Seeds(arrays, none, 9, 5);
    mark(11, p->ErrorText(text, sizeof text) != 0 && Same(text, "The data are incomplete."));
    FitDataStats stats = {};
    stats.uOrder = 1;
    stats.dOffsetSeed = 0.5;
    const double line[1] = {3.0};
    mark(59, p->SetUp(&stats, line) != 0);
    double curve[5] = {};
    mark(17, p->Evaluate(arrays, curve, 5) != 0 && Near(curve[4], 12.5));
    mark(18, p->Variables() == 1);
    mark(30, Same(p->FunctionText(), "Straight line, standard"));
    FitFunctionProps props;
    mark(40, p->Properties(&props) != 0 && props.bStraightLine == 1 && props.uParamsPerTerm == 1);
    mark(44, Same(p->VariableLabel(0, 0), "x"));
    mark(45, Same(p->DependentLabel(), "y"));
    mark(46, Same(p->ParameterName(0, 0), "m"));
    mark(47, Same(p->OffsetName(), "b"));
    mark(48, Same(p->SlopeName(), ""));
    mark(1, p->Unused1() == 0);
    mark(58, p->Unused58() == 0);
    // The stack is where it was: callee and caller agree on who clears it.
    delete p;
    return seen;
}

}  // namespace

extern "C" __declspec(dllexport) unsigned long long __cdecl CallEveryPlace(
    void* create, const FitOptions* options) {
    VendorTable* p = reinterpret_cast<Create>(create)(options);
    return p == nullptr ? 0 : Called(p);
}
