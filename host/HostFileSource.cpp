#include "HostFileSource.h"

#include <iterator>

namespace zxhost {
namespace {

struct ControlFile {
    const char* path;
    int32_t groups;
    const char* names[2];
};

constexpr ControlFile kFiles[] = {
    {"control-1.dat", 2, {"Im", "Vm"}},
    {"control-2.dat", 1, {"Im", nullptr}},
};

}  // namespace

int32_t HostFileSource::GetGroupCount() {
    return current_ == 0 ? 0 : kFiles[current_ - 1].groups;
}

const char* HostFileSource::GetGroupName(uint32_t group) {
    return static_cast<int32_t>(group) < GetGroupCount() ? kFiles[current_ - 1].names[group]
                                                         : nullptr;
}

const char* HostFileSource::GetTitle(HWND__*, HWND__*, intptr_t) {
    return "the recording";
}

const char* HostFileSource::BrowseForFile(HWND__*) {
    current_ = current_ % static_cast<uint32_t>(std::size(kFiles)) + 1;
    return kFiles[current_ - 1].path;
}

void HostFileSource::SelectFile(uint32_t file) {
    current_ = file <= std::size(kFiles) ? file : 0;
}

}  // namespace zxhost
