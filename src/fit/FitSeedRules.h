// What curve fitting does to seeds: the mending of signs, proportions that are held absolute or
// normalised, stored seeds, and whether there is more than one data set to seed. No window and no
// message.
#pragma once

#include <optional>

#include "fit/CFitSeedInterface.h"

// Which kinds of seeds had their sign mended.
struct MendedSeeds {
    bool bProportions = false;
    bool bOthers = false;
};
// Makes negative seeds positive where their kind is forced positive.
MendedSeeds MendSigns(const CFitOptionsInterface& fit, CFitSeedInterface& seeds);
// The place of the first grid seed in use that is missing: zero, or no finite number. One parameter
// may be zero.
std::optional<std::uint32_t> FindMissingSeed(const CFitOptionsInterface& fit,
                                             const CFitSeedInterface& seeds);
bool AreSeedsUsable(const CFitOptionsInterface& fit, const CFitSeedInterface& seeds);

// The sum of the absolute proportions becomes the scale; where that is 0, one of the data, below.
void TakeProportionScale(CFitOptionsInterface& fit, const CFitSeedInterface& seeds,
                         double dDataScale);
// The largest x interval times the sum of y. 1 where that is 0, not finite, or the data cannot be
// read.
double ProportionScaleOfData(CDataOptionsInterface& data);
// Divides the proportions by the sum of their absolute values, and multiplies them by the scale.
void NormalizeProportions(const CFitOptionsInterface& fit, CFitSeedInterface& seeds);
void RestoreProportions(const CFitOptionsInterface& fit, CFitSeedInterface& seeds);
// Makes proportions that must sum to 1 do so.
void MakeProportionsSumToOne(const CFitOptionsInterface& fit, CFitSeedInterface& seeds);

// The record's seeds and their fixed flags as the dialog restores them. What is no finite number
// is 0.
void RestoreStoredSeeds(const FitOptions& options, CFitSeedInterface& seeds);
void RestoreStoredFlags(const FitOptions& options, CFitSeedInterface& seeds);
// By place into the record, with 0 in the places that the function does not use. Flags of a
// function whose seeds are not entered are 0.
void StoreSeeds(const CFitOptionsInterface& fit, const CFitSeedInterface& seeds,
                FitOptions& options);

// Whether the selection of the record takes more than one data set.
bool TakesSeveralDataSets(const CDataOptionsInterface& data);
