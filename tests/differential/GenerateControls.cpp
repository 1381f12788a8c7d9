// Random dialogs of standard controls, and what random users and programs do to them.
#include <algorithm>

#include "Scenario.h"
#include "platform/platform.h"

namespace differential {
namespace {

enum class Kind { kButton, kCheck, kRadio, kStatic, kEdit, kLines, kList, kCombo, kTab };

struct Control {
    Kind kind;
    int id;
    // A field whose text stands in the middle or at the right holds short texts.
    bool isShort = false;
};

constexpr int kFirstId = 101;

const char* const kTexts[] = {"",
                              "7.25",
                              "-12.5",
                              "1e-3",
                              "one two  three",
                              "C:\\data\\cell 3.dat",
                              "Alpha",
                              "alphabet",
                              "Beta",
                              "gamma ray",
                              "Region 1..2",
                              "Trace #12",
                              "\xB5V/\xFF",
                              "a text that is wider than its field by far, whatever the font"};
const char* const kShortTexts[] = {"", "7.25", "-5", "1e3", "0"};
const char* const kLines[] = {
    "one", "one\r\ntwo", "first line\r\n\r\nthird line, longer than the field is wide\r\n4",
    "a\r\nb\r\nc\r\nd\r\ne\r\nf\r\ng\r\nh", "word word word word word word word word word word"};
const char* const kItems[] = {"Alpha", "alphabet",  "Beta",   "beta two", "Gamma", "10 Hz",
                              "2 Hz",  "Region #1", "Region", "rho",      "-5",    "delta"};

class Generator {
  public:
    Generator(std::FILE* out, uint64_t seed) : m_out(out), m_random(seed) {}

    void Run(int actions) {
        std::fputs("dialog 260 190\n", m_out);
        const int count = 2 + m_random.Below(7);
        for (int i = 0; i < count; ++i) Place();
        if (m_random.OneIn(3)) {
            Line("page 130 90 120 60");
            const int onPage = 1 + m_random.Below(4);
            m_row = m_column = 0;
            m_onPage = true;
            for (int i = 0; i < onPage; ++i) Place();
        }
        for (const Control& control : m_controls) Fill(control);
        Line("show");
        for (int i = 0; i < actions; ++i) Act();
    }

  private:
    template <class... Values>
    void Line(const char* format, Values... values) {
        std::fprintf(m_out, format, values...);
        std::fputc('\n', m_out);
    }

    void Put(Kind kind, const char* name, DWORD style, int width, int height, const char* text,
             DWORD exStyle = 0) {
        const int id = kind == Kind::kButton && !m_onPage && m_random.OneIn(3)
                           ? (m_random.OneIn(2) ? IDOK : IDCANCEL)
                           : kFirstId + static_cast<int>(m_controls.size());
        for (const Control& other : m_controls) {
            if (other.id == id) return;
        }
        style |= WS_CHILD;
        if (!m_random.OneIn(14)) style |= WS_VISIBLE;
        // What Escape does to a disabled Cancel button is known to differ.
        if (id != IDCANCEL && m_random.OneIn(14)) style |= WS_DISABLED;
        if (!m_random.OneIn(8) && kind != Kind::kStatic) style |= WS_TABSTOP;
        if (m_random.OneIn(4)) style |= WS_GROUP;
        const int step = kind == Kind::kList || kind == Kind::kLines || kind == Kind::kTab ? 3 : 1;
        Line("control %s %d 0x%x 0x%x %d %d %d %d %s", name, id, static_cast<unsigned>(style),
             static_cast<unsigned>(exStyle), 6 + 128 * m_column, 4 + 16 * m_row, width, height,
             Quoted(text).c_str());
        m_row += step;
        if (m_row > 8) m_row = 0, m_column = 1 - m_column;
        m_controls.push_back({kind, id});
    }

    DWORD Maybe(DWORD style, int chances) { return m_random.OneIn(chances) ? style : 0; }

    // With a mnemonic that nothing else has.
    std::string Caption() {
        if (m_random.OneIn(3)) return "Choice";
        const char letter = static_cast<char>('a' + m_controls.size());
        return std::string("Choice &") + letter;
    }

    void Place() {
        const int kind = m_random.Below(20);
        if (kind < 2) {
            Put(Kind::kButton, "Button", m_random.OneIn(2) ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON, 50,
                14, Caption().c_str());
        } else if (kind < 4) {
            static constexpr int kTypes[] = {BS_AUTOCHECKBOX, BS_AUTOCHECKBOX, BS_AUTO3STATE,
                                             BS_CHECKBOX};
            Put(Kind::kCheck, "Button", static_cast<DWORD>(m_random.From(kTypes)), 60, 10,
                Caption().c_str());
        } else if (kind < 6) {
            const int count = 2 + m_random.Below(3);
            for (int i = 0; i < count; ++i)
                Put(Kind::kRadio, "Button", BS_AUTORADIOBUTTON | (i == 0 ? WS_GROUP : 0), 60, 10,
                    Caption().c_str());
        } else if (kind < 7) {
            Put(Kind::kStatic, "Static", SS_LEFT, 60, 9, Caption().c_str());
        } else if (kind < 8) {
            Put(Kind::kStatic, "Button", BS_GROUPBOX, 100, 30, "Group");
        } else if (kind < 12) {
            Field();
        } else if (kind < 14) {
            Put(Kind::kLines, "Edit",
                DWORD{ES_MULTILINE} | WS_BORDER | (m_random.OneIn(6) ? 0 : DWORD{ES_AUTOHSCROLL}) |
                    Maybe(ES_AUTOVSCROLL, 2) | Maybe(ES_WANTRETURN, 2) | Maybe(WS_VSCROLL, 3) |
                    Maybe(ES_READONLY, 6) | Maybe(ES_NOHIDESEL, 4),
                70 + m_random.Below(30), 34 + m_random.Below(10), m_random.From(kLines));
        } else if (kind < 16) {
            List();
        } else if (kind < 19) {
            Combo();
        } else {
            // Wide enough for all its tabs.
            Put(Kind::kTab, "SysTabControl32", Maybe(TCS_FOCUSNEVER, 6), 122, 40, "");
        }
    }

    void Field() {
        static constexpr int kAligned[] = {ES_LEFT, ES_LEFT, ES_LEFT, ES_CENTER, ES_RIGHT};
        static constexpr int kCases[] = {0, 0, 0, 0, ES_UPPERCASE, ES_LOWERCASE, ES_NUMBER};
        const DWORD style = static_cast<DWORD>(m_random.From(kAligned)) |
                            static_cast<DWORD>(m_random.From(kCases)) | Maybe(ES_READONLY, 8) |
                            Maybe(ES_NOHIDESEL, 5) | ES_AUTOHSCROLL;
        const bool edged = m_random.OneIn(3);
        const bool isShort = (style & (ES_CENTER | ES_RIGHT)) != 0;
        const std::size_t before = m_controls.size();
        Put(Kind::kEdit, "Edit", style | (edged ? 0 : DWORD{WS_BORDER}), 40 + m_random.Below(50),
            13, isShort ? m_random.From(kShortTexts) : m_random.From(kTexts),
            edged ? WS_EX_CLIENTEDGE : 0);
        if (m_controls.size() > before) m_controls.back().isShort = isShort;
    }

    void List() {
        static constexpr DWORD kSelections[] = {0, 0, LBS_MULTIPLESEL, LBS_EXTENDEDSEL};
        Put(Kind::kList, "ListBox",
            m_random.From(kSelections) | WS_BORDER | WS_VSCROLL |
                (m_random.OneIn(6) ? 0 : LBS_NOTIFY) | Maybe(LBS_SORT, 3) |
                Maybe(LBS_NOINTEGRALHEIGHT, 2) | Maybe(LBS_WANTKEYBOARDINPUT, 12),
            60 + m_random.Below(30), 30 + m_random.Below(14), "");
    }

    void Combo() {
        static constexpr DWORD kCases[] = {0, 0, 0, 0, CBS_UPPERCASE, CBS_LOWERCASE};
        const bool editable = m_random.OneIn(2);
        Put(Kind::kCombo, "ComboBox",
            WS_VSCROLL | (editable ? DWORD{CBS_DROPDOWN} : DWORD{CBS_DROPDOWNLIST}) |
                (editable ? CBS_AUTOHSCROLL : 0) | m_random.From(kCases) | Maybe(CBS_SORT, 3) |
                Maybe(CBS_DISABLENOSCROLL, 6),
            50 + m_random.Below(40), 30 + m_random.Below(60), "");
    }

    void Fill(const Control& control) {
        const int count = m_random.Below(9);
        for (int i = 0; i < count; ++i) {
            const std::string item = Quoted(m_random.From(kItems));
            if (control.kind == Kind::kList)
                Line("send #%d LB_ADDSTRING 0 %s", control.id, item.c_str());
            if (control.kind == Kind::kCombo)
                Line("send #%d CB_ADDSTRING 0 %s", control.id, item.c_str());
            if (control.kind == Kind::kTab && i < 2)
                Line("send #%d TCM_INSERTITEMA %d %s", control.id, i, item.c_str());
        }
    }

    // --- What happens.
    void Act() {
        const Control& control = m_controls[static_cast<std::size_t>(
            m_random.Below(static_cast<int>(m_controls.size())))];
        const int what = m_random.Below(20);
        if (what < 6) return Key();
        if (what < 9) return Type();
        if (what < 13) return Mouse(control);
        if (what < 14) return Line("list %d", m_random.Below(100));
        if (what < 18) return Program(control);
        switch (m_random.Below(7)) {
            case 0:
                return Line("enable #%d %d", control.id, m_random.Below(3) != 0);
            case 1:
                return Line("visible #%d %d", control.id, m_random.Below(3) != 0);
            case 2:
                return Line("focus #%d", control.id);
            case 3:
                return Line("mnemonic 0x%x", "abcdefABCx"[m_random.Below(10)]);
            case 4:
                return Line("wheel %d", m_random.Below(2) * 2 - 1);
            default:
                if (control.kind == Kind::kList || control.kind == Kind::kTab) return Key();
                return Line("text #%d %s", control.id, SomeText(control).c_str());
        }
    }

    std::string SomeText(const Control& control) {
        if (control.isShort) return Quoted(m_random.From(kShortTexts));
        if (control.kind == Kind::kLines) return Quoted(m_random.From(kLines));
        return Quoted(m_random.OneIn(2) ? m_random.From(kTexts) : m_random.From(kItems));
    }

    void Key() {
        static constexpr int kKeys[] = {VK_TAB,   VK_TAB,    VK_UP,     VK_DOWN,   VK_LEFT,
                                        VK_RIGHT, VK_UP,     VK_DOWN,   VK_LEFT,   VK_RIGHT,
                                        VK_HOME,  VK_END,    VK_PRIOR,  VK_NEXT,   VK_SPACE,
                                        VK_BACK,  VK_DELETE, VK_RETURN, VK_ESCAPE, VK_F4};
        const int key = m_random.From(kKeys);
        int modifiers = m_random.OneIn(4) ? 1 : 0;
        if (key != VK_TAB && m_random.OneIn(5)) modifiers |= 2;
        if ((key == VK_UP || key == VK_DOWN) && m_random.OneIn(8)) modifiers = 4;
        Line("key 0x%x %d", static_cast<unsigned>(key), modifiers);
    }

    void Type() {
        if (m_random.OneIn(10)) return Line("undo");
        if (m_random.OneIn(8)) {
            // What Ctrl+A, C, V and X give.
            static constexpr int kControl[] = {1, 3, 22, 24};
            return Line("char 0x%x 2", static_cast<unsigned>(m_random.From(kControl)));
        }
        static const char kCharacters[] = "0123456789.-+eE abgdrRABGD\xB5";
        const int count = 1 + m_random.Below(3);
        for (int i = 0; i < count; ++i)
            Line("char 0x%x 0", static_cast<unsigned>(static_cast<unsigned char>(
                                    kCharacters[m_random.Below(sizeof kCharacters - 1)])));
    }

    void Mouse(const Control& control) {
        const int x = m_random.Below(100), y = m_random.Below(100);
        switch (m_random.Below(8)) {
            case 0:
                return Line("twice #%d %d %d", control.id, x, y);
            case 1:
                return Line("drag #%d %d %d %d %d", control.id, x, y, m_random.Below(100),
                            m_random.Below(100));
            case 2:
                return Line("click #%d %d %d %d", control.id, x, y, 1 + m_random.Below(3));
            default:
                return Line("click #%d %d %d 0", control.id, x, y);
        }
    }

    int Index() { return m_random.OneIn(10) ? 50 : m_random.Below(10) - 1; }

    void Send(const Control& control, const char* message, int first, int second) {
        Line("send #%d %s %d %d", control.id, message, first, second);
    }

    void SendText(const Control& control, const char* message, int first) {
        Line("send #%d %s %d %s", control.id, message, first, SomeText(control).c_str());
    }

    void Program(const Control& control) {
        switch (control.kind) {
            case Kind::kButton:
                return Send(control, m_random.OneIn(3) ? "BM_SETSTATE" : "BM_CLICK",
                            m_random.Below(2), 0);
            case Kind::kCheck:
            case Kind::kRadio:
                return Send(control, m_random.OneIn(2) ? "BM_SETCHECK" : "BM_CLICK",
                            m_random.Below(3), 0);
            case Kind::kStatic:
                return Send(control, "WM_GETDLGCODE", 0, 0);
            case Kind::kEdit:
            case Kind::kLines:
                return ToField(control);
            case Kind::kList:
                return ToList(control);
            case Kind::kCombo:
                return ToCombo(control);
            case Kind::kTab:
                return ToTab(control);
        }
    }

    void ToField(const Control& control) {
        static const char* const kPlain[] = {
            "WM_CUT",       "WM_COPY",        "WM_PASTE",           "WM_CLEAR",
            "EM_SETMODIFY", "EM_SCROLLCARET", "EM_EMPTYUNDOBUFFER", "EM_GETRECT",
            "EM_GETMARGINS"};
        static const char* const kAsked[] = {"EM_LINEINDEX", "EM_LINELENGTH", "EM_LINEFROMCHAR",
                                             "EM_POSFROMCHAR"};
        switch (m_random.Below(8)) {
            case 0:
            case 1:
                return Send(control, "EM_SETSEL", m_random.Below(12) - 1, m_random.Below(14) - 1);
            case 2:
                return SendText(control, "EM_REPLACESEL", m_random.Below(2));
            case 3:
                return Send(control, "EM_LIMITTEXT", m_random.Below(2) * (1 + m_random.Below(20)),
                            0);
            case 4:
                return Send(control, m_random.From(kAsked), m_random.Below(30) - 1, 0);
            case 5:
                if (m_random.OneIn(2))
                    return Send(control, "EM_CHARFROMPOS", 0,
                                m_random.Below(120) | m_random.Below(60) << 16);
                return Send(control, m_random.OneIn(3) ? "EM_SETREADONLY" : "EM_LINESCROLL",
                            m_random.Below(2), m_random.Below(7) - 3);
            default:
                return Send(control, m_random.From(kPlain), m_random.Below(2), 0);
        }
    }

    void ToList(const Control& control) {
        static const char* const kByIndex[] = {
            "LB_DELETESTRING", "LB_SETCURSEL", "LB_SETTOPINDEX", "LB_GETSEL",
            "LB_GETITEMRECT",  "LB_GETTEXT",   "LB_GETITEMDATA", "LB_SETANCHORINDEX"};
        static const char* const kByText[] = {"LB_ADDSTRING", "LB_INSERTSTRING", "LB_FINDSTRING",
                                              "LB_FINDSTRINGEXACT", "LB_SELECTSTRING"};
        switch (m_random.Below(8)) {
            case 0:
                return Send(control, "LB_SETSEL", m_random.Below(2), Index());
            case 1:
                return Send(control, "LB_SETCARETINDEX", Index(), m_random.Below(2));
            case 2:
                if (m_random.OneIn(4)) return Send(control, "LB_RESETCONTENT", 0, 0);
                return Send(control, "LB_SELITEMRANGEEX", m_random.Below(6), m_random.Below(6));
            case 3:
            case 4:
                return SendText(control, m_random.From(kByText), Index());
            case 5:
                return Send(control, "WM_SETREDRAW", m_random.Below(2), 0);
            default:
                return Send(control, m_random.From(kByIndex), Index(), 0);
        }
    }

    void ToCombo(const Control& control) {
        static const char* const kByIndex[] = {"CB_DELETESTRING", "CB_SETCURSEL", "CB_SETCURSEL",
                                               "CB_GETLBTEXT"};
        static const char* const kByText[] = {"CB_ADDSTRING", "CB_INSERTSTRING", "CB_FINDSTRING",
                                              "CB_FINDSTRINGEXACT", "CB_SELECTSTRING"};
        switch (m_random.Below(9)) {
            case 0:
                return Send(control, "CB_SHOWDROPDOWN", m_random.Below(2), 0);
            case 1:
                return Send(control, "CB_SETEDITSEL", 0,
                            m_random.Below(8) | m_random.Below(12) << 16);
            case 2:
                return Send(control, m_random.OneIn(3) ? "CB_RESETCONTENT" : "CB_SHOWDROPDOWN", 0,
                            0);
            case 3:
            case 4:
                return SendText(control, m_random.From(kByText), Index());
            case 5:
                return Send(control, "WM_SETREDRAW", m_random.Below(2), 0);
            case 6:
                return Send(control, "CB_LIMITTEXT", m_random.Below(2) * (1 + m_random.Below(9)),
                            0);
            default:
                return Send(control, m_random.From(kByIndex), Index(), 0);
        }
    }

    void ToTab(const Control& control) {
        static const char* const kByIndex[] = {"TCM_SETCURSEL", "TCM_SETCURFOCUS",
                                               "TCM_GETITEMRECT", "TCM_ADJUSTRECT"};
        if (m_random.OneIn(6))
            return Line("send #%d TCM_HITTEST 0 %d %d", control.id, m_random.Below(150),
                        m_random.Below(40));
        Send(control, m_random.From(kByIndex), m_random.Below(4), 0);
    }

    std::FILE* m_out;
    Random m_random;
    std::vector<Control> m_controls;
    bool m_onPage = false;
    int m_row = 0;
    int m_column = 0;
};

}  // namespace

void GenerateControls(std::FILE* out, uint64_t base, int number, int actions) {
    std::fprintf(out, "scenario controls-%llu-%d\n", static_cast<unsigned long long>(base), number);
    Generator(out, base * 1000003u + static_cast<uint64_t>(number)).Run(actions);
}

}  // namespace differential
