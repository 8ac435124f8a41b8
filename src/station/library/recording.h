#pragma once

// What a recording is on disk: a small text file C:\QXDATA\<id>.DAT of one value a line, all of them text, and
// an audio file on the drive that it names. Nothing else indexes the library: every list enumerates the folder.
// The first letter of the id tells the kind, and the kind tells which line holds what; liners that begin LL are
// legal ids, those that begin LM "Magic Call" liners. The table below is all that is known of it: everybody asks
// by the name of the field.
//
//   Recording spot("S1042");
//   SkipAndGoOn(spot.Read(files));                  // or a handler by number
//   spot.value(Field::kKillDate)                    // "12-31-26"
//   spot.Set(Field::kLength, "29.8");
//   OrEndProgram(spot.Write(files));

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "station/platform/files.h"

namespace quixair {

enum class RecordingKind { kSpot, kMusic, kLiner };

enum class Field {
  kNone,    // of a line that a kind has not
  kLength,  // seconds, or "[New]"
  kRecordingId,
  kDrive,  // one letter
  kAccount,
  kArtist,
  kTitle,
  kStartDate,  // MM-DD-YY
  kKillDate,   // the last day, or empty
  kProduct,    // a code of one letter, as are the next three
  kAnnouncer,
  kRotation,
  kLinerType,
  kFromYear,
  kPresetLength,  // seconds that a capture may take, or empty
  // What lists and screens show of a recording of any kind: the two texts behind the drive.
  kFirstLabel,
  kSecondLabel,
};

/// A line of a data file. Mind that the dates of a spot stand before its one-letter codes, and those of a liner
/// behind them.
struct RecordingLine {
  Field spot, music, liner;
};
inline constexpr auto kRecordingLines = [] {
  using enum Field;
  return std::to_array<RecordingLine>({
      {kLength, kLength, kLength},                 // 1
      {kRecordingId, kRecordingId, kRecordingId},  // 2
      {kDrive, kDrive, kDrive},                    // 3
      {kAccount, kArtist, kTitle},                 // 4
      {kTitle, kTitle, kAnnouncer},                // 5
      {kStartDate, kRotation, kLinerType},         // 6
      {kKillDate, kStartDate, kStartDate},         // 7
      {kProduct, kFromYear, kKillDate},            // 8
      {kAnnouncer, kNone, kNone},                  // 9
      {kPresetLength, kNone, kNone},               // 10
  });
}();

/// None for an id that begins with another letter.
std::optional<RecordingKind> KindOf(std::string_view id);
bool IsSpotId(std::string_view id);
bool IsLinerId(std::string_view id);
bool IsLegalId(std::string_view id);
/// The first of every id of the kind.
std::string_view LetterOf(RecordingKind kind);

class Recording {
 public:
  /// Every value is empty. An id of no kind has what all kinds have: length, id, drive and the labels.
  explicit Recording(std::string_view id) : Recording(id, KindOf(id)) {}
  /// By the lines of that kind, whatever the id says.
  Recording(std::string_view id, std::optional<RecordingKind> kind);
  /// Of the lines of a data file that stand elsewhere; missing ones are empty.
  static Recording Of(RecordingKind kind, std::string_view content);

  /// By which its file is found; the line of the id repeats it.
  const std::string& id() const { return id_; }
  std::optional<RecordingKind> kind() const { return kind_; }
  /// Empty when the line is missing, or the kind has no such field.
  const std::string& value(Field field) const;
  /// The value moved out, for readers of a whole library.
  std::string Take(Field field);
  /// A field that the kind has not is passed over.
  void Set(Field field, std::string_view value);

  /// Takes over C:\QXDATA\<id>.DAT. 53 not found; 62 when a line of the kind is missing, or the id is of none; what
  /// there is has been taken over then.
  Status Read(Files& files);
  /// The same for a reader that can do without the lines behind `last`.
  Status ReadTo(Field last, Files& files);
  Status Write(Files& files, Durability durability = Durability::kFlushed) const;

  /// As Read does, without a file.
  Status Parse(std::string_view content);
  /// All lines of the kind, and what stood behind them when it was read: programs to come may know more of a
  /// recording. Empty lines at the end, as a capture leaves them, are not kept.
  std::string Format() const;

 private:
  std::size_t LineOf(Field field) const;

  std::string id_;
  std::optional<RecordingKind> kind_;
  std::vector<std::string> values_;  // one for each line
  std::size_t lines_read_ = 0;       // of them
  std::string further_lines_;        // as they stood
};

/// The ids of the data files that match, in the folder's order; none when the folder cannot be read.
std::vector<std::string> ListRecordings(Files& files, std::string_view pattern);
std::vector<std::string> ListRecordings(Files& files, RecordingKind kind);

}  // namespace quixair
