#include "station/utilities/report_pages.h"

#include <gmock/gmock.h>

namespace quixair::testing {
namespace {

using ::testing::ElementsAre;

TEST(ReportPages, TextsBehindATab_GoToTheNextLine) {
  EXPECT_THAT(AtTabs({{1, "1"}, {7, "S1042"}, {14, "Baker"}}), ElementsAre("1     S1042  Baker"));
  EXPECT_THAT(AtTabs({{1, "1"}, {7, "1234567"}, {14, "x"}}), ElementsAre("1     1234567x"))
      << "a text that ends right before the tab is not past it";
  EXPECT_THAT(AtTabs({{1, "1"}, {7, "12345678"}, {14, "x"}, {20, "y"}}),
              ElementsAre("1     12345678", "             x     y"));
  EXPECT_THAT(AtTabs({{1, "1"}, {7, "12345678"}, {14, ""}, {20, "y"}}), ElementsAre("1     12345678     y"))
      << "nothing takes no place";
}

TEST(ReportPages, LabelsKeepABlankFree_LengthsUseTheWholeRoom) {
  const std::vector<TabbedText> texts =
      Fitted({{1, Fit::kLabel}, {6, Fit::kRoom}, {10}}, {"abcdefgh", "120.015", "whole text"});
  EXPECT_EQ(texts[0].text, "abcd");
  EXPECT_EQ(texts[1].text, "120.");
  EXPECT_EQ(texts[2].text, "whole text");
}

TEST(ReportPages, Minutes_AreADecimalFractionOfFourCharacters) {
  const struct {
    const char *length, *minutes;
  } cases[] = {{"95", "1.58"}, {"30", "0.5"},     {"[New]", "0"},  {"", "0"},
               {"60", "1"},    {"119.7", "1.99"}, {"7500", "125"}, {"6030", "100."}};
  for (const auto& each : cases) EXPECT_EQ(MinutesText(each.length), each.minutes) << each.length;
}

}  // namespace
}  // namespace quixair::testing
