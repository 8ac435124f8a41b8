#include "simulation/scripted_printer.h"

namespace quixair::simulation {

PrintOutcome ScriptedPrinter::Print(const std::vector<PrintedPage>& pages, std::string_view title) {
  PrintJob job{.title = std::string(title), .pages = pages};
  if (!outcomes_.empty()) {
    job.outcome = outcomes_.front();
    outcomes_.pop_front();
  }
  jobs_.push_back(job);
  if (on_print) on_print(job);
  return job.outcome;
}

std::string_view NameOf(PrintOutcome outcome) {
  switch (outcome) {
    case PrintOutcome::kPrinted:
      return "printed";
    case PrintOutcome::kCancelled:
      return "cancelled";
    case PrintOutcome::kFault:
      return "fault";
  }
  return {};
}

}  // namespace quixair::simulation
