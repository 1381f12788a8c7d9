// The numbers of the platform that the library uses, one header per family. As the platform's own
// macros, each is a plain int where its value fits one, so that comparisons mean the same on both
// systems.
#pragma once

#include "zxadlg/headless/constants/controls.h"
#include "zxadlg/headless/constants/dialogs.h"
#include "zxadlg/headless/constants/drawing.h"
#include "zxadlg/headless/constants/keys.h"
#include "zxadlg/headless/constants/menus.h"
#include "zxadlg/headless/constants/messages.h"
#include "zxadlg/headless/constants/metrics.h"
#include "zxadlg/headless/constants/system.h"
#include "zxadlg/headless/constants/windowing.h"
