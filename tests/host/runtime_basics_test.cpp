// Run-time errors, "resume next", and the Basic conversions used so far.
#include "runtime/basic_error.h"
#include "runtime/basic_files.h"
#include "runtime/text_functions.h"
#include "runtime/value.h"

#include "tests/host/sim_fixture.h"

#include <gtest/gtest.h>

#include <functional>

using namespace runtime;

namespace {

TEST(RuntimeErrors, NumbersCarryTheirStandardTexts) {
  EXPECT_EQ("Invalid procedure call or argument", errorText(5));
  EXPECT_EQ("Overflow", errorText(6));
  EXPECT_EQ("Subscript out of range", errorText(9));
  EXPECT_EQ("Division by zero", errorText(11));
  EXPECT_EQ("Type mismatch", errorText(13));
  EXPECT_EQ("File not found", errorText(53));
  EXPECT_EQ("Permission denied", errorText(70));
  EXPECT_EQ("Path/File access error", errorText(75));
  EXPECT_EQ("Path not found", errorText(76));
  EXPECT_EQ("Invalid property value", errorText(380));
  EXPECT_EQ("Application-defined or object-defined error", errorText(1234));
  EXPECT_STREQ("Overflow", RuntimeError(6).what());
}

TEST(RuntimeErrors, ResumeNextSkipsTheFailingStatementAndKeepsTheNumber) {
  Err().number = 99;
  ResumeNext resume;
  EXPECT_EQ(0, Err().number); // entering the mode clears Err
  int reached = 0;
  resume([&] {
    raiseError(13);
    reached = 1;
  });
  resume([&] { reached = 2; });
  EXPECT_EQ(2, reached);
  EXPECT_EQ(13, Err().number);
}

TEST(Conversions, WholeNumbersRoundHalfToEven) {
  EXPECT_EQ(2, toInteger(2.5));
  EXPECT_EQ(4, toInteger(3.5));
  EXPECT_EQ(-2, toInteger(-2.5));
  EXPECT_EQ(0, toInteger(0.5));
  EXPECT_EQ(2, toLong(std::string("2.5")));
  EXPECT_EQ(32767, toInteger(32767.0));
  EXPECT_EQ(6, errorOf([] { toInteger(32768.0); }));
  EXPECT_EQ(-32768, toInteger(-32768.0));
  EXPECT_EQ(6, errorOf([] { toInteger(-32769.0); }));
  EXPECT_EQ(6, errorOf([] { toInteger(32767.5); }));
  EXPECT_EQ(32766, toInteger(32766.5));
  EXPECT_EQ(6, errorOf([] { toLong(2147483648.0); }));
  EXPECT_EQ(-2147483647 - 1, toLong(-2147483648.0));
}

TEST(Conversions, TextToNumber) {
  EXPECT_EQ(67108860, toLong(std::string("67108860")));
  EXPECT_EQ(12, toLong(std::string("  12  ")));
  EXPECT_EQ(16, toLong(std::string("&H10")));
  EXPECT_EQ(-1, toInteger(std::string("&HFFFF")));
  EXPECT_EQ(1000, toLong(std::string("1E3")));
  EXPECT_EQ(13, errorOf([] { toLong(std::string("")); }));
  EXPECT_EQ(13, errorOf([] { toLong(std::string("abc")); }));
  EXPECT_EQ(13, errorOf([] { toLong(std::string("12abc")); }));
  EXPECT_EQ(13, errorOf([] { toLong(std::string(1, '\0')); }));
  EXPECT_EQ(0, toLong(Empty{}));
  EXPECT_EQ(-1, toLong(true));
}

TEST(Conversions, Val) {
  EXPECT_EQ(123, Val(" 1 2 3"));
  EXPECT_EQ(24, Val("24 and 57"));
  EXPECT_EQ(0, Val("Not Found"));
  EXPECT_EQ(-1.5, Val("-1.5x"));
  EXPECT_EQ(255, Val("&HFF"));
  EXPECT_EQ(0, Val(""));
}

TEST(Conversions, GeneralFormAndThePicture) {
  EXPECT_EQ("43.3333333333333", generalForm(130.0 / 3.0));
  EXPECT_EQ("8192", toText(std::int16_t{8192}));
  EXPECT_EQ("-40", toText(-40.0));
  EXPECT_EQ("0.5", toText(0.5));
  EXPECT_EQ("0.0078125", toText(0.0078125));
  EXPECT_EQ("1E+15", generalForm(1e15));
  EXPECT_EQ("999999999999999", generalForm(999999999999999.0));
  EXPECT_EQ("1E-05", generalForm(0.00001));
  EXPECT_EQ("True", toText(true));
  EXPECT_EQ("", toText(Empty{}));
  EXPECT_EQ("000", formatThreeDigits(0));
  EXPECT_EQ("020", formatThreeDigits(20));
  EXPECT_EQ("4294967295", formatThreeDigits(4294967295.0));
}

TEST(TextFunctions, LeftMidInStrLTrimAndAdd) {
  EXPECT_EQ("ab", Left("abc", 2));
  EXPECT_EQ("abc", Left("abc", 10));
  EXPECT_EQ(5, errorOf([] { Left("abc", -1); }));
  EXPECT_EQ("bc", Mid("abc", 2));
  EXPECT_EQ("", Mid("abc", 4));
  EXPECT_EQ(5, errorOf([] { Mid("abc", 0); }));
  EXPECT_EQ(2, InStr(1, "abcabc", "b"));
  EXPECT_EQ(5, InStr(3, "abcabc", "b"));
  EXPECT_EQ(0, InStr(1, "abc", "z"));
  EXPECT_EQ("x  ", LTrim("  x  "));
  EXPECT_EQ(Value(std::string("ab")), add(std::string("a"), std::string("b")));
  EXPECT_EQ(13, errorOf([] { add(std::int16_t{1}, std::string(1, '\0')); }));
  EXPECT_EQ(Value(3.0), add(std::int16_t{1}, std::string("2")));
}

TEST(BasicFiles, SystemCodesBecomeBasicErrors) {
  EXPECT_EQ(53, errorForSystemCode(2));
  EXPECT_EQ(76, errorForSystemCode(3));
  EXPECT_EQ(75, errorForSystemCode(5));
  EXPECT_EQ(52, errorForSystemCode(123));
  EXPECT_EQ(70, errorForSystemCode(32));
}

} // namespace
