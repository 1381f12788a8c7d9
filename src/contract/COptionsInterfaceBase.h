// The root of the thin model objects through which tabs read and change a record while a dialog is
// open, and through which they learn of each other's changes.
//
// An interface owns no record and no window: both outlive it, on the stack of the Show function.
#pragma once

#include <vector>

#include "platform/platform.h"

class ADM_Wnd;

class COptionsInterfaceBase {
  public:
    COptionsInterfaceBase();
    COptionsInterfaceBase(const COptionsInterfaceBase&) = delete;
    COptionsInterfaceBase& operator=(const COptionsInterfaceBase&) = delete;
    virtual ~COptionsInterfaceBase();

    // The module that holds the library's resources.
    HINSTANCE GetInstance() const { return m_hInstance; }

    // A window that is told of every later notification.
    void AddObserver(ADM_Wnd* pObserver);

    // Calls Notify(null, 0, nCode, 0) of every observer, in the order of adding.
    void Notify(int nCode);

  private:
    HINSTANCE m_hInstance;
    std::vector<ADM_Wnd*> m_vObservers;
};
