// The NOW modify/cancel layout: its reader and its checks against the orders the lines name.
#include "tests/basket/bulk_fixtures.h"

namespace {

using namespace bulk_test;

const Fields kGood = {"OFFLINE", "N1",   "ABC", "IS", "100", "101.00",
                      "CLI",     "ACC1", "PC1", "NO", "",    "M"};

TEST(BulkNowModTest, ReaderRefusals) {
  BidLine line;
  EXPECT_EQ(readNowModCxlLine("", line), "Invalid Format");
  EXPECT_EQ(readNowModCxlLine(",OFFLINE,N1,ABC,IS,100,101.00,CLI,ACC1,PC1,NO,,M", line),
            "Invalid Client type");
  EXPECT_EQ(readNowModCxlLine("xOFFLINE,ABC,IS,100,101.00,CLI,ACC1,PC1,NO,,M", line),
            "Invalid Format");
}

TEST(BulkNowModTest, EachStepRefusesWithItsText) {
  const BidLookups l = lookups();
  const std::pair<size_t, std::string> walkin[] = {{0, "WALKIN"}, {7, "WALKIN"}};
  const std::vector<Step> steps = {
      {{{1, ""}}, "NOW Order Number Is not Mentioned"},
      {{{1, "N9"}}, "Invalid order Number"},
      {{{2, ""}}, "Symbol Or Series Is not Mentioned"},
      {{{2, "abc"}}, "Symbol should be in Uppercase"},
      {{{3, "ES"}}, "Series mentioned is incorrect"},
      {{{1, "N2"}}, "Only Open Orders can be Modified or Cancelled"},
      {{{2, "XYZ"}}, "Invalid Symbol"},
      {{{0, "ONLINE"}}, "Invalid Client Type"},
      {{{11, "X"}}, "Indicator should be either M(Modify) or C(Cancel)"},
      {{{4, ""}}, "Quantity cannot be blank"},
      {{{4, "0"}}, "Invalid Quantity"},
      {{{5, ""}}, "Price cannot be blank"},
      {{{5, "0"}}, "Invalid Price"},
      {{{11, "C"}, {4, "200"}}, "Invalid Quantity for Cancellation"},
      {{{11, "C"}, {5, "102.00"}}, "Invalid Price for Cancellation"},
      {{{6, ""}}, "Category Not Mentioned"},
      {{{6, "PRO"}}, "Invalid Client Type and Category"},
      {{{7, "ACCOUNT1234"}}, "Client ID length cannot be more than 10"},
      {{{7, "acc1"}}, "Client ID should be in Uppercase"},
      {{{7, "AQ1"}}, "Client id cannot have Special Characters."},
      {{{7, "ACC2"}}, "Invalid Client ID"},
      {{{8, "P234567890123"}}, "Participant Code length cannot be more than 12"},
      {{{8, "pc1"}}, "CP code should be in Uppercase"},
      {{{8, "PQ1"}}, "Participant code cannot have Special Characters"},
      {{{8, "PC2"}}, "Invalid Participant code"},
      {{{9, "Y"}}, "Invalid Block Collateral"},
      {{{5, "MKT"}}, "Incorrect Cutoff Combination"},
      {{{1, "N3"}, {3, "RS"}}, "Invalid Participant Code for Series"},
      {{{1, "N4"}, {3, "RS"}, {8, "TM1"}}, "Invalid Block Collateral for Series"},
      {{{0, "PRO"}, {6, "PRO"}}, "Participant Code and Client ID mismatched"},
      {{{0, "PRO"}, {1, "N5"}, {6, "PRO"}, {7, "PC1"}, {9, "YES"}},
       "Invalid Block Collateral value for category"},
      {{{0, "PRO"}, {1, "N5"}, {6, "PRO"}, {7, "PC1"}, {10, "W1"}},
       "Invald Walkin Client code for Client type"},
      {{{10, "W1"}}, "Invald Walkin Client code for Client type"},
      {{{9, "YES"}}, "Participant Code and Block Collateral mismatched"},
      {{walkin[0]}, "Invalid Account ID for Client Type"},
      {{walkin[0], walkin[1], {10, "w1"}}, "Walkin Client code should be in Uppercase"},
      {{walkin[0], walkin[1], {10, "W2345678901"}},
       "Walkin Client code length cannot be more than 10"},
      {{walkin[0], walkin[1]}, "Invalid Walkin Client code for WALK IN client"},
      {{walkin[0], walkin[1], {10, "WQ1"}}, "Walkin Client code cannot have Special Characters"},
      {{walkin[0], walkin[1], {10, "TM1"}}, "Walkin Client code should not be TM code"},
      {{walkin[0], walkin[1], {10, "W1"}, {9, "YES"}},
       "Participant Code and Block Collateral mismatched"},
  };
  walk(BidFileKind::NowModCxl, kGood, steps, l.context("TM1"));
}

}  // namespace
