// Every caption of every template, to the letter and under its id. captions.txt gives them: the id
// of a template in brackets, and below it a line for each text in the template's order, the title
// with the id 0, labels and group boxes that the code never speaks to with the id -1.

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "TemplateBytes.h"

namespace {

using Captions = std::vector<std::pair<int, std::string>>;

// The line end and letters beyond ASCII stand as in a string of the code.
std::string Unescaped(const std::string& text) {
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text.compare(i, 2, "\\n") == 0) {
            plain += '\n';
            i += 1;
        } else if (text.compare(i, 2, "\\x") == 0) {
            plain += static_cast<char>(std::stoi(text.substr(i + 2, 2), nullptr, 16));
            i += 3;
        } else {
            plain += text[i];
        }
    }
    return plain;
}

std::map<int, Captions> GivenCaptions() {
    std::map<int, Captions> given;
    std::ifstream file(ZX_SOURCE_DIR "/tests/resources/captions.txt");
    Captions* pCaptions = nullptr;
    for (std::string line; std::getline(file, line);) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        if (line[0] == '[') {
            pCaptions = &given[std::stoi(line.substr(1))];
            continue;
        }
        const std::size_t uEnd = line.find(' ');
        pCaptions->emplace_back(std::stoi(line), Unescaped(line.substr(uEnd + 1)));
    }
    return given;
}

TEST(Captions, StandAsTheyAreGiven) {
    std::map<int, Captions> seen;
    for (const TemplateBytes& dialog : ReadTemplates()) {
        Captions& captions = seen[dialog.id];
        if (!dialog.caption.empty()) captions.push_back({0, dialog.caption});
        for (const TemplateItem& item : dialog.items) {
            // A field starts with a value, which is no caption.
            if (!item.text.empty() && item.kind != "EDIT") captions.push_back({item.id, item.text});
        }
    }
    const std::map<int, Captions> given = GivenCaptions();
    for (const auto& [id, captions] : given) {
        SCOPED_TRACE(id);
        EXPECT_EQ(seen[id], captions);
    }
    EXPECT_EQ(seen.size(), given.size());
}

}  // namespace
