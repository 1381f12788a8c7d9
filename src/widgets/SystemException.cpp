#include "widgets/SystemException.h"

#include "text/BoundedText.h"

namespace {

struct CodeText {
    DWORD dwCode;
    const char* szText;
};

constexpr CodeText kTexts[] = {
    {EXCEPTION_DATATYPE_MISALIGNMENT,
     "The thread attempted to read or write data that is misaligned on hardware that does not "
     "provide "
     "alignment. For example, 16-bit values must be aligned on 2-byte boundaries, 32-bit values on "
     "4-byte "
     "boundaries, and so on."},
    {EXCEPTION_BREAKPOINT, "A breakpoint was encountered."},
    {EXCEPTION_SINGLE_STEP,
     "A trace trap or other single-instruction mechanism signaled that one instruction has been "
     "executed."},
    {EXCEPTION_ACCESS_VIOLATION,
     "The thread attempted to read from or write to a virtual address for which it does not have "
     "the "
     "appropriate access."},
    {EXCEPTION_NONCONTINUABLE_EXCEPTION,
     "The thread attempted to continue execution after a noncontinuable exception occurred."},
    {EXCEPTION_ARRAY_BOUNDS_EXCEEDED,
     "The thread attempted to access an array element that is out of bounds, and the underlying "
     "hardware "
     "supports bounds checking."},
    {EXCEPTION_FLT_DENORMAL_OPERAND,
     "One of the operands in a floating-point operation is denormal. A denormal value is one that "
     "is too "
     "small to represent as a standard floating-point value."},
    {EXCEPTION_FLT_DIVIDE_BY_ZERO,
     "The thread attempted to divide a floating-point value by a floating-point divisor of zero."},
    {EXCEPTION_FLT_INEXACT_RESULT,
     "The result of a floating-point operation cannot be represented exactly as a decimal "
     "fraction."},
    {EXCEPTION_FLT_INVALID_OPERATION,
     "This exception represents any floating-point exception not included in this list."},
    {EXCEPTION_FLT_OVERFLOW,
     "The exponent of a floating-point operation is greater than the magnitude allowed by the "
     "corresponding "
     "type."},
    {EXCEPTION_FLT_STACK_CHECK,
     "The stack overflowed or underflowed as the result of a floating-point operation."},
    {EXCEPTION_FLT_UNDERFLOW,
     "The exponent of a floating-point operation is less than the magnitude allowed by the "
     "corresponding "
     "type."},
    {EXCEPTION_INT_DIVIDE_BY_ZERO,
     "The thread attempted to divide an integer value by an integer divisor of zero."},
    {EXCEPTION_INT_OVERFLOW,
     "The result of an integer operation caused a carry out of the most significant bit of the "
     "result."},
    {EXCEPTION_PRIV_INSTRUCTION,
     "The thread attempted to execute an instruction whose operation is not allowed in the current "
     "machine "
     "mode."},
};

// The text of an unknown code, in capitals and with no leading zeros, in the one buffer that all
// share.
const char* UnknownCodeText(DWORD dwCode) {
    static char szUnknown[80];
    char szDigits[9];
    int nDigits = 0;
    do {
        szDigits[nDigits++] = "0123456789ABCDEF"[dwCode & 15];
        dwCode >>= 4;
    } while (dwCode != 0);
    BoundedWriter writer(szUnknown, sizeof szUnknown);
    writer.Put("Unknown exception code: 0x");
    while (nDigits > 0) writer.Put(szDigits[--nDigits]);
    writer.Put('.');
    return szUnknown;
}

}  // namespace

UINT ZDC_SystemException::GetMessage(LPSTR szBuffer, UINT nSize) const {
    if (szBuffer == nullptr || nSize == 0) return 0;
    for (const CodeText& entry : kTexts) {
        if (entry.dwCode == m_dwCode) {
            return static_cast<UINT>(CopyText(szBuffer, static_cast<int>(nSize), entry.szText));
        }
    }
    return static_cast<UINT>(
        CopyText(szBuffer, static_cast<int>(nSize), UnknownCodeText(m_dwCode)));
}

void ZDC_SystemException::Raise(DWORD dwCode) {
    throw ZDC_SystemException(dwCode);
}
