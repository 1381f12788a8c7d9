// What the dialogs of signal processing and a filter library agree on: the two exported functions
// and the table of the object that the library makes.
//
// The library exports by number: 1000 makes a filter object from a record, 1001 releases it. With
// GetProcAddress that is MAKEINTRESOURCEA(ZXADLG_FILTER_CREATE). On systems without numbered
// exports number N is the exported name "OrdinalN", so "Ordinal1000" and "Ordinal1001", which the
// headless window system's GetProcAddress maps by itself.
//
// The record is read during the call of 1000 alone: the sample interval in microseconds, and the
// four sections with frequencies in hertz. Every record gives an object, a wrong one as well; what
// is wrong is told when data are to be filtered. Null comes back for a null record and without
// memory. An object keeps nothing between two calls, serves one thread at a time, and is ended by
// 1001 alone, which takes null for nothing to do. Nothing is thrown across.
#pragma once

#include <stdint.h>

#include "zxadlg/SignalProcessingOptions.h"

// A place of the table that nobody calls. In the platform vendor's tables the first one may be the
// destructor.
#define ZXADLG_FILTER_UNUSED(place)     \
    virtual int32_t Reserved##place() { \
        return 0;                       \
    }

// The object. Its table has one place for each operation below, in this order, in every compiler.
class ZXADLG_CFilter {
  public:
    ZXADLG_FILTER_UNUSED(0)
    ZXADLG_FILTER_UNUSED(1)
    ZXADLG_FILTER_UNUSED(2)
    ZXADLG_FILTER_UNUSED(3)
    ZXADLG_FILTER_UNUSED(4)
    ZXADLG_FILTER_UNUSED(5)
    // Place 6: the smallest number of points that the filters of the record accept, from 1 to
    // 2147483647. The largest of the selected sections' counts; a section whose frequency or sample
    // interval is not above 0 asks for 1 point, since no count is right for it.
    virtual uint32_t GetMinimumPoints() = 0;
    // Place 7: puts `nPoints` values of equal distance through the selected sections, in place, as
    // one uninterrupted trace: lowpass, highpass and notch in ascending uApplyOrder, in this order
    // where that is equal, and interference last. Nonzero on success. 0, and the values untouched,
    // where place 8 has a text: a null pointer, fewer points than place 6 asks for, a value that is
    // not finite or beyond 1e100, a record that describes no filter, no memory. A record with no
    // section selected changes nothing and succeeds.
    virtual int32_t FilterArray(double* values, uint32_t nPoints) = 0;
    // Place 8: why the last FilterArray failed, 8-bit, cut to `size` with its zero; empty when it
    // did not. 0 without a buffer.
    virtual int32_t GetErrorText(char* text, uint32_t size) = 0;

  protected:
    ~ZXADLG_CFilter() = default;
};
#undef ZXADLG_FILTER_UNUSED

// The exported functions by number.
#define ZXADLG_FILTER_CREATE 1000
#define ZXADLG_FILTER_RELEASE 1001
#if defined(_WIN32)
#define ZXADLG_FILTER_CALL __stdcall
#else
#define ZXADLG_FILTER_CALL
#endif
typedef ZXADLG_CFilter*(ZXADLG_FILTER_CALL* ZXADLG_CreateFilter)(const FilterOptions* options);
typedef void(ZXADLG_FILTER_CALL* ZXADLG_ReleaseFilter)(ZXADLG_CFilter* filter);
