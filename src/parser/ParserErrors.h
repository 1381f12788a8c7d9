// The fixed English message of every parser error, and the module-wide bad word that one of them
// names.
//
// The bad word is written by the scan of an arithmetic expression only, so the message of a failed
// compilation shows whichever word an earlier scan left. Texts handed back are internal: copy or
// show them before the next call. Unguarded: all calls come on the dialog's thread.
#pragma once

// The message of an error code; an unknown code, 0 included, gives "Unknown error code: 0x...".
const char* ParserErrorText(int nError);

// Stores the bad word: at most 259 characters of the text.
void SetBadWord(const char* pszText);
