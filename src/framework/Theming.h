// Whether the application is drawn with the user's theme, which needs version 6 of the common
// controls.
#pragma once

// Dialogs are themed: a theme is active and this application takes part in it.
bool IsDialogThemingActive();

// The same, with version 6 of the common controls loaded.
bool IsThemedWithCommonControls6();
