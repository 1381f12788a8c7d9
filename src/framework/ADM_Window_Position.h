// Where a dialog stood, so that it opens there next time. One object serves one type of dialog and
// outlives it (ADM_Dialog::SetWindowPositionMemory). Coordinates are pixels of the screen.
//
// Without Load a position lasts as long as the object. With it, positions are kept in the profile
// store; a store that is missing reads as "no position yet", and a write that fails is ignored.
#pragma once

#include "platform/platform.h"

class ADM_Window_Position {
  public:
    // Moves the window to the known position if its title bar (without one, its whole area) would
    // be on a monitor there. Returns 0 only when no position is known: a window whose position is
    // on no monitor any more stays where it is.
    virtual BOOL Restore(HWND hWnd);

    // Remembers where the window stands now.
    virtual void Save(HWND hWnd);

    ADM_Window_Position() = default;
    virtual ~ADM_Window_Position() = default;

    // Makes the positions last: reads the one in the section of the application's store.
    void Load(LPCSTR szSection, LPCSTR szApp);

    BOOL IsInitialized() const { return m_bInitialized; }
    BOOL IsPersistent() const { return m_bPersistent; }
    POINT GetPosition() const { return POINT{m_nX, m_nY}; }

  protected:
    BOOL m_bInitialized = FALSE;
    INT m_nX = 0;
    INT m_nY = 0;
    BOOL m_bPersistent = FALSE;
    char m_szSection[260] = {};
    char m_szApp[260] = {};
};
