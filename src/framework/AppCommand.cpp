#include "framework/AppCommand.h"

UINT AppCommandMessage() {
    static const UINT uMessage = RegisterWindowMessageA("ZxoAppCommand");
    return uMessage;
}
