// The data tab on 10,000 sets against the bare page with a bare list box of the same names, and how
// the work on a selection grows from 1,000 entries to 10,000.
#include <cstring>
#include <memory>

#include "Benchmarks.h"
#include "PairedTiming.h"
#include "analysis/CUnitaryDataTab.h"
#include "ids.h"
#include "text/BoundedText.h"
#include "widgets/Framework.h"

namespace {

constexpr int kRounds = 15;

INT_PTR CALLBACK PlainProc(HWND, UINT uMsg, WPARAM, LPARAM) {
    return uMsg == WM_INITDIALOG;
}

class Owner {
  public:
    Owner()
        : m_hWnd(CreateWindowExA(0, "STATIC", "", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 640, 480,
                                 nullptr, nullptr, GetModuleHandleA(nullptr), nullptr)) {}
    ~Owner() { DestroyWindow(m_hWnd); }
    Owner(const Owner&) = delete;
    Owner& operator=(const Owner&) = delete;
    operator HWND() const { return m_hWnd; }

  private:
    HWND m_hWnd;
};

// A page that is open, over a record of its own.
class OpenTab {
  public:
    OpenTab(HWND hOwner, NamedSource& source) {
        std::memset(static_cast<void*>(m_pRecord.get()), 0, sizeof *m_pRecord);
        m_pRecord->eDataSet1SelectionMode = CDataOptionsInterface::kListedSets;
        m_pRecord->eDataGroup1SelectionMode = CDataOptionsInterface::kOneGroup;
        CopyText(m_pRecord->szUnitarySelectionList1, "0..2");
        m_pModel = std::make_unique<CDataOptionsInterface>(m_pRecord.get(), &source, &m_flags);
        m_pTab = std::make_unique<CUnitaryDataTab>(m_pModel.get(), IDD_UNITARY_DATA, false);
        m_pTab->CreatePage(hOwner, hOwner);
        m_pTab->OnPageShow();
        DrainMessages();
    }
    ~OpenTab() {
        m_pTab->Destroy();
        DrainMessages();
    }
    HWND Item(int nId) const { return GetDlgItem(m_pTab->GetHandle(), nId); }

  private:
    std::unique_ptr<ZXADLG_DataOptions> m_pRecord = std::make_unique<ZXADLG_DataOptions>();
    ZXADLG_DataTabFlags m_flags;
    std::unique_ptr<CDataOptionsInterface> m_pModel;
    std::unique_ptr<CUnitaryDataTab> m_pTab;
};

void OpenPlainPage(HWND hOwner, NamedSource& source) {
    const HWND hPage = CreateDialogParamA(GetFrameworkInstance(),
                                          MAKEINTRESOURCEA(IDD_UNITARY_DATA), hOwner, PlainProc, 0);
    const HWND hList = GetDlgItem(hPage, IDC_SET_LIST);
    SendMessageA(hList, WM_SETREDRAW, FALSE, 0);
    for (std::uint32_t s = 0; s < source.names.size(); ++s) {
        SendMessageA(hList, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(source.GetSetName(0, s)));
    }
    SendMessageA(hList, WM_SETREDRAW, TRUE, 0);
    ShowWindow(hPage, SW_SHOW);
    DrainMessages();
    DestroyWindow(hPage);
    DrainMessages();
}

// A user's work with every second of the sets: typed, and inverted twice.
void WorkOnSelection(const OpenTab& tab, const std::string& sTyped) {
    SetWindowTextA(tab.Item(IDC_SET_LIST_TEXT), sTyped.c_str());
    for (const int nId : {IDC_SELECT_INVERT, IDC_SELECT_INVERT, IDC_SELECT_ALL, IDC_SELECT_NONE}) {
        SendMessageA(tab.Item(nId), BM_CLICK, 0, 0);
    }
    DrainMessages();
}

}  // namespace

bool MeasureDataTab() {
    const Owner owner;
    NamedSource source(10000);
    bool bGood = PrintTiming(
        "data tab of 10,000 sets against a bare list box",
        TimeInTurn(
            kRounds, [&] { OpenTab(owner, source); }, [&] { OpenPlainPage(owner, source); }),
        1.5);
    NamedSource few(1000);
    const OpenTab large(owner, source);
    const OpenTab small(owner, few);
    // Ten times the entries may take ten times as long.
    bGood = PrintTiming("selecting among 10,000 against ten times 1,000",
                        TimeInTurn(
                            kRounds, [&] { WorkOnSelection(large, "1..10000"); },
                            [&] {
                                for (int i = 0; i < 10; ++i) WorkOnSelection(small, "1..1000");
                            }),
                        1.0) &&
            bGood;
    return bGood;
}
