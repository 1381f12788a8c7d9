// Every exported dialog as a row, so that a promise that holds for all of them is tested once: the
// tabbed ones and the single pages alike.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <iosfwd>
#include <set>
#include <string>
#include <vector>

#include "ZXADLG.h"
#include "fixtures/TestDataSource.h"

namespace dialogs_test {

struct Opening;

struct DialogRow {
    const char* szName;
    std::size_t nSize;         // of its option record
    bool bWritesDataDirectly;  // the host's data record itself, also on Cancel
    bool bHasDataTab;
    std::function<int(Opening&)> show;
    // Where it is not its name: the title of its window.
    const char* szTitle = nullptr;
    // Whether what is stored shows at the next opening; else the store holds histories alone.
    bool bShowsStored = true;
    // Makes a record of it that OK accepts; null: a record of zeros.
    void (*prepare)(std::vector<unsigned char>& options) = nullptr;
    // How the keys begin that follow the data at each opening.
    std::set<std::string> fromData = {};
    // What a user leaves alone who wants OK to be accepted.
    std::set<int> delicate = {};
    // What moves between entries and stays alive in read-only mode.
    std::set<int> alive = {};
    int nOptionPages = 1;
    // How the keys begin that a second window of the dialog keeps at its own OK, whatever becomes
    // of the dialog.
    std::set<std::string> keptBySecondWindow = {};

    std::string Title() const { return szTitle != nullptr ? szTitle : szName; }
    int PageCount() const { return nOptionPages + (bHasDataTab ? 1 : 0); }
};

// For the reports of tests.
void PrintTo(const DialogRow& row, std::ostream* pOut);

// What one opening works on: the bytes of the option record, the data record, the host. Two regions
// and a waveform, a selection of three sets, every optional control shown.
struct Opening {
    explicit Opening(const DialogRow& dialog);

    std::vector<unsigned char> options;
    ZXADLG_DataOptions data = {};
    test_support::TestDataSource source;
    ZXADLG_DlgParams params = {};
};

const std::vector<DialogRow>& Rows();
// The letters and digits of a dialog's title, as the name of its tests.
std::string NameOfRow(const testing::TestParamInfo<DialogRow>& row);

// The hosts that a dialog meets.
struct SourceRow {
    const char* szName;
    bool bHostile;
    void (*build)(test_support::TestDataSource&);
};

const std::vector<SourceRow>& Sources();

}  // namespace dialogs_test
