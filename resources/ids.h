// The library's resource ids: dialog templates, controls and strings, each a numbering of its own. Plain
// macros, since the resource compilers read them too.
#pragma once

// --- Dialog templates -----------------------------------------------------------------------------
#define IDD_PAIRED_SIX_VARIABLES 2119
#define IDD_NORMALIZE 2120
#define IDD_NORMALIZE_OPTIONS 2121
#define IDD_PAIRED_ONE_VARIABLE 2122
#define IDD_PAIRED_LIST 2125
#define IDD_UNITARY_DATA 2131
#define IDD_UNITARY_DATA_DUAL 2132

// --- Controls of every tabbed dialog --------------------------------------------------------------
#define IDC_TABS 2017

// --- Controls of an options tab -------------------------------------------------------------------
#define IDC_DESTINATION_GROUP 2526
#define IDC_DESTINATION_APPEND 2246
#define IDC_DESTINATION_REPLACE 2248
#define IDC_DYNAMIC_LINK 2413
#define IDC_WRITE_REGION_INFO 2503

// --- Controls of the data tabs --------------------------------------------------------------------
#define IDC_GROUP_LABEL 2187
#define IDC_GROUP 2189
#define IDC_REGION_LABEL 2188
#define IDC_REGION 2198
#define IDC_SELECT_ALL 2197
#define IDC_SELECT_NONE 2199
#define IDC_SELECT_INVERT 2243
#define IDC_SET_LIST_TEXT 2237
#define IDC_SETS_VISIBLE 2238
#define IDC_SETS_ALL 2239
#define IDC_SETS_ACTIVE 2240
#define IDC_SETS_TYPED 2241
#define IDC_SETS_LISTED 2242
#define IDC_SET_COUNT 2244
#define IDC_GROUPS_VISIBLE 2245
#define IDC_GROUPS_ALL 2247
#define IDC_GROUPS_ACTIVE 2249
#define IDC_GROUPS_ONE 2252
#define IDC_SET_LIST 2342
#define IDC_SET_LIST_2 2343
#define IDC_SET_LABEL 2344
#define IDC_DATA_SET_1 2345
#define IDC_DATA_SET_2 2346
#define IDC_FORCE_TO_ZERO 2441

// --- Controls of the paired data tab --------------------------------------------------------------
#define IDC_VARIABLE_FIRST 2143
#define IDC_VARIABLE_LAST 2148
#define IDC_DEPENDENT 2149
#define IDC_VARIABLE_NAME_FIRST 2150
#define IDC_VARIABLE_NAME_LAST 2155
#define IDC_PAIRED_UNUSED 2156
#define IDC_DEPENDENT_NAME 2158
#define IDC_CONSTANT_FIRST 2178
#define IDC_CONSTANT_LAST 2183
#define IDC_RANGE_AVAILABLE 2186
#define IDC_RANGE_FROM_SPIN 2190
#define IDC_RANGE_TO_SPIN 2191
#define IDC_RANGE_ALL 2192
#define IDC_RANGE_FROM_LABEL 2193
#define IDC_RANGE_FROM 2194
#define IDC_RANGE_TO_LABEL 2195
#define IDC_RANGE_TO 2196

// --- Normalize ------------------------------------------------------------------------------------
#define IDC_NORMALIZE_REGIONS 2362
#define IDC_NORMALIZE_ALL_POINTS 2363
#define IDC_NORMALIZE_BASELINE 2364
#define IDC_NORMALIZE_PEAK 2365
#define IDC_NORMALIZE_BASELINE_LABEL 2366
#define IDC_NORMALIZE_PEAK_LABEL 2367
#define IDC_NORMALIZE_BASELINE_COUNT 2368
#define IDC_NORMALIZE_PEAK_COUNT 2369

// --- Strings --------------------------------------------------------------------------------------
#define IDS_CONSTANT 2153
#define IDS_CONVERSION_FACTOR_FIRST 2155
#define IDS_TAB_DATA 2175
#define IDS_EPOCH_A_DURATION 2176
#define IDS_EPOCH_A_LEVEL 2177
#define IDS_RANGE_ORDER 2205
#define IDS_INIT_FAILED 2206
#define IDS_ONE_INDEPENDENT 2219
#define IDS_NO_DATA_SELECTED 2227
#define IDS_TOO_FEW_SETS 2304
#define IDS_EMPTY_SETS 2305
#define IDS_TAB_OPTIONS 2325
#define IDS_USER_LIST 2366
#define IDS_READ_ONLY_CAPTION 2384
#define IDS_CLOSE 2395
#define IDS_NO_DATA_PROPERTIES 2400
