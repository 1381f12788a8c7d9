// The ids of the benchmark's templates. Also read by the resource compiler. Page n numbers its
// controls from n * 100: fields from 0, check boxes from 20, a combo box at 30, labels from 50.
#pragma once

#define IDD_BENCH 1
#define IDD_BENCH_PAGE_ONE 2
#define IDD_BENCH_PAGE_TWO 3
#define IDC_BENCH_TABS 50
