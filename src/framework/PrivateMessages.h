// The window messages that dialogs and controls of this framework send each other, and the codes
// that text controls use in their own WM_COMMAND messages. Posted ones put work off until the
// current handler has returned.
#pragma once

enum AdmMessage : unsigned {
    ADMM_FOCUS_CONTROL = 0x8064,  // posted; lParam: the control to focus, after the dialog itself
    ADMM_SAVE_INITIAL = 0x8065,   // posted; every child takes its value as the one to compare with
    ADMM_UPDATE_CONTROLS = 0x8066,  // posted; runs UpdateControls
    ADMM_CHAR = 0x8067,          // sent; wParam: character, lParam: control id; result 0 drops it
    ADMM_GET_DLG_CODE = 0x8068,  // sent; lParam: control id; result: the dialog code
    ADMM_APPLY_NOW = 0x8069,     // posted; wParam: the control object, lParam: its notification
    ADMM_APPLY_LATER = 0x806A,   // posted; wParam: the control object, lParam: its notification
};

// Codes of the WM_COMMAND messages that a text control sends for the arrow keys. The platform's own
// edit codes begin at 0x100, so that these overlap none of an edit control's.
enum AdmTextCommand : unsigned {
    ADMT_KEY_RELEASE = 500,
    ADMT_KEY_UP = 501,
    ADMT_KEY_DOWN = 502,
    ADMT_SHIFT_KEY_UP = 503,
    ADMT_SHIFT_KEY_DOWN = 504,
};
