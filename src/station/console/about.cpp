#include "station/console/about.h"

#include "station/platform/dialogs.h"
#include "station/platform/programs.h"
#include "station/platform/version.h"

namespace quixair {
namespace {

constexpr std::string_view kSystemInformation = "MSINFO32.EXE";

}  // namespace

About::About(const Platform& platform) : Screen(platform, "frmAbout", "About Quixair") {
  lblVersion.SetCaption("Version " + std::to_string(kVersionMajor) + '.' + std::to_string(kVersionMinor));
  cmdOK.on_click = [this] { Unload(); };
  cmdContact.on_click = [this] { ShowContact(); };
  cmdSysInfo.on_click = [this] { ShowSystemInformation(); };
}

void About::ShowContact() {
  platform_.dialogs.MessageBox(
      "Quixair is made by Quixair Works.\nYour station's supplier tells you where to write.",
      box_style::kInformation, "About Quixair");
}

void About::ShowSystemInformation() {
  if (platform_.programs.Knows(kSystemInformation)) {
    platform_.programs.Run(kSystemInformation);
    return;
  }
  platform_.dialogs.MessageBox("System Information Is Unavailable At This Time", box_style::kOk,
                               "About Quixair");
}

}  // namespace quixair
