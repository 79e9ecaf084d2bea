#include "runtime/number_text.h"

#include <clocale>
#include <gtest/gtest.h>
#include <locale>

#include "runtime/failure.h"

namespace orvane {
namespace {

TEST(LenientNumber, SkipsBlanksAndStopsAtWhatIsNotPartOfANumber) {
  EXPECT_EQ(LenientNumber("  11.140"), 11.14);
  EXPECT_EQ(LenientNumber(" -0.5 "), -0.5);
  EXPECT_EQ(LenientNumber("+2.5"), 2.5);
  EXPECT_EQ(LenientNumber("1.5x9"), 1.5);
  EXPECT_EQ(LenientNumber("1,5"), 1.0);
  EXPECT_EQ(LenientNumber(".25"), 0.25);
}

TEST(LenientNumber, ATextThatBeginsWithNoNumberIs0) {
  for (const char* text : {"", "   ", "abc", "-", "+", ".", "+-3", "nan", "inf"}) {
    EXPECT_EQ(LenientNumber(text), 0.0) << text;
  }
}

TEST(StrictInt16, TakesBlanksOneSignAndDigits) {
  EXPECT_EQ(StrictInt16("   1"), 1);
  EXPECT_EQ(StrictInt16(" -12 "), -12);
  EXPECT_EQ(StrictInt16("+7"), 7);
  EXPECT_EQ(StrictInt16("-0"), 0);
  EXPECT_EQ(StrictInt16("00012"), 12);
}

TEST(StrictInt16, RefusesWhatIsNotWhollyAnInteger) {
  for (const char* text :
       {"",  "    ", "1A",  "A1",  "1 2", "1,5",  "--1", "+-1", "-+1", "++1", "- 1", "-",
        "+", "0x1",  "nan", "inf", "1.5", "12.0", "5.",  ".5",  "1e1", "1e",  "1\t", "1.2.3"}) {
    EXPECT_THROW(StrictInt16(text), Failure) << text;
  }
}

TEST(StrictInt16, RefusesWhatDoesNotFit) {
  EXPECT_EQ(StrictInt16("32767"), 32767);
  EXPECT_EQ(StrictInt16("-32768"), -32768);
  EXPECT_THROW(StrictInt16("32768"), Failure);
  EXPECT_THROW(StrictInt16("-32769"), Failure);
  EXPECT_THROW(StrictInt16("100000000000000000000"), Failure);
}

TEST(RoundedInt16, TakesBlanksSignDecimalsAndExponent) {
  EXPECT_EQ(RoundedInt16("   1"), 1);
  EXPECT_EQ(RoundedInt16(" -12 "), -12);
  EXPECT_EQ(RoundedInt16("+7"), 7);
  EXPECT_EQ(RoundedInt16("1e3"), 1000);
  EXPECT_EQ(RoundedInt16("12.25"), 12);
}

TEST(RoundedInt16, AHalfGoesToTheEvenNeighbour) {
  EXPECT_EQ(RoundedInt16("2.5"), 2);
  EXPECT_EQ(RoundedInt16("3.5"), 4);
  EXPECT_EQ(RoundedInt16("-2.5"), -2);
}

TEST(RoundedInt16, RefusesWhatIsNotWhollyANumber) {
  for (const char* text : {"", "    ", "1A", "A1", "1 2", "1,5", "--1", "+-1", "0x10", "nan", "inf",
                           "1e", "1.2.3", "1e-400x", "1e-400 1"}) {
    EXPECT_THROW(RoundedInt16(text), Failure) << text;
  }
}

TEST(RoundedInt16, RefusesWhatDoesNotFit) {
  EXPECT_EQ(RoundedInt16("32767"), 32767);
  EXPECT_THROW(RoundedInt16("32768"), Failure);
  EXPECT_THROW(RoundedInt16("-32769"), Failure);
  EXPECT_THROW(RoundedInt16("1e400"), Failure);
}

// A double reaches from 4.9e-324 to 1.8e308.
TEST(RoundedInt16, WhatIsTooSmallForADoubleIs0AndWhatIsTooLargeFails) {
  const std::string zeros(400, '0');
  for (const std::string& text :
       {std::string("1e-400"), std::string(" -1E-400 "), std::string("+9.99e-325"),
        std::string("12345.5e-400"), "0." + zeros + "1", "." + zeros + "1e+10",
        std::string("1e-99999999999999999999"), "1" + zeros + "e-800"}) {
    EXPECT_EQ(RoundedInt16(text), 0) << text;
  }
  for (const std::string& text :
       {std::string("1e+400"), std::string("-1e400"), std::string("0.001e312"), "1" + zeros,
        "1" + zeros + ".5", "." + zeros + "1e800", std::string("1e99999999999999999999")}) {
    EXPECT_THROW(RoundedInt16(text), Failure) << text;
  }
  // With an exponent that makes up for its zeros, each is an ordinary number.
  EXPECT_EQ(RoundedInt16("." + zeros + "7e401"), 7);
  EXPECT_EQ(RoundedInt16("7" + zeros + "e-400"), 7);
  EXPECT_EQ(RoundedInt16("0e400"), 0);
}

TEST(SingleText, HasSevenSignificantDigitsAndNoExponent) {
  EXPECT_EQ(SingleText(11.944), "11.94400");
  EXPECT_EQ(SingleText(1.5), "1.500000");
  EXPECT_EQ(SingleText(-8.25), "-8.250000");
  EXPECT_EQ(SingleText(123.0), "123.0000");
  EXPECT_EQ(SingleText(0.0), "0.000000");
  EXPECT_EQ(SingleText(0.0078125), "0.007812500");  // 2^-7, exact
  EXPECT_EQ(SingleText(12345678.0), "12345678");
}

TEST(SingleText, CountsItsDigitsFromTheFirst) {
  // The nearest 32-bit values to 0.1 and 0.001 are a little above them, that to 0.01 is a little
  // below: 0.00999999978, whose first digit is the third after the point.
  EXPECT_EQ(SingleText(0.1), "0.1000000");
  EXPECT_EQ(SingleText(0.01), "0.010000000");
  EXPECT_EQ(SingleText(0.001), "0.001000000");
  EXPECT_EQ(SingleText(1.0), "1.000000");
  EXPECT_EQ(SingleText(10.0), "10.00000");
  EXPECT_EQ(SingleText(100000.0), "100000.0");
  // 10^6 - 2^-4, the largest below a million, and the largest of all.
  EXPECT_EQ(SingleText(999999.9375), "999999.9");
  EXPECT_EQ(SingleText(1000000.0), "1000000");
  EXPECT_EQ(SingleText(0x1.fffffep127), "340282346638528859811704183484516925440");
}

TEST(SingleText, NarrowsTo32BitsFirst) {
  // The nearest 32-bit value to 16777217 is 16777216.
  EXPECT_EQ(SingleText(16777217.0), "16777216");
}

TEST(SingleText, JustBelowAPowerOfTenKeepsItsNines) {
  // The largest 32-bit value below 10 is 10 - 2^-20 = 9.99999905: cut to six characters, 9.9999.
  EXPECT_EQ(SingleText(10.0 - 1.0 / 1048576), "9.999999");
  // Below 100 it is 100 - 2^-17 = 99.9999924.
  EXPECT_EQ(SingleText(100.0 - 1.0 / 131072), "99.99999");
}

TEST(TwoDecimals, HasAtLeastTwoDigitsBeforeThePoint) {
  EXPECT_EQ(TwoDecimals(1.5), "01.50");
  EXPECT_EQ(TwoDecimals(0.0), "00.00");
  EXPECT_EQ(TwoDecimals(12.345678), "12.35");
  EXPECT_EQ(TwoDecimals(179.996), "180.00");
  EXPECT_EQ(TwoDecimals(9.999), "10.00");
}

TEST(TwoDecimals, PutsASignBeforeWhatIsBelowZeroAndNoMinusBeforeZero) {
  EXPECT_EQ(TwoDecimals(-57.0), "-57.00");
  EXPECT_EQ(TwoDecimals(-1.25), "-01.25");
  EXPECT_EQ(TwoDecimals(-0.001), "00.00");
  EXPECT_EQ(TwoDecimals(-0.0), "00.00");
}

TEST(Com2Pnt, MakesEveryCommaAPoint) {
  EXPECT_EQ(Com2Pnt("1,5"), "1.5");
  EXPECT_EQ(Com2Pnt(",,"), "..");
  EXPECT_EQ(Com2Pnt("1.5 A"), "1.5 A");
  EXPECT_EQ(Com2Pnt(""), "");
}

// Sets a decimal comma, as used in much of the world, while the test runs: always in the streams,
// and in the C library if such a locale is installed.
class CommaLocale {
 public:
  CommaLocale() {
    std::locale::global(std::locale(before_, new Comma));
    for (const char* name : {"de_DE.UTF-8", "fr_FR.UTF-8", "de_DE.utf8"}) {
      if (std::setlocale(LC_NUMERIC, name) != nullptr) break;
    }
  }
  ~CommaLocale() {
    std::locale::global(before_);
    std::setlocale(LC_NUMERIC, "C");
  }

 private:
  struct Comma : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
  };
  std::locale before_ = std::locale();
};

TEST(NumberText, ThePointIsTheSeparatorWhateverTheLocale) {
  const CommaLocale comma;
  EXPECT_EQ(LenientNumber("1.5"), 1.5);
  EXPECT_EQ(LenientNumber("1,5"), 1.0);
  EXPECT_EQ(RoundedInt16("2.0"), 2);
  EXPECT_THROW(RoundedInt16("2,0"), Failure);
  EXPECT_EQ(StrictInt16("1234"), 1234);
  EXPECT_THROW(StrictInt16("1.234"), Failure);
  EXPECT_EQ(SingleText(1.5), "1.500000");
  EXPECT_EQ(TwoDecimals(1234.5), "1234.50");
}

}  // namespace
}  // namespace orvane
