// The NOW bid layout: its reader's refusals and its check sequence, one failing line per step.
#include "tests/basket/bulk_fixtures.h"

namespace {

using namespace bulk_test;

const Fields kGood = {"OFFLINE", "ABC", "IS", "100", "101.00", "CLI", "ACC1", "PC1", "NO", "", ""};

TEST(BulkNowTest, ReaderRefusals) {
  BidLine line;
  EXPECT_EQ(readNowLine("\n", line), "Invalid Format");
  EXPECT_EQ(readNowLine(",OFFLINE,ABC,IS,100,101.00,CLI,ACC1,PC1,NO,,\n", line),
            "Invalid Client Type");
  EXPECT_EQ(readNowLine("xOFFLINE,ABC,IS,100,101.00,CLI,ACC1,PC1,NO,,,\n", line), "Invalid Format");
}

TEST(BulkNowTest, EachStepRefusesWithItsText) {
  const BidLookups l = lookups();
  const std::pair<size_t, std::string> pro[] = {{0, "PRO"}, {5, "PRO"}, {6, "PC1"}};
  const std::pair<size_t, std::string> walkin[] = {{0, "WALKIN"}, {6, "WALKIN"}, {10, "Name"}};
  const std::vector<Step> steps = {
      {{{1, ""}}, "Symbol /Series not mentioned"},
      {{{2, "  "}}, "Symbol /Series not mentioned"},
      {{{1, "Abc"}}, "Symbol should be in Uppercase "},
      {{{2, "is"}}, "Series should be in Uppercase "},
      {{{2, "ES"}}, "Series should be IS/ RS"},
      {{{0, " "}}, "Invalid Client type"},
      {{{0, "ONLINE"}}, "Invalid Client type"},
      {{{5, ""}}, "Invalid Client category"},
      {{{5, "PRO"}}, "Invalid Client Type and Category"},
      {{{6, "acc1"}}, "Client Id to be in uppercase"},
      {{{8, "Y"}}, "Invalid Block Collateral"},
      {{{7, "P234567890123"}}, "Participant Code length cannot be more than 12 "},
      {{{3, " "}}, "Quantity cannot be blank"},
      {{{3, "0"}}, "Quantity cannot be zero"},
      {{{4, ""}}, "Price cannot be blank"},
      {{{4, "0"}}, "Invalid Price"},
      {{{2, "RS"}}, "Invalid Block Collateral for Series"},
      {{{4, "MKT"}}, "Incorrect Cutoff Combination"},
      {{{2, "RS"}, {8, "YES"}}, "Invalid Participant Code for Series"},
      {{pro[0], pro[1]}, "Participant Code and Client ID mismatched"},
      {{pro[0], pro[1], pro[2], {8, "YES"}}, "Invalid Block Collateral value for category"},
      {{pro[0], pro[1], pro[2], {9, "W1"}}, "Invald Walkin Client code for Client type"},
      {{pro[0], pro[1], pro[2], {10, "N"}}, "Invald Walkin Client Name for Client type"},
      {{{6, ""}}, "Client Id Not Mentioned"},
      {{{6, "ACCOUNT1234"}}, " Client ID length cannot be more than 10"},
      {{{6, "ACC9"}}, "Invalid Account ID"},
      {{{9, "W1"}}, "Invalid Walkin Client code for OFFLINE client"},
      {{{10, "N"}}, "Invalid Walkin Client Name for Client type"},
      {{{6, "TM1"}}, "Walkin Client code should not be TM code"},
      {{{8, "YES"}}, "Participant Code and Block Collateral mismatched"},
      {{{7, "pc1"}}, "CP code should be in Uppercase "},
      {{{6, "AQ1"}}, "Client id cannot have Special Characters."},
      {{walkin[0]}, "Invalid Account ID for Client Type"},
      {{walkin[0], walkin[1], {9, "w1"}}, "Walkin Client code should be in Uppercase"},
      {{walkin[0], walkin[1], {9, "W1"}}, "Walkin Client Name cannot be blank"},
      {{walkin[0], walkin[1], walkin[2], {9, "W2345678901"}},
       "Walkin Client code length cannot be more than 10 "},
      {{walkin[0], walkin[1], walkin[2]}, "Walkin Client code cannot be blank"},
      {{walkin[0], walkin[1], walkin[2], {9, "TM1"}}, "Walkin Client code should not be TM code"},
      {{walkin[0], walkin[1], walkin[2], {9, "W1"}, {8, "YES"}},
       "Participant Code and Block Collateral mismatched"},
      {{walkin[0], walkin[1], walkin[2], {9, "W1"}, {7, "pc1"}}, "CP code should be in Uppercase "},
      {{{4, "1a"}}, "Invalid Price"},
      {{{4, "101.03"}},
       "Price should be multiple of Tick Size which is 0.05 rupees for this security"},
      {{walkin[0], walkin[1], walkin[2], {9, "WQ1"}},
       "Walking client code cannot have Special Characters."},
      {{{7, "PQ1"}}, "Participant Code cannot have Special Characters."},
      {{{3, "1e2"}}, "Invalid Qty"},
      {{{7, "PC9"}}, "Invalid Participant code"},
      {{{1, "XYZ"}}, "Issue Id not found"},
      {{{3, "105"}}, "Qty should be a multiple of Lot which is 10 for this security"},
  };
  walk(BidFileKind::Now, kGood, steps, l.context("TM1"));
}

}  // namespace
