// Any bytes as the stored settings of curve fitting: what opening a dialog makes of them stays
// within what it shows, and every question to the model has an answer.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

// Writes the bytes as the section's lines to the profile file, and reads them back as the dialog
// does. Aborts where something does not hold.
void FuzzFitSection(const std::uint8_t* pData, std::size_t nSize, const std::string& sProfile);
