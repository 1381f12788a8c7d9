// A structured exception code of the platform, thrown as an object and told as a sentence.
#pragma once

#include "platform/platform.h"

class ZDC_SystemException final {
  public:
    explicit ZDC_SystemException(DWORD dwCode) : m_dwCode(dwCode) {}

    // Copies the text of the code into szBuffer, cut to nSize bytes with the final zero, and
    // returns the length copied. A null buffer or a size of 0 gives 0. The text of an unknown code
    // is printed into one buffer shared by all objects.
    virtual UINT GetMessage(LPSTR szBuffer, UINT nSize) const;

    DWORD GetCode() const { return m_dwCode; }

    // Throws an object with this code.
    [[noreturn]] static void Raise(DWORD dwCode);

  private:
    DWORD m_dwCode;
};
