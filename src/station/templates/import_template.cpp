#include "station/console/station_paths.h"
#include "station/platform/dialogs.h"
#include "station/platform/files.h"
#include "station/templates/transfer_template.h"

namespace quixair {
namespace {
constexpr const char* kHint = "First, choose the drive and folder to import from, then the file.";
}

ImportTemplate::ImportTemplate(const Platform& platform)
    : TransferTemplate(platform, "ImportTemplate", "Quixair Import Template (Pick-List)") {
  File3.on_click = [this] { ImportNow.Enable(); };
  File3.on_double_click = File3.on_enter = [this] { Accept(); };
  ImportNow.on_click = [this] { Import(); };
  Quit.on_click = [this] { Unload(); };
}

void ImportTemplate::Prepare(const ScreenOpening& opening) {
  Screen::Prepare(opening);
  const std::string pattern = opening.patterns.empty() ? "*.TPT;*.TPP" : opening.patterns.front();
  const bool told = opening.captions.size() == 2;
  Label1.SetCaption(told ? opening.captions[0] : "Pick-List Files in Source:");
  Label2.SetCaption(told ? opening.captions[1] : "Pick-List Templates in use:");
  ShowTemplates(File1, pattern);
  File3.SetPattern(pattern);
  ShowFirstFolder();
  ImportNow.Disable();
  Text1.SetText(kHint);
  Drive1.SetFocus();
}

void ImportTemplate::FolderChanged() {
  ImportNow.Disable();
  Text1.SetText(kHint);
}

void ImportTemplate::Accept() {
  if (File3.selected_index() < 0) return;
  Text1.SetText(File3.selected_text() +
                " will be imported to C:\\QXTEMPLT.  To continue, select <Import Now>.");
  ImportNow.SetFocus();
}

void ImportTemplate::Import() {
  const std::string name = File3.selected_text();
  if (name.empty()) return;
  const Transfer transfer{.from = Dir1.FileIn(name),
                          .to = station_paths::TemplateFile(name),
                          .ready_title = "Ready to Import " + Dir1.FileIn(name),
                          .ready_text = "A copy of " + name + " will be imported to C:\\QXTEMPLT",
                          .copying = "Copying " + name + " from " + Dir1.path() + " to C:\\QXTEMPLT",
                          .copied = name + " copied to C:\\QXTEMPLT",
                          .done_title = name + " Copied",
                          .done_text = "The file has been imported to C:\\QXTEMPLT."};
  if (CopyNow(transfer)) File1.Refresh();
}

void ImportTemplate::TellFault(const Status& fault) {
  Text1.SetText("Problem encountered copying " + File3.selected_text() + " to " + Dir1.path());
  Dialogs& dialogs = platform_.dialogs;
  const bool no_template_folder = !platform_.files.ListFolders(station_paths::kTemplateFolder).ok();
  switch (no_template_folder && fault.error() == RunTimeError::kPathNotFound ? RunTimeError::kPathFileAccess
                                                                             : fault.error()) {
    case RunTimeError::kDiskNotReady:
      return TellDriveMissing(dialogs, Dir1.drive());
    case RunTimeError::kPermissionDenied:
      dialogs.MessageBox(
          "Cannot copy file to C:\\QXTEMPLT.  Disk may be protected,\n"
          " - or - you are trying to write the same file over itself.",
          box_style::kOk, "Permission Denied");
      return;
    case RunTimeError::kPathFileAccess:
      dialogs.MessageBox("Cannot copy file to C:\\QXTEMPLT.\nMake sure the QXTEMPLT directory exists.",
                         box_style::kOk, "Path/File Access Error");
      return;
    default:
      dialogs.MessageBox(
          "The file was not imported.  Please check the source\n"
          "and try to import again if necessary.",
          box_style::kOk, "Unexpected ERROR = " + std::to_string(fault.number()));
  }
}

}  // namespace quixair
