// The seeds of the parameters and their fixed flags, by grid place: six rows of four columns, then
// the offset and the slope. Flat arrays exist only in calls.
#pragma once

#include <array>
#include <vector>

#include "fit/CFitOptionsInterface.h"

class CFitSeedInterface {
  public:
    static constexpr std::uint32_t kPlaces = CFitOptionsInterface::kPlaces;
    static constexpr std::uint32_t kColumns = 4;
    using Values = std::array<double, kPlaces>;
    using Flags = std::array<std::uint32_t, kPlaces>;

    // Both outlive this object.
    CFitSeedInterface(CFitOptionsInterface* pFit, CDataOptionsInterface* pData);

    // --- Places.
    // Of a flat grid parameter of the current function.
    std::uint32_t PlaceOfFlat(std::uint32_t uFlat) const;
    static std::uint32_t PlaceOf(std::uint32_t uTerm, std::uint32_t uColumn) {
        return uColumn + uTerm * kColumns;
    }

    // Grid parameters of the current function that have a place.
    std::uint32_t GridCount() const;

    // --- Values. Terms and columns beyond the places read 0 and keep nothing; term 6 is the offset
    // (column 0) and the slope (column 1).
    double GetSeed(std::uint32_t uTerm, std::uint32_t uColumn) const;
    void SetSeed(std::uint32_t uTerm, std::uint32_t uColumn, double dValue);
    // The flat seeds and, where `pFixed` is not null, their flags. Gives how many there are.
    std::uint32_t GetSeeds(double* pSeeds, std::uint32_t* pFixed) const;
    void SetSeeds(const double* pSeeds);
    // The parameters of one term; gives how many a term has.
    std::uint32_t GetTermSeeds(std::uint32_t uTerm, double* pSeeds) const;
    // How far a step of a spinner moves a work value: a hundredth of it, 0.1 for 0, and 0.01 for an
    // offset or slope that the function does not have.
    double StepForSeed(std::uint32_t uTerm, std::uint32_t uColumn) const;
    // Rows of the grid that hold a parameter.
    std::uint32_t VisibleRows() const;

    // --- The library. Each fails where it has no object or the object refuses.
    // Seeds from data, into the places; all seeds and flags are cleared first.
    bool ComputeSeeds(const double* const* ppArrays, std::uint32_t uArrays, std::uint32_t uPoints);
    // The curve of the work values. `pY` holds the data at first. With fewer terms than are in
    // effect the first term alone is drawn, with offset and slope.
    bool CurveFromSeeds(const double* pX, double* pY, std::uint32_t uCount, std::uint32_t uTerms);
    // The curve of one term with offset and slope.
    bool CurveOfTerm(const double* pX, double* pY, std::uint32_t uCount, std::uint32_t uTerm);

    Values dSeeds{};
    Flags uFixed{};
    Values dWork{};

  private:
    // The work values of offset and slope where the function has them.
    void AddLinear(double* pBehindGrid) const;
    bool Draw(const double* pX, double* pY, std::uint32_t uCount, std::uint32_t uOrder,
              const double* pFlat);

    CFitOptionsInterface* m_pFit;
    CDataOptionsInterface* m_pData;
};
