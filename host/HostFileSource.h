// The control files of the example host: recordings in text files that the user picks while
// Subtract Control is open. One that cannot be read is told of and changes nothing.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "ZXADLG.h"

namespace zxhost {

class HostFileSource final : public ZXADLG_CDlgFileSource {
  public:
    // Asks for a path; an empty text is a no.
    using Choose = std::function<std::string(HWND__* owner)>;
    // Tells what is wrong with a file.
    using Complain = std::function<void(const std::string& error)>;

    HostFileSource(Choose choose, Complain complain);

    int32_t GetGroupCount() override;
    // Counts the files from 1 in the order of picking; 0 while none is open.
    uint32_t GetFileHandle() override { return current_; }
    const char* GetGroupName(uint32_t group) override;
    const char* GetTitle(HWND__* dialog, HWND__* focus, intptr_t parameter) override;
    const char* BrowseForFile(HWND__* owner) override;
    // An unknown identifier closes the current file.
    void SelectFile(uint32_t file) override;

  private:
    struct ControlFile {
        std::string path;
        std::vector<std::string> groups;
    };

    Choose choose_;
    Complain complain_;
    std::vector<ControlFile> files_;
    uint32_t current_ = 0;
};

}  // namespace zxhost
