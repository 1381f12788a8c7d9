// The headless window system: the part of the Windows interface that the library uses, in memory.
#pragma once

#include "platform/headless/types.h"
// The declarations rest on the types.
#include "platform/headless/constants.h"
#include "platform/headless/functions.h"
