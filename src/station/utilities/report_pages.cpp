#include "station/utilities/report_pages.h"

#include <algorithm>
#include <utility>

#include "station/platform/text.h"

namespace quixair {
namespace {

constexpr std::size_t kMinutesWidth = 4;
constexpr int kMinutesDecimals = 6;

std::string Cut(const std::string& text, Fit fit, std::size_t room) {
  if (fit == Fit::kWhole) return text;
  return text.substr(0, fit == Fit::kLabel ? room - 1 : room);
}

}  // namespace

std::vector<std::string> AtTabs(const std::vector<TabbedText>& texts) {
  std::vector<std::string> lines(1);
  for (const auto& [tab, text] : texts) {
    if (text.empty()) continue;
    const auto column = static_cast<std::size_t>(tab - 1);
    if (lines.back().size() > column) lines.emplace_back();
    lines.back().resize(column, ' ');
    lines.back() += text;
  }
  for (std::string& line : lines) line = TrimmedRight(line);
  return lines;
}

std::vector<TabbedText> Fitted(const std::vector<ReportColumn>& columns,
                               const std::vector<std::string>& values) {
  std::vector<TabbedText> texts;
  for (std::size_t i = 0; i < std::min(columns.size(), values.size()); ++i) {
    const int end = i + 1 < columns.size() ? columns[i + 1].tab : kPageColumns + 1;
    const auto room = static_cast<std::size_t>(end - columns[i].tab);
    texts.push_back({columns[i].tab, Cut(values[i], columns[i].fit, room)});
  }
  return texts;
}

std::string MinutesText(std::string_view length) {
  return ShortestDecimal(NumericValue(length) / 60, kMinutesDecimals).substr(0, kMinutesWidth);
}

ReportPages::ReportPages(Head head) : head_(std::move(head)) {
  NewPage();
}

void ReportPages::NewPage() {
  pages_.push_back(head_(static_cast<int>(pages_.size()) + 1));
  entries_ = 0;
}

void ReportPages::AddEntry(const std::vector<TabbedText>& texts) {
  for (std::string& line : AtTabs(texts)) AddLine(std::move(line));
  ++entries_;
}

void ReportPages::AddLine(std::string line) {
  pages_.back().push_back(std::move(line));
}

}  // namespace quixair
