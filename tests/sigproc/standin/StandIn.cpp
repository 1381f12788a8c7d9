// A filter library that can be told what to answer.

#include "CreateFilter.h"
#include "StandInControl.h"

namespace {

sigproc_test::FilterStandInControl control{};

class StandIn final : public ZXADLG_CFilter {
  public:
    StandIn() { ++control.uAlive; }
    uint32_t GetMinimumPoints() override { return control.uMinimum; }
    int32_t FilterArray(double*, uint32_t) override { return 0; }
    int32_t GetErrorText(char*, uint32_t) override { return 0; }
    void Release() { delete this; }

  private:
    ~StandIn() { --control.uAlive; }
};

}  // namespace

extern "C" sigproc_test::FilterStandInControl* FilterStandInControl() {
    return &control;
}

ZXADLG_CFilter* filter::CreateFilter(const FilterOptions* options) {
    ++control.uMade;
    control.record = *options;
    return control.bNoObject != 0 ? nullptr : new StandIn;
}

void filter::ReleaseFilter(ZXADLG_CFilter* pFilter) {
    if (pFilter != nullptr) static_cast<StandIn*>(pFilter)->Release();
}
