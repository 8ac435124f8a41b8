#include "station/utilities/template_report.h"

#include <algorithm>

#include "station/library/recording.h"
#include "station/platform/text.h"

namespace quixair {
namespace {

constexpr std::string_view kLocalBreakMark = "****LOCAL BREAK***";
constexpr std::size_t kRuleWidth = 74;
constexpr std::size_t kListedId = 7;
constexpr std::size_t kListedLabel = 8;
constexpr int kIdTab = 7;
constexpr int kLabelTab = 14;
constexpr int kMinutesTab = 61;
const std::vector<ReportColumn> kColumns = {
    {1}, {kIdTab}, {kLabelTab, Fit::kRoom}, {31, Fit::kRoom}, {53, Fit::kRoom}, {kMinutesTab}};

bool HasDataFile(const TemplateEvent& event) {
  const EventKind kind = KindOfEvent(event.EventId);
  return event.EventTitle != kLocalBreakMark && kind != EventKind::kPause &&
         kind != EventKind::kTimeAnnouncement;
}

std::vector<std::string> HeadOf(const std::string& name, const std::string& date, int page) {
  const std::string rule(kRuleWidth, '-');
  return {std::string(kRuleWidth, '^'),
          " Quixair    TEMPLATE: " + name + "  Printed on: " + date + "    Page: " + std::to_string(page),
          rule, "     File:      Account:            Title:           Len.   (Min.)  Notes:", rule};
}

std::vector<TabbedText> EntryOf(int number, const ReportedEvent& event) {
  const std::string count = std::to_string(number);
  const std::string minutes = '(' + std::string(Trimmed(event.minutes)) + ')';
  if (event.minutes.empty()) {
    // The time of a local break reaches into the next column, where nothing stands behind the mark.
    const int behind_id = kIdTab + static_cast<int>(event.id.size()) + 1;
    return {{1, count},
            {kIdTab, event.id},
            {std::max(kLabelTab, behind_id), event.first_label},
            {kMinutesTab, minutes}};
  }
  return Fitted(kColumns, {count, event.id, event.first_label, event.second_label, event.length, minutes});
}

std::string TotalLine(const PrintRange& range, double seconds) {
  return "Total Length of Events " + std::to_string(range.lowest) + " through " +
         std::to_string(range.highest) + " = " + FixedDecimals(seconds, 1) + " seconds (" +
         FixedDecimals(seconds / 60, 1) + ") min.";
}

}  // namespace

ReportedEvent ReadReportedEvent(Files& files, const TemplateEvent& event) {
  ReportedEvent reported{
      .id = event.EventId, .first_label = event.EventTitle, .minutes = {}, .length = {}, .second_label = {}};
  if (!HasDataFile(event)) return reported;
  Recording recording(event.EventId);
  if (!recording.ReadTo(Field::kSecondLabel, files).ok()) return reported;
  reported.length = recording.value(Field::kLength);
  reported.minutes = MinutesText(reported.length);
  reported.first_label = recording.value(Field::kFirstLabel);
  reported.second_label = recording.value(Field::kSecondLabel);
  return reported;
}

std::string RangeRow(const ReportedEvent& event) {
  std::string id = event.id;
  id.resize(std::max(id.size(), kListedId), ' ');
  return id + event.first_label.substr(0, kListedLabel) + "  " + event.second_label.substr(0, kListedLabel);
}

std::vector<PrintedPage> TemplatePages(const std::string& template_name,
                                       const std::vector<ReportedEvent>& events, const PrintRange& range,
                                       const std::string& date) {
  ReportPages pages([&](int page) { return HeadOf(template_name, date, page); });
  double seconds = 0;
  for (int number = range.lowest; number <= range.highest; ++number) {
    const ReportedEvent& event = events[static_cast<std::size_t>(number - 1)];
    pages.AddEntry(EntryOf(number, event));
    seconds += NumericValue(event.length);
    if (pages.page_full() || number == range.highest) pages.NewPage();
  }
  pages.AddLine({});
  pages.AddLine(TotalLine(range, seconds));
  return pages.Take();
}

}  // namespace quixair
