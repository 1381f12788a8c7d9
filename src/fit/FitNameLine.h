// The line under the pages of curve fitting that names the function and what is special about the
// fit: eight texts, empty where nothing is to be said. No window.
#pragma once

#include <array>
#include <string>

#include "fit/CFitSeedInterface.h"

using FitNameFields = std::array<std::string, 8>;

FitNameFields FitNameLine(const CFitOptionsInterface& fit, const CFitSeedInterface& seeds);
