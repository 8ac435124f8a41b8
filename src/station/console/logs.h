#pragma once

// The station's two logs. The error log tells the engineer what went wrong or out of the ordinary; the
// verification logs, one a weekday, are the proof of airing. Both are written a line at a time, each line
// flushed to disk before the call returns, and never read back. The station trims neither.

#include <string>
#include <string_view>

#include "station/platform/clock.h"
#include "station/platform/files.h"

namespace quixair {

/// The mode that wrote a line.
enum class ModeLetter : char { kPickList = 'P', kRandom = 'R' };

/// Appends one line to QXERROR.LOG.
Status LogError(Files& files, std::string_view line);

/// `mode`, date and time, as most lines of the error log begin; the text follows without a blank.
std::string ErrorLineStart(ModeLetter mode, const CivilTime& now);

/// Appends a line to the log of the day of `now`, so a run across midnight goes on in the next day's file.
/// `start_time` is "HH:MM:SS AM/PM". 61 when the disk is full: the next line tries again.
Status LogVerification(Files& files, const CivilTime& now, std::string_view id, std::string_view description,
                       std::string_view start_time, ModeLetter mode);

/// Spots, songs and legal ids are proved; other liners, pauses and announcements are not.
bool IsVerified(std::string_view id);
/// "*LEGAL I.D.*" for a legal id, else the item's own text.
std::string_view LogDescription(std::string_view id, std::string_view field4);

inline constexpr const char* kDriveFullWarning = "WARNING: DRIVE C FULL - VERFICIATION LOGGING TERMINATED!";

}  // namespace quixair
