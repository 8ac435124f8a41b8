#include "station/utilities/print_steps.h"

#include "station/platform/dialogs.h"
#include "station/platform/text.h"

namespace quixair {

std::optional<PrintRange> TypedRange(const Platform& platform, TextBox& lowest, TextBox& highest,
                                     const PrintRange& offered, MustBeNumber must_be_number) {
  const PrintRange range{WholeValue(lowest.text()), WholeValue(highest.text())};
  const bool no_highest = must_be_number == MustBeNumber::kBoth && range.highest == 0 &&
                          !Trimmed(highest.text()).starts_with('0');
  const bool no_lowest = range.lowest < offered.lowest;
  const struct {
    bool failed;
    TextBox& box;
    const char* text;
  } checks[] = {
      {no_lowest || no_highest, no_lowest ? lowest : highest,
       "'Lowest' Number is Too Low or\nYou Didn't Enter a Valid Character"},
      {range.lowest > offered.highest, lowest, "'Lowest' Number is Too High"},
      {range.highest < range.lowest, highest, "'Highest' Number is Less Than 'Lowest' Number"},
      {range.highest > offered.highest, highest, "'Highest' Number is Too High"},
  };
  for (const auto& check : checks) {
    if (!check.failed) continue;
    platform.dialogs.MessageBox(check.text, box_style::kOk + box_style::kExclamation, "Invalid Entry");
    check.box.SetText({});
    check.box.SetFocus();
    return std::nullopt;
  }
  return range;
}

bool OperatorIsReadyToPrint(const Platform& platform, int icon) {
  return platform.dialogs.MessageBox("Make sure printer is ready, then press OK", box_style::kOkCancel + icon,
                                     "Ready to Print") == Answer::kOk;
}

PrintOutcome PrintPages(const Platform& platform, const std::vector<PrintedPage>& pages,
                        std::string_view title) {
  const PrintOutcome outcome = platform.printer.Print(pages, title);
  if (outcome == PrintOutcome::kFault) {
    platform.dialogs.MessageBox(
        "The list was not printed. Check that the printer is on and has paper,\n"
        "or that the file can be written where you put it. Then print again.",
        box_style::kOk + box_style::kExclamation, "Not Printed");
  }
  return outcome;
}

}  // namespace quixair
