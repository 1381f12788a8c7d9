// What the curve fit dialog remembers as long as the process lives, beside its last page.
#pragma once

struct FitMemory {
    bool bOpenedBefore = false;         // an OK has succeeded
    bool bLastNotColumnSource = false;  // what it was for
};

FitMemory& RememberedFit();
// As in a process that has opened none; the last pages of all dialogs go with it.
void ForgetFit();
