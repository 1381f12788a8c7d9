// The ids of the templates that the tests of the framework open. Also read by the resource
// compiler.
#pragma once

#define IDD_PLAIN 1000       // one of each control
#define IDD_TABBED 1010      // a tab control and a field of the dialog's own
#define IDD_PAGE_ONE 1020    // two fields
#define IDD_PAGE_TWO 1021    // two fields
#define IDD_PAGE_THREE 1022  // a field and a list
#define IDD_PAGE_VISIBLE 1030
#define IDD_PAGE_CAPTION 1031
#define IDD_PAGE_THICKFRAME 1032
#define IDD_PAGE_MODALFRAME 1033
#define IDD_PAGE_POPUP 1034
#define IDD_BARE 1040    // no button, no caption
#define IDD_PLACED 1041  // a caption, at a place of its own

#define IDC_FIRST 101
#define IDC_SECOND 102
#define IDC_CHECK 103
#define IDC_TRISTATE 104
#define IDC_RUN 105
#define IDC_IMAGE 106  // shows a bitmap
#define IDC_RADIO_A 111
#define IDC_RADIO_B 112
#define IDC_RADIO_C 113
#define IDC_COMBO 120
#define IDC_COMBOEDIT 121
#define IDC_LISTBOX 122
#define IDC_MULTILIST 123
#define IDC_LABEL 130
#define IDC_PICTURE 131
#define IDC_METAFILE 132
#define IDC_BAR 133  // stands for a scroll bar
#define IDC_HELPBUTTON 140

#define IDC_TABS 201
#define IDC_OWN 202
#define IDC_ONE_A 211
#define IDC_ONE_B 212
#define IDC_TWO_A 221
#define IDC_TWO_B 222
#define IDC_THREE_A 231
#define IDC_THREE_LIST 232
#define IDC_THREE_RUN 233

#define IDS_TAB_TITLE 300
#define IDS_LONG_TITLE 301  // 70 characters
#define IDS_LONG_ITEM 302   // 260 characters
#define IDS_NOTHING 399     // no such string

#define IDB_RAMP 400
#define IDB_RAMP_LARGER 410
