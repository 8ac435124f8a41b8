#include "station/console/value_form.h"

#include <algorithm>

namespace quixair {
namespace {
constexpr char kEndOfFileMark = '\x1A';  // some old editors leave it behind the last line
}

WriteForm& WriteForm::Text(std::string_view value) {
  return Texts({value});
}

WriteForm& WriteForm::Number(long value) {
  bytes_ += std::to_string(value) + "\r\n";
  return *this;
}

WriteForm& WriteForm::Nothing() {
  bytes_ += "\r\n";
  return *this;
}

WriteForm& WriteForm::Texts(std::initializer_list<std::string_view> values) {
  bool first = true;
  for (const std::string_view value : values) {
    if (!first) bytes_ += ',';
    first = false;
    bytes_ += '"';
    bytes_ += value;
    bytes_ += '"';
  }
  bytes_ += "\r\n";
  return *this;
}

bool ReadForm::AtEnd() const {
  return rest_.empty() || rest_.front() == kEndOfFileMark;
}

Result<std::string> ReadForm::Next() {
  if (AtEnd()) return RunTimeError::kInputPastEnd;
  while (rest_.starts_with(' ') || rest_.starts_with('\t')) rest_.remove_prefix(1);
  std::string value;
  if (!rest_.empty() && rest_.front() == '"') {
    rest_.remove_prefix(1);
    const std::size_t end = std::min(rest_.find('"'), rest_.size());
    value = rest_.substr(0, end);
    rest_.remove_prefix(std::min(end + 1, rest_.size()));
    rest_.remove_prefix(std::min(rest_.find_first_of(",\r\n"), rest_.size()));
  } else {
    const std::size_t end = std::min(rest_.find_first_of(",\r\n"), rest_.size());
    value = rest_.substr(0, end);
    rest_.remove_prefix(end);
  }
  DropDelimiter();
  return value;
}

void ReadForm::DropDelimiter() {
  if (rest_.starts_with("\r\n")) {
    rest_.remove_prefix(2);
  } else if (!rest_.empty()) {
    rest_.remove_prefix(1);
  }
}

std::vector<std::string> ReadValues(std::string_view content, std::size_t count) {
  std::vector<std::string> values;
  values.reserve(count);
  ReadForm form(content);
  while (values.size() < count && !form.AtEnd()) values.push_back(form.Next().value_or({}));
  return values;
}

}  // namespace quixair
