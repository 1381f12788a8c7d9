// Paths shortened for display: "C:\...\runs\step.dat".
//
// A path is first made full. One inside the user's documents folder is shown from that folder's
// name on, any other from its drive, or from the server and share of a network path. `szOut` has
// room for `nMax` characters and a final zero.
#pragma once

#include "platform/platform.h"

// Fits a path into `nMax` characters: whole if it fits, else with leading folders replaced by
// "\...", else the file name alone. The result is empty when not even that fits. Returns whether
// there is one.
bool ShortenPath(const char* szPath, char* szOut, int nMax);

// The same with a width in the device context's units as well. When nothing fits, the file name is
// cut from its end until it does.
bool ShortenPathToWidth(HDC hDC, const char* szPath, char* szOut, int nMax, int nWidth);
