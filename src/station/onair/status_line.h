#pragma once

// The line of a playback screen that tells in words what the run is doing. Whoever has something to say says it
// here: nobody else writes into that box.

#include <string>

#include "station/screen/controls.h"

namespace quixair {

class StatusLine {
 public:
  explicit StatusLine(TextBox& line);

  void Tell(std::string text);
  /// In yellow, which stays until EndWarning.
  void Warn(std::string text);
  void EndWarning();

 private:
  TextBox& line_;
};

namespace status_text {
inline constexpr const char* kReady = "Ready to Begin Playback.  Press START to begin, or QUIT to Exit";
inline constexpr const char* kPaused = "  AUDIO PAUSED...  Click Continue or ALT+C to Resume ";
inline constexpr const char* kLiveNow = "AUDIO PAUSED FOR LIVE BREAK ! - Press <CONTINUE> to Resume";
inline constexpr const char* kLiveAsked =
    "                                    Going Live After Current Selection Ends";
inline constexpr const char* kLiveTakenBack =
    "                                                             Live Cancelled!";
inline constexpr const char* kPauseEvent =
    "                      Audio Paused... Press <Begin Next> to Resume.";
}  // namespace status_text

}  // namespace quixair
