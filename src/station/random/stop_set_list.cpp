#include "station/random/stop_set_list.h"

#include <algorithm>

#include "station/library/recording.h"
#include "station/platform/civil_time.h"
#include "station/platform/text.h"

namespace quixair {
namespace {

constexpr std::string_view kEmptyRow = "EMPTY!!!";

/// Unlike elsewhere, what is none of the known codes counts as a recording and tries its data file.
bool HasDataFile(const StopSetRow& row) {
  return row.kind == EventKind::kRecording ||
         (row.kind == EventKind::kOther && !row.EventId.starts_with("EM"));
}

void ReadData(Files& files, StopSetRow& row) {
  Recording recording(row.EventId);
  SkipAndGoOn(recording.Read(files));
  row.Length = recording.value(Field::kLength);
  row.Drive = recording.value(Field::kDrive);
  row.Title = recording.value(Field::kTitle);
}

StopSetRow RowOf(TemplateEvent event) {
  StopSetRow row;
  row.kind = KindOfEvent(event.EventId);
  const bool empty = event.EventId.empty();
  row.EventId = empty ? std::string(kEmptyRow) : std::move(event.EventId);
  row.second = empty ? std::string(kEmptyRow) : std::move(event.EventTitle);
  return row;
}

}  // namespace

StopSetList StopSetList::Load(Files& files, std::string_view content) {
  std::vector<TemplateEvent> events = EventsBeforeLast(content);
  if (events.size() == kMaxTemplateLines + 1) events.pop_back();
  StopSetList list;
  list.rows_.reserve(events.size());
  for (TemplateEvent& event : events) {
    list.rows_.push_back(RowOf(std::move(event)));
    StopSetRow& row = list.rows_.back();
    if (HasDataFile(row)) ReadData(files, row);
    list.template_seconds_ += WholeValue(row.Length);
    const auto minute = MinuteOfDay(row.EventId);
    if (row.kind == EventKind::kLocalBreak && minute) list.times_.push_back({list.count(), *minute});
  }
  return list;
}

std::optional<StopSetList::Coming> StopSetList::Next(int minute_of_day) const {
  std::optional<Coming> next;
  for (const Coming& time : times_) {
    if (time.minute < minute_of_day || row(time.row).marked) continue;
    // Of two in the same minute the later row is the one that plays.
    if (!next || time.minute <= next->minute) next = time;
  }
  return next;
}

std::vector<std::string> StopSetList::MistypedTimes() const {
  std::vector<std::string> mistyped;
  for (const StopSetRow& row : rows_) {
    const bool looks_like_a_time = row.EventId.find(':') != std::string::npos;  // no id has one
    if (looks_like_a_time && !MinuteOfDay(row.EventId)) mistyped.push_back(row.EventId);
  }
  return mistyped;
}

std::optional<int> MinuteOfDay(std::string_view hour_minute_am_pm) {
  const int hour = WholeValue(hour_minute_am_pm.substr(0, 2));
  const int minute = hour_minute_am_pm.size() > 3 ? WholeValue(hour_minute_am_pm.substr(3, 2)) : 0;
  CivilTime time;
  time.hour = hour % 12 + (hour_minute_am_pm.ends_with("PM") ? 12 : 0);
  time.minute = minute;
  if (minute < 0 || HourMinuteAmPm(time) != hour_minute_am_pm)
    return std::nullopt;  // one way of writing it, to the letter
  return time.hour * 60 + time.minute;
}

}  // namespace quixair
