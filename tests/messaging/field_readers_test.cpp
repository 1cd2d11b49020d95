#include <gtest/gtest.h>

#include <string>

#include "messaging/field_readers.h"
#include "tests/support/message_fixtures.h"
#include "tests/support/scripted_otp.h"

namespace {

struct NumberCase {
  std::string text;
  int32_t expected;
  friend void PrintTo(const NumberCase& c, std::ostream* os) {
    *os << testing::PrintToString(c.text);
  }
};

class ReadNumber : public testing::TestWithParam<NumberCase> {};

TEST_P(ReadNumber, ConvertsWithDecimalTextToLongRules) {
  auto msg = makeMessage({{6, GetParam().text}});
  int32_t out = -99;
  int status = 0;
  EXPECT_EQ(readNumber(connectvornOps(), msg.get(), 6, 0, out, status), 1);
  EXPECT_EQ(out, GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, ReadNumber,
    testing::Values(NumberCase{"42", 42}, NumberCase{"  \t-17", -17}, NumberCase{"+5", 5},
                    NumberCase{"12abc", 12}, NumberCase{"abc", 0}, NumberCase{"", 0},
                    NumberCase{"- 3", 0}, NumberCase{"12.75", 12},
                    NumberCase{std::string("7\0009", 3), 7}, NumberCase{"2147483647", 2147483647},
                    NumberCase{"2147483648", 2147483647}, NumberCase{"-2147483648", INT32_MIN},
                    NumberCase{"-99999999999", INT32_MIN},
                    // 32 bytes or more are cut to 31 before conversion.
                    NumberCase{std::string(27, '0') + "12345", 1234},
                    NumberCase{std::string(26, '0') + "12345", 12345}));

TEST(ReadNumberFailure, AbsentIsSevenAndLeavesTheNumber) {
  auto msg = makeMessage({{1, "5"}});
  int32_t out = 31;
  int status = 0;
  EXPECT_EQ(readNumber(connectvornOps(), msg.get(), 2, 0, out, status), 0);
  EXPECT_EQ(status, 7);
  EXPECT_EQ(out, 31);
  EXPECT_EQ(readNumber(connectvornOps(), msg.get(), 1, 1, out, status), 0);
  EXPECT_EQ(status, 7);
}

TEST(ReadNumberFailure, AnyOtherErrorIsThree) {
  ScriptedOtp otp;
  otp.getDataError = OTP_E_MALFORMED;
  auto msg = makeMessage({{1, "5"}});
  int32_t out = 31;
  int status = 0;
  EXPECT_EQ(readNumber(otp.ops(), msg.get(), 1, 0, out, status), 0);
  EXPECT_EQ(status, 3);
  EXPECT_EQ(out, 31);
  std::string text = "kept?";
  EXPECT_EQ(readText(otp.ops(), msg.get(), 1, 0, text, status), 0);
  EXPECT_EQ(status, 3);
  EXPECT_EQ(text, "");
}

TEST(ReadText, GivesExactlyTheFieldsBytesAndEmptiesOnAbsence) {
  const std::string raw("a\0b ", 4);
  auto msg = makeMessage({{10100, raw}, {10100, "second"}, {5, ""}});
  std::string out = "old";
  int status = 0;
  EXPECT_EQ(readText(connectvornOps(), msg.get(), 10100, 0, out, status), 1);
  EXPECT_EQ(out, raw);
  EXPECT_EQ(readText(connectvornOps(), msg.get(), 10100, 1, out, status), 1);
  EXPECT_EQ(out, "second");
  EXPECT_EQ(readText(connectvornOps(), msg.get(), 5, 0, out, status), 1);
  EXPECT_EQ(out, "");
  out = "old";
  EXPECT_EQ(readText(connectvornOps(), msg.get(), 63001, 0, out, status), 0);
  EXPECT_EQ(status, 7);
  EXPECT_EQ(out, "");
}

}  // namespace
