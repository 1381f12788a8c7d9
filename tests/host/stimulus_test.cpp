// Stimuli: protocols in words, waveforms from files, and what dialogs see of them. And the marks
// that a command line makes.
#include "Stimulus.h"

#include "Marks.h"
#include "host_test.h"

namespace {

using zxhost::Recording;
using zxhost::StepProtocol;

// 100 points at 1 kHz from 0 ms.
Recording Sweeps(std::size_t count) {
    Recording recording;
    for (int i = 0; i < 100; ++i) recording.x.push_back(i);
    recording.xUnits = "ms";
    recording.groups.push_back({"Im", "pA", {}, true});
    for (std::size_t i = 0; i < count; ++i)
        recording.groups[0].sets.push_back({"Sweep", "", std::vector<double>(100, 1.0), true});
    zxhost::AddCursorRegions(&recording);
    return recording;
}

std::string RegionText(const zxhost::Region& region) {
    return std::to_string(region.id) + " " + region.name + " " + std::to_string(region.firstPoint) +
           ".." + std::to_string(region.lastPoint);
}

class Stimulus : public host_test::HostTest {
  protected:
    std::string Refused(const std::string& text) {
        StepProtocol protocol;
        EXPECT_FALSE(zxhost::ParseProtocol(text, &protocol, &error)) << text;
        return error;
    }
    std::string error;
};

TEST_F(Stimulus, ReadsAProtocolInWords) {
    StepProtocol protocol;
    ASSERT_TRUE(zxhost::ParseProtocol("-80..+40 by 10 from 30 to 130 ms", &protocol, &error))
        << error;
    EXPECT_EQ(protocol.first, -80.0);
    EXPECT_EQ(protocol.last, 40.0);
    EXPECT_EQ(protocol.step, 10.0);
    EXPECT_EQ(protocol.units, "mV");
    EXPECT_EQ(protocol.begin, 30.0);
    EXPECT_EQ(protocol.end, 130.0);
    EXPECT_EQ(protocol.Sweeps(), 13u);
    ASSERT_TRUE(zxhost::ParseProtocol("100..-50 by -50 pA from 0.1 to 0.25 s", &protocol, &error))
        << error;
    EXPECT_EQ(protocol.units, "pA");
    EXPECT_EQ(protocol.begin, 100.0);
    EXPECT_EQ(protocol.end, 250.0);
    EXPECT_EQ(protocol.Sweeps(), 4u);
    EXPECT_TRUE(zxhost::LooksLikeProtocol("-80..40 rubbish"));
    EXPECT_FALSE(zxhost::LooksLikeProtocol("../cell.csv"));
    EXPECT_FALSE(zxhost::LooksLikeProtocol("80.csv"));
}

TEST_F(Stimulus, TellsWhereAProtocolIsWrong) {
    EXPECT_EQ(Refused("-80 by 10"), "place 1: FIRST..LAST was expected");
    EXPECT_EQ(Refused("-80..x by 10"), "place 1: FIRST..LAST was expected");
    EXPECT_EQ(Refused("-80..40 in 10"), "place 9: \"by\" was expected");
    EXPECT_EQ(Refused("-80..40 by 0 from 1 to 2 ms"),
              "place 12: a step that is not 0 was expected");
    EXPECT_EQ(Refused("-80..40 by 7 from 1 to 2 ms"),
              "place 12: a step that leads from -80 to 40 was expected");
    EXPECT_EQ(Refused("-80..40 by -10 from 1 to 2 ms"),
              "place 12: a step that leads from -80 to 40 was expected");
    EXPECT_EQ(Refused("-80..40 by 10 mV for 5 ms"), "place 18: \"from\" was expected");
    EXPECT_EQ(Refused("-80..40 by 10 from x"),
              "place 20: the time at which the step begins was expected");
    EXPECT_EQ(Refused("-80..40 by 10 from 5 till 9 ms"), "place 22: \"to\" was expected");
    EXPECT_EQ(Refused("-80..40 by 10 from 5 to 5 ms"),
              "place 25: a later time at which the step ends was expected");
    EXPECT_EQ(Refused("-80..40 by 10 from 5 to 9 mm"),
              "place 27: a unit of time (s, ms, us, µs or min) was expected");
    EXPECT_EQ(Refused("-80..40 by 10 from 5 to 9 ms please"),
              "place 30: the end of the protocol was expected");
}

TEST_F(Stimulus, AProtocolGivesAWaveformAndAnEpoch) {
    Recording recording = Sweeps(3);
    StepProtocol protocol;
    ASSERT_TRUE(zxhost::ParseProtocol("-80..-60 by 10 from 30 to 50 ms", &protocol, &error));
    ASSERT_TRUE(zxhost::ApplyProtocol(protocol, &recording, &error)) << error;
    ASSERT_EQ(recording.waveforms.size(), 1u);
    EXPECT_EQ(recording.waveforms[0].name, "Command potential");
    EXPECT_EQ(RegionText(recording.regions[3]), "3 Epoch A 30..49");
    EXPECT_EQ(RegionText(recording.regions[4]), "26  30..49") << "the variable of its level";
    EXPECT_EQ(recording.notes.back(),
              "the stimulus steps from -80 to -60 mV by 10, in points 31 to 50");
    Recording other = Sweeps(4);
    EXPECT_FALSE(zxhost::ApplyProtocol(protocol, &other, &error));
    EXPECT_EQ(error, "the protocol has 3 steps and the recording 4 sweeps");
    protocol.begin = 99.5;
    protocol.end = 120.0;
    EXPECT_FALSE(zxhost::ApplyProtocol(protocol, &recording, &error));
    EXPECT_EQ(error,
              "the step from 99.5 to 120 ms holds no point of the recording, which lasts from 0 to "
              "99 ms");
    recording.kind = zxhost::DataKind::kSheet;
    EXPECT_FALSE(zxhost::ApplyProtocol(protocol, &recording, &error));
    EXPECT_EQ(error, "a stimulus needs a recording in time; this is another kind of data");
}

TEST_F(Stimulus, AWaveformFileGivesItsSignalsAndEpochs) {
    std::string rows = "Time (ms),Command (mV),Light (V)\n";
    for (int i = 0; i < 100; ++i) {
        const char* level = i < 20 ? "-80" : i < 60 ? "-40" : i < 70 ? "-60" : "-80";
        rows += std::to_string(i) + "," + level + ",0.5\n";
    }
    Recording recording = Sweeps(3);
    ASSERT_TRUE(zxhost::ApplyWaveformFile(WriteFile("w.csv", rows), &recording, &error)) << error;
    ASSERT_EQ(recording.waveforms.size(), 2u);
    EXPECT_EQ(recording.waveforms[0].name, "Command");
    EXPECT_EQ(recording.waveforms[1].name, "Light");
    EXPECT_EQ(recording.waveforms[1].number, 1u);
    ASSERT_EQ(recording.regions.size(), 7u);
    EXPECT_EQ(RegionText(recording.regions[3]), "3 Epoch A 20..59");
    EXPECT_EQ(RegionText(recording.regions[5]), "5 Epoch B 60..69");
    EXPECT_EQ(recording.notes.back(),
              "the stimulus is \"Command\", with steps that begin at points 21, 61");
    std::string ramp = "Time (ms),Command (mV)\n";
    for (int i = 0; i < 100; ++i) ramp += std::to_string(i) + "," + std::to_string(-i) + "\n";
    recording = Sweeps(3);
    ASSERT_TRUE(zxhost::ApplyWaveformFile(WriteFile("r.csv", ramp), &recording, &error)) << error;
    EXPECT_EQ(recording.regions.size(), 3u);
    EXPECT_EQ(recording.notes.back(), "the stimulus is \"Command\", which has no steps");
}

TEST_F(Stimulus, AWaveformFileMustFitTheRecording) {
    Recording recording = Sweeps(3);
    const auto refused = [&](const std::string& bytes) {
        const std::string path = WriteFile("w.csv", bytes);
        EXPECT_FALSE(zxhost::ApplyWaveformFile(path, &recording, &error));
        EXPECT_TRUE(recording.waveforms.empty());
        EXPECT_EQ(error.substr(0, path.size() + 2), path + ": ");
        return error.substr(path.size() + 2);
    };
    EXPECT_EQ(refused("Time (ms),C\n0,1\n1,1\n"),
              "the waveform has 2 points and the recording 100");
    std::string late = "Time (ms),C\n", two = "Time (ms),C 1,C 2\n";
    for (int i = 0; i < 100; ++i) {
        late += std::to_string(i < 50 ? i : i + 1) + ",1\n";
        two += std::to_string(i) + ",1,2\n";
    }
    EXPECT_EQ(refused(late), "the waveform's time at point 51 is 51 ms and the recording's 50 ms");
    EXPECT_EQ(refused(two), "the waveform has 2 sweeps and the recording 3");
}

TEST(Marks, AreReadAndRefused) {
    zxhost::CursorMark cursor;
    zxhost::RegionMark region;
    std::string error;
    ASSERT_TRUE(zxhost::ParseCursorMark("3=-12.5", &cursor, &error)) << error;
    EXPECT_EQ(cursor.cursor, 3);
    EXPECT_EQ(cursor.at, -12.5);
    for (const char* text : {"5=1", "0=1", "1", "1=", "1=x", "11=2", ""}) {
        EXPECT_FALSE(zxhost::ParseCursorMark(text, &cursor, &error)) << text;
        EXPECT_EQ(error, std::string("\"") + text + "\" should be N=MS with N from 1 to 4");
    }
    ASSERT_TRUE(zxhost::ParseRegionMark("Peak=30..60.5", &region, &error)) << error;
    EXPECT_EQ(region.name, "Peak");
    EXPECT_EQ(region.from, 30.0);
    EXPECT_EQ(region.to, 60.5);
    for (const char* text : {"Peak", "Peak=30", "Peak=60..30", "=1..2", "P=a..2", "P=1..b"}) {
        EXPECT_FALSE(zxhost::ParseRegionMark(text, &region, &error)) << text;
        EXPECT_EQ(error, std::string("\"") + text + "\" should be NAME=FROM..TO in ms");
    }
}

TEST(Marks, ArePutOnTheNearestPoint) {
    Recording recording = Sweeps(1);
    std::string error;
    ASSERT_TRUE(zxhost::ApplyMarks({{1, 10.4}, {2, 10.6}, {4, 99.0}}, {{"Peak", 30.0, 60.0}},
                                   &recording, &error))
        << error;
    EXPECT_EQ(recording.cursors[0], 10);
    EXPECT_EQ(recording.cursors[1], 11);
    EXPECT_EQ(recording.cursors[2], 55);
    EXPECT_EQ(recording.cursors[3], 99);
    EXPECT_EQ(RegionText(recording.regions.back()), "3 Peak 30..60");
    EXPECT_FALSE(zxhost::ApplyMarks({{1, 5.0}, {2, 99.5}}, {}, &recording, &error));
    EXPECT_EQ(error, "cursor 2 at 99.5 is outside of the data, 0 to 99 ms");
    EXPECT_EQ(recording.cursors[0], 10);
    EXPECT_FALSE(zxhost::ApplyMarks({}, {{"Late", 30.0, 100.0}}, &recording, &error));
    EXPECT_EQ(error, "the end of region \"Late\" at 100 is outside of the data, 0 to 99 ms");
    EXPECT_FALSE(zxhost::ApplyMarks({}, {{"Peak", 1.0, 2.0}}, &recording, &error));
    EXPECT_EQ(error, "there is already a region \"Peak\"");
}

TEST(Marks, OfASheetAreRows) {
    Recording sheet = Sweeps(1);
    sheet.kind = zxhost::DataKind::kSheet;
    sheet.x.clear();
    std::string error;
    ASSERT_TRUE(zxhost::ApplyMarks({{1, 1.0}, {2, 100.0}}, {}, &sheet, &error)) << error;
    EXPECT_EQ(sheet.cursors[0], 0);
    EXPECT_EQ(sheet.cursors[1], 99);
    EXPECT_FALSE(zxhost::ApplyMarks({{1, 0.0}}, {}, &sheet, &error));
    EXPECT_EQ(error, "cursor 1 at 0 is outside of the data, rows 1 to 100");
}

// Dialogs take these numbers for variables of epochs.
TEST(Regions, PassOverTheNumbersOfVariables) {
    Recording recording = Sweeps(1);
    for (int i = 0; i < 25; ++i) zxhost::AddRegion(&recording, "R", 0, 1);
    EXPECT_EQ(recording.regions[25].id, 25);
    EXPECT_EQ(recording.regions[26].id, 46);
    EXPECT_EQ(recording.regions[27].id, 47);
}

}  // namespace
