#include "station/templates/template_entries.h"

#include <gtest/gtest.h>

namespace quixair {
namespace {

std::string Song(int number, const char* length = "30") {
  return RecordingEntry("M" + std::to_string(number), "Artist", "Title", length);
}

TemplateEntries Songs(int count) {
  TemplateEntries entries;
  for (int i = 1; i <= count; ++i) entries.Append(Song(i));
  return entries;
}

std::vector<std::string> IdsOf(const TemplateEntries& entries) {
  std::vector<std::string> ids;
  for (const TemplateEvent& event : entries.Events()) ids.push_back(event.EventId);
  return ids;
}

using Ids = std::vector<std::string>;

TEST(TemplateEntries, Columns_GoToTheFileAsTheyStand) {
  TemplateEntries entries;
  entries.Append(RecordingEntry("S1042", "Garden centre", "Fall Sale 30, all of it", "29.8"));
  entries.Append(std::string(kPauseEntry));
  entries.Append(LocalBreakEntry("06:30 PM"));
  entries.Append(LocalBreakFilling("07:00 PM"));
  EXPECT_EQ(entries.Row(1), "0001  S1042    Garden centre        Fall Sale 30, all of 29.8   ");
  EXPECT_EQ(FormatTemplate(entries.Events()),
            "\"S1042\",\"Fall Sale 30, all\"\r\n\">PAUSE<\",\"\"\r\n\"06:30 PM\",\"****LOCAL BREAK***\"\r\n"
            "\"07:00 PM\",\"  ****LOCAL BREAK*\"\r\n\"\",\"\"\r\n");
  EXPECT_EQ(FormatPickList(entries.Ids()), "\"S1042\"\r\n\">PAUSE\"\r\n\"06:30\"\r\n\"07:00\"\r\n\"\"\r\n");
  EXPECT_EQ(EntrySeconds(entries.entry(1)), 29.8);
  EXPECT_EQ(EntrySeconds(entries.entry(3)), 0);
}

TEST(TemplateEntries, OpenAndFill_PutAnEventInFrontOfTheOneChosen) {
  TemplateEntries entries = Songs(3);
  entries.Open(1);
  EXPECT_TRUE(entries.open());
  EXPECT_EQ(entries.EntryCount(), 4);
  EXPECT_EQ(entries.Rows().front(), "0001    >> O P E N <<");
  EXPECT_EQ(entries.Row(2).substr(0, 8), "0002  M1");
  entries.Fill(Song(9));
  EXPECT_FALSE(entries.open());
  EXPECT_EQ(IdsOf(entries), (Ids{"M9", "M1", "M2", "M3"}));
  entries.Open(4);
  entries.Fill(std::string(kTimeEntry));
  EXPECT_EQ(IdsOf(entries), (Ids{"M9", "M1", "M2", ">TIME<", "M3"}));
  entries.Fill(Song(8));  // filled again where no place was chosen: the old one
  EXPECT_EQ(IdsOf(entries), (Ids{"M9", "M1", "M2", "M8", "M3"}));
}

TEST(TemplateEntries, FillBeforeAnyPlaceWasChosen_ChangesNothing) {
  TemplateEntries entries = Songs(2);
  entries.Fill(Song(9));
  EXPECT_EQ(IdsOf(entries), (Ids{"M1", "M2"}));
}

TEST(TemplateEntries, Cut_TakesItsSecondsAndRenumbers) {
  TemplateEntries entries = Songs(4);
  entries.AddSeconds(120);
  EXPECT_EQ(entries.Cut(2), 30);
  EXPECT_EQ(entries.TotalSeconds(), 90);
  EXPECT_EQ(IdsOf(entries), (Ids{"M1", "M3", "M4"}));
  entries.Cut(3);
  EXPECT_EQ(entries.Rows().back().substr(0, 8), "0002  M3");
}

TEST(TemplateEntries, FullTemplate_ReplacesItsLastEventAndKeepsItsSeconds) {
  TemplateEntries entries = Songs(TemplateEntries::kMost);
  entries.AddSeconds(100);
  EXPECT_FALSE(entries.Append(Song(5000)));
  EXPECT_EQ(entries.EntryCount(), 1999);
  EXPECT_EQ(IdsOf(entries).back(), "M5000");
  EXPECT_EQ(IdsOf(entries)[1997], "M1998");
  EXPECT_EQ(entries.TotalSeconds(), 100);
}

TEST(TemplateEntries, Clear_KeepsTheOldTotal) {
  TemplateEntries entries = Songs(2);
  entries.AddSeconds(60);
  entries.Clear();
  EXPECT_EQ(entries.EntryCount(), 0);
  EXPECT_EQ(entries.TotalSeconds(), 60);
  EXPECT_EQ(FormatTemplate(entries.Events()), "\"\",\"\"\r\n");
}

TEST(TemplateEntries, Totals_CutTheirMinutes) {
  EXPECT_EQ(TotalTimeText(0), "Total Time: 0.0 sec. (0 min.)");
  EXPECT_EQ(TotalTimeText(61.5), "Total Time: 61.5 sec. (1.02 min.)");
  EXPECT_EQ(TotalTimeText(30), "Total Time: 30.0 sec. (.5 min.)");
  EXPECT_EQ(TotalTimeText(7380.4), "Total Time: 7380.4 sec. (123. min.)");
  EXPECT_EQ(Songs(5).RangeSeconds(2, 4), 90);
}

}  // namespace
}  // namespace quixair
