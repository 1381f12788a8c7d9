// Texts put together from a template, safely. A template has places that begin with a percent sign,
// in one of two notations; `%%` gives `%` in both, and every other character stands for itself.
//
// - Conversions, as in formats of the printf family: `%` with its flags, width, precision, size and
// letter. A `%`
//   that starts no complete conversion gives nothing, and the character that broke it off is kept.
// - Numbers: `%0` to `%9`. A `%` before anything else gives nothing.
//
// Who expands says what stands at each place. What stands there is not expanded again, no width
// makes any text, and no template, some of which are the user's, is ever the format of a
// printf-family call.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

enum class TemplatePlaces { kConversions, kNumbers };

namespace text_template {

// What begins with a '%': how many characters it takes, and the letter, digit or '%' that it ends
// with; 0 where it is broken off.
struct Mark {
    std::size_t nLength;
    char chEnd;
};

inline bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

inline Mark ReadNumber(std::string_view rest) {
    if (rest.size() > 1 && (IsDigit(rest[1]) || rest[1] == '%')) return {2, rest[1]};
    return {1, 0};
}

inline Mark ReadConversion(std::string_view rest) {
    std::size_t i = 1;
    const auto skip = [&](std::string_view set) {
        while (i < rest.size() && set.find(rest[i]) != std::string_view::npos) ++i;
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
    if (i >= rest.size()) return {i, 0};
    const char c = rest[i];
    if (c == '%' || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z')) return {i + 1, c};
    return {i, 0};
}

}  // namespace text_template

// Calls `put` for each character of the template that stands for itself and `place` for each
// complete place, with its letter or digit.
template <class Put, class Place>
void ExpandTemplate(std::string_view sTemplate, TemplatePlaces ePlaces, Put put, Place place) {
    for (std::size_t i = 0; i < sTemplate.size();) {
        if (sTemplate[i] != '%') {
            put(sTemplate[i++]);
            continue;
        }
        const std::string_view rest = sTemplate.substr(i);
        const text_template::Mark mark = ePlaces == TemplatePlaces::kNumbers
                                             ? text_template::ReadNumber(rest)
                                             : text_template::ReadConversion(rest);
        if (mark.chEnd == '%') {
            put('%');
        } else if (mark.chEnd != 0) {
            place(mark.chEnd);
        }
        i += mark.nLength;
    }
}

// A text of the user that is processed as a format with no arguments: its conversions give nothing.
inline std::string ExpandWithoutArguments(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    ExpandTemplate(
        text, TemplatePlaces::kConversions, [&](char c) { result.push_back(c); }, [](char) {});
    return result;
}

// The same into a buffer of `nSize` characters, cut to fit and always terminated (a buffer of no
// characters is left alone). Returns the number of characters before the terminator.
inline std::size_t ExpandWithoutArguments(std::string_view text, char* pszBuffer,
                                          std::size_t nSize) {
    if (nSize == 0) return 0;
    std::size_t n = 0;
    const auto put = [&](char c) {
        if (n + 1 < nSize) pszBuffer[n++] = c;
    };
    ExpandTemplate(text, TemplatePlaces::kConversions, put, [](char) {});
    pszBuffer[n] = '\0';
    return n;
}
