#include "tools/ofs_check.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "tests/support/scratch_dir.h"

namespace {

TEST(OfsCheckTest, PrintsRefusalsRowsAndTotalsWithTheStatus) {
  ScratchDir dir;
  const std::string good = dir.file("good.csv"), bad = dir.file("bad.csv");
  const std::string row = "nse_ipo,CLI,C1,,ABC-RS,10,MKT,Retail,No Margin,Y,";
  std::ofstream(good) << "x" << row << "\n";
  std::ofstream(bad) << "x" << row << "\nno comma\n";
  const struct {
    std::vector<std::string> args;
    int status;
    std::string out, err;  // err: its start
  } cases[] = {
      {{"basket", good}, 0, row + "\n1 lines, 1 accepted, 0 refused\n", ""},
      {{"basket", bad},
       1,
       bad + ":2: Basket Read Error: Invalid Format: Not a CSV File \n" + row +
           "\n2 lines, 1 accepted, 1 refused\n",
       ""},
      {{"basket", dir.path()}, 2, "", dir.path() + ": File Open Error\n"},
      {{"basket"}, 2, "", "ofs-check: FILE is required"},
      {{}, 2, "", "ofs-check: A subcommand is required"},
      {{"basket", good, "--nope"}, 2, "", "ofs-check: The following argument was not expected"},
  };
  for (const auto& c : cases) {
    std::vector<const char*> argv{"ofs-check"};
    for (const std::string& a : c.args) argv.push_back(a.c_str());
    std::ostringstream out, err;
    const std::string name = c.args.empty() ? "(none)" : c.args.back();
    EXPECT_EQ(runOfsCheck(int(argv.size()), argv.data(), out, err), c.status) << name;
    EXPECT_EQ(out.str(), c.out) << name;
    EXPECT_EQ(err.str().substr(0, c.err.size()), c.err) << name;
    EXPECT_EQ(err.str().empty(), c.err.empty()) << name;
  }
  const char* help[] = {"ofs-check", "--help"};
  std::ostringstream out, err;
  EXPECT_EQ(runOfsCheck(2, help, out, err), 0);
  EXPECT_NE(out.str().find("basket"), std::string::npos);
}

}  // namespace
