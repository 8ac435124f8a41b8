#pragma once

// What the operator does on EraseUtility beyond gathering recordings: erases those in the list, clears it,
// quits. Erasing goes on to the next statement after each fault, which is told; so what can be erased is.

#include <string>

#include "station/platform/run_time_error.h"
#include "station/templates/event_list_editor.h"

namespace quixair {

class EraseUtility;

class EraseEditor : public EventListEditor {
 public:
  explicit EraseEditor(EraseUtility& screen);

  void Quit() override;

 private:
  void ClearList();
  void EraseList();
  void BeginAnew();

  /// One recording of the list.
  struct Recording {
    std::string id;
    std::string drive;
  };
  Recording RecordingAt(int number) const;
  bool Refused(const std::string& id);
  void Erase(const Recording& recording);
  void EraseDataFile(const Recording& recording);
  void EraseAudio(const Recording& recording);
  Result<bool> IsThere(const std::string& path);
  void TellNoAudio(const Recording& recording, const char* what);
  /// The one handler of all faults.
  void Handle(const Status& status, const Recording& recording);

  EraseUtility& screen_;
  std::string current_folder_;  // as the erasure last left it
};

}  // namespace quixair
