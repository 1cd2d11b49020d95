#include <gtest/gtest.h>

#include "host/sim/sim_dates.h"
#include "host/sim/sim_numbers.h"

namespace simtest {
namespace {

struct FixedCase {
  const char* name;
  const char* text;
  int decimals;
  std::optional<int64_t> units;
  friend void PrintTo(const FixedCase& c, std::ostream* os) { *os << c.name; }
};

class FixedText : public testing::TestWithParam<FixedCase> {};

TEST_P(FixedText, ReadsExactlyOrRefuses) {
  EXPECT_EQ(sim::parseFixed(GetParam().text, GetParam().decimals), GetParam().units);
}

INSTANTIATE_TEST_SUITE_P(Numbers, FixedText,
                         testing::Values(FixedCase{"whole_rupees", "101", 2, 10100},
                                         FixedCase{"one_decimal", "101.5", 2, 10150},
                                         FixedCase{"paise", "0.05", 2, 5},
                                         FixedCase{"four_decimals", "19.0125", 4, 190125},
                                         FixedCase{"too_fine", "1.005", 2, std::nullopt},
                                         FixedCase{"dot_without_fraction", "1.", 2, std::nullopt},
                                         FixedCase{"no_whole_part", ".5", 2, std::nullopt},
                                         FixedCase{"negative", "-1", 2, std::nullopt},
                                         FixedCase{"blank_inside", "1 0", 2, std::nullopt}),
                         [](const auto& info) { return std::string(info.param.name); });

struct DateCase {
  const char* name;
  const char* text;
  const char* resolved;
  friend void PrintTo(const DateCase& c, std::ostream* os) { *os << c.name; }
};

class RelativeDate : public testing::TestWithParam<DateCase> {};

// Today is 28/02/2028, the day before a leap day.
TEST_P(RelativeDate, CountsDaysFromTodayOrStands) {
  const int64_t today = *sim::parseDayText("28/02/2028");
  EXPECT_EQ(sim::resolveDate(GetParam().text, today), GetParam().resolved);
}

INSTANTIATE_TEST_SUITE_P(Dates, RelativeDate,
                         testing::Values(DateCase{"today", "0", "28/02/2028"},
                                         DateCase{"leap_day", "+1", "29/02/2028"},
                                         DateCase{"into_march", "+2", "01/03/2028"},
                                         DateCase{"back_a_year", "-365", "28/02/2027"},
                                         DateCase{"fixed_date", "01/12/2026", "01/12/2026"},
                                         DateCase{"words_stand", "soon", "soon"}),
                         [](const auto& info) { return std::string(info.param.name); });

class NoDay : public testing::TestWithParam<const char*> {};

TEST_P(NoDay, IsRefused) {
  EXPECT_FALSE(sim::parseDayText(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Dates, NoDay,
                         testing::Values("31/04/2026", "29/02/2027", "1/1/26", "00/01/2026",
                                         "21-11-2026", ""));

}  // namespace
}  // namespace simtest
