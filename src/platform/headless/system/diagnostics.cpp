#include "zxadlg/headless/diagnostics.h"

#include <cstdio>
#include <mutex>

namespace headless {

namespace {

constexpr std::size_t kMostKept = 1000;

struct Record {
    std::mutex mutex;
    std::vector<std::string> entries;
};

Record& TheRecord() {
    static auto* record = new Record;
    return *record;
}

}  // namespace

void ReportUnsupported(const std::string& what) {
    Record& record = TheRecord();
    std::lock_guard lock(record.mutex);
#ifndef NDEBUG
    std::fputs(("unsupported: " + what + "\n").c_str(), stderr);
#endif
    // A loop that goes on asking must not eat the memory.
    if (record.entries.size() < kMostKept) record.entries.push_back(what);
}

std::vector<std::string> TakeUnsupported() {
    Record& record = TheRecord();
    std::lock_guard lock(record.mutex);
    std::vector<std::string> taken;
    taken.swap(record.entries);
    return taken;
}

}  // namespace headless
