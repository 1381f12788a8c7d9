// Fields whose values are pulled into their range while the user types.

#include <gtest/gtest.h>

#include "PageDialog.h"
#include "analysis/CUntabbedDialogBase.h"
#include "framework/ADM_DoubleGaugeText.h"
#include "framework/ADM_IntegerGaugeText.h"

namespace {

using test_support::DialogScript;

struct ClampedRecord {
    std::int32_t nCount = 13;
    float fWidth = 2.5f;
};

class ClampedPage : public CRecordPage<ClampedRecord, CSinglePage> {
  public:
    static constexpr UINT kTemplate = 102;
    static constexpr int kCount = 1201, kWidth = 1202;

    explicit ClampedPage(ClampedRecord* pRecord) : CRecordPage(pRecord, nullptr, kTemplate, false) {
        BindClamped(kCount, txtCount, &ClampedRecord::nCount);
        txtCount.SetRange(10, 20, 1);
        BindClamped(kWidth, txtWidth, &ClampedRecord::fWidth);
        txtWidth.SetRange(0.5, 4.0, 0.5);
        AddCheck([this](const TypedValues& typed) {
            seen = typed.at(kCount) + " " + typed.at(kWidth);
            return CheckResult{};
        });
    }

    std::string seen;

  private:
    ADM_IntegerGaugeText txtCount;
    ADM_DoubleGaugeText txtWidth;
};

class ClampedFields : public testing::Test, protected analysis_test::PageSetup {
  protected:
    int Run(DialogScript& script) {
        ClampedPage page(&values);
        const int nResult = script.Run([&] { return static_cast<int>(page.DoModal()); });
        seen = page.seen;
        return nResult;
    }
    auto Holds(std::int32_t nCount, float fWidth) {
        return [this, nCount, fWidth] {
            EXPECT_EQ(values.nCount, nCount);
            EXPECT_EQ(values.fWidth, fWidth);
        };
    }

    ClampedRecord values;
    std::string seen;
};

TEST_F(ClampedFields, TheRecordFollowsEachKeyAndTheFieldWaitsUntilItIsLeft) {
    DialogScript script;
    script.Type(ClampedPage::kCount, "1")
        .ExpectText(ClampedPage::kCount, "1")
        .Do(Holds(10, 2.5f))
        .TypeKeys("5")
        .ExpectText(ClampedPage::kCount, "15")
        .Do(Holds(15, 2.5f))
        .TypeKeys("0")
        .ExpectText(ClampedPage::kCount, "150")
        .Do(Holds(20, 2.5f))
        .Type(ClampedPage::kWidth, "0.25")
        .ExpectText(ClampedPage::kCount, "20")
        .ExpectText(ClampedPage::kWidth, "0.25")
        .Do(Holds(20, 0.5f))
        .Focus(ClampedPage::kCount)
        .ExpectText(ClampedPage::kWidth, "0.5")
        .Click(IDCANCEL);
    EXPECT_EQ(Run(script), IDCANCEL);
}

TEST_F(ClampedFields, EnterLeavesTheFieldBeforeTheChecks) {
    DialogScript script;
    script.Type(ClampedPage::kCount, "7").Type(ClampedPage::kWidth, "12").Press(VK_RETURN);
    EXPECT_EQ(Run(script), IDOK);
    EXPECT_EQ(seen, "10 4");
    Holds(10, 4.0f)();
}

TEST_F(ClampedFields, WhatIsNoNumberKeepsTheLastValue) {
    DialogScript script;
    script.Type(ClampedPage::kWidth, "3.5")
        .TypeKeys(" ")
        .ExpectText(ClampedPage::kWidth, "3.5 ")
        .Do(Holds(13, 3.5f))
        .Press(VK_RETURN);
    EXPECT_EQ(Run(script), IDOK);
    EXPECT_EQ(seen, "13 3.5");
}

}  // namespace
