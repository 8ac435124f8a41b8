#include "script/script_language.h"

#include <array>
#include <charconv>
#include <cstdio>

#include "station/platform/civil_time.h"
#include "station/platform/text.h"

namespace quixair::script {
namespace {

bool IsBlank(char c) {
  return c == ' ' || c == '\t' || c == '\r';
}

/// Reads the quoted text that begins behind `at`; leaves `at` behind its closing quote.
void AppendQuoted(std::string_view line, std::size_t& at, std::string& text) {
  for (++at; at < line.size() && line[at] != '"'; ++at) {
    if (line[at] == '\\' && at + 1 < line.size()) ++at;
    text += line[at];
  }
  if (at == line.size()) throw ScriptError("a quote is not closed");
  ++at;
}

int Field(std::string_view text, std::size_t at, std::size_t width) {
  int value = 0;
  const char* first = text.data() + at;
  const auto parsed = std::from_chars(first, first + width, value);
  if (parsed.ec != std::errc() || parsed.ptr != first + width) {
    throw ScriptError("no time: " + ToUtf8(text));
  }
  return value;
}

bool HasShape(std::string_view text, std::string_view shape) {
  if (text.size() != shape.size()) return false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool digit = text[i] >= '0' && text[i] <= '9';
    if (shape[i] == '0' ? !digit : text[i] != shape[i]) return false;
  }
  return true;
}

}  // namespace

std::vector<Word> WordsOf(std::string_view line) {
  std::vector<Word> words;
  std::size_t at = 0;
  while (at < line.size()) {
    if (IsBlank(line[at])) {
      ++at;
      continue;
    }
    if (line[at] == '#' &&
        (words.empty() || !(at + 1 < line.size() && line[at + 1] >= '0' && line[at + 1] <= '9'))) {
      break;  // "#3" names a row
    }
    std::string text;
    std::size_t quoted_at = std::string::npos;
    while (at < line.size() && !IsBlank(line[at])) {
      if (line[at] == '"') {
        if (quoted_at == std::string::npos) quoted_at = text.size();
        AppendQuoted(line, at, text);
      } else {
        text += line[at++];
      }
    }
    // The quote's place counts bytes of the script; what stands before it in a reference is plain ASCII.
    words.push_back({FromUtf8(text), quoted_at});
  }
  return words;
}

ControlReference ReferenceOf(const Word& word) {
  const std::size_t dot = word.text.find('.');
  if (dot == std::string::npos || dot == 0 || dot + 1 == word.text.size()) {
    throw ScriptError("not a control: " + ToUtf8(word.text) + " (Screen.Control is wanted)");
  }
  return {word.text.substr(0, dot), word.text.substr(dot + 1), word.quoted_at == dot + 1};
}

std::chrono::milliseconds SpanOf(std::string_view text) {
  long long number = 0;
  const auto parsed = std::from_chars(text.data(), text.data() + text.size(), number);
  const std::string_view unit(parsed.ptr, static_cast<std::size_t>(text.data() + text.size() - parsed.ptr));
  const long long factor = unit == "ms"  ? 1
                           : unit == "s" ? 1000
                           : unit == "m" ? 60'000
                           : unit == "h" ? 3'600'000
                                         : 0;
  if (parsed.ec != std::errc() || factor == 0 || number < 0) {
    throw ScriptError("no span of time: " + ToUtf8(text) + " (500ms, 90s, 5m or 2h is wanted)");
  }
  return std::chrono::milliseconds(number * factor);
}

std::chrono::milliseconds SignedSpanOf(std::string_view text) {
  const bool back = text.starts_with('-');
  if (back || text.starts_with('+')) text.remove_prefix(1);
  return back ? -SpanOf(text) : SpanOf(text);
}

std::int64_t WholeNumberOf(std::string_view text) {
  std::int64_t number = 0;
  const auto parsed = std::from_chars(text.data(), text.data() + text.size(), number);
  if (parsed.ec != std::errc() || parsed.ptr != text.data() + text.size()) {
    throw ScriptError("no whole number: " + ToUtf8(text));
  }
  return number;
}

CivilTime MomentOf(std::string_view text) {
  if (!HasShape(text, "0000-00-00 00:00:00")) throw ScriptError("no date and time: " + ToUtf8(text));
  CivilTime time;
  time.year = Field(text, 0, 4);
  time.month = Field(text, 5, 2);
  time.day = Field(text, 8, 2);
  time.hour = Field(text, 11, 2);
  time.minute = Field(text, 14, 2);
  time.second = Field(text, 17, 2);
  const CivilTime same = CivilFromMilliseconds(MillisecondsFromCivil(time));  // knows the weekday
  if (same.day != time.day || same.hour != time.hour || same.minute != time.minute ||
      same.month != time.month) {
    throw ScriptError("no such date and time: " + ToUtf8(text));
  }
  return same;
}

CivilTime TimeOfDayOf(std::string_view text) {
  CivilTime time;
  if (!HasShape(text, "00:00:00") && !HasShape(text, "00:00"))
    throw ScriptError("no time of day: " + ToUtf8(text));
  time.hour = Field(text, 0, 2);
  time.minute = Field(text, 3, 2);
  time.second = text.size() > 5 ? Field(text, 6, 2) : 0;
  if (time.hour > 23 || time.minute > 59 || time.second > 59)
    throw ScriptError("no time of day: " + ToUtf8(text));
  return time;
}

std::string Quoted(std::string_view code_page_text) {
  std::string out = "\"";
  for (const char c : code_page_text) {
    if (c == '\n') {
      out += "\\n";
    } else if (c == '"' || c == '\\') {
      out += '\\';
      out += c;
    } else {
      out += c;
    }
  }
  return ToUtf8(out + '"');
}

std::string Stamp(const CivilTime& time) {
  std::array<char, 64> buffer{};
  const int length =
      std::snprintf(buffer.data(), buffer.size(), "%04d-%02d-%02d %02d:%02d:%02d.%03d", time.year, time.month,
                    time.day, time.hour, time.minute, time.second, time.millisecond);
  return {buffer.data(), static_cast<std::size_t>(length)};
}

}  // namespace quixair::script
