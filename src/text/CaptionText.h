// Captions and messages that hold places for texts from outside, such as the host's noun.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "text/TextTemplate.h"

// Writes szTemplate with the first "%s" or "%d" replaced by szArgument, cut at the buffer's end.
// "%%" gives "%", any other conversion nothing; the argument stands as it is, whatever it holds.
// Null texts are empty.
void FormatCaption(char* szBuffer, int nSize, const char* szTemplate, const char* szArgument);
// The same for several: each "%s" or "%d" takes the next argument, or "%0" to "%9" the one of that
// number; one too many takes nothing.
void FormatCaption(char* szBuffer, int nSize, const char* szTemplate,
                   const std::vector<std::string>& vArguments,
                   TemplatePlaces ePlaces = TemplatePlaces::kConversions);

template <std::size_t N>
void FormatCaption(char (&szBuffer)[N], const char* szTemplate, const char* szArgument) {
    FormatCaption(szBuffer, static_cast<int>(N), szTemplate, szArgument);
}

// Copies a noun in lower case, for the middle of a caption.
void LowerNoun(char* szBuffer, int nSize, const char* szNoun);

template <std::size_t N>
void LowerNoun(char (&szBuffer)[N], const char* szNoun) {
    LowerNoun(szBuffer, static_cast<int>(N), szNoun);
}
