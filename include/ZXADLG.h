// The interface of ZXANALYSISDIALOGS, the modal dialogs of an electrophysiology analysis.
//
// A host calls one Show function per analysis. It passes an option record and usually a
// data-selection record, both edited in place when the user presses OK, an object through which the
// dialog sees the host's data (ZXADLG_CDlgDataSource, written by the host), and the parameters of
// the dialog. A Show function never runs an analysis. All calls are made on the thread of the owner
// window and block until the dialog ends; the library must not be entered from two threads at once.
// No exception leaves a Show function, and nothing that the host supplies may throw.
//
// One header serves the platform vendor's compiler and clang in that compiler's mode, MinGW, and
// g++ on systems with the headless window system: the abstract classes have the same table in all
// of them, with the destructor as its one first place.
#pragma once

#include <stddef.h>
#include <stdint.h>

#include "zxadlg/AdjustBaselineOptions.h"
#include "zxadlg/ArithmeticOptions.h"
#include "zxadlg/CorrelationOptions.h"
#include "zxadlg/CurrentVoltageOptions.h"
#include "zxadlg/DataOptions.h"
#include "zxadlg/DlgParams.h"
#include "zxadlg/FitOptions.h"
#include "zxadlg/ForceValuesOptions.h"
#include "zxadlg/HistogramOptions.h"
#include "zxadlg/LeakSubtractionOptions.h"
#include "zxadlg/MeasurementOptions.h"
#include "zxadlg/ModifySampleRateOptions.h"
#include "zxadlg/NormalizeOptions.h"
#include "zxadlg/ResistanceOptions.h"
#include "zxadlg/SignalProcessingOptions.h"
#include "zxadlg/SubtractControlOptions.h"
#include "zxadlg/TimeShiftOptions.h"
#include "zxadlg/TraceVsTraceOptions.h"
#include "zxadlg/fields.h"

struct HWND__;

#if defined(_WIN32)
#define ZXADLG_CALL __cdecl
#else
#define ZXADLG_CALL
#endif

// Results of every Show function.
enum {
    ZXADLG_OK = 1,              // accepted; the records were copied back unless bReadOnly is set
    ZXADLG_CANCEL = 2,          // cancelled, closed, or the dialog gave up during its set-up
    ZXADLG_NO_TEMPLATE = 0,     // no instance handle or no template
    ZXADLG_CREATE_FAILED = -1,  // the dialog could not be created, or failed while it ran
};

// Selects points of a set. Passed by pointer; valid during the call.
struct ZXADLG_DataRange {
    uint32_t uRegionId;     // region to confine the points to, or 0
    uint32_t uFirstIndex;   // used where bUseFullRange is 0
    uint32_t uLastIndex;    // inclusive
    uint32_t reserved;      // 0
    uint8_t bUseFullRange;  // ignore the two indices
    uint8_t undefined[3];
};
static_assert(sizeof(ZXADLG_DataRange) == 20, "layout");
static_assert(offsetof(ZXADLG_DataRange, bUseFullRange) == 16, "layout");

// What GetRegionInfo fills. The library zeroes it before its first call and reads the fields named.
struct ZXADLG_RegionInfo {
    uint32_t uGroup;       // group of the last lookup
    uint32_t uSet;         // set of the last lookup
    uint32_t uFirstPoint;  // first point index of the region
    uint32_t uLastPoint;   // last point index of the region
    double dStart;         // region start on the x axis
    double dEnd;           // region end on the x axis
    uint8_t host[24];      // the host's own
};
static_assert(sizeof(ZXADLG_RegionInfo) == 56, "layout");
static_assert(offsetof(ZXADLG_RegionInfo, dStart) == 16, "layout");

// The special members of an abstract class, in the form that gives its table one first place.
#if defined(_MSC_VER)
#define ZXADLG_CLASS __declspec(dllimport)
#define ZXADLG_SPECIAL_MEMBERS(name) \
    name();                          \
    name(const name&);               \
    virtual ~name();                 \
    name& operator=(const name&);
#else
#define ZXADLG_CLASS
// These compilers give a virtual destructor two places, so the one place is declared as what it is
// in the vendor's table: an operation that destroys, and frees with its low bit. The library never
// calls it.
#define ZXADLG_SPECIAL_MEMBERS(name)     \
    virtual void* DeleteSelf(unsigned) { \
        return this;                     \
    }                                    \
    name() {}                            \
    name(const name&) {}                 \
    name& operator=(const name&) {       \
        return *this;                    \
    }                                    \
                                         \
  protected:                             \
    ~name() {}                           \
                                         \
  public:
#endif

// The host's data. Indices are 0-based unless told otherwise; counts and indices are 32-bit
// unsigned. Returned texts and arrays stay the host's and stay valid until the next call; the
// library copies what it keeps. A null text means that there is no name, a null array that there is
// no data.
class ZXADLG_CLASS ZXADLG_CDlgDataSource {
  public:
    ZXADLG_SPECIAL_MEMBERS(ZXADLG_CDlgDataSource)

    // Name of the store for the settings; null switches persistence off.
    virtual const char* GetProfileName() = 0;
    // The x and y values of a set under a range. y values are asked for with bUseFullRange set,
    // but for the extent over a range of rows.
    virtual const double* GetXValues(uint32_t group, uint32_t set, const ZXADLG_DataRange* range,
                                     uint32_t reserved) = 0;
    virtual const double* GetYValues(uint32_t group, uint32_t set, const ZXADLG_DataRange* range,
                                     uint32_t reserved) = 0;
    // Points of a set, under the range when one is given; 0: the set has no data.
    virtual uint32_t GetPointCount(uint32_t group, uint32_t set, const ZXADLG_DataRange* range,
                                   uint32_t reserved) = 0;
    virtual uint32_t GetGroupCount() = 0;
    virtual uint32_t GetSetCount(uint32_t group) = 0;
    // A number per group that the library only copies into the data record.
    virtual uint32_t GetGroupCode(uint32_t group) = 0;
    virtual void Reserved8() = 0;
    // The nouns for a group and a set, singular; null for "Group" and "Set".
    virtual const char* GetGroupLabel() = 0;
    virtual const char* GetSetLabel() = 0;
    // Display names. A group with a null or empty name is left out of the combo boxes.
    virtual const char* GetGroupName(uint32_t group) = 0;
    virtual const char* GetSetName(uint32_t group, uint32_t set) = 0;
    // Units text; `index` is the selected set minus 1 where the units of the y axis are asked for.
    virtual const char* GetUnits(uint32_t group, int32_t index) = 0;
    virtual void Reserved14() = 0;
    // 0 data file, 1 other set-oriented data, 2 sheet.
    virtual uint32_t GetDataKind() = 0;
    // Hz; data files only.
    virtual double GetSamplingFrequency() = 0;
    virtual uint32_t GetRegionCount() = 0;
    // Waveforms in the data; 0 for a file without one.
    virtual uint32_t GetEpochCount() = 0;
    // Bytes that CopyBlob copies, at most 200.
    virtual uint32_t GetBlobSize() = 0;
    // Number of the active set, 1-based; 0 means none.
    virtual uint32_t GetActiveSet(uint32_t group) = 0;
    virtual uint32_t GetActiveGroup() = 0;
    // Null leaves the region out of the combo boxes.
    virtual const char* GetRegionName(uint32_t position) = 0;
    // Name of a waveform, and in *value the number that stands for it in the option records.
    virtual const char* GetEpochName(uint32_t position, uint32_t* value) = 0;
    // False when the region has no extent for this data.
    virtual bool GetRegionInfo(uint32_t position, ZXADLG_RegionInfo* info, uint32_t group,
                               uint32_t set) = 0;
    virtual bool IsGroupVisible(uint32_t group) = 0;
    virtual bool IsSetVisible(uint32_t group, uint32_t set) = 0;
    // Copies the block counted by GetBlobSize; must not write more than `size` bytes.
    virtual void CopyBlob(void* dest, uint32_t size) = 0;
    // The data has no single continuous length.
    virtual bool IsSegmented() = 0;
    // The stable number of a region; negative hides it, 26 to 45 stand for the epoch variables.
    virtual int32_t GetRegionId(uint32_t position) = 0;
    // The host keeps a user-defined list of x values.
    virtual bool HasUserList() = 0;
    // Position of a cursor; cursors are numbered from 1.
    virtual int32_t GetCursor(uint32_t cursor) = 0;
    virtual void SetCursor(uint32_t cursor, int32_t position) = 0;
};

// A control file that the user can change while Subtract Control is open.
class ZXADLG_CLASS ZXADLG_CDlgFileSource {
  public:
    ZXADLG_SPECIAL_MEMBERS(ZXADLG_CDlgFileSource)

    // Groups of the current file; 0 when none is open.
    virtual int32_t GetGroupCount() = 0;
    // Identifier of the file just chosen, kept in the option record.
    virtual uint32_t GetFileHandle() = 0;
    virtual const char* GetGroupName(uint32_t group) = 0;
    // Text for the description line; the arguments are those of the dialog's initialisation.
    virtual const char* GetTitle(HWND__* dialog, HWND__* focus, intptr_t parameter) = 0;
    // Lets the user pick a file: its path, or null when the user gave up.
    virtual const char* BrowseForFile(HWND__* owner) = 0;
    // Makes the file with this identifier the current one.
    virtual void SelectFile(uint32_t file) = 0;
};

#undef ZXADLG_CLASS
#undef ZXADLG_SPECIAL_MEMBERS

extern "C" {

// Every function here takes the owner window (null: none), the option record, the data-selection
// record (null where the host keeps none), the host's data and the parameters. A null record,
// source or parameters gives ZXADLG_CREATE_FAILED, and nothing opens; so does a null data record
// with bUseDataOptions set. The settings are kept in the section of the store that the record's
// header names.

// Normalize: over all points, or between a baseline and a peak region.
int32_t ZXADLG_CALL ZXADLG_ShowNormalizeDialog(HWND__* parent, ZXADLG_NormalizeOptions* options,
                                               ZXADLG_DataOptions* data,
                                               ZXADLG_CDlgDataSource* source,
                                               const ZXADLG_DlgParams* params);

// Time Shift: by an interval in ms (a value or the distance of two cursors), or so that the peaks
// of a region stand under each other. A group that the data do not have becomes the last one, a
// region the first. The data tab has no group selector, whatever bShowGroupSelector says.
int32_t ZXADLG_CALL ZXADLG_ShowTimeShiftDialog(HWND__* parent, ZXADLG_TimeShiftOptions* options,
                                               ZXADLG_DataOptions* data,
                                               ZXADLG_CDlgDataSource* source,
                                               const ZXADLG_DlgParams* params);

// Force Values: a region is overwritten by a value at a cursor, a mean, a straight line, or a fixed
// value in the units of the data (GetUnits).
int32_t ZXADLG_CALL ZXADLG_ShowForceValuesDialog(HWND__* parent, ZXADLG_ForceValuesOptions* options,
                                                 ZXADLG_DataOptions* data,
                                                 ZXADLG_CDlgDataSource* source,
                                                 const ZXADLG_DlgParams* params);

// Adjust Baseline: by the mean or the slope of a region, by a fixed value, or by hand, which is
// offered with bAdjustBaselineFourthMethod. A region that the data do not have becomes the first.
int32_t ZXADLG_CALL ZXADLG_ShowAdjustBaselineDialog(HWND__* parent,
                                                    ZXADLG_AdjustBaselineOptions* options,
                                                    ZXADLG_DataOptions* data,
                                                    ZXADLG_CDlgDataSource* source,
                                                    const ZXADLG_DlgParams* params);

// Leak Subtraction: the waveform, the factor between units and the passive resistance in megohms. A
// factor that the user picks has single precision.
int32_t ZXADLG_CALL ZXADLG_ShowLeakSubtractionDialog(HWND__* parent,
                                                     ZXADLG_LeakSubtractionOptions* options,
                                                     ZXADLG_DataOptions* data,
                                                     ZXADLG_CDlgDataSource* source,
                                                     const ZXADLG_DlgParams* params);

// Resistance: the kind of clamp, the waveform and the factor between units.
int32_t ZXADLG_CALL ZXADLG_ShowResistanceDialog(HWND__* parent, ZXADLG_ResistanceOptions* options,
                                                ZXADLG_DataOptions* data,
                                                ZXADLG_CDlgDataSource* source,
                                                const ZXADLG_DlgParams* params);

// Data Reduction/Interpolation: how the sampling rate of the data is to be changed. No data record.
int32_t ZXADLG_CALL ZXADLG_ShowModifySamplingRateDialog(HWND__* parent,
                                                        ZXADLG_ModifySampleRateOptions* options,
                                                        ZXADLG_CDlgDataSource* source,
                                                        const ZXADLG_DlgParams* params);

// Current/Voltage: the x axis from the stimulus, the y axis from the response. The dialog writes
// the host's data record directly, also on Cancel; its selection is neither restored nor stored.
// Data without a stimulus waveform are refused with a message and ZXADLG_CANCEL, except in deferred
// mode.
int32_t ZXADLG_CALL ZXADLG_ShowCurrentVoltageDialog(HWND__* parent,
                                                    ZXADLG_CurrentVoltageOptions* options,
                                                    ZXADLG_DataOptions* data,
                                                    ZXADLG_CDlgDataSource* source,
                                                    const ZXADLG_DlgParams* params);

// Trace vs. Trace: a set of the data or a stimulus waveform on each axis. The data record is
// treated as by Current/Voltage.
int32_t ZXADLG_CALL ZXADLG_ShowTraceVsTraceDialog(HWND__* parent,
                                                  ZXADLG_TraceVsTraceOptions* options,
                                                  ZXADLG_DataOptions* data,
                                                  ZXADLG_CDlgDataSource* source,
                                                  const ZXADLG_DlgParams* params);

// Subtract Control: a control file and which of its signals are to be subtracted. No data record:
// the third argument is ignored and may be null. A null file source gives ZXADLG_CREATE_FAILED.
int32_t ZXADLG_CALL ZXADLG_ShowSubtractControlDialog(HWND__* parent,
                                                     ZXADLG_SubtractControlOptions* options,
                                                     void* unused, ZXADLG_CDlgDataSource* source,
                                                     ZXADLG_CDlgFileSource* fileSource,
                                                     const ZXADLG_DlgParams* params);

// Curve Fitting: the function and its own numbers, the fitting methods, seeds of the parameters,
// and the data to be fitted. Needs the library CURVEFIT beside the module; without it, or when it
// refuses the record's function, there is a message and the result is ZXADLG_CANCEL. Functions 19
// and 20 need a sheet and bUseDataOptions, and become 15 elsewhere. With bFitSelectRegionOne the
// analysis region starts as 1, with bFitKeepSeeds the seeds of the last OK stand where the data are
// of the same kind, and with bFitOptionByte the user may go on with another method where x is not
// evenly spaced.
int32_t ZXADLG_CALL ZXADLG_ShowCurveFitDialog(HWND__* parent, FitOptions* options,
                                              ZXADLG_DataOptions* data,
                                              ZXADLG_CDlgDataSource* source,
                                              const ZXADLG_DlgParams* params);

// Filter: one of five arrangements (bandpass, highpass, lowpass, electrical interference, notch).
// Data files give the sample interval, which OK hands back in the record; other data need it there.
// Cutoffs, widths and the interval come back with single precision, and uApplyOrder tells how many
// sections are applied one after another. The library FILTER beside the module is asked for the
// smallest number of points; without it that check is left out.
int32_t ZXADLG_CALL ZXADLG_ShowFilterDialog(HWND__* parent, FilterOptions* options,
                                            ZXADLG_DataOptions* data, ZXADLG_CDlgDataSource* source,
                                            const ZXADLG_DlgParams* params);

// Power Spectrum: the spectral window, the length of the transforms, their overlap, and what is
// averaged. uTransformLength comes back as the length in use, also where the user takes the longest
// one that the data allow, and bAverageTraces as what is in effect.
int32_t ZXADLG_CALL ZXADLG_ShowPowerSpectrumDialog(HWND__* parent, SpectrumOptions* options,
                                                   ZXADLG_DataOptions* data,
                                                   ZXADLG_CDlgDataSource* source,
                                                   const ZXADLG_DlgParams* params);

// Correlation: of one selection of data with itself, or of two with each other, over a number of
// lags. dSamplingFrequency is the user's and is in effect where the data tell none.
int32_t ZXADLG_CALL ZXADLG_ShowCorrelationDialog(HWND__* parent, ZXADLG_CorrelationOptions* options,
                                                 ZXADLG_DataOptions* data,
                                                 ZXADLG_CDlgDataSource* source,
                                                 const ZXADLG_DlgParams* params);

// Histogram: its kind, the width of its bins or their number per decade, and the limits of the data
// that it counts. The limits come back within the range of the selected data, nNumBins as the
// number that the width gives, and bNormalize 0 for bins of variable width.
int32_t ZXADLG_CALL ZXADLG_ShowHistogramDialog(HWND__* parent, ZXADLG_HistogramOptions* options,
                                               ZXADLG_DataOptions* data,
                                               ZXADLG_CDlgDataSource* source,
                                               const ZXADLG_DlgParams* params);

// Arithmetic: an expression over the traces of a data file, over the columns of a sheet, or for one
// new column (bNewColumnArithmetic, no effect on data files). The library does not compute it. On
// OK szExpression holds the expression, cut to its field: one without a left side comes back as
// "NEWCOL=..." and, as "y=...", in szDisplayExpression, which is empty for all others. The data
// record starts at its defaults whatever is stored; with bRemapColumns the expression is applied to
// the columns of its szDepVarSelectionList. The last argument is accepted and has no effect.
int32_t ZXADLG_CALL ZXADLG_ShowArithmeticDialog(HWND__* parent, ZXADLG_ArithmeticOptions* options,
                                                ZXADLG_DataOptions* data,
                                                ZXADLG_CDlgDataSource* source,
                                                const ZXADLG_DlgParams* params, int32_t reserved);

// Measurements: up to 24 searches, each with a region, a baseline, a polarity per group, a
// smoothing window and what is measured, and what a graph shows of it. `context` is never read and
// may be null. Where the data are a file and bImportAllowed is set, the searches that are shown are
// those of the record as it is passed, whatever is stored. OK writes into the record only named
// fields, so that bImportAllowed and the bytes between stay the host's, and with bUseDataOptions
// the regions of the searches that are on into the region table of the data record. With
// bImportFromFile the data selection is not stored.
int32_t ZXADLG_CALL ZXADLG_ShowMeasurementDialog(HWND__* parent, ZXADLG_MeasurementOptions* options,
                                                 void* context, ZXADLG_DataOptions* data,
                                                 ZXADLG_CDlgDataSource* source,
                                                 const ZXADLG_DlgParams* params);

// The fields of a record by the name of its type ("ZXADLG_NormalizeOptions"), in the order of the
// record. Stores a pointer to the first and returns their number; 0, and a null pointer, for a name
// that is none. `fields` may be null.
uint32_t ZXADLG_CALL ZXADLG_GetRecordFields(const char* record, const ZXADLG_FieldInfo** fields);

}  // extern "C"
