// A position in a range: the object behind a scroll bar or a spinner. Alone it moves its own
// position when it is told to; linked to a field, the field decides.
//
// Up and down are those of the bar's arrows on the screen: a "line down" raises the position.
#pragma once

#include <cstdint>

#include "framework/ADM_Wnd.h"

class ADM_Text;

class ADM_GaugeControl : public ADM_Wnd {
  public:
    void Notify(ADM_Wnd* pSender, int nId, int nCode, int nData) override;

    // Pulls the position into the range.
    virtual void SetRange(int nMin, int nMax);
    // A new position is pulled into the range and marks the gauge as modified.
    virtual void SetPos(int nPos);
    // Either pointer may be null.
    virtual void GetRange(int* pnMin, int* pnMax);
    virtual int GetPos();
    // As if the user pressed that part of the bar: with bNotify 0 nothing is told.
    virtual void PressPageDown(BOOL bNotify);
    virtual void PressPageUp(BOOL bNotify);
    virtual void PressLineDown(BOOL bNotify);
    virtual void PressLineUp(BOOL bNotify);
    virtual void ReleaseButtons();
    // The field that the gauge stands beside receives its notifications.
    virtual void SetBuddy(ADM_Text* pText);
    virtual ADM_Wnd* GetNotifyTarget();

    int GetPageUp() const { return m_nPageUp; }
    int GetPageDown() const { return m_nPageDown; }
    int GetLineUp() const { return m_nLineUp; }
    int GetLineDown() const { return m_nLineDown; }
    BOOL GetLinked() const { return m_bLinked; }
    void SetLinked(BOOL bLinked) { m_bLinked = bLinked; }

  protected:
    int m_nMin = 0;
    int m_nMax = 100;
    int m_nPos = 10;
    int m_nPageUp = -10;
    int m_nPageDown = 10;
    int m_nLineUp = -1;
    int m_nLineDown = 1;
    BOOL m_bLinked = 0;

  private:
    int InRange(std::int64_t nPos) const;
    void MoveTo(int nCode, int nData);
};
