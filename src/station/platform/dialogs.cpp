#include "station/platform/dialogs.h"

namespace quixair {
namespace {

std::string_view InWords(RunTimeError error) {
  switch (error) {
    case RunTimeError::kFileNotFound:
      return "The file was not found.";
    case RunTimeError::kDiskFull:
      return "The disk is full.";
    case RunTimeError::kDeviceUnavailable:
      return "The sound input is not there.";
    case RunTimeError::kPermissionDenied:
      return "The system does not allow it.";
    case RunTimeError::kDiskNotReady:
      return "The drive is not there.";
    case RunTimeError::kPathFileAccess:
      return "The folder or file cannot be changed.";
    case RunTimeError::kPathNotFound:
      return "The folder was not found.";
    default:
      return "The file or drive does not answer as it should.";
  }
}

}  // namespace

void TellFileFault(Dialogs& dialogs, const Status& fault, std::string_view consequence) {
  std::string text(InWords(fault.error()));
  text += '\n';
  text += consequence;
  text += "\n[Error " + std::to_string(fault.number()) + ']';
  dialogs.MessageBox(text, box_style::kOk + box_style::kExclamation, "Quixair");
}

}  // namespace quixair
