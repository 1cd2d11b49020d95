#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <sstream>

#include "host/sim/bid_checks.h"
#include "host/sim/data_file.h"
#include "host/sim/sim_dates.h"

namespace simtest {
namespace {

constexpr const char* kIssue =
    "issue id=1 exchange=nse_ipo symbol=ABC-RS open=-1 close=+1 company=\"ABC Ltd\"\n";

TEST(DataFile, RefusesABadLineNamingItAndTheProblem) {
  const std::string issue = kIssue;
  const struct {
    std::string text;
    const char* error;
  } cases[] = {{"account id=A1 name=\"Asha", "line 1: a quote is not closed"},
               {"# comment\n\nbroker id=1", "line 3: unknown record kind broker"},
               {"account A1", "line 1: \"A1\" is not key=value"},
               {"issue id=1 exchange=nse_ipo symbol=S open=0", "line 1: issue needs field 79"},
               {"issue id=1 exchange=nse_cm symbol=S open=0 close=0",
                "line 1: issue exchange must be nse_ipo or bse_ipo"},
               {"issue id=1 exchange=nse_ipo symbol=S open=today close=0",
                "line 1: issue dates are days from today (+3, -2, 0) or DD/MM/YYYY"},
               {issue + "issue id=1 exchange=bse_ipo symbol=X open=0 close=0",
                "line 2: issue 1 is there twice"},
               {issue + "issue id=2 exchange=nse_ipo symbol=ABC-RS open=0 close=0",
                "line 2: symbol ABC-RS is there twice"},
               {"issue id=1 exchange=nse_ipo symbol=S open=0 close=0 tik=1",
                "line 1: unknown key tik for issue"},
               {"account id=A1\naccount id=A1", "line 2: account A1 is there twice"},
               {"asset exchange=nse_cm symbol=ABC ltp=1.005",
                "line 1: asset ltp must be a price with at most 2 decimals"},
               {"order no=1 issue=1 account=A1 qty=1 price=1",
                "line 1: order names issue 1, which no earlier line gives"},
               {issue + "order no=1 issue=1 account=A1 walkin=W1 qty=1 price=1",
                "line 2: order needs account= or walkin="},
               {issue + "order no=1 issue=1 account=A1 qty=1 price=cheap",
                "line 2: order price is rupees (101.50) or MKT"}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.text);
    std::istringstream in(c.text);
    std::string error;
    EXPECT_FALSE(sim::readExchangeData(in, error));
    EXPECT_EQ(error, c.error);
  }
}

TEST(DataFile, QuotedValuesCommentsAndFieldsByNumber) {
  std::istringstream in(std::string(kIssue) +
                        "issue id=2 exchange=bse_ipo symbol=X open=1/12/2026 close=+0 "
                        "61002=\"a \\\"b\\\"\"  # the rest is a comment=1\n");
  std::string error;
  const auto data = sim::readExchangeData(in, error);
  ASSERT_TRUE(data) << error;
  ASSERT_EQ(data->issues.size(), 2u);
  EXPECT_EQ(data->issues[0].get(49033), "ABC Ltd");
  EXPECT_EQ(data->issues[1].get(61002), "a \"b\"");
  EXPECT_EQ(data->issues[1].get(49165), "1/12/2026");
}

// The shipped file must load, and hold what the terminal's tabs and screens need to show.
TEST(ShippedDataFile, LoadsWithIssuesOnEveryTabOfBothExchanges) {
  std::string error;
  const auto data = sim::readExchangeFile(SHIPPED_EXCHANGE_FILE, error);
  ASSERT_TRUE(data) << error;
  const int64_t today = *sim::parseDayText("21/11/2026");
  std::set<std::string> seen;
  for (const sim::Issue& issue : data->issues) {
    const int64_t open = *sim::parseDayText(sim::resolveDate(issue.get(49165), today));
    const int64_t close = *sim::parseDayText(sim::resolveDate(issue.get(79), today));
    const char* tab = open > today ? "forthcoming" : close >= today ? "current" : "past";
    seen.insert(issue.exchange() + " " + tab);
    if (std::string(tab) == "current" && issue.get(54571) != "N") {
      EXPECT_FALSE(sim::biddingRefusal(issue, today)) << issue.id();
    }
    const std::string cash = issue.exchange() == "bse_ipo" ? "bse_cm" : "nse_cm";
    EXPECT_TRUE(std::any_of(
        data->assets.begin(), data->assets.end(),
        [&](const sim::Asset& a) { return a.exchange == cash && a.symbol == issue.get(54730); }))
        << "no price for the asset of issue " << issue.id();
  }
  EXPECT_EQ(seen,
            (std::set<std::string>{"bse_ipo current", "bse_ipo forthcoming", "bse_ipo past",
                                   "nse_ipo current", "nse_ipo forthcoming", "nse_ipo past"}));
  EXPECT_TRUE(std::any_of(data->accounts.begin(), data->accounts.end(),
                          [](const sim::Account& a) { return a.pCode.empty(); }));
  EXPECT_TRUE(std::any_of(data->accounts.begin(), data->accounts.end(),
                          [](const sim::Account& a) { return !a.pCode.empty(); }));
  EXPECT_FALSE(data->categories.empty());
}

}  // namespace
}  // namespace simtest
