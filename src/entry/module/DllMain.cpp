// What happens when the library comes and goes: nothing of it is left behind in the host's process.

#include "platform/platform.h"
#include "widgets/Framework.h"

extern "C" BOOL WINAPI DllMain(HINSTANCE, DWORD reason, LPVOID reserved) {
    // With the whole process ending there is nothing to clean up, and nothing left to do it with.
    if (reason == DLL_PROCESS_DETACH && reserved == nullptr) ShutDownDialogFramework();
    return TRUE;
}
