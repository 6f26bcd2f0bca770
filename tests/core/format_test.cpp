// Number texts: patterns, Single texts, file texts, reading typed numbers, rounding to Integer.
// Expected texts are worked out by hand: the value's 15-digit decimal text, then rounding half away
// from zero at the last digit the pattern shows.
#include "core/format.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace vn {
namespace {

TEST(FormatDigits, HashShowsNothingForZeroWhileZeroPads) {
  EXPECT_EQ(FormatNumber(0, "#"), "");  // no digit is needed for 0
  EXPECT_EQ(FormatNumber(0, "###"), "");
  EXPECT_EQ(FormatNumber(0, "#0"), "0");  // the '0' is always shown
  EXPECT_EQ(FormatNumber(3, "#"), "3");   // "1. " in the recent-file menu
  EXPECT_EQ(FormatNumber(12, "#"), "12");
  EXPECT_EQ(FormatNumber(5, "00"), "05");  // designation number 5 -> "05"
  EXPECT_EQ(FormatNumber(5, "#00"), "05");
  EXPECT_EQ(FormatNumber(5, "#000"), "005");
  EXPECT_EQ(FormatNumber(5, "##0"), "5");
  EXPECT_EQ(FormatNumber(235, "#00"), "235");
  EXPECT_EQ(FormatNumber(0.5, "##.0"), ".5");  // no '0' before the point: no leading zero
  EXPECT_EQ(FormatNumber(0, "#.00"), ".00");
  EXPECT_EQ(FormatNumber(1.5, "#.00"), "1.50");
  EXPECT_EQ(FormatNumber(12.5, ".0"), "12.5");  // whole digits are never lost
}

TEST(FormatDigits, LargeNumbersPrintEveryWholeDigitWithoutGrouping) {
  EXPECT_EQ(FormatNumber(1e7, "#0.00"), "10000000.00");
  EXPECT_EQ(FormatNumber(123456789, "#0.00"), "123456789.00");
  EXPECT_EQ(FormatNumber(123456789, "00"), "123456789");
  EXPECT_EQ(FormatNumber(210000, "##0"), "210000");
  // 1.5e20: 15 significant digits then zeros.
  EXPECT_EQ(FormatNumber(1.5e20, "#0"), "150000000000000000000");
  // Far more digits than any result has: 1e150 is 1 and 150 zeros, then the decimals.
  EXPECT_EQ(FormatNumber(-1e150, "0.00 m"), "-1" + std::string(150, '0') + ".00 m");
}

TEST(FormatDigits, TinyNumbersRoundToZero) {
  EXPECT_EQ(FormatNumber(1e-7, "#0.000"), "0.000");
  EXPECT_EQ(FormatNumber(1e-7, "#"), "");
  EXPECT_EQ(FormatNumber(4e-7, "0.000000"), "0.000000");  // 0.0000004 -> 6 decimals, 4 < 5
  EXPECT_EQ(FormatNumber(5e-7, "0.000000"), "0.000001");  // 0.0000005 -> the half goes up
}

TEST(FormatRounding, HalvesGoAwayFromZero) {
  EXPECT_EQ(FormatNumber(0.5, "#0"), "1");
  EXPECT_EQ(FormatNumber(1.5, "#0"), "2");
  EXPECT_EQ(FormatNumber(2.5, "#0"), "3");  // not to even: the format is not CInt
  EXPECT_EQ(FormatNumber(-2.5, "#0"), "-3");
  EXPECT_EQ(FormatNumber(0.125, "0.00"), "0.13");  // 0.125 is exact, its half goes up
  EXPECT_EQ(FormatNumber(2.25, "#0.0 "), "2.3 ");  // exact half again
}

TEST(FormatRounding, WorksOnTheFifteenDigitText) {
  // 0.005 is 0.005000000000000000104..., 15 digits 5.00000000000000E-3 -> "0.01".
  EXPECT_EQ(FormatNumber(0.005, "0.00"), "0.01");
  // 1.005 is 1.00499999999999989..., but its 15-digit text is 1.00500000000000 -> "1.01".
  EXPECT_EQ(FormatNumber(1.005, "0.00"), "1.01");
  // 2.345 is 2.34499999999999997..., 15 digits 2.34500000000000 -> "2.35".
  EXPECT_EQ(FormatNumber(2.345, "#0.00"), "2.35");
}

TEST(FormatRounding, CarryRunsIntoTheWholeDigits) {
  EXPECT_EQ(FormatNumber(0.9996, "0.000"), "1.000");
  EXPECT_EQ(FormatNumber(9.9996, "#0.000"), "10.000");
  EXPECT_EQ(FormatNumber(99.96, "#0.0"), "100.0");
  EXPECT_EQ(FormatNumber(0.6, "#"), "1");
}

TEST(FormatRounding, SingleWidenedToDoubleShowsItsBinaryValue) {
  // 0.1f is 0.100000001490116119..., 15 digits 0.100000001490116 -> 9 decimals 0.100000001|49.
  EXPECT_EQ(FormatNumber(static_cast<double>(0.1f), "#0.000000000"), "0.100000001");
  EXPECT_EQ(FormatNumber(static_cast<double>(0.1f), "#0.00"), "0.10");
  // 5.6f is 5.59999990463256836 -> "5.600" with three decimals.
  EXPECT_EQ(FormatNumber(static_cast<double>(5.6f), "#0.000"), "5.600");
}

TEST(FormatSign, NegativeValuesGetALeadingMinus) {
  EXPECT_EQ(FormatNumber(-1.234, "#0.00"), "-1.23");
  EXPECT_EQ(FormatNumber(-123.45, "0.0"), "-123.5");  // 15 digits 123.450000000000 -> half up
  EXPECT_EQ(FormatNumber(-7, "#0 "), "-7 ");
}

TEST(FormatSign, ValueRoundingToZeroHasNoMinus) {
  EXPECT_EQ(FormatNumber(-0.001, "0.00"), "0.00");
  EXPECT_EQ(FormatNumber(-0.4, "#0"), "0");
  EXPECT_EQ(FormatNumber(-0.4, "#"), "");
  EXPECT_EQ(FormatNumber(-0.0, "#0.00"), "0.00");
  EXPECT_EQ(FormatNumber(-0.0, "0.000E+0"), "0.000E+0");
  EXPECT_EQ(FormatNumber(-0.005, "0.00"), "-0.01");  // rounds away from zero: not zero
}

TEST(FormatOptionalDecimals, HashDecimalsOnlyWhenNotZero) {
  EXPECT_EQ(FormatNumber(0.75, "0.0#"), "0.75");
  EXPECT_EQ(FormatNumber(0.7, "0.0#"), "0.7");
  EXPECT_EQ(FormatNumber(0.9, "0.0#"), "0.9");  // the factor texts "0.9", "0.83", "1.0"
  EXPECT_EQ(FormatNumber(0.8333333, "0.0#"), "0.83");
  EXPECT_EQ(FormatNumber(1.0, "0.0#"), "1.0");
  EXPECT_EQ(FormatNumber(0.995, "0.0#"), "1.0");  // 0.995 -> 1.00 -> optional zero dropped
  EXPECT_EQ(FormatNumber(1.35, "0.0##"), "1.35");
  EXPECT_EQ(FormatNumber(1.15, "0.0##"), "1.15");
  EXPECT_EQ(FormatNumber(1.1235, "0.0##"), "1.124");  // 15 digits 1.12350000000000 -> half up
  EXPECT_EQ(FormatNumber(0.00049, "0.0##"), "0.0");
  EXPECT_EQ(FormatNumber(1.0, "0.#"), "1.");  // the point stays when no decimal is shown
}

TEST(FormatScientific, MantissaDecimalsAndSignedExponent) {
  EXPECT_EQ(FormatNumber(123456, "0.000E+0"), "1.235E+5");  // 1.23456 -> 1.235
  EXPECT_EQ(FormatNumber(0.00012, "0.000E+0"), "1.200E-4");
  EXPECT_EQ(FormatNumber(0, "0.000E+0"), "0.000E+0");
  EXPECT_EQ(FormatNumber(210000, "0.00E+0"), "2.10E+5");  // E of steel in the setup field
  EXPECT_EQ(FormatNumber(-123456, "0.000E+0"), "-1.235E+5");
  EXPECT_EQ(FormatNumber(1e-7, "0.000E+0"), "1.000E-7");
  EXPECT_EQ(FormatNumber(1.5e12, "0.000E+0"), "1.500E+12");
  EXPECT_EQ(FormatNumber(7.5, "0.000E+0"), "7.500E+0");
}

TEST(FormatScientific, CarryMovesTheExponent) {
  EXPECT_EQ(FormatNumber(9.9996, "0.000E+0"), "1.000E+1");  // 9.9996 -> 10.000 -> 1.000E+1
  EXPECT_EQ(FormatNumber(0.99999, "0.00E+0"), "1.00E+0");   // 9.9999E-1 -> 10.00E-1
}

TEST(FormatScientific, ExponentSignAndDigits) {
  EXPECT_EQ(FormatNumber(210000, "0.00E-0"), "2.10E5");  // "E-": sign only when negative
  EXPECT_EQ(FormatNumber(0.0001, "0.00E-0"), "1.00E-4");
  EXPECT_EQ(FormatNumber(5, "0.0E+00"), "5.0E+00");  // two exponent digits asked for
}

TEST(FormatLiterals, OtherCharactersAreCopied) {
  EXPECT_EQ(FormatNumber(3, "0 "), "3 ");
  EXPECT_EQ(FormatNumber(12.5, "#0 "), "13 ");
  EXPECT_EQ(FormatNumber(1.5, "#0.000 m"), "1.500 m");
  EXPECT_EQ(FormatNumber(-3.14159, "0.0 kNm"), "-3.1 kNm");
  EXPECT_EQ(FormatNumber(5, "#0\"E+\""), "5E+");  // quoted text is not an exponent
  EXPECT_EQ(FormatNumber(5, "#0\\#"), "5#");
}

TEST(FormatDecimalSign, CommaWhenTheLocaleUsesIt) {
  EXPECT_EQ(FormatNumber(1.5, "#0.00", true), "1,50");
  EXPECT_EQ(FormatNumber(123456, "0.000E+0", true), "1,235E+5");
  EXPECT_EQ(FormatNumber(12, "#0", true), "12");
  EXPECT_EQ(FormatNumber(0.75, "0.0#", true), "0,75");
}

TEST(FormatBadInput, NeverFails) {
  EXPECT_EQ(FormatNumber(0.1, ""), "0.1");  // general text of the value
  EXPECT_EQ(FormatNumber(1e15, ""), "1E+15");
  EXPECT_EQ(FormatNumber(5, "abc"), "abc5");
  EXPECT_EQ(FormatNumber(5, "\""), "5");
  EXPECT_EQ(FormatNumber(5, "0E+"), "5E+");
  EXPECT_FALSE(FormatNumber(std::nan(""), "#0.00").empty());
  EXPECT_FALSE(FormatNumber(HUGE_VAL, "#0.00").empty());
  EXPECT_EQ(FormatNumber(1e308, "#0").size(), 309u);
}

TEST(SingleText, SevenSignificantDigitsNoTrailingZeros) {
  EXPECT_EQ(SingleText(0.1f), "0.1");  // 0.100000001 -> 0.1000000
  EXPECT_EQ(SingleText(100.0f), "100");
  EXPECT_EQ(SingleText(200.0f), "200");  // "HEA" + "200"
  EXPECT_EQ(SingleText(5.6f), "5.6");    // 5.59999990 -> 5.600000
  EXPECT_EQ(SingleText(2.6f), "2.6");    // "RHS 50x50x2.6"
  EXPECT_EQ(SingleText(1.0f / 3.0f), "0.3333333");
  EXPECT_EQ(SingleText(1234567.0f), "1234567");
  EXPECT_EQ(SingleText(-2.5f), "-2.5");
  EXPECT_EQ(SingleText(-0.0f), "0");
  EXPECT_EQ(SingleText(2.6f, true), "2,6");
}

TEST(SingleText, ENotationWithTwoDigitExponent) {
  EXPECT_EQ(SingleText(0.0001f), "0.0001");  // exponent -4 stays plain
  EXPECT_EQ(SingleText(1e-5f), "1E-05");
  EXPECT_EQ(SingleText(12345678.0f), "1.234568E+07");  // 8 digits > 7
}

TEST(FileText, ShortestTextThatReadsBackTheSameValue) {
  EXPECT_EQ(FloatFileText(0.1f), "0.1");
  EXPECT_EQ(FloatFileText(5.0f), "5");
  // 1/3f = 0.333333343...; 0.3333333 is 4.3e-8 off, more than half the float spacing 2^-25
  // (1.5e-8), so the eighth digit is needed.
  EXPECT_EQ(FloatFileText(1.0f / 3.0f), "0.33333334");
  EXPECT_EQ(DoubleFileText(0.1), "0.1");
  EXPECT_EQ(NumberText(250), "250");
  for (float f : {0.1f, 1.0f / 3.0f, 3.4e38f, 1e-38f, 123456.79f, -2.6f, 235.0f}) {
    bool mismatch = false;
    EXPECT_EQ(ParseNumber(FloatFileText(f), false, &mismatch), f) << FloatFileText(f);
    EXPECT_FALSE(mismatch);
  }
  for (double d : {0.1, 1.0 / 3.0, 1e-300, 6.02214076e23}) {
    bool mismatch = false;
    EXPECT_EQ(ParseNumberD(DoubleFileText(d), false, &mismatch), d) << DoubleFileText(d);
  }
}

struct Parsed {
  float value;
  bool mismatch;
  bool overflow;
};
Parsed Parse(const char* text, bool comma) {
  Parsed p{0, false, false};
  p.value = ParseNumber(text, comma, &p.mismatch, &p.overflow);
  return p;
}

TEST(ParseNumber, EitherSeparatorInEitherLocale) {
  EXPECT_EQ(Parse("1,5", false).value, 1.5f);
  EXPECT_EQ(Parse("1.5", false).value, 1.5f);
  EXPECT_EQ(Parse("1,5", true).value, 1.5f);
  EXPECT_EQ(Parse("1.5", true).value, 1.5f);
  EXPECT_FALSE(Parse("1.5", true).mismatch);
}

TEST(ParseNumber, PointLocaleReadsTheNumericPrefix) {
  Parsed abc = Parse("abc", false);
  EXPECT_EQ(abc.value, 0.0f);
  EXPECT_FALSE(abc.mismatch);                           // reaches the range test as 0
  EXPECT_EQ(FormatNumber(abc.value, "#0.00"), "0.00");  // what the field shows then
  EXPECT_EQ(Parse("", false).value, 0.0f);
  EXPECT_FALSE(Parse("", false).mismatch);
  EXPECT_EQ(Parse("  12", false).value, 12.0f);
  EXPECT_EQ(Parse("1e3", false).value, 1000.0f);
  EXPECT_EQ(Parse("1D2", false).value, 100.0f);
  EXPECT_EQ(Parse("-2.5", false).value, -2.5f);
  EXPECT_EQ(Parse("+3", false).value, 3.0f);
  EXPECT_EQ(Parse(".5", false).value, 0.5f);
  EXPECT_EQ(Parse("12abc", false).value, 12.0f);
  EXPECT_EQ(Parse("1.2.3", false).value, 1.2f);  // the second point ends the number
  EXPECT_EQ(Parse("1,2,3", false).value, 1.2f);  // commas became points first
  EXPECT_EQ(Parse("1e", false).value, 1.0f);     // an exponent without digits is not read
  EXPECT_EQ(Parse("-", false).value, 0.0f);
  EXPECT_EQ(Parse("0.1", false).value, 0.1f);
}

// A blank inside ends the number: "1 000" typed for a thousand must not be read as a thousand
// in one place and as 1 in another, so it is 1 here and the range test or the field shows it.
TEST(ParseNumber, PointLocaleStopsAtABlankInsideTheNumber) {
  EXPECT_EQ(Parse("2 3", false).value, 2.0f);
  EXPECT_EQ(Parse("1 000", false).value, 1.0f);
  EXPECT_EQ(Parse(" 1 2 3", false).value, 1.0f);
  EXPECT_EQ(Parse("- 5", false).value, 0.0f);
  EXPECT_EQ(Parse("1\t5", false).value, 1.0f);
  EXPECT_EQ(Parse("2 . 5", false).value, 2.0f);
  EXPECT_EQ(Parse("2. 5", false).value, 2.0f);
  EXPECT_EQ(Parse("1e 3", false).value, 1.0f);
  EXPECT_EQ(Parse("\t 12", false).value, 12.0f);  // blanks and tabs before it are skipped
  EXPECT_FALSE(Parse("2 3", false).mismatch);
}

TEST(ParseNumber, CommaLocaleWantsTheWholeText) {
  EXPECT_TRUE(Parse("abc", true).mismatch);
  EXPECT_EQ(Parse("abc", true).value, 0.0f);
  EXPECT_TRUE(Parse("", true).mismatch);
  EXPECT_TRUE(Parse("12abc", true).mismatch);
  EXPECT_TRUE(Parse("1.2.3", true).mismatch);  // "1,2,3"
  EXPECT_TRUE(Parse("1 2", true).mismatch);
  EXPECT_TRUE(Parse("1e", true).mismatch);
  EXPECT_TRUE(Parse("-", true).mismatch);
  EXPECT_EQ(Parse("  12", true).value, 12.0f);
  EXPECT_EQ(Parse(" 1,5 ", true).value, 1.5f);  // blanks around are allowed
  EXPECT_EQ(Parse("-2,5", true).value, -2.5f);
  EXPECT_EQ(Parse("1e3", true).value, 1000.0f);
  EXPECT_EQ(Parse("2,5E-1", true).value, 0.25f);
  EXPECT_EQ(Parse(",5", true).value, 0.5f);
  EXPECT_FALSE(Parse("-2,5", true).mismatch);
}

TEST(ParseNumber, OverflowIsNotAMismatch) {
  Parsed big = Parse("1e400", false);  // beyond a Double
  EXPECT_TRUE(big.overflow);
  EXPECT_FALSE(big.mismatch);
  EXPECT_TRUE(Parse("3.5e38", true).overflow);  // beyond a Single (3.4028235e38)
  EXPECT_FALSE(Parse("3.4e38", false).overflow);
  EXPECT_EQ(Parse("3.4e38", false).value, 3.4e38f);
  EXPECT_TRUE(Parse("1e99999999999999999999", false).overflow);
  Parsed tiny = Parse("1e-400", false);  // below a Double: zero, no error
  EXPECT_EQ(tiny.value, 0.0f);
  EXPECT_FALSE(tiny.overflow);
  EXPECT_EQ(ParseNumber("5", false, nullptr, nullptr), 5.0f);
  EXPECT_EQ(ParseNumber("x", true, nullptr, nullptr), 0.0f);
}

TEST(RoundToInteger, HalvesGoToTheEvenNeighbour) {
  bool overflow = false;
  EXPECT_EQ(RoundToInteger(99.5, &overflow), 100);   // deflection limit 99.5 passes as 100
  EXPECT_EQ(RoundToInteger(100.5, &overflow), 100);  // and 100.5 gives 100 too
  EXPECT_EQ(RoundToInteger(-0.5, &overflow), 0);
  EXPECT_EQ(RoundToInteger(0.5, &overflow), 0);
  EXPECT_EQ(RoundToInteger(1.5, &overflow), 2);
  EXPECT_EQ(RoundToInteger(-1.5, &overflow), -2);
  EXPECT_EQ(RoundToInteger(2.4999, &overflow), 2);
  EXPECT_EQ(RoundToInteger(-2.6, &overflow), -3);
  EXPECT_EQ(RoundToInteger(32767.4, &overflow), 32767);
  EXPECT_EQ(RoundToInteger(-32768.5, &overflow), -32768);  // -32768 is even
  EXPECT_FALSE(overflow);
}

TEST(RoundToInteger, OutsideTheIntegerRangeOverflows) {
  for (double v : {32767.5, 32768.0, -32768.6, 1e20, std::nan(""), -HUGE_VAL}) {
    bool overflow = false;
    EXPECT_EQ(RoundToInteger(v, &overflow), 0) << v;
    EXPECT_TRUE(overflow) << v;  // 32767.5 rounds to 32768 (even)
  }
}

}  // namespace
}  // namespace vn
