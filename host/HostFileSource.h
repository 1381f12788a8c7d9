// The control files of the example host: two simulated ones, so that every system and every script
// meets the same. Browsing gives the next of them.
#pragma once

#include "ZXADLG.h"

namespace zxhost {

class HostFileSource final : public ZXADLG_CDlgFileSource {
  public:
    int32_t GetGroupCount() override;
    // 1 or 2; 0 while none is open.
    uint32_t GetFileHandle() override { return current_; }
    const char* GetGroupName(uint32_t group) override;
    const char* GetTitle(HWND__* dialog, HWND__* focus, intptr_t parameter) override;
    const char* BrowseForFile(HWND__* owner) override;
    void SelectFile(uint32_t file) override;

  private:
    uint32_t current_ = 0;
};

}  // namespace zxhost
