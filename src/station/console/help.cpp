#include "station/console/help.h"

#include "station/console/station_paths.h"
#include "station/platform/dialogs.h"
#include "station/platform/files.h"
#include "station/platform/programs.h"

namespace quixair {

QXHelp::QXHelp(const Platform& platform) : Screen(platform, "QXHelp", "Help") {
  OpenOnClick(Command1, "MAN40COV.DOC");
  OpenOnClick(Command2, "MAN40S1.DOC");
  OpenOnClick(Command3, "MAN40S2.DOC");
  OpenOnClick(Command4, "MAN40S3.DOC");
  OpenOnClick(Command5, "MAN40S4.DOC");
  OpenOnClick(Command6, "MAN40S5.DOC");
  OpenOnClick(Command9, "MAN40S6.DOC");
  OpenOnClick(Command10, "MAN40S7.DOC");
  OpenOnClick(Command11, "MAN40S8.DOC");
  OpenOnClick(Command7, "v3man.txt");
  Command8.on_click = [this] { Unload(); };
}

void QXHelp::OpenOnClick(Button& button, std::string_view document) {
  button.on_click = [this, document] { Open(document); };
}

void QXHelp::Open(std::string_view document) {
  const std::string path = std::string(station_paths::kProgramFolder) + '\\' + std::string(document);
  if (!platform_.files.Exists(path)) {
    platform_.dialogs.MessageBox("This part of the manual is not on this PC:\n" + path,
                                 box_style::kOk + box_style::kExclamation, "Help");
    return;
  }
  platform_.programs.Run("C:\\Program Files\\Accessories\\WordPad.exe " + path);
}

}  // namespace quixair
