// The stored settings of the signal processing dialogs from any bytes, and everything that a dialog
// asks of them before it opens.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

// Aborts where a promise of the rules is broken. The profile file is overwritten.
void FuzzSigprocSections(const std::uint8_t* pData, std::size_t nSize, const std::string& sProfile);
