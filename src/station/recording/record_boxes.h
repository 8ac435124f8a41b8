#pragma once

// The recording screens: entry of a recording's data, capture, import, the time announcements. Here are the boxes
// of a recording's data, as entry and capture show them: one for each field of the kind, three for a date, each
// with its caption. On an entry screen they also hold to the rules of typing: no double quote reaches a data
// file, dates and years are digits, and a start date is one that can be. A capture screen only shows them.

#include <deque>
#include <functional>
#include <span>
#include <string>
#include <vector>

#include "station/library/recording.h"
#include "station/screen/screen.h"

namespace quixair {

/// A date as three boxes: month, day, year of two digits each.
struct DateBoxes {
  DateBoxes(Screen& screen, const std::string& name, TextBox::Use use);
  TextBox month, day, year;

  /// "03-07-01"; a date of single figures or in part shows as it was typed.
  void Show(std::string_view date);
  std::string Joined() const;
  void Enable(bool enabled);
  /// What is no date, and would hold nothing back on the air, is red; boxes that are all empty are none.
  void MarkUnlessDate(int this_year);
};

/// A field of a recording as a screen shows it.
struct FieldBox {
  Field field;
  const char* box;      // the control that shows it; a date has three, by the endings MM, DD and YY
  const char* caption;  // before the box
  int limit;            // of what can be typed
};

class RecordBoxes {
 public:
  RecordBoxes(Screen& screen, RecordingKind kind, TextBox::Use use);
  RecordBoxes(const RecordBoxes&) = delete;
  RecordBoxes& operator=(const RecordBoxes&) = delete;

  TextBox& id() { return *id_; }
  const TextBox& id() const { return *id_; }
  TextBox& length() { return *length_; }
  TextBox& drive() { return *drive_; }
  /// The first of the data fields, below the id.
  TextBox& first_text() { return *texts_.front(); }

  void Show(const Recording& recording);
  /// As typed: the id without its letter, the drive as its box shows it; a kill date without any figure is empty.
  void PutInto(Recording& recording) const;
  /// Data fields and dates; length and drive are never typed.
  void EnableData(bool enabled);
  void Clear();
  /// Start is today.
  void ShowToday();
  void SetCaptionColor(std::optional<Color> color);

 private:
  void HoldToRules();
  void RefuseQuotes(TextBox& box);
  void MarkDates();
  void HoldStartDate();

  Screen& screen_;
  std::span<const FieldBox> fields_;
  std::deque<Label> captions_;
  std::deque<TextBox> boxes_;  // one for each line that is no date, in their order
  std::deque<DateBoxes> dates_;
  std::vector<TextBox*> texts_;
  TextBox* id_ = nullptr;
  TextBox* length_ = nullptr;
  TextBox* drive_ = nullptr;
  TextBox* year_ = nullptr;
  DateBoxes* start_ = nullptr;
  DateBoxes* kill_ = nullptr;
};

/// Empties the box on every change that leaves in it what does not look like digits.
void KeepToDigits(TextBox& box);
/// Empties the box when one of the characters comes into it, and tells which; a box that holds nothing but one
/// is emptied without a word.
void RefuseCharacters(TextBox& box, std::string_view refused, const std::function<void(char)>& tell);
/// Whether its first and its last character are digits and no double quote is between them, or it is empty.
bool LooksLikeDigits(std::string_view text);

}  // namespace quixair
