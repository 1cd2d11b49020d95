#include <gtest/gtest.h>

#include <string>

#include "messaging/field_readers.h"
#include "tests/support/message_fixtures.h"
#include "tests/support/recording_prompt.h"
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

// A failed read answers 0 and says why: 7 for an absent field, 3 for any other error. A number
// is left as it was; a text is emptied.
TEST(ReadFailure, AbsentIsSevenOtherErrorsThree) {
  ScriptedOtp otp;
  auto msg = makeMessage({{1, "5"}});
  int32_t out = 31;
  int absentField = 0, absentOccurrence = 0, malformed = 0, textMalformed = 0;
  std::string text = "kept?";
  EXPECT_EQ(readNumber(otp.ops(), msg.get(), 2, 0, out, absentField), 0);
  EXPECT_EQ(readNumber(otp.ops(), msg.get(), 1, 1, out, absentOccurrence), 0);
  otp.getDataError = OTP_E_MALFORMED;
  EXPECT_EQ(readNumber(otp.ops(), msg.get(), 1, 0, out, malformed), 0);
  EXPECT_EQ(readText(otp.ops(), msg.get(), 1, 0, text, textMalformed), 0);
  EXPECT_EQ((std::vector<int>{absentField, absentOccurrence, malformed, textMalformed, out}),
            (std::vector<int>{7, 7, 3, 3, 31}));
  EXPECT_EQ(text, "");
}

TEST(ReadText, GivesExactlyTheFieldsBytesAndEmptiesOnAbsence) {
  const std::string raw("a\0b ", 4);
  auto msg = makeMessage({{10100, raw}, {10100, "second"}, {5, ""}});
  Lines read(4, "old");
  int found = 0, status = 0;
  found += readText(connectvornOps(), msg.get(), 10100, 0, read[0], status);
  found += readText(connectvornOps(), msg.get(), 10100, 1, read[1], status);
  found += readText(connectvornOps(), msg.get(), 5, 0, read[2], status);
  EXPECT_EQ(found, 3);
  EXPECT_EQ(readText(connectvornOps(), msg.get(), 63001, 0, read[3], status), 0);
  EXPECT_EQ(status, 7);
  EXPECT_EQ(read, (Lines{raw, "second", "", ""}));
}

}  // namespace
