#include "station/templates/template_entries.h"

#include <gtest/gtest.h>

namespace quixair {
namespace {

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

TEST(TemplateEntries, Totals_CutTheirMinutes) {
  EXPECT_EQ(TotalTimeText(0), "Total Time: 0.0 sec. (0 min.)");
  EXPECT_EQ(TotalTimeText(1.4e-14), "Total Time: 0.0 sec. (0 min.)") << "what arithmetic leaves";
  EXPECT_EQ(TotalTimeText(-1.4e-14), "Total Time: 0.0 sec. (0 min.)");
  EXPECT_EQ(TotalTimeText(61.5), "Total Time: 61.5 sec. (1.02 min.)");
  EXPECT_EQ(TotalTimeText(30), "Total Time: 30.0 sec. (.5 min.)");
  EXPECT_EQ(TotalTimeText(-30), "Total Time: -30.0 sec. (-.5 min.)");
  EXPECT_EQ(TotalTimeText(7380.4), "Total Time: 7380.4 sec. (123. min.)");
}

}  // namespace
}  // namespace quixair
