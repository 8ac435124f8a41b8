#include "desktop/print_system.h"

#include <QPrinterInfo>

#include "station/platform/beside.h"

namespace quixair::desktop {
namespace {

constexpr std::chrono::milliseconds kLook{10};

template <class Answer>
bool IsThroughWithin(const std::future<Answer>& work, std::chrono::milliseconds patience,
                     const PrintSystem::Turn& turn) {
  const auto end = std::chrono::steady_clock::now() + patience;
  while (work.wait_for(kLook) != std::future_status::ready) {
    if (std::chrono::steady_clock::now() >= end) return false;
    turn();
  }
  return true;
}

}  // namespace

PrintersFound PrintSystem::SearchPrinters() {
  return {QPrinterInfo::availablePrinterNames(), QPrinterInfo::defaultPrinterName()};
}

bool PrintSystem::IsHeldUp() const {
  return done_.valid() && !IsThrough(done_);
}

void PrintSystem::Hear() {
  if (searched_.valid() && IsThrough(searched_)) found_ = searched_.get();
}

void PrintSystem::LookAgain() {
  Hear();
  if (!searched_.valid() && !IsHeldUp()) searched_ = Beside(search_);
}

std::optional<PrintersFound> PrintSystem::Find(std::chrono::milliseconds patience, const Turn& turn) {
  LookAgain();
  if (!searched_.valid() || !IsThroughWithin(searched_, patience, turn)) return std::nullopt;
  Hear();
  return found_;
}

bool PrintSystem::Do(std::function<bool()> job, std::chrono::milliseconds patience, const Turn& turn) {
  if (IsHeldUp()) return false;
  done_ = Beside(std::move(job));
  return IsThroughWithin(done_, patience, turn) && done_.get();
}

}  // namespace quixair::desktop
