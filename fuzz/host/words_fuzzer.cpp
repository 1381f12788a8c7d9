// Texts of the command line: protocols, marks, start values of fields, whole command lines. What is
// taken keeps its promises, what is refused says why.
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "CommandLine.h"
#include "System.h"

namespace {

void Require(bool holds) {
    if (!holds) std::abort();
}

void ReadProtocol(const std::string& text) {
    zxhost::StepProtocol protocol;
    std::string error;
    if (!zxhost::ParseProtocol(text, &protocol, &error)) {
        Require(error.rfind("place ", 0) == 0);
        return;
    }
    Require(protocol.end > protocol.begin && protocol.step != 0.0 && protocol.Sweeps() >= 1);
}

void ReadMarks(const std::string& text) {
    zxhost::CursorMark cursor;
    zxhost::RegionMark region;
    std::string error;
    if (zxhost::ParseCursorMark(text, &cursor, &error))
        Require(cursor.cursor >= 1 && cursor.cursor <= zxhost::kCursors &&
                std::isfinite(cursor.at));
    if (zxhost::ParseRegionMark(text, &region, &error))
        Require(!region.name.empty() && region.from <= region.to);
}

void ReadArguments(const std::string& text) {
    std::vector<std::string> arguments(1);
    for (char c : text) {
        if (c == '\n') {
            arguments.emplace_back();
        } else {
            arguments.back() += c;
        }
    }
    zxhost::Options options;
    std::string error;
    Require(zxhost::ParseCommandLine(arguments, &options, &error) == error.empty());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    ReadProtocol(text);
    ReadMarks(text);
    ReadArguments(text);
    // Texts that are UTF-8 come back from the dialogs' code page when it has all of their
    // characters.
    if (zxhost::FindWrongByte(text) == std::string::npos) {
        bool exact = false;
        const std::string told = zxhost::ToSystem(text, &exact);
        Require(!exact || zxhost::FromSystem(told) == text);
    }
    return 0;
}
