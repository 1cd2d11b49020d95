#include <gtest/gtest.h>

#include "domain/char_classes.h"
#include "domain/code_alphabet.h"
#include "domain/series.h"

namespace {

TEST(SeriesOfSymbol, TextAfterFirstDashWithoutDashes) {
  EXPECT_EQ(seriesOfSymbol("ABC-NonRetail"), "NonRetail");
  EXPECT_EQ(seriesOfSymbol("AB-CD-I-S"), "CDIS");
  EXPECT_EQ(seriesOfSymbol("ABC"), "");
}

TEST(CodeCharacters, AlphabetHasNoQ) {
  EXPECT_TRUE(inCodeAlphabet("ABCDEFGHIJKLMNOPRSTUVWXYZ09"));
  for (const char* refused : {"Q1", "ab", "A-B", "A B"}) EXPECT_FALSE(inCodeAlphabet(refused));
  EXPECT_TRUE(isAlphanumeric("Qab9"));
  EXPECT_FALSE(isAlphanumeric("A-B"));
}

}  // namespace
