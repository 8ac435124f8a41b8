#include "script/script_runner.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "support/station_fixture.h"

namespace quixair::testing {
namespace {

struct Played {
  int exit_code = 0;
  std::string out;
  std::string errors;
};

class Scripts : public StationFixture {
 protected:
  /// Plays on a station that is switched off, at eight in the evening.
  Played Play(const std::string& text) {
    station_.PowerCut();
    SetClock("2026-11-22 20:00:00");
    std::istringstream script(text);
    std::ostringstream out;
    std::ostringstream errors;
    script::ScriptRunner runner(station_, out, errors);
    runner.AllowWorld();
    const int exit_code = runner.Run(script);
    return {exit_code, out.str(), errors.str()};
  }
};

constexpr const char* kStarted =
    "2026-11-22 20:00:00.000 screen Console open\n"
    "2026-11-22 20:00:00.000 screen frmSplash open\n";

TEST_F(Scripts, Events_ArePrintedInTheirForm) {
  PutFile("QXAIR/LOGTRIM.EXE", "");
  const struct {
    const char* name;
    std::string script;
    std::string out;  // behind the start
  } cases[] = {
      {"splash", "advance 3s", "2026-11-22 20:00:02.800 screen frmSplash close\n"},
      {"a program", "menu VerificationLog",
       "2026-11-22 20:00:00.000 run \"C:\\\\QXAIR\\\\LOGTRIM.EXE\" normal\n"},
      {"window states", "menu DiskMon\nmenu Mixer",
       "2026-11-22 20:00:00.000 run \"C:\\\\QXAIR\\\\VOLWATCH.EXE\" minimised\n"
       "2026-11-22 20:00:00.000 run \"C:\\\\WINDOWS\\\\sndvol32.exe\" maximised\n"},
      {"keys", "quiet\nmenu recordplayprop\nadvance 2s\ntrace\nadvance 1s",
       "2026-11-22 20:00:02.800 screen frmSplash close\n2026-11-22 20:00:03.000 keys \"mu\"\n"
       "2026-11-22 20:00:03.000 keys \"{Enter}\"\n"},
      {"a box and the end", "answer OK\nmenu Exit\n",
       "2026-11-22 20:00:00.000 box 33 \"Quixair\" \"Are you sure you want to exit?\" -> OK\n"
       "2026-11-22 20:00:00.000 end 0\n"},
      {"the window closed", "clock \"2030-01-01 00:00:00\"\nclose Console",
       "2030-01-01 00:00:00.000 end 0\n"},
      {"the restart switch",
       "quiet\nmenu AutoRestart\ntick Autostart.Option1 on\ntrace\nclick Autostart.Command1\n"
       "quiet\nmenu AutoRestart\ntick Autostart.Option2 on\ntrace\nclick Autostart.\"&Done\"",
       "2026-11-22 20:00:00.000 session start on\n2026-11-22 20:00:00.000 screen Autostart close\n"
       "2026-11-22 20:00:00.000 session start off\n2026-11-22 20:00:00.000 screen Autostart close\n"},
      {"a screen", "open ErrorLog\nclick ErrorLog.\"E&xit Window\"",
       "2026-11-22 20:00:00.000 screen ErrorLog open\n2026-11-22 20:00:00.000 screen ErrorLog close\n"},
  };
  for (const auto& [name, script, out] : cases) {
    SCOPED_TRACE(name);
    const Played played = Play("start\n" + script);
    EXPECT_EQ(played.exit_code, 0) << played.errors;
    EXPECT_EQ(played.out, kStarted + out);
  }
}

TEST_F(Scripts, OnTheAir_ChannelsAreTraced) {
  AddLiner("L1", 3000);
  AddLiner("L2", 3000);
  AddLiner("LL1", 3000);
  AddLiner("LL2", 3000);
  AddSong("M1", 30015);
  AddSong("M2", 30015);
  const Played played =
      Play("start\nmenu RandomPlaybackMode\nclick RandomForm1.Start\nadvance 31s\nquiet\nadvance 1m");
  EXPECT_EQ(played.exit_code, 0) << played.errors;
  const std::size_t open = played.out.find("2026-11-22 20:00:00.000 channel 1 Open C:\\QXWAVE\\M");
  ASSERT_NE(open, std::string::npos) << played.out;
  const std::string song = played.out.substr(played.out.find("C:\\", open), 16);
  const std::string expected =
      "2026-11-22 20:00:00.000 channel 1 Open " + song + " 30015\n" +
      "2026-11-22 20:00:00.000 channel 1 Play\n" + "2026-11-22 20:00:02.800 screen frmSplash close\n" +
      "2026-11-22 20:00:30.015 channel 1 end\n" +
      "2026-11-22 20:00:30.030 channel 1 Close\n2026-11-22 20:00:30.030 channel 1 Open ";
  EXPECT_EQ(played.out.substr(open, expected.size()), expected);
}

TEST_F(Scripts, ProgramEnded_NothingSoundsAndTimeGoesOn) {
  AddLibrary(3, 2, 2, 30000);
  const Played played = Play(
      "start\nmenu RandomPlaybackMode\nclick RandomForm1.Start\nadvance 5s\nanswer Yes\nclose "
      "Console\nadvance "
      "1m\nstart\n");
  EXPECT_EQ(played.exit_code, 0) << played.errors;
  const std::string expected =
      "-> Yes\n2026-11-22 20:00:05.000 channel 1 Close\n2026-11-22 20:00:05.000 end 0\n2026-11-22 "
      "20:01:05.000 screen Console open\n"
      "2026-11-22 20:01:05.000 screen frmSplash open\n";
  EXPECT_TRUE(played.out.ends_with(expected)) << played.out;
}

TEST_F(Scripts, WhatIsAskedFor_IsPrintedWithoutATime) {
  PutFile("QXAIR/CUSTOM.DTA", "\"Caf\xE9\"\r\n");
  const Played played = Play(
      "quiet\nstart\nadvance 3s\nshow Console\nmenu ViewErrorLog\nshow ErrorLog.Command1\ncontrols ErrorLog\n"
      "state ErrorLog.Command2\nmenu SetRandomDefaults\nstate Console.EnahncedMixer\n"
      "expect Console \"Quixair 4   Café\"\nexpect ErrorLog.Command1 \"&View Error Log\"");
  EXPECT_EQ(played.exit_code, 0) << played.errors;
  EXPECT_EQ(played.out,
            "show Console \"Quixair 4   Café\"\n"
            "show ErrorLog.Command1 \"&View Error Log\"\n"
            "controls ErrorLog 3 rows\n  | Command1 Button \"&View Error Log\"\n"
            "  | Command2 Button \"&Clear Error Log\"\n  | Command3 Button \"E&xit Window\"\n"
            "state ErrorLog.Command2 visible=yes enabled=yes fore=default back=default\n"
            "state Console.EnahncedMixer visible=no enabled=no fore=default back=default\n");
}

TEST_F(Scripts, Failures_ExitWithOneOrTwoAndNameTheLine) {
  std::filesystem::remove(Host("QXAIR/VOXPLAN.EXE"));
  const struct {
    const char* script;
    int exit_code;
    const char* error;
  } cases[] = {
      {"start\nexpect-box \"x\"", 1, "line 2: no box was shown, expected was \"x\"\n"},
      {"start\n\nmenu Exit\n", 1,
       "line 3: an unexpected box: \"Quixair\" \"Are you sure you want to exit?\"\n"},
      {"start\nanswer Yes\nmenu Exit\n", 1, "line 3: an unexpected box: "},
      {"start\nexpect Console \"x\"", 1, "line 2: Console is \"Quixair 4   \", expected was \"x\"\n"},
      {"start\nmenu ViewErrorLog\nexpect ErrorLog.Command1 \"&View\"", 1, "line 3: ErrorLog.Command1 is "},
      {"start\nclick Console.EnahncedMixer", 2, "line 2: the control is hidden: Console.EnahncedMixer\n"},
      {"start\nmenu NoSuchItem", 2, "line 2: no such control: Console.NoSuchItem\n"},
      {"start\nclick RandomForm1.Start", 2, "line 2: the screen is not open: RandomForm1\n"},
      {"start\ntype Console.Exit x", 2, "line 2: Console.Exit is a Menu and cannot do that\n"},
      {"start\nstart", 2, "line 2: the program runs already\n"},
      {"menu Exit", 2, "line 1: the screen is not open: Console\n"},
      {"open ErrorLog", 2, "line 1: the program does not run\n"},
      {"# comment\ndance", 2, "line 2: no statement: dance\n"},
      {"advance", 2, "line 1: advance has a wrong number of words\n"},
      {"advance 3 s", 2, "line 1: advance has a wrong number of words\n"},
      {"clock 2026-11-22", 2, "line 1: no date and time: 2026-11-22\n"},
      {"answer \"open", 2, "line 1: a quote is not closed\n"},
      {"start\nclose Console\nclick Console.Exit", 2, "line 3: the screen is not open: Console\n"},
      {"start\nopen RandomForm2\nselect RandomForm2.List1 #9\nexpect RandomForm2.List1 09\n"
       "expect-row RandomForm2.List1 \"12\"\nselect RandomForm2.List1 \"12\"\nexpect RandomForm2.List1 11",
       1, "line 7: RandomForm2.List1 is \"12\", expected was \"11\"\n"},
      {"start\nopen RandomForm2\nselect RandomForm2.List1 #13", 2, "line 3: no such row: #13\n"},
      {"start\nopen RandomForm2\nselect RandomForm2.List1 #1 #2", 2, "line 3: the list takes one row only\n"},
  };
  for (const auto& [script, exit_code, error] : cases) {
    SCOPED_TRACE(script);
    const Played played = Play(script);
    EXPECT_EQ(played.exit_code, exit_code);
    EXPECT_EQ(played.errors.substr(0, std::string(error).size()), error);
    EXPECT_EQ(std::count(played.errors.begin(), played.errors.end(), '\n'), 1) << played.errors;
  }
}

TEST_F(Scripts, World_ChangesTheFilesUnderTheStation) {
  const struct {
    const char *script, *file, *content;
  } cases[] = {{"put C:\\NEW\\A.DTA \"\\\"1\\\"\" two", "NEW/A.DTA", "\"1\"\r\ntwo\r\n"},
               {"tear c:\\new\\a.dta 2", "NEW/A.DTA", "\"1"},
               {"away C:\\NEW", "NEW/A.DTA", ""},
               {"back C:\\new", "NEW/A.DTA", "\"1"},
               {"away C:\\NEW\\A.DTA\naway C:\nmend", "NEW/A.DTA", "\"1"},
               {"remove C:\\NEW", "NEW/A.DTA", ""},
               {"try remove C:\\NEW\ntry menu Exit\ntry click RandomForm1.Start", "NEW/A.DTA", ""}};
  for (const auto& [script, file, content] : cases) {
    const Played played = Play(script);
    EXPECT_EQ(played.exit_code, 0) << played.errors;
    EXPECT_EQ(FileText(file), content) << script;
  }
  std::istringstream own("put C:\\QXAIR\\RESET.DTA x");
  std::ostringstream out, errors;
  EXPECT_EQ(script::ScriptRunner(station_, out, errors).Run(own), 2) << "nobody's own station";
}

TEST_F(Scripts, World_MisbehavesUnderARun) {
  AddLibrary(5, 2, 2, 60000);
  const Played played = Play(
      "start\nanswer-others OK\naudio C:\\QXWAVE\\M0001.WAV 2s\naway C:\\QXWAVE\nmenu RandomPlaybackMode\n"
      "click RandomForm1.Start\nadvance 1s\nback C:\\QXWAVE\nadvance 1s\nfail append *.LOG 61\n"
      "click RandomForm1.BeginNextCommand\nadvance 1s\nshow RandomForm1.Text3\nmend\nthink 90s\n"
      "menu VerificationLog\nmenu Exit\nclock -1h\n");
  EXPECT_EQ(played.exit_code, 0) << played.errors;
  EXPECT_NE(played.out.find("wav 60000\n"), std::string::npos);
  EXPECT_NE(played.out.find("DRIVE C FULL"), std::string::npos);
  const std::size_t box = played.out.find("20:01:33.000 box 33");
  ASSERT_NE(box, std::string::npos) << played.out;
  EXPECT_NE(played.out.rfind("20:01:", box - 1), std::string::npos) << "items go on behind the box";
}

TEST_F(Scripts, PowerCut_RunIsTakenUpAgainAtTheNextStart) {
  AddLibrary(3, 2, 2);
  PutFile("QXAIR/RESETON.DTA", "\"1\"\r\n");
  const Played played = Play(
      "start\nmenu RandomPlaybackMode\nclick RandomForm1.Start\nadvance 20s\npowercut\nstart\nadvance 3s\n"
      "expect Console \"Quixair 4   \"\nshow RandomForm1.Text1\nanswer Yes\nclose Console\n");
  EXPECT_EQ(played.exit_code, 0) << played.errors;
  const std::size_t again = played.out.rfind("screen RandomForm1 open");
  EXPECT_NE(again, played.out.find("screen RandomForm1 open"))
      << "the power cut's restart opens the mode again";
  EXPECT_NE(played.out.find("2026-11-22 20:00:20.000 channel 1 Play", again), std::string::npos)
      << played.out;
  EXPECT_EQ(played.out.find("end 0"), played.out.rfind("end 0")) << "a power cut is no end";
}

TEST_F(Scripts, SameSeed_GivesTheSameDay) {
  AddLibrary(8, 4, 2, 5000);
  const std::string day =
      "start\nmenu RandomPlaybackMode\nclick RandomForm1.Start\nadvance 10m\nanswer Yes\nclose Console\n";
  const auto air = [&] {
    simulation::SimulatedStation station(
        station_.drives(), script::MomentOf("2026-11-22 20:00:00"),
        [](const std::filesystem::path&) { return 5000; }, 7);
    std::istringstream script(day);
    std::ostringstream out;
    std::ostringstream errors;
    EXPECT_EQ(script::ScriptRunner(station, out, errors).Run(script), 0) << errors.str();
    return out.str();
  };
  EXPECT_EQ(air(), air());
}

}  // namespace
}  // namespace quixair::testing
