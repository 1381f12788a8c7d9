// The library as a program loads it: its two exports by number, and every place of the table.

#include <gtest/gtest.h>

#include <cstring>

#include "FilterFixture.h"
#include "fixtures/LoadedModule.h"
#include "platform/platform.h"

namespace {

using namespace filter_test;

class LoadedLibrary : public test_support::LoadedModule {
  public:
    LoadedLibrary() : LoadedModule("FILTER.dll") {}
    ZXADLG_CreateFilter Create() const {
        return reinterpret_cast<ZXADLG_CreateFilter>(Find(MAKEINTRESOURCEA(1000)));
    }
    ZXADLG_ReleaseFilter Release() const {
        return reinterpret_cast<ZXADLG_ReleaseFilter>(Find(MAKEINTRESOURCEA(1001)));
    }
};

TEST(Library, ExportsTwoFunctionsByNumber) {
    const LoadedLibrary library;
    ASSERT_NE(library.Get(), nullptr);
    EXPECT_NE(library.Create(), nullptr);
    EXPECT_NE(library.Release(), nullptr);
    EXPECT_EQ(ZXADLG_FILTER_CREATE, 1000);
    EXPECT_EQ(ZXADLG_FILTER_RELEASE, 1001);
    for (const int nOrdinal : {1, 999, 1002})
        EXPECT_EQ(library.Find(MAKEINTRESOURCEA(nOrdinal)), nullptr) << nOrdinal;
}

// The places by their numbers: a table of its own, with nothing of the contract.
class PlaceTable {
  public:
    virtual int32_t P0() = 0;
    virtual int32_t P1() = 0;
    virtual int32_t P2() = 0;
    virtual int32_t P3() = 0;
    virtual int32_t P4() = 0;
    virtual int32_t P5() = 0;
    virtual uint32_t P6() = 0;
    virtual int32_t P7(double* values, uint32_t nPoints) = 0;
    virtual int32_t P8(char* text, uint32_t size) = 0;

  protected:
    ~PlaceTable() = default;
};

TEST(Table, AnswersByPlace) {
    const LoadedLibrary library;
    ASSERT_NE(library.Create(), nullptr);
    ASSERT_NE(library.Release(), nullptr);
    FilterOptions options = Boxcar(5);
    ZXADLG_CFilter* pObject = library.Create()(&options);
    ASSERT_NE(pObject, nullptr);
    // The record is read once.
    std::memset(&options, 0xFF, sizeof options);
    auto* p = reinterpret_cast<PlaceTable*>(pObject);
    EXPECT_EQ(p->P0(), 0);
    EXPECT_EQ(p->P1(), 0);
    EXPECT_EQ(p->P2(), 0);
    EXPECT_EQ(p->P3(), 0);
    EXPECT_EQ(p->P4(), 0);
    EXPECT_EQ(p->P5(), 0);
    EXPECT_EQ(p->P6(), 5u);
    double y[] = {1.0, 2.0};
    EXPECT_EQ(p->P7(y, 2), 0);
    char szText[64] = "";
    EXPECT_EQ(p->P8(szText, sizeof szText), 1);
    EXPECT_STREQ(szText, "The data have fewer points than the filter needs.");
    library.Release()(pObject);
}

TEST(Library, GivesNullForANullRecordAndReleasesNull) {
    const LoadedLibrary library;
    ASSERT_NE(library.Create(), nullptr);
    ASSERT_NE(library.Release(), nullptr);
    EXPECT_EQ(library.Create()(nullptr), nullptr);
    library.Release()(nullptr);
}

}  // namespace
