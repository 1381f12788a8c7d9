// What the shared objects give away: their contract and nothing of their insides.
#include <gtest/gtest.h>

#include <array>
#include <cctype>
#include <cstdio>
#include <fstream>
#include <set>
#include <string>

namespace {

// The names that a list has one of on each line, but for comments and headings.
std::set<std::string> Listed(const std::string& path, const std::string& begin) {
    std::ifstream file(ZX_SOURCE_DIR "/" + path);
    std::set<std::string> names;
    for (std::string line; std::getline(file, line);) {
        const std::size_t at = line.find_first_not_of(' ');
        if (at == std::string::npos || line[at] == '#') continue;
        if (line.compare(at, begin.size(), begin) == 0) names.insert(line.substr(at));
    }
    return names;
}

// The functions and objects that a library in the build folder defines for others, without their
// parameters.
std::set<std::string> Exported(const std::string& library) {
    const std::string command =
        ZX_NM " -D -C --defined-only " ZX_BINARY_DIR "/bin/lib" + library + ".so";
    std::FILE* pipe = popen(command.c_str(), "r");
    std::set<std::string> names;
    std::array<char, 4096> line{};
    while (pipe != nullptr && std::fgets(line.data(), line.size(), pipe) != nullptr) {
        std::string text = line.data();
        const std::size_t kind = text.find(' ');
        std::string name = text.substr(kind + 3, text.find_last_not_of('\n') - kind - 2);
        name = name.substr(0, name.find_first_of("([@"));
        names.insert(name);
    }
    if (pipe != nullptr) pclose(pipe);
    return names;
}

TEST(Exports, OfTheModuleAreTheShowFunctions) {
    const auto listed = Listed("src/entry/module/show_functions.def.in", "ZXADLG_");
    EXPECT_GE(listed.size(), 10u);
    EXPECT_EQ(listed, Exported("ZXANALYSISDIALOGS"));
}

TEST(Exports, OfTheCurveFitLibraryIsOne) {
    // With its version, the part of the name behind the at sign.
    EXPECT_EQ(Exported("CURVEFIT"), (std::set<std::string>{"_CFIT_CreateCurveFit", "4"}));
}

TEST(Exports, OfTheGraphLibraryAreItsNumbers) {
    std::set<std::string> numbers;
    for (const int n : {1000, 1002, 1013, 1014, 1018, 1021, 1036, 1039, 1043, 1044, 1054, 1058})
        numbers.insert("Ordinal" + std::to_string(n));
    EXPECT_EQ(Exported("GraphMT"), numbers);
}

TEST(Exports, OfTheFilterLibraryAreItsNumbers) {
    EXPECT_EQ(Exported("FILTER"), (std::set<std::string>{"Ordinal1000", "Ordinal1001"}));
}

TEST(Exports, OfTheWindowSystemAreWhatItsHeadersDeclare) {
    const auto listed = Listed("src/platform/headless/exports.txt", "");
    EXPECT_EQ(1u, listed.count("CreateWindowExA"));
    EXPECT_EQ(1u, listed.count("headless::InjectKey"));
    EXPECT_EQ(listed, Exported("ZXHEADLESS"));
}

}  // namespace
