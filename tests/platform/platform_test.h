// Ids of the resources in platform_test.rc.
#pragma once

#define IDS_PLAIN 100
#define IDS_HIGH_BYTES 101
#define IDS_EMPTY_BLOCK 200
#define IDS_FAR 4097
#define IDD_SIMPLE 300
#define IDD_PLAIN_FORM 301
#define IDC_NAME 310
#define IDC_HIGH_LABEL 311
#define IDC_CHECK 312
#define IDC_LIST 313
#define IDB_CORNERS 400
#define IDR_BYTES 500
#define IDC_PICTURE 320
