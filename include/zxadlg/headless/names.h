// The headless window system: the part of the Windows interface that the library uses, in memory.
#pragma once

#include "zxadlg/headless/types.h"
// The declarations rest on the types.
#include "zxadlg/headless/constants.h"
#include "zxadlg/headless/functions.h"
