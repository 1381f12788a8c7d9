// What the tests of the arithmetic dialog share: a host, records that fit it, the three forms, and
// a store of the test's own that is off until a test asks for it.
#pragma once

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "ZXADLG.h"
#include "arithmetic_ids.h"
#include "fixtures/DialogScript.h"
#include "fixtures/ScratchStore.h"
#include "fixtures/TestDataSource.h"
#include "fixtures/WindowReading.h"
#include "ids.h"
#include "store/ProfileStore.h"

namespace arithmetic_test {

using test_support::DialogScript;
using test_support::FindControl;
using test_support::ScratchStore;
using test_support::TestDataSource;
using test_support::TextOf;

// A host whose sets have fewer points the further back they stand, where a test asks for it.
class Host : public TestDataSource {
  public:
    uint32_t GetPointCount(uint32_t group, uint32_t set, const ZXADLG_DataRange* range,
                           uint32_t reserved) override {
        const uint32_t whole = TestDataSource::GetPointCount(group, set, range, reserved);
        return range == nullptr && whole > 0 ? whole - set * fewerPerSet : whole;
    }

    uint32_t fewerPerSet = 0;
};

class ArithmeticDialog : public testing::Test {
  protected:
    ArithmeticDialog() {
        std::memset(&options, 0, sizeof options);
        std::memset(&data, 0, sizeof data);
        options.bUseFullDataRange = 1;
        params.bUseDataOptions = 1;
        params.bShowGroupSelector = 1;
        source.Region(8, "Whole trace", 0, 999).Region(3, "Cursors 1..2", 100, 199);
        source.activeSet = 2;
    }
    ~ArithmeticDialog() override { SetUseProfileFile(usedFile); }

    // The forms: traces are what the host has at first.
    void UseColumns() {
        source.Kind(2);
        source.groupLabel = "Sheet";
        source.setLabel = "Column";
    }
    void UseNewColumn() {
        UseColumns();
        params.bNewColumnArithmetic = 1;
    }
    // From here on the host names the test's own store.
    void UseStore() { source.Profile(store.ProfileFile()); }
    void Put(const char* section, const char* key, const char* value) {
        WriteString(section, key, value, store.ProfileFile().c_str());
    }
    std::string Stored(const char* section, const char* key) const {
        char text[1100] = "";
        return ReadString(section, key, "", text, sizeof text, store.ProfileFile().c_str())
                   ? text
                   : "(none)";
    }

    int Show(DialogScript& script, int32_t reserved = 0) {
        return script.Run([&] {
            return ZXADLG_ShowArithmeticDialog(nullptr, &options, &data, &source, &params,
                                               reserved);
        });
    }
    void ShowAndCancel(DialogScript& script) {
        script.Click(IDCANCEL);
        EXPECT_EQ(Show(script), 2);
    }
    void ShowAndAccept(DialogScript& script) {
        script.Click(IDOK);
        EXPECT_EQ(Show(script), 1);
    }

    static HWND EditOf(HWND dialog, int id) {
        return FindWindowExA(GetDlgItem(dialog, id), nullptr, "Edit", nullptr);
    }
    // The text of a box with a mark at its caret.
    static std::string WithCaret(HWND dialog, int id = IDC_EXPRESSION) {
        DWORD from = 0, to = 0;
        const HWND edit = EditOf(dialog, id);
        SendMessageA(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&from),
                     reinterpret_cast<LPARAM>(&to));
        return TextOf(edit).insert(to, "|");
    }
    static void SetCaret(HWND dialog, int at) {
        SendMessageA(EditOf(dialog, IDC_EXPRESSION), EM_SETSEL, static_cast<WPARAM>(at), at);
    }

    Host source;
    ZXADLG_ArithmeticOptions options;
    ZXADLG_DataOptions data;
    ZXADLG_DlgParams params = {};
    const ScratchStore store;
    const bool usedFile = SetUseProfileFile(true);
};

constexpr char kTooLong[] =
    "The maximum length of the expression is 255 characters.\n"
    "The current expression contains %d characters.";
constexpr char kNoEquals[] = "The expression cannot contain an \"=\" sign.";

}  // namespace arithmetic_test
