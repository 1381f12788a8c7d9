// Whole runs of the host: a dialog opened, a script played, records and store told.
#include <cstdlib>
#include <filesystem>

#include "HostFileSource.h"
#include "SettingsStore.h"
#include "host_test.h"
#include "platform/platform.h"

namespace {

class HostRun : public host_test::HostTest {};

constexpr char kSource[] = ZX_SOURCE_DIR;

TEST_F(HostRun, GivesTheSameRecordsAndTheSameStoreOnEverySystem) {
    ASSERT_EQ(Run({"run", "normalize", "--script",
                   std::string(kSource) + "/host/examples/normalize.script", "--store", Store()}),
              zxhost::kDone)
        << err;
    EXPECT_EQ(err, "");
    EXPECT_EQ(out, ReadFile(std::string(kSource) + "/tests/host/normalize_run.txt"));
    EXPECT_EQ(ReadFile(Store()),
              ReadFile(std::string(kSource) + "/tests/host/normalize_store.txt"));
}

TEST_F(HostRun, PreparesACurveFitAsItsExampleSays) {
    ASSERT_EQ(Run({"run", "curve-fit", "--script",
                   std::string(kSource) + "/host/examples/curve-fit.script", "--store", Store()}),
              zxhost::kDone)
        << err;
    EXPECT_TRUE(OutHas("result: 1 (OK)\n"));
    EXPECT_TRUE(OutHas("  uDlgFitOrder: 1 -> 2\n"));
    EXPECT_TRUE(OutHas("  eSearchMethod: 3 -> 0\n"));
    EXPECT_TRUE(OutHas("  uConstraints[0]: 0 -> 1\n"));
    EXPECT_NE(ReadFile(Store()).find("DlgConstraint0=1"), std::string::npos);
}

TEST_F(HostRun, MeasuresInThreeSearchesAsItsExampleSays) {
    ASSERT_EQ(Run({"run", "measurement", "--script",
                   std::string(kSource) + "/host/examples/measurement.script", "--store", Store()}),
              zxhost::kDone)
        << err;
    EXPECT_EQ(err, "");
    EXPECT_TRUE(OutHas("result: 1 (OK)\n"));
    for (const char* szLine :
         {"  aSearches[0].bStanDev: 0 -> 1\n", "  aSearches[0].nSmoothingPoints: 5 -> 7\n",
          "  aSearches[1].bRegionEnable: 0 -> 1\n", "  aSearches[1].nRiseFromPercent: 10 -> 20\n",
          "  aSearches[2].bMaxDecaySlopeTime: 0 -> 1\n", "  aSearches[2].nNumYPlotItems: 0 -> 1\n",
          "  aSearches[2].aeAutoPlotYVariable[0]: 0 -> 10\n",
          "  aStatsRegions[0].dStatsRegionEndTime: 0 -> 30\n",
          "  aBaselines[2].dBaseFixedValue: 0 -> -70.5\n",
          "  aPolarities[1].aePeakPolarity[0]: 0 -> 1\n"})
        EXPECT_TRUE(OutHas(szLine)) << szLine;
    EXPECT_NE(ReadFile(Store()).find("BaseFixedValue2=-70.5"), std::string::npos);
}

// The rows of the sheet are too few for a filter or a spectrum.
TEST_F(HostRun, OpensSignalProcessingOnItsOwnRecordings) {
    for (const std::string szRecording : {"family", "second-kind", "no-waveform", "sheet"}) {
        const bool bSheet = szRecording == "sheet";
        const std::string steps = WriteFile("steps.txt", bSheet ? "cancel\n" : "ok\n");
        for (const std::string szAnalysis : {"filter", "power-spectrum", "correlation"}) {
            SCOPED_TRACE(szAnalysis + " on " + szRecording);
            ASSERT_EQ(Run({"run", szAnalysis, "--recording", szRecording, "--script", steps,
                           "--store", Store()}),
                      zxhost::kDone)
                << err;
            EXPECT_TRUE(OutHas(bSheet ? "result: 2 (Cancel)\n" : "result: 1 (OK)\n")) << out;
            EXPECT_EQ(err, "");
        }
    }
    const std::string stored = ReadFile(Store());
    for (const char* szSection :
         {"[LowpassFilterSection]", "[PowerSpectrumSection]", "[CorrelationSection]",
          "[FilterDataSection]", "[SpectrumDataSection]", "[CorrelationDataSection]"})
        EXPECT_NE(stored.find(szSection), std::string::npos) << szSection;
}

TEST_F(HostRun, OpensTheHistogramOnItsOwnRecordings) {
    const std::string steps = WriteFile(
        "steps.txt",
        "expect text 2329 \"20\"\nexpect text 2332 \"10\"\nexpect checked \"Ma&ximum\"\nok\n");
    for (const std::string szRecording : {"family", "second-kind", "no-waveform", "sheet"}) {
        SCOPED_TRACE(szRecording);
        ASSERT_EQ(Run({"run", "histogram", "--recording", szRecording, "--script", steps, "--store",
                       Store() + szRecording}),
                  zxhost::kDone)
            << err;
        EXPECT_TRUE(OutHas("result: 1 (OK)\n")) << out;
        EXPECT_TRUE(OutHas("  nNumBins: 0 -> ")) << out;
        EXPECT_EQ(err, "");
        const std::string stored = ReadFile(Store() + szRecording);
        for (const char* szSection : {"[HistogramSection]", "[HistogramDataSection]"})
            EXPECT_NE(stored.find(szSection), std::string::npos) << szSection;
    }
}

TEST_F(HostRun, OpensTheThreeFormsOfArithmetic) {
    const struct {
        const char* analysis;
        const char* recording;
        const char* typed;
        const char* stored;
    } rows[] = {{"arithmetic", "family", "t1=t2", "szExpression: \"\" -> \"t1=t2\""},
                {"arithmetic", "sheet", "A=B", "szExpression: \"\" -> \"A=B\""},
                {"new-column", "sheet", "A+B", "szExpression: \"\" -> \"NEWCOL=A+B\""}};
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.analysis) + " on " + row.recording);
        const std::string steps =
            WriteFile("steps.txt", "expect title \"Arithmetic\"\ntype 2527 \"" +
                                       std::string(row.typed) + "\"\nok\n");
        // The forms share their histories: in a store that has been used the title is asked for.
        ASSERT_EQ(Run({"run", row.analysis, "--recording", row.recording, "--script", steps,
                       "--store", Store() + row.analysis + row.recording}),
                  zxhost::kDone)
            << err;
        EXPECT_TRUE(OutHas("result: 1 (OK)\n")) << out;
        EXPECT_NE(out.find(row.stored), std::string::npos) << out;
    }
}

TEST_F(HostRun, BuildsAnExpressionAsItsExampleSays) {
    ASSERT_EQ(Run({"run", "arithmetic", "--script",
                   std::string(kSource) + "/host/examples/arithmetic.script", "--store", Store()}),
              zxhost::kDone)
        << err;
    EXPECT_TRUE(OutHas("result: 1 (OK)\n"));
    EXPECT_NE(ReadFile(Store()).find("TraceExpression0=t1 = sin(t2)*_pi"), std::string::npos);
}

TEST_F(HostRun, AMenuIsPickedFromWhereItIsOpenAndHasTheItem) {
    EXPECT_NE(Run({"run", "arithmetic", "--script",
                   WriteFile("steps.txt", "click 2445\npick \"cosh()\"\n"), "--store", Store()}),
              zxhost::kDone);
    EXPECT_NE(err.find("the menu has no item \"cosh()\"; there are \"arcos()\", \"arsin()\""),
              std::string::npos)
        << err;
}

TEST_F(HostRun, FindsTheSettingsOfTheLastRun) {
    ASSERT_EQ(Play("click \"Use specified regions\"\nchoose 2364 \"Cursors 3..4\"\nok\n"), 0)
        << err;
    EXPECT_TRUE(OutHas("result: 1 (OK)\n"));
    ASSERT_EQ(
        Play("expect chosen 2364 \"Cursors 3..4\"\nexpect checked \"Use &specified regions\"\n"
             "cancel\n"),
        0)
        << err;
    EXPECT_TRUE(
        OutHas("result: 2 (Cancel)\nchanged in ZXADLG_NormalizeOptions:\n  nothing\n"
               "changed in ZXADLG_DataOptions:\n  nothing\n"));
    EXPECT_TRUE(OutHas("  eBaselineRegion=2\n"));
}

TEST_F(HostRun, ReadOnlyDisplaysAndKeepsTheStore) {
    ASSERT_EQ(Play("expect title \"Normalize (read only)\"\nexpect hidden 1\nclick \"Close\"\n",
                   {"--read-only"}),
              0)
        << err;
    EXPECT_TRUE(OutHas("store:\n  empty\n"));
    EXPECT_FALSE(std::filesystem::exists(Store()));
}

TEST_F(HostRun, DeferredGivesTheRecordsAndKeepsTheStore) {
    ASSERT_EQ(Play("click 2362\nok\n", {"--deferred"}), 0) << err;
    EXPECT_TRUE(OutHas("  bUseAllPoints: 0 -> 1\n"));
    EXPECT_TRUE(OutHas("store:\n  empty\n"));
    EXPECT_FALSE(std::filesystem::exists(Store()));
}

TEST_F(HostRun, ParametersChangeWhatTheDialogShows) {
    ASSERT_EQ(Play("expect hidden 2246\ncancel\n", {"--params", "bShowDestination=0"}), 0) << err;
    ASSERT_EQ(Play("expect shown 2246\ncancel\n"), 0) << err;
}

TEST_F(HostRun, OpensDataFromAFile) {
    std::string rows = "Time (ms),Vm (mV)\n";
    for (int i = 0; i < 400; ++i) rows += std::to_string(i) + "," + std::to_string(i % 7) + "\n";
    ASSERT_EQ(Play("click 2362\nexpect text 2368 \"= 400 points\"\nok\n",
                   {"--data", WriteFile("cell.csv", rows)}),
              0)
        << err;
    EXPECT_TRUE(
        OutHas("data: cell.csv: 1 signal (Vm in mV), 1 sweep, 400 points at 1 kHz, 0 to "
               "399 ms\nresult"));
    EXPECT_TRUE(OutHas("  dMaxValue: 0 -> 6\n"));
    EXPECT_TRUE(OutHas("  dSamplingFrequency: 0 -> 1000\n"));
}

TEST_F(HostRun, PlaysOnEveryKindOfData) {
    for (const char* kind : {"family", "second-kind", "no-waveform", "sheet"}) {
        SCOPED_TRACE(kind);
        EXPECT_EQ(Play("tab Data\nexpect tab Data\ntab Options\nok\n", {"--recording", kind}), 0)
            << err;
    }
}

TEST_F(HostRun, OpensEveryAnalysisAndKeepsItsSettings) {
    const std::string script = WriteFile("steps.txt", "ok\n");
    for (const zxhost::Analysis& analysis : zxhost::kAnalyses) {
        SCOPED_TRACE(analysis.name);
        const std::string store = Store() + analysis.name;
        EXPECT_EQ(Run({"run", analysis.name, "--script", script, "--store", store}), 0) << err;
        EXPECT_TRUE(OutHas("result: 1 (OK)\n")) << out;
        EXPECT_NE(ReadFile(store), "");
    }
}

TEST_F(HostRun, ShowsEveryAnalysisReadOnly) {
    const std::string script = WriteFile("steps.txt", "expect hidden 1\ncancel\n");
    for (const zxhost::Analysis& analysis : zxhost::kAnalyses) {
        SCOPED_TRACE(analysis.name);
        EXPECT_EQ(
            Run({"run", analysis.name, "--script", script, "--store", Store(), "--read-only"}), 0)
            << err;
    }
    EXPECT_FALSE(std::filesystem::exists(Store()));
}

TEST_F(HostRun, LetsTheUserPickAControlFile) {
    const std::string script = WriteFile("steps.txt", "click \"Select File\"\nok\n");
    const std::string control = WriteFile("leak.csv", "ms,Im (pA),Im (pA)\n0,1,2\n1,1,2\n2,1,2\n");
    EXPECT_EQ(Run({"run", "subtract-control", "--script", script, "--store", Store(), "--control",
                   control}),
              0)
        << err;
    EXPECT_TRUE(OutHas("leak.csv\"\n")) << out;
    EXPECT_TRUE(OutHas("  nFileID: 0 -> 1\n")) << out;
    EXPECT_TRUE(OutHas("  nNumGroups: 0 -> 1\n")) << out;
}

TEST_F(HostRun, AControlFileThatCannotBeReadIsToldBeforeTheDialogOpens) {
    const std::string script = WriteFile("steps.txt", "click \"Select File\"\nok\n");
    const std::string control = WriteFile("broken.csv", "a,b\n1\nx,y\n");
    EXPECT_EQ(Run({"run", "subtract-control", "--script", script, "--store", Store(), "--control",
                   control}),
              zxhost::kNoInput);
    EXPECT_EQ(err, "zxhost: " + control + ":2: 1 value where the lines before have 2\n");
    EXPECT_EQ(out, "");
}

// In the window the user may pick any file.
TEST_F(HostRun, AControlFileThatCannotBeReadLeavesPathAndList) {
    std::string told;
    const std::string control = WriteFile("broken.csv", "a,b\n1\nx,y\n");
    zxhost::HostFileSource files([&](HWND__*) { return control; },
                                 [&](const std::string& why) { told = why; });
    EXPECT_EQ(files.BrowseForFile(nullptr), nullptr);
    EXPECT_EQ(told, control + ":2: 1 value where the lines before have 2");
    EXPECT_EQ(files.GetGroupCount(), 0);
    EXPECT_EQ(files.GetFileHandle(), 0u);
}

TEST_F(HostRun, WithoutAControlFileBrowsingIsANo) {
    const std::string script = WriteFile("steps.txt", "click \"Select File\"\nok\n");
    EXPECT_EQ(Run({"run", "subtract-control", "--script", script, "--store", Store()}), 0) << err;
    EXPECT_FALSE(OutHas("nFileID: 0")) << out;
}

TEST_F(HostRun, AFailedStepTellsItsLineAndLeavesNothing) {
    const std::string script = scratch.File("steps.txt");
    EXPECT_EQ(Play("click 2362\n\nexpect disabled 2364\nok\n"), zxhost::kScriptFailed);
    EXPECT_EQ(err, script + ":3: control 2364 is not disabled\n");
    EXPECT_TRUE(OutHas("result: 2 (Cancel)\n"));
    EXPECT_FALSE(std::filesystem::exists(Store()));
    EXPECT_EQ(Play("click 4711\nok\n"), zxhost::kScriptFailed);
    EXPECT_EQ(err.find(script + ":1: there is no control 4711; there are "), 0u) << err;
    EXPECT_NE(err.find(", 2364 \"Baseline region\", "), std::string::npos) << err;
    EXPECT_NE(err.find(", 1 \"OK\", 2 \"Cancel\""), std::string::npos) << err;
    EXPECT_EQ(Play("click \"Select Some\"\nok\n"), zxhost::kScriptFailed);
    EXPECT_EQ(err.find(script + ":1: there is no control \"Select Some\"; there are "), 0u) << err;
    EXPECT_EQ(Play("choose 2364 1\nok\n"), zxhost::kScriptFailed);
    EXPECT_EQ(err, script + ":1: control 2364 cannot be used: it is disabled\n");
    EXPECT_EQ(
        Play("click 2362\nchoose 2364 \"Cursors 7..8\"\nok\n", {"--recording", "no-waveform"}),
        zxhost::kScriptFailed);
    EXPECT_EQ(err, script +
                       ":2: control 2364 has no item \"Cursors 7..8\"; there are \"Whole sweep\", "
                       "\"Cursors 1..2\", \"Cursors 3..4\"\n");
    EXPECT_EQ(Play("tab Output\nok\n"), zxhost::kScriptFailed);
    EXPECT_EQ(err, script + ":1: there is no tab \"Output\"; there are \"Options\", \"Data\"\n");
    EXPECT_EQ(Play("expect title \"Other\"\nok\n"), zxhost::kScriptFailed);
    EXPECT_EQ(err, script + ":1: the title is \"Normalize\" and should be \"Other\"\n");
}

TEST_F(HostRun, AScriptMustEndWithTheDialog) {
    const std::string script = scratch.File("steps.txt");
    EXPECT_EQ(Play("expect title Normalize\n"), zxhost::kScriptFailed);
    EXPECT_EQ(err, script + ":1: the script is over and the dialog is still open\n");
    EXPECT_EQ(Play("ok\ntab Data\n"), zxhost::kScriptFailed);
    EXPECT_EQ(err, script + ":2: the dialog closed before this step: tab Data\n");
    EXPECT_EQ(Play("wait 3000\nok\n", {"--time-limit", "1"}), zxhost::kScriptFailed);
    EXPECT_EQ(err, script + ":1: the script takes longer than 1 s\n");
}

TEST_F(HostRun, MessagesAreMetAndTold) {
    const char kWrongList[] = "tab Data\nclick 2241\ntype 2237 \"9..x\"\nok\n";
    EXPECT_EQ(Play(kWrongList), zxhost::kScriptFailed);
    const std::string unexpected = ":4: a message appears that the script does not expect: \"";
    const std::size_t at = err.find(unexpected);
    // It is told at the line after the one that caused it.
    EXPECT_NE(at, std::string::npos) << err;
    const std::string script = std::string(kWrongList) + "answer OK\ncancel\n";
    EXPECT_EQ(Play(script), zxhost::kDone) << err;
    EXPECT_TRUE(OutHas("message: ")) << out;
    EXPECT_EQ(Play(std::string(kWrongList) + "expect message \"All is well.\"\n"),
              zxhost::kScriptFailed);
    EXPECT_NE(err.find(":5: the message is \""), std::string::npos) << err;
    EXPECT_EQ(Play(std::string(kWrongList) + "answer Perhaps\n"), zxhost::kScriptFailed);
    EXPECT_NE(err.find(":5: the message has no button \"Perhaps\""), std::string::npos) << err;
}

TEST_F(HostRun, BadInputIsRefusedBeforeTheDialogOpens) {
    EXPECT_EQ(Play("clik 1\n"), zxhost::kNoInput);
    EXPECT_EQ(err, "zxhost: " + scratch.File("steps.txt") + ":1: \"clik\" is no step\n");
    EXPECT_EQ(Run({"run", "normalize", "--script", scratch.File("none.txt")}), zxhost::kNoInput);
    EXPECT_EQ(err, "zxhost: " + scratch.File("none.txt") + ": the script cannot be opened\n");
    EXPECT_EQ(Play("ok\n", {"--data", WriteFile("bad.csv", "1,2\n3\n")}), zxhost::kNoInput);
    EXPECT_EQ(err,
              "zxhost: " + scratch.File("bad.csv") + ":2: 1 value where the lines before have 2\n");
    EXPECT_EQ(out, "");
}

TEST_F(HostRun, AStoreThatCannotBeUsedIsToldAndKept) {
    WriteFile("store.ini", "[A]\nnonsense\n");
    EXPECT_EQ(Play("ok\n"), zxhost::kNoInput);
    EXPECT_EQ(err, "zxhost: " + Store() + ":2: a setting is \"KEY=VALUE\"\n");
    WriteFile("store.ini", "x=1\n");
    EXPECT_EQ(Play("ok\n"), zxhost::kNoInput);
    EXPECT_EQ(err, "zxhost: " + Store() + ":1: a setting stands before the first section\n");
    WriteFile("store.ini", "[A]\nx=1\n");
    using std::filesystem::perms;
    std::filesystem::permissions(Store(),
                                 perms::owner_write | perms::group_write | perms::others_write,
                                 std::filesystem::perm_options::remove);
    EXPECT_EQ(Play("ok\n"), zxhost::kNoInput);
    EXPECT_EQ(err, "zxhost: " + Store() + ": the store is read-only\n");
    EXPECT_EQ(ReadFile(Store()), "[A]\nx=1\n");
    std::filesystem::permissions(Store(), perms::owner_write, std::filesystem::perm_options::add);
    EXPECT_EQ(Run({"run", "normalize", "--script", WriteFile("steps.txt", "ok\n"), "--store",
                   scratch.File("no/such/store.ini")}),
              zxhost::kNoInput);
}

TEST_F(HostRun, AStoreKeepsWhatOthersPutThere) {
    WriteFile("store.ini", "; by hand\r\n[Other]\r\npath=a\\\\b\\nc\r\n");
    ASSERT_EQ(Play("ok\n"), 0) << err;
    EXPECT_EQ(ReadFile(Store()).substr(0, 9), "[Normaliz");
    EXPECT_NE(ReadFile(Store()).find("\n\n[Other]\npath=a\\\\b\\nc\n"), std::string::npos);
    // Nothing is left of the branch that the run had.
    zxhost::SettingsStore own;
    std::string error;
    ASSERT_TRUE(own.Open(scratch.File("empty.ini"), &error)) << error;
    EXPECT_EQ(zxhost::FormatSettings(own.Read()), "");
}

TEST_F(HostRun, WhatAKilledRunLeftIsNotFound) {
    std::string error;
    std::string root(64, '\0');
    {
        zxhost::SettingsStore probe;
        ASSERT_TRUE(probe.Open(scratch.File("a.ini"), &error)) << error;
        root.resize(GetEnvironmentVariableA("ZDC_REGISTRY_ROOT", root.data(), 64));
    }
    // The next run has the next number.
    const std::size_t dash = root.rfind('-') + 1;
    const std::string branch =
        "Software\\" + root.substr(0, dash) + std::to_string(std::stoi(root.substr(dash)) + 1);
    HKEY key = nullptr;
    ASSERT_EQ(RegCreateKeyExA(HKEY_CURRENT_USER, (branch + "\\zxhost\\Old").c_str(), 0, nullptr, 0,
                              KEY_SET_VALUE, nullptr, &key, nullptr),
              ERROR_SUCCESS);
    RegSetValueExA(key, "x", 0, REG_SZ, reinterpret_cast<const BYTE*>("1"), 2);
    RegCloseKey(key);
    zxhost::SettingsStore store;
    ASSERT_TRUE(store.Open(scratch.File("b.ini"), &error)) << error;
    EXPECT_EQ(zxhost::FormatSettings(store.Read()), "");
}

TEST_F(HostRun, AWrongCommandLineIsTold) {
    const auto wrong = [this](const std::vector<std::string>& arguments) {
        EXPECT_EQ(Run(arguments), zxhost::kWrongUsage);
        return err;
    };
    const std::string how = " (zxhost --help tells how)";
    EXPECT_EQ(wrong({"dance"}), "there is no command \"dance\"" + how);
    EXPECT_EQ(wrong({"run"}), "run needs the name of one analysis" + how);
    EXPECT_EQ(wrong({"run", "nothing"}),
              "there is no analysis \"nothing\"; zxhost list names them" + how);
    EXPECT_EQ(wrong({"run", "normalize"}), "run needs --script FILE" + how);
    EXPECT_EQ(wrong({"--data"}), "--data needs a value" + how);
    EXPECT_EQ(wrong({"--colour", "red"}), "there is no option --colour" + how);
    EXPECT_EQ(wrong({"--recording", "tape"}), "there is no recording \"tape\"" + how);
    EXPECT_EQ(wrong({"--time-limit", "0"}),
              "--time-limit is a number of seconds from 1 to 3600" + how);
    EXPECT_EQ(wrong({"--params", "x"}), "--params: \"x\" should be NAME=0 or NAME=1" + how);
    EXPECT_EQ(Run({"--help"}), zxhost::kDone);
    EXPECT_EQ(out, zxhost::kHelp);
    EXPECT_EQ(Run({"list"}), zxhost::kDone);
    EXPECT_TRUE(OutHas("  normalize  Normalize (ZXADLG_NormalizeOptions, 20 bytes)\n"));
    EXPECT_TRUE(OutHas("  bUseDataOptions=1  data tab, data record\n"));
}

// A program that stands beside the tests, with the library beside it.
class HostProgram : public host_test::HostTest {
  protected:
    int Start(const std::string& program, const std::string& arguments) {
        char self[1024] = "";
        GetModuleFileNameA(nullptr, self, sizeof self);
        const std::string path = (std::filesystem::path(self).parent_path() / program).string();
        const std::string file = scratch.File("printed.txt");
        const int code = std::system((path + " " + arguments + " >" + file + " 2>&1").c_str());
        printed.clear();
        for (char c : ReadFile(file)) {
            if (c != '\r') printed += c;
        }
        return code;
    }
    std::string printed;
};

TEST_F(HostProgram, PlaysAScript) {
    const std::string script = WriteFile("steps.txt", "click 2362\nchoose 2364 2\nok\n");
    ASSERT_EQ(Start(ZX_HOST_PROGRAM, "run normalize --script " + script + " --store " + Store()), 0)
        << printed;
    EXPECT_NE(printed.find("eBaselineRegion: 0 -> 1"), std::string::npos);
    EXPECT_NE(ReadFile(Store()).find("[NormalizeSection]\nbUseAllPoints=TRUE\neBaselineRegion=1\n"),
              std::string::npos);
}

TEST_F(HostProgram, TheHostOfTheGuideRuns) {
    // Settings that it may have stored before would be what it shows.
    const test_support::ScopedEnvironment root("ZDC_REGISTRY_ROOT", "ZxHostTests");
    ASSERT_EQ(Start(ZX_MINIMAL_PROGRAM, "--ok"), 0) << printed;
    EXPECT_EQ(printed, "Baseline region 0, peak region 0, in 3 of 3 sweeps.\n");
    RegDeleteTreeA(HKEY_CURRENT_USER, "Software\\ZxHostTests");
}

}  // namespace
