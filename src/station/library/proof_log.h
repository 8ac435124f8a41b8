#pragma once

// The proof of airing, for those who paid for it: one log a weekday, C:\QXTEMPLT\Mon.LOG to Sun.LOG, with a line
// for each spot, song and legal id that was heard. A line is on the disk when the call returns. The station never
// trims the logs.

#include <optional>
#include <string>
#include <string_view>

#include "station/console/logs.h"
#include "station/platform/clock.h"
#include "station/platform/files.h"

namespace quixair {

struct ProofLine {
  std::string date;        // "MM-DD-YYYY"
  std::string start_time;  // "HH:MM:SS AM/PM"
  std::string id;
  std::string description;
  ModeLetter mode = ModeLetter::kRandom;
  bool operator==(const ProofLine&) const = default;

  /// With its line end.
  std::string Format() const;
  /// With or without it; none when the line is torn, or none of these.
  static std::optional<ProofLine> Parse(std::string_view line);
};

/// Appends a line to the log of the day of `now`, so a run across midnight goes on in the next day's file.
/// `start_time` as in the line. 61 when the disk is full: the next line tries again.
Status LogVerification(Files& files, const CivilTime& now, std::string_view id, std::string_view description,
                       std::string_view start_time, ModeLetter mode);

/// Spots, songs and legal ids are proved; other liners, pauses and announcements are not.
bool IsVerified(std::string_view id);
/// "*LEGAL I.D.*" for a legal id, else the item's own text.
std::string_view LogDescription(std::string_view id, std::string_view text);

inline constexpr const char* kDriveFullWarning = "WARNING: DRIVE C FULL - VERFICIATION LOGGING TERMINATED!";

}  // namespace quixair
