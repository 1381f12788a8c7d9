// A model of the data selection over a host of the test's own.
#pragma once

#include <gtest/gtest.h>

#include <cstring>
#include <limits>
#include <numeric>
#include <string>

#include "contract/CDataOptionsInterface.h"
#include "contract/SelectionList.h"
#include "fixtures/TestDataSource.h"
#include "text/BoundedText.h"

using test_support::TestDataSource;

inline constexpr double kLargest = std::numeric_limits<double>::max();

class DataOptions : public testing::Test {
  protected:
    // A new model over the record as it stands, with the record corrected against the source.
    CDataOptionsInterface& Model() {
        model = std::make_unique<CDataOptionsInterface>(&record, &source, &flags);
        return *model;
    }
    CDataOptionsInterface& Sheet() {
        source.Kind(2);
        return Model();
    }
    // The last thing asked, the kind of the data apart.
    std::string LastAsked() const {
        for (auto it = source.calls.rbegin(); it != source.calls.rend(); ++it) {
            if (*it != "GetDataKind()") return *it;
        }
        return "";
    }
    void List(const char* text) { CopyText(record.szUnitarySelectionList1, text); }
    void Dependents(const char* text) { CopyText(record.szDepVarSelectionList, text); }

    TestDataSource source;
    ZXADLG_DataOptions record = {};
    ZXADLG_DataTabFlags flags;
    std::unique_ptr<CDataOptionsInterface> model;
};
