#pragma once

// The boxes of a recording's data, as a recording screen shows them: one for each line of the data file, three
// for a date, each with its caption. On an entry screen they also hold to the rules of typing: no double quote
// reaches a data file, dates and years are digits, and a start date is one that can be. A capture screen only
// shows them.

#include <deque>
#include <functional>
#include <string>

#include "station/recording/record_layout.h"
#include "station/screen/screen.h"

namespace quixair {

/// A date as three boxes: month, day, year of two digits each.
struct DateBoxes {
  DateBoxes(Screen& screen, const std::string& name, TextBox::Use use);
  TextBox month, day, year;

  /// Takes the text apart by position: "03-07-01".
  void Show(std::string_view date);
  std::string Joined() const;
  void Enable(bool enabled);
};

class RecordBoxes {
 public:
  RecordBoxes(Screen& screen, const RecordLayout& layout, TextBox::Use use);
  RecordBoxes(const RecordBoxes&) = delete;
  RecordBoxes& operator=(const RecordBoxes&) = delete;

  TextBox& id() { return *id_; }
  TextBox& length() { return *length_; }
  TextBox& drive() { return *drive_; }
  /// The first of the data fields, below the id.
  TextBox& first_text() { return *first_text_; }

  void Show(const RecordValues& values);
  /// As typed: the id without its letter, the drive as its box shows it; a kill date without any figure is empty.
  RecordValues Typed() const;
  /// Id, data fields and dates; length and drive are never typed.
  void EnableId(bool enabled) { id_->Enable(enabled); }
  void EnableData(bool enabled);
  void Clear();
  /// Start is today.
  void ShowToday();
  void SetCaptionColor(std::optional<Color> color);

 private:
  void HoldToRules();
  void RefuseQuotes(TextBox& box);
  void HoldStartDate();

  Screen& screen_;
  const RecordLayout& layout_;
  std::deque<Label> captions_;
  std::deque<TextBox> boxes_;  // one for each line that is no date, in their order
  std::deque<DateBoxes> dates_;
  std::vector<TextBox*> texts_;
  TextBox* id_ = nullptr;
  TextBox* length_ = nullptr;
  TextBox* drive_ = nullptr;
  TextBox* first_text_ = nullptr;
  TextBox* year_ = nullptr;
  DateBoxes* start_ = nullptr;
  DateBoxes* kill_ = nullptr;
};

/// Empties the box on every change that leaves its first or last character no digit.
void KeepToDigits(TextBox& box);
/// Empties the box when one of the characters comes into it, and tells which; a box that holds nothing but one
/// is emptied without a word.
void RefuseCharacters(TextBox& box, std::string_view refused, const std::function<void(char)>& tell);
/// Whether its first and its last character are digits, or it is empty.
bool LooksLikeDigits(std::string_view text);

}  // namespace quixair
