// What the tests of the host share: scratch files, and a run of the host in this process.
#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "CommandLine.h"
#include "System.h"
#include "fixtures/ScratchStore.h"

namespace host_test {

class HostTest : public testing::Test {
  protected:
    // Writes a file of these bytes and gives its path.
    std::string WriteFile(const std::string& name, const std::string& bytes) {
        const std::string path = scratch.File(name);
        std::ofstream(zxhost::PathOf(path), std::ios::binary) << bytes;
        return path;
    }
    static std::string ReadFile(const std::string& path) {
        std::ifstream file(zxhost::PathOf(path), std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    }
    std::string Store() const { return scratch.File("store.ini"); }

    // Runs the host as its main function does; output and errors are kept.
    int Run(const std::vector<std::string>& arguments) {
        zxhost::Options options;
        std::string error;
        out = err = "";
        if (!zxhost::ParseCommandLine(arguments, &options, &error)) {
            err = error;
            return zxhost::kWrongUsage;
        }
        std::ostringstream outStream, errStream;
        const int code = zxhost::RunCommand(options, outStream, errStream);
        out = outStream.str();
        err = errStream.str();
        return code;
    }
    // Plays a script on Normalize, with a store of the test's own.
    int Play(const std::string& script, std::vector<std::string> more = {}) {
        more.insert(more.end(), {"run", "normalize", "--script", WriteFile("steps.txt", script),
                                 "--store", Store()});
        return Run(more);
    }
    bool OutHas(const std::string& text) const { return out.find(text) != std::string::npos; }

    test_support::ScratchStore scratch;
    std::string out;
    std::string err;
};

}  // namespace host_test
