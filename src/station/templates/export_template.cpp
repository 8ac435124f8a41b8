#include "station/console/station_paths.h"
#include "station/platform/dialogs.h"
#include "station/templates/transfer_template.h"

namespace quixair {
namespace {
constexpr const char* kHint = "First, select an existing file to send to another drive or directory.";
constexpr const char* kChooseFolder = "Now, choose a drive and path to send the selected file to...";
constexpr const char* kChooseOrGoOn =
    "Now, choose a drive and path to send the selected file, or <Export Now> if correct.";
}  // namespace

ExportTemplate::ExportTemplate(const Platform& platform)
    : TransferTemplate(platform, "ExportTemplate", "Quixair Export Template (Pick-List)") {
  choice_.on_pick = [this](const std::string& name) {
    name_ = name;
    Text1.SetText(destination_chosen_ ? kChooseOrGoOn : kChooseFolder);
  };
  choice_.on_choose = [this](const ChosenTemplate& chosen) {
    if (chosen.way == ChosenTemplate::Way::kDone) {
      Export();
    } else {
      Drive1.SetFocus();
    }
  };
  Quit.on_click = [this] { Unload(); };
}

void ExportTemplate::Prepare(const ScreenOpening& opening) {
  Screen::Prepare(opening);
  const bool told = opening.patterns.size() == 2;
  ShowTemplates(File1, told ? opening.patterns[0] : "*.TPP");
  ShowTemplates(File2, told ? opening.patterns[1] : "*.TPT");
  choice_.Reset();
  destination_chosen_ = false;
  Text1.SetText(kHint);
  ShowFirstFolder();
  File1.SetFocus();
}

void ExportTemplate::FolderChanged() {
  destination_chosen_ = true;
  Text1.SetText(
      Dir1.path() + " is the export destination. " +
      (ExportNow.enabled() ? "Press <Export Now> to continue" : "Now, select an existing file to send"));
}

void ExportTemplate::Export() {
  const std::string& path = Dir1.path();
  const Transfer transfer{.from = station_paths::TemplateFile(name_),
                          .to = Dir1.FileIn(name_),
                          .ready_title = "Ready to Export File",
                          .ready_text = "A copy of " + name_ + " will be sent to " + path,
                          .copying = "Copying " + name_ + " to " + path,
                          .copied = name_ + " copied to " + path,
                          .done_title = name_ + " Copied",
                          .done_text = "The file has been Exported to " + path};
  if (CopyNow(transfer)) File3.Refresh();
}

void ExportTemplate::TellFault(const Status& fault) {
  const std::string& path = Dir1.path();
  Text1.SetText("There was a problem Exporting " + name_ + " to " + path);
  Dialogs& dialogs = platform_.dialogs;
  if (fault.error() == RunTimeError::kDiskNotReady) {
    TellDriveMissing(dialogs, Dir1.drive());
  } else if (fault.error() == RunTimeError::kPermissionDenied) {
    dialogs.MessageBox(
        "Cannot copy file.  Make sure write access to the disk is allowed\n"
        "or that you are not trying to copy the file onto itself.",
        box_style::kOk, "Permission Denied on " + path);
  } else {
    dialogs.MessageBox("A problem may have occured.  Check the exported file\nto make sure it was created.",
                       box_style::kOk, "Unanticipated Error " + std::to_string(fault.number()));
  }
}

}  // namespace quixair
