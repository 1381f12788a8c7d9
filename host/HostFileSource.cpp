#include "HostFileSource.h"

#include <utility>

#include "RecordingReader.h"
#include "System.h"

namespace zxhost {

HostFileSource::HostFileSource(Choose choose, Complain complain)
    : choose_(std::move(choose)), complain_(std::move(complain)) {}

int32_t HostFileSource::GetGroupCount() {
    return current_ == 0 ? 0 : static_cast<int32_t>(files_[current_ - 1].groups.size());
}

const char* HostFileSource::GetGroupName(uint32_t group) {
    if (group >= static_cast<uint32_t>(GetGroupCount())) return nullptr;
    return files_[current_ - 1].groups[group].c_str();
}

const char* HostFileSource::GetTitle(HWND__*, HWND__*, intptr_t) {
    return "the recording";
}

const char* HostFileSource::BrowseForFile(HWND__* owner) {
    const std::string path = choose_(owner);
    if (path.empty()) return nullptr;
    Recording recording;
    std::string error;
    if (!ReadRecording(path, {}, &recording, &error)) {
        complain_(error);
        return nullptr;
    }
    ControlFile file{ToSystem(path), {}};
    for (const Group& group : recording.groups) file.groups.push_back(ToSystem(group.name));
    files_.push_back(std::move(file));
    current_ = static_cast<uint32_t>(files_.size());
    return files_.back().path.c_str();
}

void HostFileSource::SelectFile(uint32_t file) {
    current_ = file <= files_.size() ? file : 0;
}

}  // namespace zxhost
