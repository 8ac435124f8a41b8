#include "station/platform/civil_time.h"

#include <gtest/gtest.h>

namespace quixair {
namespace {

CivilTime At(int hour, int minute, int second) {
  return {.year = 2001, .month = 3, .day = 7, .hour = hour, .minute = minute, .second = second, .weekday = 3};
}

TEST(TimeTexts, EveryPattern_AtTheHoursThatAreMistaken) {
  const struct {
    CivilTime time;
    const char *am_pm, *four_digits, *letter, *seconds_am_pm, *seconds24;
  } cases[] = {
      {At(0, 0, 0), "12:00 AM", "1200", "12:00:00 a", "12:00:00 AM", "00:00:00"},
      {At(0, 59, 59), "12:59 AM", "1259", "12:59:59 a", "12:59:59 AM", "00:59:59"},
      {At(1, 7, 33), "01:07 AM", "0107", "1:07:33 a", "01:07:33 AM", "01:07:33"},
      {At(11, 59, 59), "11:59 AM", "1159", "11:59:59 a", "11:59:59 AM", "11:59:59"},
      {At(12, 0, 0), "12:00 PM", "1200", "12:00:00 p", "12:00:00 PM", "12:00:00"},
      {At(13, 7, 33), "01:07 PM", "0107", "1:07:33 p", "01:07:33 PM", "13:07:33"},
      {At(23, 5, 9), "11:05 PM", "1105", "11:05:09 p", "11:05:09 PM", "23:05:09"},
  };
  for (const auto& expected : cases) {
    SCOPED_TRACE(expected.seconds24);
    EXPECT_EQ(HourMinuteAmPm(expected.time), expected.am_pm);
    EXPECT_EQ(FourDigitHourMinute(expected.time), expected.four_digits);
    EXPECT_EQ(HourMinuteSecondLetter(expected.time), expected.letter);
    EXPECT_EQ(HourMinuteSecondAmPm(expected.time), expected.seconds_am_pm);
    EXPECT_EQ(HourMinuteSecond24(expected.time), expected.seconds24);
  }
}

TEST(DateTexts, SingleDigits_AreFilledUpButInTheShortDate) {
  const CivilTime day = At(9, 0, 0);
  EXPECT_EQ(MonthDayYear(day), "03-07-01");
  EXPECT_EQ(MonthDayLongYear(day), "03-07-2001");
  EXPECT_EQ(ShortDate(day), "3/7/2001");
  EXPECT_EQ(DayName(day), "Wed");
}

TEST(CalendarDays, Differences_CrossMonthsLeapDaysAndTheCentury) {
  const struct {
    const char *from, *to;
    int days;
  } cases[] = {
      {"03-07-01", "03-08-01", 1},      {"12-31-01", "01-01-02", 1},  {"02-28-24", "03-01-24", 2},
      {"02-28-23", "03-01-23", 1},      {"02-29-00", "03-01-00", 1},  {"12-31-99", "01-01-00", 1},
      {"3-7-01", "03-07-2001", 0},      {"03/07/01", "03-04-01", -3}, {"01-01-26", "12-31-30", 1825},
      {"01-01-76", "01-01-77", -36159},
  };
  for (const auto& [from, to, days] : cases) {
    const auto first = CalendarDay(from, 2026);
    const auto second = CalendarDay(to, 2026);
    ASSERT_TRUE(first && second) << from << ' ' << to;
    EXPECT_EQ(*second - *first, days) << from << ' ' << to;
  }
}

TEST(CalendarDays, TextsThatAreNoDate_GiveNone) {
  for (const char* text : {"", "--", "03-07", "03-07-", "02-29-23", "13-01-01", "00-10-01", "04-31-01",
                           "aa-bb-cc", "03-07-0x", "03-07-12345", "today", "03-07-01-02"}) {
    EXPECT_FALSE(CalendarDay(text, 2026).has_value()) << text;
  }
}

TEST(CivilMilliseconds, ThereAndBack_KeepsEveryFieldAndKnowsTheWeekday) {
  const CivilTime leap{.year = 2024,
                       .month = 2,
                       .day = 29,
                       .hour = 23,
                       .minute = 59,
                       .second = 59,
                       .millisecond = 999,
                       .weekday = 4};
  EXPECT_EQ(CivilFromMilliseconds(MillisecondsFromCivil(leap)), leap);
  const CivilTime next = CivilFromMilliseconds(MillisecondsFromCivil(leap) + 1);
  EXPECT_EQ(MonthDayLongYear(next) + ' ' + DayName(next), "03-01-2024 Fri");
  const CivilTime before_epoch = CivilFromMilliseconds(-1);
  EXPECT_EQ(MonthDayLongYear(before_epoch) + ' ' + HourMinuteSecond24(before_epoch), "12-31-1969 23:59:59");
}

}  // namespace
}  // namespace quixair
