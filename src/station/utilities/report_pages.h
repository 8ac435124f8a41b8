#pragma once

// Reports as pages of text lines, without a printer: a head on each page, so many lines under it, texts at
// tab columns. What a report prints is told by tables of columns; this makes lines and pages of them.

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "station/platform/printer.h"

namespace quixair {

inline constexpr int kReportLines = 53;  // under the head of a page

/// A text and the column, counted from 1, that it is printed at.
struct TabbedText {
  int tab = 1;
  std::string text;
};

/// The texts at their tabs. Where a text before has run past a tab, the text goes to that column of the next
/// line, as on a printer; hence usually one line, and never a lost or overwritten letter.
std::vector<std::string> AtTabs(const std::vector<TabbedText>& texts);

/// What a column does with a text that is longer than the room before the next column.
enum class Fit {
  kWhole,  // it is printed as it is
  kLabel,  // it is cut, and a blank stays free
  kRoom,   // it is cut where the next column begins: a number loses its last decimals
};

struct ReportColumn {
  int tab;
  Fit fit = Fit::kWhole;
};

/// A value a column, cut as the columns say.
std::vector<TabbedText> Fitted(const std::vector<ReportColumn>& columns,
                               const std::vector<std::string>& values);

/// A length in seconds as minutes with a decimal fraction, cut to four characters: "95" gives "1.58", "[New]"
/// gives "0".
std::string MinutesText(std::string_view length);

/// A report in the making.
class ReportPages {
 public:
  using Head = std::function<std::vector<std::string>(int page)>;
  /// `head` makes the lines at the top of each page, the first of which begins at once.
  explicit ReportPages(Head head);

  /// An entry counts as one of the page's lines, however many it takes.
  void AddEntry(const std::vector<TabbedText>& texts);
  /// A line that does not count.
  void AddLine(std::string line);
  bool page_full() const { return entries_ >= kReportLines; }
  void NewPage();
  std::vector<PrintedPage> Take() { return std::move(pages_); }

 private:
  Head head_;
  std::vector<PrintedPage> pages_;
  int entries_ = 0;
};

}  // namespace quixair
