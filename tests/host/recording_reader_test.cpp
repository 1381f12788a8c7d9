// Recordings out of columns: what is a signal and what a sweep, and in what the time is.
#include "RecordingReader.h"
#include "host_test.h"

namespace {

using zxhost::DataKind;
using zxhost::Layout;
using zxhost::Recording;

class RecordingReader : public host_test::HostTest {
  protected:
    bool Read(const std::string& bytes, const zxhost::ReadingOptions& options = {}) {
        path = WriteFile("cell.csv", bytes);
        error = "";
        return zxhost::ReadRecording(path, options, &recording, &error);
    }
    // The error without the path in front of it.
    std::string Refused(const std::string& bytes, const zxhost::ReadingOptions& options = {}) {
        EXPECT_FALSE(Read(bytes, options));
        EXPECT_EQ(error.substr(0, path.size() + 2), path + ": ");
        return error.substr(std::min(error.size(), path.size() + 2));
    }
    // "Im in pA: Sweep 1, Sweep 2; Vm in mV: Sweep 1, Sweep 2"
    std::string Shape() const {
        std::string text;
        for (const zxhost::Group& group : recording.groups) {
            text += (text.empty() ? "" : "; ") + group.name + " in " + group.units + ":";
            for (const zxhost::Set& set : group.sets)
                text += (&set == &group.sets[0] ? " " : ", ") + set.name;
        }
        return text;
    }

    std::string path;
    std::string error;
    Recording recording;
};

TEST_F(RecordingReader, TakesColumnsWithOtherNamesOrUnitsAsSignals) {
    ASSERT_TRUE(Read("Time (ms),Im (pA),Vm (mV)\n0,1.5,2\n1,3,4\n")) << error;
    EXPECT_EQ(Shape(), "Im in pA: Sweep 1; Vm in mV: Sweep 1");
    EXPECT_EQ(recording.groups[1].sets[0].values, (std::vector<double>{2, 4}));
    ASSERT_TRUE(Read("Time (ms),A (mV),B (mV)\n0,1.5,2\n1,3,4\n")) << error;
    EXPECT_EQ(Shape(), "A in mV: Sweep 1; B in mV: Sweep 1");
    ASSERT_TRUE(Read("Time (ms),Im (pA),Im (nA)\n0,1.5,2\n1,3,4\n")) << error;
    EXPECT_EQ(Shape(), "Im in pA: Sweep 1; Im in nA: Sweep 1");
}

TEST_F(RecordingReader, TakesColumnsWithOneNameOrNoneAsSweeps) {
    ASSERT_TRUE(Read("Time (ms),Im (pA),Im (pA)\n0,1.5,2\n1,3,4\n")) << error;
    EXPECT_EQ(Shape(), "Im in pA: Sweep 1, Sweep 2");
    ASSERT_TRUE(Read("Time (ms),Im 1 (pA),Im-2 (pA),Im#3 (pA)\n0,1.5,2,3\n1,3,4,5\n")) << error;
    EXPECT_EQ(Shape(), "Im in pA: Im 1, Im-2, Im#3");
    ASSERT_TRUE(Read("0 1.5 2\n1 3 4\n")) << error;
    EXPECT_EQ(Shape(), "Signal 1 in : Sweep 1, Sweep 2");
}

TEST_F(RecordingReader, TakesSweepsOfSeveralSignals) {
    ASSERT_TRUE(Read("Time (ms),Im 1 (pA),Vm 1 (mV),Im 2 (pA),Vm 2 (mV)\n0,1,2,3,4\n1,5,6,7,8.5\n"))
        << error;
    EXPECT_EQ(Shape(), "Im in pA: Sweep 1, Sweep 2; Vm in mV: Sweep 1, Sweep 2");
    EXPECT_EQ(recording.groups[1].sets[1].values, (std::vector<double>{4, 8.5}));
    EXPECT_EQ(recording.Describe(),
              "cell.csv: 2 signals (Im in pA, Vm in mV), 2 sweeps, 2 points at 1 kHz, 0 to 1 ms");
    EXPECT_EQ(Refused("Time (ms),Im 1 (pA),Im 2 (pA),Vm (mV)\n0,1,2,3.5\n"),
              "\"Vm\" has 1 and \"Im\" 2 sweeps; --layout sweeps or --layout signals says what the "
              "columns are");
}

TEST_F(RecordingReader, TakesTheLayoutThatTheCallerSays) {
    const std::string one = "Time (ms),A (mV),B (mV)\n0,1.5,2\n1,3,4\n";
    ASSERT_TRUE(Read(one, {.layout = Layout::kSweeps})) << error;
    EXPECT_EQ(Shape(), "Signal 1 in mV: A, B");
    ASSERT_TRUE(Read("Time (ms),Im 1 (pA),Im 2 (pA)\n0,1.5,2\n", {.layout = Layout::kSignals}))
        << error;
    EXPECT_EQ(Shape(), "Im 1 in pA: Sweep 1; Im 2 in pA: Sweep 1");
    EXPECT_EQ(Refused("Time (ms),A (mV),B (pA)\n0,1.5,2\n", {.layout = Layout::kSweeps}),
              "--layout sweeps makes one signal, and column 3 \"B (pA)\" is not in \"mV\"");
}

TEST_F(RecordingReader, UnderstandsUnitsOfTime) {
    const struct {
        const char* units;
        double milliseconds;
    } kRows[] = {{"s", 1000},        {"S", 1000},    {"ms", 1},      {"MS", 1},
                 {"us", 0.001},      {"US", 0.001},  {"µs", 0.001},  {"µS", 0.001},
                 {"\u03BCs", 0.001}, {"min", 60000}, {"Min", 60000}, {"h", 0},
                 {"m", 0},           {"", 0}};
    for (const auto& [units, milliseconds] : kRows)
        EXPECT_EQ(zxhost::MillisecondsOf(units), milliseconds) << units;
    ASSERT_TRUE(Read("Time (s),Vm (mV)\n0,1.5\n0.00025,2\n0.0005,3\n")) << error;
    EXPECT_EQ(recording.samplingFrequency, 4000.0);
    EXPECT_EQ(recording.x, (std::vector<double>{0, 0.25, 0.5}));
    EXPECT_EQ(recording.xUnits, "ms");
    EXPECT_TRUE(recording.notes.empty());
    EXPECT_EQ(recording.Describe(),
              "cell.csv: 1 signal (Vm in mV), 1 sweep, 3 points at 4 kHz, 0 to 0.5 ms");
}

TEST_F(RecordingReader, TellsWhatItAssumesOfTheTime) {
    ASSERT_TRUE(Read("0 1.5\n4 2\n8 3\n")) << error;
    EXPECT_EQ(recording.samplingFrequency, 250.0);
    EXPECT_EQ(recording.notes,
              (std::vector<std::string>{"the x column has no units and is taken as ms; --x-units "
                                        "s, us or min says otherwise"}));
    ASSERT_TRUE(Read("Time (ms),V\n0,1.5\n4,2\n8,3\n", {.xUnits = "us"})) << error;
    EXPECT_EQ(recording.samplingFrequency, 250000.0);
    EXPECT_TRUE(recording.notes.empty());
}

// Times of single precision are 0.25000001 ms apart.
TEST_F(RecordingReader, TakesTheFrequencyThatTimesOfFewDigitsMean) {
    ASSERT_TRUE(Read("0 1.5\n0.2500000118743628 2\n0.5000000237487257 3\n")) << error;
    EXPECT_EQ(recording.samplingFrequency, 4000.0);
    ASSERT_TRUE(Read("0 1.5\n0.250001 2\n0.500002 3\n")) << error;
    EXPECT_EQ(recording.samplingFrequency, 1000.0 * 2 / 0.500002);
    ASSERT_TRUE(Read("0 1.5\n8000 2\n16000.0008 3\n")) << error;
    EXPECT_EQ(recording.samplingFrequency, 0.125);
}

TEST_F(RecordingReader, RefusesOtherUnitsOfTheXColumn) {
    EXPECT_EQ(Refused("Time (h),V\n0,1.5\n"),
              "the x column is \"Time (h)\", and \"h\" is no unit of time: s, ms, us, µs and min "
              "are; --x-units tells the unit, --recording second-kind takes any");
    ASSERT_TRUE(Read("Vm (mV),Im (pA)\n0,1.5\n1,2\n", {.kind = DataKind::kSecondKind})) << error;
    EXPECT_EQ(recording.xUnits, "mV");
    EXPECT_EQ(recording.samplingFrequency, 0.0);
    EXPECT_EQ(recording.Describe(), "cell.csv: 1 signal (Im in pA), 1 sweep, 2 points, 0 to 1 mV");
}

TEST_F(RecordingReader, MakesASheetOfAllColumns) {
    ASSERT_TRUE(Read("Step (mV),Peak\n-80,1.5\n-70,2\n", {.kind = DataKind::kSheet})) << error;
    EXPECT_EQ(recording.Describe(), "cell.csv: 2 columns (Step in mV, Peak), 2 rows");
    EXPECT_EQ(recording.groups[0].sets[0].units, "mV");
    ASSERT_TRUE(Read("1 2 3 4 5 6 7.5\n", {.kind = DataKind::kSheet})) << error;
    EXPECT_EQ(recording.Describe(),
              "cell.csv: 7 columns (Column 1, Column 2, Column 3, Column 4, Column 5, Column 6, "
              "...), 1 row");
}

TEST_F(RecordingReader, RefusesARecordingWithoutTracesOrWithAnAxisThatFalls) {
    ASSERT_TRUE(Read("0 1.5\n1 2\n")) << error;
    EXPECT_EQ(Refused("1\n2\n"),
              "a recording needs an x column and at least one trace; this has one column, which "
              "--recording sheet reads");
    EXPECT_EQ(Refused("1 1\n2 1\n2 1\n"),
              "the x column does not rise at its value 3; --recording sheet reads the columns as "
              "they are");
    EXPECT_EQ(recording.PointCount(), 2u) << "what was read before stays";
}

}  // namespace
