#pragma once

// The error log: what went wrong or out of the ordinary, for the engineer. It is written a line at a time, each
// line flushed to disk before the call returns, and never read back. The station does not trim it.

#include <string>
#include <string_view>

#include "station/platform/clock.h"
#include "station/platform/files.h"

namespace quixair {

/// The mode that wrote a line, of this log or of the proof of airing.
enum class ModeLetter : char { kPickList = 'P', kRandom = 'R' };

/// Appends one line to QXERROR.LOG.
Status LogError(Files& files, std::string_view line);

/// `mode`, date and time, as most lines of the error log begin; the text follows without a blank.
std::string ErrorLineStart(ModeLetter mode, const CivilTime& now);

}  // namespace quixair
