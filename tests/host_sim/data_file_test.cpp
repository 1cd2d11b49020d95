#include <gtest/gtest.h>

#include <sstream>

#include "host/sim/data_file.h"

namespace simtest {
namespace {

constexpr const char* kIssue =
    "issue id=1 exchange=nse_ipo symbol=ABC-RS open=-1 close=+1 company=\"ABC Ltd\"\n";

TEST(DataFile, RefusesABadLineNamingItAndTheProblem) {
  const std::string issue = kIssue;
  const struct {
    std::string text, error;
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

}  // namespace
}  // namespace simtest
