// The data tab of one family of sets in a dialog of the test's own.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

#include "PageDialog.h"
#include "fixtures/WindowReading.h"
#include "text/BoundedText.h"

using test_support::DialogScript;
using test_support::FindControl;
using test_support::ItemsOf;
using test_support::SelectedIndexes;
using test_support::TextOf;
using Numbers = std::vector<int>;

constexpr char kNoData[] = "No data have been selected. At least one data set must be specified.";

class UnitaryTab : public testing::Test, protected analysis_test::PageSetup {
  protected:
    UnitaryTab() {
        source.Region(0, "Whole trace", 0, 999).Region(3, "Cursors 1..2", 100, 199);
        record.eDataGroup1SelectionMode = 1;
        record.eDataSet1SelectionMode = 3;
        List("0..2");
    }
    void List(const char* text) { CopyText(record.szUnitarySelectionList1, text); }
    // What is selected in the list now.
    static auto Selected(Numbers want, int list = IDC_SET_LIST) {
        return [want, list](HWND dialog) {
            EXPECT_EQ(SelectedIndexes(FindControl(dialog, list)), want);
        };
    }
    static Numbers Upto(int n) {
        Numbers numbers;
        for (int i = 0; i < n; ++i) numbers.push_back(i);
        return numbers;
    }
    static DialogScript& EnabledList(DialogScript& script, bool enabled) {
        return script.ExpectEnabled(IDC_SET_LIST, enabled)
            .ExpectEnabled(IDC_SELECT_ALL, enabled)
            .ExpectEnabled(IDC_SELECT_NONE, enabled)
            .ExpectEnabled(IDC_SELECT_INVERT, enabled);
    }
};
