#pragma once

// A person who answers boxes as told beforehand, and a record of what was asked; outside programs and the session's start that are only noted.

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "station/platform/dialogs.h"
#include "station/platform/programs.h"
#include "station/platform/session_start.h"

namespace quixair::simulation {

struct ShownBox {
  bool input = false;
  int style = 0;
  std::string title;
  std::string text;
  std::string offered;  // by an input box; with a bar behind it when it is typed on
  std::string answer;   // "OK", "Cancel", "Yes", "No", or the typed text
};

class ScriptedDialogs : public Dialogs {
 public:
  Answer MessageBox(std::string_view text, int style, std::string_view title) override;
  std::string InputBox(std::string_view prompt, std::string_view title, const InputOffer& offer) override;
  /// Answered with "48000 16 2".
  std::optional<RecordingFormat> FormatBox(const RecordingFormat& initial) override;

  /// Queues the answer of the next box: a button's name, or the text of an input box.
  void QueueAnswer(std::string answer) { answers_.push_back(std::move(answer)); }
  const std::vector<ShownBox>& shown() const { return shown_; }

  /// The answer of boxes for which none is queued: no box is unexpected any more. Who is asked the same again cancels.
  std::optional<std::string> otherwise;

  /// A box stands open and is about to be answered.
  std::function<void()> on_open;
  std::function<void(const ShownBox&)> on_box;
  /// A box came for which no answer was queued, or one that it does not offer; it is cancelled, or acknowledged where it
  /// can only be that.
  std::function<void(const ShownBox&)> on_unexpected;

 private:
  std::optional<std::string> TakeAnswer(const ShownBox& box);
  std::string AnswerTyped(ShownBox box);

  std::deque<std::string> answers_;
  std::vector<ShownBox> shown_;
};

std::string_view NameOf(Answer answer);

class NotedPrograms : public Programs {
 public:
  void Run(std::string_view command_line, WindowState window) override {
    if (on_run) on_run(std::string(command_line), window);
  }
  bool Knows(std::string_view) override { return knows_all; }
  void SendKeys(std::string_view keys) override {
    if (on_keys) on_keys(std::string(keys));
  }
  bool knows_all = true;
  std::function<void(const std::string& command_line, WindowState window)> on_run;
  std::function<void(const std::string& keys)> on_keys;
};

class NotedSessionStart : public SessionStart {
 public:
  Status SetStartsWithSession(bool starts) override {
    if (fault.ok() && on_set) on_set(starts);
    return fault;
  }
  Status fault;  // what every call comes back with
  std::function<void(bool starts)> on_set;
};

}  // namespace quixair::simulation
