// What the parts of a combo box say to each other beyond the platform's messages.
#pragma once

#include "zxadlg/headless/types.h"

namespace headless {

// From the edit: a key that works on the list (wParam: the key). Non-zero if the key is used up.
inline constexpr UINT kComboListKey = 0x7F00;

// From the list: the index that was chosen when it opened.
inline constexpr UINT kComboChoiceAtOpening = 0x7F01;

}  // namespace headless
