// What a control tells its notification target: plain numbers, handed to ADM_Wnd::Notify as nCode.
// They are the vocabulary in which every dialog and tab states its rules. The data beside a code is
// 0 unless its comment says otherwise.
#pragma once

enum AdmNotification : int {
    // Common.
    ADMN_SETFOCUS = 201,
    ADMN_KILLFOCUS = 202,
    ADMN_CLICK = 203,
    ADMN_DBLCLK = 204,
    ADMN_OUTOFMEMORY = 205,
    ADMN_RETURN = 206,
    ADMN_RCLICK = 207,
    ADMN_RDBLCLK = 208,

    // Text.
    ADMN_TEXTCHANGE = 300,
    ADMN_TEXTUPDATE = 301,
    ADMN_ERRSPACE = 302,
    ADMN_MAXTEXT = 303,
    ADMN_HSCROLL = 304,
    ADMN_VSCROLL = 305,
    ADMN_KEYRELEASE = 306,  // Up or Down arrow released
    ADMN_KEYUP = 307,
    ADMN_KEYDOWN = 308,
    ADMN_SHIFTKEYUP = 309,
    ADMN_SHIFTKEYDOWN = 310,

    // List box.
    ADMN_LISTSELCHANGE = 400,
    ADMN_LISTDBLCLK = 401,
    ADMN_LISTERRSPACE = 402,
    ADMN_LISTSELCANCEL = 403,

    // Combo box.
    ADMN_COMBOSELCHANGE = 500,
    ADMN_COMBODBLCLK = 501,
    ADMN_COMBOEDITCHANGE = 502,
    ADMN_COMBOERRSPACE = 503,
    ADMN_COMBOEDITUPDATE = 504,
    ADMN_COMBODROPDOWN = 505,
    ADMN_COMBOCLOSEUP = 506,
    ADMN_COMBOSELENDOK = 507,
    ADMN_COMBOSELENDCANCEL = 508,

    // Button and radio group. ADMN_CLICKED also comes, with a null sender, for a button that no
    // control
    // object owns.
    ADMN_CLICKED = 600,
    ADMN_BTNDOUBLECLICK = 601,
    ADMN_BTNPAINT = 602,
    ADMN_BTNHILITE = 603,
    ADMN_BTNUNHILITE = 604,
    ADMN_BTNDISABLE = 605,

    // Gauge.
    ADMN_GAUGEPOSITION = 700,
    ADMN_GAUGEBOTTOM = 701,
    ADMN_GAUGETOP = 702,
    ADMN_GAUGELINEUP = 703,
    ADMN_GAUGELINEDOWN = 704,
    ADMN_GAUGEPAGEUP = 705,
    ADMN_GAUGEPAGEDOWN = 706,
    ADMN_GAUGETHUMB = 707,  // data: the position
    ADMN_GAUGEENDSCROLL = 708,

    // Tab control.
    ADMN_TABSELCHANGE = 801,
    ADMN_TABLEFT = 802,  // a page was left; precedes ADMN_TABSELCHANGE
    ADMN_TABSELCHANGING = 803,

    // Static.
    ADMN_STATICENABLE = 1001,
    ADMN_STATICDISABLE = 1002,
};
