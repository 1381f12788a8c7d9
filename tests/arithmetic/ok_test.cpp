// What OK checks in its order, what it stores, and the range of rows.

#include <algorithm>

#include "ArithmeticTest.h"

namespace {

using namespace arithmetic_test;

class ArithmeticOk : public ArithmeticDialog {
  protected:
    static std::string TooLong(std::size_t length) {
        std::string text = kTooLong;
        return text.replace(text.find("%d"), 2, std::to_string(length));
    }
    static void SetText(HWND dialog, const std::string& text) {
        SetDlgItemTextA(dialog, IDC_EXPRESSION, text.c_str());
    }
};

constexpr char kOrder[] = "The first point of the data range must be smaller than the last.";
constexpr char kBeyond[] = "The start or end data index exceeds the number of available data.";

// --- The expression ------------------------------------------------------------------------------

TEST_F(ArithmeticOk, AnExpressionWithoutALeftSideGetsOne) {
    UseNewColumn();
    UseStore();
    DialogScript script;
    script.Type(IDC_EXPRESSION, "sin(A)").Type(IDC_COLUMN_TITLE, "Sine");
    ShowAndAccept(script);
    EXPECT_STREQ(options.szExpression, "NEWCOL=sin(A)");
    EXPECT_STREQ(options.szDisplayExpression, "y=sin(A)");
    EXPECT_STREQ(options.szColumnTitle, "Sine");
    EXPECT_EQ(Stored("ColumnArithmetic", "ColumnExpression0"), "sin(A)");
    EXPECT_EQ(Stored("ColumnArithmetic", "ColumnDescription0"), "Sine");
    EXPECT_EQ(Stored("ColumnArithmetic", "ColumnDescription1"), "Example");
}

TEST_F(ArithmeticOk, EveryFormAddsALeftSide) {
    DialogScript script;
    script.Type(IDC_EXPRESSION, "sin(time)");
    ShowAndAccept(script);
    EXPECT_STREQ(options.szExpression, "NEWCOL=sin(time)");
    UseColumns();
    std::memset(options.szColumnTitle, 't', 3);
    DialogScript columns;
    columns.Type(IDC_EXPRESSION, "sin(A)");
    ShowAndAccept(columns);
    EXPECT_STREQ(options.szExpression, "NEWCOL=sin(A)");
    EXPECT_STREQ(options.szDisplayExpression, "y=sin(A)");
    // A form without the box leaves the title as it came.
    EXPECT_STREQ(options.szColumnTitle, "ttt");
    DialogScript leftSide;
    leftSide.Type(IDC_EXPRESSION, "A=B");
    ShowAndAccept(leftSide);
    EXPECT_STREQ(options.szExpression, "A=B");
    EXPECT_STREQ(options.szDisplayExpression, "");
}

TEST_F(ArithmeticOk, AnEmptyExpressionIsRefused) {
    DialogScript script;
    script.Type(IDC_EXPRESSION, "  ")
        .Click(IDOK)
        .Answer(IDOK, "An arithmetic expression has not been specified.")
        .ExpectFocus(IDC_EXPRESSION);
    ShowAndCancel(script);
    EXPECT_EQ(script.Messages().size(), 1u);
}

TEST_F(ArithmeticOk, ASheetsNewColumnWantsATitle) {
    UseNewColumn();
    DialogScript script;
    script.Type(IDC_COLUMN_TITLE, "")
        .Click(IDOK)
        .Answer(IDOK, "Enter a column title for the output data.")
        .ExpectFocus(IDC_COLUMN_TITLE)
        .Type(IDC_COLUMN_TITLE, "%s");
    ShowAndAccept(script);
    EXPECT_STREQ(options.szColumnTitle, "%s");
}

TEST_F(ArithmeticOk, OtherSetsWantNoTitleAndKeepNoHistoryOfIt) {
    UseStore();
    source.Kind(1);
    params.bNewColumnArithmetic = 1;
    DialogScript script;
    script.Type(IDC_COLUMN_TITLE, "");
    ShowAndAccept(script);
    EXPECT_STREQ(options.szColumnTitle, "");
    DialogScript titled;
    titled.Type(IDC_COLUMN_TITLE, "Kept");
    ShowAndAccept(titled);
    EXPECT_STREQ(options.szColumnTitle, "Kept");
    EXPECT_EQ(Stored("ColumnArithmetic", "ColumnDescription0"), "(none)");
}

TEST_F(ArithmeticOk, TwoHundredAndFiftyFiveCharactersPass) {
    UseStore();
    const std::string text = "t1=" + std::string(252, 'A');
    DialogScript script;
    script.Do([&](HWND dialog) { SetText(dialog, text); });
    ShowAndAccept(script);
    EXPECT_EQ(std::string(options.szExpression), text.substr(0, 254));
    EXPECT_EQ(Stored("TraceArithmetic", "TraceExpression0"), text);
}

TEST_F(ArithmeticOk, MoreCharactersAreRefused) {
    DialogScript script;
    for (const std::size_t length : {std::size_t{256}, std::size_t{4000}}) {
        script.Do([length](HWND dialog) { SetText(dialog, std::string(length, 'A')); })
            .Click(IDOK)
            .Answer(IDOK, TooLong(length))
            .ExpectFocus(IDC_EXPRESSION);
    }
    script.Do([](HWND dialog) { SetText(dialog, std::string(254, 'A')); });
    ShowAndAccept(script);
    EXPECT_EQ(std::strlen(options.szExpression), 254u);
}

TEST_F(ArithmeticOk, AnyBytesAreKept) {
    DialogScript script;
    script.Do([](HWND dialog) { SetText(dialog, "t1=\xC4\xFF%s%0"); });
    ShowAndAccept(script);
    EXPECT_STREQ(options.szExpression, "t1=\xC4\xFF%s%0");
}

// --- The store -----------------------------------------------------------------------------------

TEST_F(ArithmeticOk, TracesKeepTheirOptionsAndColumnsTheirHistoriesAlone) {
    UseStore();
    DialogScript script;
    script.Click(IDC_SETS_ALL).Type(IDC_EXPRESSION, "t1=t2");
    ShowAndAccept(script);
    EXPECT_EQ(Stored("TraceArithmetic", "eDataSet1SelectionMode"), "1");
    EXPECT_EQ(Stored("TraceArithmetic", "szExpression"), "t1=t2");
    const std::string traces = store.ReadFile();
    UseColumns();
    DialogScript columns;
    columns.ExpectSelected(IDC_EXPRESSION, "t1=t2").Type(IDC_EXPRESSION, "A=B");
    ShowAndAccept(columns);
    EXPECT_EQ(store.ReadFile().substr(0, traces.size()), traces);
    EXPECT_EQ(Stored("TraceArithmetic", "szExpression"), "t1=t2");
    EXPECT_EQ(Stored("ColumnArithmetic", "ColumnExpression0"), "A=B");
    EXPECT_EQ(Stored("ColumnArithmetic", "szExpression"), "(none)");
    EXPECT_EQ(store.ReadFile().find("DataSection"), std::string::npos);
}

TEST_F(ArithmeticOk, CancelChangesAndStoresNothing) {
    UseStore();
    const ZXADLG_ArithmeticOptions before = options;
    const ZXADLG_DataOptions dataBefore = data;
    DialogScript script;
    script.Type(IDC_EXPRESSION, "t1=t2")
        .Click(IDC_SETS_TYPED)
        .Type(IDC_SET_LIST_TEXT, "1..3")
        .Click(IDC_GROUPS_ONE)
        .Choose(IDC_REGION, 1)
        .Click(IDC_EXPRESSION_CLEAR);
    ShowAndCancel(script);
    EXPECT_EQ(std::memcmp(&before, &options, sizeof options), 0);
    EXPECT_EQ(std::memcmp(&dataBefore, &data, sizeof data), 0);
    EXPECT_EQ(store.ReadFile(), "");
}

TEST_F(ArithmeticOk, TheDataRecordStartsAtItsDefaultsWhateverIsThere) {
    data.uGroup1Index = 1;
    data.eAnalysisRegion = 77;
    std::strcpy(data.szUnitarySelectionList1, "5..7");
    options.uFirstDataIndex = 3;
    options.uLastDataIndex = 7;
    options.bUseFullDataRange = 0;
    DialogScript script;
    ShowAndAccept(script);
    EXPECT_STREQ(data.szUnitarySelectionList1, "0");
    EXPECT_EQ(data.uGroup1Index, 0u);
    EXPECT_EQ(data.eDataGroup1SelectionMode, 3);
    EXPECT_EQ(data.eDataGroup2SelectionMode, 3);
    EXPECT_EQ(data.eDataSet1SelectionMode, 1);
    EXPECT_EQ(data.eDataSet2SelectionMode, 1);
    EXPECT_EQ(data.uFirstDataIndex, 3u);
    EXPECT_EQ(data.uLastDataIndex, 7u);
    EXPECT_EQ(data.bUseFullDataRange, 0);
    EXPECT_EQ(data.eAnalysisRegion, 77);
    EXPECT_EQ(data.uGroupCount, 2u);
    EXPECT_EQ(data.dMaxValue, 100.0 * 11 + 999);
}

TEST_F(ArithmeticOk, WithoutDataOptionsTheDataRecordStays) {
    params.bUseDataOptions = 0;
    std::memset(&data, 0x33, sizeof data);
    const ZXADLG_DataOptions before = data;
    DialogScript script;
    ShowAndAccept(script);
    EXPECT_EQ(std::memcmp(&before, &data, sizeof data), 0);
}

TEST_F(ArithmeticOk, TheDataAreDescribedOnce) {
    source.Record();
    DialogScript script;
    script.Do([this] { source.calls.clear(); });
    ShowAndAccept(script);
    EXPECT_EQ(std::count(source.calls.begin(), source.calls.end(), "HasUserList()"), 1);
}

TEST_F(ArithmeticOk, TheLastArgumentHasNoEffect) {
    ZXADLG_ArithmeticOptions first = options;
    for (const int32_t reserved : {0, 1}) {
        std::memset(&options, 0, sizeof options);
        DialogScript script;
        script.Type(IDC_EXPRESSION, "t1=t2").Click(IDOK);
        EXPECT_EQ(Show(script, reserved), 1);
        if (reserved == 0) first = options;
    }
    EXPECT_EQ(std::memcmp(&first, &options, sizeof options), 0);
}

TEST_F(ArithmeticOk, WithoutAnyDataTheDialogStays) {
    for (const std::uint32_t kind : {0u, 2u}) {
        source.Kind(kind).Points(0);
        DialogScript script;
        script.Click(IDOK).Answer(IDOK, "No data are available for processing.");
        ShowAndCancel(script);
    }
}

TEST_F(ArithmeticOk, FieldsWithoutAControlKeepTheirValues) {
    options.bForceExcludedRegionToZero = 1;
    options.uFirstDataIndex = 12;
    options.uLastDataIndex = 5;
    options.bUseFullDataRange = 0;
    DialogScript script;
    ShowAndAccept(script);
    EXPECT_EQ(options.bForceExcludedRegionToZero, 1);
    EXPECT_EQ(options.uFirstDataIndex, 12u);
    EXPECT_EQ(options.uLastDataIndex, 5u);
    EXPECT_EQ(options.bUseFullDataRange, 0);
}

// --- Rows ----------------------------------------------------------------------------------------

TEST_F(ArithmeticOk, RowsAreEnabledByTheirButton) {
    UseColumns();
    DialogScript script;
    const int part[] = {IDC_RANGE_AVAILABLE, IDC_RANGE_FROM_LABEL, IDC_RANGE_FROM,
                        IDC_RANGE_FROM_SPIN, IDC_RANGE_TO_LABEL,   IDC_RANGE_TO,
                        IDC_RANGE_TO_SPIN};
    for (const int id : part) script.ExpectEnabled(id, false);
    script.ExpectEnabled(IDC_RANGE_NOTE, true).Click(IDC_RANGE_PART);
    for (const int id : part) script.ExpectEnabled(id, true);
    script.ExpectEnabled(IDC_RANGE_NOTE, false);
    ShowAndCancel(script);
}

TEST_F(ArithmeticOk, RowsOfOneRowPassAndOthersAreRefused) {
    UseColumns();
    DialogScript script;
    const struct {
        const char* from;
        const char* to;
        const char* message;
        int focus;
    } rows[] = {{"6", "5", kOrder, IDC_RANGE_FROM},
                {"0", "5", kOrder, IDC_RANGE_FROM},
                {"5", "0", kOrder, IDC_RANGE_TO},
                {"5", "1001", kBeyond, IDC_RANGE_TO},
                {"1001", "1002", kBeyond, IDC_RANGE_FROM}};
    script.Click(IDC_RANGE_PART);
    for (const auto& row : rows) {
        script.Type(IDC_RANGE_FROM, row.from)
            .Type(IDC_RANGE_TO, row.to)
            .Click(IDOK)
            .Answer(IDOK, row.message)
            .ExpectFocus(row.focus);
    }
    script.Type(IDC_RANGE_FROM, "5").Type(IDC_RANGE_TO, "5");
    ShowAndAccept(script);
    EXPECT_EQ(options.uFirstDataIndex, 4u);
    EXPECT_EQ(options.uLastDataIndex, 4u);
    EXPECT_EQ(options.bUseFullDataRange, 0);
}

TEST_F(ArithmeticOk, AllRowsPassWhateverTheFieldsSay) {
    UseColumns();
    DialogScript script;
    script.Click(IDC_RANGE_PART)
        .Type(IDC_RANGE_FROM, "6")
        .Type(IDC_RANGE_TO, "5")
        .Click(IDC_RANGE_ALL);
    ShowAndAccept(script);
    EXPECT_EQ(options.bUseFullDataRange, 1);
}

TEST_F(ArithmeticOk, TheSmallestColumnNamedLimitsTheRows) {
    UseColumns();
    source.fewerPerSet = 10;
    options.bUseFullDataRange = 0;
    const auto limit = [](const char* count) {
        return "Available data range = 1 to " + std::string(count) + " (from smallest column)";
    };
    DialogScript script;
    script.Type(IDC_EXPRESSION, "A=sin(A)")
        .ExpectText(IDC_RANGE_AVAILABLE, limit("1000"))
        .Type(IDC_EXPRESSION, "A=C")
        .ExpectText(IDC_RANGE_AVAILABLE, limit("980"))
        .Type(IDC_EXPRESSION, "A=B..D")
        .ExpectText(IDC_RANGE_AVAILABLE, limit("970"))
        .Type(IDC_EXPRESSION, "ramp()")
        .ExpectText(IDC_RANGE_AVAILABLE, limit("1000"))
        // What half-typed names say does not reach the rows.
        .Type(IDC_RANGE_FROM, "1")
        .Type(IDC_RANGE_TO, "975")
        .Type(IDC_EXPRESSION, "A+D")
        .ExpectText(IDC_RANGE_TO, "975")
        .Click(IDOK)
        .Answer(IDOK, kBeyond)
        .ExpectFocus(IDC_RANGE_TO)
        .Type(IDC_RANGE_TO, "970");
    ShowAndAccept(script);
    EXPECT_EQ(options.uLastDataIndex, 969u);
}

TEST_F(ArithmeticOk, WithoutRowsTheRangeIsZeroToZero) {
    UseColumns();
    source.Points(0);
    DialogScript script;
    script.ExpectText(IDC_RANGE_AVAILABLE, "Available data range = 0 to 0 (from smallest column)");
    ShowAndCancel(script);
}

TEST_F(ArithmeticOk, ANewColumnsLimitGoesByItsRightSide) {
    UseNewColumn();
    source.fewerPerSet = 10;
    options.bUseFullDataRange = 0;
    DialogScript script;
    script.Type(IDC_EXPRESSION, "C+B")
        .ExpectText(IDC_RANGE_AVAILABLE, "Available data range = 1 to 980 (from smallest column)");
    ShowAndCancel(script);
}

}  // namespace
