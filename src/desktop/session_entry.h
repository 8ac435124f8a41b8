#pragma once

// The entry by which the user's desktop session starts the program: the file quixair.desktop in the session's
// autostart folder, in the form that all freedesktop desktops read. A reader finds the old entry or the new
// one, never half of one.

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "station/platform/session_start.h"

namespace quixair::desktop {

/// The whole entry, for a program by its full path. None for a path that no entry can name: one with an equals
/// sign, or a relative one.
std::optional<std::string> SessionEntryText(std::string_view program);

class SessionEntry : public SessionStart {
 public:
  SessionEntry(std::filesystem::path autostart_folder, std::string program)
      : folder_(std::move(autostart_folder)), program_(std::move(program)) {}

  /// Missing folders are made. An entry that somebody else wrote is taken over, but never removed. 52 a path that no entry can name, 61 disk full, 70 or 75 not allowed.
  Status SetStartsWithSession(bool starts) override;

 private:
  Status Write();
  Status Remove();

  std::filesystem::path folder_;
  std::string program_;
};

}  // namespace quixair::desktop
