#include <gtest/gtest.h>

#include <fstream>

#include "issues/issue_file.h"
#include "issues/issue_file_screens.h"
#include "tests/support/fake_issues_port.h"
#include "tests/support/scratch_dir.h"

namespace {

const std::string kHeader = "Exchange,Symbol Name,Series,...\n";
const std::string kOpen =
    "open  All Files (*.*)|*.*|CSV Files(*.csv)|*.csv; *.csv|Text Documents(*.txt)|*.txt; *.txt||";
const std::string kSave =
    "save BasketOrderOFS.csv All Files (*.*)|*.*|CSV Files(*.csv)|*.csv; *.csv|Text "
    "Documents(*.txt)|*.txt; *.txt|EXCEL Files(*.xls)|*.xls; *.xls||";
const std::string kError = "msgbox Upload OFS Issue Error:";

std::string totals(int records, int uploaded) {
  return "msgbox Total Records : " + std::to_string(records) +
         ". Uploaded OFS Issues Successfully : " + std::to_string(uploaded) + ".";
}

// Accepted on 24/11/2026.
std::string issueLine(const std::string& symbol, const std::string& series = "Retail") {
  const bool retail = series != "NonRetail";
  return "nse_ipo," + symbol + "," + series +
         ",INE123456789,10,0.05,100.00,110.00,25/11/2026,25/11/2026,25/11/2026,20,10,5000," +
         (retail ? "200000,," : ",500000,") + "15:30:00,P,5,Notes,http://x," +
         (retail ? "Y" : "N") + ",ABC Ltd,ABC,250.00,105.00,Y,Y\n";
}

// Refusals are said while the file is read; the accepted issues go after it, the end flags on
// the last, then the totals. Nothing is asked without the right.
TEST(IssueUpload, RefusalsThenAcceptedIssuesThenTotals) {
  ScratchDir dir;
  const std::string all = kHeader + issueLine("ABC") + issueLine("DEF", "Employee") + "\n" +
                          issueLine("GHI", "NonRetail") + "no comma\n" + issueLine("");
  struct Case {
    const char* name;
    bool right;
    std::string text;  // "-": no file; "?": the chooser is cancelled
    Lines said;
  };
  const Case cases[] = {
      Case("mixed", true, all,
           {kOpen, kError + "Invalid Series In Line Number 2",
            kError + "Upload Issue Read Error: Invalid Format: Not a CSV File  In Line Number 5",
            kError + "Symbol cannot be Blank In Line Number 6",
            "send 2 om_add_ofs_issue 32760=\"ABC-RS\"",
            "send 2 om_add_ofs_issue 32760=\"GHI-IS\" 32760=\"Upload End\"", totals(6, 2)}),
      Case("no right", false, all, {}),
      Case("header only", true, kHeader, {kOpen, totals(0, 0)}),
      Case("empty file", true, "", {kOpen, totals(0, 0)}),
      Case("only refused", true, kHeader + "\n" + issueLine("A", "Employee"),
           {kOpen, kError + "Invalid Series In Line Number 2", totals(2, 0)}),
      Case("missing file", true, "-", {kOpen, "msgbox File Open Error"}),
      Case("cancelled", true, "?", {kOpen}),
  };
  for (const auto& c : cases) {
    FakeIssuesPort port;
    port.right = c.right;
    if (c.text != "?") port.queueFile(dir.file(c.text == "-" ? "none.csv" : "issues.csv"));
    std::ofstream(dir.file("issues.csv"), std::ios::binary) << c.text;
    uploadIssueFile(port);
    EXPECT_EQ(port.shortTranscript(), c.said) << c.name;
  }
}

TEST(IssueExport, SaysWhatHappened) {
  ScratchDir dir;
  const std::string in = dir.file("in.csv");
  std::ofstream(in) << kHeader + issueLine("ABC");
  const IssueFileRead read = loadIssueFile(in, {});
  ASSERT_EQ(read.issues.size(), 1u);
  struct Case {
    const char* name;
    bool right, withIssues;
    std::string path;
    Lines said;
  };
  const Case cases[] = {
      Case("no right", false, true, dir.file("a.csv"), {}),
      Case("no issues", true, false, dir.file("a.csv"), {"msgbox No items in the list"}),
      Case("cancelled", true, true, "", {kSave}),
      Case("no such folder", true, true, dir.file("x/a.csv"), {kSave, "msgbox File Open Error"}),
      Case("written", true, true, dir.file("a.csv"),
           {kSave, "msgbox Issue File Created Successfully"}),
  };
  for (const auto& c : cases) {
    FakeIssuesPort port;
    port.right = c.right;
    if (c.withIssues) port.issues.push_back(&read.issues[0]);
    port.queueFile(c.path);
    exportIssueFile(port);
    EXPECT_EQ(port.shortTranscript(), c.said) << c.name;
    EXPECT_EQ(std::ifstream(dir.file("a.csv")).good(), c.name == std::string("written")) << c.name;
  }
}

}  // namespace
