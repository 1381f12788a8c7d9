// DrawTextA: lines, word breaks, tabs, mnemonics, ellipses.
//
// Words break where the line breaking rules for Latin text let them: after a run of spaces, after a
// hyphen and its like, before a sign of a currency or a percentage. A word that is longer than its
// line stands alone and sticks out, but for DT_EDITCONTROL, which cuts it.
#include <algorithm>
#include <cstring>

#include "platform/headless/drawing/gdi_text.h"
#include "zxadlg/headless/diagnostics.h"
#include "zxadlg/headless/functions.h"

namespace headless::gdi {
namespace {

constexpr char kEllipsis[] = "...";
constexpr int kEllipsisLength = 3;

bool IsOneOf(char c, const char* set) {
    return c != '\0' && std::strchr(set, c) != nullptr;
}
bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

// Whether a line may break between two characters of which the second is no space.
bool MayBreak(char before, char after) {
    if (before == ' ' || before == '\t') return true;
    // Closing signs stay with what they close.
    if (IsOneOf(after, "!?)]},.:;/-|'\"\x85\x96\xAD")) return false;
    if (before == '-' || before == '/') return !IsDigit(after);
    if (IsOneOf(before, "!?|}\x85\x96\x97\xAD") || after == '\x97') return true;
    if (before == ')' && after == '(') return true;
    const bool letter = (before >= 'a' && before <= 'z') || (before >= 'A' && before <= 'Z');
    return letter && IsOneOf(after, "$%+\\\x80\x89\xA2\xA3\xA4\xA5\xB0\xB1\xB4");
}

// A text without its mnemonic signs, and which of its characters were marked.
struct Text {
    std::string chars;
    std::vector<bool> marked;
};

Text Strip(const char* text, int length, bool prefixes) {
    Text result;
    for (int i = 0; i < length; ++i) {
        bool marked = false;
        if (prefixes && text[i] == '&' && i + 1 < length) {
            ++i;
            marked = text[i] != '&';
        }
        result.chars += text[i];
        result.marked.push_back(marked);
    }
    return result;
}

// A part of the text that stands on one line.
struct Line {
    std::size_t begin = 0;
    std::size_t end = 0;
    std::size_t next = 0;  // where the following line begins
    int width = 0;
    std::string shown;
    bool changed = false;  // `shown` is not the text from begin to end
};

class Layout {
  public:
    Layout(const DeviceContext& dc, UINT flags, int available, int tabStop)
        : face_(FaceOf(dc)),
          flags_(flags),
          available_(available),
          tab_(std::max(1L, static_cast<long>(tabStop) * face_->metrics.tmAveCharWidth)) {}

    int LineHeight() const {
        return face_->metrics.tmHeight +
               (Has(DT_EXTERNALLEADING) ? face_->metrics.tmExternalLeading : 0);
    }

    // The line that begins at a place of the text; `last` when no other one will be shown.
    Line Next(const std::string& text, std::size_t begin, bool last) const {
        Line line;
        line.begin = begin;
        const std::size_t end = ParagraphEnd(text, begin);
        line.end = end;
        line.next = AfterBreak(text, end);
        const bool cutAtEnd = last && Has(DT_END_ELLIPSIS);
        if (Has(DT_WORDBREAK) && !cutAtEnd && Width(text, begin, end) > available_)
            BreakWords(text, line, end);
        line.shown = text.substr(line.begin, line.end - line.begin);
        line.width = Width(line.shown, 0, line.shown.size());
        if (line.width > available_) {
            if (Has(DT_PATH_ELLIPSIS)) CutPath(line);
            if (Has(DT_WORD_ELLIPSIS) || cutAtEnd || (Has(DT_SINGLELINE) && Has(DT_END_ELLIPSIS)))
                CutEnd(line);
        }
        return line;
    }

    int Width(const std::string& text, std::size_t begin, std::size_t end) const {
        int width = 0;
        for (std::size_t i = begin; i < end; ++i) width = Advance(width, text[i]);
        return width;
    }

  private:
    bool Has(UINT flag) const { return (flags_ & flag) != 0; }

    int Advance(int width, char c) const {
        if (c == '\t' && Has(DT_EXPANDTABS)) return (width / tab_ + 1) * tab_;
        return width + face_->widths[static_cast<unsigned char>(c)];
    }

    std::size_t ParagraphEnd(const std::string& text, std::size_t begin) const {
        if (Has(DT_SINGLELINE)) return text.size();
        const std::size_t found = text.find_first_of("\r\n", begin);
        return found == std::string::npos ? text.size() : found;
    }

    // A carriage return and a line feed in either order end one line.
    std::size_t AfterBreak(const std::string& text, std::size_t end) const {
        if (end >= text.size()) return text.size();
        const bool pair =
            end + 1 < text.size() && IsOneOf(text[end + 1], "\r\n") && text[end + 1] != text[end];
        return end + (pair ? 2 : 1);
    }

    void BreakWords(const std::string& text, Line& line, std::size_t end) const {
        std::size_t fit = line.begin;
        for (int width = 0; fit < end; ++fit) {
            width = Advance(width, text[fit]);
            if (width > available_) break;
        }
        // The last place up to there where a new word begins.
        for (std::size_t at = fit; at > line.begin; --at) {
            if (text[at] == ' ' || !MayBreak(text[at - 1], text[at])) continue;
            line.end = line.next = at;
            if (Has(DT_CENTER | DT_RIGHT) && text[at - 1] == ' ') --line.end;
            return;
        }
        if (Has(DT_EDITCONTROL)) {
            line.end = line.next = std::max(fit, line.begin + 1);
            return;
        }
        // The word does not fit: it ends at the next space, and that space is not shown.
        std::size_t at = std::max(fit, line.begin);
        while (at < end && text[at] != ' ') ++at;
        line.end = at;
        line.next = at < end ? at + 1 : AfterBreak(text, end);
    }

    void CutEnd(Line& line) const {
        const int dots = face_->Width(kEllipsis, kEllipsisLength);
        std::size_t count = line.shown.size();
        while (count > 0 && Width(line.shown, 0, count) + dots > available_) --count;
        line.shown = line.shown.substr(0, count) + kEllipsis;
        line.width = Width(line.shown, 0, line.shown.size());
        line.changed = true;
    }

    // The last part of a path is kept and what stands before it is cut.
    void CutPath(Line& line) const {
        const std::size_t slash = line.shown.rfind('\\');
        const std::string name = slash == std::string::npos ? line.shown : line.shown.substr(slash);
        const std::string folder = slash == std::string::npos ? "" : line.shown.substr(0, slash);
        const int fixed = face_->Width(kEllipsis, kEllipsisLength) + Width(name, 0, name.size());
        std::size_t count = folder.size();
        while (count > 0 && Width(folder, 0, count) + fixed > available_) --count;
        line.shown = folder.substr(0, count) + kEllipsis + name;
        line.width = Width(line.shown, 0, line.shown.size());
        line.changed = true;
    }

    std::shared_ptr<const FontFace> face_;
    UINT flags_;
    int available_;
    int tab_;
};

int MarkedIn(const Text& text, const Line& line) {
    const std::size_t end =
        line.begin +
        (line.changed ? std::min(line.shown.size(), line.end - line.begin) : line.end - line.begin);
    for (std::size_t i = line.begin; i < end; ++i)
        if (text.marked[i]) return static_cast<int>(i - line.begin);
    return -1;
}

struct Result {
    int height = 0;
    std::string modified;
    bool wasModified = false;
};

Result Draw(HDC handle, DeviceContext& dc, const char* source, int length, RECT& rect, UINT flags,
            int tabStop) {
    Result result;
    const Text text = Strip(source, length, (flags & DT_NOPREFIX) == 0);
    const RECT box{dc.ToDevice(rect.left, rect.top).x, dc.ToDevice(rect.left, rect.top).y,
                   dc.ToDevice(rect.right, rect.bottom).x, dc.ToDevice(rect.right, rect.bottom).y};
    const Layout layout(dc, flags, box.right - box.left, tabStop);
    const int lineHeight = layout.LineHeight();
    const bool calculate = (flags & DT_CALCRECT) != 0;
    const bool clips = (flags & (DT_CALCRECT | DT_NOCLIP)) == 0;
    if (text.chars.empty()) {
        if (calculate) {
            rect.right = rect.left;
            rect.bottom = rect.top;
        }
        result.height = dc.HeightToLogical(lineHeight);
        return result;
    }
    const std::vector<RECT> clip = dc.state.clip;
    if (clips) IntersectClipRect(handle, rect.left, rect.top, rect.right, rect.bottom);
    int y = box.top;
    if ((flags & DT_SINGLELINE) != 0) {
        const int space = box.bottom - box.top - lineHeight;
        if ((flags & DT_VCENTER) != 0)
            y += (space + 1) >> 1;  // an odd pixel stands above the text
        else if ((flags & DT_BOTTOM) != 0)
            y += space;
    }
    int widest = 0;
    std::size_t at = 0;
    bool last = false;
    while (at < text.chars.size() && !last) {
        // DT_EDITCONTROL shows no line of which only a part is seen.
        const int needed = (flags & DT_EDITCONTROL) != 0 ? 2 * lineHeight - 1 : lineHeight;
        last = (flags & DT_SINGLELINE) != 0 || (clips && y + needed > box.bottom);
        const Line line = layout.Next(text.chars, at, last);
        at = line.next;
        widest = std::max(widest, line.width);
        if (!calculate && !line.shown.empty()) {
            int x = box.left;
            if ((flags & DT_CENTER) != 0)
                x += (box.right - box.left - line.width) / 2;
            else if ((flags & DT_RIGHT) != 0)
                x += box.right - box.left - line.width;
            const bool underline = (flags & (DT_HIDEPREFIX | DT_NOPREFIX)) == 0;
            const int marked = underline ? MarkedIn(text, line) : -1;
            if ((flags & DT_PREFIXONLY) == 0)
                PutText(dc, x, y, line.width, line.shown, marked);
            else if (marked >= 0)
                PutText(dc, x, y, line.width, std::string(line.shown.size(), ' '), marked);
        }
        if (line.changed) {
            result.modified += line.shown;
            result.wasModified = true;
        } else {
            result.modified += text.chars.substr(line.begin, line.next - line.begin);
        }
        y += lineHeight;
    }
    dc.state.clip = clip;
    if (calculate) {
        rect.right = rect.left + dc.WidthToLogical(widest);
        rect.bottom = rect.top + dc.HeightToLogical(y - box.top);
    }
    result.height = (y < box.top ? -1 : 1) * dc.HeightToLogical(y - box.top);
    return result;
}

}  // namespace
}  // namespace headless::gdi

using namespace headless::gdi;

int DrawTextA(HDC handle, LPCSTR text, int length, RECT* rect, UINT format) {
    constexpr UINT kKnown = DT_CENTER | DT_RIGHT | DT_VCENTER | DT_BOTTOM | DT_WORDBREAK |
                            DT_SINGLELINE | DT_EXPANDTABS | DT_TABSTOP | DT_NOCLIP |
                            DT_EXTERNALLEADING | DT_CALCRECT | DT_NOPREFIX | DT_EDITCONTROL |
                            DT_PATH_ELLIPSIS | DT_END_ELLIPSIS | DT_MODIFYSTRING |
                            DT_WORD_ELLIPSIS | DT_HIDEPREFIX | DT_PREFIXONLY;
    const Lock lock;
    DeviceContext* dc = FindDc(handle);
    if (dc == nullptr || text == nullptr || rect == nullptr || length < -1) return 0;
    int tabStop = 8;
    if ((format & DT_TABSTOP) != 0) {
        // The second byte holds the stop and no flags.
        tabStop = static_cast<int>(format >> 8 & 0xFF);
        format = (format & 0xFFFF00FF) | DT_EXPANDTABS;
    }
    if ((format & ~kKnown) != 0)
        headless::ReportUnsupported("DrawTextA format " + std::to_string(format & ~kKnown));
    if ((format & DT_SINGLELINE) != 0) format &= ~static_cast<UINT>(DT_WORDBREAK);
    const int count = TextLength(text, length);
    const Result result = Draw(handle, *dc, text, count, *rect, format, tabStop);
    if ((format & DT_MODIFYSTRING) != 0 && result.wasModified) {
        // The caller promises room for four more characters.
        const std::size_t room = static_cast<std::size_t>(count) + 4;
        char* out = const_cast<char*>(text);
        const std::size_t size = std::min(result.modified.size(), room - 1);
        std::memcpy(out, result.modified.data(), size);
        out[size] = '\0';
    }
    return result.height;
}
