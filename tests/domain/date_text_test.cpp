#include <gtest/gtest.h>

#include <ctime>
#include <string>

#include "domain/date_text.h"
#include "tests/support/local_time.h"

namespace {

// 5 Jan 2024 09:07:03 in the local zone, so that the texts do not depend on the zone.
int32_t fifthOfJanuary() {
  return static_cast<int32_t>(localTime(5, 1, 2024, 9 * 3600 + 7 * 60 + 3));
}

TEST(DateText, EveryStyle) {
  const char* expected[] = {"05Jan2024", "05JAN2024",  "05",         "05Jan",       "05JAN",
                            "01/05/24",  "05-01-2024", "05/01/2024", "05/Jan/2024", "05-Jan-2024",
                            ""};
  for (int style = 0; style <= 10; ++style) {
    EXPECT_EQ(dateText(fifthOfJanuary(), style), expected[style]) << style;
  }
  EXPECT_EQ(dateText(fifthOfJanuary(), -1), "");
}

TEST(DateText, BufferIsClearedAndCut) {
  char buffer[16] = "xxxxxxxxxxxxxxx";
  EXPECT_EQ(formatDateText(buffer, sizeof buffer, fifthOfJanuary(), 11), 1);
  EXPECT_STREQ(buffer, "");
  EXPECT_EQ(formatDateText(buffer, 6, fifthOfJanuary(), 9), 1);
  EXPECT_STREQ(buffer, "05-Ja");
}

TEST(TimeText, DateAndTimeOrNothingBelowOne) {
  EXPECT_EQ(timeText(fifthOfJanuary()), "05Jan2024 09:07:03");
  EXPECT_EQ(timeText(0), "");
  char buffer[50] = "kept";
  EXPECT_EQ(formatTimeText(-5, buffer, sizeof buffer), 0);
  EXPECT_STREQ(buffer, "");
  EXPECT_EQ(formatTimeText(1, buffer, sizeof buffer), 1);
}

}  // namespace
