#pragma once

// The one file format of all event lists: custom and daily templates, and the Spot/PSA rotation file. An
// event a line, id and title between quotes; the line "","" ends the file and is no event. A quote cannot
// stand inside a field, so nothing is escaped.
//
//   "S1042","Fall Sale 30"
//   ">PAUSE<",""
//   "",""

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "station/platform/run_time_error.h"

namespace quixair {

struct TemplateEvent {
  std::string EventId;     // at most 8 characters
  std::string EventTitle;  // at most 18, frozen when the template was saved
  bool operator==(const TemplateEvent&) const = default;
};

enum class TemplateKind { kPickCustom, kPickDaily, kSatCustom, kSatDaily, kRotationFile, kNone };
/// By the file's name: the daily names are exactly MON to SUN.
TemplateKind KindOfTemplate(std::string_view file_name);

/// What an event is, told by the leading characters of its id.
enum class EventKind { kPause, kTimeAnnouncement, kReserved, kEmpty, kLocalBreak, kRecording, kOther };
EventKind KindOfEvent(std::string_view event_id);

/// The events as they stand in the file, up to its end, the empty ones and the terminating record included:
/// readers differ in what they make of those. 62 when the file stops in the middle of a record, with the
/// events before it lost to readers that need them all; ReadableEvents gives those.
Result<std::vector<TemplateEvent>> ParseTemplate(std::string_view content);
/// Whether the file stops in the middle of a record.
bool StopsInMidRecord(std::string_view content);
/// The same for readers that stop without a word at the end of file.
std::vector<TemplateEvent> ReadableEvents(std::string_view content);
/// The events of a list that is played or edited. The last record ends the list, whatever stands in it: a template
/// without its terminating record so loses its last event. Of a file that stops in mid-record that half is the last.
std::vector<TemplateEvent> EventsBeforeLast(std::string_view content);
/// Events up to the first empty id, at most `limit` lines: how the rotation file is read.
std::vector<TemplateEvent> EventsToFirstEmpty(std::string_view content, std::size_t limit);

/// Events up to the first empty id, that record included as it stands, for those who write a template again:
/// 62 when the file ends before it. `keep` sees each event and says whether it is wanted; with more than
/// kMaxTemplateLines wanted records it is 9.
Result<std::vector<TemplateEvent>> WholeTemplate(std::string_view content,
                                                 const std::function<bool(const TemplateEvent&)>& keep);
/// "12. M0001 Title", for a line that shows how a file is gone through.
std::string TextOf(int number, const TemplateEvent& event);

/// The records as they are.
std::string FormatRecords(const std::vector<TemplateEvent>& records);

/// The events and the terminating record.
std::string FormatTemplate(const std::vector<TemplateEvent>& events);

/// PICKLIST.DTA, the editor's hand-over to Pick-List playback: the first 6 characters of each id,
/// right-trimmed, a line each, and an empty text at the end.
std::string FormatPickList(const std::vector<std::string>& event_ids);

inline constexpr std::size_t kMaxTemplateLines = 2000;

}  // namespace quixair
