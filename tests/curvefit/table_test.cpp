// The library as a program loads it: its name, its one export, and every place of the table.

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>

#include "CurveFitFixture.h"
#include "fixtures/LoadedModule.h"
#include "platform/platform.h"

namespace {

using namespace curvefit_test;

class LoadedLibrary : public test_support::LoadedModule {
  public:
    LoadedLibrary() : LoadedModule("CURVEFIT.dll") {}
    ZXADLG_CreateCurveFit Create() const {
        return reinterpret_cast<ZXADLG_CreateCurveFit>(Find("_CFIT_CreateCurveFit@4"));
    }
};

TEST(Library, ExportsOneFunctionUnderItsName) {
    const LoadedLibrary library;
    ASSERT_NE(library.Get(), nullptr);
    EXPECT_NE(library.Create(), nullptr);
    EXPECT_STREQ(ZXADLG_CURVEFIT_CREATE, "_CFIT_CreateCurveFit@4");
    EXPECT_EQ(library.Find("CFIT_CreateCurveFit"), nullptr);
    EXPECT_EQ(library.Find("_CFIT_CreateCurveFit@8"), nullptr);
}

TEST(Library, GivesNullForARecordThatNamesNoFunction) {
    const LoadedLibrary library;
    ASSERT_NE(library.Create(), nullptr);
    EXPECT_EQ(library.Create()(nullptr), nullptr);
    for (const int32_t eFunction : {-1, 39, 40, INT32_MIN, INT32_MAX}) {
        const FitOptions options = OptionsFor(eFunction);
        EXPECT_EQ(library.Create()(&options), nullptr) << eFunction;
    }
    for (int32_t eFunction = 0; eFunction <= 38; ++eFunction) {
        const FitOptions options = OptionsFor(eFunction);
        ZXADLG_CCurveFit* p = library.Create()(&options);
        ASSERT_NE(p, nullptr) << eFunction;
        p->DeleteSelf(1);
    }
}

// The places by their numbers: a table of its own, with nothing of the contract but the records.
#define UNUSED_PLACE(n) virtual int32_t P##n() = 0;
class PlaceTable {
  public:
    virtual void* P0(uint32_t flags) = 0;
    UNUSED_PLACE(1)
    UNUSED_PLACE(2)
    UNUSED_PLACE(3)
    UNUSED_PLACE(4)
    UNUSED_PLACE(5)
    UNUSED_PLACE(6)
    virtual int32_t P7(const double* const* arrays, double* seeds, uint32_t a, uint32_t n) = 0;
    UNUSED_PLACE(8)
    UNUSED_PLACE(9)
    UNUSED_PLACE(10)
    virtual int32_t P11(char* text, uint32_t size) = 0;
    UNUSED_PLACE(12)
    UNUSED_PLACE(13)
    UNUSED_PLACE(14)
    UNUSED_PLACE(15)
    UNUSED_PLACE(16)
    virtual int32_t P17(const double* const* x, double* y, uint32_t n) = 0;
    virtual uint32_t P18() = 0;
    UNUSED_PLACE(19)
    UNUSED_PLACE(20)
    UNUSED_PLACE(21)
    UNUSED_PLACE(22)
    UNUSED_PLACE(23)
    UNUSED_PLACE(24)
    UNUSED_PLACE(25)
    UNUSED_PLACE(26)
    UNUSED_PLACE(27)
    UNUSED_PLACE(28)
    UNUSED_PLACE(29)
    virtual const char* P30() = 0;
    UNUSED_PLACE(31)
    UNUSED_PLACE(32)
    UNUSED_PLACE(33)
    UNUSED_PLACE(34)
    UNUSED_PLACE(35)
    UNUSED_PLACE(36)
    UNUSED_PLACE(37)
    UNUSED_PLACE(38)
    UNUSED_PLACE(39)
    virtual int32_t P40(FitFunctionProps* props) = 0;
    UNUSED_PLACE(41)
    UNUSED_PLACE(42)
    UNUSED_PLACE(43)
    virtual const char* P44(uint32_t a, uint32_t b) = 0;
    virtual const char* P45() = 0;
    virtual const char* P46(uint32_t a, uint32_t b) = 0;
    virtual const char* P47() = 0;
    virtual const char* P48() = 0;
    UNUSED_PLACE(49)
    UNUSED_PLACE(50)
    UNUSED_PLACE(51)
    UNUSED_PLACE(52)
    UNUSED_PLACE(53)
    UNUSED_PLACE(54)
    UNUSED_PLACE(55)
    UNUSED_PLACE(56)
    UNUSED_PLACE(57)
    UNUSED_PLACE(58)
    virtual int32_t P59(const FitDataStats* stats, const double* seeds) = 0;

  protected:
    ~PlaceTable() = default;
};
#undef UNUSED_PLACE

PlaceTable* PlacesOf(ZXADLG_CCurveFit* p) {
    return reinterpret_cast<PlaceTable*>(p);
}

TEST(Table, AnswersByPlace) {
    const LoadedLibrary library;
    ASSERT_NE(library.Create(), nullptr);
    FitOptions options = OptionsFor(14, 2);
    ZXADLG_CCurveFit* pObject = library.Create()(&options);
    ASSERT_NE(pObject, nullptr);
    PlaceTable* p = PlacesOf(pObject);
    // The record is read once.
    std::memset(&options, 0xFF, sizeof options);

    EXPECT_EQ(p->P18(), 1u);
    EXPECT_STREQ(p->P30(), "Exponential, sloping baseline");
    FitFunctionProps props{};
    EXPECT_EQ(p->P40(&props), 1);
    EXPECT_EQ(props.bHasSlope, 1);
    EXPECT_STREQ(p->P44(0, 0), "Time");
    EXPECT_STREQ(p->P45(), "Response");
    EXPECT_STREQ(p->P46(1, 1), "tau");
    EXPECT_STREQ(p->P47(), "C");
    EXPECT_STREQ(p->P48(), "m");

    FitDataStats stats{};
    stats.uOrder = 2;
    stats.dOffsetSeed = 100.0;
    stats.dSlopeSeed = 0.5;
    stats.dFirstX = 10.0;
    // A1, A2, tau1, tau2: parameter-major.
    const double seeds[] = {8.0, 4.0, 2.0, 5.0};
    EXPECT_EQ(p->P59(&stats, seeds), 1);
    const double x[] = {10.0, 12.0};
    const double* arrays[] = {x, nullptr};
    double y[] = {0.0, 0.0};
    EXPECT_EQ(p->P17(arrays, y, 2), 1);
    EXPECT_DOUBLE_EQ(y[0], 112.0);
    EXPECT_DOUBLE_EQ(y[1], 8.0 * std::exp(-1.0) + 4.0 * std::exp(-0.4) + 1.0 + 100.0);

    double found[8] = {};
    EXPECT_EQ(p->P7(arrays, found, 2, 2), 0);
    char szText[256] = {};
    EXPECT_EQ(p->P11(szText, 256), 1);
    EXPECT_STREQ(szText, "The data are incomplete.");
    EXPECT_EQ(p->P0(1), static_cast<void*>(pObject));
}

TEST(Table, PlacesThatNothingCallsAnswerZero) {
    const LoadedLibrary library;
    const FitOptions options = OptionsFor(15);
    ZXADLG_CCurveFit* pObject = library.Create()(&options);
    ASSERT_NE(pObject, nullptr);
    PlaceTable* p = PlacesOf(pObject);
    EXPECT_EQ(p->P1(), 0);
    EXPECT_EQ(p->P2(), 0);
    EXPECT_EQ(p->P3(), 0);
    EXPECT_EQ(p->P4(), 0);
    EXPECT_EQ(p->P5(), 0);
    EXPECT_EQ(p->P6(), 0);
    EXPECT_EQ(p->P8(), 0);
    EXPECT_EQ(p->P9(), 0);
    EXPECT_EQ(p->P10(), 0);
    EXPECT_EQ(p->P12(), 0);
    EXPECT_EQ(p->P13(), 0);
    EXPECT_EQ(p->P14(), 0);
    EXPECT_EQ(p->P15(), 0);
    EXPECT_EQ(p->P16(), 0);
    EXPECT_EQ(p->P19(), 0);
    EXPECT_EQ(p->P20(), 0);
    EXPECT_EQ(p->P21(), 0);
    EXPECT_EQ(p->P22(), 0);
    EXPECT_EQ(p->P23(), 0);
    EXPECT_EQ(p->P24(), 0);
    EXPECT_EQ(p->P25(), 0);
    EXPECT_EQ(p->P26(), 0);
    EXPECT_EQ(p->P27(), 0);
    EXPECT_EQ(p->P28(), 0);
    EXPECT_EQ(p->P29(), 0);
    EXPECT_EQ(p->P31(), 0);
    EXPECT_EQ(p->P32(), 0);
    EXPECT_EQ(p->P33(), 0);
    EXPECT_EQ(p->P34(), 0);
    EXPECT_EQ(p->P35(), 0);
    EXPECT_EQ(p->P36(), 0);
    EXPECT_EQ(p->P37(), 0);
    EXPECT_EQ(p->P38(), 0);
    EXPECT_EQ(p->P39(), 0);
    EXPECT_EQ(p->P41(), 0);
    EXPECT_EQ(p->P42(), 0);
    EXPECT_EQ(p->P43(), 0);
    EXPECT_EQ(p->P49(), 0);
    EXPECT_EQ(p->P50(), 0);
    EXPECT_EQ(p->P51(), 0);
    EXPECT_EQ(p->P52(), 0);
    EXPECT_EQ(p->P53(), 0);
    EXPECT_EQ(p->P54(), 0);
    EXPECT_EQ(p->P55(), 0);
    EXPECT_EQ(p->P56(), 0);
    EXPECT_EQ(p->P57(), 0);
    EXPECT_EQ(p->P58(), 0);
    pObject->DeleteSelf(1);
}

TEST(Table, DestroysAndFreesWithTheLowBit) {
    const FitOptions options = OptionsFor(15);
    // Without the bit the object stays; the leak checker sees one that is never freed.
    ZXADLG_CCurveFit* p = curvefit::CreateCurveFit(&options);
    EXPECT_EQ(p->DeleteSelf(0), static_cast<void*>(p));
    EXPECT_EQ(p->DeleteSelf(2), static_cast<void*>(p));
    EXPECT_STREQ(p->GetDependentLabel(), "Response");
    p->DeleteSelf(3);
}

TEST(Table, RefusesNullPointersAndWrongCounts) {
    const CurveFit fit = Make(OptionsFor(15));
    const double x[] = {1.0, 2.0, 3.0};
    const double* arrays[] = {x, x};
    const double* partly[] = {x, nullptr};
    double out[26] = {};
    EXPECT_EQ(fit->ComputeSeeds(nullptr, out, 2, 3), 0);
    EXPECT_EQ(ErrorOf(*fit), "The data are incomplete.");
    EXPECT_EQ(fit->ComputeSeeds(arrays, nullptr, 2, 3), 0);
    EXPECT_EQ(fit->ComputeSeeds(partly, out, 2, 3), 0);
    EXPECT_EQ(fit->ComputeSeeds(arrays, out, 1, 3), 0);
    EXPECT_EQ(fit->ComputeSeeds(arrays, out, 7, 3), 0);
    EXPECT_EQ(ErrorOf(*fit), "The data are incomplete.");
    EXPECT_EQ(fit->Evaluate(arrays, out, 3), 0);
    EXPECT_EQ(ErrorOf(*fit), "No curve has been set up.");
    FitDataStats stats{};
    stats.uOrder = 1;
    EXPECT_EQ(fit->SetUpCurve(nullptr, x), 0);
    EXPECT_EQ(fit->SetUpCurve(&stats, nullptr), 0);
    EXPECT_EQ(ErrorOf(*fit), "The data are incomplete.");
    EXPECT_EQ(fit->SetUpCurve(&stats, x), 1);
    EXPECT_EQ(ErrorOf(*fit), "");
    EXPECT_EQ(fit->Evaluate(nullptr, out, 3), 0);
    EXPECT_EQ(fit->Evaluate(arrays, nullptr, 3), 0);
    EXPECT_EQ(fit->Evaluate(partly + 1, out, 3), 0);
    EXPECT_EQ(ErrorOf(*fit), "The data are incomplete.");
    EXPECT_EQ(fit->Evaluate(arrays, out, 0), 1);
    EXPECT_EQ(fit->GetProperties(nullptr), 0);
    EXPECT_EQ(fit->GetErrorText(nullptr, 5), 0);
    EXPECT_EQ(fit->GetErrorText(reinterpret_cast<char*>(out), 0), 0);
    // A set-up that fails leaves no curve behind.
    EXPECT_EQ(fit->SetUpCurve(&stats, x), 1);
    EXPECT_EQ(fit->SetUpCurve(&stats, nullptr), 0);
    EXPECT_EQ(fit->Evaluate(arrays, out, 3), 0);
}

TEST(Table, CutsTheErrorTextAtItsBuffer) {
    const CurveFit fit = Make(OptionsFor(15));
    double out[26] = {};
    EXPECT_EQ(fit->ComputeSeeds(nullptr, out, 2, 3), 0);
    char szText[9] = "????????";
    EXPECT_EQ(fit->GetErrorText(szText, 5), 1);
    EXPECT_STREQ(szText, "The ");
    EXPECT_EQ(szText[5], '?');
}

TEST(Table, CustomFunctionIsNeitherSeededNorDrawn) {
    FitOptions options = OptionsFor(38);
    options.nNumCustomParams = 2;
    options.nNumCustomIndepVars = 1;
    const CurveFit fit = Make(options);
    const double x[] = {1.0, 2.0, 3.0};
    const double* arrays[] = {x, x};
    double out[26] = {};
    const std::string sText = "A custom function is evaluated by the program that compiled it.";
    EXPECT_EQ(fit->ComputeSeeds(arrays, out, 2, 3), 0);
    EXPECT_EQ(ErrorOf(*fit), sText);
    FitDataStats stats{};
    EXPECT_EQ(fit->SetUpCurve(&stats, x), 0);
    EXPECT_EQ(fit->Evaluate(arrays, out, 3), 0);
    EXPECT_EQ(ErrorOf(*fit), sText);
}

}  // namespace
