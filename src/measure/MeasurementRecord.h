// The record of the measurements as a whole: what it takes from the host, what it gives back, and
// what OK makes of it. Plain functions; no window.
#pragma once

#include "zxadlg/MeasurementOptions.h"

// Takes the searches of the acquisition, which the host passed, with their regions, baselines and
// polarities; the graph of the first search stays as it is.
void TakeSearches(ZXADLG_MeasurementOptions& to, const ZXADLG_MeasurementOptions& host);

// Hands a record back field by field: bytes that mean nothing, and what the host alone decides,
// stay as the host has them.
void ReturnMeasurements(ZXADLG_MeasurementOptions* pTo, const ZXADLG_MeasurementOptions& from);

// The first search that is on; -1 where none is.
int FirstSearchOn(const ZXADLG_MeasurementOptions& options);

// Puts start and end of each region of the searches that are on in order.
void OrderRegions(ZXADLG_MeasurementOptions& options);
// The settings of the acquisition take the place of all searches but the first.
void AcceptImport(ZXADLG_MeasurementOptions& options, bool bImportInUse);
