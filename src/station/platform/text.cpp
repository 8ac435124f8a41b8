#include "station/platform/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>

namespace quixair {
namespace {

// The characters of 0x80 to 0x9F; the unassigned ones stand for themselves.
constexpr std::array<char32_t, 32> kUpperHalf = {
    0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x8D,   0x017D, 0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

unsigned char Byte(char c) {
  return static_cast<unsigned char>(c);
}

void AppendUtf8(std::string& out, char32_t point) {
  const auto put = [&out](std::uint32_t value) { out.push_back(static_cast<char>(value)); };
  if (point < 0x80) {
    put(point);
  } else if (point < 0x800) {
    put(0xC0 | (point >> 6));
    put(0x80 | (point & 0x3F));
  } else {
    put(0xE0 | (point >> 12));
    put(0x80 | ((point >> 6) & 0x3F));
    put(0x80 | (point & 0x3F));
  }
}

char FromCodePoint(char32_t point) {
  if (point < 0x80 || (point >= 0xA0 && point <= 0xFF)) return static_cast<char>(point);
  const auto* found = std::find(kUpperHalf.begin(), kUpperHalf.end(), point);
  return found == kUpperHalf.end() ? '?' : static_cast<char>(0x80 + (found - kUpperHalf.begin()));
}

bool MatchesOne(std::string_view name, std::string_view pattern) {
  std::size_t n = 0;
  std::size_t p = 0;
  std::size_t star = std::string_view::npos;
  std::size_t star_name = 0;
  while (n < name.size()) {
    if (p < pattern.size() && pattern[p] == '*') {
      star = p++;
      star_name = n;
    } else if (p < pattern.size() && (pattern[p] == '?' || UpperCased(pattern[p]) == UpperCased(name[n]))) {
      ++p;
      ++n;
    } else if (star != std::string_view::npos) {
      p = star + 1;
      n = ++star_name;
    } else {
      return false;
    }
  }
  while (p < pattern.size() && pattern[p] == '*') ++p;
  return p == pattern.size();
}

}  // namespace

char UpperCased(char letter) {
  const unsigned char c = Byte(letter);
  if (c >= 'a' && c <= 'z') return static_cast<char>(c - 32);
  if (c < 0x80) return letter;
  if (c >= 0xE0 && c <= 0xFE && c != 0xF7) return static_cast<char>(c - 32);
  if (c == 0x9A || c == 0x9C || c == 0x9E) return static_cast<char>(c - 16);
  return c == 0xFF ? static_cast<char>(0x9F) : letter;
}

std::string UpperCased(std::string_view text) {
  std::string upper(text);
  for (char& letter : upper) letter = UpperCased(letter);
  return upper;
}

bool EqualsIgnoringCase(std::string_view a, std::string_view b) {
  return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(),
                                            [](char x, char y) { return UpperCased(x) == UpperCased(y); });
}

bool LessIgnoringCase(std::string_view a, std::string_view b) {
  return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
    return Byte(UpperCased(x)) < Byte(UpperCased(y));
  });
}

bool StartsWithIgnoringCase(std::string_view text, std::string_view start) {
  return text.size() >= start.size() && EqualsIgnoringCase(text.substr(0, start.size()), start);
}

std::string_view TrimmedRight(std::string_view text) {
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  return text;
}

std::string_view Trimmed(std::string_view text) {
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  return TrimmedRight(text);
}

double NumericValue(std::string_view text) {
  while (!text.empty() && (text.front() == ' ' || text.front() == '\t')) text.remove_prefix(1);
  if (!text.empty() && text.front() == '+') text.remove_prefix(1);
  // Words such as "inf" that the converter would take are no numbers to an operator.
  const std::size_t first_digit = text.find_first_not_of("-.");
  if (first_digit == std::string_view::npos || text[first_digit] < '0' || text[first_digit] > '9') return 0;
  double value = 0;
  std::from_chars(text.data(), text.data() + text.size(), value);
  return std::isfinite(value) ? value : 0;
}

int WholeValue(std::string_view text) {
  const double value = NumericValue(text);
  constexpr double kLimit = std::numeric_limits<int>::max();
  return static_cast<int>(std::clamp(value, -kLimit, kLimit));
}

std::string FixedDecimals(double value, int decimals) {
  const double scale = std::pow(10.0, decimals);
  double rounded = std::round(value * scale) / scale;
  if (rounded == 0) rounded = 0;  // no "-0.0"
  std::array<char, 64> buffer{};
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), rounded,
                                 std::chars_format::fixed, decimals);
  return {buffer.data(), end.ptr};
}

std::string ShortestDecimal(double value, int most_decimals) {
  std::string text = FixedDecimals(value, most_decimals);
  while (text.back() == '0') text.pop_back();
  if (text.back() == '.') text.pop_back();
  return text;
}

std::string ShortestSeconds(long milliseconds) {
  return ShortestDecimal(static_cast<double>(milliseconds) / 1000.0, 3);
}

std::string ToUtf8(std::string_view code_page_text) {
  std::string out;
  out.reserve(code_page_text.size());
  for (const char letter : code_page_text) {
    const unsigned char c = Byte(letter);
    AppendUtf8(out, c >= 0x80 && c < 0xA0 ? kUpperHalf[c - 0x80U] : c);
  }
  return out;
}

std::string FromUtf8(std::string_view utf8) {
  std::string out;
  out.reserve(utf8.size());
  for (std::size_t i = 0; i < utf8.size();) {
    const unsigned char first = Byte(utf8[i++]);
    if (first < 0x80) {
      out.push_back(static_cast<char>(first));
      continue;
    }
    const int more = first >= 0xF0 ? 3 : first >= 0xE0 ? 2 : first >= 0xC0 ? 1 : 0;
    char32_t point = static_cast<char32_t>(first & (0x3F >> more));
    int read = 0;
    for (; read < more && i < utf8.size() && (Byte(utf8[i]) & 0xC0) == 0x80; ++read) {
      point = (point << 6) | (Byte(utf8[i++]) & 0x3FU);
    }
    // Bytes that are no UTF-8, as in a name that another system wrote, must not turn into other characters.
    const bool whole = more > 0 && read == more && point >= 0x80;
    out.push_back(whole ? FromCodePoint(point) : '?');
  }
  return out;
}

bool MatchesPattern(std::string_view name, std::string_view patterns) {
  while (!patterns.empty()) {
    const std::size_t end = std::min(patterns.find(';'), patterns.size());
    const std::string_view pattern = patterns.substr(0, end);
    if (pattern == "*.*" || MatchesOne(name, pattern)) return true;
    patterns.remove_prefix(std::min(end + 1, patterns.size()));
  }
  return false;
}

}  // namespace quixair
