// Data files of any bytes: what is read has columns of one length, what is refused names its file.
#include <unistd.h>

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "RecordingReader.h"

namespace {

// One file for all inputs of a process.
const std::string& ScratchFile() {
    static const std::string path =
        (std::filesystem::temp_directory_path() / ("zx-fuzz-" + std::to_string(getpid()))).string();
    return path;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string& path = ScratchFile();
    std::FILE* file = std::fopen(path.c_str(), "wb");
    if (file == nullptr) std::abort();
    std::fwrite(data, 1, size, file);
    std::fclose(file);
    std::vector<zxhost::TextColumn> columns;
    std::string error;
    if (zxhost::ReadTextColumns(path, &columns, &error)) {
        if (columns.empty() || columns[0].values.empty()) std::abort();
        for (const zxhost::TextColumn& column : columns) {
            if (column.values.size() != columns[0].values.size()) std::abort();
            for (double value : column.values)
                if (!std::isfinite(value)) std::abort();
        }
    } else if (error.rfind(path + ":", 0) != 0 || !columns.empty()) {
        std::abort();
    }
    // As every kind of data and in every layout: sets of one length, or a reason.
    const zxhost::ReadingOptions kReadings[] = {
        {},
        {.layout = zxhost::Layout::kSweeps, .xUnits = "s"},
        {.layout = zxhost::Layout::kSignals, .delimiter = ','},
        {.kind = zxhost::DataKind::kSecondKind},
        {.kind = zxhost::DataKind::kSheet}};
    for (const zxhost::ReadingOptions& reading : kReadings) {
        zxhost::Recording recording;
        if (!zxhost::ReadRecording(path, reading, &recording, &error)) {
            if (error.rfind(path + ":", 0) != 0 || !recording.groups.empty()) std::abort();
            continue;
        }
        for (const zxhost::Group& group : recording.groups) {
            if (group.sets.size() != recording.groups[0].sets.size()) std::abort();
            for (const zxhost::Set& set : group.sets)
                if (set.values.size() != recording.PointCount()) std::abort();
        }
        if (recording.Describe().empty()) std::abort();
    }
    std::remove(path.c_str());
    return 0;
}
