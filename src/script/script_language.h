#pragma once

// The words of a script: a statement a line, words divided by blanks, texts with blanks between double quotes with \" and
// \\ inside, "#" starts a comment. Scripts are UTF-8; words are held in the station's code page.

#include <chrono>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "station/platform/clock.h"

namespace quixair::script {

/// What is wrong with a script itself; the program exits with 2.
class ScriptError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// An act that nobody could do just now: on a screen that is not open, a control that is hidden or disabled.
class CannotBeDone : public ScriptError {
 public:
  using ScriptError::ScriptError;
};

struct Word {
  std::string text;       // without its quotes
  std::size_t quoted_at;  // where in the text a quote began, npos when nothing was quoted
  bool quoted() const { return quoted_at == 0; }
};

/// The words of one line, none for an empty or comment line.
std::vector<Word> WordsOf(std::string_view line);

/// "Screen.Control" or Screen."caption".
struct ControlReference {
  std::string screen;
  std::string control;
  bool by_caption = false;
};
ControlReference ReferenceOf(const Word& word);

/// "90s", "500ms", "5m", "2h"; and with a sign in front, as a clock is set forth or back.
std::chrono::milliseconds SpanOf(std::string_view text);
std::chrono::milliseconds SignedSpanOf(std::string_view text);
std::int64_t WholeNumberOf(std::string_view text);
/// "2026-11-22 20:00:00".
CivilTime MomentOf(std::string_view text);
/// "21:15:00" or "21:15".
CivilTime TimeOfDayOf(std::string_view text);

/// Between double quotes, for the trace: quotes, backslashes and line feeds escaped, in UTF-8.
std::string Quoted(std::string_view code_page_text);
/// "2026-11-22 20:00:00.210".
std::string Stamp(const CivilTime& time);

}  // namespace quixair::script
