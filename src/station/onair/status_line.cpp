#include "station/onair/status_line.h"

#include <utility>

namespace quixair {

StatusLine::StatusLine(TextBox& line) : line_(line) {
  EndWarning();
}

void StatusLine::Tell(std::string text) {
  line_.SetText(std::move(text));
}

void StatusLine::Warn(std::string text) {
  line_.SetBackColor(kYellow);
  Tell(std::move(text));
}

void StatusLine::EndWarning() {
  line_.SetBackColor(kPaleGreen);
}

}  // namespace quixair
