// What stands on the command line beside the script: marks, stimuli, start values, stores, JSON.
#include <csignal>
#include <filesystem>
#include <iostream>
#include <nlohmann/json.hpp>
#include <sstream>

#include "LoadProgress.h"
#include "SettingsStore.h"
#include "host_test.h"

namespace {

class HostOptions : public host_test::HostTest {
  protected:
    std::string Wrong(const std::vector<std::string>& arguments) {
        EXPECT_EQ(Run(arguments), zxhost::kWrongUsage);
        const std::string how = " (zxhost --help tells how)";
        const std::size_t at = err.find(how);
        return at == std::string::npos ? err : err.substr(0, at);
    }
    // 300 points at 1 kHz of two signals in three sweeps.
    std::string Family() {
        std::string rows =
            "Time (ms),Im 1 (pA),Vm 1 (mV),Im 2 (pA),Vm 2 (mV),Im 3 (pA),Vm 3 (mV)\n";
        for (int i = 0; i < 300; ++i) {
            rows += std::to_string(i);
            for (int k = 0; k < 6; ++k) rows += "," + std::to_string(i % 7 + k) + ".5";
            rows += "\n";
        }
        return WriteFile("family.csv", rows);
    }
};

TEST_F(HostOptions, AreRefusedWithWhatIsWrong) {
    EXPECT_EQ(Wrong({"--x-units", "h"}), "--x-units is s, ms, us, µs or min");
    EXPECT_EQ(Wrong({"--x-units", "s"}), "--x-units needs --data FILE");
    EXPECT_EQ(Wrong({"--layout", "rows"}), "--layout is heading, sweeps or signals");
    EXPECT_EQ(Wrong({"--layout", "sweeps"}), "--layout needs --data FILE");
    EXPECT_EQ(Wrong({"--delimiter", "colon"}), "--delimiter is tab, semicolon, comma or blank");
    EXPECT_EQ(Wrong({"--delimiter", "tab"}), "--delimiter needs --data FILE");
    EXPECT_EQ(Wrong({"--waveform", "-8..4 in 1"}),
              "--waveform \"-8..4 in 1\": place 7: \"by\" was expected");
    EXPECT_EQ(Wrong({"--waveform", "w.csv"}), "--waveform needs --data FILE");
    EXPECT_EQ(Wrong({"--cursor", "5=1"}), "--cursor: \"5=1\" should be N=MS with N from 1 to 4");
    EXPECT_EQ(Wrong({"--region", "P"}), "--region: \"P\" should be NAME=FROM..TO in ms");
    EXPECT_EQ(Wrong({"--set", "x"}), "--set: \"x\" should be FIELD=VALUE");
    EXPECT_EQ(Wrong({"--format", "xml"}), "--format is text or json");
    EXPECT_EQ(Wrong({"--settings=1"}), "--settings takes no value");
    EXPECT_EQ(Wrong({"--data="}), "--data needs a value");
    EXPECT_EQ(Wrong({"--settings", "--store", "x"}),
              "--store and --settings say two places for the settings");
    EXPECT_EQ(Wrong({"list", "nothing"}),
              "there is no analysis \"nothing\"; zxhost list names them");
    EXPECT_EQ(Wrong({"list", "normalize", "filter"}),
              "list takes the name of one analysis or none");
}

TEST_F(HostOptions, TellTheVersion) {
    EXPECT_EQ(Run({"--version"}), zxhost::kDone);
    EXPECT_EQ(out, "zxhost 1.0.0\n");
}

TEST_F(HostOptions, PutCursorsAndRegions) {
    const std::string script =
        "choose 2364 \"Cursors 1..2\"\nexpect text 2368 \"= 41 points\"\n"
        "choose 2364 \"Peak\"\nexpect text 2368 \"= 31 points\"\nok\n";
    ASSERT_EQ(Play(script, {"--data=" + Family(), "--cursor", "1=10", "--cursor=2=50", "--region",
                            "Peak=100..130", "--set", "bUseAllPoints=1"}),
              0)
        << err;
    EXPECT_EQ(Play("ok\n", {"--data", Family(), "--cursor", "1=300"}), zxhost::kWrongUsage);
    EXPECT_EQ(err, "zxhost: cursor 1 at 300 is outside of the data, 0 to 299 ms\n");
}

TEST_F(HostOptions, GiveARecordingAStimulus) {
    const std::string script = WriteFile("iv.txt",
                                         "expect title \"Current/Voltage\"\n"
                                         "expect item 2420 \"Epoch A level\"\nok\n");
    const std::vector<std::string> run = {"run",  "current-voltage", "--script",
                                          script, "--data",          Family()};
    EXPECT_EQ(Run(run), zxhost::kScriptFailed) << "refused without a stimulus";
    std::vector<std::string> with = run;
    with.insert(with.end(), {"--waveform", "-80..-40 by 20 from 50 to 150 ms"});
    ASSERT_EQ(Run(with), zxhost::kDone) << err;
    EXPECT_TRUE(OutHas("note: the stimulus steps from -80 to -40 mV by 20, in points 51 to 150\n"));
    for (const char* analysis : {"leak-subtraction", "resistance"}) {
        with[1] = analysis;
        with[3] = WriteFile("ok.txt", "ok\n");
        EXPECT_EQ(Run(with), zxhost::kDone) << analysis << err;
    }
    with.back() = "-80..-40 by 10 from 50 to 150 ms";
    EXPECT_EQ(Run(with), zxhost::kWrongUsage);
    EXPECT_EQ(err, "zxhost: --waveform: the protocol has 5 steps and the recording 3 sweeps\n");
    with.back() = scratch.File("none.csv");
    EXPECT_EQ(Run(with), zxhost::kNoInput);
    EXPECT_EQ(err.find("zxhost: " + scratch.File("none.csv") + ": cannot be opened"), 0u) << err;
}

TEST_F(HostOptions, SetStartValuesOfTheRecords) {
    const std::string script = WriteFile("steps.txt", "ok\n");
    ASSERT_EQ(Play("expect record eBaselineRegion 2\nexpect record bUseFullDataRange 0\n"
                   "expect chosen 2364 \"Cursors 3..4\"\nok\nexpect record eBaselineRegion 2.0\n",
                   {"--set", "eBaselineRegion=2", "--set", "bUseFullDataRange=0"}),
              0)
        << err;
    const auto refused = [&](const std::string& analysis, const std::string& set) {
        EXPECT_EQ(Run({"run", analysis, "--script", script, "--set", set}), zxhost::kWrongUsage);
        EXPECT_EQ(out, "");
        return err;
    };
    EXPECT_EQ(refused("normalize", "bUseAllPoints=2"),
              "zxhost: --set: bUseAllPoints is 0 or 1, not \"2\"\n");
    EXPECT_EQ(
        refused("normalize", "eBaselineRegion=-1"),
        "zxhost: --set: eBaselineRegion is a whole number from 0 to 4294967295, not \"-1\"\n");
    EXPECT_EQ(refused("sampling-rate", "nReduceFactor=2147483648"),
              "zxhost: --set: nReduceFactor is a whole number from -2147483648 to 2147483647, not "
              "\"2147483648\"\n");
    EXPECT_EQ(refused("leak-subtraction", "dPassiveResistance=1,5"),
              "zxhost: --set: dPassiveResistance is a number, not \"1,5\"\n");
    EXPECT_EQ(refused("normalize", "aGroups[1].szName=12345678901234567890"),
              "zxhost: --set: aGroups[1].szName is a text of at most 19 bytes, not "
              "\"12345678901234567890\"\n");
    EXPECT_EQ(refused("normalize", "eBaseline=1"),
              "zxhost: --set: there is no field eBaseline; zxhost list normalize names them\n");
}

TEST_F(HostOptions, ListTheFieldsOfAnAnalysis) {
    EXPECT_EQ(Run({"list", "leak-subtraction"}), zxhost::kDone);
    EXPECT_TRUE(OutHas("ZXADLG_LeakSubtractionOptions:\n"));
    EXPECT_TRUE(OutHas("  dPassiveResistance=500  a number\n")) << out;
    EXPECT_TRUE(OutHas("  common.bDynamicLink=0  0 or 1\n"));
    EXPECT_TRUE(OutHas("ZXADLG_DataOptions:\n"));
    EXPECT_TRUE(OutHas("  aGroups[0..15].szName=\"\"  a text of at most 19 bytes\n"));
    EXPECT_EQ(Run({"list", "leak-subtraction", "--format", "json"}), zxhost::kDone);
    const auto json = nlohmann::json::parse(out);
    EXPECT_EQ(json["ZXADLG_LeakSubtractionOptions"][0]["limits"], "a number");
    EXPECT_EQ(Run({"list", "--format=json"}), zxhost::kDone);
    EXPECT_EQ(nlohmann::json::parse(out)["analyses"][0]["name"], "normalize");
}

TEST_F(HostOptions, PrintJsonForPrograms) {
    ASSERT_EQ(Play("choose 2364 2\nok\n", {"--format", "json", "--set", "bUseAllPoints=1"}), 0)
        << err;
    auto json = nlohmann::json::parse(out);
    EXPECT_EQ(json["code"], 0);
    EXPECT_EQ(json["result"], 1);
    EXPECT_EQ(json["analysis"], "normalize");
    EXPECT_EQ(json["steps"], 2);
    EXPECT_EQ(json["changed"]["ZXADLG_NormalizeOptions"]["eBaselineRegion"]["after"], "1");
    EXPECT_EQ(json["store"]["NormalizeSection"]["eBaselineRegion"], "1");
    EXPECT_EQ(json["data"].get<std::string>().find("Simulated voltage clamp: 2 signals"), 0u);
    EXPECT_FALSE(json.contains("error"));
    EXPECT_EQ(Play("click 4711\nok\n", {"--format", "json"}), zxhost::kScriptFailed);
    json = nlohmann::json::parse(out);
    EXPECT_EQ(json["code"], 1);
    EXPECT_EQ(json["error"].get<std::string>() + "\n", err);
    EXPECT_EQ(json["steps"], 0);
    EXPECT_EQ(Play("clik\n", {"--format", "json"}), zxhost::kNoInput);
    json = nlohmann::json::parse(out);
    EXPECT_EQ(json["code"], 3);
    EXPECT_EQ("zxhost: " + json["error"].get<std::string>() + "\n", err);
}

TEST_F(HostOptions, AScriptThatFailsBehindOkStoresNothing) {
    ASSERT_EQ(Play("choose 2364 2\nok\n", {"--set", "bUseAllPoints=1"}), 0) << err;
    const std::string before = ReadFile(Store());
    const std::string script = scratch.File("steps.txt");
    EXPECT_EQ(Play("choose 2364 3\nok\nexpect record eBaselineRegion 1\n"), zxhost::kScriptFailed);
    EXPECT_EQ(err, script + ":3: field eBaselineRegion is \"2\" and should be \"1\"\n");
    EXPECT_EQ(ReadFile(Store()), before);
    EXPECT_TRUE(OutHas("  eBaselineRegion=1\n")) << "the store as it stays";
    EXPECT_EQ(Play("ok\nexpect store NormalizeSection/eBaselineRegion 1\n"
                   "expect store NormalizeSection/bUseAllPoints FALSE\n"),
              zxhost::kScriptFailed);
    EXPECT_EQ(err, script +
                       ":3: key NormalizeSection/bUseAllPoints is \"TRUE\" and should be "
                       "\"FALSE\"\n");
    EXPECT_EQ(Play("ok\nexpect store NormalizeSection/none 1\n"), zxhost::kScriptFailed);
    EXPECT_EQ(err, script + ":2: there is no key NormalizeSection/none in the store\n");
    EXPECT_EQ(Play("ok\nexpect record none 1\n"), zxhost::kScriptFailed);
    EXPECT_EQ(err, script + ":2: there is no field none; zxhost list normalize names them\n");
}

TEST_F(HostOptions, ARefusalInPlaceOfTheDialogIsMet) {
    const std::string script = WriteFile(
        "refused.txt",
        "expect message \"Current/voltage analysis applies to waveform stimulus files only.\"\n"
        "answer OK\n");
    EXPECT_EQ(Run({"run", "current-voltage", "--recording", "no-waveform", "--script", script}), 0)
        << err;
    EXPECT_TRUE(OutHas("result: 2 (Cancel)\n")) << out;
}

TEST_F(HostOptions, WhatIsTypedMustArrive) {
    const auto shift = [this](const std::string& steps) {
        return Run({"run", "time-shift", "--script", WriteFile("steps.txt", steps)});
    };
    const std::string at = scratch.File("steps.txt") + ":1: ";
    EXPECT_EQ(shift("type field \"&Fixed (ms):\" 2.5\nok\nexpect record dShiftValue 2.5\n"), 0)
        << err;
    EXPECT_EQ(shift("type 2400 \"2,5\"\nok\n"), zxhost::kScriptFailed);
    EXPECT_EQ(err, at + "control 2400 holds \"25\" after \"2,5\" was typed\n");
    EXPECT_EQ(shift("type 2400 \"Ω\"\nok\n"), zxhost::kScriptFailed);
    EXPECT_EQ(err, at + "the dialogs have no such character in \"Ω\"\n");
    EXPECT_EQ(shift("type \"OK\" 5\nok\n"), zxhost::kScriptFailed);
    EXPECT_EQ(err, at + "control \"OK\" is no field that can be typed into\n");
    EXPECT_EQ(shift("type field \"Fixed\" 5\nok\n"), zxhost::kScriptFailed);
    EXPECT_EQ(err.find(at + "there is no field behind \"Fixed\"; there are "), 0u) << err;
    EXPECT_EQ(shift("click \"&Between cursors:\"\nexpect chosen field \"Between cursors:\" 1\n"
                    "expect chosen field \"Between cursors:\" 2\nok\n"),
              zxhost::kScriptFailed);
    EXPECT_NE(err.find(":3: the choice in control \"Between cursors:\" is item 1, \""),
              std::string::npos)
        << err;
}

TEST_F(HostOptions, AStoreThatCannotBeWrittenIsToldBeforeTheDialogOpens) {
    std::filesystem::create_directory(scratch.File("store.ini.new"));
    EXPECT_EQ(Play("ok\n"), zxhost::kNoInput);
    EXPECT_EQ(err, "zxhost: " + Store() + ": the store cannot be written\n");
    EXPECT_EQ(out, "");
}

TEST_F(HostOptions, AStoreGoesBackToWhatItWas) {
    zxhost::SettingsStore store;
    std::string error;
    ASSERT_TRUE(store.OpenScratch(&error)) << error;
    ASSERT_TRUE(store.Replace({{"A", {{"x", "1"}, {"y", "µ"}}}, {"B", {{"z", "2"}}}}, &error));
    EXPECT_EQ(zxhost::FormatSettings(store.Read()), "[A]\nx=1\ny=µ\n\n[B]\nz=2\n");
    ASSERT_TRUE(store.Replace({{"A", {{"x", "3"}}}}, &error)) << error;
    EXPECT_EQ(zxhost::FormatSettings(store.Read()), "[A]\nx=3\n");
}

TEST_F(HostOptions, WithoutAStoreARunLeavesTheUsersSettingsAlone) {
    const std::string root = "ZxHostTests-own";
    const test_support::ScopedEnvironment variable("ZDC_REGISTRY_ROOT", root.c_str());
    const std::string script = WriteFile("steps.txt", "choose 2364 3\nok\n");
    const std::vector<std::string> run = {"run",  "normalize", "--script",
                                          script, "--set",     "bUseAllPoints=1"};
    const auto stored = [&] {
        zxhost::SettingsStore own;
        std::string error;
        EXPECT_TRUE(own.Open("", &error)) << error;
        return zxhost::FormatSettings(own.Read());
    };
    EXPECT_EQ(Run(run), 0) << err;
    EXPECT_EQ(stored(), "");
    std::vector<std::string> with = run;
    with.push_back("--settings");
    EXPECT_EQ(Run(with), 0) << err;
    EXPECT_NE(stored().find("eBaselineRegion=2\n"), std::string::npos) << stored();
    const std::string before = stored();
    with[3] = WriteFile("fails.txt", "choose 2364 1\nok\nexpect record eBaselineRegion 9\n");
    EXPECT_EQ(Run(with), zxhost::kScriptFailed);
    EXPECT_EQ(stored(), before);
    RegDeleteTreeA(HKEY_CURRENT_USER, ("Software\\" + root).c_str());
}

TEST_F(HostOptions, AScriptMayComeFromTheStandardInput) {
    std::istringstream steps("expect title \"Normalize\"\nclick 4711\n");
    std::streambuf* old = std::cin.rdbuf(steps.rdbuf());
    EXPECT_EQ(Run({"run", "normalize", "--script", "-"}), zxhost::kScriptFailed);
    std::cin.rdbuf(old);
    EXPECT_EQ(err.find("standard input:2: there is no control 4711; there are "), 0u) << err;
}

TEST(LoadProgress, IsShownOfALongLoadAlone) {
    std::ostringstream err;
    {
        zxhost::LoadProgress progress("cell.csv", err, std::chrono::hours(1));
        EXPECT_TRUE(progress.Tell(0.5));
    }
    EXPECT_EQ(err.str(), "");
    {
        zxhost::LoadProgress progress("cell.csv", err, std::chrono::milliseconds(0));
        EXPECT_TRUE(progress.Tell(0.25));
        EXPECT_TRUE(progress.Tell(0.259));
        EXPECT_TRUE(progress.Tell(1.0));
        std::raise(SIGINT);
        EXPECT_FALSE(progress.Tell(1.0));
    }
    EXPECT_EQ(err.str(),
              "\rreading cell.csv: 25 % (Control+C stops)\rreading cell.csv: 100 % (Control+C "
              "stops)\n");
    zxhost::LoadProgress again("cell.csv", err, std::chrono::hours(1));
    EXPECT_TRUE(again.Tell(0.1));
}

}  // namespace
