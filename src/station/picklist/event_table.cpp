#include "station/picklist/event_table.h"

#include <cmath>
#include <cstdint>
#include <limits>

#include "station/console/station_paths.h"
#include "station/console/value_form.h"
#include "station/library/recording.h"
#include "station/platform/text.h"
#include "station/templates/template_file.h"

namespace quixair {
namespace {

constexpr std::string_view kEmptyPlace = "EMPTY!!!";
constexpr std::size_t kTitleInRow = 8;
// The screen's running total is a 16-bit number: nine hours.
constexpr int kMostSeconds = std::numeric_limits<std::int16_t>::max();

}  // namespace

bool IsPauseEvent(std::string_view event_id) {
  return KindOfEvent(event_id) == EventKind::kPause;
}

bool IsTimeEvent(std::string_view event_id) {
  return KindOfEvent(event_id) == EventKind::kTimeAnnouncement;
}

bool StartsNoChannel(std::string_view event_id) {
  return event_id.starts_with('>');
}

bool IsNoRecording(std::string_view event_id) {
  const EventKind kind = KindOfEvent(event_id);
  return kind == EventKind::kPause || kind == EventKind::kTimeAnnouncement || kind == EventKind::kReserved ||
         event_id.starts_with("EM");
}

Status EventTable::ReadTemplate(Files& files, std::string_view template_name) {
  events_.clear();
  const Result<std::string> content = files.Read(station_paths::TemplateFile(template_name));
  if (!content.ok()) return content.status();
  for (TemplateEvent& event : EventsBeforeLast(content.value())) {
    const bool empty = event.EventId.empty();
    events_.push_back({empty ? std::string(kEmptyPlace) : std::move(event.EventId),
                       {},
                       {},
                       empty ? std::string(kEmptyPlace) : std::move(event.EventTitle),
                       {}});
  }
  if (EventCount() > kCapacity) {
    Cut();
    return RunTimeError::kSubscriptOutOfRange;
  }
  return StopsInMidRecord(content.value()) ? RunTimeError::kInputPastEnd : RunTimeError::kNone;
}

Status EventTable::ReadHandOver(Files& files) {
  events_.clear();
  const Result<std::string> content = files.Read(station_paths::kPickList);
  if (!content.ok()) return content.status();
  const std::vector<std::string> ids = ReadValues(content.value(), kCapacity + 1);
  if (ids.empty()) return RunTimeError::kInputPastEnd;
  const auto end = ids.end() - 1;  // the last line closes the list
  for (auto id = ids.begin(); id != end; ++id) {
    events_.push_back({id->empty() ? std::string(kEmptyPlace) : *id, {}, {}, {}, {}});
  }
  Cut();
  return RunTimeError::kNone;
}

/// What is more than the table holds is left out.
void EventTable::Cut() {
  if (events_.size() > kCapacity) events_.resize(kCapacity);
}

Status EventTable::ReadDataFiles(Files& files) {
  RunTimeError fault = RunTimeError::kNone;
  total_seconds_ = 0;
  for (PickListEvent& event : events_) {
    event.EventLength = "0";
    event.EventField4.clear();
    if (IsNoRecording(event.EventId)) continue;
    Recording recording(event.EventId);
    SkipAndGoOn(recording.Read(files));
    const std::string& length = recording.value(Field::kLength);
    const std::string& first_label = recording.value(Field::kFirstLabel);
    if (!length.empty()) event.EventLength = length;
    event.EventDrive = recording.value(Field::kDrive);
    event.EventField4 = first_label.empty() ? std::string("[Empty?]") : first_label;
    event.EventField5 = recording.value(Field::kSecondLabel);
    const int total = RoundedSeconds(total_seconds_ + NumericValue(event.EventLength));
    if (total > kMostSeconds) {
      fault = RunTimeError::kOverflow;
    } else {
      total_seconds_ = total;
    }
  }
  return fault;
}

const PickListEvent& EventTable::event(int number) const {
  static const PickListEvent kNothing;
  const bool behind_the_last = number == EventCount() + 1;
  if (number < 1 || (number > kCapacity && !behind_the_last))
    OrEndProgram(RunTimeError::kSubscriptOutOfRange);
  return number <= EventCount() ? events_[static_cast<std::size_t>(number - 1)] : kNothing;
}

bool EventTable::StandsAt(int number) const {
  return number <= EventCount() && event(number).EventDrive.empty() &&
         !StartsNoChannel(event(number).EventId);
}

const std::string& EventTable::next_id(int number) const {
  static const std::string kNone;
  return number < EventCount() ? event(number + 1).EventId : kNone;
}

int RoundedSeconds(double seconds) {
  return static_cast<int>(std::nearbyint(seconds));
}

std::string EventRow(int number, const PickListEvent& event) {
  return std::to_string(number) + ' ' + event.EventId + ' ' + event.EventField5.substr(0, kTitleInRow);
}

}  // namespace quixair
