// An editable box whose list holds what was entered before, and which remembers its caret and
// selection while another control has the focus, so that a button can insert where the user was.
//
// The inner edit is subclassed behind the framework's own hook and before it is let go: the old
// procedure stands under the property "COB_OldWndProc". Where that cannot be stored the edit stays
// as it was and the box only knows its handle.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "arithmetic/ExpressionHistory.h"
#include "framework/ADM_ComboBox.h"

class CHistoryComboBox : public ADM_ComboBox {
  public:
    ~CHistoryComboBox() override;

    void OnAttach() override;
    void OnCommand(HWND hWnd, int nId, HWND hWndCtl, int nCode) override;

    // The whole text, of any length; trailing and leading blanks included.
    std::string GetText() const;
    // Shows a text and puts the caret at its end. The edit has nothing to undo then.
    void SetText(std::string_view sText);
    // The selection as it stands, or as it stood when the box lost the focus; the end of the text
    // when it never had it.
    void GetSelection(int* pnStart, int* pnEnd) const;
    void SetCaret(int nAt) { Select(nAt, nAt); }
    void SetCaretToEnd();
    // Gives the edit the focus, with the selection that it had.
    void FocusEdit();
    bool CanUndo() const;
    void Undo();

    // Fills the list from the store, selects its first entry and puts the caret at its end. Without
    // a store the list shows one entry that is no text of the box, and the box is empty.
    void LoadList(const char* szProfile, HistoryKind eKind);
    // Puts a text on top of the list, in its new spelling where it is there in another one.
    void PutOnTop(const std::string& sText);
    void SaveList(const char* szProfile, HistoryKind eKind) const;
    // A list with nothing in it, or with nothing to choose.
    bool IsListEmpty() const { return m_bNotAvailable || GetCount() == 0; }

  protected:
    // Stores the edit's own procedure with the edit.
    virtual BOOL KeepOldProcedure(HWND hEdit, WNDPROC pOld);
    // Puts the caret, or a selection, in the edit.
    void Select(int nStart, int nEnd);
    LRESULT SendEdit(UINT uMsg, WPARAM wParam = 0, LPARAM lParam = 0) const;

  private:
    static LRESULT CALLBACK EditProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam);
    static LRESULT OnEditMessage(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam);
    void HookEditPart();
    static void UnhookEditPart(HWND hEdit);
    void KeepSelection();

    int m_nKeptStart = -1;  // -1: the box never had the focus
    int m_nKeptEnd = -1;
    bool m_bNotAvailable = false;
    std::string m_sBeforeChoice;
};
