#include "issues/allotment_file.h"

#include <gtest/gtest.h>

#include <fstream>

#include "tests/support/csv_columns.h"
#include "tests/support/scratch_dir.h"

namespace {

// BSE: symbol 1, UCC 4, bid quantity 6, bid price 7, order number 8, allotted 9 and 10.
const char kBse[] = "XYZ,b2,b3,UCC1,b5,100,405,51,40,405.0,b11";
// NSE: symbol 3, order number 4, client 7, bid quantity 9, bid price 10, allotted 12 and 13.
const char kNse[] = "n1,n2,ABC,2001,n5,n6,C1,n8,100,105.0,n11,40,100,n14,n15";
constexpr char kEmpty[] = "Allotment Read Error: Line is Empty ";
constexpr char kNotCsv[] = "Allotment Read Error: Invalid Format: Not a CSV File ";

struct StepCase {
  const char* name;
  std::map<int, std::string> changes;
  const char* message;  // empty: accepted
};

void walk(AllotmentLayout layout, const std::vector<StepCase>& cases) {
  for (const StepCase& c : cases) {
    sOFSAllotmentRow row;
    const std::string line = withColumns(layout == AllotmentLayout::Bse ? kBse : kNse, c.changes);
    EXPECT_EQ(readAllotmentLine(line, layout, row), c.message) << c.name;
  }
}

// Each row fails at one step with the steps before it passing. A row with two faults pairs the
// last step of one column with the first step of the next, so swapping them changes its message.
TEST(AllotmentChecks, BseStepsInOrder) {
  walk(AllotmentLayout::Bse,
       {{"good", {}, ""},
        {"symbol empty", {{1, ""}}, "Symbol cannot be blank"},
        {"symbol a blank is not empty", {{1, " "}}, ""},
        {"order number empty", {{8, ""}}, "Order Number cannot be blank"},
        {"allotted qty empty", {{9, ""}}, "Allotment Qty cannot be blank"},
        {"allotted qty a blank", {{9, " "}}, "Allotment Qty cannot be blank"},
        {"allotted qty 0", {{9, "0"}}, "Allotment Qty cannot be zero"},
        {"allotted qty 00 is not zero", {{9, "00"}}, ""},
        {"allotted qty not digits", {{9, "-4"}}, "Invalid Allotment Quantity"},
        {"allotted price a blank", {{10, " "}}, "Allotment Price cannot be blank"},
        {"allotted price 0", {{10, "0"}}, "Allotment Price cannot be zero"},
        {"allotted price 0.00 is not 0", {{10, "0.00"}}, ""},
        {"ucc empty", {{4, ""}}, "UCC cannot be blank"},
        {"bid price a blank", {{7, " "}}, "Price cannot be blank"},
        {"bid price 0", {{7, "0"}}, "Price cannot be zero"},
        {"bid qty empty", {{6, ""}}, "Quantity cannot be blank"},
        {"bid qty 0", {{6, "0"}}, "Quantity cannot be zero"},
        {"bid qty not digits", {{6, "1e3"}}, "Invalid Quantity"},
        {"symbol, order", {{1, ""}, {8, ""}}, "Symbol cannot be blank"},
        {"order, qty", {{8, ""}, {9, ""}}, "Order Number cannot be blank"},
        {"qty, price", {{9, "x"}, {10, ""}}, "Invalid Allotment Quantity"},
        {"price, ucc", {{10, "0"}, {4, ""}}, "Allotment Price cannot be zero"},
        {"ucc, bid price", {{4, ""}, {7, " "}}, "UCC cannot be blank"},
        {"bid price, bid qty", {{7, "0"}, {6, ""}}, "Price cannot be zero"}});
}

TEST(AllotmentChecks, NseStepsInOrder) {
  walk(AllotmentLayout::Nse,
       {{"good", {}, ""},
        {"symbol empty", {{3, ""}}, "Symbol cannot be blank"},
        {"order no empty", {{4, ""}}, "Order no cannot be blank"},
        {"allotted qty a blank", {{12, " "}}, "Allotted Quantity cannot be blank"},
        {"allotted qty 0", {{12, "0"}}, "Allotted Quantity cannot be zero"},
        {"allotted qty not digits", {{12, "4.0"}}, "Invalid Allotted Quantity"},
        {"allotted price empty", {{13, ""}}, "Allotted Price cannot be blank"},
        {"allotted price 0", {{13, "0"}}, "Allotted Price cannot be zero"},
        {"client empty", {{7, ""}}, "Client cannot be blank"},
        {"bid price empty", {{10, ""}}, "Bid Price cannot be blank"},
        {"bid price 0", {{10, "0"}}, "Bid Price cannot be zero"},
        {"bid qty a blank", {{9, " "}}, "Bid Quantity cannot be blank"},
        {"bid qty 0", {{9, "0"}}, "Bid Quantity cannot be zero"},
        {"bid qty not digits", {{9, "10 "}}, "Invalid Bid Quantity"},
        {"symbol, order", {{3, ""}, {4, ""}}, "Symbol cannot be blank"},
        {"order, qty", {{4, ""}, {12, ""}}, "Order no cannot be blank"},
        {"qty, price", {{12, "4.0"}, {13, ""}}, "Invalid Allotted Quantity"},
        {"price, client", {{13, "0"}, {7, ""}}, "Allotted Price cannot be zero"},
        {"client, bid price", {{7, ""}, {10, ""}}, "Client cannot be blank"},
        {"bid price, bid qty", {{10, "0"}, {9, " "}}, "Bid Price cannot be zero"}});
}

TEST(AllotmentFile, CountsEveryLineButTheHeaderAndNumbersThemAsAnEditorDoes) {
  using enum AllotmentLayout;
  const std::string bseHeader = "SYMBOL,NAME\n", nseHeader = "Member type,Member code\n";
  const std::string notCsv = std::string(" ") + kNotCsv;
  const struct {
    const char* name;
    AllotmentLayout layout;
    std::string content, read;  // read: "lines/accepted", then each refusal as "; number message"
  } cases[] = {
      {"empty file", Bse, "", "0/0"},
      {"header only", Bse, bseHeader, "0/0"},
      {"the other layout's header is a line", Bse, nseHeader,
       "1/0; 1 Order Number cannot be blank"},
      // The long line's first 1,023 bytes are a line of their own; the rest, with no comma,
      // is refused under the same number.
      {"every kind of line", Bse,
       bseHeader + withColumns(kBse, {}) + withColumns(kBse, {{1, ""}}) + "\n" +
           std::string(1, '\0') + withColumns(kBse, {}) +
           withColumns(kBse, {{11, std::string(1100, 'x')}}) + "no comma\n" +
           withColumns(kBse, {{8, ""}}, ""),
       "8/2; 3 Symbol cannot be blank; 4" + notCsv + "; 5 " + kEmpty + "; 6" + notCsv + "; 7" +
           notCsv + "; 8 Order Number cannot be blank"},
      {"only the first line can be the header", Nse,
       nseHeader + withColumns(kNse, {}) + nseHeader + "n1,n2,ABC,,n5\n",
       "3/1; 3 Symbol cannot be blank; 4 Order no cannot be blank"},
  };
  ScratchDir dir;
  for (const auto& c : cases) {
    std::ofstream(dir.file("a.csv"), std::ios::binary) << c.content;
    const AllotmentLoad load = loadAllotmentFile(dir.file("a.csv"), c.layout);
    std::string read = std::to_string(load.lines) + "/" + std::to_string(load.rows.size());
    for (const AllotmentRefusal& r : load.refusals)
      read += "; " + std::to_string(r.line) + " " + r.message;
    EXPECT_TRUE(load.opened) << c.name;
    EXPECT_EQ(read, c.read) << c.name;
  }
  EXPECT_FALSE(loadAllotmentFile(dir.path(), Nse).opened);
  EXPECT_FALSE(loadAllotmentFile(dir.file("missing.csv"), Nse).opened);
}

}  // namespace
