#include "station/templates/transfer_template.h"

#include <utility>

#include "station/platform/dialogs.h"
#include "station/platform/files.h"

namespace quixair {
namespace {
constexpr int kAsk = box_style::kOkCancel + box_style::kQuestion;
}  // namespace

TransferTemplate::TransferTemplate(const Platform& platform, std::string name, std::string title)
    : Screen(platform, std::move(name), std::move(title)) {
  folder_.on_change = [this] { FolderChanged(); };
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

}  // namespace quixair
