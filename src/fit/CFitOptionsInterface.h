// The object through which the tabs of curve fitting read and change the option record. It adds the
// traits of the current function, which the curve-fit library reports, flags of the open dialog,
// and the rules that say which method is open to which function.
//
// Record, data model and library outlive it. Flat parameters are parameter-major, the offset and
// the slope behind the grid where the function has them.
#pragma once

#include <functional>
#include <optional>

#include "contract/CAnalysisOptionsInterfaceBase.h"
#include "contract/CDataOptionsInterface.h"
#include "fit/CurveFitLibrary.h"
#include "fit/FitCatalogue.h"

// What settling the record found different from the last time.
struct FitChanges {
    bool bFunction = false;  // or a step to or from Chebyshev that changes the function's form
    bool bMethods = false;   // search, minimisation or weighting
    bool bOrder = false;     // the terms in effect
    bool bFailed = false;    // the library refused, and the function and its methods went back
};

// What evenly spaced x were asked for and found.
struct EvenXFinding {
    bool bEven = true;
    int nString = 0;  // the message that tells of it; 0 none
};

class CFitOptionsInterface : public CAnalysisOptionsInterfaceBase {
  public:
    static constexpr std::uint32_t kMaxTerms = 6;
    static constexpr std::uint32_t kPlaces = 26;
    static constexpr std::uint32_t kOffsetPlace = 24;
    static constexpr std::uint32_t kSlopePlace = 25;

    CFitOptionsInterface(FitOptions* pOptions, CDataOptionsInterface* pData,
                         CurveFitLibrary* pLibrary);

    // Once, before a dialog shows the record: brings stored numbers and texts into their ranges,
    // joins the fields of which only one is stored, and takes the last predefined function from the
    // record.
    void Open();

    FitOptions& Options() { return *m_pOptions; }
    const FitOptions& Options() const { return *m_pOptions; }
    CDataOptionsInterface& Data() const { return *m_pData; }
    CurveFitLibrary& Library() const { return *m_pLibrary; }
    const FitFunctionProps& Properties() const { return m_Props; }
    FitDataStats& DataStats() { return m_Stats; }
    const char* GetParamName(std::uint32_t uParam) const;
    const char* GetOffsetName() const { return m_szOffsetName; }
    const char* GetSlopeName() const { return m_szSlopeName; }
    const char* GetFunctionText() const { return m_szFunctionText; }

    // --- The function.
    std::int32_t GetFunction() const { return m_pOptions->eFunctionType; }
    bool IsCustomFunction() const { return GetFunction() == kCustomFitFunction; }
    bool IsLineOrPolynomial() const { return m_Props.bStraightLine || m_Props.bPolynomial; }
    // Reads what the library reports for the record as it stands. 0 on success; on failure what was
    // read before stays.
    int ReadProperties();
    // What a custom function without an accepted equation has in their place.
    void DropProperties();
    // Chooses a function; of the predefined ones the last is remembered. Function 17, chosen by
    // hand, is for variable metric alone, and the method before it comes back behind it.
    void SetFunction(std::int32_t eFunction);
    // The METAFILE resource of the current function.
    const char* PictureName() const;

    // --- The function's own numbers. A function without a field reads 20 degrees and a valence of
    // 1, and keeps nothing.
    double GetTemperature() const;
    void SetTemperature(double dCelsius);
    std::uint32_t GetPowerA() const;
    void SetPowerA(std::uint32_t uPower);
    std::uint32_t GetPowerB() const;
    void SetPowerB(std::uint32_t uPower);
    std::int32_t GetValence() const;
    void SetValence(std::int32_t nValence);

    // --- Terms.
    // 1 to 6.
    std::uint32_t GetDlgOrder() const;
    void SetDlgOrder(std::uint32_t uOrder);
    bool IsTermCapable() const;
    bool IsComparing() const;
    std::uint32_t EffectiveTermCount() const;
    // Parameters that the grid shows, and all that are fitted.
    std::uint32_t GridParameterCount() const;
    std::uint32_t TotalParameterCount() const;

    // --- Methods. The setter of the search method keeps the flag for Chebyshev in step.
    std::int32_t GetSearchMethod() const { return m_pOptions->eSearchMethod; }
    void SetSearchMethod(std::int32_t eMethod);
    bool IsSearchLMEnabled() const;
    bool IsSearchVMEnabled() const;
    bool IsSearchSimplexEnabled() const;
    bool IsSearchChebyshevEnabled() const;
    bool IsChebyFilterEnabled() const;
    bool IsMinimSSEnabled() const;
    bool IsMinimMLEnabled() const;
    bool IsMinimMinimaxEnabled() const;
    bool IsMinimMeanAbsEnabled() const;
    bool IsMLEInEffect() const;
    bool IsWeightNoneEnabled() const { return IsWeightEnabled(kWeightNone); }
    bool IsWeightFunctionEnabled() const { return IsWeightEnabled(kWeightFunction); }
    bool IsWeightDataEnabled() const { return IsWeightEnabled(kWeightData); }
    bool IsWeightBinWidthEnabled() const;
    // The same by the number of the method.
    bool IsOpen(FitMethodGroup eGroup, std::int32_t eMethod) const;
    bool IsAnyOpen(FitMethodGroup eGroup) const;
    bool IsZeroShiftPermitted() const;
    // What a record for the library is given; mandatory zero-shift is the library's own.
    bool IsZeroShiftInEffect() const;
    bool IsForcePositiveEnabled() const;
    bool IsForcePositiveInEffect() const;
    bool IsCompareEnabled() const { return m_Props.bMultiTerm != 0; }
    bool IsFreeAndRefitEnabled() const;
    bool IsAutoRefitEnabled() const;
    bool IsChebyFilterForced() const;
    bool IsChebyFilterWanted() const;

    // --- What follows a change of the record.
    // Takes the record as it stands for settled, so that only later changes count.
    void BeginSettled();
    // Chooses the methods, automatically or by moving selections off what is not open, and reads
    // the properties where they may have changed. Telling of it is the caller's.
    FitChanges Settle();
    // Settles, keeps the flags about the seeds, and tells the observers what changed. False where
    // the library refused.
    bool Apply();
    // Switches the automatic choice, which is then made anew.
    void SetAutomatic(bool bAutomatic);
    // The record holds another equation that has been accepted: the function is another one.
    void TakeEquation();

    // --- Who may seed: seeds are entered for all functions but regressions, and under Chebyshev
    // only fixed ones of 14 and 15.
    bool IsSeeded() const;

    // --- Checks.
    // Flat seeds and their fixed flags. Not a number and infinity count as zero.
    bool AreSeedsUsable(const double* pSeeds, const std::uint32_t* pFixed) const;
    EvenXFinding IsXUniform() const;
    // False where a limit of the fitted curve is not above zero although x is a concentration.
    bool CheckExtrapolation();

    // Makes a record ready for the library or the host. `pX` may be null.
    void Finalise(FitOptions& record, const double* pX, std::uint32_t uPoints) const;
    // A finalised copy for the library.
    FitOptions ScratchRecord() const;

    // --- Flags of the open dialog.
    bool bChebyshevSelected = false;  // the search method is Chebyshev
    bool bSeedsValid = false;         // the seeds may be used as they stand
    bool bCustomCompiled = false;     // the custom text has been parsed and accepted
    bool bSeedsStale = false;         // seeds must be renewed when the seed tab opens
    bool bSeedsNormalized = false;    // the proportions are held normalised
    bool bAutoSeedDeclined = false;   // an estimate has just failed: no further attempt
    bool bCustomTextPresent = false;
    bool bGhkAvailable = false;    // functions of several variables may be listed
    bool bSeedsAutomatic = false;  // the seeds came from the library
    std::uint32_t uSavedOrder = 0;
    std::int32_t eLastPredefined = kNoFitFunction;
    double dProportionScale = 1.0;  // between absolute and normalised proportions
    bool bKeepsSeeds = false;       // the host wants stored seeds to be kept where they can be
    bool bDeferred = false;         // nothing is read through the data source
    std::function<void()> onSeedsDropped;  // seeds of another function are to be cleared

  private:
    // What the automatic choice looks at.
    struct AutomaticInput {
        std::int32_t eFunction;
        std::uint32_t uOrder;
        bool bComparing;
        std::int32_t bForceProps, bForceTaus, bAutoZeroShift, bDoZeroShift;
        bool bFirstXIsZero;
        bool operator==(const AutomaticInput&) const = default;
    };
    struct Settled {
        std::int32_t eFunction = kNoFitFunction;
        std::int32_t eLast = kNoFitFunction;
        std::int32_t eSearch = 0;
        std::int32_t eMinim = 0;
        std::int32_t eWeighting = 0;
        std::uint32_t uTerms = 0;
        bool bCompiled = false;
        bool operator==(const Settled&) const = default;
    };
    Settled Now() const;
    bool IsFirstXZero() const;
    bool ChooseAutomatically();
    bool MoveSelections();
    std::int32_t MovedSearch();
    std::int32_t MovedMinim() const;
    std::int32_t MovedWeighting() const;
    template <class Next>
    std::int32_t MoveOn(FitMethodGroup eGroup, std::int32_t eMethod, Next next) const;
    bool ReadFor(const Settled& now);
    bool IsAutomaticallyOther(std::int32_t eStands, std::int32_t eThis) const;
    bool IsWeightEnabled(std::int32_t eWeighting) const;
    bool IsOneTermByChebyshev() const;

    FitOptions* m_pOptions;
    CDataOptionsInterface* m_pData;
    CurveFitLibrary* m_pLibrary;
    FitFunctionProps m_Props;
    std::optional<AutomaticInput> m_lastAutomatic;
    std::optional<std::int32_t> m_eSearchBefore17;
    Settled m_settled;
    Settled m_read;  // that the properties were read for
    FitDataStats m_Stats{};
    char m_szParamNames[24][15] = {};
    char m_szOffsetName[15] = "";
    char m_szSlopeName[15] = "";
    char m_szFunctionText[40] = "";
};
