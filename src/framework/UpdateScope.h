// Marks an update that the program makes, so that its own notifications are told from the user's
// edits. The flag is set for the life of the guard and then gets back what it was; guards may nest.
#pragma once

#include "platform/platform.h"

class UpdateScope {
  public:
    explicit UpdateScope(BOOL& bFlag) : m_bFlag(bFlag), m_bBefore(bFlag) { m_bFlag = 1; }
    ~UpdateScope() { m_bFlag = m_bBefore; }
    UpdateScope(const UpdateScope&) = delete;
    UpdateScope& operator=(const UpdateScope&) = delete;

  private:
    BOOL& m_bFlag;
    BOOL m_bBefore;
};
