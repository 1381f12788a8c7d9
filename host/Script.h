// The script language: plain lines, one step each. docs/automation.md tells it.
#pragma once

#include <string>
#include <vector>

namespace zxhost {

enum class Verb {
    kTab,
    kClick,
    kChoose,
    kPick,
    kType,
    kPress,
    kFocus,
    kAnswer,
    kWait,
    kOk,
    kCancel,
    kClose,
    kExpectMessage,
    kExpectTitle,
    kExpectTab,
    kExpectText,
    kExpectChosen,
    kExpectItem,
    kExpectEnabled,
    kExpectDisabled,
    kExpectShown,
    kExpectHidden,
    kExpectChecked,
    kExpectUnchecked,
    kExpectFocus,
    kExpectRecord,
    kExpectStore,
};

// A word of a line; what stood in quotes is text and never a number.
struct Word {
    std::string text;
    bool quoted = false;
};

// Keys held down.
enum Held : unsigned { kHoldNone = 0, kHoldShift = 1, kHoldControl = 2, kHoldAlt = 4 };

struct Step {
    int line = 0;
    Verb verb = Verb::kOk;
    std::string source;  // the line as it stands
    Word control;        // an id or a caption; empty where the verb has none
    bool field = false;  // the caption is that of a button, and the field behind it is meant
    Word name;           // of a field of a record or a key of the store
    Word argument;       // text, item, key, button or time
    int key = 0;         // of kPress: a VK_* number
    unsigned held = 0;   // of kPress and kChoose
};

struct Script {
    std::string name;  // of the file, for messages
    std::vector<Step> steps;
};

// On failure false with "NAME:LINE: what is wrong" for the first wrong line.
bool ParseScript(const std::string& text, const std::string& name, Script* script,
                 std::string* error);
// From a file, or from the standard input as "-".
bool ReadScript(const std::string& path, Script* script, std::string* error);

// The number that a word without quotes stands for, or -1.
int NumberOf(const Word& word);

// "2364", or the caption in quotes.
std::string Describe(const Word& word);

}  // namespace zxhost
