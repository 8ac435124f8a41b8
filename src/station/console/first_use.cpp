#include "station/console/first_use.h"

#include "station/console/audio_driver.h"
#include "station/console/settings_files.h"
#include "station/console/station_paths.h"
#include "station/platform/dialogs.h"
#include "station/platform/event_gate.h"

namespace quixair {
namespace {

constexpr std::array<std::string_view, 5> kFolders = {station_paths::kProgramFolder,
                                                      station_paths::kDataFolder, station_paths::kTimeFolder,
                                                      "C:\\QXWAVE", station_paths::kTemplateFolder};

constexpr std::string_view kReady = "Getting Ready for First Use";

}  // namespace

MMregOCX::MMregOCX(const Platform& platform) : Screen(platform, "MMregOCX", "OCX Register") {
  Command1.on_click = [this] { RegisterAndGoOn(); };
}

void MMregOCX::RegisterAndGoOn() {
  RegisterAudioDriver(platform_);
  Unload();
  platform_.screens.Open("InstallInfo");
}

InstallInfo::InstallInfo(const Platform& platform) : Screen(platform, "InstallInfo", "Quixair Install") {
  for (std::size_t i = 0; i < kFolders.size(); ++i) FolderLabel[i].SetCaption(std::string(kFolders[i]));
  Command1.on_click = [this] { MakeFolders(); };
  Command2.on_click = [this] { Cancel(); };
}

void InstallInfo::MakeFolders() {
  for (const std::string_view folder : kFolders) SkipAndGoOn(platform_.files.MakeFolder(folder));
  Unload();
  platform_.screens.Open("InstallInfo2");
}

void InstallInfo::Cancel() {
  platform_.dialogs.MessageBox("Installation was Ended Before Completion\nRun Installation Again When Ready.",
                               box_style::kOk, "Quixair");
  EndProgram();
}

InstallInfo2::InstallInfo2(const Platform& platform)
    : Screen(platform, "InstallInfo2", "Audio Storage Configure") {
  Label1.SetCaption(
      "Create Additional Audio Storage Directories?      Press OK to add the QXWAVE directory to all "
      "additional "
      "writable devices.  Press Cancel if you do not wish these directories to be created");
  Label2.SetCaption(
      "*Note:  If this is a re-install, your existing data will not be harmed.  If you choose cancel, you "
      "will not be "
      "able to save audio files to drives other than C, unless you manually add the QXWAVE directory to "
      "selected "
      "drives.");
  Command1.on_click = [this] { MakeAudioFolders(); };
  Command2.on_click = [this] { Hide(); };
}

void InstallInfo2::MakeAudioFolders() {
  Label1.Hide();
  Command1.Hide();
  Command2.Hide();
  for (char letter = 'D'; letter <= 'Z'; ++letter) {
    // Always drive C's folder, whatever letter is shown: other drives get theirs when a recording screen
    // offers it.
    SkipAndGoOn(platform_.files.MakeFolder("C:\\QXWAVE"));
    Label2.SetCaption(std::string(" Attempting to Make ") + letter + ":\\QXWAVE directory ");
    Repaint();
  }
  Label2.SetCaption("Done...");
  SkipAndGoOn(WriteNumberSetting(platform_.files, station_paths::kPrepared, 1));
  ShowNotices();
  Unload();
}

void InstallInfo2::ShowNotices() {
  platform_.dialogs.MessageBox(
      "Important:  Before you use any playback features,\n"
      "you must first make at least two (2) recordings\n"
      "each of Spots, Liners, and Music.  Otherwise\n"
      "your Random Playback and Pick-List\n"
      "screens will not run correctly.",
      box_style::kInformation, kReady);
  platform_.dialogs.MessageBox(
      "This completes installation.  Before recording for the first time,\n"
      "it is advisable to reboot your system once again.  This will\n"
      "ensure your system has registered the new configuration.",
      box_style::kInformation, kReady);
}

}  // namespace quixair
