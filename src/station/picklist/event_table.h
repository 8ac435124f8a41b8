#pragma once

// The events of a pick-list: what the list itself says of each and what its data file adds. Events are
// counted from 1. Pick-List playback plays them from the first to the last.

#include <string>
#include <string_view>
#include <vector>

#include "station/platform/files.h"

namespace quixair {

struct PickListEvent {
  std::string EventId;
  std::string EventLength;  // seconds as text, "0" when there is no data file
  std::string EventDrive;   // empty: cannot be played
  std::string EventField4;
  std::string EventField5;
};

/// Events whose turn is no audio file: pauses, announcements, the reserved codes, empty places.
bool IsNoRecording(std::string_view event_id);
bool IsPauseEvent(std::string_view event_id);
bool IsTimeEvent(std::string_view event_id);
/// Begins ">": no channel is started for it, the announcement apart.
bool StartsNoChannel(std::string_view event_id);

class EventTable {
 public:
  static constexpr int kCapacity = 2000;

  /// Takes over the ids of C:\QXTEMPLT\<name>. 53 not found, 62 when it stops in the middle of a record, with
  /// the events before that taken, 9 when it has more than the table holds.
  Status ReadTemplate(Files& files, std::string_view template_name);
  /// Takes over the ids that the editor handed over in PICKLIST.DTA. 53, 62 as above.
  Status ReadHandOver(Files& files);
  /// Adds what the data files say and sums up their lengths. A data file that cannot be read leaves
  /// "[Empty?]". 6 when the sum outgrows what the screen can show; it then stays at what it had reached.
  Status ReadDataFiles(Files& files);

  int EventCount() const { return static_cast<int>(events_.size()); }
  /// The event of that number; an empty one behind the last. A number outside the table of 2,000 is a fault
  /// that ends the program.
  const PickListEvent& event(int number) const;
  /// Neither code nor recording that can be found: a local break, or a data file that has gone. The run stands there.
  bool StandsAt(int number) const;
  /// The id of the event behind `number`, empty behind the last.
  const std::string& next_id(int number) const;

  /// Whole seconds: the running sum was rounded at each length.
  int TotalSeconds() const { return total_seconds_; }

 private:
  void Cut();

  std::vector<PickListEvent> events_;
  int total_seconds_ = 0;
};

/// To the nearest whole number, halves to the even one.
int RoundedSeconds(double seconds);

/// A row of the event lists: number, id, and the first 8 characters of the title.
std::string EventRow(int number, const PickListEvent& event);

}  // namespace quixair
