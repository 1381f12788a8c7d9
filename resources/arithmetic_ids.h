// Resource ids of the arithmetic dialog.
#pragma once

#define IDD_ARITHMETIC_TRACES 2383
#define IDD_ARITHMETIC_COLUMNS 2384
#define IDD_ARITHMETIC_NEW_COLUMN 2385

// --- The expression
// -------------------------------------------------------------------------------
#define IDC_EXPRESSION_LABEL 2442
#define IDC_EXPRESSION 2527
#define IDC_EXPRESSION_EXAMPLE 2525
#define IDC_OPERATOR 2444
#define IDC_FUNCTION 2445
#define IDC_CONSTANT 2446
#define IDC_EXPRESSION_UNDO 2447
#define IDC_EXPRESSION_CLEAR 2443
#define IDC_ASSIGN 2440
#define IDC_COLUMN_TITLE 2528

// --- The rows of the column forms; the others of the range have the ids of the data pages
// ------------
#define IDC_RANGE_PART 2588
#define IDC_RANGE_NOTE 2589

// --- Strings
// --------------------------------------------------------------------------------------
#define IDS_LEFT_ALL 2136
#define IDS_OPERATOR_DIVIDE 2137
#define IDS_OPERATOR_EQUALS 2138
#define IDS_OPERATOR_ADD 2139
#define IDS_LEFT_ACTIVE 2140
#define IDS_OPERATOR_MULTIPLY 2141
#define IDS_OPERATOR_POWER 2142
#define IDS_OPERATOR_SUBTRACT 2143
#define IDS_LEFT_VISIBLE 2144
#define IDS_EXPRESSION_TOO_LONG 2208
#define IDS_EQUALS_NOT_ALLOWED 2216
#define IDS_ROWS_BEYOND_DATA 2287
#define IDS_NEW_COLUMN_NAME 2385
#define IDS_NO_EXPRESSION 2386
#define IDS_NO_COLUMN_TITLE 2387
#define IDS_NO_DATA_TO_PROCESS 2410
#define IDS_HISTORY_NOT_AVAILABLE 2703  // a text of our own
