// The library's resource ids: dialog templates, controls and strings, each a numbering of its own.
// Plain macros, since the resource compilers read them too.
#pragma once

// --- Dialog templates
// -----------------------------------------------------------------------------
#define IDD_FORCE_VALUES 2108
#define IDD_FORCE_VALUES_OPTIONS 2109
#define IDD_LEAK_SUBTRACTION 2113
#define IDD_LEAK_SUBTRACTION_OPTIONS 2114
#define IDD_PAIRED_SIX_VARIABLES 2119
#define IDD_NORMALIZE 2120
#define IDD_NORMALIZE_OPTIONS 2121
#define IDD_PAIRED_ONE_VARIABLE 2122
#define IDD_RESISTANCE 2123
#define IDD_RESISTANCE_OPTIONS 2124
#define IDD_PAIRED_LIST 2125
#define IDD_TIME_SHIFT 2128
#define IDD_TIME_SHIFT_OPTIONS 2129
#define IDD_UNITARY_DATA 2131
#define IDD_UNITARY_DATA_DUAL 2132
#define IDD_ADJUST_BASELINE 2386
#define IDD_ADJUST_BASELINE_OPTIONS 2387

// --- Controls of every tabbed dialog
// --------------------------------------------------------------
#define IDC_TABS 2017

// --- Controls of an options tab
// -------------------------------------------------------------------
#define IDC_DESTINATION_GROUP 2526
#define IDC_DESTINATION_APPEND 2246
#define IDC_DESTINATION_REPLACE 2248
#define IDC_DYNAMIC_LINK 2413
#define IDC_WRITE_REGION_INFO 2503

// --- Controls of the data tabs
// --------------------------------------------------------------------
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

// --- Controls of the paired data tab
// --------------------------------------------------------------
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

// --- Normalize
// ------------------------------------------------------------------------------------
#define IDC_NORMALIZE_REGIONS 2362
#define IDC_NORMALIZE_ALL_POINTS 2363
#define IDC_NORMALIZE_BASELINE 2364
#define IDC_NORMALIZE_PEAK 2365
#define IDC_NORMALIZE_BASELINE_LABEL 2366
#define IDC_NORMALIZE_PEAK_LABEL 2367
#define IDC_NORMALIZE_BASELINE_COUNT 2368
#define IDC_NORMALIZE_PEAK_COUNT 2369

// --- Time Shift
// -----------------------------------------------------------------------------------
#define IDC_SHIFT_INTERVAL 2392
#define IDC_SHIFT_ALIGN_PEAKS 2393
#define IDC_SHIFT_DIRECTION 2394
#define IDC_SHIFT_LEFT 2395
#define IDC_SHIFT_RIGHT 2396
#define IDC_SHIFT_VALUE_GROUP 2397
#define IDC_SHIFT_FIXED 2398
#define IDC_SHIFT_BETWEEN_CURSORS 2399
#define IDC_SHIFT_VALUE 2400
#define IDC_SHIFT_VALUE_REGION 2401
#define IDC_SHIFT_GROUP_LABEL 2402
#define IDC_SHIFT_GROUP 2403
#define IDC_SHIFT_SEARCH_REGION_LABEL 2404
#define IDC_SHIFT_SEARCH_REGION 2405
#define IDC_SHIFT_NOTE 2406
#define IDC_SHIFT_POLARITY 2407
#define IDC_SHIFT_ROTATE 2408
#define IDC_SHIFT_ZEROS 2409
#define IDC_SHIFT_POSITIVE 2410
#define IDC_SHIFT_NEGATIVE 2411
#define IDC_SHIFT_ABSOLUTE 2412

// --- Force Values
// ---------------------------------------------------------------------------------
#define IDC_FORCE_REGION 2385
#define IDC_FORCE_VALUE 2386
#define IDC_FORCE_CURSOR_VALUE 2387
#define IDC_FORCE_MEAN_1_2 2388
#define IDC_FORCE_MEAN_3_4 2389
#define IDC_FORCE_LINE 2390
#define IDC_FORCE_FIXED_VALUE 2391

// --- Adjust Baseline
// ------------------------------------------------------------------------------
#define IDC_BASELINE_REGION 2536
#define IDC_BASELINE_VALUE 2537
#define IDC_BASELINE_MEAN 2538
#define IDC_BASELINE_SLOPE 2539
#define IDC_BASELINE_FIXED_VALUE 2540
#define IDC_BASELINE_BY_HAND 2541
#define IDC_BASELINE_METHOD 2542

// --- Leak Subtraction and Resistance
// --------------------------------------------------------------
#define IDC_CONVERSION_FACTOR 2359
#define IDC_WAVEFORM 2360
#define IDC_EXPERIMENT_TYPE 2361
#define IDC_PASSIVE_RESISTANCE 2384

// --- Subtract Control
// -----------------------------------------------------------------------------
#define IDD_SUBTRACT_CONTROL 2388
#define IDC_SUBTRACT_SELECT_ALL 2454
#define IDC_SUBTRACT_SELECT_FILE 2550
#define IDC_SUBTRACT_PATH 2551
#define IDC_SUBTRACT_SIGNALS 2553
#define IDC_SUBTRACT_MULTIPLIER 2554
#define IDC_SUBTRACT_USE_MULTIPLIER 2556
#define IDC_SUBTRACT_GROUP 2557
#define IDC_SUBTRACT_FIRST_ONLY 2558

// --- Data Reduction/Interpolation
// -----------------------------------------------------------------
#define IDD_MODIFY_SAMPLE_RATE 2118
#define IDC_RATE_REDUCE_LABEL 2370
#define IDC_RATE_INTERPOLATE_LABEL 2371
#define IDC_RATE_REDUCTION 2372
#define IDC_RATE_INTERPOLATION 2373
#define IDC_RATE_REDUCE_FACTOR 2374
#define IDC_RATE_REDUCE_SPIN 2375
#define IDC_RATE_INTERPOLATE_FACTOR 2376
#define IDC_RATE_INTERPOLATE_SPIN 2377
#define IDC_RATE_NOTE 2378
#define IDC_RATE_DECIMATE 2379
#define IDC_RATE_AVERAGE 2380
#define IDC_RATE_MIN_MAX 2381
#define IDC_RATE_STRAIGHT 2382
#define IDC_RATE_SPLINE 2383

// --- Current/Voltage and Trace vs. Trace
// ----------------------------------------------------------
#define IDD_CURRENT_VOLTAGE 2101
#define IDD_TRACE_VS_TRACE 2130
#define IDC_AXES_X_GROUP 2414
#define IDC_AXES_Y_GROUP 2415
#define IDC_AXES_X_WAVEFORM 2416
#define IDC_AXES_Y_WAVEFORM 2417
#define IDC_AXES_X_INVERT 2418
#define IDC_AXES_Y_INVERT 2419
#define IDC_IV_ALL_TRACES 2247
#define IDC_IV_VISIBLE_TRACES 2559
#define IDC_IV_REGION_LABEL 2367
#define IDC_IV_POSITIVE 2410
#define IDC_IV_NEGATIVE 2411
#define IDC_IV_ABSOLUTE 2412
#define IDC_IV_EPOCH 2420
#define IDC_IV_SMOOTHING 2421
#define IDC_IV_SMOOTHING_SPIN 2422
#define IDC_IV_WAVEFORM_AT_1 2423
#define IDC_IV_WAVEFORM_AT_3 2424
#define IDC_IV_GROUP_AT_3 2425
#define IDC_IV_FROM_EPOCH 2426
#define IDC_IV_VALUE_AT_1 2427
#define IDC_IV_MEAN 2428
#define IDC_IV_PEAK 2429
#define IDC_IV_SMOOTH 2430
#define IDC_IV_GROUP_LABEL 2431
#define IDC_TVT_X_SET_LABEL 2432
#define IDC_TVT_Y_SET_LABEL 2433
#define IDC_TVT_X_SET 2434
#define IDC_TVT_Y_SET 2435
#define IDC_TVT_X_FROM_WAVEFORM 2436
#define IDC_TVT_X_FROM_GROUP 2437
#define IDC_TVT_Y_FROM_WAVEFORM 2438
#define IDC_TVT_Y_FROM_GROUP 2439

// --- Strings
// --------------------------------------------------------------------------------------
#define IDS_CONSTANT 2153
#define IDS_CONVERSION_FACTOR_FIRST 2155
#define IDS_CURRENT_CLAMP 2163
#define IDS_DATA_GROUP 2174
#define IDS_TAB_DATA 2175
#define IDS_EPOCH_A_DURATION 2176
#define IDS_EPOCH_A_LEVEL 2177
#define IDS_RANGE_ORDER 2205
#define IDS_INIT_FAILED 2206
#define IDS_ONE_INDEPENDENT 2219
#define IDS_NO_DATA_SELECTED 2227
#define IDS_FIXED_VALUE 2274
#define IDS_GROUP_TO_SEARCH 2280
#define IDS_TOO_FEW_SETS 2304
#define IDS_EMPTY_SETS 2305
#define IDS_TAB_OPTIONS 2325
#define IDS_USER_LIST 2366
#define IDS_VOLTAGE_CLAMP 2367
#define IDS_READ_ONLY_CAPTION 2384
#define IDS_CLOSE 2395
#define IDS_NO_DATA_PROPERTIES 2400
#define IDS_COLUMNS_EMPTY 2403
#define IDS_NO_WAVEFORM_FILE 2217
#define IDS_INTERPOLATION 2286
#define IDS_SAMPLING_NOTE 2324
#define IDS_REDUCTION 2335
// Texts of our own begin at 2700.
#define IDS_NO_SAMPLING_INTERVAL 2701
#define IDS_NO_SUCH_SET 2702
