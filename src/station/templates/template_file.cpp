#include "station/templates/template_file.h"

#include <algorithm>
#include <array>

#include "station/console/value_form.h"
#include "station/platform/text.h"

namespace quixair {
namespace {

constexpr std::array<std::string_view, 7> kDayStems = {"MON", "TUE", "WED", "THU", "FRI", "SAT", "SUN"};
constexpr std::size_t kPickListWidth = 6;

struct Parsed {
  std::vector<TemplateEvent> events;
  bool torn = false;
};

Parsed ParseUntilTorn(std::string_view content) {
  Parsed parsed;
  ReadForm form(content);
  while (!form.AtEnd()) {
    TemplateEvent event;
    event.EventId = form.Next().value_or({});
    Result<std::string> title = form.Next();
    if (!title.ok()) {
      parsed.torn = true;
      break;
    }
    event.EventTitle = std::move(title).value();
    parsed.events.push_back(std::move(event));
  }
  return parsed;
}

}  // namespace

TemplateKind KindOfTemplate(std::string_view file_name) {
  if (EqualsIgnoringCase(file_name, "ROTATWIN.DTA")) return TemplateKind::kRotationFile;
  const std::size_t dot = file_name.rfind('.');
  if (dot == std::string_view::npos) return TemplateKind::kNone;
  const std::string_view stem = file_name.substr(0, dot);
  const std::string_view extension = file_name.substr(dot);
  if (EqualsIgnoringCase(extension, ".TPP")) return TemplateKind::kPickCustom;
  if (EqualsIgnoringCase(extension, ".TPL")) return TemplateKind::kSatCustom;
  const bool daily = std::any_of(kDayStems.begin(), kDayStems.end(),
                                 [stem](std::string_view day) { return EqualsIgnoringCase(day, stem); });
  if (daily && EqualsIgnoringCase(extension, ".TPT")) return TemplateKind::kPickDaily;
  if (daily && EqualsIgnoringCase(extension, ".TPD")) return TemplateKind::kSatDaily;
  return TemplateKind::kNone;
}

EventKind KindOfEvent(std::string_view event_id) {
  if (event_id.empty()) return EventKind::kEmpty;
  const char first = UpperCased(event_id.front());
  if (first == '>') {
    const char second = event_id.size() > 1 ? UpperCased(event_id[1]) : ' ';
    if (second == 'P') return EventKind::kPause;
    if (second == 'T') return EventKind::kTimeAnnouncement;
    if (second == 'I' || second == 'L' || second == 'M') return EventKind::kReserved;
    return EventKind::kOther;
  }
  if (first == '0' || first == '1') return EventKind::kLocalBreak;
  if (first == 'S' || first == 'M' || first == 'L') return EventKind::kRecording;
  return EventKind::kOther;
}

Result<std::vector<TemplateEvent>> ParseTemplate(std::string_view content) {
  Parsed parsed = ParseUntilTorn(content);
  const bool terminated = !parsed.events.empty() && parsed.events.back() == TemplateEvent{};
  if (parsed.torn || !terminated) return RunTimeError::kInputPastEnd;
  return std::move(parsed.events);
}

bool StopsInMidRecord(std::string_view content) {
  return ParseUntilTorn(content).torn;
}

std::vector<TemplateEvent> ReadableEvents(std::string_view content) {
  return ParseUntilTorn(content).events;
}

std::vector<TemplateEvent> EventsBeforeLast(std::string_view content) {
  Parsed parsed = ParseUntilTorn(content);
  if (!parsed.torn && !parsed.events.empty()) parsed.events.pop_back();
  return std::move(parsed.events);
}

std::vector<TemplateEvent> EventsToFirstEmpty(std::string_view content, std::size_t limit) {
  std::vector<TemplateEvent> events = ReadableEvents(content);
  const auto end = std::find_if(events.begin(), events.end(),
                                [](const TemplateEvent& event) { return event.EventId.empty(); });
  events.erase(end, events.end());
  if (events.size() > limit) events.resize(limit);
  return events;
}

Result<std::vector<TemplateEvent>> WholeTemplate(std::string_view content,
                                                 const std::function<bool(const TemplateEvent&)>& keep) {
  std::vector<TemplateEvent> wanted;
  for (TemplateEvent& event : ReadableEvents(content)) {
    const bool last = event.EventId.empty();
    if (!last && !keep(event)) continue;
    if (wanted.size() == kMaxTemplateLines) return RunTimeError::kSubscriptOutOfRange;
    wanted.push_back(std::move(event));
    if (last) return wanted;
  }
  return RunTimeError::kInputPastEnd;
}

std::string TextOf(int number, const TemplateEvent& event) {
  return std::to_string(number) + ". " + event.EventId + " " + event.EventTitle;
}

std::string FormatRecords(const std::vector<TemplateEvent>& records) {
  WriteForm form;
  for (const TemplateEvent& record : records) form.Texts({record.EventId, record.EventTitle});
  return form.bytes();
}

std::string FormatTemplate(const std::vector<TemplateEvent>& events) {
  return FormatRecords(events) + FormatRecords({TemplateEvent{}});
}

std::string FormatPickList(const std::vector<std::string>& event_ids) {
  WriteForm form;
  for (const std::string& id : event_ids)
    form.Text(TrimmedRight(std::string_view(id).substr(0, kPickListWidth)));
  form.Text("");
  return form.bytes();
}

}  // namespace quixair
