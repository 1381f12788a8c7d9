// A gauge that drives a spinner window: two arrows beside a field. The upper (or right) arrow
// raises the position, with Shift by a page.
#pragma once

#include "framework/ADM_GaugeControl.h"

class ADM_Spinner : public ADM_GaugeControl {
  public:
    // The period of auto-repeat that a window gets when it has none, in ms. A held arrow steps ten
    // times as slowly at first.
    static constexpr UINT kRepeatMs = 50;

    void OnAttach() override;
    void OnCommand(HWND hWnd, int nId, HWND hWndCtl, int nCode) override;
    // A range of one position disables the spinner.
    void SetRange(int nMin, int nMax) override;
    void PressPageDown(BOOL bNotify) override;
    void PressPageUp(BOOL bNotify) override;
    void PressLineDown(BOOL bNotify) override;
    void PressLineUp(BOOL bNotify) override;
    void ReleaseButtons() override;
    void SetBuddy(ADM_Text* pText) override;
};
