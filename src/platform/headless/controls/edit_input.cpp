#include <algorithm>

#include "platform/headless/controls/combo_messages.h"
#include "platform/headless/controls/edit.h"
#include "platform/headless/controls/word_breaks.h"

namespace headless {
namespace {

constexpr char kControlC = 0x03;
constexpr char kControlV = 0x16;
constexpr char kControlX = 0x18;
constexpr char kControlZ = 0x1A;
constexpr char kDelete = 0x7F;

}  // namespace

LRESULT Edit::OnKeyDown(int key, LPARAM lParam) {
    if (PassKeyToCombo(key, lParam)) return 0;
    if (IsKeyDown(VK_MENU)) return 0;
    const bool shift = IsKeyDown(VK_SHIFT);
    const bool control = IsKeyDown(VK_CONTROL);
    switch (key) {
        case VK_UP:
            if (IsMultiLine()) {
                MoveByLines(-1, shift);
                break;
            }
            [[fallthrough]];
        case VK_LEFT:
            MoveTo(control ? WordBackward(m_caret) : Backward(m_caret), shift);
            break;
        case VK_DOWN:
            if (IsMultiLine()) {
                MoveByLines(1, shift);
                break;
            }
            [[fallthrough]];
        case VK_RIGHT:
            MoveTo(control ? WordForward(m_caret) : Forward(m_caret), shift);
            break;
        case VK_HOME:
            MoveTo(control ? 0 : m_lines[CaretLine()].start, shift);
            break;
        case VK_END:
            MoveEnd(shift, control);
            break;
        case VK_PRIOR:
            if (IsMultiLine()) MoveByLines(-VisibleLines(), shift);
            break;
        case VK_NEXT:
            if (IsMultiLine()) MoveByLines(VisibleLines(), shift);
            break;
        case VK_DELETE:
            OnDelete(shift, control);
            break;
        case VK_INSERT:
            if (shift) {
                Paste();
            } else if (control) {
                Copy();
            }
            break;
        case VK_RETURN:
            if (m_inDialog && !control && IsMultiLine() && !HasStyle(ES_WANTRETURN)) {
                OnReturnInDialog();
            }
            break;
        case VK_ESCAPE:
            if (m_inDialog && IsMultiLine()) PostMessageA(GetParent(m_hwnd), WM_CLOSE, 0, 0);
            break;
        case VK_TAB:
            // With Ctrl the tab goes into the text.
            if (m_inDialog && IsMultiLine() && !control) {
                SendMessageA(GetParent(m_hwnd), WM_NEXTDLGCTL, shift ? 1 : 0, 0);
            }
            break;
        default:
            break;
    }
    return 0;
}

// The text of a combo box leaves the keys of the list to it.
bool Edit::PassKeyToCombo(int key, LPARAM lParam) {
    if (m_combo == nullptr) return false;
    switch (key) {
        case VK_UP:
        case VK_DOWN:
        case VK_PRIOR:
        case VK_NEXT:
        case VK_F4:
            break;
        default:
            return false;
    }
    return SendMessageA(m_combo, kComboListKey, static_cast<WPARAM>(key), lParam) != 0;
}

// Enter that is not for the text presses the default button.
void Edit::OnReturnInDialog() {
    HWND dialog = GetParent(m_hwnd);
    const LRESULT id = SendMessageA(dialog, DM_GETDEFID, 0, 0);
    if (HIWORD(id) != DC_HASDEFID) return;
    HWND button = GetDlgItem(dialog, LOWORD(id));
    if (button == nullptr) return;
    SendMessageA(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(button), TRUE);
    PostMessageA(button, WM_KEYDOWN, VK_RETURN, 0);
}

void Edit::OnChar(char c) {
    const bool control = IsKeyDown(VK_CONTROL);
    if (m_combo != nullptr && (c == '\r' || c == '\x1B')) {
        if (SendMessageA(m_combo, CB_GETDROPPEDSTATE, 0, 0) != 0) {
            SendMessageA(m_combo, WM_KEYDOWN, static_cast<WPARAM>(c), 0);
        }
        return;
    }
    switch (c) {
        case '\r':
            // In a dialog Enter is for the default button unless the text wants it.
            if (m_inDialog && !HasStyle(ES_WANTRETURN)) return;
            [[fallthrough]];
        case '\n':
            if (!IsMultiLine()) return;
            if (IsReadOnly()) {
                MoveTo(m_lines[CaretLine()].start, false);
                MoveByLines(1, false);
            } else {
                Replace("\r\n", true, true, true);
            }
            return;
        case '\t':
            if (IsMultiLine() && !IsReadOnly() && !m_inDialog) Replace("\t", true, true, true);
            return;
        case '\b':
            if (IsReadOnly() || control) return;
            if (m_anchor == m_caret) MoveTo(Backward(m_caret), true);
            Clear();
            return;
        case kControlC:
            Copy();
            return;
        case kControlV:
            Paste();
            return;
        case kControlX:
            if (IsReadOnly() || m_passwordChar != '\0') return;
            Copy();
            Clear();
            return;
        case kControlZ:
            Undo();
            return;
        default:
            break;
    }
    if (IsReadOnly() || static_cast<unsigned char>(c) < ' ' || c == kDelete) return;
    if (HasStyle(ES_NUMBER) && (c < '0' || c > '9')) return;
    Replace(std::string_view(&c, 1), true, true, true);
}

void Edit::MoveTo(size_t index, bool extend) {
    Select(extend ? m_anchor : index, index);
    ScrollToCaret();
}

size_t Edit::Forward(size_t index) const {
    if (index >= m_text.size()) return m_text.size();
    const Line& line = m_lines[LineOf(index)];
    return index >= line.start + line.length ? line.next : index + 1;
}

size_t Edit::Backward(size_t index) const {
    if (index == 0) return 0;
    const size_t line = LineOf(index);
    if (index > m_lines[line].start || line == 0) return index - 1;
    const Line& above = m_lines[line - 1];
    return above.wrapped ? index - 1 : above.start + above.length;
}

// Words end at the end of their line; the end itself is one step.
size_t Edit::WordForward(size_t index) const {
    const Line& line = m_lines[LineOf(index)];
    const size_t end = line.start + line.length;
    if (index >= end) return Forward(index);
    do {
        ++index;
    } while (index < end && !IsWordStart(m_text, index));
    return index;
}

size_t Edit::WordBackward(size_t index) const {
    const size_t start = m_lines[LineOf(index)].start;
    if (index == start) return Backward(index);
    do {
        --index;
    } while (index > start && !IsWordStart(m_text, index));
    return index;
}

void Edit::MoveByLines(int lines, bool extend) {
    const int last = static_cast<int>(m_lines.size()) - 1;
    const int from = static_cast<int>(CaretLine());
    // At the edge the caret stays, and a selection ends there.
    const int to = std::clamp(from + lines, 0, last);
    const int x = CaretPoint().x;
    const Line& line = m_lines[static_cast<size_t>(to)];
    size_t index = IndexInLine(ControlDc(m_hwnd, m_font), line, x);
    const bool atWrap = line.wrapped && index == line.start + line.length;
    Select(extend ? m_anchor : index, index);
    m_caretAtWrap = atWrap;
    ScrollToCaret();
}

void Edit::MoveEnd(bool extend, bool all) {
    const Line& line = m_lines[CaretLine()];
    const size_t end = all ? m_text.size() : line.start + line.length;
    const bool atWrap = !all && line.wrapped;
    Select(extend ? m_anchor : end, end);
    m_caretAtWrap = atWrap;
    ScrollToCaret();
}

// What goes is selected first, and comes into view.
void Edit::OnDelete(bool shift, bool control) {
    if (IsReadOnly() || (shift && control)) return;
    if (m_anchor != m_caret) {
        if (shift) Copy();
    } else if (shift) {
        MoveTo(Backward(m_caret), true);
    } else if (control) {
        MoveEnd(true, false);
    } else {
        MoveTo(Forward(m_caret), true);
    }
    Clear();
}

// The mouse means the nearest place where text stands.
POINT Edit::Confined(POINT point) const {
    return {std::clamp(point.x, m_format.left, std::max(m_format.right - 1, m_format.left)),
            std::clamp(point.y, m_format.top, std::max(m_format.bottom - 1, m_format.top))};
}

void Edit::OnButtonDown(POINT point, bool extend) {
    SetCapture(m_hwnd);
    m_dragging = true;
    MoveTo(IndexFromPoint(Confined(point), nullptr), extend);
    // The focus comes last: who selects the text then has the last word.
    if (GetFocus() != m_hwnd) SetFocus(m_hwnd);
}

void Edit::OnDoubleClick(POINT point) {
    // The word is the one that begins before the place that was clicked, be it where the next one
    // begins. A line end is one for itself.
    const size_t index = IndexFromPoint(Confined(point), nullptr);
    const auto beginsLine = [&](size_t at) { return m_lines[LineOf(at)].start == at; };
    const size_t from = beginsLine(index) ? Backward(index) : index;
    const size_t start = beginsLine(from) ? from : WordBackward(from);
    Select(start, std::max(WordForward(start), index));
    ScrollToCaret();
}

}  // namespace headless
