#include "station/templates/template_file.h"

#include <gtest/gtest.h>

namespace quixair {
namespace {

using Events = std::vector<TemplateEvent>;

constexpr std::string_view kExample =
    "\"S1042\",\"Fall Sale 30\"\r\n\">PAUSE<\",\"\"\r\n\"06:30 PM\",\"****LOCAL BREAK***\"\r\n"
    "\"M0117\",\"Some, Song Title\"\r\n\"\",\"\"\r\n";

TEST(TemplateFile, LoadedAndSaved_IsTheSameFile) {
  const Events events = ParseTemplate(kExample).value_or({});
  EXPECT_EQ(events, (Events{{"S1042", "Fall Sale 30"},
                            {">PAUSE<", ""},
                            {"06:30 PM", "****LOCAL BREAK***"},
                            {"M0117", "Some, Song Title"},
                            {"", ""}}));
  EXPECT_EQ(FormatTemplate(Events(events.begin(), events.end() - 1)), kExample);
  EXPECT_EQ(FormatTemplate({}), "\"\",\"\"\r\n");
}

TEST(TemplateFile, DamagedFiles_AreReadAsFarAsTheyGo) {
  const struct {
    const char* name;
    const char* content;
    bool whole;
    Events readable;
    std::size_t to_first_empty;
    std::size_t before_last;
  } cases[] = {
      {"no events", "\"\",\"\"\r\n", true, {{"", ""}}, 0, 0},
      {"nothing at all", "", false, {}, 0, 0},
      {"LF line ends", "\"S1\",\"a\"\n\"\",\"\"\n", true, {{"S1", "a"}, {"", ""}}, 1, 1},
      {"no end of the last line", "\"S1\",\"a\"\r\n\"\",\"\"", true, {{"S1", "a"}, {"", ""}}, 1, 1},
      {"no terminating record", "\"S1\",\"a\"\r\n", false, {{"S1", "a"}}, 1, 0},
      {"last line with one field", "\"S1\",\"a\"\r\n\"S2\"\r\n", false, {{"S1", "a"}}, 1, 1},
      {"torn inside a title", "\"S1\",\"a\"\r\n\"S2\",\"tor", false, {{"S1", "a"}, {"S2", "tor"}}, 2, 1},
      {"terminated by half", "\"S1\",\"a\"\r\n\"\"\r\n", false, {{"S1", "a"}}, 1, 1},
      {"empty event in the middle",
       "\"S1\",\"a\"\r\n\"\",\"\"\r\n\"S2\",\"b\"\r\n\"\",\"\"\r\n",
       true,
       {{"S1", "a"}, {"", ""}, {"S2", "b"}, {"", ""}},
       1,
       3},
  };
  for (const auto& [name, content, whole, readable, to_first_empty, before_last] : cases) {
    SCOPED_TRACE(name);
    const auto parsed = ParseTemplate(content);
    EXPECT_EQ(parsed.ok(), whole);
    EXPECT_EQ(parsed.status().number(), whole ? 0 : 62);
    EXPECT_EQ(ReadableEvents(content), readable);
    EXPECT_EQ(EventsToFirstEmpty(content, kMaxTemplateLines).size(), to_first_empty);
    EXPECT_EQ(EventsBeforeLast(content).size(), before_last);
  }
  EXPECT_EQ(EventsToFirstEmpty(FormatTemplate(Events(10, {"S1", "a"})), 4).size(), 4U) << "its limit";
}

TEST(TemplateFile, PickList_HasSixCharactersALine) {
  EXPECT_EQ(FormatPickList({"S1042", "M0117    Some Song", ">PAUSE<", ">TIME<", "06:30 PM", "S1   X"}),
            "\"S1042\"\r\n\"M0117\"\r\n\">PAUSE\"\r\n\">TIME<\"\r\n\"06:30\"\r\n\"S1   X\"\r\n\"\"\r\n");
  EXPECT_EQ(FormatPickList({}), "\"\"\r\n");
}

TEST(TemplateNames, TellTheKindOfFile) {
  const std::pair<const char*, TemplateKind> cases[] = {
      {"MORNING.TPP", TemplateKind::kPickCustom},
      {"mon.tpp", TemplateKind::kPickCustom},
      {"MON.TPT", TemplateKind::kPickDaily},
      {"sun.tpt", TemplateKind::kPickDaily},
      {"DAILY.TPT", TemplateKind::kNone},
      {"X.TPL", TemplateKind::kSatCustom},
      {"Sat.TPD", TemplateKind::kSatDaily},
      {"MOND.TPD", TemplateKind::kNone},
      {"ROTATWIN.DTA", TemplateKind::kRotationFile},
      {"rotatwin.dta", TemplateKind::kRotationFile},
      {"OTHER.DTA", TemplateKind::kNone},
      {"TPP", TemplateKind::kNone},
      {"A.B.TPP", TemplateKind::kPickCustom},
      {"Mon.LOG", TemplateKind::kNone},
  };
  for (const auto& [name, kind] : cases) EXPECT_EQ(KindOfTemplate(name), kind) << name;
}

TEST(EventIds, LeadingCharacters_TellTheKindOfEvent) {
  const std::pair<const char*, EventKind> cases[] = {
      {">PAUSE<", EventKind::kPause},
      {">pAUSE", EventKind::kPause},
      {">TIME<", EventKind::kTimeAnnouncement},
      {">t", EventKind::kTimeAnnouncement},
      {">IMPORT", EventKind::kReserved},
      {">live", EventKind::kReserved},
      {">m", EventKind::kReserved},
      {">x", EventKind::kOther},
      {">", EventKind::kOther},
      {"", EventKind::kEmpty},
      {"06:30 PM", EventKind::kLocalBreak},
      {"12:00 AM", EventKind::kLocalBreak},
      {"23:00", EventKind::kOther},
      {"S1", EventKind::kRecording},
      {"m1", EventKind::kRecording},
      {"LL1", EventKind::kRecording},
      {"X1", EventKind::kOther},
      {" S1", EventKind::kOther},
  };
  for (const auto& [id, kind] : cases) EXPECT_EQ(KindOfEvent(id), kind) << id;
}

}  // namespace
}  // namespace quixair
