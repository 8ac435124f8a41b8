#pragma once

// WriteForm and ReadForm, the one text form of the station's data and settings files: a value a line, or
// several joined by commas; texts between double quotes with nothing escaped, numbers bare, lines ended by CR
// LF.
//
//   files.Write(path, WriteForm().Text("1").Number(30).bytes());   // "1"<CR><LF>30<CR><LF>
//   ReadForm form(content);
//   std::string flag = form.Next().value_or("");

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "station/platform/run_time_error.h"

namespace quixair {

class WriteForm {
 public:
  WriteForm& Text(std::string_view value);
  WriteForm& Number(long value);
  /// A value that was never given: an empty line.
  WriteForm& Nothing();
  /// Several texts on one line.
  WriteForm& Texts(std::initializer_list<std::string_view> values);
  const std::string& bytes() const { return bytes_; }

 private:
  std::string bytes_;
};

class ReadForm {
 public:
  /// `content` outlives this.
  explicit ReadForm(std::string_view content) : rest_(content) {}

  /// The next value: what stands between quotes, commas and blanks included, or what runs to the next comma
  /// or line end. 62 at the end of the content. LF alone ends a line too.
  Result<std::string> Next();
  /// Nothing is left to read.
  bool AtEnd() const;
  /// What is left, as it stands.
  std::string_view rest() const { return rest_; }

 private:
  void DropDelimiter();

  std::string_view rest_;
};

/// Up to `count` values from the top; fewer when the content ends before.
std::vector<std::string> ReadValues(std::string_view content, std::size_t count);

}  // namespace quixair
