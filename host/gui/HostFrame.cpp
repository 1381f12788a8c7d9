// The window of the example host: sweeps above, on the left the analyses and the parameters of
// their dialogs, below the fields of the records before and after and the store.

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstring>
#include <iostream>
#include <string>
#include <vector>

#include "Analyses.h"
#include "HostDataSource.h"
#include "HostFileSource.h"
#include "HostWindow.h"
#include "Look.h"
#include "PlotView.h"
#include "Report.h"
#include "SettingsStore.h"
#include "System.h"
#include "zxadlg/headless.h"
// The file dialog needs the types of the platform.
#include <commdlg.h>
#include <shellapi.h>

namespace zxhost {
namespace {

constexpr char kClassName[] = "ZxHostFrame";

enum Id {
    kIdPlot = 100,
    kIdRecording,
    kIdLoad,
    kIdAnalyses,
    kIdParams,
    kIdOpen,
    kIdUndo,
    kIdChangedOnly,
    kIdFields,
    kIdStore,
    kIdStatus,
    kIdProgress,
    kIdLabel,
};

// Pixels.
const int kMargin = Scaled(8);
const int kSide = Scaled(250);
const int kButton = Scaled(26);
const int kLabel = Scaled(16);
const int kStoreWidth = Scaled(320);
const int kFieldsHeight = Scaled(210);
const int kStatusHeight = Scaled(18);
constexpr COLORREF kChangedBack = RGB(255, 244, 204);

const char* const kRecordings[] = {"Simulated family", "Simulated, second kind",
                                   "Simulated, no waveform", "Simulated sheet"};
const char* const kRecordingNames[] = {"family", "second-kind", "no-waveform", "sheet"};

class Frame {
  public:
    explicit Frame(const Options& options) : options_(options), params_(options.params) {}

    int Run() {
        std::string error;
        if (!store_.Open(options_.store, &error)) {
            Complain(error);
            return kNoInput;
        }
        // A file may take its time and is read when there is a window to tell so.
        if (options_.data.empty() && LoadRecording(options_, &recording_, &error) != kDone) {
            Complain(error);
            return kWrongUsage;
        }
        for (const Analysis& analysis : kAnalyses) {
            recordOf_.emplace_back(analysis.size / sizeof(double) + 1, 0.0);
            std::memcpy(recordOf_.back().data(), analysis.defaults, analysis.size);
        }
        dataOf_.resize(kAnalyses.size(), DefaultData());
        INITCOMMONCONTROLSEX controls = {sizeof controls,
                                         ICC_LISTVIEW_CLASSES | ICC_PROGRESS_CLASS};
        InitCommonControlsEx(&controls);
        WNDCLASSA wc = {};
        wc.lpfnWndProc = Proc;
        wc.hInstance = GetModuleHandleA(nullptr);
        wc.hCursor = LoadCursorA(nullptr, IDC_ARROW);
        wc.hIcon = LoadIconA(nullptr, IDI_APPLICATION);
        wc.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
        wc.lpszClassName = kClassName;
        RegisterClassA(&wc);
        hwnd_ = CreateWindowExA(WS_EX_CONTROLPARENT, kClassName, "zxhost",
                                WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, CW_USEDEFAULT, CW_USEDEFAULT,
                                Scaled(1120), Scaled(800), nullptr, nullptr, wc.hInstance, this);
        if (!hwnd_) return kNoInput;
        DragAcceptFiles(hwnd_, TRUE);
        RefreshPlot(Item(kIdPlot));
        ShowWindow(hwnd_, SW_SHOW);
        SetFocus(Item(kIdAnalyses));
        if (!options_.data.empty()) {
            UpdateWindow(hwnd_);
            ReadFile(options_);
        }
        MSG msg;
        while (GetMessageA(&msg, nullptr, 0, 0) > 0) {
            if (IsDialogMessageA(hwnd_, &msg)) continue;
            TranslateMessage(&msg);
            DispatchMessageA(&msg);
        }
        return kDone;
    }

  private:
    static LRESULT CALLBACK Proc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == WM_NCCREATE) {
            auto* frame =
                static_cast<Frame*>(reinterpret_cast<CREATESTRUCTA*>(lParam)->lpCreateParams);
            frame->hwnd_ = hwnd;
            SetWindowLongPtrA(hwnd, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(frame));
        }
        auto* frame = reinterpret_cast<Frame*>(GetWindowLongPtrA(hwnd, GWLP_USERDATA));
        return frame ? frame->Handle(message, wParam, lParam)
                     : DefWindowProcA(hwnd, message, wParam, lParam);
    }

    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) {
        switch (message) {
            case WM_CREATE:
                MakeControls();
                return 0;
            case WM_SIZE:
                Arrange(LOWORD(lParam), HIWORD(lParam));
                return 0;
            case WM_GETMINMAXINFO:
                reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {Scaled(820), Scaled(640)};
                return 0;
            case WM_COMMAND:
                Command(LOWORD(wParam), HIWORD(wParam));
                return 0;
            case WM_NOTIFY:
                return Notify(*reinterpret_cast<NMHDR*>(lParam), lParam);
            case WM_DROPFILES:
                TakeDropped(reinterpret_cast<HDROP>(wParam));
                return 0;
            case WM_DESTROY:
                DeleteObject(fixedFont_);
                PostQuitMessage(0);
                return 0;
            default:
                return DefWindowProcA(hwnd_, message, wParam, lParam);
        }
    }

    // --- Controls ---

    HWND Item(int id) const { return GetDlgItem(hwnd_, id); }

    HWND Make(const char* kind, const char* text, DWORD style, int id, DWORD exStyle = 0) {
        HWND made = CreateWindowExA(exStyle, kind, text, WS_CHILD | WS_VISIBLE | style, 0, 0, 0, 0,
                                    hwnd_, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                                    GetModuleHandleA(nullptr), nullptr);
        SendMessageA(made, WM_SETFONT, reinterpret_cast<WPARAM>(DialogFont()), FALSE);
        return made;
    }

    void MakeControls() {
        CreatePlot(hwnd_, kIdPlot, &recording_);
        labels_[0] = Make("STATIC", "&Recording", 0, kIdLabel);
        HWND recordings =
            Make("COMBOBOX", "", CBS_DROPDOWNLIST | WS_TABSTOP | WS_VSCROLL, kIdRecording);
        for (const char* name : kRecordings)
            SendMessageA(recordings, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name));
        for (int i = 0; i < 4; ++i) {
            if (options_.data.empty() && options_.recording == kRecordingNames[i])
                SendMessageA(recordings, CB_SETCURSEL, static_cast<WPARAM>(i), 0);
        }
        if (options_.data.empty() && options_.recording.empty())
            SendMessageA(recordings, CB_SETCURSEL, 0, 0);
        Make("BUTTON", "&Load text file...", WS_TABSTOP, kIdLoad);
        labels_[1] = Make("STATIC", "&Analyses", 0, kIdLabel);
        HWND analyses =
            Make("LISTBOX", "", LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | WS_TABSTOP | WS_VSCROLL,
                 kIdAnalyses, WS_EX_CLIENTEDGE);
        for (const Analysis& analysis : kAnalyses)
            SendMessageA(analyses, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(analysis.title));
        SendMessageA(analyses, LB_SETCURSEL, 0, 0);
        Make("BUTTON", "&Open dialog", WS_TABSTOP | BS_DEFPUSHBUTTON, kIdOpen);
        Make("BUTTON", "&Undo last dialog", WS_TABSTOP | WS_DISABLED, kIdUndo);
        labels_[2] = Make("STATIC", "&Parameters of the dialog", 0, kIdLabel);
        MakeParams();
        Make("BUTTON", "&Changed only", BS_AUTOCHECKBOX | WS_TABSTOP, kIdChangedOnly);
        CheckDlgButton(hwnd_, kIdChangedOnly, BST_CHECKED);
        labels_[3] = Make("STATIC", "&Fields of the records", 0, kIdLabel);
        HWND fields =
            Make(WC_LISTVIEWA, "", LVS_REPORT | LVS_SINGLESEL | LVS_NOSORTHEADER | WS_TABSTOP,
                 kIdFields, WS_EX_CLIENTEDGE);
        ListView_SetExtendedListViewStyle(fields, LVS_EX_FULLROWSELECT);
        AddColumn(fields, 0, "Field", Scaled(200));
        AddColumn(fields, 1, "Before", Scaled(120));
        AddColumn(fields, 2, "After", Scaled(150));
        labels_[4] = Make("STATIC", "S&tore", 0, kIdLabel);
        HWND store =
            Make("EDIT", "", ES_MULTILINE | ES_READONLY | ES_AUTOVSCROLL | WS_VSCROLL | WS_TABSTOP,
                 kIdStore, WS_EX_CLIENTEDGE);
        fixedFont_ = CreateFontA(-Scaled(12), 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, ANSI_CHARSET,
                                 0, 0, 0, FIXED_PITCH | FF_MODERN, "Courier New");
        SendMessageA(store, WM_SETFONT, reinterpret_cast<WPARAM>(fixedFont_), FALSE);
        Make("STATIC", "", SS_LEFTNOWORDWRAP | SS_NOPREFIX, kIdStatus);
        HWND progress = Make(PROGRESS_CLASSA, "", 0, kIdProgress);
        SendMessageA(progress, PBM_SETRANGE, 0, MAKELPARAM(0, 1000));
        ShowWindow(progress, SW_HIDE);
        if (recording_.PointCount() > 0) Tell(recording_.Describe());
        ShowStore();
    }

    static void AddColumn(HWND list, int index, const char* title, int width) {
        LVCOLUMNA column = {};
        column.mask = LVCF_TEXT | LVCF_WIDTH;
        column.pszText = const_cast<char*>(title);
        column.cx = width;
        SendMessageA(list, LVM_INSERTCOLUMNA, static_cast<WPARAM>(index),
                     reinterpret_cast<LPARAM>(&column));
    }

    static void AddRow(HWND list, int row, const std::string& text) {
        LVITEMA item = {};
        item.mask = LVIF_TEXT;
        item.iItem = row;
        item.pszText = const_cast<char*>(text.c_str());
        SendMessageA(list, LVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&item));
    }

    static void SetCell(HWND list, int row, int column, const std::string& text) {
        LVITEMA item = {};
        std::string told = ToSystem(text);
        item.iSubItem = column;
        item.pszText = told.data();
        SendMessageA(list, LVM_SETITEMTEXTA, static_cast<WPARAM>(row),
                     reinterpret_cast<LPARAM>(&item));
    }

    void MakeParams() {
        HWND list =
            Make(WC_LISTVIEWA, "", LVS_REPORT | LVS_SINGLESEL | LVS_NOCOLUMNHEADER | WS_TABSTOP,
                 kIdParams, WS_EX_CLIENTEDGE);
        ListView_SetExtendedListViewStyle(list, LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT);
        AddColumn(list, 0, "Parameter", kSide - Scaled(30));
        for (std::size_t i = 0; i < kParamNames.size(); ++i) {
            AddRow(list, static_cast<int>(i), kParamNames[i].name);
            ListView_SetCheckState(list, static_cast<int>(i), params_.*kParamNames[i].byte != 0);
        }
        paramsReady_ = true;
    }

    void Place(HWND control, int x, int y, int width, int height) {
        MoveWindow(control, x, y, std::max(0, width), std::max(0, height), TRUE);
    }

    void Arrange(int width, int height) {
        const int bottom = height - kStatusHeight - 2 * kMargin;
        const int right = kMargin + kSide + kMargin;
        int y = kMargin;
        Place(labels_[0], kMargin, y, kSide, kLabel);
        y += kLabel;
        Place(Item(kIdRecording), kMargin, y, kSide, Scaled(160));
        y += Scaled(28);
        Place(Item(kIdLoad), kMargin, y, kSide, kButton);
        y += kButton + kMargin;
        Place(labels_[1], kMargin, y, kSide, kLabel);
        y += kLabel;
        Place(Item(kIdAnalyses), kMargin, y, kSide, Scaled(150));
        y += Scaled(156);
        Place(Item(kIdOpen), kMargin, y, kSide / 2 - Scaled(2), kButton);
        Place(Item(kIdUndo), kMargin + kSide / 2 + Scaled(2), y, kSide / 2 - Scaled(2), kButton);
        y += kButton + kMargin;
        Place(labels_[2], kMargin, y, kSide, kLabel);
        y += kLabel;
        Place(Item(kIdParams), kMargin, y, kSide, bottom - y);

        const int lower = bottom - kFieldsHeight;
        Place(Item(kIdPlot), right, kMargin, width - right - kMargin,
              lower - kLabel - 2 * kMargin - Scaled(2));
        const int fields = width - right - kStoreWidth - 2 * kMargin;
        Place(labels_[3], right, lower - kLabel - Scaled(2), fields - Scaled(120), kLabel);
        Place(Item(kIdChangedOnly), right + fields - Scaled(110), lower - kLabel - Scaled(4),
              Scaled(110), kLabel + Scaled(2));
        Place(Item(kIdFields), right, lower, fields, kFieldsHeight);
        Place(labels_[4], right + fields + kMargin, lower - kLabel - Scaled(2), kStoreWidth,
              kLabel);
        Place(Item(kIdStore), right + fields + kMargin, lower, kStoreWidth, kFieldsHeight);
        Place(Item(kIdStatus), kMargin, height - kStatusHeight - kMargin, width - Scaled(240),
              kStatusHeight);
        Place(Item(kIdProgress), width - Scaled(208), height - kStatusHeight - kMargin, Scaled(200),
              Scaled(14));
    }

    // --- Events ---

    void Command(int id, int code) {
        if (id == kIdOpen || (id == kIdAnalyses && code == LBN_DBLCLK)) OpenDialog();
        // Enter in a list presses the default button as in a dialog.
        if (id == IDOK && code == 0) OpenDialog();
        if (id == kIdLoad && code == BN_CLICKED) ChooseFile();
        if (id == kIdRecording && code == CBN_SELCHANGE) ChooseSimulation();
        if (id == kIdChangedOnly && code == BN_CLICKED) ShowFields();
        if (id == kIdPlot && code == kPlotReadout) Tell(ReadPlot(Item(kIdPlot)));
        if (id == kIdPlot) TellCursor(code);
        if (id == kIdUndo && code == BN_CLICKED) Undo();
    }

    LRESULT Notify(const NMHDR& header, LPARAM lParam) {
        if (header.idFrom == kIdParams && header.code == LVN_ITEMCHANGED && paramsReady_) {
            const auto& change = *reinterpret_cast<NMLISTVIEW*>(lParam);
            if (change.iItem >= 0 && (change.uChanged & LVIF_STATE)) {
                const ParamName& param = kParamNames[static_cast<std::size_t>(change.iItem)];
                params_.*param.byte = ListView_GetCheckState(header.hwndFrom, change.iItem) ? 1 : 0;
                if (change.uNewState & LVIS_SELECTED)
                    Tell(std::string(param.name) + ": " + param.meaning);
            }
        }
        if (header.idFrom == kIdFields && header.code == NM_CUSTOMDRAW) {
            auto& draw = *reinterpret_cast<NMLVCUSTOMDRAW*>(lParam);
            if (draw.nmcd.dwDrawStage == CDDS_PREPAINT) return CDRF_NOTIFYITEMDRAW;
            if (draw.nmcd.dwDrawStage == CDDS_ITEMPREPAINT &&
                draw.nmcd.dwItemSpec < shownChanged_.size() &&
                shownChanged_[draw.nmcd.dwItemSpec]) {
                draw.clrText = RGB(0, 0, 0);
                draw.clrTextBk = kChangedBack;
                return CDRF_NEWFONT;
            }
        }
        return 0;
    }

    void Tell(const std::string& text) { SetWindowTextA(Item(kIdStatus), ToSystem(text).c_str()); }

    void Complain(const std::string& text) {
        MessageBoxA(hwnd_, ToSystem(text).c_str(), "zxhost", MB_OK | MB_ICONERROR);
    }

    void TellCursor(int cursor) {
        if (cursor < 1 || cursor > kCursors) return;
        const auto point =
            static_cast<std::size_t>(recording_.cursors[static_cast<std::size_t>(cursor - 1)]);
        std::string text = "Cursor " + std::to_string(cursor) + ": point " + std::to_string(point);
        if (point < recording_.x.size()) {
            char at[64];
            std::snprintf(at, sizeof at, " at %.6g %s", recording_.x[point],
                          recording_.xUnits.c_str());
            text += at;
        }
        Tell(text);
    }

    void ChooseSimulation() {
        const LRESULT index = SendMessageA(Item(kIdRecording), CB_GETCURSEL, 0, 0);
        if (index < 0 || index > 3) return;
        Options chosen;
        chosen.recording = kRecordingNames[index];
        std::string error;
        LoadRecording(chosen, &recording_, &error);
        RefreshPlot(Item(kIdPlot));
        Tell(recording_.Describe());
    }

    // Lets the user pick a text file; empty when there is no choice.
    static std::string PickFile(HWND owner) {
        char path[MAX_PATH] = "";
        OPENFILENAMEA open = {};
        open.lStructSize = sizeof open;
        open.hwndOwner = owner;
        open.lpstrFilter =
            "Text (*.txt;*.csv;*.tsv;*.dat)\0*.txt;*.csv;*.tsv;*.dat\0All files\0*.*\0";
        open.lpstrFile = path;
        open.nMaxFile = sizeof path;
        open.Flags = OFN_FILEMUSTEXIST | OFN_HIDEREADONLY | OFN_NOCHANGEDIR;
        return GetOpenFileNameA(&open) ? FromSystem(path) : "";
    }

    void ChooseFile() {
        const std::string path = PickFile(hwnd_);
        if (!path.empty()) OpenFile(path);
    }

    void TakeDropped(HDROP drop) {
        char path[MAX_PATH] = "";
        const UINT length = DragQueryFileA(drop, 0, path, sizeof path);
        DragFinish(drop);
        if (length > 0) OpenFile(FromSystem(path));
    }

    void OpenFile(const std::string& path) {
        Options chosen;
        chosen.data = path;
        if (recording_.kind == DataKind::kSheet) chosen.recording = "sheet";
        ReadFile(chosen);
    }

    // Whether the user pressed Escape while a file is read; other input waits.
    static bool EscapeWaits() {
        MSG message;
        bool pressed = false;
        while (PeekMessageA(&message, nullptr, WM_KEYFIRST, WM_KEYLAST, PM_REMOVE))
            pressed = pressed || (message.message == WM_KEYDOWN && message.wParam == VK_ESCAPE);
        return pressed;
    }

    void ReadFile(const Options& chosen) {
        HWND progress = Item(kIdProgress);
        ShowWindow(progress, SW_SHOW);
        Tell("Reading " + chosen.data + " (Escape stops)");
        EnableWindow(hwnd_, FALSE);
        std::string error;
        const ExitCode code = LoadRecording(chosen, &recording_, &error, [&](double fraction) {
            SendMessageA(progress, PBM_SETPOS, static_cast<WPARAM>(fraction * 1000.0), 0);
            UpdateWindow(hwnd_);
            UpdateWindow(progress);
            return !EscapeWaits();
        });
        EnableWindow(hwnd_, TRUE);
        ShowWindow(progress, SW_HIDE);
        if (code != kDone) {
            Tell(recording_.Describe());
            Complain(error);
            return;
        }
        SendMessageA(Item(kIdRecording), CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
        RefreshPlot(Item(kIdPlot));
        Tell(recording_.Describe());
    }

    void OpenDialog() {
        const LRESULT index = SendMessageA(Item(kIdAnalyses), LB_GETCURSEL, 0, 0);
        if (index < 0) return;
        if (recording_.PointCount() == 0) {
            Tell("There are no data; load a recording first.");
            return;
        }
        const auto at = static_cast<std::size_t>(index);
        const Analysis& analysis = kAnalyses[at];
        std::vector<double>& options = recordOf_[at];
        ZXADLG_DataOptions& data = dataOf_[at];
        const std::vector<double> optionsBefore = options;
        const ZXADLG_DataOptions dataBefore = data;
        undo_ = {at, options, data, store_.Read(), recording_.cursors};
        HostDataSource source(&recording_, store_.ProfileName());
        const std::int32_t result =
            analysis.show({hwnd_, options.data(), &data, &source, &files_, &params_});
        std::string error;
        Report report;
        report.analysis = &analysis;
        report.result = result;
        report.options = CompareRecords(analysis.record, optionsBefore.data(), options.data());
        report.dataSelection = CompareRecords("ZXADLG_DataOptions", &dataBefore, &data);
        report.store = store_.Read();
        WriteText(report, std::cout);
        fields_ = report.options;
        fields_.insert(fields_.end(), report.dataSelection.begin(), report.dataSelection.end());
        const auto changed = std::count_if(fields_.begin(), fields_.end(),
                                           [](const FieldValue& value) { return value.changed; });
        if (!store_.Save(&error)) Complain(error);
        EnableWindow(Item(kIdUndo), TRUE);
        ShowFields();
        ShowStore();
        InvalidateRect(Item(kIdPlot), nullptr, FALSE);
        Tell(std::string(analysis.title) + " gave " + std::to_string(result) + " (" +
             DescribeResult(result) + "); " + std::to_string(changed) + " fields changed");
    }

    // The records, the settings and the cursors as they were before the last dialog.
    void Undo() {
        const Analysis& analysis = kAnalyses[undo_.analysis];
        recordOf_[undo_.analysis] = undo_.options;
        dataOf_[undo_.analysis] = undo_.data;
        recording_.cursors = undo_.cursors;
        std::string error;
        if (!store_.Replace(undo_.settings, &error) || !store_.Save(&error)) Complain(error);
        EnableWindow(Item(kIdUndo), FALSE);
        SetFocus(Item(kIdAnalyses));
        fields_.clear();
        ShowFields();
        ShowStore();
        InvalidateRect(Item(kIdPlot), nullptr, FALSE);
        Tell(std::string(analysis.title) + " is as it was before its last dialog");
    }

    void ShowFields() {
        const bool changedOnly = IsDlgButtonChecked(hwnd_, kIdChangedOnly) == BST_CHECKED;
        HWND list = Item(kIdFields);
        SendMessageA(list, WM_SETREDRAW, FALSE, 0);
        ListView_DeleteAllItems(list);
        shownChanged_.clear();
        for (const FieldValue& value : fields_) {
            if (changedOnly && !value.changed) continue;
            const int row = static_cast<int>(shownChanged_.size());
            AddRow(list, row, value.name);
            SetCell(list, row, 1, value.before);
            SetCell(list, row, 2, value.after);
            shownChanged_.push_back(value.changed);
        }
        SendMessageA(list, WM_SETREDRAW, TRUE, 0);
        InvalidateRect(list, nullptr, TRUE);
    }

    void ShowStore() {
        std::string text;
        for (char c : FormatSettings(store_.Read())) {
            if (c == '\n') text += '\r';
            text += c;
        }
        SetWindowTextA(Item(kIdStore),
                       text.empty() ? "Nothing is stored yet." : ToSystem(text).c_str());
    }

    Options options_;
    ZXADLG_DlgParams params_;
    Recording recording_;
    SettingsStore store_;
    HostFileSource files_{[](HWND__* owner) { return PickFile(owner); },
                          [this](const std::string& error) { Complain(error); }};
    // The records of each analysis, as its last dialog left them. Doubles make the room fit for
    // every record.
    std::vector<std::vector<double>> recordOf_;
    std::vector<ZXADLG_DataOptions> dataOf_;
    // What stood before the last dialog.
    struct Step {
        std::size_t analysis = 0;
        std::vector<double> options;
        ZXADLG_DataOptions data = {};
        Settings settings;
        std::array<std::int32_t, kCursors> cursors = {};
    };
    Step undo_;
    std::vector<FieldValue> fields_;
    std::vector<bool> shownChanged_;
    HWND hwnd_ = nullptr;
    HWND labels_[5] = {};
    HFONT fixedFont_ = nullptr;
    bool paramsReady_ = false;
};

}  // namespace

bool HasWindow() {
    return true;
}

int RunWindow(const Options& options) {
    // A console that was opened for this program alone is not left standing behind the window.
    DWORD processes[2];
    if (GetConsoleProcessList(processes, 2) == 1) FreeConsole();
    return Frame(options).Run();
}

}  // namespace zxhost
