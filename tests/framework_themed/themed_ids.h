// What is in the templates of the themed program.
#pragma once

#define IDD_THEMED 1000
#define IDD_THEMED_PAGE 1001
#define IDC_THEMED_TABS 101
#define IDC_THEMED_LABEL 102
#define IDC_THEMED_FIELD 103
