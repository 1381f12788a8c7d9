// Median times of works that take turns, and the rows that compare them.
#pragma once

#include <functional>
#include <string>
#include <vector>

// The median seconds of each work over a number of rounds. The works take turns, so that what else
// the machine does meets all of them.
std::vector<double> Medians(int nRounds, const std::vector<std::function<void()>>& works);

// Prints "name ratio target ok" or "... MISSED", and remembers a miss.
void PrintRatio(const std::string& sName, double dRatio, double dTarget);

// The same for a figure that must be at least the target.
void PrintAtLeast(const std::string& sName, double dValue, double dTarget);

// Prints a figure that has no target.
void PrintFigure(const std::string& sName, double dValue, const char* szUnit);

bool AllTargetsMet();

// Keeps a result from being optimised away.
void Consume(double dValue);
