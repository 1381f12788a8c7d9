// What the public header declares is what the module exports.
#include <cctype>
#include <set>

#include "host_test.h"

namespace {

// The Show functions that a text names.
std::set<std::string> ShowFunctions(const std::string& text) {
    const std::string begin = "ZXADLG_Show";
    std::set<std::string> names;
    for (std::size_t at = text.find(begin); at != std::string::npos;
         at = text.find(begin, at + 1)) {
        std::size_t end = at;
        while (end < text.size() &&
               (std::isalnum(static_cast<unsigned char>(text[end])) != 0 || text[end] == '_'))
            ++end;
        names.insert(text.substr(at, end - at));
    }
    return names;
}

class ModuleExports : public host_test::HostTest {};

TEST_F(ModuleExports, NameEveryShowFunctionOfTheHeader) {
    const std::string source = ZX_SOURCE_DIR;
    const auto declared = ShowFunctions(ReadFile(source + "/include/ZXADLG.h"));
    // Two of the analyses are forms of one function.
    EXPECT_GE(declared.size() + 1, zxhost::kAnalyses.size());
    EXPECT_EQ(declared,
              ShowFunctions(ReadFile(source + "/src/entry/module/show_functions.def.in")));
}

}  // namespace
