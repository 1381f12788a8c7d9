// Makes a recording of the columns of a text file.
//
// As a sheet every column is a column. For the other kinds the first column is the x axis, in s,
// ms, us, µs or min (told by its units, by the caller, or taken as ms), and is kept in ms. Each
// further one is a sweep of a signal: headings that differ in more than a number behind them, or in
// their units, are different signals, so that "Im 1 (pA)", "Vm 1 (mV)", "Im 2 (pA)" ... are sweeps
// of two. The caller may say instead that every column is a sweep, or every one a signal.
#pragma once

#include <string>

#include "Recording.h"
#include "TextReader.h"

namespace zxhost {

enum class Layout { kByHeading, kSweeps, kSignals };

struct ReadingOptions {
    DataKind kind = DataKind::kRecording;
    Layout layout = Layout::kByHeading;
    std::string xUnits;  // over those of the file; empty: the file's
    char delimiter = 0;  // 0: found out
};

// On failure false with "FILE:LINE: what is wrong" or "FILE: what is wrong", and the recording as
// it was.
bool ReadRecording(const std::string& path, const ReadingOptions& options, Recording* recording,
                   std::string* error, const ReadProgress& progress = nullptr);

// How many ms a unit of time has; 0 when it is none.
double MillisecondsOf(const std::string& units);

}  // namespace zxhost
