#pragma once

// Boxes that the operator answers. The calls return with the answer; timers go on while a box is open, so
// that playback never waits for one.

#include <optional>
#include <string>
#include <string_view>

#include "station/platform/recording_format.h"
#include "station/platform/run_time_error.h"

namespace quixair {

enum class Answer { kOk, kCancel, kYes, kNo };

/// What a box offers and shows, added up as in the station's documents: 65 is kOkCancel + kInformation.
namespace box_style {
inline constexpr int kOk = 0;
inline constexpr int kOkCancel = 1;
inline constexpr int kYesNoCancel = 3;
inline constexpr int kYesNo = 4;
inline constexpr int kButtonMask = 7;
inline constexpr int kCritical = 16;
inline constexpr int kQuestion = 32;
inline constexpr int kExclamation = 48;
inline constexpr int kInformation = 64;
inline constexpr int kIconMask = 112;
}  // namespace box_style

/// What an input box holds when it opens.
struct InputOffer {
  enum class Use { kWhole, kBeginning };
  std::string_view text;
  /// A whole answer is selected, so that what is typed replaces it; a beginning is typed on.
  Use use = Use::kWhole;
  int limit = 0;  // of what can be typed; 0 is none
};

class Dialogs {
 public:
  virtual ~Dialogs() = default;
  /// Lines of `text` are divided by line feeds.
  virtual Answer MessageBox(std::string_view text, int style, std::string_view title) = 0;
  /// A box with an OK alone that counts as acknowledged when nobody has pressed it after some seconds, which it
  /// counts down: at night nobody is there to go on.
  virtual void NoticeBox(std::string_view text, int style, std::string_view title, int /*seconds*/) {
    MessageBox(text, style, title);
  }
  /// The text that was typed; empty when the operator cancelled.
  virtual std::string InputBox(std::string_view prompt, std::string_view title, const InputOffer& offer) = 0;
  /// The format that the operator chose; none when the choice was cancelled.
  virtual std::optional<RecordingFormat> FormatBox(const RecordingFormat& initial) = 0;
};

/// A plain box that tells what did not happen, and the run-time error behind it in words and by its number.
void TellFileFault(Dialogs& dialogs, const Status& fault, std::string_view consequence);

}  // namespace quixair
