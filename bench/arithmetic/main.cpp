// The three forms of arithmetic against bare dialogs of the same templates with the same items in
// them, and what follows each key: the scan for columns, and remapping.
#include "DialogTiming.h"
#include "analysis/Benchmarks.h"
#include "arithmetic/ColumnRemap.h"
#include "arithmetic/ColumnScan.h"
#include "arithmetic_ids.h"
#include "entry/ShowSequence.h"
#include "fixtures/system.h"
#include "ids.h"
#include "widgets/FrameworkSetup.h"

// Crash reports of the test start-up name the running test; here there is none.
const char* test_support::RunningTestName() {
    return "benchmark";
}

namespace {

constexpr int kRounds = 15;
constexpr double kMostForOneKey = 1.0;  // ms

class ArithmeticSource : public NamedSource {
  public:
    using NamedSource::NamedSource;
    uint32_t GetDataKind() override { return kind; }

    std::uint32_t kind = 0;
};

int g_nBareTemplate;
const NamedSource* g_pSource;

INT_PTR CALLBACK BareProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM) {
    if (uMsg != WM_INITDIALOG) return EndBareAtOk(hWnd, uMsg, wParam);
    const auto add = [hWnd](int nId, UINT uAdd, const char* szText) {
        if (const HWND hItem = GetDlgItem(hWnd, nId))
            SendMessageA(hItem, uAdd, 0, reinterpret_cast<LPARAM>(szText));
    };
    for (const std::string& sName : g_pSource->names)
        add(IDC_SET_LIST, LB_ADDSTRING, sName.c_str());
    for (const char* szName : NamedSource::kGroupNames) add(IDC_GROUP, CB_ADDSTRING, szName);
    for (const char* szName : NamedSource::kRegionNames) add(IDC_REGION, CB_ADDSTRING, szName);
    for (const int nId : {IDC_EXPRESSION, IDC_COLUMN_TITLE}) {
        add(nId, CB_ADDSTRING, "A=(B+C)/2+sin(K$9)");
        SetDlgItemTextA(hWnd, nId, "A=(B+C)/2+sin(K$9)");
    }
    for (const int nId : {IDC_GROUP, IDC_REGION}) {
        if (const HWND hItem = GetDlgItem(hWnd, nId)) SendMessageA(hItem, CB_SETCURSEL, 0, 0);
    }
    SetDlgItemTextA(hWnd, IDC_EXPRESSION_EXAMPLE, "Example: A=(B+C)/2+sin(K$9)");
    return TRUE;
}

bool TimeForm(DialogTiming& timing, ArithmeticSource& source, const char* szName,
              std::uint32_t eKind, std::uint8_t bNewColumn, int nTemplate) {
    source.kind = eKind;
    g_pSource = &source;
    g_nBareTemplate = nTemplate;
    ZXADLG_DlgParams params = {};
    params.bUseDataOptions = params.bShowGroupSelector = 1;
    params.bNewColumnArithmetic = bNewColumn;
    const auto show = [&] {
        ZXADLG_ArithmeticOptions options = {};
        options.bUseFullDataRange = 1;
        ZXADLG_DataOptions data = {};
        ZXADLG_ShowArithmeticDialog(timing.GetOwner(), &options, &data, &source, &params, 0);
    };
    const DialogTiming::Ratios ratios = timing.TimeInTurn(kRounds, show, [&] {
        DialogBoxParamA(GetFrameworkInstance(), MAKEINTRESOURCEA(g_nBareTemplate),
                        timing.GetOwner(), BareProc, 0);
    });
    const bool bShow = PrintTiming(
        (std::string(szName) + " from Show to its first idle moment").c_str(), ratios.show, 1.2);
    return PrintTiming((std::string(szName) + " from OK to the return").c_str(), ratios.end, 1.5) &&
           bShow;
}

// The longest expression over a sheet of ten thousand columns.
bool TimeOneKey() {
    std::string sScanned;
    while (sScanned.size() + 6 <= 255) sScanned += "A..ZZ+";
    std::string sRemapped = "A";
    for (char c = 'B'; sRemapped.size() + 2 <= 253; c = c == 'Z' ? 'A' : static_cast<char>(c + 1))
        sRemapped += std::string("+") + c;
    std::vector<std::int32_t> vColumns;
    for (std::int32_t i = 25; i >= 0; --i) vColumns.push_back(i);
    constexpr int kRepeats = 200;
    using Clock = std::chrono::steady_clock;
    const auto start = Clock::now();
    std::size_t nFound = 0;
    for (int i = 0; i < kRepeats; ++i) {
        nFound += ScanColumns(sScanned, false, 10000).size();
        nFound += RemapColumns(sRemapped, vColumns).value_or("").size();
    }
    const double dMs =
        std::chrono::duration<double, std::milli>(Clock::now() - start).count() / kRepeats;
    const bool bGood = dMs <= kMostForOneKey && nFound != 0;
    std::printf("%-55s %8.3f ms, at most %.1f  %s\n", "A scan and a remapping of 255 characters",
                dMs, kMostForOneKey, bGood ? "ok" : "TOO SLOW");
    return bGood;
}

}  // namespace

int main() {
    // A desktop of its own: what a window manager takes to show a dialog would hide everything
    // else.
    test_support::StartSystem();
    PrepareLibrary();
    bool bGood = TimeOneKey();
    {
        DialogTiming timing;
        ArithmeticSource source{12};
        bGood = TimeForm(timing, source, "Traces", 0, 0, IDD_ARITHMETIC_TRACES) && bGood;
        bGood = TimeForm(timing, source, "Columns", 2, 0, IDD_ARITHMETIC_COLUMNS) && bGood;
        bGood = TimeForm(timing, source, "New column", 2, 1, IDD_ARITHMETIC_NEW_COLUMN) && bGood;
    }
    test_support::StopSystem();
    return bGood ? 0 : 1;
}
