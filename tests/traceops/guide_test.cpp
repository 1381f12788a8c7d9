// The guide to a new dialog shows lines of a real one.

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>

namespace {

std::string ReadTree(const std::string& path) {
    std::ifstream file(std::string(ZX_SOURCE_DIR) + "/" + path, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

TEST(Guide, ShowsTheLinesOfNormalizeAsTheyStand) {
    const std::string guide = ReadTree("docs/architecture.md");
    const std::string source = ReadTree("src/traceops/NormalizeDialog.cpp");
    ASSERT_NE(source, "");
    std::size_t at = guide.find("## Add a dialog");
    ASSERT_NE(at, std::string::npos);
    const std::string fence = "```cpp\n";
    std::size_t blocks = 0;
    while ((at = guide.find(fence, at)) != std::string::npos) {
        at += fence.size();
        const std::size_t end = guide.find("```", at);
        const std::string code = guide.substr(at, end - at);
        EXPECT_NE(source.find(code), std::string::npos) << code;
        at = end;
        ++blocks;
    }
    EXPECT_EQ(blocks, 3u);
}

}  // namespace
