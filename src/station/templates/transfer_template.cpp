#include "station/templates/transfer_template.h"

#include "station/platform/dialogs.h"
#include "station/platform/files.h"

namespace quixair {
namespace {
constexpr int kAsk = box_style::kOkCancel + box_style::kQuestion;
constexpr char kFirstDrive = 'C';
}  // namespace

void TransferTemplate::ShowFirstFolder() {
  Drive1.on_click = [this] { OpenDrive(); };
  Dir1.on_change = [this] {
    File3.SetPath(Dir1.path());
    FolderChanged();
  };
  Drive1.Refresh();
  Drive1.SelectDrive(kFirstDrive);
  SkipAndGoOn(Dir1.SetPath({kFirstDrive, ':', '\\'}));
  File3.SetPath(Dir1.path());
}

void TransferTemplate::OpenDrive() {
  const char letter = Drive1.drive();
  if (!Dir1.SetPath({letter, ':', '\\'}).ok()) {
    Drive1.SelectDrive(Dir1.drive());
    TellDriveMissing(letter);
    return;
  }
  Dir1.on_change();
}

bool TransferTemplate::CopyNow(const Transfer& transfer) {
  Dialogs& dialogs = platform_.dialogs;
  if (dialogs.MessageBox(transfer.ready_text, kAsk, transfer.ready_title) != Answer::kOk) return false;
  if (platform_.files.Exists(transfer.to) &&
      dialogs.MessageBox("File already exists on destination drive.\nSelecting <OK> will overwrite the file.",
                         kAsk, "Overwrite Existing File?") != Answer::kOk) {
    return false;
  }
  Text1.SetText(transfer.copying);
  Repaint();
  const Status copied = platform_.files.Copy(transfer.from, transfer.to);
  if (!copied.ok()) {
    TellFault(copied);
    return false;
  }
  Text1.SetText(transfer.copied);
  dialogs.MessageBox(transfer.done_text, box_style::kOk, transfer.done_title);
  return true;
}

void TransferTemplate::TellDriveMissing(char letter) {
  platform_.dialogs.MessageBox("This Drive is unavailable, try again...", box_style::kOk,
                               std::string("Drive ") + letter + " not available");
}

}  // namespace quixair
