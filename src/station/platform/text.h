#pragma once

// Texts of the station are bytes of its 8-bit code page, Windows-1252: what a file holds is what the program
// holds, and columns count bytes. Only the front ends and the host's own path names need Unicode, and convert
// here.

#include <string>
#include <string_view>

namespace quixair {

/// Upper case by the code page, accented letters included; used wherever names are compared without regard to
/// case.
std::string UpperCased(std::string_view text);
char UpperCased(char letter);
bool EqualsIgnoringCase(std::string_view a, std::string_view b);
bool LessIgnoringCase(std::string_view a, std::string_view b);
bool StartsWithIgnoringCase(std::string_view text, std::string_view start);

std::string_view TrimmedRight(std::string_view text);
std::string_view Trimmed(std::string_view text);

/// The leading numeric part of a text as a number, 0 when it has none: "[New]" counts 0, " 12.5 s"
/// counts 12.5.
double NumericValue(std::string_view text);
/// The same as a whole number, cut towards zero and held within the range of int.
int WholeValue(std::string_view text);

/// Fixed decimals, "0.0" or "0.00"; halves are rounded away from zero.
std::string FixedDecimals(double value, int decimals);
/// The shortest decimal form of at most so many decimals: "0.5", "12".
std::string ShortestDecimal(double value, int most_decimals);
/// Milliseconds as seconds in the shortest decimal form: 30015 gives "30.015", 30000 gives "30".
std::string ShortestSeconds(long milliseconds);

std::string ToUtf8(std::string_view code_page_text);
/// Characters outside the code page become "?".
std::string FromUtf8(std::string_view utf8);

/// `name` against `pattern` with `*` and `?`, without regard to case; several patterns are divided by ";". As
/// on the old PC, "*.*" matches a name without a dot too.
bool MatchesPattern(std::string_view name, std::string_view patterns);

}  // namespace quixair
