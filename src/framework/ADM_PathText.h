// A field that shows a path, shortened in its middle where it is too long, so that the name of the
// file is seen: "C:\...\runs\step.dat". For fields that the user doesn't edit: the text of the
// window is what is shown and no path.
#pragma once

#include <string>

#include "framework/ADM_Text.h"

class ADM_PathText : public ADM_Text {
  public:
    void OnAttach() override;
    // The path as it is; it is kept, and shown shortened to the field's width.
    void SetWindowText(LPCSTR szText) override;

    LPCSTR GetPath() const { return m_sPath.c_str(); }

  private:
    void Show();

    std::string m_sPath;
};
