// What every kind makes of text that is no bid file at all: a refusal, never a crash.
#include "tests/basket/bulk_fixtures.h"

namespace {

using namespace bulk_test;
using namespace std::string_literals;

TEST(BulkReaderTest, HostileTextIsRefusedByEveryKind) {
  const std::string huge(10'000'000, 'A'), commas(40, ','), nul = "x\0,"s + commas;
  const std::string nonAscii = "\xC3\xA9" + commas + "\r\n";
  const BidFileKind kinds[] = {BidFileKind::Neat, BidFileKind::Now, BidFileKind::NowModCxl,
                               BidFileKind::Vt};
  const struct {
    const char* name;
    const std::string& text;
    std::vector<std::string> expected;  // by kind, as listed above
  } cases[] = {
      {"10 MB without a comma",
       huge,
       {"Invalid Format", "Invalid Format", "Invalid Format",
        "Basket Read Error: Invalid Format: Not a CSV File "}},
      {"only commas",
       commas,
       {"Invalid Book Type", "Invalid Client Type", "Invalid Client type", "InValid Exchange"}},
      {"NUL", nul, {"Invalid Format", "Invalid Format", "Invalid Format", "InValid Exchange"}},
      {"non-ASCII, CR LF",
       nonAscii,
       {"Invalid Format", "Invalid Format", "Invalid Format", "InValid Exchange"}},
  };
  for (const auto& c : cases) {
    for (size_t k = 0; k < 4; ++k) {
      BidLine line;
      std::string message = readBidLine(kinds[k], c.text, line);
      if (message.empty()) message = checkBidLine(line, {});
      EXPECT_EQ(message, c.expected[k]) << c.name << ", kind " << k + 1;
    }
  }
}

TEST(BulkReaderTest, LastFieldsOfALineWithoutLineFeedOrWithCarriageReturn) {
  BidLine line;
  ASSERT_EQ(readNowLine("xOFFLINE,ABC,IS,1,2,CLI,A,P,NO,W,Name\r\n", line), "");
  EXPECT_EQ(line[BidColumn::WalkinName], "Name");
  EXPECT_EQ(line[BidColumn::Category], "");
  // A carriage return ends its field, and the fields after it are empty.
  ASSERT_EQ(readNeatLine("x01,01\r,ABC,IS,1,2,CLI,A,P,01", line), "");
  EXPECT_EQ(line[BidColumn::BuySell], "01");
  EXPECT_EQ(line[BidColumn::Symbol], "");
  EXPECT_EQ(checkNeatLine(line, {}), "Symbol Or Series Is not Mentioned");
}

TEST(BulkReaderTest, AcceptedLinesBecomeTheOrdersPlaced) {
  const BidLookups l = lookups();
  const BidContext c = l.context("TM1");
  const struct {
    BidFileKind kind;
    const char* text;
    const char* expected;  // client type, client id, margin, price type, symbol, issue id
  } cases[] = {
      {BidFileKind::Neat, "x01,01,ABC,IS,100,101.00,CLI,ACC1,PC1,02\n",
       "OFFLINE ACC1-TM1 NO L ABC-IS 101"},
      {BidFileKind::Now, "xPRO,ABC,IS,100,MKT,PRO,PC1,PC1,NO,,\n", "PRO PC1 NO MKT ABC-IS 101"},
      {BidFileKind::NowModCxl, "xOFFLINE,N1,ABC,RS,100,101.00,CLI,A-B,PC1,YES,,M\n",
       "OFFLINE A-B YES L ABC-RS 102"},
      {BidFileKind::Vt, "NSEIPO,CLI,BSE1,,102,100,101.00,100% Margin,N,Retail,\n",
       "OFFLINE BSE1-TM1 YES L ABC-RS 102"},
  };
  for (const auto& t : cases) {
    BidLine line;
    ASSERT_EQ(readBidLine(t.kind, t.text, line), "") << t.text;
    const sOFSPlaceOrder o = placeOrderOf(line, c);
    EXPECT_EQ(o.clientType + " " + o.clientId + " " + o.margin + " " + o.priceType + " " +
                  o.symbol + " " + o.issueId,
              t.expected)
        << t.text;
    EXPECT_EQ(o.side, "B");
  }
}

}  // namespace
