// The rows that the templates are made of. Both resource compilers give short forms such as
// AUTORADIOBUTTON different styles, so every bit is written out, here and once.
#pragma once

#define ZX_DIALOG_STYLE DS_SETFONT | DS_FIXEDSYS | DS_MODALFRAME | WS_POPUP | WS_CAPTION | WS_SYSMENU
#define ZX_PAGE_STYLE DS_SETFONT | DS_FIXEDSYS | WS_CHILD

// How the rows behind it start: a template may set this anew for controls that start grey or hidden.
#define ZX_START WS_VISIBLE
#define ZX_CHILD WS_CHILD | ZX_START

// A label starts a group of its own, which ends a radio set before it.
#define LABEL(text, id, x, y, w, h) CONTROL text, id, "STATIC", SS_LEFT | WS_GROUP | ZX_CHILD, x, y, w, h
// The name of the field behind it for those who cannot see that the button beside the field labels it.
#define NAME(text, x, y) CONTROL text, -1, "STATIC", NOT WS_VISIBLE | SS_LEFT | WS_GROUP | WS_CHILD, x, y, 4, 8
#define GROUP(text, id, x, y, w, h) CONTROL text, id, "BUTTON", BS_GROUPBOX | WS_GROUP | ZX_CHILD, x, y, w, h
#define PUSH(text, id, x, y, w, h) CONTROL text, id, "BUTTON", BS_PUSHBUTTON | WS_TABSTOP | WS_GROUP | ZX_CHILD, x, y, w, h
#define DEFAULT(text, id, x, y, w, h) CONTROL text, id, "BUTTON", BS_DEFPUSHBUTTON | WS_TABSTOP | WS_GROUP | ZX_CHILD, x, y, w, h
#define CHECK(text, id, x, y, w, h) CONTROL text, id, "BUTTON", BS_AUTOCHECKBOX | WS_TABSTOP | WS_GROUP | ZX_CHILD, x, y, w, h
#define RADIO_FIRST(text, id, x, y, w, h) CONTROL text, id, "BUTTON", BS_AUTORADIOBUTTON | WS_TABSTOP | WS_GROUP | ZX_CHILD, x, y, w, h
#define RADIO(text, id, x, y, w, h) CONTROL text, id, "BUTTON", BS_AUTORADIOBUTTON | ZX_CHILD, x, y, w, h
#define FIELD(id, x, y, w, h) CONTROL "", id, "EDIT", ES_LEFT | ES_AUTOHSCROLL | WS_BORDER | WS_TABSTOP | WS_GROUP | ZX_CHILD, x, y, w, h
#define SPINNER(id, x, y, w, h) CONTROL "", id, "ZDC_SpinnerVert", ZX_CHILD, x, y, w, h
// The height of a combo box is that of its open list.
#define COMBO(id, x, y, w, h) CONTROL "", id, "COMBOBOX", CBS_DROPDOWNLIST | WS_VSCROLL | WS_TABSTOP | WS_GROUP | ZX_CHILD, x, y, w, h
// The same with an edit part.
#define COMBO_EDIT(id, x, y, w, h) CONTROL "", id, "COMBOBOX", CBS_DROPDOWN | CBS_AUTOHSCROLL | WS_VSCROLL | WS_TABSTOP | WS_GROUP | ZX_CHILD, x, y, w, h
#define SORTED_LIST(id, x, y, w, h) CONTROL "", id, "LISTBOX", LBS_NOTIFY | LBS_SORT | LBS_NOINTEGRALHEIGHT | WS_BORDER | WS_VSCROLL | WS_TABSTOP | WS_GROUP | ZX_CHILD, x, y, w, h
#define SINGLE_LIST(id, x, y, w, h) CONTROL "", id, "LISTBOX", LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | WS_BORDER | WS_VSCROLL | WS_TABSTOP | WS_GROUP | ZX_CHILD, x, y, w, h
#define MULTI_LIST(id, x, y, w, h) CONTROL "", id, "LISTBOX", LBS_NOTIFY | LBS_EXTENDEDSEL | LBS_NOINTEGRALHEIGHT | WS_BORDER | WS_VSCROLL | WS_TABSTOP | WS_GROUP | ZX_CHILD, x, y, w, h
#define TABS(id, x, y, w, h) CONTROL "", id, "SysTabControl32", WS_TABSTOP | WS_GROUP | ZX_CHILD, x, y, w, h
