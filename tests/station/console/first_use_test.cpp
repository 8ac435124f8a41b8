#include <gtest/gtest.h>

#include "support/station_fixture.h"

namespace quixair::testing {
namespace {

namespace fs = std::filesystem;

class FirstUse : public StationFixture {
 protected:
  FirstUse() { fs::remove_all(folder_.path() / "C"); }

  void StartNewMachine() {
    fs::create_directories(folder_.path() / "C");
    QueueAnswer("OK");
    StartConsole();
  }
};

TEST_F(FirstUse, ThreeScreens_MakeTheFoldersAndMarkTheSystemPrepared) {
  StartNewMachine();
  Click("MMregOCX", "Command1");
  EXPECT_FALSE(IsOpen("MMregOCX"));
  EXPECT_EQ(runs_, (std::vector<std::string>{"C:\\Windows\\System\\MMREGOCX.EXE MMTypesX.OCX MMWaveX.OCX"}));
  const std::string folders[] = {"C:\\QXAIR", "C:\\QXDATA", "C:\\QXTIME", "C:\\QXWAVE", "C:\\QXTEMPLT"};
  for (std::size_t i = 0; i < std::size(folders); ++i) {
    EXPECT_EQ(Shown("InstallInfo", "FolderLabel(" + std::to_string(i) + ')'), folders[i]);
  }
  EXPECT_TRUE(fs::is_empty(Host(""))) << "nothing is made before it was agreed to";
  Click("InstallInfo", "Command1");
  EXPECT_FALSE(IsOpen("InstallInfo"));
  for (const std::string& folder : folders) EXPECT_TRUE(fs::is_directory(Host(folder.substr(3)))) << folder;
  EXPECT_FALSE(fs::exists(Host("QXAIR/REGOCX.DTA")));

  QueueAnswer("OK");
  QueueAnswer("OK");
  std::string label_at_notice;
  station_.dialogs().on_box = [&](const simulation::ShownBox&) {
    label_at_notice = Shown("InstallInfo2", "Label2");
  };
  Click("InstallInfo2", "Command1");
  EXPECT_EQ(label_at_notice, "Done...");
  EXPECT_FALSE(IsOpen("InstallInfo2"));
  EXPECT_EQ(FileText("QXAIR/REGOCX.DTA"), "1\r\n");
  ASSERT_EQ(boxes().size(), 3U);
  EXPECT_EQ(boxes()[1].style, 64);
  EXPECT_EQ(boxes()[1].title, "Getting Ready for First Use");
  EXPECT_EQ(
      boxes()[1].text,
      "Important:  Before you use any playback features,\nyou must first make at least two (2) recordings\n"
      "each of Spots, Liners, and Music.  Otherwise\nyour Random Playback and Pick-List\n"
      "screens will not run correctly.");
  EXPECT_EQ(
      boxes()[2].text,
      "This completes installation.  Before recording for the first time,\nit is advisable to reboot your "
      "system once again.  This will\nensure your system has registered the new configuration.");

  StartConsole();
  EXPECT_TRUE(IsOpen("frmSplash")) << "the next start finds a prepared system";
}

TEST_F(FirstUse, AudioFolders_AreAnnouncedForEveryLetterAndMadeOnCOnly) {
  class Progress final : public ScreenObserver {
   public:
    void ControlChanged(Control&, Aspect) override {}
    void TitleChanged(Screen&) override {}
    void VisibilityChanged(Screen&) override {}
    void Repaint(Screen& screen) override { shown.push_back(screen.FindControl("Label2")->shown_text()); }
    std::vector<std::string> shown;
  } progress;
  fs::create_directories(folder_.path() / "D");
  StartNewMachine();
  Click("MMregOCX", "Command1");
  Click("InstallInfo", "Command1");
  QueueAnswer("OK");
  QueueAnswer("OK");
  station_.FindScreen("InstallInfo2")->set_observer(&progress);
  Click("InstallInfo2", "Command1");
  ASSERT_EQ(progress.shown.size(), 23U);
  EXPECT_EQ(progress.shown.front(), " Attempting to Make D:\\QXWAVE directory ");
  EXPECT_EQ(progress.shown.back(), " Attempting to Make Z:\\QXWAVE directory ");
  EXPECT_TRUE(fs::is_empty(folder_.path() / "D"));
}

TEST_F(FirstUse, FoldersAndDataThatAreThere_StayAsTheyAre) {
  PutFile("QXDATA/S1.DAT", "spot");
  PutFile("QXAIR/MMREGOCX.EXE", "program");
  PutFile("Windows/System/old.txt", "");
  StartNewMachine();
  Click("MMregOCX", "Command1");
  Click("InstallInfo", "Command1");
  EXPECT_EQ(FileText("QXDATA/S1.DAT"), "spot");
  EXPECT_TRUE(fs::is_directory(Host("QXTEMPLT")));
  EXPECT_EQ(FileText("Windows/System/MMREGOCX.EXE"), "program");
}

TEST_F(FirstUse, CancelledAtTheFolders_EndsTheProgramWithAWord) {
  StartNewMachine();
  Click("MMregOCX", "Command1");
  Click("InstallInfo", "Command2", {"OK"});
  EXPECT_EQ(boxes().back().text,
            "Installation was Ended Before Completion\nRun Installation Again When Ready.");
  EXPECT_FALSE(station_.running());
  EXPECT_TRUE(fs::is_empty(Host("")));
}

TEST_F(FirstUse, CancelledAtTheAudioFolders_RunsAgainAtTheNextStartOrFromTheMenu) {
  StartNewMachine();
  const auto go_through = [this] {
    Click("MMregOCX", "Command1");
    Click("InstallInfo", "Command1");
  };
  go_through();
  Click("InstallInfo2", "Command2");
  EXPECT_FALSE(station_.FindScreen("InstallInfo2")->visible());
  Menu("RecordingDrivers");
  go_through();
  EXPECT_TRUE(station_.FindScreen("InstallInfo2")->visible());
  Click("InstallInfo2", "Command2");
  StartNewMachine();
  go_through();
  Click("InstallInfo2", "Command1", {"OK", "OK"});
  EXPECT_EQ(FileText("QXAIR/REGOCX.DTA"), "1\r\n");
}

}  // namespace
}  // namespace quixair::testing
