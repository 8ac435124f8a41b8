#pragma once

// The events of a template while it is edited, each as one text of fixed columns (counted from 1): 1 to 9 the
// id, 10 to 30 the first label, 31 to 51 the second, 52 to 58 the length in seconds. A pause or an
// announcement is its code alone. All operations of the editor are here, without a screen; events are counted
// from 1.

#include <string>
#include <string_view>
#include <vector>

#include "station/templates/template_file.h"

namespace quixair {

/// The stored text of a recording.
std::string RecordingEntry(std::string_view id, std::string_view first_label, std::string_view second_label,
                           std::string_view length);
/// The same where the drive of the audio file is of interest: the length is 10 wide, and the drive's
/// letter stands last.
std::string RecordingEntryWithDrive(std::string_view id, std::string_view first_label,
                                    std::string_view second_label, std::string_view length,
                                    std::string_view drive);
inline constexpr std::string_view kPauseEntry = ">PAUSE<";
inline constexpr std::string_view kTimeEntry = ">TIME<";
/// A local break's text, `time` as "06:30 PM". One that fills an open place carries its mark two places
/// further to the right, and the file then cuts it: stations have such files, and both forms are kept.
std::string LocalBreakEntry(std::string_view time);
std::string LocalBreakFilling(std::string_view time);
/// The id that an entry begins with.
std::string EntryId(std::string_view entry);
/// The seconds that an entry adds, 0 for what is no recording.
double EntrySeconds(std::string_view entry);

class TemplateEntries {
 public:
  static constexpr int kMost = 1999;

  int EntryCount() const { return static_cast<int>(entries_.size()); }
  const std::string& entry(int number) const { return entries_[static_cast<std::size_t>(number - 1)]; }

  /// False when the template was full: the entry then took the place of the last one, whose seconds stay
  /// counted.
  bool Append(std::string entry);
  void RemoveLast() { entries_.pop_back(); }
  /// Makes room for an event in front of event `number`.
  void Open(int number);
  /// Whether there is a place that was opened last, open or filled by now.
  bool HasPlace() const { return open_position_ >= 1 && open_position_ <= EntryCount(); }
  /// Puts an event into that place.
  void Fill(std::string entry);
  /// Takes an event out and gives the seconds that went with it.
  double Cut(int number);
  void Clear();

  bool open() const { return open_; }
  int OpenPosition() const { return open_position_; }

  double TotalSeconds() const { return total_seconds_; }
  /// What a template's line adds is told by its data file, not by the entry's text.
  void AddSeconds(double seconds) { total_seconds_ += seconds; }
  /// The seconds of the events from one number to another, both at most EntryCount.
  double RangeSeconds(int from, int to) const;

  /// "0007  M0001    Artist ..." or "0007    >> O P E N <<".
  std::string Row(int number) const;
  std::vector<std::string> Rows() const;

  /// What the template's file holds.
  std::vector<TemplateEvent> Events() const;
  /// What PICKLIST.DTA holds.
  std::vector<std::string> Ids() const;

 private:
  std::vector<std::string> entries_;
  bool open_ = false;
  int open_position_ = 0;
  double total_seconds_ = 0;
};

/// "Total Time: 61.5 sec. (1.025 min.)": the minutes are cut, not rounded.
std::string TotalTimeText(double seconds);

}  // namespace quixair
