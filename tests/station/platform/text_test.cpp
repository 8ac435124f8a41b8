#include "station/platform/text.h"

#include <gtest/gtest.h>

#include <limits>

namespace quixair {
namespace {

TEST(CodePage, EveryByte_SurvivesUtf8AndBack) {
  for (int value = 0; value < 256; ++value) {
    const std::string byte(1, static_cast<char>(value));
    EXPECT_EQ(FromUtf8(ToUtf8(byte)), byte) << "byte " << value;
  }
}

TEST(CodePage, UpperHalf_IsWindows1252) {
  EXPECT_EQ(ToUtf8("\x80 \x8A \x9F \xE9"), "€ Š Ÿ é");
  EXPECT_EQ(FromUtf8("Zoë’s “Café” – 5€"),
            "Zo\xEB\x92s \x93"
            "Caf\xE9\x94 \x96 5\x80");
}

TEST(CodePage, WhatItCannotHold_BecomesQuestionMarks) {
  const struct {
    const char* utf8;
    const char* code_page;
  } cases[] = {
      {"Łódź",
       "?\xF3"
       "d?"},
      {"a😀b", "a?b"},
      {"caf\xE9.wav", "caf?.wav"},  // not UTF-8 at all: no control character may come of it
      {"\xE2\x82", "?"},            // cut in the middle of a character
      {"\x80", "?"},
      {"\xC1\xA1", "?"},  // an "a" in a disguise
  };
  for (const auto& [utf8, code_page] : cases) EXPECT_EQ(FromUtf8(utf8), code_page) << utf8;
}

TEST(Case, Accents_AreRaisedByTheCodePage) {
  EXPECT_EQ(UpperCased("abc z09 \xE0\xEB\xFE \x9A\x9C\x9E\xFF"), "ABC Z09 \xC0\xCB\xDE \x8A\x8C\x8E\x9F");
  EXPECT_EQ(UpperCased("\xF7\xDF\x83"), "\xF7\xDF\x83") << "these have no upper case";
  EXPECT_TRUE(EqualsIgnoringCase("CAF\xC9", "caf\xE9"));
  EXPECT_TRUE(StartsWithIgnoringCase("ll0100", "LL"));
  EXPECT_FALSE(StartsWithIgnoringCase("L", "LL"));
  EXPECT_TRUE(LessIgnoringCase("z", "\xE9")) << "accents sort behind the letters, not before them";
}

TEST(Numbers, LeadingNumericPart_Counts) {
  const struct {
    const char* text;
    double value;
    int whole;
  } cases[] = {
      {"[New]", 0, 0}, {"", 0, 0},        {" 12.5 s", 12.5, 12}, {"\t30.0", 30, 30}, {"-3 days", -3, -3},
      {"+7", 7, 7},    {".5", 0.5, 0},    {"-.75", -0.75, 0},    {"-", 0, 0},        {"--5", 0, 0},
      {"inf", 0, 0},   {"nan", 0, 0},     {"-infinity", 0, 0},   {"30,5", 30, 30},   {"1.2.3", 1.2, 1},
      {"1e400", 0, 0}, {"12abc", 12, 12}, {"x12", 0, 0},
  };
  for (const auto& [text, value, whole] : cases) {
    EXPECT_DOUBLE_EQ(NumericValue(text), value) << text;
    EXPECT_EQ(WholeValue(text), whole) << text;
  }
  EXPECT_EQ(WholeValue("99999999999999"), std::numeric_limits<int>::max());
  EXPECT_EQ(WholeValue("-99999999999999"), -std::numeric_limits<int>::max());
}

TEST(Numbers, FixedDecimals_RoundsHalvesAwayFromZero) {
  const struct {
    double value;
    int decimals;
    const char* text;
  } cases[] = {
      {30, 1, "30.0"}, {29.75, 1, "29.8"}, {0.25, 1, "0.3"}, {-0.25, 1, "-0.3"},   {-0.04, 1, "0.0"},
      {2.5, 0, "3"},   {0.125, 2, "0.13"}, {0, 2, "0.00"},   {59.999, 2, "60.00"}, {3600.5, 0, "3601"},
  };
  for (const auto& [value, decimals, text] : cases) EXPECT_EQ(FixedDecimals(value, decimals), text) << value;
}

TEST(Numbers, ShortestSeconds_HasNoIdleZeros) {
  const std::pair<long, const char*> cases[] = {{30015, "30.015"}, {30000, "30"}, {500, "0.5"},
                                                {100100, "100.1"}, {0, "0"},      {1, "0.001"}};
  for (const auto& [milliseconds, text] : cases) EXPECT_EQ(ShortestSeconds(milliseconds), text);
}

TEST(Patterns, MatchNamesAsTheOldPcDid) {
  const struct {
    const char* name;
    const char* pattern;
    bool matches;
  } cases[] = {
      {"M0001.DAT", "M*.DAT", true},
      {"m0001.dat", "M*.DAT", true},
      {"M0001.DAT.BAK", "M*.DAT", false},
      {"LL01.DAT", "L*.DAT", true},
      {"L001.DAT", "LL*.DAT", false},
      {"TEMP.DAT", "?EMP.D?T", true},
      {"EMP.DAT", "?EMP.DAT", false},
      {"README", "*.*", true},
      {"README", "*.DAT", false},
      {"MON.TPD", "*.TPL;*.TPD", true},
      {"MON.TPT", "*.TPL;*.TPD", false},
      {"", "*", true},
      {"S1.DAT", "", false},
      {"aXbXc.DAT", "a*X*c.*", true},
      {"CAF\xC9.TPP", "caf\xE9.*", true},
  };
  for (const auto& [name, pattern, matches] : cases) {
    EXPECT_EQ(MatchesPattern(name, pattern), matches) << name << " against " << pattern;
  }
}

}  // namespace
}  // namespace quixair
