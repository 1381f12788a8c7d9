// The stand-in filter library as a test holds it: a file beside the test program that FilterLibrary
// loads by its name as it does the real one, and its switches, which start from nothing.
//
//     FilterStandIn standIn;
//     standIn->uMinimum = 1001;
#pragma once

#include "StandInControl.h"
#include "fixtures/LoadedModule.h"

namespace sigproc_test {

class FilterStandIn {
  public:
    static constexpr const char* kFile = "FILTER_STANDIN.dll";
    static constexpr const char* kMissingFile = "FILTER_MISSING.dll";
    static constexpr const char* kFileWithoutExport = "FILTER_NOEXPORT.dll";

    FilterStandIn() { *m_pControl = {}; }

    FilterStandInControl* operator->() const { return m_pControl; }

  private:
    test_support::LoadedModule m_library{kFile};
    FilterStandInControl* m_pControl =
        m_library.Function<FilterStandInControl*()>(FILTER_STANDIN_CONTROL)();
};

}  // namespace sigproc_test
