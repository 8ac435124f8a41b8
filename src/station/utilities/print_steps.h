#pragma once

// What the printing screens do alike: a range of numbers that the operator typed, the question before
// printing, and the way of the pages to the printer.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "station/platform/platform.h"
#include "station/platform/printer.h"
#include "station/screen/controls.h"

namespace quixair {

struct PrintRange {
  int lowest = 1;
  int highest = 0;
  bool operator==(const PrintRange&) const = default;
};

/// Which of the two boxes must hold a number before anything else is looked at; the screens differ in it.
enum class MustBeNumber { kLowest, kBoth };

/// The range in the boxes, within the one `offered`. A fault is told in a box of its own; then the text box that
/// it is in is emptied and has the focus.
std::optional<PrintRange> TypedRange(const Platform& platform, TextBox& lowest, TextBox& highest,
                                     const PrintRange& offered, MustBeNumber must_be_number);

/// `icon` is of box_style.
bool OperatorIsReadyToPrint(const Platform& platform, int icon);

/// Tells the operator when the pages could not be printed.
PrintOutcome PrintPages(const Platform& platform, const std::vector<PrintedPage>& pages,
                        std::string_view title);

}  // namespace quixair
