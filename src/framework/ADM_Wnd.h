// The root of every window object: dialogs, tab pages and controls.
//
// A control object is a value holder that outlives its window. It is a member of a dialog,
// registered under a template id, and bound to a real window only while the dialog is open. It
// keeps its value before and after, and every operation works with no window bound: it then does
// nothing and returns 0, a null or the stored value.
//
// Ownership: the window belongs to the system, the notification target and the dialog to their
// owners; the object owns its field name only. All calls come from the user-interface thread. The
// virtual operations stand in a fixed order, on which the layers above rely: add new ones behind
// the last.
#pragma once

#include <string>

#include "framework/Notifications.h"
#include "platform/platform.h"

class ADM_Dialog;

class ADM_Wnd {
  public:
    // No template item belongs to an object with this id.
    static constexpr int kNoItem = -3;

    ADM_Wnd() = default;
    ADM_Wnd(const ADM_Wnd&) = delete;
    ADM_Wnd& operator=(const ADM_Wnd&) = delete;
    virtual ~ADM_Wnd();

    // Binds to a window and takes its id, after SaveInitialValue; null detaches. Ends with
    // OnAttach.
    virtual void Attach(HWND hWnd);
    // The id of an object that has no window yet.
    virtual void SetControlId(int nId);
    // A control pushes its value to the window here. Also called again to refresh the window.
    virtual void OnAttach();
    // A control pulls the window's state into its value here; nothing with no window.
    virtual void ReadControl();
    // A control keeps its value as the one that HasChanged compares with.
    virtual void SaveInitialValue();
    virtual BOOL HasChanged();
    // Reports the object as modified whatever its value.
    virtual void SetForceModified(BOOL bModified);
    // 0 unless changes are tracked; else the forced answer, or whether the value read now has
    // changed.
    virtual BOOL IsModified();
    // Whether the value passes its rules. bSilent 0 shows a message; ppFailed (may be null) is for
    // dialogs, which store the child that failed.
    virtual BOOL Validate(BOOL bSilent, ADM_Wnd** ppFailed);
    // Only an enabled window is ever validated.
    virtual BOOL IsValidatable();
    // A text control selects all of its text.
    virtual void SelectContents();
    // Sets the window's text, unless it is shorter than 255 characters and shown already, which
    // avoids a needless change notification. A null text is an empty one.
    virtual void SetWindowText(LPCSTR szText);
    virtual BOOL IsHandle(HWND hWnd);
    // A WM_COMMAND of the control's own: mapped to a notification by each family.
    virtual void OnCommand(HWND hWnd, int nId, HWND hWndCtl, int nCode);
    // A WM_NOTIFY: the common codes become notifications.
    virtual LRESULT OnNotify(HWND hWnd, int nId, NMHDR* pHeader);
    // The stream of notifications. The base passes it to the notification target.
    virtual void Notify(ADM_Wnd* pSender, int nId, int nCode, int nData);
    // Whether a character may be typed; text controls filter here.
    virtual LRESULT OnChar(HWND hWnd, int nChar);
    virtual LRESULT OnGetDlgCode(HWND hWnd);
    virtual void OnDrawItem(HWND hWnd, DRAWITEMSTRUCT* pItem);
    virtual void OnDeleteItem(HWND hWnd, DELETEITEMSTRUCT* pItem);
    virtual LRESULT OnCompareItem(HWND hWnd, COMPAREITEMSTRUCT* pItem);
    // nType counts from WM_CTLCOLORMSGBOX, 0 to 6. Null leaves the colours to the dialog.
    virtual HBRUSH OnCtlColor(HWND hWnd, HDC hDC, HWND hWndCtl, int nType);
    virtual void Show(int nCmdShow);
    virtual void Enable(BOOL bEnable);

    HWND GetHandle() const { return m_hWnd; }
    int GetControlId() const { return m_nControlId; }
    // The owning dialog's window, or the object's own with no dialog.
    HWND GetDialogWnd() const { return m_hDialogWnd != nullptr ? m_hDialogWnd : m_hWnd; }
    void SetDialogWnd(HWND hWnd) { m_hDialogWnd = hWnd; }
    ADM_Wnd* GetNotifyTarget() const { return m_pNotifyTarget; }
    void SetNotifyTarget(ADM_Wnd* pTarget) { m_pNotifyTarget = pTarget; }
    // The name that validation messages use; null when there is none.
    LPCSTR GetFieldName() const { return m_sFieldName.empty() ? nullptr : m_sFieldName.c_str(); }
    void SetFieldName(LPCSTR szName) { m_sFieldName = szName != nullptr ? szName : ""; }
    BOOL GetForceModified() const { return m_bForceModified; }
    // Whether the object takes part in change tests at all.
    BOOL GetTrackChanges() const { return m_bTrackChanges; }
    void SetTrackChanges(BOOL bTrack) { m_bTrackChanges = bTrack; }
    int GetUserValue() const { return m_nUserValue; }
    void SetUserValue(int nValue) { m_nUserValue = nValue; }

    void SetFocus() const;
    BOOL HasFocus() const;
    void MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint) const;
    // Marks the whole window for painting.
    void Invalidate(BOOL bErase) const;
    // Both leave an empty rectangle with no window.
    void GetClientRect(RECT* pRect) const;
    void GetWindowRect(RECT* pRect) const;
    void SetRedraw(BOOL bRedraw) const;
    int GetWindowTextLength() const;
    // Returns the length; the buffer holds an empty text with no window.
    int GetWindowText(LPSTR szBuffer, int nSize) const;
    // Shows a string of at most 255 characters. Returns 0, and shows nothing, when there is none.
    BOOL LoadText(HINSTANCE hInstance, UINT nStringId);
    BOOL IsEnabled() const;
    BOOL IsVisible() const;
    void SetFont(HFONT hFont, BOOL bRedraw) const;
    HFONT GetFont() const;
    void Update() const;
    HWND GetParent() const;
    BOOL Destroy();

    // Shows a message over the owning dialog and returns the button's code. The text's placeholders
    // have no arguments. The title follows from the flags, so a caption has nothing to change.
    UINT ShowMessage(LPCSTR szText, UINT nFlags, LPCSTR szCaption) const;
    // Shows an error under the words "Validation Error". The text stands as it is.
    UINT ShowValidationMessage(LPCSTR szText) const;

  protected:
    friend class ADM_Dialog;

    HWND m_hWnd = nullptr;
    HWND m_hDialogWnd = nullptr;
    ADM_Wnd* m_pNotifyTarget = nullptr;
    int m_nControlId = 0;
    std::string m_sFieldName;
    BOOL m_bForceModified = 0;
    BOOL m_bTrackChanges = 1;
    int m_nUserValue = 0;
    // The dialog that has this object among its children; each forgets the other when it is
    // destroyed.
    ADM_Dialog* m_pOwner = nullptr;
};
