#include <gtest/gtest.h>

#include "host/sim/sim_dates.h"
#include "host/sim/sim_numbers.h"

namespace simtest {
namespace {

TEST(Numbers, FixedTextIsReadExactlyOrRefused) {
  const struct {
    const char* text;
    int decimals;
    std::optional<int64_t> units;
  } cases[] = {{"101", 2, 10100},       {"101.5", 2, 10150},        {"0.05", 2, 5},
               {"19.0125", 4, 190125},  {"1.005", 2, std::nullopt}, {"1.", 2, std::nullopt},
               {".5", 2, std::nullopt}, {"-1", 2, std::nullopt},    {"1 0", 2, std::nullopt}};
  for (const auto& c : cases) EXPECT_EQ(sim::parseFixed(c.text, c.decimals), c.units) << c.text;
}

// Today is 28/02/2028, the day before a leap day; words and fixed dates stand as written.
TEST(Dates, RelativeDatesCountDaysFromToday) {
  const int64_t today = *sim::parseDayText("28/02/2028");
  const std::pair<const char*, const char*> cases[] = {
      {"0", "28/02/2028"},    {"+1", "29/02/2028"},         {"+2", "01/03/2028"},
      {"-365", "28/02/2027"}, {"01/12/2026", "01/12/2026"}, {"soon", "soon"}};
  for (const auto& [text, resolved] : cases)
    EXPECT_EQ(sim::resolveDate(text, today), resolved) << text;
}

TEST(Dates, NoSuchDayIsRefused) {
  for (const char* text : {"31/04/2026", "29/02/2027", "1/1/26", "00/01/2026", "21-11-2026", ""})
    EXPECT_FALSE(sim::parseDayText(text)) << text;
}

}  // namespace
}  // namespace simtest
