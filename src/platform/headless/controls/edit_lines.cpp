#include <algorithm>
#include <cstring>

#include "platform/headless/controls/edit.h"

namespace headless {
namespace {

constexpr int kScrolledPart = 3;  // of the width, that scrolling brings in at once

bool IsSpace(char c) {
    return c == ' ' || c == '\t';
}

}  // namespace

bool Edit::Wraps() const {
    return IsMultiLine() && !HasStyle(ES_AUTOHSCROLL | WS_HSCROLL);
}

std::vector<Edit::Line> Edit::BreakLines(std::string_view text) const {
    std::vector<Line> lines;
    if (!IsMultiLine()) {
        lines.push_back({0, text.size(), text.size(), false});
        return lines;
    }
    const ControlDc dc(m_hwnd, m_font);
    const bool wraps = Wraps();
    size_t start = 0;
    while (true) {
        const size_t feed = text.find('\n', start);
        Line line = {start, text.size() - start, text.size(), false};
        if (feed != std::string_view::npos) {
            // "\r\r\n" marks where a text was once wrapped; it ends a line like "\r\n".
            size_t mark = feed;
            if (mark > start && text[mark - 1] == '\r') --mark;
            if (mark > start && mark < feed && text[mark - 1] == '\r') --mark;
            line = {start, mark - start, feed + 1, false};
        }
        if (wraps) {
            WrapLine(dc, text, line, &lines);
        } else {
            lines.push_back(line);
        }
        if (feed == std::string_view::npos) return lines;
        start = feed + 1;
    }
}

// Splits a line after the last word that fits whole, spaces included, or inside a word that is
// wider than the control.
void Edit::WrapLine(const ControlDc& dc, std::string_view text, const Line& whole,
                    std::vector<Line>* lines) const {
    const int room = std::max<int>(m_format.right - m_format.left, 1);
    const size_t end = whole.start + whole.length;
    size_t start = whole.start;
    int width = 0;
    size_t at = start;
    while (at < end) {
        size_t word = at;
        while (word < end && !IsSpace(text[word])) ++word;
        const int wordWidth = dc.Width(text.data() + at, word - at);
        size_t after = word;
        while (after < end && IsSpace(text[after])) ++after;
        if (width + wordWidth <= room) {
            width += wordWidth + dc.Width(text.data() + word, after - word);
            at = after;
            continue;
        }
        if (at > start) {
            lines->push_back({start, at - start, at, true});
        } else {
            size_t fitting = 1;
            while (at + fitting < word && dc.Width(text.data() + at, fitting + 1) <= room)
                ++fitting;
            at += fitting;
            lines->push_back({start, fitting, at, true});
        }
        start = at;
        width = 0;
    }
    lines->push_back({start, end - start, whole.next, false});
}

void Edit::Reformat() {
    const ControlDc dc(m_hwnd, m_font);
    m_lineHeight = std::max<int>(dc.Metrics().tmHeight, 1);
    m_letterWidth = std::max(dc.LetterWidth(), 1);
    UpdateFormatRect();
    const std::size_t before = m_lines.size();
    m_lines = BreakLines(m_text);
    m_firstLine = std::min(m_firstLine, m_lines.size() - 1);
    if (m_text.empty() || m_lines.size() < before) m_widest = 0;
    if (IsMultiLine()) m_widest = std::max(m_widest, WidestLine(dc));
}

void Edit::UpdateFormatRect() {
    GetClientRect(m_hwnd, &m_format);
    if (m_drawBorder) {
        InflateRect(&m_format, -(GetSystemMetrics(SM_CXBORDER) + 1),
                    -(GetSystemMetrics(SM_CYBORDER) + 1));
    } else if ((GetWindowLongPtrA(m_hwnd, GWL_EXSTYLE) & WS_EX_CLIENTEDGE) != 0) {
        InflateRect(&m_format, -1, -1);
    }
    m_format.left += m_leftMargin;
    m_format.right = std::max(m_format.right - m_rightMargin, m_format.left);
    const int lines =
        IsMultiLine() ? std::max<int>((m_format.bottom - m_format.top) / m_lineHeight, 1) : 1;
    m_format.bottom = m_format.top + lines * m_lineHeight;
}

// The width of a part of one line, tabs and password characters as they are shown.
int Edit::TextWidth(const ControlDc& dc, size_t start, size_t length) const {
    if (m_passwordChar != '\0') {
        const std::string shown(length, m_passwordChar);
        return dc.Width(shown.data(), length);
    }
    const char* text = m_text.data() + start;
    const char* const end = text + length;
    const int stop = std::max(m_tabStop * m_letterWidth / 4, 1);
    int width = 0;
    while (text < end) {
        const char* tab =
            static_cast<const char*>(std::memchr(text, '\t', static_cast<size_t>(end - text)));
        const char* part = tab != nullptr && IsMultiLine() ? tab : end;
        width += dc.Width(text, static_cast<size_t>(part - text));
        if (part == end) break;
        width = (width / stop + 1) * stop;
        text = part + 1;
    }
    return width;
}

// Where the first character of the line would stand.
int Edit::LineLeft(const ControlDc& dc, const Line& line) const {
    const int room = m_format.right - m_format.left;
    int left = m_format.left;
    if (HasStyle(ES_CENTER | ES_RIGHT)) {
        const int rest = room - TextWidth(dc, line.start, line.length);
        if (rest > 0) left += HasStyle(ES_RIGHT) ? rest : rest / 2;
    }
    if (IsMultiLine()) return left - m_leftOffset;
    return m_firstChar == 0 ? left : m_format.left - TextWidth(dc, 0, m_firstChar);
}

size_t Edit::LineOf(size_t index) const {
    const auto after = std::upper_bound(m_lines.begin(), m_lines.end(), index,
                                        [](size_t i, const Line& line) { return i < line.start; });
    return static_cast<size_t>(after - m_lines.begin()) - 1;
}

size_t Edit::CaretLine() const {
    const size_t line = LineOf(m_caret);
    return m_caretAtWrap && line > 0 && m_lines[line].start == m_caret ? line - 1 : line;
}

LRESULT Edit::LineIndex(LRESULT line) const {
    if (!IsMultiLine()) return 0;
    if (line == -1) return static_cast<LRESULT>(m_lines[CaretLine()].start);
    if (line < 0 || line >= static_cast<LRESULT>(m_lines.size())) return -1;
    return static_cast<LRESULT>(m_lines[static_cast<size_t>(line)].start);
}

LRESULT Edit::LineLength(LRESULT index) const {
    if (!IsMultiLine()) return static_cast<LRESULT>(m_text.size());
    if (index == -1) {
        // What is not selected of the lines that the selection touches.
        const Line& first = m_lines[LineOf(SelectionStart())];
        const Line& last = m_lines[LineOf(SelectionEnd())];
        const size_t end = std::max(last.start + last.length, SelectionEnd());
        return static_cast<LRESULT>(SelectionStart() - first.start + end - SelectionEnd());
    }
    return static_cast<LRESULT>(
        m_lines[LineOf(std::min(static_cast<size_t>(static_cast<DWORD>(index)), m_text.size()))]
            .length);
}

// The first two bytes of the buffer say how much room it has. The text is ended by a zero only if
// there is room for it.
LRESULT Edit::CopyLine(LRESULT line, char* buffer) const {
    WORD room = 0;
    std::memcpy(&room, buffer, sizeof(room));
    if (!IsMultiLine()) line = 0;
    if (line < 0 || line >= static_cast<LRESULT>(m_lines.size())) return 0;
    const Line& source = m_lines[static_cast<size_t>(line)];
    const size_t length = std::min<size_t>(room, source.length);
    std::memcpy(buffer, m_text.data() + source.start, length);
    if (length < room) buffer[length] = '\0';
    return static_cast<LRESULT>(length);
}

size_t Edit::IndexInLine(const ControlDc& dc, const Line& line, int x) const {
    const int left = LineLeft(dc, line);
    // The last place that starts at or before x, then the nearer one of its two sides.
    size_t low = 0;
    size_t high = line.length;
    while (low < high) {
        const size_t middle = (low + high + 1) / 2;
        if (left + TextWidth(dc, line.start, middle) <= x) {
            low = middle;
        } else {
            high = middle - 1;
        }
    }
    if (low < line.length) {
        const int before = left + TextWidth(dc, line.start, low);
        const int after = left + TextWidth(dc, line.start, low + 1);
        if (x - before >= after - x && x >= before) ++low;
    }
    return line.start + low;
}

size_t Edit::IndexFromPoint(POINT point, size_t* lineFound) const {
    size_t line = 0;
    if (IsMultiLine()) {
        const int row = (std::max(point.y, m_format.top) - m_format.top) / m_lineHeight;
        line = std::min(m_firstLine + static_cast<size_t>(row), m_lines.size() - 1);
    }
    if (lineFound != nullptr) *lineFound = line;
    return IndexInLine(ControlDc(m_hwnd, m_font), m_lines[line], point.x);
}

LRESULT Edit::PointFromIndex(LRESULT index) const {
    if (index < 0 || static_cast<size_t>(index) >= m_text.size()) return -1;
    const size_t line = LineOf(static_cast<size_t>(index));
    const Line& found = m_lines[line];
    const ControlDc dc(m_hwnd, m_font);
    const size_t within = std::min(static_cast<size_t>(index) - found.start, found.length);
    const int x = LineLeft(dc, found) + TextWidth(dc, found.start, within);
    const int y =
        m_format.top + (static_cast<int>(line) - static_cast<int>(m_firstLine)) * m_lineHeight;
    return MAKELRESULT(x, y);
}

POINT Edit::CaretPoint() const {
    const size_t line = CaretLine();
    const Line& found = m_lines[line];
    const ControlDc dc(m_hwnd, m_font);
    const size_t within = std::min(m_caret - found.start, found.length);
    return {LineLeft(dc, found) + TextWidth(dc, found.start, within),
            m_format.top + (static_cast<int>(line) - static_cast<int>(m_firstLine)) * m_lineHeight};
}

int Edit::VisibleLines() const {
    return std::max<int>((m_format.bottom - m_format.top) / m_lineHeight, 1);
}

bool Edit::ScrollLines(int lines) {
    const int last = std::max<int>(static_cast<int>(m_lines.size()) - VisibleLines(), 0);
    const int first = std::clamp(static_cast<int>(m_firstLine) + lines, 0, last);
    if (first == static_cast<int>(m_firstLine)) return false;
    m_firstLine = static_cast<size_t>(first);
    Repaint();
    Notify(EN_VSCROLL);
    return true;
}

int Edit::WidestLine(const ControlDc& dc) const {
    int widest = 0;
    for (const Line& line : m_lines)
        widest = std::max(widest, TextWidth(dc, line.start, line.length));
    return widest;
}

// A program may scroll until the widest line would be out of the field.
void Edit::ScrollColumns(int letters) {
    const ControlDc dc(m_hwnd, m_font);
    const int shift = letters * static_cast<int>(dc.Metrics().tmAveCharWidth);
    const int offset = std::clamp(m_leftOffset + shift, 0, m_widest);
    if (offset == m_leftOffset) return;
    m_leftOffset = offset;
    Repaint();
    Notify(EN_HSCROLL);
}

// A caret that has left the field comes back with a third of the field beyond it, as far as there
// is text.
void Edit::ScrollLineToCaret() {
    const ControlDc dc(m_hwnd, m_font);
    const int room = m_format.right - m_format.left;
    if (m_caret < m_firstChar) {
        do {
            --m_firstChar;
        } while (m_firstChar > 0 &&
                 (m_caret < m_firstChar ||
                  TextWidth(dc, m_firstChar, m_caret - m_firstChar) < room / kScrolledPart));
        return;
    }
    if (TextWidth(dc, m_firstChar, m_caret - m_firstChar) <= room) return;
    // Widths shrink as the first character moves on, so both ends are found by halves.
    const auto firstThat = [&](size_t low, size_t high, const auto& fits) {
        while (low < high) {
            const size_t middle = low + (high - low) / 2;
            fits(middle) ? high = middle : low = middle + 1;
        }
        return low;
    };
    const int goal = room - room / kScrolledPart;
    const size_t atGoal = firstThat(m_firstChar + 1, m_caret, [&](size_t first) {
        return TextWidth(dc, first, m_caret - first) <= goal;
    });
    const size_t atEnd = firstThat(m_firstChar + 1, m_text.size(), [&](size_t first) {
        return TextWidth(dc, first, m_text.size() - first) <= room;
    });
    m_firstChar = std::min(atGoal, atEnd);
}

void Edit::ScrollToCaret() {
    if (!IsMultiLine()) {
        if (HasStyle(ES_AUTOHSCROLL)) ScrollLineToCaret();
        return;
    }
    const int line = static_cast<int>(CaretLine());
    const int first = static_cast<int>(m_firstLine);
    if (line < first) {
        ScrollLines(line - first);
    } else if (line >= first + VisibleLines()) {
        ScrollLines(line - first - VisibleLines() + 1);
    }
    // Nothing is left empty below the last line while there are lines above.
    ScrollLines(0);
    // What wraps scrolls back, where a program scrolled it.
    if (!Wraps() || m_leftOffset > 0) ScrollLinesToColumn(CaretPoint().x);
}

// As in a single line, a third of the width comes in at once, in whole letters, as far as the
// widest line goes.
void Edit::ScrollLinesToColumn(int x) {
    const ControlDc dc(m_hwnd, m_font);
    const int room = m_format.right - m_format.left;
    const int letter = std::max<int>(dc.Metrics().tmAveCharWidth, 1);
    int shift = 0;
    if (x < m_format.left) {
        shift = x - m_format.left - room / kScrolledPart / letter * letter;
    } else if (x > m_format.right) {
        const int rest = (kScrolledPart - 1) * room / kScrolledPart;
        shift = x - m_format.left - rest / letter * letter;
    }
    shift = std::min(shift, m_widest - room - m_leftOffset);
    m_leftOffset = std::max(m_leftOffset + shift, 0);
}

// The lines scrolled in the low word, TRUE in the high word; 0 for a control of one line.
LRESULT Edit::ScrollBy(int request) {
    if (!IsMultiLine()) return 0;
    const size_t before = m_firstLine;
    switch (request) {
        case SB_LINEUP:
            ScrollLines(-1);
            break;
        case SB_LINEDOWN:
            ScrollLines(1);
            break;
        case SB_PAGEUP:
            ScrollLines(-VisibleLines());
            break;
        case SB_PAGEDOWN:
            ScrollLines(VisibleLines());
            break;
        case SB_TOP:
            ScrollLines(-static_cast<int>(m_firstLine));
            break;
        case SB_BOTTOM:
            ScrollLines(static_cast<int>(m_lines.size()));
            break;
        default:
            return 0;
    }
    const int moved = static_cast<int>(m_firstLine) - static_cast<int>(before);
    return MAKELRESULT(static_cast<WORD>(moved), TRUE);
}

}  // namespace headless
