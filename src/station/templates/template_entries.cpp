#include "station/templates/template_entries.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>

#include "station/platform/text.h"

namespace quixair {
namespace {

constexpr std::size_t kIdWidth = 9;
constexpr std::size_t kLabelWidth = 21;
constexpr std::size_t kLengthWidth = 7;
constexpr std::size_t kLengthWidthBeforeDrive = 10;
constexpr std::size_t kLengthColumn = 51;  // counted from 0
constexpr std::size_t kLengthRead = 6;
constexpr std::size_t kFileIdWidth = 8;
constexpr std::size_t kTitleColumn = 30;
constexpr std::size_t kTitleWidth = 18;
constexpr int kSignificantDigits = 7;
constexpr std::size_t kMinutesWidth = 5;

std::string Padded(std::string_view text, std::size_t width) {
  std::string padded(text.substr(0, width));
  padded.resize(width, ' ');
  return padded;
}

std::string_view Columns(std::string_view text, std::size_t from, std::size_t count) {
  return from < text.size() ? text.substr(from, count) : std::string_view();
}

/// A number's text as the old arithmetic wrote it: seven digits, no zero before the point; with a place for the
/// sign in front.
std::string PlainNumber(double value) {
  std::array<char, 32> buffer{};
  char* const end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::abs(value),
                                  std::chars_format::general, kSignificantDigits)
                        .ptr;
  std::string text(buffer.data(), end);
  if (text.starts_with("0.")) text.erase(0, 1);
  return (value < 0 ? '-' : ' ') + text;
}

}  // namespace

std::string RecordingEntry(std::string_view id, std::string_view first_label, std::string_view second_label,
                           std::string_view length) {
  return Padded(id, kIdWidth) + Padded(first_label, kLabelWidth) + Padded(second_label, kLabelWidth) +
         Padded(length, kLengthWidth);
}

std::string RecordingEntryWithDrive(std::string_view id, std::string_view first_label,
                                    std::string_view second_label, std::string_view length,
                                    std::string_view drive) {
  return Padded(id, kIdWidth) + Padded(first_label, kLabelWidth) + Padded(second_label, kLabelWidth) +
         Padded(length, kLengthWidthBeforeDrive) + Padded(drive, 1);
}

std::string LocalBreakEntry(std::string_view time) {
  return std::string(time) + std::string(22, ' ') + "****LOCAL BREAK***";
}

std::string LocalBreakFilling(std::string_view time) {
  return std::string(time) + std::string(24, ' ') + "****LOCAL BREAK***";
}

std::string EntryId(std::string_view entry) {
  return std::string(TrimmedRight(Columns(entry, 0, kFileIdWidth)));
}

double EntrySeconds(std::string_view entry) {
  return NumericValue(Columns(entry, kLengthColumn, kLengthRead));
}

bool TemplateEntries::Append(std::string entry) {
  const bool room = EntryCount() < kMost;
  if (!room) entries_.pop_back();
  entries_.push_back(std::move(entry));
  return room;
}

void TemplateEntries::Open(int number) {
  entries_.insert(entries_.begin() + (number - 1), std::string());
  open_ = true;
  open_position_ = number;
}

void TemplateEntries::Fill(std::string entry) {
  open_ = false;
  if (!HasPlace()) return;
  entries_[static_cast<std::size_t>(open_position_ - 1)] = std::move(entry);
}

double TemplateEntries::Cut(int number) {
  const double seconds = EntrySeconds(entry(number));
  entries_.erase(entries_.begin() + (number - 1));
  total_seconds_ -= seconds;
  return seconds;
}

/// The total stays as it was, on purpose: it goes on from the old figure until the screen is reopened.
void TemplateEntries::Clear() {
  entries_.clear();
  open_ = false;
}

double TemplateEntries::RangeSeconds(int from, int to) const {
  double seconds = 0;
  for (int number = from; number <= to; ++number) seconds += EntrySeconds(entry(number));
  return seconds;
}

std::string TemplateEntries::Row(int number) const {
  std::array<char, 16> digits{};
  const int length = std::snprintf(digits.data(), digits.size(), "%04d", number);
  const std::string start(digits.data(), static_cast<std::size_t>(length));
  if (open_ && number == open_position_) return start + "    >> O P E N <<";
  return start + "  " + entry(number);
}

std::vector<std::string> TemplateEntries::Rows() const {
  std::vector<std::string> rows;
  rows.reserve(entries_.size());
  for (int number = 1; number <= EntryCount(); ++number) rows.push_back(Row(number));
  return rows;
}

std::vector<TemplateEvent> TemplateEntries::Events() const {
  std::vector<TemplateEvent> events;
  events.reserve(entries_.size());
  for (const std::string& entry : entries_) {
    events.push_back({EntryId(entry), std::string(TrimmedRight(Columns(entry, kTitleColumn, kTitleWidth)))});
  }
  return events;
}

std::vector<std::string> TemplateEntries::Ids() const {
  std::vector<std::string> ids;
  ids.reserve(entries_.size());
  for (const std::string& entry : entries_) ids.emplace_back(Columns(entry, 0, kFileIdWidth));
  return ids;
}

std::string TotalTimeText(double seconds) {
  const double told =
      static_cast<double>(std::lround(seconds * 1000)) / 1000;  // without what cuts leave over
  const std::string minutes = PlainNumber(told / 60).substr(0, kMinutesWidth);
  return "Total Time: " + FixedDecimals(told, 1) + " sec. (" + std::string(Trimmed(minutes)) + " min.)";
}

}  // namespace quixair
