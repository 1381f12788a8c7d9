// Treats a text as a format string that has no arguments, safely.
//
// Some texts of the user are, by the rules of the dialogs, processed "as a format string". They
// must never be the format of a printf-family call: this expander does what is left of the meaning.
// `%%` gives
// `%`; a conversion (`%` with its flags, width, precision, size and letter) has no argument and
// gives nothing; every other character stands for itself. A `%` that starts no complete conversion
// gives nothing, and the character that broke it off is kept. No argument is read, nothing is
// written but the result, and a width such as `%99999d` makes no text.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace format_expander {

inline bool IsOneOf(char c, std::string_view set) {
    return set.find(c) != std::string_view::npos;
}

inline bool IsConversionLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

// One conversion at the start of `rest` (which begins with '%'): how many characters it takes, and
// whether it stands for a percent sign.
struct Conversion {
    std::size_t nLength;
    bool bPercent;
};

inline Conversion ReadConversion(std::string_view rest) {
    std::size_t i = 1;
    const auto skip = [&](std::string_view set) {
        while (i < rest.size() && IsOneOf(rest[i], set)) ++i;
    };
    skip("-+ #0'");
    skip("0123456789*");
    if (i < rest.size() && rest[i] == '.') {
        ++i;
        skip("0123456789*");
    }
    const std::string_view size = rest.substr(i);
    if (size.starts_with("I64") || size.starts_with("I32")) {
        i += 3;
    } else {
        skip("hlLjztqw");
    }
    if (i >= rest.size()) return {i, false};
    if (rest[i] == '%') return {i + 1, true};
    return {IsConversionLetter(rest[i]) ? i + 1 : i, false};
}

// Calls `put` for each character of the expansion.
template <class Put>
void Expand(std::string_view text, Put put) {
    for (std::size_t i = 0; i < text.size();) {
        if (text[i] != '%') {
            put(text[i++]);
            continue;
        }
        const Conversion conversion = ReadConversion(text.substr(i));
        if (conversion.bPercent) put('%');
        i += conversion.nLength;
    }
}

}  // namespace format_expander

// The expansion of `text`.
inline std::string ExpandWithoutArguments(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    format_expander::Expand(text, [&](char c) { result.push_back(c); });
    return result;
}

// Writes the expansion of `text` into a buffer of `nSize` characters, cut to fit and always
// terminated (a buffer of no characters is left alone). Returns the number of characters before the
// terminator.
inline std::size_t ExpandWithoutArguments(std::string_view text, char* pszBuffer,
                                          std::size_t nSize) {
    if (nSize == 0) return 0;
    std::size_t n = 0;
    format_expander::Expand(text, [&](char c) {
        if (n + 1 < nSize) pszBuffer[n++] = c;
    });
    pszBuffer[n] = '\0';
    return n;
}
