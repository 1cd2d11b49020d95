#include "domain/csv_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "tests/support/scratch_dir.h"

namespace {

TEST(CsvFileTest, QuotesOnlyFieldsThatNeedIt) {
  const struct {
    CsvRow row;
    std::string line;
  } cases[] = {
      {{"17", "open", "123.45"}, "17,open,123.45"},
      {{"Rao, Asha", "x"}, "\"Rao, Asha\",x"},
      {{"say \"hi\""}, "\"say \"\"hi\"\"\""},
      {{"two\nlines", ""}, "\"two\nlines\","},
      {{}, ""},
  };
  for (const auto& c : cases) EXPECT_EQ(csvLine(c.row), c.line) << c.line;
}

std::string contents(const std::string& file) {
  std::ifstream in(file, std::ios::binary);
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

TEST(CsvFileTest, ReplacesTheFileWholeAndLeavesNoTemporary) {
  ScratchDir dir;
  const std::string file = dir.file("book.csv");
  std::ofstream(file) << "old";
  ASSERT_TRUE(writeCsvFile(file, {{"a", "b"}, {"1", "2"}}));
  EXPECT_EQ(contents(file), "a,b\r\n1,2\r\n");
  EXPECT_FALSE(std::filesystem::exists(file + ".tmp"));
}

TEST(CsvFileTest, AFolderThatIsNotThereWritesNothing) {
  ScratchDir dir;
  EXPECT_FALSE(writeCsvFile(dir.file("missing/book.csv"), {{"a"}}));
}

}  // namespace
