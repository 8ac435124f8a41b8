#include "station/recording/record_faults.h"

#include <string>

#include "station/platform/event_gate.h"

namespace quixair {

void TellRecordFault(Dialogs& dialogs, const Status& fault, std::string_view missing,
                     std::string_view software, AbnormalFault abnormal) {
  switch (fault.error()) {
    case RunTimeError::kFileNotFound:
      dialogs.MessageBox("Check to make sure the file exists, then try again.", box_style::kExclamation,
                         std::string(missing) + ".dat Was Not Found");
      return;
    case RunTimeError::kPathNotFound:
      dialogs.MessageBox("Some problem has occured.  Try re-booting the system or re-installing\nyour " +
                             std::string(software) +
                             " Software.  The QXDATA directory stores all DATA files.",
                         box_style::kExclamation, "The C:\\QXDATA Folder Can't Be Found");
      return;
    case RunTimeError::kFileAlreadyOpen:
      dialogs.MessageBox(
          "The data file did not close properly or is corrupted.  You must reboot \n"
          "the P.C. to gain access to this file. \n"
          "If that does not correct the problem, delete the file.",
          box_style::kExclamation, "File Already Open");
      return;
    default:
      dialogs.MessageBox(
          "Some problem has occured.  Try re-booting the system\nor re-installing your Quixair Software.",
          box_style::kCritical, "Abnormal Error # " + std::to_string(fault.number()));
      if (abnormal == AbnormalFault::kEndsProgram) EndProgram(1);
  }
}

}  // namespace quixair
