// Counts what the program allocates with operator new.
#pragma once

#include <cstddef>

std::size_t AllocationCount();
