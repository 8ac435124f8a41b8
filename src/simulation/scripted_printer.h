#pragma once

// A printer that keeps what was printed and answers as told beforehand; without an answer it prints.

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "station/platform/printer.h"

namespace quixair::simulation {

struct PrintJob {
  std::string title;
  std::vector<PrintedPage> pages;
  PrintOutcome outcome = PrintOutcome::kPrinted;
};

class ScriptedPrinter : public Printer {
 public:
  std::string DefaultName() override { return default_name; }
  PrintOutcome Print(const std::vector<PrintedPage>& pages, std::string_view title) override;

  void QueueOutcome(PrintOutcome outcome) { outcomes_.push_back(outcome); }
  const std::vector<PrintJob>& jobs() const { return jobs_; }

  std::string default_name = "Simulated Printer";
  std::function<void(const PrintJob&)> on_print;

 private:
  std::deque<PrintOutcome> outcomes_;
  std::vector<PrintJob> jobs_;
};

std::string_view NameOf(PrintOutcome outcome);

}  // namespace quixair::simulation
