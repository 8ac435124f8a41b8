#include "station/console/error_log.h"

#include "station/console/station_paths.h"
#include "station/platform/dialogs.h"
#include "station/platform/files.h"
#include "station/platform/programs.h"

namespace quixair {

ErrorLog::ErrorLog(const Platform& platform) : Screen(platform, "ErrorLog", "Error Log") {
  Command1.on_click = [this] {
    platform_.programs.Run("C:\\Program Files\\Accessories\\wordpad.exe C:\\QXAIR\\QXERROR.LOG");
  };
  Command2.on_click = [this] { Clear(); };
  Command3.on_click = [this] { Unload(); };
}

void ErrorLog::Clear() {
  const Answer answer =
      platform_.dialogs.MessageBox("Do you really want to clear the entire error log?",
                                   box_style::kOkCancel + box_style::kQuestion, "Clear Error Log");
  if (answer != Answer::kOk) return;
  const Status deleted = platform_.files.Delete(station_paths::kErrorLog);
  if (deleted.error() == RunTimeError::kFileNotFound)
    return;  // nothing to clear, and deliberately no word of it
  if (!deleted.ok()) TellFileFault(platform_.dialogs, deleted, "The error log was not cleared.");
}

}  // namespace quixair
