#pragma once

// The small settings and hand-over files through which screens keep and pass values: read under the rule that
// a failure is skipped, so that an absent file is the caller's default, and rewritten whole.

#include <optional>
#include <string>
#include <string_view>

#include "station/platform/files.h"

namespace quixair {

/// The first value of the file; none when the file is missing or empty.
std::optional<std::string> ReadSetting(Files& files, std::string_view path);
/// The first value as a number; 0 when missing.
int ReadNumberSetting(Files& files, std::string_view path);

Status WriteTextSetting(Files& files, std::string_view path, std::string_view value);
Status WriteNumberSetting(Files& files, std::string_view path, int value);

/// The restart record RESET.DTA: which mode plays, and what it needs to go on after a power cut. Always
/// flushed to disk.
struct RestartRecord {
  bool running = false;
  std::string mode;           // "RANDOM" or "PICKLIST"
  std::string template_name;  // Random: may be empty
  int event_number = 0;       // Pick-List: the event that was in turn
};
inline constexpr std::string_view kRandomMode = "RANDOM";
inline constexpr std::string_view kPickListMode = "PICKLIST";

/// A missing record is one of no run.
RestartRecord ReadRestartRecord(Files& files);
Status WriteRunningRecord(Files& files, std::string_view mode, std::string_view template_name);
/// Of Pick-List playback, rewritten at each event.
Status WritePickListRecord(Files& files, std::string_view template_name, int event_number);
/// Between two daily templates: no run, but a name and an event for the load that follows at once.
Status WriteDayChangeRecord(Files& files, std::string_view template_name, int event_number);
/// What every orderly end leaves.
Status WriteCleanExitRecord(Files& files);

}  // namespace quixair
