// The peer: the same templates through the platform's own calls, with the same values shown and
// nothing checked, remembered or told.
#pragma once

// Opens the dialog, shows it, and closes it by Cancel.
void OpenAndCloseBare();
