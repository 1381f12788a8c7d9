// The messages that a failed check shows. A code stands for a template; codes come in families of a
// value type, with a form that names the field and, 10 higher, a form that does not.
//
// Sizes are in bytes with the final zero; texts are cut at the buffer's end.
#pragma once

#include <cstdint>
#include <initializer_list>

// What a check failed on.
enum ValidationReason : std::int32_t {
    kReasonRange = 1,
    kReasonList = 2,
};

// The families: the code of their range message with a field name; the list message is one higher.
enum ValidationFamily : int {
    kIntegerFamily = 1,
    kLongFamily = 21,
    kFloatFamily = 41,
    kTextFamily = 61,
    kDoubleFamily = 81,
};

constexpr int kUnnamedField = 10;  // added to a code for a field with no name

// Copies the template of a code and returns 1; an unknown code gives an empty text and 0.
std::int32_t ValidationMessage(int nCode, char* szBuffer, int nSize);

// Writes the message of a code with its arguments, in the template's order, as text. A message with
// a field name takes it as its first argument.
void WriteValidationMessage(int nCode, char* szMsg, int nMsgSize,
                            std::initializer_list<const char*> args);

// The message of a range check; a null field gives the form without a name.
void WriteRangeMessage(ValidationFamily family, const char* szField, const char* szMin,
                       const char* szMax, char* szMsg, int nMsgSize);

// The message of a list check.
void WriteListMessage(ValidationFamily family, const char* szField, char* szMsg, int nMsgSize);
