#include "platform/headless/controls/word_breaks.h"

namespace headless {

namespace {

// The characters by what they do at the end of a line; those not named are letters.
enum class Kind {
    kLetter,
    kDigit,
    kBlank,
    kHyphen,
    kSlash,
    kComma,   // and the other marks that hold a number or a clause together
    kPrefix,  // stands before a number
    kSuffix,  // stands behind one
    kOpen,
    kClose,
    kBrace,  // closes, and a letter behind it is another word
    kExclamation,
    kQuote,
    kBar,
};

Kind KindOf(char c) {
    switch (c) {
        case ' ':
        case '\t':
        case '\r':
        case '\n':
            return Kind::kBlank;
        case '-':
            return Kind::kHyphen;
        case '/':
            return Kind::kSlash;
        case ',':
        case '.':
        case ':':
        case ';':
            return Kind::kComma;
        case '$':
        case '+':
        case '\\':
            return Kind::kPrefix;
        case '%':
            return Kind::kSuffix;
        case '(':
        case '[':
        case '{':
            return Kind::kOpen;
        case ')':
        case ']':
            return Kind::kClose;
        case '}':
            return Kind::kBrace;
        case '!':
        case '?':
            return Kind::kExclamation;
        case '"':
        case '\'':
            return Kind::kQuote;
        case '|':
            return Kind::kBar;
        default:
            return c >= '0' && c <= '9' ? Kind::kDigit : Kind::kLetter;
    }
}

bool IsWordCharacter(Kind kind) {
    return kind == Kind::kLetter || kind == Kind::kDigit;
}

bool BreaksBetween(Kind before, Kind after) {
    switch (after) {
        // Never at the begin of a word.
        case Kind::kBlank:
        case Kind::kSlash:
        case Kind::kComma:
        case Kind::kClose:
        case Kind::kBrace:
        case Kind::kExclamation:
            return false;
        default:
            break;
    }
    if (before == Kind::kBlank) return true;
    switch (after) {
        case Kind::kHyphen:
        case Kind::kQuote:
        case Kind::kBar:
            return false;
        case Kind::kPrefix:
        case Kind::kSuffix:
            return before != Kind::kDigit && before != Kind::kOpen && before != Kind::kClose &&
                   before != Kind::kBrace && before != Kind::kQuote;
        case Kind::kOpen:
            return !IsWordCharacter(before) && before != Kind::kOpen && before != Kind::kQuote &&
                   before != Kind::kPrefix && before != Kind::kSuffix;
        case Kind::kDigit:
            return before == Kind::kBrace || before == Kind::kExclamation || before == Kind::kBar;
        default:
            return before == Kind::kHyphen || before == Kind::kSlash || before == Kind::kBrace ||
                   before == Kind::kExclamation || before == Kind::kBar;
    }
}

}  // namespace

bool IsWordStart(std::string_view text, std::size_t index) {
    if (index == 0 || index >= text.size()) return true;
    // What stands behind an opening bracket belongs to it, with the blanks between.
    const std::size_t last = text.substr(0, index).find_last_not_of(" \t\r\n");
    if (last != std::string_view::npos && KindOf(text[last]) == Kind::kOpen) return false;
    return BreaksBetween(KindOf(text[index - 1]), KindOf(text[index]));
}

}  // namespace headless
