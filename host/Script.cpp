#include "Script.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>

#include "System.h"
#include "zxadlg/headless.h"

namespace zxhost {
namespace {

constexpr std::size_t kLargestScript = 1 << 20;

// What stands behind a verb: C a control, N a name, T a text or a number, K a key, M keys held (may
// be left out).
struct VerbRow {
    const char* name;
    Verb verb;
    const char* form;
    const char* usage;
};

constexpr VerbRow kVerbs[] = {
    {"tab", Verb::kTab, "T", "tab NAME"},
    {"click", Verb::kClick, "C", "click CONTROL"},
    {"choose", Verb::kChoose, "CTM", "choose CONTROL ITEM [+shift|+control]"},
    {"pick", Verb::kPick, "T", "pick ITEM"},
    {"type", Verb::kType, "CT", "type CONTROL TEXT"},
    {"press", Verb::kPress, "K", "press KEY"},
    {"focus", Verb::kFocus, "C", "focus CONTROL"},
    {"answer", Verb::kAnswer, "T", "answer BUTTON"},
    {"wait", Verb::kWait, "T", "wait MILLISECONDS"},
    {"ok", Verb::kOk, "", "ok"},
    {"cancel", Verb::kCancel, "", "cancel"},
    {"close", Verb::kClose, "", "close"},
};

constexpr VerbRow kExpectations[] = {
    {"message", Verb::kExpectMessage, "T", "expect message TEXT"},
    {"title", Verb::kExpectTitle, "T", "expect title TEXT"},
    {"tab", Verb::kExpectTab, "T", "expect tab NAME"},
    {"text", Verb::kExpectText, "CT", "expect text CONTROL TEXT"},
    {"chosen", Verb::kExpectChosen, "CT", "expect chosen CONTROL ITEM"},
    {"item", Verb::kExpectItem, "CT", "expect item CONTROL ITEM"},
    {"enabled", Verb::kExpectEnabled, "C", "expect enabled CONTROL"},
    {"disabled", Verb::kExpectDisabled, "C", "expect disabled CONTROL"},
    {"shown", Verb::kExpectShown, "C", "expect shown CONTROL"},
    {"hidden", Verb::kExpectHidden, "C", "expect hidden CONTROL"},
    {"checked", Verb::kExpectChecked, "C", "expect checked CONTROL"},
    {"unchecked", Verb::kExpectUnchecked, "C", "expect unchecked CONTROL"},
    {"focus", Verb::kExpectFocus, "C", "expect focus CONTROL"},
    {"record", Verb::kExpectRecord, "NT", "expect record FIELD VALUE"},
    {"store", Verb::kExpectStore, "NT", "expect store SECTION/KEY VALUE"},
};

struct KeyRow {
    const char* name;
    int key;
};

constexpr KeyRow kKeys[] = {
    {"tab", VK_TAB},       {"enter", VK_RETURN},   {"escape", VK_ESCAPE}, {"space", VK_SPACE},
    {"up", VK_UP},         {"down", VK_DOWN},      {"left", VK_LEFT},     {"right", VK_RIGHT},
    {"home", VK_HOME},     {"end", VK_END},        {"pageup", VK_PRIOR},  {"pagedown", VK_NEXT},
    {"delete", VK_DELETE}, {"backspace", VK_BACK}, {"f1", VK_F1},         {"f4", VK_F4},
};

std::string Lower(std::string text) {
    for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return text;
}

// A key's name with the keys held, as "Tab", "Shift+Tab", "Alt+o".
bool ParseKey(const std::string& text, Step* step) {
    std::string rest = Lower(text);
    while (true) {
        const std::size_t plus = rest.find('+');
        if (plus == std::string::npos || plus + 1 == rest.size()) break;
        const std::string held = rest.substr(0, plus);
        if (held == "shift") {
            step->held |= kHoldShift;
        } else if (held == "control" || held == "ctrl") {
            step->held |= kHoldControl;
        } else if (held == "alt") {
            step->held |= kHoldAlt;
        } else {
            return false;
        }
        rest.erase(0, plus + 1);
    }
    for (const KeyRow& row : kKeys) {
        if (rest == row.name) {
            step->key = row.key;
            return true;
        }
    }
    const bool letter = rest.size() == 1 && std::isalnum(static_cast<unsigned char>(rest[0]));
    if (letter) step->key = std::toupper(static_cast<unsigned char>(rest[0]));
    return letter;
}

// Splits a line into words; false for a quote that is not closed.
bool SplitLine(const std::string& line, std::vector<Word>* words) {
    std::size_t at = 0;
    while (true) {
        while (at < line.size() && (line[at] == ' ' || line[at] == '\t')) ++at;
        if (at == line.size() || line[at] == '#') return true;
        Word word;
        if (line[at] == '"') {
            word.quoted = true;
            bool closed = false;
            for (++at; at < line.size() && !closed; ++at) {
                if (line[at] == '"') {
                    closed = true;
                } else if (line[at] == '\\' && at + 1 < line.size()) {
                    ++at;
                    word.text += line[at] == 'n' ? '\n' : line[at];
                } else {
                    word.text += line[at];
                }
            }
            if (!closed) return false;
        } else {
            while (at < line.size() && line[at] != ' ' && line[at] != '\t') word.text += line[at++];
        }
        words->push_back(word);
    }
}

// Fills the step from the words behind the verb; gives what is wrong, or nothing.
std::string TakeWords(const VerbRow& row, const std::vector<Word>& words, Step* step) {
    const std::string usage = std::string("this should be \"") + row.usage + "\"";
    std::size_t at = 0;
    for (const char* form = row.form; *form; ++form) {
        if (*form == 'M') {
            for (; at < words.size(); ++at) {
                const std::string held = Lower(words[at].text);
                if (held == "+shift") {
                    step->held |= kHoldShift;
                } else if (held == "+control") {
                    step->held |= kHoldControl;
                } else {
                    return usage;
                }
            }
            continue;
        }
        if (at == words.size()) return usage;
        const Word& word = words[at++];
        if (*form == 'C') {
            step->field = !word.quoted && word.text == "field" && at < words.size();
            step->control = step->field ? words[at++] : word;
        }
        if (*form == 'N') step->name = word;
        if (*form == 'T') step->argument = word;
        if (*form == 'K') {
            step->argument = word;
            if (!ParseKey(word.text, step)) return "there is no key " + Describe(word);
        }
    }
    if (at != words.size()) return usage;
    if (row.verb == Verb::kWait && NumberOf(step->argument) < 0) return usage;
    return "";
}

}  // namespace

int NumberOf(const Word& word) {
    if (word.quoted || word.text.empty() || word.text.size() > 8) return -1;
    int number = 0;
    for (char c : word.text) {
        if (c < '0' || c > '9') return -1;
        number = number * 10 + (c - '0');
    }
    return number;
}

std::string Describe(const Word& word) {
    return word.quoted || NumberOf(word) < 0 ? "\"" + word.text + "\"" : word.text;
}

bool ParseScript(const std::string& text, const std::string& name, Script* script,
                 std::string* error) {
    Script read;
    read.name = name;
    const std::string wide = WrongEncoding(text);
    if (!wide.empty()) {
        *error = name + ": " + wide;
        return false;
    }
    std::size_t at = text.compare(0, 3, "\xEF\xBB\xBF") == 0 ? 3 : 0;
    for (int number = 1; at < text.size(); ++number) {
        const std::size_t end = std::min(text.find('\n', at), text.size());
        std::string line = text.substr(at, end - at);
        at = end + 1;
        if (!line.empty() && line.back() == '\r') line.pop_back();
        const auto fail = [&](const std::string& why) {
            *error = name + ":" + std::to_string(number) + ": " + why;
            return false;
        };
        if (line.find('\0') != std::string::npos) return fail("this is not a text file");
        const std::size_t place = FindWrongByte(line);
        if (place != std::string::npos) {
            return fail("the byte at place " + std::to_string(place + 1) +
                        " is not UTF-8; save the script as UTF-8");
        }
        std::vector<Word> words;
        if (!SplitLine(line, &words)) return fail("a quote is not closed");
        if (words.empty()) continue;
        Step step;
        step.line = number;
        step.source = line.substr(line.find_first_not_of(" \t"));
        const bool expects = words.size() > 1 && words[0].text == "expect";
        const VerbRow* found = nullptr;
        const std::string verb = words[expects ? 1 : 0].text;
        const auto search = [&](const auto& rows) {
            for (const VerbRow& row : rows) {
                if (verb == row.name) found = &row;
            }
        };
        if (expects) {
            search(kExpectations);
        } else {
            search(kVerbs);
        }
        if (found == nullptr) {
            return fail(expects ? "nothing is known to expect of \"" + verb + "\""
                                : "\"" + verb + "\" is no step");
        }
        words.erase(words.begin(), words.begin() + (expects ? 2 : 1));
        step.verb = found->verb;
        const std::string wrong = TakeWords(*found, words, &step);
        if (!wrong.empty()) return fail(wrong);
        read.steps.push_back(std::move(step));
    }
    if (read.steps.empty()) {
        *error = name + ": the script has no steps";
        return false;
    }
    *script = std::move(read);
    return true;
}

bool ReadScript(const std::string& path, Script* script, std::string* error) {
    if (path == "-") {
        const std::string text((std::istreambuf_iterator<char>(std::cin)),
                               std::istreambuf_iterator<char>());
        return ParseScript(text, "standard input", script, error);
    }
    std::error_code code;
    if (std::filesystem::is_directory(PathOf(path), code)) {
        *error = path + ": this is a folder, not a script";
        return false;
    }
    std::ifstream file(PathOf(path), std::ios::binary);
    if (!file) {
        *error = path + ": the script cannot be opened";
        return false;
    }
    const std::string text((std::istreambuf_iterator<char>(file)),
                           std::istreambuf_iterator<char>());
    if (text.size() > kLargestScript) {
        *error = path + ": the script is larger than 1 MB";
        return false;
    }
    return ParseScript(text, path, script, error);
}

}  // namespace zxhost
