// Data files of any bytes: what is read has columns of one length, what is refused names its file.
#include <unistd.h>

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "TextReader.h"

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
    std::remove(path.c_str());
    return 0;
}
