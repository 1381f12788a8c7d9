// One run of everything that reads the text of an equation, on bytes from anywhere.
#pragma once

#include <cstddef>
#include <cstdint>

// Scans, analyzes, compiles and evaluates the text in every way that a dialog or a host can. Ends
// the program when two ways that must agree do not. The first byte chooses the variables and their
// values.
void FuzzEquation(const std::uint8_t* pData, std::size_t nSize);
