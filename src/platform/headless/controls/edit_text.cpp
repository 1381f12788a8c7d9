#include <algorithm>
#include <cstring>

#include "platform/headless/controls/edit.h"
#include "platform/headless/controls/text_order.h"

namespace headless {

void Edit::Select(size_t anchor, size_t caret) {
    m_anchor = std::min(anchor, m_text.size());
    m_caret = std::min(caret, m_text.size());
    m_caretAtWrap = false;
    Repaint();
}

// A control of one line tells its parent of a text that it is given; one of several lines, and the
// text of a combo box, do not.
void Edit::SetText(const char* text) {
    Select(0, m_text.size());
    Replace(text != nullptr ? text : "", false, false, false);
    ForgetUndo();
    m_modified = false;
    m_firstChar = 0;
    m_leftOffset = 0;
    Select(0, 0);
    if (!IsMultiLine() && m_combo == nullptr) {
        Notify(EN_UPDATE);
        Notify(EN_CHANGE);
    }
    ScrollToCaret();
}

// Puts the text in the place of the selection, cut to what the limit and the room allow if asked
// to. Whatever was cut is told by EN_MAXTEXT, and the rest counts as a change even when nothing is
// left.
void Edit::Replace(std::string_view given, bool canUndo, bool honourLimit, bool notify) {
    const size_t start = SelectionStart();
    size_t end = SelectionEnd();
    if (start == end && given.empty()) return;
    std::string text = WithCase(given);
    bool cut = false;
    if (honourLimit) {
        const size_t fitting = FittingLength(text, start, end);
        cut = fitting < text.size();
        text.resize(fitting);
        // Lines that cannot be shown are refused whole, and what was selected stays.
        if (IsMultiLine() && !FitsLines(text, start, end)) {
            cut = true;
            text.clear();
            end = start;
        }
    }
    if (cut) Notify(EN_MAXTEXT);
    if (m_hwnd == nullptr || end > m_text.size()) return;
    if (!canUndo) {
        // What was refused whole leaves the last change to be undone.
        if (start != end || !text.empty()) ForgetUndo();
    } else {
        if (start != end)
            RememberDeletion(start, std::string_view(m_text).substr(start, end - start));
        if (!text.empty()) RememberInsertion(start, text.size());
    }
    m_text.replace(start, end - start, text);
    m_modified = true;
    Reformat();
    Select(start + text.size(), start + text.size());
    ScrollToCaret();
    if (!notify) return;
    Notify(EN_UPDATE);
    Notify(EN_CHANGE);
}

// How much of the text may go in the place of the bytes from start to end.
size_t Edit::FittingLength(std::string_view text, size_t start, size_t end) const {
    const size_t rest = m_text.size() - (end - start);
    size_t length = std::min(text.size(), m_limit > rest ? m_limit - rest : 0);
    if (IsMultiLine() || HasStyle(ES_AUTOHSCROLL) || length == 0) return length;
    // Without scrolling, only what can be shown goes in.
    const ControlDc dc(m_hwnd, m_font);
    const auto fits = [&](size_t count) {
        std::string whole = m_text;
        whole.replace(start, end - start, text.substr(0, count));
        if (m_passwordChar != '\0') whole.assign(whole.size(), m_passwordChar);
        return dc.Width(whole.data(), whole.size()) <= m_format.right - m_format.left;
    };
    if (fits(length)) return length;
    size_t low = 0;
    size_t high = length;
    while (high - low > 1) {
        const size_t middle = low + (high - low) / 2;
        (fits(middle) ? low : high) = middle;
    }
    return low;
}

// Whether all lines show with the text in the place of the bytes from start to end.
bool Edit::FitsLines(std::string_view text, size_t start, size_t end) const {
    if (HasStyle(ES_AUTOVSCROLL | WS_VSCROLL)) return true;
    std::string whole = m_text;
    whole.replace(start, end - start, text);
    return BreakLines(whole).size() <= static_cast<size_t>(VisibleLines());
}

// Deletions that touch each other, by Delete or Backspace, are undone together.
void Edit::RememberDeletion(size_t start, std::string_view deleted) {
    const bool extends = m_undoLength == 0 && !m_undoText.empty();
    if (extends && start == m_undoPosition) {
        m_undoText.append(deleted);
    } else if (extends && start + deleted.size() == m_undoPosition) {
        m_undoText.insert(0, deleted);
        m_undoPosition = start;
    } else {
        m_undoText = deleted;
        m_undoPosition = start;
    }
    m_undoLength = 0;
}

// So is typing that goes on where the last change was.
void Edit::RememberInsertion(size_t start, size_t length) {
    const bool extends =
        start == m_undoPosition || (m_undoLength > 0 && start == m_undoPosition + m_undoLength);
    if (extends) {
        m_undoLength += length;
    } else {
        m_undoPosition = start;
        m_undoLength = length;
        m_undoText.clear();
    }
}

void Edit::ForgetUndo() {
    m_undoPosition = 0;
    m_undoLength = 0;
    m_undoText.clear();
}

LRESULT Edit::Undo() {
    if (IsReadOnly()) return IsMultiLine() ? FALSE : TRUE;
    if (m_undoLength == 0 && m_undoText.empty()) return TRUE;
    const std::string text = m_undoText;
    const size_t position = m_undoPosition;
    const size_t length = m_undoLength;
    ForgetUndo();
    Select(position, position + length);
    Replace(text, true, true, true);
    // The limit may have kept a part of the text out.
    Select(position, position + m_undoLength);
    ScrollToCaret();
    return TRUE;
}

void Edit::Clear() {
    if (IsReadOnly()) return;
    Replace("", true, true, true);
}

void Edit::Copy() {
    const size_t length = SelectionEnd() - SelectionStart();
    if (length == 0 || m_passwordChar != '\0') return;
    HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, length + 1);
    if (memory == nullptr) return;
    char* copy = static_cast<char*>(GlobalLock(memory));
    std::memcpy(copy, m_text.data() + SelectionStart(), length);
    copy[length] = '\0';
    GlobalUnlock(memory);
    if (!OpenClipboard(m_hwnd)) {
        GlobalFree(memory);
        return;
    }
    EmptyClipboard();
    SetClipboardData(CF_TEXT, memory);
    CloseClipboard();
}

void Edit::Paste() {
    if (IsReadOnly() || !IsClipboardFormatAvailable(CF_TEXT) || !OpenClipboard(m_hwnd)) return;
    std::string text;
    HANDLE memory = GetClipboardData(CF_TEXT);
    if (memory != nullptr) {
        const char* data = static_cast<const char*>(GlobalLock(memory));
        if (data != nullptr) text.assign(data, strnlen(data, GlobalSize(memory)));
        GlobalUnlock(memory);
    }
    CloseClipboard();
    // Of several lines, one line takes the first.
    if (!IsMultiLine()) text.resize(std::min(text.size(), text.find_first_of("\r\n")));
    Replace(text, true, true, true);
}

std::string Edit::WithCase(std::string_view text) const {
    std::string result(text);
    if (HasStyle(ES_UPPERCASE)) {
        std::transform(result.begin(), result.end(), result.begin(), ToUpperCase);
    } else if (HasStyle(ES_LOWERCASE)) {
        std::transform(result.begin(), result.end(), result.begin(), ToLowerCase);
    }
    return result;
}

}  // namespace headless
