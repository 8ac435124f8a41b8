#pragma once

// How lists come onto paper. The station hands over whole pages of text lines; the front end shows them,
// lets the operator choose the printer, and answers when all is done. Timers go on meanwhile, as they do
// while a box is open.

#include <string>
#include <string_view>
#include <vector>

namespace quixair {

/// The lines of a page from top to bottom, in a fixed-pitch font: columns count.
using PrintedPage = std::vector<std::string>;

/// What every page has room for on every paper; a longer line or page is printed smaller, never cut.
inline constexpr int kPageColumns = 80;
inline constexpr int kPageLines = 60;

enum class PrintOutcome { kPrinted, kCancelled, kFault };

class Printer {
 public:
  virtual ~Printer() = default;
  /// Of the printer that the system takes first; empty when there is none, or none is known yet. Answers at
  /// once.
  virtual std::string DefaultName() = 0;
  /// `title` names the job to the operator and to the print queue.
  virtual PrintOutcome Print(const std::vector<PrintedPage>& pages, std::string_view title) = 0;
};

}  // namespace quixair
