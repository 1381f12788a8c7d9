// The sentences for the exception codes of the platform.

#include <gtest/gtest.h>

#include <cstring>

#include "widgets/SystemException.h"

namespace {

struct CodeCase {
    DWORD dwCode;
    const char* szText;
};

constexpr CodeCase kCases[] = {
    {0x80000002,
     "The thread attempted to read or write data that is misaligned on hardware that does not "
     "provide alignment. For example, 16-bit values must be aligned on 2-byte boundaries, 32-bit "
     "values on 4-byte boundaries, and so on."},
    {0x80000003, "A breakpoint was encountered."},
    {0x80000004,
     "A trace trap or other single-instruction mechanism signaled that one instruction has been "
     "executed."},
    {0xC0000005,
     "The thread attempted to read from or write to a virtual address for which it does not have "
     "the appropriate access."},
    {0xC0000025,
     "The thread attempted to continue execution after a noncontinuable exception occurred."},
    {0xC000008C,
     "The thread attempted to access an array element that is out of bounds, and the underlying "
     "hardware supports bounds checking."},
    {0xC000008D,
     "One of the operands in a floating-point operation is denormal. A denormal value is one that "
     "is too small to represent as a standard floating-point value."},
    {0xC000008E,
     "The thread attempted to divide a floating-point value by a floating-point divisor of zero."},
    {0xC000008F,
     "The result of a floating-point operation cannot be represented exactly as a decimal "
     "fraction."},
    {0xC0000090,
     "This exception represents any floating-point exception not included in this list."},
    {0xC0000091,
     "The exponent of a floating-point operation is greater than the magnitude allowed by the "
     "corresponding type."},
    {0xC0000092,
     "The stack overflowed or underflowed as the result of a floating-point operation."},
    {0xC0000093,
     "The exponent of a floating-point operation is less than the magnitude allowed by the "
     "corresponding type."},
    {0xC0000094, "The thread attempted to divide an integer value by an integer divisor of zero."},
    {0xC0000095,
     "The result of an integer operation caused a carry out of the most significant bit of the "
     "result."},
    {0xC0000096,
     "The thread attempted to execute an instruction whose operation is not allowed in the current "
     "machine mode."},
    {0xC000001D, "Unknown exception code: 0xC000001D."},
    {0x1F, "Unknown exception code: 0x1F."},
    {0, "Unknown exception code: 0x0."},
};

TEST(SystemException, EveryCodeHasItsText) {
    for (const CodeCase& row : kCases) {
        SCOPED_TRACE(row.dwCode);
        char szText[512];
        EXPECT_EQ(ZDC_SystemException(row.dwCode).GetMessage(szText, sizeof szText),
                  std::strlen(row.szText));
        EXPECT_STREQ(szText, row.szText);
    }
}

TEST(SystemException, TextIsCutToTheBuffer) {
    char szText[8];
    EXPECT_EQ(ZDC_SystemException(0x80000003).GetMessage(szText, sizeof szText), 7u);
    EXPECT_STREQ(szText, "A break");
}

TEST(SystemException, NullBufferOrSizeOfZeroGivesZero) {
    char szText[8] = "kept";
    EXPECT_EQ(ZDC_SystemException(0x80000003).GetMessage(nullptr, 10), 0u);
    EXPECT_EQ(ZDC_SystemException(0x80000003).GetMessage(szText, 0), 0u);
    EXPECT_STREQ(szText, "kept");
}

TEST(SystemException, RaisingThrowsTheCode) {
    try {
        ZDC_SystemException::Raise(0xC0000094);
    } catch (const ZDC_SystemException& exception) {
        EXPECT_EQ(exception.GetCode(), 0xC0000094u);
        return;
    }
    FAIL() << "nothing was thrown";
}

}  // namespace
