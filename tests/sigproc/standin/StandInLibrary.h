// The stand-in filter library as a test holds it: a file beside the test program that FilterLibrary
// loads by its name as it does the real one, and its switches, which start from nothing.
//
//     FilterStandIn standIn;
//     standIn->uMinimum = 1001;
#pragma once

#include "StandInControl.h"
#include "platform/platform.h"

namespace sigproc_test {

class FilterStandIn {
  public:
    static constexpr const char* kFile = "FILTER_STANDIN.dll";
    static constexpr const char* kMissingFile = "FILTER_MISSING.dll";
    static constexpr const char* kFileWithoutExport = "FILTER_NOEXPORT.dll";

    FilterStandIn() : m_hLibrary(LoadLibraryA(kFile)) {
        using Give = FilterStandInControl* (*)();
        m_pControl = reinterpret_cast<Give>(
            reinterpret_cast<void*>(GetProcAddress(m_hLibrary, FILTER_STANDIN_CONTROL)))();
        *m_pControl = {};
    }
    ~FilterStandIn() { FreeLibrary(m_hLibrary); }
    FilterStandIn(const FilterStandIn&) = delete;
    FilterStandIn& operator=(const FilterStandIn&) = delete;

    FilterStandInControl* operator->() const { return m_pControl; }

  private:
    HMODULE m_hLibrary;
    FilterStandInControl* m_pControl;
};

}  // namespace sigproc_test
