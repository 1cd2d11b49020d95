// The terminal's own layout: its reader and its check sequence, one failing line per step.
#include "tests/basket/bulk_fixtures.h"

namespace {

using namespace bulk_test;

const Fields kGood = {"NSEIPO", "CLI",         "BSE1", "",       "102", "100",
                      "101.00", "100% Margin", "N",    "Retail", ""};

TEST(BulkVtTest, ReaderRefusalsAndFields) {
  BidLine line;
  EXPECT_EQ(readVtLine("", line), "Basket Read Error: Line is Empty ");
  EXPECT_EQ(readVtLine("NSEIPO CLI\n", line), "Basket Read Error: Invalid Format: Not a CSV File ");
  ASSERT_EQ(readVtLine("NSEIPO,PRO,A,B,1,2,3,No Margin,N,Retail,RI,x,y,z,w", line), "");
  EXPECT_EQ(line[BidColumn::Exchange], "NSEIPO");
  EXPECT_EQ(line[BidColumn::ProCli], "F");
  EXPECT_EQ(line[BidColumn::Category], "RI");
  const sOFSPlaceOrder order = placeOrderOf(line, {});
  EXPECT_EQ(order.proCli + order.margin + order.clientType, "PRONOPRO");
}

TEST(BulkVtTest, EachStepRefusesWithItsText) {
  const BidLookups l = lookups();
  const std::vector<Step> steps = {
      {{{0, "NSE"}}, "InValid Exchange"},
      {{{1, "X"}}, "InValid Pro/Cli"},
      {{{2, ""}}, "InValid Cient ID"},
      {{{2, "NOBODY"}}, "InValid Cient ID"},
      {{{3, "PC1"}}, "InValid Pcode"},
      {{{7, "Full"}}, "InValid Margin"},
      {{{8, "y"}}, "InValid Cut off"},
      {{{9, ""}}, "Order type cannot be Blank"},
      {{{9, "retail"}}, "InValid order type"},
      {{{2, "AQ1"}, {3, "PC1"}}, "InValid ClientID"},
      {{{2, "ACC1"}, {3, "PC1"}}, "Client WIth Pcode Not Allowed to Place Retail Orders"},
      {{{10, "RI"}}, "Client Category Should not be there for NSEIPO"},
      {{{7, "No Margin"}}, "Margin Should be 100% for Retail orders"},
      {{{9, "Institutional"}, {7, "No Margin"}},
       "Margin Should be 100% for Institutional orders if no Pcode"},
      {{{0, "BSEIPO"}, {8, "Y"}},
       "Client Category should be RIC if Cutoff is Y and Series is Retail"},
      {{{0, "BSEIPO"}}, "Client Category should be RI if Cutoff is N and Series is Retail"},
      {{{0, "BSEIPO"}, {9, "Employee"}}, "Client Category should be EMP if Series is Employee"},
      {{{0, "BSEIPO"}, {9, "Non-institutional"}},
       "Client Category should be NII if OrderType is Non-Institutional"},
      {{{0, "BSEIPO"}, {9, "Institutional"}},
       "Client Category should be IC,MF,or OTHS if OrderType is Institutional"},
      {{{2, "ACC1"}, {3, "PC1"}, {9, "Non-institutional"}},
       "Client WIth Pcode Not Allowed to Place Non-institutional Orders"},
      {{{9, "Employee"}, {7, "No Margin"}}, "Margin Should be 100% for Employee orders"},
      {{{4, "999"}}, "Issue Id not found"},
      {{{5, ""}}, "Quantity cannot be blank"},
      {{{5, "0"}}, "Quantity cannot be zero"},
      {{{5, "1x"}}, "Invalid Quantity"},
      {{{6, ""}}, "Price cannot be blank"},
      {{{6, "1a"}}, "Invalid Price"},
      {{{6, "101.001"}}, "Incorrect Paise"},
      {{{9, "Employee"}}, "Price should be MKT for Employee"},
      {{{9, "Employee"}, {6, "MKT"}}, "Cut off should be Y for Employee"},
      {{{9, "Non-institutional"}, {6, "MKT"}}, "Price should not be MKT for Non-institutional"},
      {{{9, "Non-institutional"}, {8, "Y"}}, "Cut off should not be Y for Non-institutional"},
      {{{8, "Y"}}, "Price should be MKT When Cutoff is Y"},
      {{{6, "MKT"}}, "Price should not be MKT When Cutoff is N"},
      {{{4, "103"}, {6, "MKT"}, {8, "Y"}},
       "Cut off cannot be Y Since Cut off is not enabled for this Issue"},
      {{{5, "10"}}, "Order minimum Quantity is 20"},
      {{{5, "105"}}, "Quantity should be a multiple of Lot which is 10 for this security"},
      {{{5, "5010"}}, "Quantity should be lesser than 5000 (Issue Size) for this security"},
      {{{6, "121"}}, "Price is beyond the Ceiling Price"},
      {{{5, "2000"}, {6, "110"}}, "Amount cannot be greater than 200000 for RS series orders"},
      {{{5, "20"}, {9, "Non-institutional"}}, "Amount Should Exceed 10000 for IS series orders"},
  };
  walk(BidFileKind::Vt, kGood, steps, l.context("TM1"));
  BidContext otherList = l.context("TM1");
  otherList.listIssueId = "101";
  EXPECT_EQ(outcome(BidFileKind::Vt, kGood, otherList), "Issue Id is Different");
}

}  // namespace
