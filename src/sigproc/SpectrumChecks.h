// What the power spectrum dialog refuses at OK, in its order. Plain functions over the record and
// the data; no window. What is not known is not checked.
#pragma once

#include <functional>

#include "contract/Finding.h"
#include "sigproc/SpectrumLengths.h"

// The length fits into the points, or becomes one that does: `setLength` stores and shows it.
CheckResult CheckTransformLength(const SpectrumOptions& options, const SpectrumSignal& signal,
                                 std::function<void(std::uint32_t)> setLength);
// There are no more segments than can be displayed.
CheckResult CheckSegments(const SpectrumOptions& options, const SpectrumSignal& signal);
