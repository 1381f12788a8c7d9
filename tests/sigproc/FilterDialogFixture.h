// The filter dialog over the recording of the other tests, and what a message of it is.
#pragma once

#include "SigprocTest.h"
#include "sigproc/FilterDialog.h"

namespace sigproc_test {

class FilterDialogTest : public SigprocDialogTest<CFilterDialog, FilterOptions> {
  protected:
    std::unique_ptr<CFilterDialog> Make() override {
        return std::make_unique<CFilterDialog>(nullptr, &options, &data, &source, &params, library);
    }

    // There is none of this name, so that no number of points is too small.
    static constexpr const char* kNoLibrary = "FILTER_MISSING.dll";
    const char* library = "FILTER.dll";
};

}  // namespace sigproc_test
