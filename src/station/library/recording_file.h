#pragma once

// What a recording is on disk: a small text file C:\QXDATA\<id>.DAT of one value a line, all of them text,
// and an audio file on the drive that it names. Nothing else indexes the library: every list enumerates the
// folder. The first letter of the id tells the kind; liners that begin LL are legal ids, those that begin LM
// "Magic Call" liners. Mind that the dates of a spot stand before its one-letter codes, and those of a liner
// behind them.

#include <string>
#include <string_view>
#include <vector>

#include "station/platform/files.h"

namespace quixair {

enum class RecordingKind { kSpot, kMusic, kLiner };

bool IsSpotId(std::string_view id);
bool IsMusicId(std::string_view id);
bool IsLinerId(std::string_view id);
bool IsLegalId(std::string_view id);

struct SpotRecord {
  std::string Length;  // seconds, or "[New]"
  std::string RecordingId;
  std::string Drive;  // one letter
  std::string Account;
  std::string Title;
  std::string StartDate;  // MM-DD-YY
  std::string KillDate;   // the last day, or empty
  std::string Product;
  std::string Announcer;
  std::string PresetLength;
  bool operator==(const SpotRecord&) const = default;
};

struct MusicRecord {
  std::string Length;
  std::string RecordingId;
  std::string Drive;
  std::string Artist;
  std::string Title;
  std::string Rotation;
  std::string StartDate;
  std::string FromYear;
  bool operator==(const MusicRecord&) const = default;
};

struct LinerRecord {
  std::string Length;
  std::string RecordingId;
  std::string Drive;
  std::string Title;
  std::string Announcer;
  std::string LinerType;
  std::string StartDate;
  std::string KillDate;
  bool operator==(const LinerRecord&) const = default;
};

inline constexpr std::size_t kSpotFields = 10;
inline constexpr std::size_t kMusicFields = 8;
inline constexpr std::size_t kLinerFields = 8;

/// Lines of a data file of that id's kind; 0 when the id is of none.
std::size_t FieldCount(std::string_view id);

/// Every line of the kind must be there, else 62; what follows is left alone.
Result<SpotRecord> ParseSpot(std::string_view content);
Result<MusicRecord> ParseMusic(std::string_view content);
Result<LinerRecord> ParseLiner(std::string_view content);
/// The same of a song for a reader that skips errors: what is missing stays empty.
MusicRecord MusicFieldsOf(std::string_view content);

std::string FormatRecord(const SpotRecord& record);
std::string FormatRecord(const MusicRecord& record);
std::string FormatRecord(const LinerRecord& record);

/// Of C:\QXDATA\<id>.DAT. 53 not found, 62 too short.
Result<SpotRecord> ReadSpotRecord(Files& files, std::string_view id);
Result<MusicRecord> ReadMusicRecord(Files& files, std::string_view id);
Result<LinerRecord> ReadLinerRecord(Files& files, std::string_view id);
/// The first lines of any kind's data file, all of them there, else 62.
Result<std::vector<std::string>> ReadRecordFields(Files& files, std::string_view id, std::size_t count);
/// A text a line.
std::string FormatFields(const std::vector<std::string>& fields);
/// The first lines of any kind's data file, empty texts for those that are missing or when there is no file:
/// what playback reads, under the rule that a failed read is skipped.
std::vector<std::string> ReadLeadingFields(Files& files, std::string_view id, std::size_t count);

/// Writes C:\QXDATA\<RecordingId>.DAT.
Status WriteRecord(Files& files, const SpotRecord& record);
Status WriteRecord(Files& files, const MusicRecord& record);
Status WriteRecord(Files& files, const LinerRecord& record);

/// Rewrites the data file of `id`, a spot, song or liner, with a new length and drive; the other fields of its
/// kind stay as they are. 62 when one of them is missing, with the file untouched.
Status RewriteAudioFields(Files& files, std::string_view id, std::string_view length, std::string_view drive);

/// The ids of the data files that match, in the folder's order; none when the folder cannot be read.
std::vector<std::string> ListRecordings(Files& files, std::string_view pattern);

/// A kill date whose three entry fields are all empty joins to "--" and is stored as no date.
std::string KillDateFromEntry(std::string_view month, std::string_view day, std::string_view year);

// The hand-over files of the recording screens.

/// TEMP.DAT: the lines of the record that goes to a capture screen.
Status WriteHandOverRecord(Files& files, std::string_view record_bytes);
Result<std::string> ReadHandOverRecord(Files& files);

/// TEMPSPOT.DAT: the id last sent to capture, of whichever kind.
Status WriteLastRecording(Files& files, std::string_view id);
Result<std::string> ReadLastRecording(Files& files);

/// IMPORT.DAT: what an entry screen asks the import screen for.
struct ImportRequest {
  std::string RecordingId;
  std::string Drive;
  RecordingKind kind = RecordingKind::kSpot;
  bool operator==(const ImportRequest&) const = default;
};
Status WriteImportRequest(Files& files, const ImportRequest& request);
Result<ImportRequest> ReadImportRequest(Files& files);

}  // namespace quixair
