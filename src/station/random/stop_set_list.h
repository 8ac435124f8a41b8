#pragma once

// The stop sets of a day: the rows of the template in use, each with what its data file tells. A row that is
// a time of the day opens a set; the rows below it, up to the next time, are the set's items. Rows are
// counted from 1, as on the screen, where row 0 is the heading.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "station/platform/files.h"
#include "station/templates/template_file.h"

namespace quixair {

struct StopSetRow {
  EventKind kind = EventKind::kOther;
  std::string EventId;  // as in the template: a time "hh:mm AM", an event code, a recording's id
  std::string second;   // the template's second value
  std::string Length;   // from the data file, as what follows; empty for a row without one
  std::string Drive;
  std::string Title;
  bool marked = false;  // had its turn

  /// As the screen shows it, a mark in front.
  std::string text() const { return marked ? '*' + EventId : EventId; }
};

class StopSetList {
 public:
  /// The rows of a template's content, and for each recording among them its data file. A data file that is
  /// missing leaves its row without a drive.
  static StopSetList Load(Files& files, std::string_view content);

  int count() const { return static_cast<int>(rows_.size()); }
  StopSetRow& row(int number) { return rows_[static_cast<std::size_t>(number - 1)]; }
  const StopSetRow& row(int number) const { return rows_[static_cast<std::size_t>(number - 1)]; }

  /// Sum of the lengths, each cut to whole seconds.
  int TemplateSeconds() const { return template_seconds_; }
  /// How many rows are times of the day.
  int set_count() const { return static_cast<int>(times_.size()); }

  /// The next set of this day that has not had its turn, at or after a minute of the day.
  struct Coming {
    int row = 0;
    int minute = 0;  // of the day
  };
  std::optional<Coming> Next(int minute_of_day) const;

  /// Rows that look like times of the day but are written in a way that the clock never meets.
  std::vector<std::string> MistypedTimes() const;

 private:
  std::vector<StopSetRow> rows_;
  std::vector<Coming> times_;  // the well-formed ones, in file order
  int template_seconds_ = 0;
};

/// Minute of the day of a text "hh:mm AM"; none when it is written in any other way.
std::optional<int> MinuteOfDay(std::string_view hour_minute_am_pm);

}  // namespace quixair
