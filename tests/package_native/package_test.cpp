// Installs the library and builds the host of the embedding guide against it.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "fixtures/ScratchStore.h"

namespace {

std::string Read(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
}

// A block of a language in the guide, counted from 0.
std::string Block(const std::string& language, int which) {
    const std::string guide = Read(ZX_SOURCE_DIR "/docs/hosting.md");
    const std::string mark = "```" + language + "\n";
    std::size_t begin = guide.find(mark);
    for (int i = 0; i < which && begin != std::string::npos; ++i)
        begin = guide.find(mark, begin + 1);
    if (begin == std::string::npos) return "";
    const std::size_t first = begin + mark.size();
    return guide.substr(first, guide.find("```", first) - first);
}

// What the guide says for an empty folder, as it is printed.
TEST(Package, TheCommandsOfTheGuideRunInAnEmptyFolder) {
    const test_support::ScratchStore scratch;
    const std::string root = scratch.File("empty");
    const std::string log = scratch.File("log.txt");
    std::filesystem::create_directories(root);
    ASSERT_EQ(std::system((ZX_CMAKE " --install " ZX_BINARY_DIR
                                    " --component ZxAnalysisDialogs --prefix " +
                           root + "/zx >" + log + " 2>&1")
                              .c_str()),
              0)
        << Read(log);
    std::ofstream(root + "/CMakeLists.txt") << Block("cmake", 0);
    std::ofstream(root + "/minimal_host.cpp") << Block("cpp", 0);
    for (int which : {0, 1}) {
        const std::string commands = Block("sh", which);
        ASSERT_NE(commands, "");
        std::ofstream(root + "/commands.sh")
            << "set -e\nexport ZX=" << root << "/zx CXXFLAGS='" ZX_CONSUMER_FLAGS "'\n"
            << "cd " << root << "\n"
            << commands;
        ASSERT_EQ(std::system(("sh " + root + "/commands.sh >" + log + " 2>&1").c_str()), 0)
            << Read(log);
        EXPECT_NE(Read(log).find("Baseline region 0, peak region 0, in 3 of 3 sweeps.\n"),
                  std::string::npos)
            << Read(log);
    }
    std::filesystem::remove_all(root);
}

TEST(Package, TheGuidesProgramsBuildAgainstAnInstallationAndRun) {
    const test_support::ScratchStore scratch;
    const std::string root = scratch.File("package");
    const std::string log = scratch.File("log.txt");
    const auto run = [&](const std::string& command) {
        return std::system((command + " >" + log + " 2>&1").c_str());
    };
    std::filesystem::create_directories(root + "/src");
    std::ofstream(root + "/src/CMakeLists.txt")
        << Block("cmake", 0) << Block("cmake", 1) << Block("cmake", 2);
    std::ofstream(root + "/src/minimal_host.cpp") << Block("cpp", 0);
    std::ofstream(root + "/src/curve_seeds.cpp") << Block("cpp", 1);
    std::ofstream(root + "/src/smooth_step.cpp") << Block("cpp", 2);
    ASSERT_EQ(run(ZX_CMAKE " --install " ZX_BINARY_DIR " --component ZxAnalysisDialogs --prefix " +
                  root + "/installed"),
              0)
        << Read(log);
    for (const char* file :
         {"include/ZXADLG.h", "include/zxadlg/DataOptions.h", "include/zxadlg/headless.h",
          "include/zxadlg/headless/names.h", "lib/libZXANALYSISDIALOGS.so", "lib/libZXHEADLESS.so",
          "include/zxadlg/CurveFit.h", "lib/libCURVEFIT.so", "include/zxadlg/Filter.h",
          "lib/libFILTER.so", "include/zxadlg/Graph.h", "lib/libGraphMT.so",
          "share/doc/zxanalysisdialogs/filters.md", "share/doc/zxanalysisdialogs/fit-functions.md",
          "share/doc/zxanalysisdialogs/seeds.md",
          "share/doc/zxanalysisdialogs/pictures/equations/eq_stdexp.svg",
          "share/doc/zxanalysisdialogs/hosting.md"})
        EXPECT_TRUE(std::filesystem::exists(root + "/installed/" + file)) << file;
    ASSERT_EQ(run(ZX_CMAKE " -S " + root + "/src -B " + root + "/build -DCMAKE_PREFIX_PATH=" +
                  root + "/installed -DCMAKE_CXX_FLAGS='" ZX_CONSUMER_FLAGS "'"),
              0)
        << Read(log);
    ASSERT_EQ(run(ZX_CMAKE " --build " + root + "/build"), 0) << Read(log);
    ASSERT_EQ(run(root + "/build/minimal_host --ok"), 0) << Read(log);
    EXPECT_EQ(Read(log), "Baseline region 0, peak region 0, in 3 of 3 sweeps.\n");
    ASSERT_EQ(run(root + "/build/curve_seeds"), 0) << Read(log);
    EXPECT_EQ(Read(log), "Exponential, standard: 80.0, 7.50 and -12.0\n");
    ASSERT_EQ(run(root + "/build/smooth_step"), 0) << Read(log);
    EXPECT_EQ(Read(log), "needs 11 points: 1.23, 6.51, 9.73\n");
    std::filesystem::remove_all(root);
}

}  // namespace
