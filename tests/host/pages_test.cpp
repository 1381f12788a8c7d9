// The command lines and scripts of the README and of docs/automation.md, taken from the pages and
// run.
#include <filesystem>
#include <map>
#include <sstream>

#include "host_test.h"

namespace {

constexpr char kSource[] = ZX_SOURCE_DIR;

// What stands indented by four in a page: blocks of lines.
std::vector<std::vector<std::string>> IndentedBlocks(const std::string& page) {
    std::vector<std::vector<std::string>> blocks(1);
    std::istringstream lines(page);
    for (std::string line; std::getline(lines, line);) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        if (line.rfind("    ", 0) == 0) {
            blocks.back().push_back(line.substr(4));
        } else if (!line.empty() && !blocks.back().empty()) {
            blocks.emplace_back();
        }
    }
    return blocks;
}

// The words of a command line as a shell makes them.
std::vector<std::string> Words(const std::string& line) {
    std::vector<std::string> words;
    bool quoted = false, open = false;
    for (char c : line) {
        if (c == '"') {
            quoted = !quoted;
            if (!open) words.emplace_back();
        } else if (c == ' ' && !quoted) {
            open = false;
            continue;
        } else {
            if (!open) words.emplace_back();
            words.back() += c;
        }
        open = true;
    }
    return words;
}

class Pages : public host_test::HostTest {
  protected:
    // Files that the pages speak of: thirteen sweeps of 200 ms, and a control.
    void SetUp() override {
        std::string rows = "Time (ms)";
        for (int sweep = 1; sweep <= 13; ++sweep) rows += ",Im " + std::to_string(sweep) + " (pA)";
        rows += "\n";
        for (int i = 0; i < 200; ++i) {
            rows += std::to_string(i);
            for (int sweep = 0; sweep < 13; ++sweep) rows += "," + std::to_string(i % 9 + sweep);
            rows += "\n";
        }
        files = {{"cell.csv", WriteFile("cell.csv", rows)},
                 {"leak.csv", WriteFile("leak.csv", "ms,Im (pA)\n0,1.5\n1,2\n")},
                 {"steps.txt", WriteFile("steps.txt", "cancel\n")},
                 {"settings.ini", scratch.File("settings.ini")},
                 {"host/examples/normalize.script",
                  std::string(kSource) + "/host/examples/normalize.script"}};
    }

    // Runs every line of a page that calls the program; gives how many.
    int RunLines(const std::string& page) {
        int count = 0;
        for (const auto& block : IndentedBlocks(ReadFile(std::string(kSource) + "/" + page))) {
            for (const std::string& line : block) {
                std::vector<std::string> words = Words(line);
                const std::string program = words.empty() ? "" : words[0];
                if (std::filesystem::path(program).filename() != "zxhost") continue;
                ++count;
                words.erase(words.begin());
                for (std::string& word : words) {
                    const auto file = files.find(word);
                    if (file != files.end()) word = file->second;
                }
                EXPECT_EQ(Run(words), zxhost::kDone) << line << "\n" << err;
            }
        }
        return count;
    }

    std::map<std::string, std::string> files;
};

TEST_F(Pages, TheCommandLinesOfTheReadmeRun) {
    EXPECT_GE(RunLines("README.md"), 2);
}

TEST_F(Pages, TheCommandLinesOfTheGuideToScriptsRun) {
    EXPECT_GE(RunLines("docs/automation.md"), 10);
}

TEST_F(Pages, TheScriptsOfTheGuideRun) {
    // By their first lines: the analysis that each is for.
    const std::map<std::string, std::vector<std::string>> kAnalyses = {
        {"expect title \"Normalize\"", {"normalize"}},
        {"tab Function", {"curve-fit"}},
        {"expect message \"Current/voltage analysis applies to waveform stimulus files only.\"",
         {"current-voltage", "--recording", "no-waveform"}}};
    std::size_t count = 0;
    for (const auto& block :
         IndentedBlocks(ReadFile(std::string(kSource) + "/docs/automation.md"))) {
        if (block.empty() || kAnalyses.count(block[0]) == 0) continue;
        ++count;
        std::string script;
        for (const std::string& line : block) script += line + "\n";
        std::vector<std::string> arguments = {"run"};
        const std::vector<std::string>& rest = kAnalyses.at(block[0]);
        arguments.insert(arguments.end(), rest.begin(), rest.end());
        arguments.insert(arguments.end(), {"--script", WriteFile("block.txt", script)});
        EXPECT_EQ(Run(arguments), zxhost::kDone) << err;
    }
    EXPECT_EQ(count, kAnalyses.size());
}

}  // namespace
