#include "station/console/value_form.h"

#include <gtest/gtest.h>

namespace quixair {
namespace {

TEST(WriteForm, Values_AreWrittenByteForByte) {
  const WriteForm form =
      WriteForm().Text("Fall Sale, 30").Number(-7).Nothing().Text("").Texts({"S1", "a,b", ""});
  EXPECT_EQ(form.bytes(), "\"Fall Sale, 30\"\r\n-7\r\n\r\n\"\"\r\n\"S1\",\"a,b\",\"\"\r\n");
  EXPECT_EQ(WriteForm().bytes(), "");
}

TEST(ReadForm, WholeAndDamagedInputs_GiveTheseValues) {
  using Values = std::vector<std::string>;
  const struct {
    const char* name;
    std::string content;
    Values values;
  } cases[] = {
      {"nothing", "", {}},
      {"texts and numbers", "\"RANDOM\"\r\n30\r\n\"\"\r\n", {"RANDOM", "30", ""}},
      {"no end of the last line", "\"1\"\r\n\"RANDOM\"", {"1", "RANDOM"}},
      {"LF alone", "\"1\"\n\"2\"\n3\n", {"1", "2", "3"}},
      {"CR alone", "\"1\"\r2\r", {"1", "2"}},
      {"commas and blanks inside quotes", "\"a, b\" , \" c \"\r\n", {"a, b", " c "}},
      {"blanks and tabs before a value", " \t\"1\"\r\n \t 2\r\n", {"1", "2"}},
      {"something behind the closing quote", "\"1\" and more\r\n\"2\"\r\n", {"1", "2"}},
      {"bare values in one line", "1,2, 3\r\n", {"1", "2", "3"}},
      {"bare text with blanks", "Fall Sale\r\n", {"Fall Sale"}},
      {"a quote inside a bare value", "5\" disk\r\n", {"5\" disk"}},
      {"empty lines", "\r\n\r\n\"x\"\r\n", {"", "", "x"}},
      {"torn inside quotes", "\"1\"\r\n\"RAN", {"1", "RAN"}},
      {"torn at the quote", "\"1\"\r\n\"", {"1", ""}},
      {"old editors' end mark", "\"1\"\r\n\x1A", {"1"}},
      {"end mark inside quotes", "\"a\x1A\"\r\n\"2\"", {"a\x1A", "2"}},
      {"NUL bytes of a crash", std::string("\0\0\0", 3), {std::string("\0\0\0", 3)}},
      {"an accent", "\"Caf\xE9\"\r\n", {"Caf\xE9"}},
  };
  for (const auto& [name, content, values] : cases) {
    EXPECT_EQ(ReadValues(content, 100), values) << name;
  }
}

TEST(ReadForm, PastTheEnd_Is62) {
  ReadForm form("\"only\"\r\n");
  EXPECT_EQ(form.Next().value_or(""), "only");
  EXPECT_TRUE(form.AtEnd());
  EXPECT_EQ(form.Next().status().number(), 62);
}

TEST(ReadForm, ReadersStopAfterTheFieldTheyNeed) {
  EXPECT_EQ(ReadValues("1\r\n2\r\n3\r\n", 2), (std::vector<std::string>{"1", "2"}));
}

}  // namespace
}  // namespace quixair
