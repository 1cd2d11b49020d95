#include "tools/ofs_check.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <sstream>

#include "tests/support/scratch_dir.h"

namespace {

int run(std::vector<std::string> args, std::string& out, std::string& err) {
  std::vector<const char*> argv{"ofs-check"};
  for (const std::string& a : args) argv.push_back(a.c_str());
  std::ostringstream o, e;
  const int status = runOfsCheck(int(argv.size()), argv.data(), o, e);
  out = o.str();
  err = e.str();
  return status;
}

struct Case {
  std::vector<std::string> args;
  int status;
  std::string out, err;  // err: all of it when it ends a line, else its start
};

void expectRuns(const std::vector<Case>& cases) {
  for (const Case& c : cases) {
    std::string out, err;
    const std::string name = c.args.empty() ? "(none)" : c.args.back();
    EXPECT_EQ(run(c.args, out, err), c.status) << name;
    EXPECT_EQ(out, c.out) << name;
    EXPECT_EQ(c.err.ends_with('\n') ? err : err.substr(0, c.err.size()), c.err) << name;
    EXPECT_EQ(err.empty(), c.err.empty()) << name;
  }
}

TEST(OfsCheckTest, PrintsRefusalsRowsAndTotalsWithTheStatus) {
  ScratchDir dir;
  const std::string good = dir.file("good.csv"), bad = dir.file("bad.csv");
  const std::string row = "nse_ipo,CLI,C1,,ABC-RS,10,MKT,Retail,No Margin,Y,";
  std::ofstream(good) << "x" << row << "\n";
  std::ofstream(bad) << "x" << row << "\nno comma\n";
  expectRuns({
      Case({"basket", good}, 0, row + "\n1 lines, 1 accepted, 0 refused\n", ""),
      Case({"basket", bad}, 1,
           bad + ":2: Basket Read Error: Invalid Format: Not a CSV File \n" + row +
               "\n2 lines, 1 accepted, 1 refused\n",
           ""),
      Case({"basket", dir.path()}, 2, "", dir.path() + ": File Open Error\n"),
      Case({"basket"}, 2, "", "ofs-check: FILE is required"),
      Case({}, 2, "", "ofs-check: A subcommand is required"),
      Case({"basket", good, "--nope"}, 2, "", "ofs-check: The following argument was not expected"),
  });
  std::string out, err;
  EXPECT_EQ(run({"--help"}, out, err), 0);
  EXPECT_NE(out.find("basket"), std::string::npos);
}

TEST(OfsCheckTest, BidsChecksAgainstTheGivenIssuesAndAccountsAndWritesTheAcceptedLines) {
  ScratchDir dir;
  const std::string issues = dir.file("issues.csv"), accounts = dir.file("accounts.csv");
  const std::string bids = dir.file("neat.csv"), accepted = dir.file("ok.csv");
  std::ofstream(issues)
      << "Exchange,Symbol Name,Series,...header\n"
      << "nse_ipo,ABC,NonRetail,INE01,10,0.05,100.00,110.00,23/11/2026,23/11/2026,"
         "23/11/2026,20,10,5000,,10000,15:30:00,,,N,U,N,ABC Ltd,ABC,120,105,Y,Y\n";
  std::ofstream(accounts) << "ACC1,PC1\n";
  const std::string good = "x01,01,ABC,IS,100,101.00,CLI,ACC1,PC1,02\n";
  std::ofstream(bids) << good << "x01,01,ABC,IS,105,101.00,CLI,ACC1,PC1,02\n"
                      << "x01,01,ZZZ,IS,100,101.00,CLI,ACC1,PC1,02\nnot a line\n";
  std::string out, err;
  EXPECT_EQ(run({"bids", "--format", "neat", "--issues", issues, "--accounts", accounts,
                 "--write-accepted", accepted, bids},
                out, err),
            1);
  EXPECT_EQ(out, bids + ":2: Qty should be a multiple of Lot which is 10 for this security\n" +
                     bids + ":3: Issue Id not found\n" + bids +
                     ":4: Invalid Format\n4 lines, 1 accepted, 3 refused\n");
  std::ifstream written(accepted);
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(written), {}), good);
  // Without the issue file the checks against the issue are skipped.
  EXPECT_EQ(run({"bids", "--format", "neat", bids}, out, err), 1);
  EXPECT_EQ(out, bids + ":4: Invalid Format\n4 lines, 3 accepted, 1 refused\n");
  EXPECT_EQ(run({"bids", "--format", "neat", "--issues", dir.file("none"), bids}, out, err), 2);
  EXPECT_EQ(err, dir.file("none") + ": File Open Error\n");
  EXPECT_EQ(run({"bids", "--format", "xml", bids}, out, err), 2);
}

TEST(OfsCheckTest, AllotmentListsRefusedLinesByTheirNumberInTheChosenLayout) {
  ScratchDir dir;
  const std::string nse = dir.file("nse.csv"), none = dir.file("none");
  std::ofstream(nse) << "Member type,Member code,Symbol\n"
                     << "n1,n2,ABC,2001,n5,n6,C1,n8,100,105.00,n11,40,100.00,n14,n15\n"
                     << "n1,n2,ABC,2002,n5,n6,,n8,100,105.00,n11,40,100.00,n14,n15\n";
  expectRuns({
      Case({"allotment", "--exchange", "nse_ipo", nse}, 1,
           nse + ":3: Client cannot be blank\n2 lines, 1 accepted, 1 refused\n", ""),
      // Read as BSE, the header is a line and the columns are elsewhere.
      Case({"allotment", "--exchange", "bse_ipo", nse}, 1,
           nse + ":1: Order Number cannot be blank\n" + nse + ":2: Invalid Quantity\n" + nse +
               ":3: Price cannot be blank\n3 lines, 0 accepted, 3 refused\n",
           ""),
      Case({"allotment", "--exchange", "bse_ipo", none}, 2, "", none + ": File Open Error\n"),
      Case({"allotment", nse}, 2, "", "ofs-check: --exchange is required"),
      Case({"allotment", "--exchange", "nse_cm", nse}, 2, "", "ofs-check: --exchange: nse_cm"),
  });
}

TEST(OfsCheckTest, IssuesNumbersLinesAsAnEditorAndCountsRecordsAsTheUpload) {
  ScratchDir dir;
  const std::string file = dir.file("issues.csv");
  const std::string good =
      "nse_ipo,ABC,Retail,INE01,10,0.05,100.00,110.00,25/11/2026,25/11/2026,25/11/2026,20,10,"
      "5000,200000,,15:30:00,,,N,U,Y,ABC Ltd,ABC,120,105,Y,Y\n";
  std::ofstream(file) << "Exchange,...header\n" << good << "\n" << good << "no comma\n";
  const std::string notCsv = ":5: Upload Issue Read Error: Invalid Format: Not a CSV File \n";
  expectRuns({Case({"issues", "--today", "25/11/2026", file}, 1,
                   file + notCsv + "4 lines, 2 accepted, 1 refused\n", ""),
              Case({"issues", "--today", "26/11/2026", file}, 1,
                   file + ":2: OFS Start Date cannot be Past Date\n" + file +
                       ":4: OFS Start Date cannot be Past Date\n" + file + notCsv +
                       "4 lines, 0 accepted, 3 refused\n",
                   "")});
  std::ofstream(file) << "Exchange,...header\n" << good;
  expectRuns(
      {Case({"issues", "--today", "25/11/2026", file}, 0, "1 lines, 1 accepted, 0 refused\n", ""),
       Case({"issues", "--today", "2026-11-25", file}, 2, "",
            "ofs-check: --today: not a date: 2026-11-25\n"),
       Case({"issues", dir.file("none")}, 2, "", dir.file("none") + ": File Open Error\n")});
}

}  // namespace
