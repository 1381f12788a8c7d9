// The edit control, of one line or of several.
//
// Text is kept as bytes; a line ends at "\r\n" or at a single '\n', and without horizontal
// scrolling a control of several lines also wraps at words. The selection runs from its anchor to
// the caret. Undo has one level and undoes itself. The limit holds for typing, pasting and
// EM_REPLACESEL, and not for WM_SETTEXT. Own buffers (EM_SETHANDLE), word break procedures and cue
// banners are not supported and are reported.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/headless/controls/control_object.h"

namespace headless {

class Edit : public ControlObject<Edit> {
  public:
    Edit(HWND hwnd, const CREATESTRUCTA& create);
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);

  private:
    struct Line {
        size_t start = 0;
        size_t length = 0;  // without its end mark
        size_t next = 0;    // where the following line starts
        bool wrapped = false;
    };

    // --- edit.cpp: messages
    LRESULT HandleEditMessage(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT HandleLineMessage(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT OnCreate(const CREATESTRUCTA& create);
    LRESULT DialogCode(const MSG* message);
    LRESULT GetText(size_t room, char* buffer) const;
    LRESULT GetSelection(DWORD* start, DWORD* end) const;
    void Notify(int code) { NotifyOwner(GetParent(m_hwnd), code); }
    void Repaint() { InvalidateRect(m_hwnd, nullptr, TRUE); }
    bool IsMultiLine() const { return HasStyle(ES_MULTILINE); }
    bool IsReadOnly() const { return HasStyle(ES_READONLY); }

    // --- edit_text.cpp: changes of the text
    void SetText(const char* text);
    void Replace(std::string_view text, bool canUndo, bool honourLimit, bool notify);
    size_t FittingLength(std::string_view text, size_t start, size_t end) const;
    bool FitsLines(std::string_view text, size_t start, size_t end) const;
    void RememberDeletion(size_t start, std::string_view deleted);
    void RememberInsertion(size_t start, size_t length);
    void ForgetUndo();
    LRESULT Undo();
    void Clear();
    void Copy();
    void Paste();
    std::string WithCase(std::string_view text) const;
    size_t SelectionStart() const { return m_anchor < m_caret ? m_anchor : m_caret; }
    size_t SelectionEnd() const { return m_anchor < m_caret ? m_caret : m_anchor; }
    void Select(size_t anchor, size_t caret);

    // --- edit_lines.cpp: lines, places and scrolling
    std::vector<Line> BreakLines(std::string_view text) const;
    void WrapLine(const ControlDc& dc, std::string_view text, const Line& whole,
                  std::vector<Line>* lines) const;
    bool Wraps() const;
    void Reformat();
    void UpdateFormatRect();
    int TextWidth(const ControlDc& dc, size_t start, size_t length) const;
    int LineLeft(const ControlDc& dc, const Line& line) const;
    size_t LineOf(size_t index) const;
    size_t CaretLine() const;
    LRESULT LineIndex(LRESULT line) const;
    LRESULT LineLength(LRESULT index) const;
    LRESULT CopyLine(LRESULT line, char* buffer) const;
    size_t IndexFromPoint(POINT point, size_t* line) const;
    size_t IndexInLine(const ControlDc& dc, const Line& line, int x) const;
    LRESULT PointFromIndex(LRESULT index) const;
    POINT CaretPoint() const;
    int VisibleLines() const;
    bool ScrollLines(int lines);
    void ScrollColumns(int letters);
    int WidestLine(const ControlDc& dc) const;
    void ScrollToCaret();
    void ScrollLineToCaret();
    void ScrollLinesToColumn(int x);
    POINT Confined(POINT point) const;
    LRESULT ScrollBy(int request);

    // --- edit_input.cpp: keys and mouse
    LRESULT OnKeyDown(int key, LPARAM lParam);
    void OnChar(char c);
    bool PassKeyToCombo(int key, LPARAM lParam);
    void OnReturnInDialog();
    void MoveTo(size_t index, bool extend);
    size_t Forward(size_t index) const;
    size_t Backward(size_t index) const;
    size_t WordForward(size_t index) const;
    size_t WordBackward(size_t index) const;
    void MoveByLines(int lines, bool extend);
    void MoveEnd(bool extend, bool all);
    void OnDelete(bool shift, bool control);
    void OnButtonDown(POINT point, bool extend);
    void OnDoubleClick(POINT point);

    // --- edit_paint.cpp
    void Paint(HDC dc);
    void PaintLine(HDC dc, const ControlDc& measure, const Line& line, int y, bool showSelection);

    HWND m_combo;             // the combo box whose text this is, or null
    bool m_drawBorder;        // a plain border belongs to the client area, as on the platform
    bool m_inDialog = false;  // a dialog asked for the key codes

    std::string m_text;
    size_t m_anchor = 0;
    size_t m_caret = 0;
    bool m_caretAtWrap = false;  // the caret stands at the end of a wrapped line, not on the next
    size_t m_limit = 30000;
    bool m_modified = false;
    char m_passwordChar = '\0';

    // What undo takes out (length bytes at position) and puts in (the text).
    size_t m_undoPosition = 0;
    size_t m_undoLength = 0;
    std::string m_undoText;

    std::vector<Line> m_lines = std::vector<Line>(1);
    size_t m_firstLine = 0;  // of several lines: the first one shown
    size_t m_firstChar = 0;  // of one line: the first character shown
    int m_leftOffset = 0;    // of several lines: pixels scrolled to the left
    // Of several lines: the widest, in its font, since there were fewer lines. It is no less when a
    // line becomes shorter.
    int m_widest = 0;
    RECT m_format = {};  // where text stands in the client area
    int m_leftMargin = 0;
    int m_rightMargin = 0;
    int m_tabStop = 32;  // dialog units
    HFONT m_font = nullptr;
    int m_lineHeight = 1;
    int m_letterWidth = 1;
    bool m_dragging = false;
};

}  // namespace headless
