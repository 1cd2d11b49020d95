#include "basket/basket_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "tests/support/scratch_dir.h"

namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;
using Lines = std::vector<std::string>;

// A line as the save writes it, for client `id`; the loader skips its first character.
std::string saved(const std::string& id, const std::string& exchange = "nse_ipo") {
  return exchange + ",CLI," + id + ",,ABC-RS,10,100,Retail,100% Margin,Y,";
}

std::string contents(const std::string& file) {
  std::ostringstream text;
  text << std::ifstream(file, std::ios::binary).rdbuf();
  return text.str();
}

// The refusals as "line:message", then the rows in list order as saved, then the line count.
Lines outcome(const BasketLoad& load) {
  Lines lines;
  for (const BasketRefusal& r : load.refusals)
    lines.push_back(std::to_string(r.line) + ":" + r.message);
  for (const sOFSPlaceOrder& row : load.rows) lines.push_back(basketLine(row));
  lines.push_back(std::to_string(load.lines) + (load.opened ? " lines" : " unopened"));
  return lines;
}

TEST(BasketFileTest, LoadsGoodLinesLastFirstAndNamesTheOthers) {
  const std::string notCsv = "1:Basket Read Error: Invalid Format: Not a CSV File ";
  const std::string a = saved("A"), b = saved("B"), c = saved("C"), longId(200, 'L');
  const struct {
    const char* name;
    std::string text;
    Lines expected;
  } cases[] = {
      {"reversed", a + "\n" + b + "\n" + c + "\n", {c, b, a, "3 lines"}},
      {"bse read as nse", saved("A", "bse_ipo") + "\n", {a, "1 lines"}},
      {"bse after a lead", "#"s + saved("A", "bse_ipo"), {saved("A", "bse_ipo"), "1 lines"}},
      {"comma shifts",
       "nse_ipo,CLI,Rao, A,,X-RS,1,2,Retail,No Margin,Y,",
       {"nse_ipo,CLI,Rao, A,,X-RS,1,2,Retail,No Margin,", "1 lines"}},
      {"no comma between", a + "\nno comma\n" + b, {"2"s + notCsv.substr(1), b, a, "3 lines"}},
      {"blank, NUL",
       "\n"s + std::string(1, '\0') + ",\n",
       {notCsv, "2:Basket Read Error: Line is Empty ", "2 lines"}},
      {"too few",
       "xnse_ipo,CLI\n",
       {"1:Basket Read Error: Invalid Format: Less than 10 Fields ", "1 lines"}},
      {"1,023 bytes", std::string(1022, 'z') + "\n", {notCsv, "1 lines"}},
      {"1,024 bytes", std::string(1023, 'z') + "\n" + a, {notCsv, notCsv, a, "3 lines"}},
      {"long field", saved(longId), {saved(longId.substr(0, 127)), "1 lines"}},
      {"CR LF", a + "\r\n" + b, {b, a, "2 lines"}},
      {"empty file", "", {"0 lines"}},
  };
  ScratchDir dir;
  for (const auto& c : cases) {
    std::ofstream(dir.file("basket.csv"), std::ios::binary) << c.text;
    EXPECT_EQ(outcome(loadBasketFile(dir.file("basket.csv"), "U1")), c.expected) << c.name;
  }
  EXPECT_EQ(outcome(loadBasketFile(dir.path(), "U1")), (Lines{"0 unopened"}));
}

TEST(BasketFileTest, DerivesTheFlagsTheRowsArePlacedWith) {
  const std::pair<std::string, std::string> cases[] = {
      {"#bse_ipo,PRO,C1,P1,XYZ-Non-Retail,5,MKT,Retail,No Margin,Y,",
       "BSEIPO bse_ipo NO Y NonRetail"},
      {saved("C1"), "NSEIPO nse_ipo YES  RS"},
  };
  for (const auto& [line, expected] : cases) {
    sOFSPlaceOrder r;
    std::string message;
    ASSERT_TRUE(readBasketLine(line, "U1", r, message)) << line;
    EXPECT_EQ(r.exchange + " " + r.screenName + " " + r.margin + " " + r.marketFlag + " " +
                  r.series + " " + r.side + r.userId,
              expected + " BU1");
  }
}

TEST(BasketFileTest, SavesTheListAsShownAndKeepsTheOldFileWhenItCannot) {
  ScratchDir dir;
  const std::string file = dir.file("basket.csv");
  const std::string cba = saved("C") + "\n" + saved("B") + "\n" + saved("A") + "\n";
  std::ofstream(file) << saved("A") + "\n" + saved("B") + "\n" + saved("C") + "\n";
  const BasketLoad load = loadBasketFile(file, "U1");
  std::vector<const sOFSPlaceOrder*> rows;
  for (const sOFSPlaceOrder& row : load.rows) rows.push_back(&row);
  EXPECT_EQ(saveBasketFile(file, rows), "Basket File Created Successfully");
  EXPECT_EQ(contents(file), cba);
  EXPECT_EQ(saveBasketFile(file, {}), "No items in the list");

  const std::string openError = " Basket File Write Error: File Open Error";
  fs::create_directory(file + ".tmp");  // the temporary cannot be made
  EXPECT_EQ(saveBasketFile(file, rows), openError);
  EXPECT_EQ(contents(file), cba);
  fs::create_directories(dir.file("folder/inside"));  // the rename fails
  EXPECT_EQ(saveBasketFile(dir.file("folder"), rows), openError);
  EXPECT_FALSE(fs::exists(dir.file("folder.tmp")));
  EXPECT_EQ(saveBasketFile(dir.file("missing/basket.csv"), rows), openError);
}

}  // namespace
