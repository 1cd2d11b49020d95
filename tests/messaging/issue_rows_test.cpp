#include <gtest/gtest.h>

#include "tests/support/recording_dispatch_context.h"

namespace {

FieldList issueRow(const std::string& symbol, const std::string& exchange, const std::string& asset,
                   const std::string& bidding = "Y") {
  return {{32767, "om_get_ofs_issues"},
          {63032, "I-" + symbol},
          {63001, exchange},
          {10100, symbol},
          {54730, asset},
          {54571, bidding}};
}

struct IssueCase {
  const char* name;
  FieldList row;
  bool addIssueRight;
  Lines events;
  Lines sent;
  std::vector<std::string> assetKeys;
};

class IssueRows : public testing::TestWithParam<IssueCase> {};

TEST_P(IssueRows, AddTheIssueAndAskForItsUnderlying) {
  RecordingDispatchContext context;
  context.addIssueRight = GetParam().addIssueRight;
  context.respond(GetParam().row);
  EXPECT_EQ(context.events, GetParam().events);
  EXPECT_EQ(context.channel.transcript, GetParam().sent);
  std::vector<std::string> keys;
  for (const auto& [key, asset] : context.store.assets) keys.push_back(key);
  EXPECT_EQ(keys, GetParam().assetKeys);
  for (const auto& [symbol, issue] : context.store.issues)
    EXPECT_EQ(issue->asset, keys.empty() ? nullptr : context.store.assets[keys[0]].get());
}

INSTANTIATE_TEST_SUITE_P(
    Rows, IssueRows,
    testing::Values(IssueCase{"nse_issue",
                              issueRow("ABC-RS", "nse_ipo", "ABC"),
                              false,
                              {"issue added ABC-RS"},
                              {"send 1 mrv_master 63001=\"nse_cm\" 10100=\"ABC\" 20003=\"6\" "
                               "20003=\"63050\" 32760=\"Asset LTP\""},
                              {"nse_cm|ABC"}},
                    IssueCase{"bse_issue",
                              issueRow("XYZ-Retail", "bse_ipo", "XYZ"),
                              false,
                              {"issue added XYZ-Retail"},
                              {"send 1 mrv_master 63001=\"bse_cm\" 10100=\"XYZ\" 20003=\"6\" "
                               "20003=\"63050\" 32760=\"Asset LTP\""},
                              {"bse_cm|XYZ"}},
                    IssueCase{"no_underlying",
                              issueRow("ABC-RS", "nse_ipo", ""),
                              false,
                              {"issue added ABC-RS"},
                              {},
                              {}},
                    IssueCase{"closed_issue_hidden_from_dealer",
                              issueRow("ABC-RS", "nse_ipo", "", "N"),
                              false,
                              {},
                              {},
                              {}},
                    IssueCase{"closed_issue_shown_to_administrator",
                              issueRow("ABC-RS", "nse_ipo", "", "N"),
                              true,
                              {"issue added ABC-RS"},
                              {},
                              {}}),
    [](const auto& info) { return info.param.name; });

TEST(IssueRows, AKnownSymbolChangesNothing) {
  RecordingDispatchContext context;
  context.respond(issueRow("ABC-RS", "nse_ipo", ""));
  FieldList again = issueRow("ABC-RS", "nse_ipo", "ABC");
  again.push_back({63022, "99"});
  context.respond(again);
  EXPECT_EQ(context.store.issueSymbols, (std::vector<std::string>{"ABC-RS"}));
  EXPECT_EQ(context.store.issues["ABC-RS"]->floorPrice, "");
  EXPECT_EQ(context.events.size(), 1u);
  EXPECT_TRUE(context.channel.transcript.empty());
}

TEST(IssueRows, CategoriesCollectTheirValuesAndSummariesKeepTheFirst) {
  RecordingDispatchContext context;
  context.respond({{32767, "om_get_ofs_category"}, {10610, "RS"}, {13034, "IND"}});
  context.respond({{32767, "om_get_ofs_category"}, {10610, "RS"}, {13034, "HUF"}});
  context.respond({{32767, "get_company_ofs_issue"},
                   {63032, "I1"},
                   {63005, "5"},
                   {55, "0"},
                   {55, "10"},
                   {10027, "2"}});
  context.respond({{32767, "get_company_ofs_issue"}, {63032, "I1"}, {63005, "9"}});
  EXPECT_EQ(context.store.categories["RS"], (std::vector<std::string>{"IND", "HUF"}));
  const sOFSIssueSummary& summary = *context.store.issuesById["I1"];
  EXPECT_EQ(summary.tickSize, 5);
  EXPECT_EQ(summary.minQuantity, 10);
  EXPECT_EQ(summary.lotSize, "2");
}

}  // namespace
