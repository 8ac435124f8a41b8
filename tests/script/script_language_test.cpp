#include "script/script_language.h"

#include <gtest/gtest.h>

#include "station/platform/text.h"

namespace quixair::script {
namespace {

using namespace std::chrono_literals;

/// What a reader says to a broken text; empty when it takes it.
template <class Reader>
std::string Refusal(Reader read) {
  try {
    read();
  } catch (const ScriptError& error) {
    return error.what();
  }
  return {};
}

TEST(ScriptWords, LinesAreDividedByBlanks) {
  using Words = std::vector<std::string>;
  const struct {
    const char* line;
    Words words;
  } cases[] = {
      {"", {}},
      {" \t \r", {}},
      {"# a comment", {}},
      {"#3 at the start is one too", {}},
      {"start\r", {"start"}},
      {"  click\tRandomForm1.Start  # goes on the air", {"click", "RandomForm1.Start"}},
      {"answer \"two words\"", {"answer", "two words"}},
      {"answer \"\"", {"answer", ""}},
      {"answer \"a \\\"b\\\" \\\\ c\"", {"answer", "a \"b\" \\ c"}},
      {"answer \"# no comment\"", {"answer", "# no comment"}},
      {"select A.List1 #3 #12 # rows", {"select", "A.List1", "#3", "#12"}},
      {"click A.\"&New Template\"", {"click", "A.&New Template"}},
      {"type A.B#c x", {"type", "A.B#c", "x"}},
  };
  for (const auto& [line, expected] : cases) {
    Words words;
    for (const Word& word : WordsOf(line)) words.push_back(word.text);
    EXPECT_EQ(words, expected) << line;
  }
}

TEST(ScriptWords, ScriptsAreUtf8AndWordsTheCodePage) {
  EXPECT_EQ(WordsOf("answer \"Café\"").at(1).text, "Caf\xE9");
  EXPECT_EQ(Quoted("Caf\xE9 \"x\"\n\\"), "\"Café \\\"x\\\"\\n\\\\\"");
}

TEST(ScriptReferences, NameAControlOrItsCaption) {
  const ControlReference by_name = ReferenceOf(WordsOf("R.CurrLabel(0)").at(0));
  EXPECT_EQ(by_name.screen + '|' + by_name.control, "R|CurrLabel(0)");
  EXPECT_FALSE(by_name.by_caption);
  const ControlReference by_caption = ReferenceOf(WordsOf("R.\"Go &Live. Next\"").at(0));
  EXPECT_EQ(by_caption.screen + '|' + by_caption.control, "R|Go &Live. Next");
  EXPECT_TRUE(by_caption.by_caption);
  for (const char* word : {"R", "R.", ".Start", "R.\"\""}) {
    EXPECT_NE(Refusal([&] { ReferenceOf(WordsOf(word).at(0)); }), "") << word;
  }
}

TEST(ScriptTimes, Spans) {
  const std::pair<const char*, std::chrono::milliseconds> cases[] = {
      {"500ms", 500ms}, {"90s", 90s}, {"5m", 5min}, {"2h", 2h}, {"0s", 0s}, {"100h", 100h}};
  for (const auto& [text, span] : cases) EXPECT_EQ(SpanOf(text), span) << text;
  for (const char* text : {"", "s", "90", "90 s", "-5s", "5d", "1.5s", "5sec", "99999999999999999999s"}) {
    EXPECT_NE(Refusal([&] { static_cast<void>(SpanOf(text)); }), "") << text;
  }
}

TEST(ScriptTimes, Moments) {
  EXPECT_EQ(Stamp(MomentOf("2024-02-29 23:59:59")), "2024-02-29 23:59:59.000");
  EXPECT_EQ(MomentOf("2026-11-22 20:00:00").weekday, 0);
  for (const char* text : {"2023-02-29 00:00:00", "2026-13-01 00:00:00", "2026-11-22 24:00:00",
                           "2026-11-22 20:60:00", "2026-11-22 20:00:60", "2026-11-22", "2026-11-22 20:00",
                           "2026/11/22 20:00:00", "2026-11-22 20:00:00.5", "", "2026-00-10 00:00:00"}) {
    EXPECT_NE(Refusal([&] { static_cast<void>(MomentOf(text)); }), "") << text;
  }
}

TEST(ScriptTimes, TimesOfDay) {
  const CivilTime with_seconds = TimeOfDayOf("21:15:30");
  EXPECT_EQ(with_seconds.hour * 10000 + with_seconds.minute * 100 + with_seconds.second, 211530);
  EXPECT_EQ(TimeOfDayOf("00:05").minute, 5);
  for (const char* text : {"24:00", "12:60", "12:00:60", "9:15", "12", "12:00 PM", ""}) {
    EXPECT_NE(Refusal([&] { static_cast<void>(TimeOfDayOf(text)); }), "") << text;
  }
}

}  // namespace
}  // namespace quixair::script
