#include "issues/issue_file.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <tuple>

#include "tests/support/scratch_dir.h"

namespace {

const std::string kHeader =
    "Exchange,Symbol Name,Series,ISIN,Face Value,Tick Size,Floor Price,RMS Price,OFS Start Date,"
    "OFS Close Date,Final Modification Date,Min Quantity,Multiple Quantity,OFS Size,Retail Limit,"
    "Non Retail Individual Limit,Order Closing Time,Disc VP,OFS Discount,Issue Notes,Prospectus "
    "URL,Cut Off,Company Name,Underlying Token,Ceiling Price,Indicative Price,Symbol Display,"
    "Order Placement";

// Accepted on any day up to 25/11/2026; `notes` lets a line grow.
std::string goodLine(const std::string& notes = "Notes") {
  return "nse_ipo,ABC,Retail,INE123456789,10,0.05,100.00,110.00,25/11/2026,25/11/2026,"
         "25/11/2026,20,10,5000,200000,,15:30:00,P,5," +
         notes + ",http://x,Y,ABC Ltd,ABC,250.00,105.00,Y,Y";
}

// "records/accepted" then each refusal as "number/line message".
std::string summaryOf(const IssueFileRead& read) {
  std::ostringstream out;
  out << read.records << "/" << read.issues.size();
  for (const IssueFileRefusal& r : read.refusals)
    out << "; " << r.number << "/" << r.line << " " << r.message;
  return out.str();
}

TEST(IssueFileReader, CountsNumbersAndRefusesLinesAsTheUploadDoes) {
  const std::string good = goodLine();
  const std::string longLine = goodLine(std::string(1100, 'n'));
  const struct {
    std::string name, text, read;
  } cases[] = {
      {"empty file", "", "0/0"},
      {"header only", kHeader + "\n", "0/0"},
      {"header without its line feed", kHeader, "0/0"},
      {"last line without its line feed", kHeader + "\n" + good, "1/1"},
      {"CR LF lines", kHeader + "\r\n" + good + "\r\n" + good + "\r\n", "2/2"},
      {"empty lines count and say nothing", kHeader + "\n\n" + good + "\n\r\n" + good + "\n",
       "4/2"},
      {"no comma", kHeader + "\nno comma\n   \n" + good + "\n",
       "3/1; 1/2 Upload Issue Read Error: Invalid Format: Not a CSV File ; "
       "2/3 Upload Issue Read Error: Invalid Format: Not a CSV File "},
      {"NUL first", kHeader + "\n" + std::string("\0ab,c\n", 6) + good,
       "2/1; 1/2 Upload Issue Read Error: Line is Empty "},
      {"NUL inside", kHeader + "\n" + std::string("nse_ipo\0,ABC\n", 13),
       "1/0; 1/2 Upload Issue Read Error: Invalid Format: Not a CSV File "},
      {"short line", kHeader + "\nnse_ipo,ABC\n", "1/0; 1/2 Series cannot be Blank"},
      {"long line read in two pieces", kHeader + "\n" + longLine + "\n" + good + "\n",
       "3/1; 1/2 Prospectus URL cannot be Blank; 2/2 InValid Exchange"},
  };
  ScratchDir dir;
  for (const auto& c : cases) {
    const std::string path = dir.file("issues.csv");
    std::ofstream(path, std::ios::binary) << c.text;
    EXPECT_EQ(summaryOf(loadIssueFile(path, issueFileDate("24/11/2026"))), c.read) << c.name;
  }
  EXPECT_FALSE(loadIssueFile(dir.file("none.csv"), std::nullopt).opened);
  EXPECT_FALSE(loadIssueFile(dir.path(), std::nullopt).opened);
}

TEST(IssueFileReader, AnAcceptedLineFillsTheIssueInTheFormsTheListUses) {
  sOFSCol c;
  std::string message;
  ASSERT_TRUE(
      readIssueFileLine("bse_ipo,XYZ,Employee,INE9,10,0.5,100,101.5,5/1/2027,05-Jan-2027,"
                        "5Jan2027,020,10,7000,200000,,9:05,V,2.5,Notes,http://u,Y,XYZ "
                        "Ltd,XYZT,250,,N,N\n",
                        std::nullopt, c, message))
      << message;
  const std::pair<std::string, std::string> fields[] = {
      {c.exchange, "bse_ipo"},      {c.field3, "XYZ"},         {c.category, "Employee"},
      {c.symbol, "XYZ-Employee"},   {c.field13041, "INE9"},    {c.field13004, "10"},
      {c.tickSizeText, "0.50"},     {c.floorPrice, "100.00"},  {c.field54079, "101.50"},
      {c.field49165, "05/01/2027"}, {c.field79, "05/01/2027"}, {c.field107, "05/01/2027"},
      {c.minQuantityText, "20"},    {c.lotSizeText, "10"},     {c.issueSizeText, "7000"},
      {c.field54009, "200000"},     {c.hniLimit, ""},          {c.field67, "09:05:00"},
      {c.field12020, "V"},          {c.field12019, "2.5"},     {c.field61002, "Notes"},
      {c.field10046, "http://u"},   {c.field63059, "Y"},       {c.field49033, "XYZ Ltd"},
      {c.assetSymbol, "XYZT"},      {c.field63023, "250"},     {c.field54803, ""},
      {c.field63017, "N"},          {c.biddingFlag, "N"},      {c.issueId, ""},
      {c.modifyCancelFlag, ""}};
  for (size_t i = 0; i < std::size(fields); ++i)
    EXPECT_EQ(fields[i].first, fields[i].second) << "field " << i;
  EXPECT_EQ(std::tuple(c.tickSize, c.minQuantity, c.lotSize, c.issueSize),
            std::tuple(0.5, 20, 10, 7000.0));
  // On NSE the series word becomes the exchange's code.
  ASSERT_TRUE(readIssueFileLine(goodLine(), std::nullopt, c, message));
  EXPECT_EQ(c.category + " " + c.symbol, "RS ABC-RS");
}

// An issue as an issue list reply fills it: series in the exchange's code, prices as sent, both
// limits. The file gets the series word, "%.2lf" prices and only the series' own limit.
TEST(IssueFileWriter, WritesTheHeaderAndEachIssueInTheUploadsLayout) {
  sOFSCol c;
  std::string message;
  ASSERT_TRUE(readIssueFileLine(goodLine(), std::nullopt, c, message));
  c.category = "IS";
  c.tickSize = 0.1;
  c.floorPrice = "100";
  c.field54079 = "110.5";
  c.hniLimit = "500000";
  c.field63023 = "";
  c.field54803 = "105";
  sOFSCol bse = c;
  bse.exchange = "bse_ipo";
  bse.category = "Retail";
  const std::string tail =
      ",INE123456789,10,0.10,100.00,110.50,25/11/2026,25/11/2026,25/11/2026,"
      "20,10,5000,";
  EXPECT_EQ(
      issueFileText({&c, &bse}),
      kHeader + "\nnse_ipo,ABC,NonRetail" + tail +
          ",500000,15:30:00,P,5,Notes,http://x,Y,ABC Ltd,ABC,,105.00,Y,Y\nbse_ipo,ABC,Retail" +
          tail + "200000,,15:30:00,P,5,Notes,http://x,Y,ABC Ltd,ABC,,105.00,Y,Y\n");
}

}  // namespace
