// The NEAT layout: its reader's refusals and its check sequence, one failing line per step.
#include "tests/basket/bulk_fixtures.h"

namespace {

using namespace bulk_test;

const Fields kGood = {"01", "01", "ABC", "IS", "100", "101.00", "CLI", "ACC1", "PC1", "02"};

TEST(BulkNeatTest, ReaderRefusals) {
  BidLine line;
  EXPECT_EQ(readNeatLine("", line), "Invalid Format");
  EXPECT_EQ(readNeatLine("\r\n", line), "Invalid Format");
  EXPECT_EQ(readNeatLine(",01,01,ABC,IS,100,101.00,CLI,ACC1,PC1,02\n", line), "Invalid Book Type");
  EXPECT_EQ(readNeatLine("x01,01,ABC,IS,100,101.00,CLI,ACC1,PC1\n", line), "Invalid Format");
  EXPECT_EQ(readNeatLine("x01,01,ABC,IS,100,101.00,CLI,ACC1,PC1,02,\n", line), "Invalid Format");
  // Without the leading character the book type loses its first digit.
  ASSERT_EQ(readNeatLine("01,01,ABC,IS,100,101.00,CLI,ACC1,PC1,02", line), "");
  EXPECT_EQ(line[BidColumn::BookType], "1");
  EXPECT_EQ(checkNeatLine(line, {}), "Invalid Book Type");
}

TEST(BulkNeatTest, EachStepRefusesWithItsText) {
  const BidLookups l = lookups();
  const std::vector<Step> steps = {
      {{{3, ""}}, "Symbol Or Series Is not Mentioned"},
      {{{2, " "}}, "Symbol Or Series Is not Mentioned"},
      {{{2, "AbC"}}, "Symbol should be in Uppercase "},
      {{{3, "is"}}, "Series should be in Uppercase "},
      {{{3, "  "}}, "Series cannot be blank"},
      {{{3, "ES"}}, "Series mentioned is incorrect"},
      {{{6, ""}}, "Category Not Mentioned"},
      {{{0, " "}}, "Invalid Book Type"},
      {{{0, "02"}}, "Invalid Book Type"},
      {{{1, "02"}}, "Invalid Buy/Sell Indicator"},
      {{{7, ""}}, "Invalid Account Number"},
      {{{7, "acc1"}}, "Account Number should be in Uppercase"},
      {{{6, "CLIENT"}}, "Invalid Client Type"},
      {{{8, "P234567890123"}}, "Participant Code length cannot be more than 12"},
      {{{8, "pc1"}}, "Participant code to be in uppercase"},
      {{{4, ""}}, "Quantity cannot be blank"},
      {{{4, "0"}}, "Invalid Quantity"},
      {{{4, " "}}, "Quantity cannot be blank"},
      {{{5, ""}}, "Price cannot be blank"},
      {{{5, "0"}}, "Invalid Price"},
      {{{3, "RS"}}, "Invalid Participant Code for Series"},
      {{{5, "MKT"}}, "Incorrect Cutoff Combination"},
      {{{3, "RS"}, {8, "TM1"}}, "Invalid Block Collateral for Series"},
      {{{6, "PRO"}}, "Participant Code and Account Number mismatched"},
      {{{6, "PRO"}, {7, "PC1"}}, "Invalid Block Collateral value for category"},
      {{{6, "PRO"}, {7, "PC1"}, {9, "03"}}, "Invalid Block Collateral"},
      {{{8, ""}}, "Participant Code cannot be blank for Client type"},
      {{{7, "ACCOUNT1234"}}, "Walkin Client code length cannot be more than 10 "},
      {{{9, "03"}}, "Invalid Block Collateral"},
      {{{8, "TM1"}}, "Participant Code and Block Collateral mismatched"},
      {{{7, "TM1"}}, "Account Number should not be TM code"},
      {{{8, "PQ1"}}, " Participant code cannot have special charecters."},
      {{{7, "AC-1"}}, "Account Number cannot have special characters."},
      {{{4, "1e2"}}, "Invalid Qty"},
      {{{5, "1a"}}, "Invalid Price"},
      {{{5, "12345678"}}, "cannot have more than 7 digits in rupees part"},
      {{{5, "101.001"}}, "Incorrect Paise"},
      {{{5, "101.03"}},
       "Price should be multiple of Tick Size which is 0.05 rupees for this security"},
      {{{2, "XYZ"}}, "Issue Id not found"},
      {{{4, "105"}}, "Qty should be a multiple of Lot which is 10 for this security"},
      {{{5, "121"}}, "Price out of range"},
      {{{4, "5010"}}, "Qty should be lesser than 5000 (Issue Size) for this security"},
      {{{5, "99"}}, "Price cannot be less than Floor Price"},
  };
  walk(BidFileKind::Neat, kGood, steps, l.context("TM1"));
}

TEST(BulkNeatTest, ChecksNeedingLookupsAreSkippedWithoutThem) {
  Fields unknownIssue = kGood;
  unknownIssue[2] = "XYZ";
  EXPECT_EQ(outcome(BidFileKind::Neat, unknownIssue, {}), "");
}

}  // namespace
